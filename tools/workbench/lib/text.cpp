// Text conversion by the system's code pages, numbers and error messages.
#include "workbench/lib/text.h"

#include <system_error>

std::wstring Wide(std::string_view text, UINT codePage) {
    const int bytes = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(
        static_cast<size_t>(MultiByteToWideChar(codePage, 0, text.data(), bytes, wide.data(), bytes)));
    return wide;
}

std::string Utf8(std::wstring_view text) {
    constexpr size_t kMaxBytesPerUnit = 3;
    std::string utf8(text.size() * kMaxBytesPerUnit, '\0');
    utf8.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(),
                                                        static_cast<int>(text.size()), utf8.data(),
                                                        static_cast<int>(utf8.size()), nullptr, nullptr)));
    return utf8;
}

std::string Utf8(std::string_view text, UINT codePage) {
    return Utf8(Wide(text, codePage));
}

int ParseNumber(const std::string& text, size_t maxDigits) {
    const bool isNumber = !text.empty() && text.size() <= maxDigits
                          && text.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? std::stoi(text) : -1;
}

std::string ErrorText(DWORD error) {
    return "error " + std::to_string(error) + ", " + std::system_category().message(static_cast<int>(error));
}

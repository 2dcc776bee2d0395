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

std::string Base64(std::string_view bytes) {
    constexpr const char* kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (size_t i = 0; i < bytes.size(); i += 3) {
        uint32_t bits = 0;
        for (size_t j = i; j < i + 3; ++j)
            bits = bits << 8 | (j < bytes.size() ? static_cast<uint8_t>(bytes[j]) : 0u);
        for (int shift = 18; shift >= 0; shift -= 6)
            text += kDigits[bits >> shift & 63];
    }
    for (size_t missing = (3 - bytes.size() % 3) % 3; missing > 0; --missing)
        text[text.size() - missing] = '=';
    return text;
}

int ParseNumber(const std::string& text, size_t maxDigits) {
    const bool isNumber = !text.empty() && text.size() <= maxDigits
                          && text.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? std::stoi(text) : -1;
}

std::string ErrorText(DWORD error) {
    return "error " + std::to_string(error) + ", " + std::system_category().message(static_cast<int>(error));
}

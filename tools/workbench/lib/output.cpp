// Text output: see the header. Line ends are written as they are, never as CR LF.
#include "workbench/lib/output.h"

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

std::string ErrorText(DWORD error) {
    return "error " + std::to_string(error) + ", " + std::system_category().message(static_cast<int>(error));
}

void TellPerson(const std::string& utf8, HWND owner) {
    MessageBoxW(owner, Wide(utf8).c_str(), L"lumora R880", MB_OK | MB_ICONWARNING);
}

void Print(DWORD where, std::string_view utf8) {
    HANDLE handle = GetStdHandle(where);
    DWORD mode;
    DWORD written;
    if (GetConsoleMode(handle, &mode)) {
        const std::wstring wide = Wide(utf8);
        WriteConsoleW(handle, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
        return;
    }
    while (!utf8.empty()
           && WriteFile(handle, utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr))
        utf8.remove_prefix(written);
}

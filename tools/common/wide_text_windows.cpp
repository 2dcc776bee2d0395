// Converts texts by the functions of Windows, which replace what is not valid.
#include "common/wide_text.h"

std::wstring WideText(std::string_view utf8) {
    std::wstring wide(utf8.size(), L'\0'); // UTF-16 never has more units
    wide.resize(static_cast<size_t>(MultiByteToWideChar(
        CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

std::string Utf8FromWide(std::wstring_view wide) {
    std::string utf8(3 * wide.size(), '\0'); // the most that a unit becomes
    utf8.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(),
                                                        static_cast<int>(wide.size()), utf8.data(),
                                                        static_cast<int>(utf8.size()), nullptr, nullptr)));
    return utf8;
}

std::string SystemErrorText(DWORD error) {
    wchar_t text[256];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error,
                                  0, text, static_cast<DWORD>(std::size(text)), nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
        --length;
    return length == 0 ? "error " + std::to_string(error) : Utf8FromWide({text, length});
}

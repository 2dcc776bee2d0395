// Conversion to the ANSI code page.
#include "services.h"
#include "unicode.h"
#include "win32_control.h"

#include <algorithm>

namespace {

UINT ansiCodePage = 0;

std::string ToLatin1(const std::vector<wchar_t>& text) {
    std::string bytes;
    for (const wchar_t c : text)
        bytes.push_back(c < 0x100 ? static_cast<char>(c) : '?');
    return bytes;
}

// -1: the text runs to its terminator, which is converted with it.
std::string Converted(UINT codePage, const wchar_t* text, int length) {
    std::vector<wchar_t> characters;
    if (length >= 0) {
        characters.assign(text, text + length);
    } else {
        do
            characters.push_back(*text);
        while (*text++ != 0);
    }
    if (codePage != CP_UTF8)
        return ToLatin1(characters);
    characters.push_back(0);
    std::string bytes = win32::ToUtf8(characters.data());
    if (length < 0)
        bytes.push_back('\0');
    return bytes;
}

} // namespace

UINT WINAPI GetACP() {
    return ansiCodePage;
}

int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int length, char* to, int capacity,
                               LPCSTR defaultChar, BOOL* usedDefaultChar) {
    const DWORD error =
        win32::RecordCall("WideCharToMultiByte " + std::to_string(codePage) + " " + std::to_string(capacity));
    if (error != 0)
        return win32::Fail(error);
    if (text == nullptr || length == 0 || length < -1 || capacity < 0 || (to == nullptr && capacity != 0)
        || flags != 0 || defaultChar != nullptr || usedDefaultChar != nullptr)
        return win32::Fail(ERROR_INVALID_PARAMETER);
    const std::string bytes = Converted(codePage, text, length);
    const auto count = static_cast<int>(bytes.size());
    if (capacity == 0)
        return count;
    if (count > capacity)
        return win32::Fail(ERROR_INSUFFICIENT_BUFFER);
    std::copy(bytes.begin(), bytes.end(), to);
    return count;
}

namespace win32 {

void ResetCodePages() {
    SetAnsiCodePage(1252);
}

void SetAnsiCodePage(UINT codePage) {
    ansiCodePage = codePage;
}

} // namespace win32

// Text conversion by the system's code pages, numbers, the time and error messages.
#include "workbench/lib/text.h"

#include <iterator>

namespace {

bool IsAscii(std::string_view bytes) {
    for (const char byte : bytes)
        if (static_cast<uint8_t>(byte) > 0x7F)
            return false;
    return true;
}

// Without the last character when its bytes are incomplete.
std::string_view WithoutCutCharacter(std::string_view utf8) {
    constexpr size_t kMaxMissing = 3; // bytes of the longest incomplete character
    for (size_t size = utf8.size(); size > 0 && utf8.size() - size < kMaxMissing; --size)
        if ((static_cast<uint8_t>(utf8[size - 1]) & 0xC0) == 0xC0)
            return utf8.substr(0, size - 1);
    return utf8;
}

} // namespace

bool IsUtf8(std::string_view bytes) {
    return bytes.empty()
           || MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), static_cast<int>(bytes.size()),
                                  nullptr, 0)
                  != 0;
}

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

std::string PrinterText(std::string_view bytes) {
    if (IsUtf8(bytes))
        return std::string(bytes);
    // A single letter with an accent at the end of a text in a code page looks like a cut character, too. So
    // only a text that has other such characters counts as UTF-8.
    const std::string_view whole = WithoutCutCharacter(bytes);
    const bool isCutUtf8 = !IsAscii(whole) && IsUtf8(whole);
    return isCutUtf8 ? std::string(whole) : Utf8(bytes, CP_ACP);
}

std::optional<std::string> ToCodePage(const std::string& utf8) {
    if (GetACP() == CP_UTF8)
        return IsUtf8(utf8) ? std::optional(utf8) : std::nullopt;
    const std::wstring wide = Wide(utf8);
    std::string text(wide.size() * 2, '\0'); // no code page has characters of more bytes per unit
    BOOL hasDefault = FALSE;
    text.resize(static_cast<size_t>(
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), static_cast<int>(wide.size()),
                            text.data(), static_cast<int>(text.size()), nullptr, &hasDefault)));
    return hasDefault || text.empty() != wide.empty() ? std::nullopt : std::optional(text);
}

std::string Trimmed(const std::string& text) {
    constexpr const char* kSpaces = " \t\r\n";
    const size_t first = text.find_first_not_of(kSpaces);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(kSpaces) - first + 1);
}

std::string OneLine(std::string text) {
    for (size_t i = 0; i < text.size(); ++i) {
        const auto unit = static_cast<unsigned char>(text[i]);
        const bool isC1 =
            unit == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0;
        if (unit < ' ' || unit == 0x7F)
            text[i] = ' ';
        if (isC1) // U+0080 to U+009F, in UTF-8
            text.replace(i, 2, " ");
    }
    return Trimmed(text);
}

void AddPart(std::string& list, const std::string& part) {
    list += (list.empty() ? "" : ", ") + part;
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
    constexpr DWORD kFlags =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    wchar_t text[512] = L"";
    const DWORD length =
        FormatMessageW(kFlags, nullptr, error, 0, text, static_cast<DWORD>(std::size(text)), nullptr);
    const std::string message = Trimmed(Utf8(std::wstring_view(text, length)));
    return "error " + std::to_string(error) + (message.empty() ? "" : ", " + message);
}

std::string LocalTimeText() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    char text[32];
    snprintf(text, sizeof(text), "%04u-%02u-%02u %02u:%02u", now.wYear, now.wMonth, now.wDay, now.wHour,
             now.wMinute);
    return text;
}

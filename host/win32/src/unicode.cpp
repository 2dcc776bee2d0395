// Conversions of UTF-16 texts.
#include "unicode.h"

#include <cstdint>

namespace win32 {

std::string ToUtf8(const wchar_t* text) {
    std::string result;
    const auto append = [&result](uint32_t byte) { result.push_back(static_cast<char>(byte)); };
    while (*text != 0) {
        uint32_t code = static_cast<uint16_t>(*text++);
        const uint32_t second = static_cast<uint16_t>(*text);
        if (code >= 0xD800 && code < 0xDC00 && second >= 0xDC00 && second < 0xE000) {
            code = 0x10000 + ((code - 0xD800) << 10) + (second - 0xDC00);
            ++text;
        } else if (code >= 0xD800 && code < 0xE000) {
            code = 0xFFFD;
        }
        if (code < 0x80) {
            append(code);
            continue;
        }
        if (code < 0x800) {
            append(0xC0 | code >> 6);
        } else {
            if (code < 0x10000) {
                append(0xE0 | code >> 12);
            } else {
                append(0xF0 | code >> 18);
                append(0x80 | (code >> 12 & 0x3F));
            }
            append(0x80 | (code >> 6 & 0x3F));
        }
        append(0x80 | (code & 0x3F));
    }
    return result;
}

std::vector<wchar_t> Copy(const wchar_t* text) {
    const wchar_t* end = text;
    while (*end != 0)
        ++end;
    return {text, end + 1};
}

} // namespace win32

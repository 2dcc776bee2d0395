// What the first bytes of a text file say about its encoding, or that it is none. Header only, for tools of
// either build.
#ifndef COMMON_ENCODING_H
#define COMMON_ENCODING_H

#include <cstddef>
#include <string_view>

// Of a file: kBytes is UTF-8 or another encoding that has ASCII in the same bytes.
enum class Encoding { kBytes, kUtf16, kUtf32, kNotText, kCompressed };

// With a byte order mark or without one: the files that these tools read start with an ASCII character, so
// that the zeros around it show. A file that starts with other zeros is not a text.
inline Encoding EncodingOf(std::string_view text) {
    const auto isZero = [text](size_t at) { return at < text.size() && text[at] == 0; };
    constexpr std::string_view kCompressedStarts[] = {"\x1F\x8B", "PK\x03\x04", "7z\xBC\xAF", "\xFD\x37zXZ"};
    for (const std::string_view start : kCompressedStarts) // of gzip, zip, 7-Zip and xz
        if (text.substr(0, start.size()) == start)
            return Encoding::kCompressed;
    const bool hasMark = text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF";
    if ((isZero(0) && isZero(1)) || (isZero(2) && isZero(3)))
        return Encoding::kUtf32;
    if (!hasMark && !isZero(0) && !isZero(1))
        return Encoding::kBytes;
    const size_t next = isZero(0) ? 1 : 0;
    const bool isCharacter =
        next < text.size() && (text[next] >= ' ' || (text[next] >= '\t' && text[next] <= '\r'));
    return hasMark || isCharacter ? Encoding::kUtf16 : Encoding::kNotText;
}

// Why a file can't be read as UTF-8: another encoding, or no text. Null when it can.
inline const char* TextFileFault(std::string_view text) {
    constexpr const char* kFaults[] = {nullptr, "this file is UTF-16; save it as UTF-8",
                                       "this file is UTF-32; save it as UTF-8", "this file is not a text",
                                       "this is a compressed file: unpack it first"};
    return kFaults[static_cast<size_t>(EncodingOf(text))];
}

// The text after the byte order mark of UTF-8, if it has one.
inline std::string_view WithoutUtf8Mark(std::string_view text) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return text.substr(0, kMark.size()) == kMark ? text.substr(kMark.size()) : text;
}

#endif

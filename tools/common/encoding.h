// What the first bytes of a text file say about its encoding. Header only, for tools of either build.
#ifndef COMMON_ENCODING_H
#define COMMON_ENCODING_H

#include <string_view>

constexpr const char* kSaveAsUtf8 = "this file is UTF-16; save it as UTF-8";

// Whether the text is UTF-16: with its byte order mark, or, without one, as the zero in one of the first two
// bytes shows. The files that these tools read start with an ASCII character.
inline bool IsUtf16(std::string_view text) {
    const std::string_view first = text.substr(0, 2);
    return first == "\xFF\xFE" || first == "\xFE\xFF"
           || (first.size() == 2 && (first[0] == 0) != (first[1] == 0));
}

// The text after the byte order mark of UTF-8, if it has one.
inline std::string_view WithoutUtf8Mark(std::string_view text) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return text.substr(0, kMark.size()) == kMark ? text.substr(kMark.size()) : text;
}

#endif

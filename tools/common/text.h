// Text helpers of the tools: comparison without case, UTF-8 and UTF-16, numbers, and parts of messages.
#ifndef COMMON_TEXT_H
#define COMMON_TEXT_H

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Whether two texts are equal, ASCII case ignored.
bool EqualNoCase(std::string_view a, std::string_view b);

// ASCII lower case, for keys of containers that ignore case.
std::string FoldCase(std::string_view text);

inline bool HasPrefix(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

// Position of the first byte that is not valid UTF-8; npos when all of it is.
size_t FindBadUtf8(std::string_view text);

// The text must be valid UTF-8.
std::u16string Utf16FromUtf8(std::string_view text);

// An unpaired surrogate becomes U+FFFD and sets `wellFormed` to false.
std::string Utf8FromUtf16(std::u16string_view text, bool& wellFormed);

// Reads the bytes as Latin-1.
std::string Utf8FromBytes(std::string_view bytes);

// In single quotes, for messages: control characters and bytes that are not UTF-8 are escaped. Of a text that
// needs more than kMaxQuoted characters the start, and "...".
constexpr size_t kMaxQuoted = 128;
std::string Quote(std::string_view text);

// The same for a path, which is never cut.
std::string QuotePath(std::string_view path);

// "0x2C"
std::string Hex(uint64_t number);

// "\x1B"
std::string HexEscape(char c);

// "; did you mean 'NAME'?" with the closest candidate; empty when none is close.
std::string NearestHint(std::string_view name, const std::vector<std::string>& candidates);

// The number that makes up the whole text; nothing when anything else is in it. `format` is a base, or how
// floating point is written.
template <typename Number, typename... Format>
std::optional<Number> ParseWhole(std::string_view text, Format... format) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [next, error] = std::from_chars(text.data(), end, number, format...);
    return error == std::errc{} && next == end ? std::optional(number) : std::nullopt;
}

#endif

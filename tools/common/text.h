// Texts: comparison as the file's readers do it, UTF-8 and UTF-16, quoting for messages and near names.
#ifndef COMMON_TEXT_H
#define COMMON_TEXT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// In full, ignoring the case of ASCII letters.
bool EqualNoCase(std::string_view a, std::string_view b);

// Lower-case form of a name, for use as a key of containers that must not tell cases apart.
std::string FoldCase(std::string_view text);

// Position of the first byte that is not part of well-formed UTF-8; npos when there is none.
size_t FindBadUtf8(std::string_view text);

// The text must be well-formed.
std::u16string Utf16FromUtf8(std::string_view text);

// Unpaired surrogates become U+FFFD and `wellFormed` false.
std::string Utf8FromUtf16(std::u16string_view text, bool& wellFormed);

// Each byte as the character of the same number.
std::string Utf8FromBytes(std::string_view bytes);

// For messages: in single quotes, control characters escaped.
std::string Quote(std::string_view text);

// "0x2C"
std::string Hex(uint64_t number);

// "A, B or C", with " or " as `last`.
std::string Join(const std::vector<std::string>& texts, const char* last);

// "; did you mean 'NAME'?" with the candidate that is nearest to the name; empty when none is near.
std::string NearestHint(std::string_view name, const std::vector<std::string>& candidates);

#endif

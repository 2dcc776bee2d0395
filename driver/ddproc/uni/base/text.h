// Texts in fixed fields: bounded copies, comparisons, numbers. The module copies texts only by these
// functions. A text is an array, which it may fill without a terminator, or a pointer to a terminated text.
#ifndef BASE_TEXT_H
#define BASE_TEXT_H

#include <cstddef>
#include <cstdint>
#include <type_traits>

// The character at this position; 0 beyond the end of an array.
template <typename Text>
constexpr auto CharAt(const Text& text, size_t position) {
    if constexpr (std::is_array_v<Text>) {
        if (position >= std::extent_v<Text>)
            return std::remove_extent_t<Text>{};
    }
    return text[position];
}

// Characters before the terminator.
template <typename Text>
constexpr size_t TextLength(const Text& text) {
    size_t length = 0;
    while (CharAt(text, length) != 0)
        ++length;
    return length;
}

// Copies what fits and always terminates. The rest of the destination is unchanged.
template <typename Char, size_t Capacity, typename Text>
constexpr void CopyText(Char (&to)[Capacity], const Text& from) {
    size_t length = 0;
    for (; length < Capacity - 1 && CharAt(from, length) != 0; ++length)
        to[length] = from[length];
    to[length] = 0;
}

// Appends what fits and always terminates.
template <typename Char, size_t Capacity, typename Text>
constexpr void AppendText(Char (&to)[Capacity], const Text& from) {
    size_t length = TextLength(to);
    for (size_t i = 0; length < Capacity - 1 && CharAt(from, i) != 0; ++i)
        to[length++] = from[i];
    to[length] = 0;
}

constexpr char FoldCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Whether the first `length` characters are the same, ASCII case ignored. Neither text may be shorter.
constexpr bool SameCharacters(const char* a, const char* b, size_t length) {
    for (size_t i = 0; i < length; ++i)
        if (FoldCase(a[i]) != FoldCase(b[i]))
            return false;
    return true;
}

// Whether two texts are the same in full, ASCII case ignored.
template <typename TextA, typename TextB>
constexpr bool SameText(const TextA& a, const TextB& b) {
    size_t i = 0;
    while (CharAt(a, i) != 0 && FoldCase(CharAt(a, i)) == FoldCase(CharAt(b, i)))
        ++i;
    return CharAt(a, i) == 0 && CharAt(b, i) == 0;
}

// A hash of the text, ASCII case ignored: FNV-1a.
template <typename Text>
constexpr uint32_t TextHash(const Text& text) {
    uint32_t hash = 2166136261;
    for (size_t i = 0; CharAt(text, i) != 0; ++i)
        hash = (hash ^ static_cast<uint8_t>(FoldCase(CharAt(text, i)))) * 16777619;
    return hash;
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Parses leading spaces, an optional sign and digits; the rest is ignored. 0 without digits. The number wraps
// at 32 bits; a negative one is its two's complement.
constexpr uint32_t ParseDecimal(const char* text) {
    while (*text == ' ')
        ++text;
    const bool isNegative = *text == '-';
    text += *text == '-' || *text == '+' ? 1 : 0;
    uint32_t number = 0;
    for (; IsDigit(*text); ++text)
        number = number * 10 + static_cast<uint32_t>(*text - '0');
    return isNegative ? 0 - number : number;
}

#endif

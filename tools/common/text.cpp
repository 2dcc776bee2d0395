// Text helpers. UTF-8 is strict: no overlong forms, no surrogates.
#include "common/text.h"

#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <numeric>

namespace {

struct Decoded {
    char32_t point;
    size_t bytes; // 0: not well-formed
};

Decoded DecodeUtf8(std::string_view text) {
    const auto byte = [&](size_t i) { return static_cast<uint8_t>(text[i]); };
    const uint8_t lead = byte(0);
    if (lead < 0x80)
        return {lead, 1};
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return {0, 0};
    char32_t point = lead & (0xFFu >> (length + 1));
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return {0, 0};
        point = point << 6 | (byte(i) & 0x3Fu);
    }
    const char32_t least[] = {0x80, 0x800, 0x10000};
    if (point < least[length - 2] || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
        return {0, 0};
    return {point, length};
}

void AppendUtf8(std::string& to, char32_t point) {
    const auto put = [&](char32_t byte) { to.push_back(static_cast<char>(static_cast<uint8_t>(byte))); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | point >> 6);
        put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        put(0xE0 | point >> 12);
        put(0x80 | (point >> 6 & 0x3F));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xF0 | point >> 18);
        put(0x80 | (point >> 12 & 0x3F));
        put(0x80 | (point >> 6 & 0x3F));
        put(0x80 | (point & 0x3F));
    }
}

// In quotes, up to this many characters; an escape has more than one.
std::string QuoteStart(std::string_view text, size_t most) {
    std::string quoted = "'";
    for (size_t width = 0; !text.empty();) {
        const Decoded next = DecodeUtf8(text);
        const std::string_view bytes = text.substr(0, std::max<size_t>(next.bytes, 1));
        const bool isControl = next.point < 0x20 || (next.point >= 0x7F && next.point < 0xA0);
        std::string shown(bytes);
        if (next.bytes == 0 || isControl) {
            shown.clear();
            for (const char byte : bytes)
                shown += HexEscape(byte);
        }
        width += next.bytes == 0 || isControl ? shown.size() : 1;
        if (width > most)
            return quoted + "...'";
        quoted += shown;
        text.remove_prefix(bytes.size());
    }
    return quoted + "'";
}

// Levenshtein distance.
size_t EditDistance(std::string_view a, std::string_view b) {
    std::vector<size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), size_t{0});
    for (size_t i = 1; i <= a.size(); ++i) {
        size_t diagonal = row[0];
        row[0] = i;
        for (size_t j = 1; j <= b.size(); ++j) {
            const size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row[b.size()];
}

} // namespace

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && SameCharacters(a.data(), b.data(), a.size());
}

std::string FoldCase(std::string_view text) {
    std::string folded(text);
    for (char& c : folded)
        c = FoldCase(c);
    return folded;
}

size_t FindBadUtf8(std::string_view text) {
    for (size_t at = 0; at < text.size();) {
        const size_t length = DecodeUtf8(text.substr(at)).bytes;
        if (length == 0)
            return at;
        at += length;
    }
    return std::string_view::npos;
}

std::u16string Utf16FromUtf8(std::string_view text) {
    std::u16string wide;
    while (!text.empty()) {
        const Decoded next = DecodeUtf8(text);
        if (next.point < 0x10000) {
            wide.push_back(static_cast<char16_t>(next.point));
        } else {
            wide.push_back(static_cast<char16_t>(0xD800 + ((next.point - 0x10000) >> 10)));
            wide.push_back(static_cast<char16_t>(0xDC00 + ((next.point - 0x10000) & 0x3FF)));
        }
        text.remove_prefix(std::max<size_t>(next.bytes, 1));
    }
    return wide;
}

std::string Utf8FromUtf16(std::u16string_view text, bool& wellFormed) {
    const auto isHigh = [](char16_t c) { return c >= 0xD800 && c <= 0xDBFF; };
    const auto isLow = [](char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; };
    std::string to;
    wellFormed = true;
    for (size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (isHigh(text[i]) && i + 1 < text.size() && isLow(text[i + 1])) {
            point = 0x10000 + ((point - 0xD800) << 10) + (text[i + 1] - 0xDC00u);
            ++i;
        } else if (isHigh(text[i]) || isLow(text[i])) {
            point = 0xFFFD;
            wellFormed = false;
        }
        AppendUtf8(to, point);
    }
    return to;
}

std::string Utf8FromBytes(std::string_view bytes) {
    std::string to;
    for (const char c : bytes)
        AppendUtf8(to, static_cast<uint8_t>(c));
    return to;
}

std::string Quote(std::string_view text) {
    return QuoteStart(text, kMaxQuoted);
}

std::string QuotePath(std::string_view path) {
    return QuoteStart(path, std::string::npos);
}

std::string HexEscape(char c) {
    char escaped[8];
    std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned>(static_cast<uint8_t>(c)));
    return escaped;
}

std::string Hex(uint64_t number) {
    char text[24];
    std::snprintf(text, sizeof text, "0x%llX", static_cast<unsigned long long>(number));
    return text;
}

std::string NearestHint(std::string_view name, const std::vector<std::string>& candidates) {
    constexpr size_t kMaxName = 64; // bounds the work; no known name is as long
    if (name.size() > kMaxName)
        return "";
    const std::string folded = FoldCase(name);
    size_t least = std::max<size_t>(2, name.size() / 3) + 1;
    const std::string* nearest = nullptr;
    for (const std::string& candidate : candidates) {
        const size_t distance = EditDistance(folded, FoldCase(candidate));
        if (distance < least) {
            least = distance;
            nearest = &candidate;
        }
    }
    return nearest ? "; did you mean " + Quote(*nearest) + "?" : "";
}

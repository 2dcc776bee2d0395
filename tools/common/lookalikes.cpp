// The characters and what to type instead.
#include "common/lookalikes.h"

namespace {

constexpr const char* kSpace = "an ordinary space";
constexpr const char* kQuoteMark = "\" or '";

constexpr Lookalike kLookalikes[] = {
    {"\u00A0", "a no-break space", kSpace},
    {"\u202F", "a narrow no-break space", kSpace},
    {"\u3000", "a full-width space", kSpace},
    {"\u200B", "a zero-width space", "nothing"},
    {"\uFEFF", "a byte order mark", "nothing"},
    {"\u201C", "a typographic quote", kQuoteMark},
    {"\u201D", "a typographic quote", kQuoteMark},
    {"\u201E", "a typographic quote", kQuoteMark},
    {"\u2018", "a typographic quote", kQuoteMark},
    {"\u2019", "a typographic quote", kQuoteMark},
    {"\uFF1A", "a full-width colon", "':'"},
    {"\uFF0C", "a full-width comma", "','"},
    {"\u2013", "a dash", "'-'"},
    {"\u2014", "a dash", "'-'"},
    {"\u2212", "a minus sign", "'-'"},
};

} // namespace

const Lookalike* LookalikeAt(std::string_view text, size_t at) {
    for (const Lookalike& known : kLookalikes)
        if (text.substr(at, known.character.size()) == known.character)
            return &known;
    return nullptr;
}

size_t FindLookalike(std::string_view text, size_t start) {
    for (size_t at = start; at < text.size(); ++at)
        if (LookalikeAt(text, at) != nullptr)
            return at;
    return std::string_view::npos;
}

std::string LookalikeHint(std::string_view text) {
    const size_t at = FindLookalike(text);
    if (at == std::string_view::npos)
        return "";
    const Lookalike& found = *LookalikeAt(text, at);
    return std::string("; it has ") + found.name + ": type " + found.instead;
}

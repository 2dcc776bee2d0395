// Explains the errors of yaml-cpp: brackets, quotes and tabs by a scan of the text, everything else by a
// table of the library's messages.
#include "common/yaml_faults.h"

#include "common/lookalikes.h"
#include "common/text.h"
#include "common/yaml_scanner.h"

#include <algorithm>

namespace {

// Where the library found the error.
struct Spot {
    std::string_view text;
    Place place;
    std::string_view line; // the whole line
    std::string_view before;
    char character; // 0 at the end of the line
};

std::string_view LineOf(std::string_view text, uint64_t number) {
    for (uint64_t line = 1; line < number; ++line)
        text.remove_prefix(std::min(text.size(), text.find('\n') + 1));
    return text.substr(0, text.find('\n'));
}

Spot SpotOf(std::string_view text, const YAML::Mark& mark) {
    Spot spot = {text, PlaceOf(mark), {}, {}, 0};
    spot.line = LineOf(text, spot.place.line);
    const size_t column = std::min<size_t>(spot.place.column - 1, spot.line.size());
    spot.before = spot.line.substr(0, column);
    spot.character = column < spot.line.size() ? spot.line[column] : '\0';
    return spot;
}

bool IsEmptyLine(std::string_view line) {
    const size_t first = line.find_first_not_of(" \t\r");
    return first == std::string_view::npos || line[first] == '#';
}

Finding At(Place place, const std::string& message) {
    return {place, Severity::kError, message};
}

// The number of the line before this one that is not empty; 0 when there is none.
uint64_t LineAbove(const Spot& spot) {
    uint64_t above = spot.place.line - 1;
    while (above > 0 && IsEmptyLine(LineOf(spot.text, above)))
        --above;
    return above;
}

constexpr const char* kIndentation = "the line does not fit those before it: indent it as its neighbours are";

// --- Explanations ------------------------------------------------------------------------------------------

// A ':' where no name can end: a second one in the line, or the line above is no "NAME:".
Finding ExplainColon(const Spot& spot) {
    if (spot.before.find(": ") != std::string_view::npos)
        return At(spot.place, "a second ':' in the line: put a text with ':' in quotes, or a map in {}");
    const uint64_t above = LineAbove(spot);
    const std::string_view line = LineOf(spot.text, above);
    const size_t colon = line.find(':');
    if (above > 0 && colon == std::string_view::npos)
        return At({above, line.find_last_not_of(" \t\r") + 2}, "':' is missing after the name");
    if (above > 0 && colon + 1 < line.size() && line.find(": ") == std::string_view::npos)
        return At({above, colon + 2}, "a space is missing after ':'");
    return At({spot.place.line, spot.line.find_first_not_of(' ') + 1}, kIndentation);
}

// Something other than ',' or the closing bracket after a value.
Finding ExplainBracket(const Spot& spot) {
    return At(spot.place,
              spot.character == ':'
                  ? "a second ':' in the value: put a text with ':' in quotes, or write ',' before "
                    "the next name"
                  : "',' is missing before this");
}

Finding ExplainClosing(const Spot& spot) {
    return At(spot.place, "the bracket closes nothing: remove it, or put its text in quotes");
}

Finding ExplainToken(const Spot& spot) {
    return At(spot.place, NeedsQuotes(spot.character));
}

// The mark is that of the character, or follows it.
Finding ExplainMarker(const Spot& spot) {
    const size_t found = spot.line.substr(0, spot.before.size() + 1).find_last_of("&*!");
    const size_t at = found != std::string_view::npos ? found : spot.before.size();
    return At({spot.place.line, at + 1}, NeedsQuotes(at < spot.line.size() ? spot.line[at] : '&'));
}

// The mark follows the escape.
Place EscapeOf(const Spot& spot) {
    return {spot.place.line, spot.before.rfind('\\') + 1};
}

Finding ExplainEscape(const Spot& spot) {
    return At(EscapeOf(spot), "unknown escape after '\\': write \\\\ for a backslash, or use single quotes");
}

Finding ExplainHex(const Spot& spot) {
    return At(EscapeOf(spot),
              "not the number of a character: write \\x and 2, or \\u and 4 hexadecimal digits");
}

Finding ExplainBlock(const Spot& spot) {
    return At(spot.place, "a text that starts with '|' or '>' needs quotes");
}

Finding ExplainDash(const Spot& spot) {
    return At(spot.place,
              "'-' cannot be here: start a line with it, indented as the other items of the list");
}

// Also an item that has lost its '-', in this line or the one above.
Finding ExplainIndentation(const Spot& spot) {
    constexpr const char* kNoDash = "'- ' is missing before the item";
    const auto firstOf = [&](uint64_t line) {
        const std::string_view text = LineOf(spot.text, line);
        const size_t first = text.find_first_not_of(' ');
        return std::pair(Place{line, first + 1}, first < text.size() ? text[first] : '\0');
    };
    const auto [place, first] = firstOf(spot.place.line);
    if (first == '{' && place.column == spot.place.column)
        return At(place, kNoDash);
    if (first == '-' && spot.place.line > 1)
        if (const auto [above, c] = firstOf(LineAbove(spot)); c == '{')
            return At(above, kNoDash);
    return At(spot.place, kIndentation);
}

Finding ExplainTab(const Spot& spot) {
    return At(spot.place, "a tab cannot be here: use spaces");
}

Finding ExplainQuote(const Spot& spot) {
    return At(spot.place, "a text in quotes is not closed before this line: end it with its quote");
}

Finding ExplainDirective(const Spot& spot) {
    return At(spot.place, "a line that starts with '%' has no use here: remove it");
}

Finding ExplainDepth(const Spot& spot) {
    return At(spot.place, "too many levels of brackets or indentation: remove what is not needed");
}

// The messages that reading can cause, by their starts. The others of the library are about programs.
namespace Messages = YAML::ErrorMsg;
const struct {
    const char* message;
    Finding (*explain)(const Spot& spot);
} kExplanations[] = {
    // clang-format off
    {Messages::MAP_VALUE,            ExplainColon},
    {Messages::END_OF_MAP_FLOW,      ExplainBracket},
    {Messages::END_OF_SEQ_FLOW,      ExplainBracket},
    {Messages::FLOW_END,             ExplainClosing},
    {Messages::END_OF_MAP,           ExplainIndentation},
    {Messages::END_OF_SEQ,           ExplainIndentation},
    {Messages::MAP_KEY,              ExplainIndentation},
    {Messages::BLOCK_ENTRY,          ExplainDash},
    {Messages::TAB_IN_INDENTATION,   ExplainTab},
    {Messages::CHAR_IN_SCALAR,       ExplainTab},
    {Messages::DOC_IN_SCALAR,        ExplainQuote},
    {Messages::EOF_IN_SCALAR,        ExplainQuote},
    {Messages::SINGLE_QUOTED_CHAR,   ExplainQuote},
    {Messages::UNKNOWN_TOKEN,        ExplainToken},
    {Messages::CHAR_IN_BLOCK,        ExplainBlock},
    {Messages::ZERO_INDENT_IN_BLOCK, ExplainBlock},
    {Messages::INVALID_ESCAPE,       ExplainEscape},
    {Messages::INVALID_HEX,          ExplainHex},
    {Messages::INVALID_UNICODE,      ExplainHex},
    {Messages::MULTIPLE_TAGS,        ExplainMarker},
    {Messages::MULTIPLE_ANCHORS,     ExplainMarker},
    {Messages::MULTIPLE_ALIASES,     ExplainMarker},
    {Messages::ALIAS_CONTENT,        ExplainMarker},
    {Messages::ALIAS_NOT_FOUND,      ExplainMarker},
    {Messages::ANCHOR_NOT_FOUND,     ExplainMarker},
    {Messages::CHAR_IN_ALIAS,        ExplainMarker},
    {Messages::CHAR_IN_ANCHOR,       ExplainMarker},
    {Messages::UNKNOWN_ANCHOR,       ExplainMarker},
    {Messages::AMBIGUOUS_ANCHOR,     ExplainMarker},
    {Messages::INVALID_ANCHOR,       ExplainMarker},
    {Messages::INVALID_ALIAS,        ExplainMarker},
    {Messages::INVALID_TAG,          ExplainMarker},
    {Messages::CHAR_IN_TAG_HANDLE,   ExplainMarker},
    {Messages::TAG_WITH_NO_SUFFIX,   ExplainMarker},
    {Messages::END_OF_VERBATIM_TAG,  ExplainMarker},
    {Messages::YAML_DIRECTIVE_ARGS,  ExplainDirective},
    {Messages::YAML_VERSION,         ExplainDirective},
    {Messages::YAML_MAJOR_VERSION,   ExplainDirective},
    {Messages::REPEATED_YAML_DIRECTIVE, ExplainDirective},
    {Messages::TAG_DIRECTIVE_ARGS,   ExplainDirective},
    {Messages::REPEATED_TAG_DIRECTIVE, ExplainDirective},
    {Messages::BAD_FILE,             ExplainDepth}, // the library's limit on recursion
    // clang-format on
};

// A lookalike where YAML expects a sign or a value: at the start of the line or after a sign.
std::optional<Finding> FindLookalikeSign(std::string_view text, uint64_t line) {
    const std::string_view all = LineOf(text, line);
    for (size_t at = FindLookalike(all); at != std::string_view::npos; at = FindLookalike(all, at + 1)) {
        const size_t before = all.substr(0, at).find_last_not_of(' ');
        if (before != std::string_view::npos
            && std::string_view(":-,{[").find(all[before]) == std::string_view::npos)
            continue;
        const Lookalike& found = *LookalikeAt(all, at);
        return At({line, at + 1}, std::string(found.name) + " is here: type " + found.instead
                                      + ", or put the text in quotes");
    }
    return std::nullopt;
}

} // namespace

Finding ExplainYamlError(std::string_view text, const YAML::Exception& error) {
    const Spot spot = SpotOf(text, error.mark);
    const std::optional<Finding> fault = ScanYaml(text);
    if (fault && fault->place.line <= spot.place.line)
        return *fault;
    const auto* row = std::find_if(std::begin(kExplanations), std::end(kExplanations),
                                   [&](const auto& known) { return error.msg.rfind(known.message, 0) == 0; });
    if (row != std::end(kExplanations)) {
        const Finding explained = row->explain(spot);
        return FindLookalikeSign(text, explained.place.line).value_or(explained);
    }
    return At(spot.place, "this cannot be read: write NAME: VALUE, and texts with signs in quotes");
}

std::string NeedsQuotes(char first) {
    return "a text that starts with " + Quote({&first, 1}) + " needs quotes";
}

Place PlaceOf(const YAML::Mark& mark) {
    return {static_cast<uint64_t>(mark.line) + 1, static_cast<uint64_t>(mark.column) + 1};
}

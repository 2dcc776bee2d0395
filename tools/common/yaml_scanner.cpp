// Walks through YAML as far as it takes to tell brackets and quotes with a meaning from other characters.
#include "common/yaml_scanner.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

std::string InQuotes(char c) {
    return std::string("'") + c + "'";
}

class Scanner {
public:
    explicit Scanner(std::string_view wholeText) : text(wholeText) {}

    std::optional<Finding> Scan() {
        while (!fault && at < text.size()) {
            if (isLineStart && open.empty())
                StartLine();
            else
                Step();
        }
        if (!fault && !open.empty())
            Fail(open.front().place, Unclosed(open.front()));
        return fault;
    }

private:
    struct Opened {
        char bracket;
        Place place;
        bool hasComment; // after it on its line
    };

    // The end of the text counts as the end of a line.
    char Peek(size_t ahead = 0) const { return at + ahead < text.size() ? text[at + ahead] : '\n'; }
    bool EndsWord(size_t ahead) const { return IsBlank(Peek(ahead)) || Peek(ahead) == '\n'; }
    Place Here() const { return {line, at - lineStart + 1}; }

    void Fail(Place place, const std::string& message) { fault = Finding{place, Severity::kError, message}; }

    void Advance() {
        isLineStart = Peek() == '\n';
        ++at;
        if (isLineStart) {
            ++line;
            lineStart = at;
        }
    }

    void SkipBlanks() {
        while (at < text.size() && IsBlank(Peek()))
            Advance();
    }

    void SkipToLineEnd() {
        while (Peek() != '\n')
            Advance();
    }

    // Checks the indentation, which has no meaning inside brackets.
    void StartLine() {
        isLineStart = false;
        isStart = true;
        SkipBlanks();
        indentation = at - lineStart;
        const size_t tab = text.substr(lineStart, indentation).find('\t');
        if (tab != std::string_view::npos && Peek() != '\n' && Peek() != '#')
            Fail({line, tab + 1}, "the line is indented with a tab: use spaces");
    }

    void Step() {
        const char c = Peek();
        const bool isInBrackets = !open.empty();
        if (c == '#' && (at == lineStart || IsBlank(text[at - 1])))
            return Comment();
        if (IsBlank(c) || c == '\n')
            return Advance();
        if (isStart && (c == '"' || c == '\''))
            return Quoted(c);
        if ((c == '{' || c == '[') && (isStart || isInBrackets))
            return Open(c);
        if ((c == '}' || c == ']') && (isStart || isInBrackets))
            return Close(c);
        if ((c == '|' || c == '>') && isStart && !isInBrackets)
            return SkipBlock();
        const bool separates = (c == ':' && EndsWord(1)) || (c == ',' && isInBrackets);
        const bool leads = isStart && (c == '-' || c == '?') && EndsWord(1);
        isStart = separates || leads;
        Advance();
    }

    void Comment() {
        if (!open.empty() && open.back().place.line == line)
            open.back().hasComment = true;
        SkipToLineEnd();
    }

    void Open(char bracket) {
        open.push_back({bracket, Here(), false});
        isStart = true;
        Advance();
    }

    static char ClosingOf(char bracket) { return bracket == '{' ? '}' : ']'; }

    static std::string Unclosed(const Opened& opened) {
        return InQuotes(opened.bracket) + " is not closed: end it with " + InQuotes(ClosingOf(opened.bracket))
               + (opened.hasComment ? "; the '#' after it starts a comment, unless its text is in quotes"
                                    : "");
    }

    void Close(char bracket) {
        const auto isMatch = [bracket](const Opened& opened) { return ClosingOf(opened.bracket) == bracket; };
        if (open.empty())
            return Fail(Here(), InQuotes(bracket) + " closes nothing: remove it, or put its text in quotes");
        if (!isMatch(open.back())) {
            if (std::any_of(open.begin(), open.end(), isMatch))
                return Fail(open.back().place, Unclosed(open.back()));
            return Fail(Here(), InQuotes(bracket) + " does not close the " + InQuotes(open.back().bracket)
                                    + " of line " + std::to_string(open.back().place.line) + ": write "
                                    + InQuotes(ClosingOf(open.back().bracket)));
        }
        open.pop_back();
        isStart = false;
        Advance();
        SkipBlanks();
        const bool isClosing = Peek() == '}' || Peek() == ']';
        if (open.empty() && isClosing)
            Fail(Here(), InQuotes(Peek()) + " closes nothing: remove it");
        else if (!EndsValue())
            Fail(Here(), open.empty() ? "the value ends with the bracket before this: start a new line"
                                      : "',' is missing before this");
    }

    // Whether nothing follows on the line that would continue a value.
    bool EndsValue() const {
        const char c = Peek();
        return c == '\n' || c == '#' || c == ':' || (!open.empty() && (c == ',' || c == '}' || c == ']'));
    }

    void Quoted(char quote) {
        const Place opened = Here();
        Advance();
        while (at < text.size() && Peek() != quote)
            QuotedCharacter(quote);
        const std::string unclosed = std::string("the quote ") + quote + " is not closed: end the text with "
                                     + quote + " on the same line";
        if (at == text.size())
            return Fail(opened, unclosed);
        Advance();
        isStart = false;
        SkipBlanks();
        if (EndsValue()) {
            isStart = Peek() == ':';
            return isStart ? Advance() : void();
        }
        if (opened.line != line)
            return Fail(opened, unclosed);
        Fail(Here(), std::string("the text in quotes ends before this: write ")
                         + (quote == '"' ? "\\\"" : "''") + " for a quote inside it"
                         + (open.empty() ? "" : ", or ',' if another value follows"));
    }

    // A character of a text in quotes, or an escape.
    void QuotedCharacter(char quote) {
        if (quote == '"' && Peek() == '\\')
            Advance();
        if (at < text.size())
            Advance();
        while (quote == '\'' && Peek() == '\'' && Peek(1) == '\'') {
            Advance();
            Advance();
        }
    }

    // A text on the lines below, which are indented more than this one.
    void SkipBlock() {
        const size_t least = indentation + 1;
        SkipToLineEnd();
        while (at < text.size()) {
            const size_t first = text.find_first_not_of(' ', at + 1);
            if (first == std::string_view::npos || (first - at - 1 < least && text[first] != '\n'))
                break;
            Advance();
            SkipToLineEnd();
        }
    }

    std::string_view text;
    size_t at = 0;
    uint64_t line = 1;
    size_t lineStart = 0;
    size_t indentation = 0; // of the line, in characters
    bool isLineStart = true;
    bool isStart = true; // whether a value may start here
    std::vector<Opened> open;
    std::optional<Finding> fault;
};

} // namespace

std::optional<Finding> ScanYaml(std::string_view text) {
    return Scanner(text).Scan();
}

// Walks through the words of a text that should be JSON up to the first one that can't be where it is. A
// bracket or a text that is not closed is a fault where it opens.
#include "workbench/lib/json_fault.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {

// What may come next.
enum class Next { kValue, kValueOrEnd, kName, kNameOrEnd, kColon, kCommaOrEnd, kNothing };

struct Fault {
    size_t at;
    std::string message;
};

bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool IsSign(char c) {
    return c != '\0' && std::string_view("{}[]:,").find(c) != std::string_view::npos;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string InQuotes(std::string_view word) {
    return "'" + std::string(word.substr(0, 40)) + "'";
}

std::string InQuotes(char c) {
    return InQuotes(std::string_view(&c, 1));
}

char ClosingOf(char bracket) {
    return bracket == '{' ? '}' : ']';
}

class Walk {
public:
    explicit Walk(std::string_view wholeText) : text(wholeText) {}

    std::optional<Fault> Run() {
        while (!fault) {
            at = std::min(text.size(), at + CountSpaces());
            if (at == text.size())
                return AtEnd();
            Take();
        }
        return fault;
    }

    std::string PlaceOf(size_t position) const {
        const std::string_view before = text.substr(0, position);
        const size_t lineStart = before.rfind('\n') + 1; // npos: the first line
        return std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + ":"
               + std::to_string(position - lineStart + 1);
    }

private:
    size_t CountSpaces() const {
        size_t count = 0;
        while (at + count < text.size() && IsSpace(text[at + count]))
            ++count;
        return count;
    }

    void Fail(size_t position, const std::string& message) { fault = Fault{position, message}; }

    std::string Unclosed(size_t position) const {
        return InQuotes(text[position]) + " is not closed: end it with "
               + InQuotes(ClosingOf(text[position]));
    }

    std::optional<Fault> AtEnd() const {
        if (!open.empty())
            return Fault{open.front(), Unclosed(open.front())};
        return next == Next::kNothing ? std::nullopt : std::optional(Fault{0, "the file is empty"});
    }

    void Take() {
        const char c = text[at];
        if (next == Next::kNothing)
            return Fail(at, "nothing may follow the end of the value: remove it");
        if (c == '/' || c == '#')
            return Fail(at, "JSON has no comments: remove it");
        if (c == '\'')
            return Fail(at, "texts have double quotes: write \" instead of '");
        if (c == '"')
            return TakeText();
        if (!IsSign(c))
            return TakeWord();
        if (c == '{' || c == '[')
            return Open(c);
        if (c == '}' || c == ']')
            return Close(c);
        if (c == ':' ? next != Next::kColon : next != Next::kCommaOrEnd)
            return Unexpected();
        const bool isInObject = text[open.back()] == '{';
        lastComma = at++;
        next = c == ',' && isInObject ? Next::kName : Next::kValue;
    }

    void TakeText() {
        const size_t start = at;
        for (++at; at < text.size() && text[at] != '"' && text[at] != '\n'; ++at)
            at += text[at] == '\\' ? 1 : 0;
        if (at >= text.size() || text[at] == '\n')
            return Fail(start, "the text is not closed: end it with \" on the same line");
        const size_t end = at + 1;
        at = start;
        if (next == Next::kName || next == Next::kNameOrEnd)
            next = Next::kColon;
        else if (!StartValue())
            return;
        else
            EndValue();
        at = end;
    }

    void TakeWord() {
        size_t end = at;
        while (end < text.size() && !IsSpace(text[end]) && !IsSign(text[end]) && text[end] != '"')
            ++end;
        const std::string_view word = text.substr(at, end - at);
        const bool isNumber = IsDigit(word[0]) || word[0] == '-' || word[0] == '+' || word[0] == '.';
        if (next == Next::kName || next == Next::kNameOrEnd)
            return Fail(at, IsDigit(word[0]) ? "expected a name in double quotes; a number has no ',' in it"
                                             : "a name has double quotes: write \"NAME\": VALUE");
        if (!StartValue())
            return;
        if (!isNumber && word != "true" && word != "false" && word != "null")
            return Fail(at, InQuotes(word)
                                + " needs double quotes; only numbers, true, false and null have none");
        EndValue();
        at = end;
    }

    // False, with a fault, when no value can be here.
    bool StartValue() {
        if (next != Next::kValue && next != Next::kValueOrEnd)
            Unexpected();
        return !fault;
    }

    void EndValue() { next = open.empty() ? Next::kNothing : Next::kCommaOrEnd; }

    void Open(char bracket) {
        if (!StartValue())
            return;
        open.push_back(at++);
        next = bracket == '{' ? Next::kNameOrEnd : Next::kValueOrEnd;
    }

    void Close(char bracket) {
        if (open.empty())
            return Unexpected();
        const auto closes = [&](size_t position) { return ClosingOf(text[position]) == bracket; };
        if (!closes(open.back())) {
            if (std::any_of(open.begin(), open.end(), closes))
                return Fail(open.back(), Unclosed(open.back()));
            return Fail(at, InQuotes(bracket) + " does not close the " + InQuotes(text[open.back()]) + " at "
                                + PlaceOf(open.back()));
        }
        if ((next == Next::kName || next == Next::kValue) && text[lastComma] == ',')
            return Fail(lastComma, "',' before a closing bracket: remove it");
        if (next == Next::kName || next == Next::kValue || next == Next::kColon)
            return Unexpected();
        open.pop_back();
        ++at;
        EndValue();
    }

    // What is missing before the word that is next.
    void Unexpected() {
        const char* const missing = next == Next::kColon        ? "':'"
                                    : next == Next::kCommaOrEnd ? "','"
                                    : next == Next::kName || next == Next::kNameOrEnd
                                        ? "a name in double quotes"
                                        : "a value";
        Fail(at, std::string(missing) + " is missing before this");
    }

    std::string_view text;
    size_t at = 0;
    Next next = Next::kValue;
    size_t lastComma = 0; // or colon
    std::vector<size_t> open;
    std::optional<Fault> fault;
};

// A fault inside a text or a number.
std::string ExplainInside(std::string_view text, size_t byte) {
    const char c = byte < text.size() ? text[byte] : '\0';
    if (static_cast<unsigned char>(c) >= 0x80)
        return "not UTF-8: save the file as UTF-8";
    if (static_cast<unsigned char>(c) < 0x20)
        return "a control character in a text: write an escape such as \\t or \\u0007";
    if (byte > 0 && text[byte - 1] == '\\')
        return "unknown escape: write \\\\ for a backslash";
    constexpr size_t kEscape = 6; // bytes of \uXXXX
    const std::string_view before = text.substr(byte - std::min(byte, kEscape), kEscape);
    return before.find("\\u") != std::string_view::npos
               ? "no character: write \\u and its 4 hexadecimal digits"
               : "no number: write 12, -1.5 or 1e3";
}

} // namespace

std::string ExplainJsonError(std::string_view text, size_t byte) {
    Walk walk(text);
    const std::optional<Fault> fault = walk.Run();
    if (fault && fault->at <= byte)
        return walk.PlaceOf(fault->at) + ": " + fault->message;
    return walk.PlaceOf(byte) + ": " + ExplainInside(text, byte);
}

// Writes the reference of the entries, in one of two styles: plain text or Markdown.
#include "prmc/reference/reference.h"

#include "prmc/reference/entry_parts.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr size_t kTerminalWidth = 100;
constexpr size_t kDocumentWidth = 120;

struct Style {
    bool isMarkdown;

    size_t Width() const { return isMarkdown ? kDocumentWidth : kTerminalWidth; }
    std::string Code(const std::string& text) const { return isMarkdown ? "`" + text + "`" : text; }
    std::string Strong(const std::string& text) const { return isMarkdown ? "**" + text + "**" : text; }
};

// Breaks a paragraph at spaces. The first line starts with `first`, the others with as many spaces and
// `more`.
std::string Wrapped(const Style& style, const std::string& first, const std::string& text, size_t more = 0) {
    std::string lines, line = first;
    const std::string indent(first.size() + more, ' ');
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find(' ', at), text.size());
        const std::string word = text.substr(at, end - at);
        const bool startsLine = line.find_first_not_of(" -") == std::string::npos;
        if (!startsLine && line.size() + 1 + word.size() > style.Width()) {
            lines += line + "\n";
            line = indent + word;
        } else {
            line += (startsLine ? "" : " ") + word;
        }
        at = end + 1;
    }
    return lines + line + "\n";
}

// A paragraph of a list.
std::string Point(const Style& style, const std::string& text) {
    return style.isMarkdown ? Wrapped(style, "- ", text) : Wrapped(style, "    ", text, 2);
}

std::string Listed(const Style& style, const std::vector<std::string>& words, const char* last = ", ") {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : &word == &words.back() ? last : ", ") + style.Code(word);
    return text;
}

// The place that a renderer of Markdown gives to a heading.
std::string AnchorOf(const std::string& heading) {
    std::string anchor;
    for (const char c : heading) {
        if (c == ' ')
            anchor += '-';
        else if (c == '-' || c == '_' || std::isalnum(static_cast<unsigned char>(c)))
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return anchor;
}

std::string Link(const Style& style, const std::string& text, const std::string& heading) {
    return style.isMarkdown ? "[" + text + "](#" + AnchorOf(heading) + ")" : text;
}

// Headings of kinds differ from those of entries also where the names don't.
std::string KindHeading(const Kind& kind) {
    return std::string("Kind: ") + kind.label;
}
std::string KindLink(const Style& style, const Kind& kind) {
    return Link(style, kind.label, KindHeading(kind));
}

std::string Between(const Limits& limits) {
    return std::to_string(limits.least) + " to " + std::to_string(limits.most);
}

// What a field may contain; without an entry, what all of the kind have in common.
std::string ContentOf(const EntryRow* row, const Field& field) {
    const EntryRow none = {};
    const size_t characters = MaxCharacters(row ? *row : none, field);
    const std::string atMost = " of at most " + std::to_string(characters) + " characters";
    switch (field.type) {
    case FieldType::kKey:
        return "ASCII text of 1 to " + std::to_string(characters) + " characters";
    case FieldType::kName:
        return "text" + (characters > 0 ? atMost : " within the entry's limit");
    case FieldType::kText:
        return "ASCII text" + atMost;
    case FieldType::kPairs:
        return "map; names and values are ASCII texts" + atMost;
    case FieldType::kNumbers:
        break;
    }
    const Limits limits = LimitsOf(row ? *row : none, field);
    const std::string within = limits.AreGiven() ? Between(limits) : "within the entry's limits";
    return field.count > 1 ? std::to_string(field.count) + " numbers in brackets, each " + within
                           : "number, " + within;
}

std::string FieldLines(const Style& style, const EntryRow* row, const Kind& kind) {
    std::string text;
    for (const Field& field : kind.fields)
        text += Point(style, style.Strong(field.name) + " (" + ContentOf(row, field)
                                 + (field.required ? "" : "; may be left out") + "): " + field.meaning);
    return text;
}

std::string ValueText(const Style& style, const RowValue& value) {
    if (value.maxType > 0)
        return style.Code("TYPE1") + " to " + style.Code("TYPE" + std::to_string(value.maxType));
    if (!value.words.empty())
        return Listed(style, value.words, " or ");
    return value.numbers > 1 ? "text with " + std::to_string(value.numbers) + " numbers" : "number";
}

// The rows that this module reads one by one, the others by the values that they may have.
std::string RowLines(const Style& style, const std::vector<TableRow>& rows) {
    std::string text;
    std::vector<std::pair<std::string, std::vector<std::string>>> others;
    for (const TableRow& row : rows) {
        const std::string value = ValueText(style, row.value);
        if (!row.meaning.empty()) {
            text += Point(style, style.Strong(row.name) + " (" + value + "): " + row.meaning);
            continue;
        }
        const auto isSame = [&](const auto& other) { return other.first == value; };
        if (std::none_of(others.begin(), others.end(), isSame))
            others.push_back({value, {}});
        std::find_if(others.begin(), others.end(), isSame)->second.push_back(row.name);
    }
    for (const auto& [value, names] : others)
        text += Point(style, "For the generic modules alone, " + value + ": " + Listed(style, names) + ".");
    return text;
}

// Form and limits in one paragraph.
// How long the entry's names may be; empty when the kind says it.
std::string NameLimit(const Style& style, const EntryRow& row) {
    std::vector<std::string> names;
    for (const Field& field : row.kind->fields)
        if (field.type == FieldType::kName && field.count == 1)
            names.push_back(field.name);
    if (names.empty())
        return "";
    return " " + Listed(style, names, " and ") + (names.size() == 1 ? " has" : " have") + " at most "
           + std::to_string(row.nameChars) + " characters.";
}

std::string FormText(const Style& style, const EntryRow& row) {
    const std::string kind = KindLink(style, *row.kind);
    switch (row.kind->form) {
    case Form::kTable:
        return "A " + kind + ", one row a line:";
    case Form::kRange:
        return "A " + kind + ", within " + Between(row.values) + ".";
    case Form::kSingle:
        return "A single line: " + kind + ".";
    case Form::kList:
        break;
    }
    std::string text = "A list, each item: " + kind + ". ";
    text += !row.kind->HasKeys() ? "It has no default."
            : row.defaultNeeded  ? "It needs a default."
                                 : "A default may be given.";
    if (row.maxItems > 0)
        text += " The driver takes at most " + std::to_string(row.maxItems)
                + (row.maxItems == 1 ? " item." : " items.");
    if (style.isMarkdown)
        text += NameLimit(style, row);
    if (style.isMarkdown && row.values.AreGiven())
        text += " Values are " + Between(row.values) + ".";
    return text;
}

std::string KeyLines(const Style& style, const EntryRow& row) {
    const std::string start = style.isMarkdown ? "" : "  ";
    std::string text;
    if (row.keys.count > 0)
        text += Wrapped(style, start, "Keys: " + Listed(style, Texts(row.keys)) + ". No others.");
    if (row.specialKeys.count > 0)
        text += Wrapped(style, start,
                        "Keys that mean something: " + Listed(style, Texts(row.specialKeys))
                            + ". Any others may be used as well.");
    return text;
}

std::string Example(const Style& style, const std::string& yaml) {
    if (style.isMarkdown)
        return "```yaml\n" + yaml + "```\n";
    std::string text;
    for (size_t at = 0; at < yaml.size(); at = yaml.find('\n', at) + 1)
        text += "    " + yaml.substr(at, yaml.find('\n', at) - at) + "\n";
    return "  Example:\n" + text;
}

std::string EntryText(const EntryRow& row) {
    const Style style = {false};
    std::string text = std::string(row.name) + "\n";
    text += Wrapped(style, "  ", UseOf(row));
    text += Wrapped(style, "  ", std::string("Without it: ") + AbsenceOf(row)) + "\n";
    text += Wrapped(style, "  ", FormText(style, row));
    text += row.kind->form == Form::kTable ? RowLines(style, TableRowsOf(row))
                                           : FieldLines(style, &row, *row.kind);
    return text + KeyLines(style, row) + "\n" + Example(style, ExampleOf(row));
}

std::string EntrySection(const EntryRow& row) {
    const Style style = {true};
    std::string text = std::string("### ") + row.name + "\n\n";
    text += Wrapped(style, "", row.use) + "\n";
    text += Wrapped(style, "", std::string("*Without it:* ") + AbsenceOf(row)) + "\n";
    text += Wrapped(style, "", FormText(style, row));
    if (row.kind->form == Form::kTable)
        text += "\n" + RowLines(style, TableRowsOf(row));
    const std::string keys = KeyLines(style, row);
    return text + (keys.empty() ? "" : "\n" + keys) + "\n" + Example(style, ExampleOf(row));
}

std::vector<const Kind*> KindsInUse() {
    std::vector<const Kind*> kinds;
    for (const EntryRow& row : KnownEntries())
        if (std::find(kinds.begin(), kinds.end(), row.kind) == kinds.end())
            kinds.push_back(row.kind);
    return kinds;
}

std::string KindSection(const Kind& kind) {
    const Style style = {true};
    std::string text = "### " + KindHeading(kind) + "\n\n";
    if (kind.form == Form::kTable)
        return text + Wrapped(style, "", "Rows `NAME: VALUE`, " + ContentOf(nullptr, kind.fields[0]) + ".")
               + "\n" + Example(style, std::string("NAME_OF_ENTRY:\n  ") + kind.example + "\n");
    text += FieldLines(style, nullptr, kind) + "\n";
    const bool isList = kind.form == Form::kList;
    return text + Example(style, (isList ? "- " : "NAME_OF_ENTRY: ") + std::string(kind.example) + "\n");
}

std::string Contents() {
    const Style style = {true};
    std::string text = "| entry | kind | in short |\n|---|---|---|\n";
    for (const EntryGroup& group : EntryGroups()) {
        text += "| " + Link(style, style.Strong(group.title), group.title) + " | | |\n";
        for (const EntryRow& row : group.entries)
            text += "| " + Link(style, row.name, row.name) + " | " + KindLink(style, *row.kind) + " | "
                    + SummaryOf(row) + " |\n";
    }
    return text;
}

template <typename Describe>
std::string Joined(const std::vector<const EntryRow*>& rows, const Describe& describe) {
    std::string text;
    for (const EntryRow* row : rows)
        text += (text.empty() ? "" : "\n") + describe(*row);
    return text;
}

} // namespace

std::string ShortReference() {
    size_t nameWidth = 0, kindWidth = 0;
    for (const EntryRow& row : KnownEntries()) {
        nameWidth = std::max(nameWidth, std::string(row.name).size());
        kindWidth = std::max(kindWidth, std::string(row.kind->label).size());
    }
    const auto padded = [](std::string text, size_t width) {
        text.resize(width + 2, ' ');
        return text;
    };
    std::string text;
    for (const EntryRow& row : KnownEntries())
        text += padded(row.name, nameWidth) + padded(row.kind->label, kindWidth) + SummaryOf(row) + "\n";
    return text;
}

std::string FullReference(const std::vector<const EntryRow*>& rows) {
    return Joined(rows, EntryText);
}

std::string MarkdownSections(const std::vector<const EntryRow*>& rows) {
    return Joined(rows, EntrySection);
}

std::string MarkdownDocument() {
    const Style style = {true};
    std::string text = "# Reference of the model file\n\n"
                       "<!-- Generated: prmc entries --markdown -->\n\n";
    text += Wrapped(
        style, "",
        "What each entry of a [model file](model_file.md) contains and what the driver does with it. `prmc "
        "entries` shows the same in a terminal. Names, keys and words are the same whatever their case. "
        "\"This module\" is the driver's module `TELMAR_D.DLL`; the generic modules of the driver read its "
        "device table and default settings.");
    text += "\n## Contents\n\n" + Contents()
            + "\n## Kinds\n\nFields that may be left out are 0 or empty then.\n\n";
    for (const Kind* kind : KindsInUse())
        text += KindSection(*kind) + "\n";
    for (const EntryGroup& group : EntryGroups()) {
        text += std::string("## ") + group.title + "\n\n";
        if (group.note[0] != 0)
            text += Wrapped(style, "", group.note) + "\n";
        for (const EntryRow& row : group.entries)
            text += EntrySection(row) + "\n";
    }
    text.pop_back(); // one line feed at the end
    return text;
}

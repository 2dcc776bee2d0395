// Lays out tables. Empty columns are left out. A long narrow table is set in several columns side by side,
// like a newspaper's. A table wider than the page is continued below, with its first column repeated and
// without the rows that are empty there.
#include "workbench/lib/text_form.h"

#include "workbench/lib/json_form.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr size_t kPageWidth = 128;
constexpr size_t kLongTable = 24; // a table of more lines is set side by side, if it is narrow enough
constexpr size_t kMaxNumbers = 5; // more numbers in one cell are only counted
constexpr const char* kIndent = "  ";
constexpr const char* kFieldGap = "  ";
constexpr const char* kColumnGap = "     ";

// In columns of the screen: one for each character, two for the wide East Asian ones from U+3000 on.
size_t Width(const std::string& utf8) {
    size_t width = 0;
    for (const unsigned char c : utf8)
        width += ((c & 0xC0) != 0x80 ? 1 : 0) + (c >= 0xE3 ? 1 : 0);
    return width;
}

std::string Padded(const std::string& text, size_t width, bool right) {
    const std::string padding(width - std::min(width, Width(text)), ' ');
    return right ? padding + text : text + padding;
}

// "paperSizes" as "Paper sizes". Names that begin with a capital letter are the driver's and stay as they
// are.
std::string Title(const std::string& name) {
    if (name.empty() || !std::islower(static_cast<unsigned char>(name[0])))
        return name;
    std::string title(1, static_cast<char>(std::toupper(static_cast<unsigned char>(name[0]))));
    for (size_t i = 1; i < name.size(); ++i) {
        const auto c = static_cast<unsigned char>(name[i]);
        if (std::isupper(c) || std::isdigit(c))
            title += ' ';
        title += static_cast<char>(std::tolower(c));
    }
    return title;
}

std::string Cell(const Document& value) {
    if (value.IsBool())
        return value.Bool() ? "yes" : "no";
    if (value.IsInteger())
        return std::to_string(value.Integer());
    if (value.IsText())
        return value.Text();
    if (value.IsNumber() || value.IsObject())
        return JsonForm(value);
    const Document::List& elements = value.Elements();
    if (elements.size() > kMaxNumbers && elements[0].IsNumber())
        return "(" + std::to_string(elements.size()) + " numbers)";
    std::string text;
    for (const Document& element : elements)
        text += (text.empty() ? "" : element.IsList() ? ", " : " ") + Cell(element);
    return text;
}

// The line without trailing blanks.
std::string WithoutEnd(const std::string& line) {
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

// One column of a table: its title and its cells, padded to the same width.
using TextColumn = std::vector<std::string>;

bool IsBlank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

TextColumn MakeColumn(const Document& rows, const std::string& field) {
    TextColumn column = {Title(field)};
    bool right = true; // columns of numbers are right-aligned
    for (const Document& row : rows.Elements()) {
        const Document& value = row[field];
        column.push_back(Cell(value));
        right = right && (value.IsNumber() || value.IsNull());
    }
    size_t width = 0;
    for (const std::string& cell : column)
        width = std::max(width, Width(cell));
    for (std::string& cell : column)
        cell = Padded(cell, width, right);
    return column;
}

std::vector<TextColumn> MakeColumns(const Document& rows) {
    std::vector<TextColumn> columns;
    for (const auto& field : rows.Elements()[0].Fields()) {
        TextColumn column = MakeColumn(rows, field.name);
        if (!std::all_of(column.begin() + 1, column.end(), IsBlank))
            columns.push_back(std::move(column));
    }
    return columns;
}

// The lines of the columns from `next` on that fit the page next to the first column. Advances `next`.
std::vector<std::string> TakePage(const std::vector<TextColumn>& columns, size_t& next) {
    const bool continued = next > 1;
    std::vector<std::string> lines = columns[0];
    std::vector<bool> blank(lines.size(), continued);
    for (const size_t first = next; next < columns.size(); ++next) {
        const TextColumn& column = columns[next];
        if (next > first && Width(lines[0] + kFieldGap + column[0]) > kPageWidth)
            break;
        for (size_t i = 0; i < lines.size(); ++i) {
            lines[i] += kFieldGap + column[i];
            blank[i] = blank[i] && IsBlank(column[i]);
        }
    }
    size_t line = 0;
    lines.erase(std::remove_if(lines.begin(), lines.end(), [&](const auto&) { return blank[line++]; }),
                lines.end());
    return lines;
}

// Sets the lines, of which the first is the header, side by side when they are many and narrow.
std::string Page(const std::vector<std::string>& lines) {
    const size_t rows = lines.size() - 1;
    const size_t width = Width(lines[0] + kColumnGap);
    const size_t across = rows > kLongTable ? std::max<size_t>(1, kPageWidth / width) : 1;
    const size_t down = (rows + across - 1) / across;
    std::string text;
    for (size_t y = 0; y <= down; ++y) {
        std::string line;
        for (size_t x = 0; x < across && x * down + y <= rows; ++x)
            line += (x == 0 ? kIndent : kColumnGap) + lines[y == 0 ? 0 : x * down + y];
        text += WithoutEnd(line) + "\n";
    }
    return text;
}

std::string Table(const Document& rows) {
    if (rows.Elements().empty())
        return "";
    const std::vector<TextColumn> columns = MakeColumns(rows);
    std::string text;
    size_t next = 1;
    do
        text += (text.empty() ? "" : "\n") + Page(TakePage(columns, next));
    while (next < columns.size());
    return text;
}

std::string Pairs(const Document& object) {
    size_t width = 0;
    for (const auto& field : object.Fields())
        width = std::max(width, Width(Title(field.name)));
    std::string text;
    for (const auto& field : object.Fields())
        text += WithoutEnd(kIndent + Padded(Title(field.name), width, false) + kFieldGap + Cell(field.value))
                + "\n";
    return text;
}

bool IsTable(const Document::Field& field) {
    const Document::List& rows = field.value.Elements();
    return field.value.IsNull() || (field.value.IsList() && (rows.empty() || rows[0].IsObject()));
}

std::string Section(const std::string& name, const Document& value) {
    if (value.IsNull())
        return Title(name) + ": none\n\n";
    if (value.IsList())
        return Title(name) + " (" + std::to_string(value.Elements().size()) + ")\n" + Table(value) + "\n";
    const Document::Object& fields = value.Fields();
    if (!std::all_of(fields.begin(), fields.end(), IsTable))
        return Title(name) + "\n" + Pairs(value) + "\n";
    std::string text;
    for (const Document::Field& table : fields)
        text += Section(table.name, table.value);
    return text;
}

} // namespace

std::string TextForm(const Document& document) {
    std::string text;
    for (const auto& section : document.Fields())
        text += Section(section.name, section.value);
    text.pop_back(); // the empty line after the last section
    return text;
}

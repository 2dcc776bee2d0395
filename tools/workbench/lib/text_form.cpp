// Lays out tables. A long narrow table is set in several columns side by side,
// like a newspaper's. A table wider than the page is continued below, with its first column repeated and
// without the rows that are empty there.
#include "workbench/lib/text_form.h"

#include "workbench/lib/table_text.h"

#include <algorithm>

namespace {

constexpr size_t kPageWidth = 128;
constexpr size_t kLongTable = 24; // a table of more lines is set side by side, if it is narrow enough
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

// The line without trailing blanks.
std::string WithoutEnd(const std::string& line) {
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

// One column of a table: its title and its cells, padded to the same width.
using TextColumn = std::vector<std::string>;

TextColumn MakeColumn(const Document& rows, const std::string& field) {
    TextColumn column = {Title(field)};
    bool right = true; // columns of numbers are right-aligned
    for (const Document& row : rows.Elements()) {
        const Document& value = row[field];
        column.push_back(CellText(value));
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
    for (const std::string& field : ColumnsOf(rows))
        columns.push_back(MakeColumn(rows, field));
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
        text +=
            WithoutEnd(kIndent + Padded(Title(field.name), width, false) + kFieldGap + CellText(field.value))
            + "\n";
    return text;
}

std::string Section(const NamedTable& table) {
    if (table.contents.IsNull())
        return table.name + ": none\n\n";
    if (table.contents.IsList())
        return table.name + " (" + std::to_string(table.contents.Elements().size()) + ")\n"
               + Table(table.contents) + "\n";
    return table.name + "\n" + Pairs(table.contents) + "\n";
}

} // namespace

std::string TextForm(const Document& document) {
    std::string text;
    for (const NamedTable& table : TablesOf(document))
        text += Section(table);
    text.pop_back(); // the empty line after the last section
    return text;
}

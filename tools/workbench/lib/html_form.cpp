// Writes tables with captions, column headers and row headers. The search of the page finds them by their
// class. Empty columns are left out.
#include "workbench/lib/html_form.h"

#include "workbench/lib/table_text.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr struct {
    char character;
    const char* entity;
} kEntities[] = {
    {'&', "&amp;"},
    {'<', "&lt;"},
    {'>', "&gt;"},
    {'"', "&quot;"},
};

std::string EscapedCell(const Document& value) {
    return HtmlText(CellText(value));
}

// Whether the column is set as figures.
bool IsNumeric(const Document& rows, const std::string& field) {
    return std::all_of(rows.Elements().begin(), rows.Elements().end(),
                       [&](const Document& row) { return row[field].IsNumber() || row[field].IsNull(); });
}

std::string CountText(size_t rows) {
    return std::to_string(rows) + (rows == 1 ? " row" : " rows");
}

std::string TableElement(const std::string& name, const Document& rows, const HtmlTableStyle& style) {
    const auto cell = style.cell != nullptr ? style.cell : EscapedCell;
    const std::vector<std::string> columns = ColumnsOf(rows);
    std::string text = "<table><caption>" + HtmlText(name) + ", " + CountText(rows.Elements().size())
                       + "</caption>\n<thead><tr>";
    std::vector<const char*> starts; // of the cells of each column
    for (const std::string& column : columns) {
        const bool isNumeric = IsNumeric(rows, column);
        text += std::string(isNumeric ? "<th scope=\"col\" class=\"n\">" : "<th scope=\"col\">")
                + HtmlText(Title(column)) + "</th>";
        starts.push_back(starts.empty() ? isNumeric ? "<th scope=\"row\" class=\"n\">" : "<th scope=\"row\">"
                         : isNumeric    ? "<td class=\"n\">"
                                        : "<td>");
    }
    text += "</tr></thead>\n<tbody>\n";
    for (const Document& row : rows.Elements()) {
        text += "<tr>";
        for (size_t i = 0; i < columns.size(); ++i)
            text += starts[i] + cell(row[columns[i]]) + (i == 0 ? "</th>" : "</td>");
        text += "</tr>\n";
    }
    return text + "</tbody></table>";
}

} // namespace

std::string HtmlText(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        const auto* row = std::find_if(std::begin(kEntities), std::end(kEntities),
                                       [c](const auto& entity) { return entity.character == c; });
        if (row != std::end(kEntities))
            escaped += row->entity;
        else
            escaped += c;
    }
    return escaped;
}

std::string HtmlTable(const std::string& name, const Document& contents, const HtmlTableStyle& style) {
    const Document rows = RowsOf(contents);
    return std::string("<details class=\"data\"") + (style.isOpen ? " open" : "") + "><summary><h3>"
           + HtmlText(name) + "</h3> <span class=\"count\">" + CountText(rows.Elements().size())
           + "</span></summary>\n<div class=\"scroll\" tabindex=\"0\" role=\"group\" aria-label=\""
           + HtmlText(name) + "\">" + TableElement(name, rows, style) + "</div></details>\n";
}

std::string HtmlForm(const Document& document) {
    std::string text;
    std::string empty;
    for (const NamedTable& table : TablesOf(document)) {
        if (HasContents(table))
            text += HtmlTable(table.name, table.contents);
        else
            AddPart(empty, HtmlText(table.name));
    }
    if (!empty.empty())
        text += "<p class=\"none\">Without contents: " + empty + ".</p>\n";
    return text;
}

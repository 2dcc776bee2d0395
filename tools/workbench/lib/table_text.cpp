// Finds the tables of a document and turns its names and values into text.
#include "workbench/lib/table_text.h"

#include "workbench/lib/json_form.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr size_t kMaxNumbers = 5; // more numbers in one cell are only counted

bool IsTable(const Document::Field& field) {
    const Document::List& rows = field.value.Elements();
    return field.value.IsNull() || (field.value.IsList() && (rows.empty() || rows[0].IsObject()));
}

void AddTables(const std::string& name, const Document& value, std::vector<NamedTable>& tables) {
    const Document::Object& fields = value.Fields();
    if (fields.empty() || !std::all_of(fields.begin(), fields.end(), IsTable)) {
        tables.push_back({Title(name), value});
        return;
    }
    for (const Document::Field& table : fields)
        AddTables(table.name, table.value, tables);
}

} // namespace

std::vector<NamedTable> TablesOf(const Document& document) {
    std::vector<NamedTable> tables;
    for (const Document::Field& section : document.Fields())
        AddTables(section.name, section.value, tables);
    return tables;
}

bool HasContents(const NamedTable& table) {
    return !table.contents.Elements().empty() || !table.contents.Fields().empty();
}

Document RowsOf(const Document& contents) {
    if (!contents.IsObject())
        return contents;
    Document rows = Document::MakeList();
    for (const Document::Field& field : contents.Fields())
        rows.Add({{"name", Title(field.name)}, {"value", field.value}});
    return rows;
}

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

std::vector<std::string> ColumnsOf(const Document& rows) {
    std::vector<std::string> columns;
    if (rows.Elements().empty())
        return columns;
    for (const Document::Field& field : rows.Elements()[0].Fields()) {
        const auto isBlank = [&](const Document& row) { return IsBlank(CellText(row[field.name])); };
        if (!std::all_of(rows.Elements().begin(), rows.Elements().end(), isBlank))
            columns.push_back(field.name);
    }
    return columns;
}

bool IsBlank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

std::string CellText(const Document& value) {
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
        text += (text.empty() ? "" : element.IsList() ? ", " : " ") + CellText(element);
    return text;
}

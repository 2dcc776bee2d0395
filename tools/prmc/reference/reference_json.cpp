// Writes the reference of the entries as JSON.
#include "prmc/reference/entry_parts.h"
#include "prmc/reference/reference.h"

#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::ordered_json;

const char* FormName(Form form) {
    switch (form) {
    case Form::kList:
        return "list";
    case Form::kTable:
        return "table";
    case Form::kSingle:
        return "single";
    case Form::kRange:
        break;
    }
    return "range";
}

Json FieldJson(const EntryRow& row, const Field& field) {
    Json json = {{"name", field.name}, {"required", field.required}, {"meaning", field.meaning}};
    if (field.type == FieldType::kNumbers) {
        const Limits limits = LimitsOf(row, field);
        json["numbers"] = field.count;
        json["minimum"] = limits.least;
        json["maximum"] = limits.most;
        return json;
    }
    json["maxCharacters"] = MaxCharacters(row, field);
    json["ascii"] = field.type != FieldType::kName;
    return json;
}

Json RowJson(const TableRow& row) {
    Json json = {{"name", row.name}};
    if (row.value.maxType > 0)
        json["maxType"] = row.value.maxType;
    else if (!row.value.words.empty())
        json["words"] = row.value.words;
    else
        json["numbers"] = row.value.numbers;
    if (!row.meaning.empty())
        json["meaning"] = row.meaning;
    return json;
}

Json EntryJson(const EntryRow& row) {
    Json json = {{"name", row.name},          {"kind", row.kind->label}, {"form", FormName(row.kind->form)},
                 {"summary", SummaryOf(row)}, {"use", UseOf(row)},       {"withoutIt", AbsenceOf(row)}};
    if (row.kind->form == Form::kTable) {
        for (const TableRow& tableRow : TableRowsOf(row))
            json["rows"].push_back(RowJson(tableRow));
    } else {
        for (const Field& field : row.kind->fields)
            json["fields"].push_back(FieldJson(row, field));
    }
    if (row.kind->form == Form::kList)
        json["needsDefault"] = row.defaultNeeded;
    if (row.maxItems > 0)
        json["maxItems"] = row.maxItems;
    if (row.keys.count > 0)
        json["keys"] = Texts(row.keys);
    if (row.specialKeys.count > 0)
        json["specialKeys"] = Texts(row.specialKeys);
    json["example"] = ExampleOf(row);
    return json;
}

} // namespace

std::string JsonReference(const std::vector<const EntryRow*>& rows) {
    Json json = Json::array();
    for (const EntryRow* row : rows)
        json.push_back(EntryJson(*row));
    return json.dump(2) + "\n";
}

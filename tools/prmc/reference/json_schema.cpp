// Writes the JSON Schema of the model file. An entry's definition holds for every model. What a model without
// a base must have in addition, all required fields and nothing removed, is in the schema's condition.
#include "prmc/reference/json_schema.h"

#include "prmc/forms/yaml_reader.h"
#include "prmc/model.h"
#include "prmc/reference/entry_parts.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace {

using SchemaJson = nlohmann::ordered_json;

constexpr const char* kAscii = "^[\\x01-\\x7F]*$";

SchemaJson TypeOf(const char* type) {
    return {{"type", type}};
}

SchemaJson Requiring(const std::vector<std::string>& names) {
    return {{"required", names}};
}

// Texts may be written without quotes, so that YAML takes them for numbers or Booleans.
SchemaJson TextSchema(size_t maxCharacters, bool isAscii, size_t minCharacters = 0) {
    SchemaJson schema = {{"type", {"string", "number", "boolean"}}, {"maxLength", maxCharacters}};
    if (minCharacters > 0)
        schema["minLength"] = minCharacters;
    if (isAscii)
        schema["pattern"] = kAscii;
    return schema;
}

SchemaJson KeySchema(const EntryRow& row) {
    if (row.keys.count > 0)
        return {{"enum", Texts(row.keys)}};
    const SchemaJson any = TextSchema(kMaxKeyChars, true, 1);
    if (row.specialKeys.count == 0)
        return any;
    return {{"anyOf", {{{"enum", Texts(row.specialKeys)}}, any}}}; // for completion
}

SchemaJson NumberSchema(const Limits& limits) {
    if (limits.least == 0 && limits.most == 1)
        return {{"enum", {1, 0, true, false}}};
    return {{"type", "integer"}, {"minimum", limits.least}, {"maximum", limits.most}};
}

SchemaJson FieldSchema(const EntryRow& row, const Field& field) {
    const size_t characters = MaxCharacters(row, field);
    switch (field.type) {
    case FieldType::kKey:
        return KeySchema(row);
    case FieldType::kName:
        return TextSchema(characters, false);
    case FieldType::kText:
        return TextSchema(characters, true);
    case FieldType::kPairs:
        return {{"type", "object"},
                {"propertyNames", {{"maxLength", characters}, {"pattern", kAscii}}},
                {"additionalProperties", TextSchema(characters, true)}};
    case FieldType::kNumbers:
        break;
    }
    const SchemaJson number = NumberSchema(LimitsOf(row, field));
    if (field.count == 1)
        return number;
    return {{"type", "array"}, {"items", number}, {"minItems", field.count}, {"maxItems", field.count}};
}

// The fields of a record, none of them required. Null removes the record of the base.
SchemaJson RecordSchema(const EntryRow& row) {
    SchemaJson properties = SchemaJson::object();
    for (const Field& field : row.kind->fields) {
        properties[field.name] = FieldSchema(row, field);
        properties[field.name]["description"] = field.meaning;
    }
    return {{"type", {"object", "null"}}, {"properties", properties}, {"additionalProperties", false}};
}

// What a whole record has.
SchemaJson RequiredFields(const Kind& kind) {
    std::vector<std::string> names;
    for (const Field& field : kind.fields)
        if (field.required)
            names.push_back(field.name);
    return {{"type", "object"}, {"required", names}};
}

// The value of a row of a name/value table. Null removes the row of the base.
SchemaJson RowSchema(const RowValue& value) {
    if (value.maxType > 0) {
        SchemaJson types = {nullptr};
        for (unsigned type = 1; type <= value.maxType; ++type)
            types.push_back("TYPE" + std::to_string(type));
        return {{"enum", types}};
    }
    if (value.words.empty())
        return {{"type", {"string", "number", "null"}},
                {"minimum", 0},
                {"pattern", value.numbers > 1 ? "^[^0-9]*[0-9]+[^0-9]+[0-9]+[^0-9]*$" : "^[0-9]+$"}};
    SchemaJson words = value.words;
    for (const bool truth : {true, false}) // without quotes
        if (std::count(value.words.begin(), value.words.end(), truth ? "TRUE" : "FALSE") > 0)
            words.push_back(truth);
    words.push_back(nullptr);
    return {{"enum", words}};
}

SchemaJson TableSchema(const EntryRow& row) {
    SchemaJson properties = SchemaJson::object();
    for (const TableRow& tableRow : TableRowsOf(row)) {
        properties[tableRow.name] = RowSchema(tableRow.value);
        properties[tableRow.name]["description"] =
            tableRow.meaning.empty() ? "For the generic modules alone." : tableRow.meaning;
    }
    return {{"properties", properties}};
}

SchemaJson ListSchema(const EntryRow& row) {
    const SchemaJson fields = {{"$ref", std::string("#/definitions/") + row.name}};
    SchemaJson items = {{"type", "array"}, {"items", {{"allOf", {fields, RequiredFields(*row.kind)}}}}};
    if (row.maxItems > 0)
        items["maxItems"] = row.maxItems;
    SchemaJson properties = SchemaJson::object();
    if (row.kind->HasKeys()) {
        properties["default"] = KeySchema(row);
        properties["default"]["description"] = "Key of the item that the settings start from.";
    }
    properties["items"] = items;
    properties["items"]["description"] = "All items of the list, in its order.";
    if (!row.kind->HasKeys())
        return {{"properties", properties}};
    SchemaJson withKey = Requiring({row.kind->fields[0].name}); // which is before the colon
    withKey["type"] = "object";
    properties["change"] = {
        {"description",
         "In a model with a base: items by key. The fields replace those of the base's item or, with a "
         "new key, are a new item; null removes the item."},
        {"type", "object"},
        {"propertyNames", KeySchema(row)},
        {"additionalProperties", {{"allOf", {fields, {{"not", withKey}}}}}},
    };
    return {{"properties", properties}, {"not", Requiring({"items", "change"})}};
}

SchemaJson ValueJson(const Field& field, const Value& value) {
    if (field.type == FieldType::kNumbers)
        return field.count == 1 ? SchemaJson(value.numbers[0]) : SchemaJson(value.numbers);
    if (field.type != FieldType::kPairs)
        return value.text;
    SchemaJson pairs = SchemaJson::object();
    for (const Pair& pair : value.pairs)
        pairs[pair.name] = pair.value;
    return pairs;
}

SchemaJson RecordJson(const Kind& kind, const Record& record) {
    SchemaJson json = SchemaJson::object();
    for (size_t i = 0; i < kind.fields.count; ++i)
        if (record.values[i].given)
            json[kind.fields[i].name] = ValueJson(kind.fields[i], record.values[i]);
    return json;
}

SchemaJson ExampleJson(const EntryRow& row) {
    Findings findings;
    const Model model = ReadYaml(ExampleOf(row), findings);
    const Entry& entry = model.entries.at(0);
    const Kind& kind = *row.kind;
    if (kind.form == Form::kTable)
        return ValueJson(kind.fields[0], entry.records[0].values[0]);
    if (kind.form != Form::kList)
        return RecordJson(kind, entry.records[0]);
    SchemaJson json = SchemaJson::object();
    if (entry.defaultItem)
        json["default"] = entry.records[*entry.defaultItem].values[0].text;
    for (const Record& record : entry.records)
        json["items"].push_back(RecordJson(kind, record));
    return json;
}

SchemaJson EntrySchema(const EntryRow& row) {
    SchemaJson schema = row.kind->form == Form::kTable  ? TableSchema(row)
                        : row.kind->form == Form::kList ? ListSchema(row)
                                                        : RecordSchema(row);
    schema["type"] = {"object", "null"}; // null removes the entry of the base
    schema["additionalProperties"] = false;
    schema["description"] = UseOf(row) + "\nWithout it: " + AbsenceOf(row);
    schema["examples"] = SchemaJson::array({ExampleJson(row)});
    return schema;
}

// What an entry must have when there is no base.
SchemaJson WholeEntry(const EntryRow& row) {
    SchemaJson schema = TypeOf("object");
    if (row.kind->form == Form::kTable)
        schema["additionalProperties"] = {{"not", TypeOf("null")}};
    else if (row.kind->form != Form::kList)
        schema.update(RequiredFields(*row.kind));
    else if (row.defaultNeeded)
        schema.update(Requiring({"default", "items"}));
    else
        schema.update(Requiring({"items"}));
    return schema;
}

} // namespace

std::string ModelJsonSchema() {
    SchemaJson definitions = SchemaJson::object(), entries = SchemaJson::object(),
               whole = SchemaJson::object();
    entries["base"] = {{"type", "string"},
                       {"description",
                        "The model on which this one builds: its file, from this file's folder. Only what "
                        "differs follows."}};
    for (const EntryRow& row : KnownEntries()) {
        if (row.kind->form == Form::kList)
            definitions[row.name] = RecordSchema(row);
        entries[row.name] = EntrySchema(row);
        whole[row.name] = WholeEntry(row);
    }
    const SchemaJson schema = {
        {"$schema", "http://json-schema.org/draft-07/schema#"},
        {"title", "Model file of prmc"},
        {"description", "Names, keys and words in the spelling of the reference; prmc ignores their case."},
        {"type", "object"},
        {"properties", entries},
        {"additionalProperties", false},
        {"minProperties", 1},
        {"if", {{"not", Requiring({"base"})}}},
        {"then", {{"properties", whole}}},
        {"definitions", definitions},
    };
    return schema.dump(2) + "\n";
}

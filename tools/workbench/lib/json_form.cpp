// Converts between documents and the values of the JSON library.
#include "workbench/lib/json_form.h"

#include "common/encoding.h"
#include "workbench/lib/json_fault.h"

#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const Document& document) {
    if (document.IsBool())
        return document.Bool();
    if (document.IsInteger())
        return document.Integer();
    if (document.IsNumber())
        return document.Real();
    if (document.IsText())
        return document.Text();
    Json json;
    if (document.IsList())
        json = Json::array();
    for (const Document& element : document.Elements())
        json.push_back(ToJson(element));
    if (document.IsObject())
        json = Json::object();
    for (const Document::Field& field : document.Fields())
        json[field.name] = ToJson(field.value);
    return json;
}

constexpr int kMaxDepth = 64; // levels of nesting; limits the recursion

// Throws std::length_error when values are nested more deeply.
Document FromJson(const Json& json, int depth = 0) {
    if (depth > kMaxDepth)
        throw std::length_error("nested too deeply");
    if (json.is_boolean())
        return json.get<bool>();
    if (json.is_number_float() || (json.is_number_unsigned() && json.get<uint64_t>() > INT64_MAX))
        return json.get<double>();
    if (json.is_number())
        return json.get<int64_t>();
    if (json.is_string())
        return json.get<std::string>();
    if (json.is_array()) {
        Document list = Document::MakeList();
        for (const Json& element : json)
            list.Add(FromJson(element, depth + 1));
        return list;
    }
    Document object = json.is_object() ? Document(std::initializer_list<Document>{}) : Document();
    for (const auto& field : json.items())
        object[field.key()] = FromJson(field.value(), depth + 1);
    return object;
}

} // namespace

std::string JsonForm(const Document& document, int indent) {
    return ToJson(document).dump(indent);
}

Document ParseJson(const std::string& text, const std::string& name) {
    if (const char* fault = TextFileFault(text))
        throw Failure(kExitFailed, name + ": " + fault);
    try {
        return FromJson(Json::parse(text));
    } catch (const std::length_error&) {
        throw Failure(kExitFailed, name + ": values are nested more than " + std::to_string(kMaxDepth)
                                       + " levels deep; remove what is not needed");
    } catch (const Json::out_of_range&) {
        throw Failure(kExitFailed, name + ": cannot be read as JSON; a number is too large");
    } catch (const Json::parse_error& error) {
        // error.byte counts from 1. The end of the text counts as a byte, too.
        throw Failure(kExitFailed, name + ":" + ExplainJsonError(text, error.byte - 1));
    }
}

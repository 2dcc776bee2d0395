// JSON form of a document: see the header.
#include "workbench/lib/json_form.h"

#include <algorithm>
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

constexpr int kMaxDepth = 64; // of values in values, which are gone through by recursion

// Throws std::length_error when values lie deeper than that.
Document FromJson(const Json& json, int depth = 0) {
    if (depth > kMaxDepth)
        throw std::length_error("too deep");
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
    try {
        return FromJson(Json::parse(text));
    } catch (const std::length_error&) {
        throw Failure(kExitFailed, name + ": values lie more than " + std::to_string(kMaxDepth)
                                       + " levels deep; remove what is not needed");
    } catch (const Json::out_of_range&) {
        throw Failure(kExitFailed, name + ": not JSON that can be read; a number is too large");
    } catch (const Json::parse_error& error) {
        // The byte that could not be read, counted from 1; the text's end counts as one.
        const std::string before = text.substr(0, error.byte - 1);
        const size_t lineStart = before.rfind('\n') + 1; // npos: the first line
        throw Failure(kExitFailed, name + ": not JSON; see line "
                                       + std::to_string(1 + std::count(before.begin(), before.end(), '\n'))
                                       + ", column " + std::to_string(error.byte - lineStart));
    }
}

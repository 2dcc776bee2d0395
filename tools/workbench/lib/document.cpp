// Builds documents and looks up their fields.
#include "workbench/lib/document.h"

#include <algorithm>

namespace {

const Document kNull;
const Document::List kNoElements;
const Document::Object kNoFields;

bool IsField(const Document& element) {
    return element.Elements().size() == 2 && element.Elements().front().IsText();
}

} // namespace

Document::Document() = default;
Document::Document(std::nullptr_t) {}
Document::Document(const char* text) : value(std::string(text)) {}
Document::Document(std::string text) : value(std::move(text)) {}
Document::Document(const Document& other) = default;
Document::Document(Document&& other) noexcept = default;
Document& Document::operator=(const Document& other) = default;
Document& Document::operator=(Document&& other) noexcept = default;
Document::~Document() = default;

Document::Document(std::initializer_list<Document> elements) {
    if (!std::all_of(elements.begin(), elements.end(), IsField)) {
        value = List(elements);
        return;
    }
    Object& fields = value.emplace<Object>();
    for (const Document& element : elements)
        fields.push_back({element.Elements()[0].Text(), element.Elements()[1]});
}

Document Document::MakeList() {
    Document list;
    list.value = List();
    return list;
}

const Document::List& Document::Elements() const& {
    return IsList() ? std::get<List>(value) : kNoElements;
}

Document::List& Document::Elements() & {
    return std::get<List>(value);
}

Document::List Document::Elements() && {
    return IsList() ? std::move(std::get<List>(value)) : List();
}

const Document::Object& Document::Fields() const& {
    return IsObject() ? std::get<Object>(value) : kNoFields;
}

Document::Object Document::Fields() && {
    return IsObject() ? std::move(std::get<Object>(value)) : Object();
}

void Document::Add(Document element) {
    if (IsNull())
        value = List();
    Elements().push_back(std::move(element));
}

Document& Document::operator[](const std::string& name) {
    if (IsNull())
        value = Object();
    Object& fields = std::get<Object>(value);
    for (Field& field : fields)
        if (field.name == name)
            return field.value;
    fields.push_back({name, {}});
    return fields.back().value;
}

const Document& Document::operator[](const std::string& name) const {
    for (const Field& field : Fields())
        if (field.name == name)
            return field.value;
    return kNull;
}

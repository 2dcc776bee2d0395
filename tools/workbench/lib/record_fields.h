// Records of the module as documents: a record is described by a table of its fields, and the type of a field
// decides how it is shown, unless its row says otherwise. The documents of the commands are made of these.
#ifndef WORKBENCH_LIB_RECORD_FIELDS_H
#define WORKBENCH_LIB_RECORD_FIELDS_H

#include "base/text.h"
#include "workbench/lib/document.h"
#include "workbench/lib/output.h"

#include <cstdint>
#include <cstring>
#include <vector>

template <size_t N>
Document ToDocument(const char (&text)[N]) {
    return Utf8(std::string_view(text, TextLength(text)));
}

template <size_t N>
Document ToDocument(const wchar_t (&text)[N]) {
    return Utf8(std::wstring_view(text, TextLength(text)));
}

template <typename Number>
Document ToDocument(const Number& numbers) {
    return numbers;
}

// A block of 32-bit numbers whose meaning is its consumer's.
template <size_t N>
Document ToDocument(const uint8_t (&block)[N]) {
    uint32_t numbers[N / sizeof(uint32_t)];
    memcpy(numbers, block, sizeof(numbers));
    return numbers;
}

// A copy of one field of a record. The records are packed, so that a field itself may lie at any address.
template <auto kField>
struct FieldOf;
template <typename Record, typename Value, Value Record::*kField>
struct FieldOf<kField> {
    explicit FieldOf(const void* record) {
        memcpy(&value, &(static_cast<const Record*>(record)->*kField), sizeof(value));
    }
    Value value;
};

// How one field of a record is shown, and under which name.
struct Field {
    const char* name;
    Document (*show)(const void* record);
};

template <auto kField>
Document Show(const void* record) {
    return ToDocument(FieldOf<kField>(record).value);
}

template <size_t N>
void AddFields(const Field (&fields)[N], const void* record, Document& to) {
    for (const Field& field : fields)
        to[field.name] = field.show(record);
}

template <typename Record, size_t N>
Document RowsDocument(const std::vector<Record>& records, const Field (&fields)[N]) {
    Document rows = Document::MakeList();
    for (const Record& record : records) {
        Document row;
        AddFields(fields, &record, row);
        rows.Add(row);
    }
    return rows;
}

// A list up to its terminating record: key and value of each record, then its further fields. Null without a
// list.
template <typename Record, size_t N>
Document ListDocument(const Record* list, const Field (&fields)[N]) {
    if (list == nullptr)
        return nullptr;
    Document rows = Document::MakeList();
    for (; list->head.key[0] != 0; ++list) {
        Document row = {
            {"key", ToDocument(list->head.key)},
            {"value", static_cast<int32_t>(list->head.value)}, // -1 is "unknown"
        };
        AddFields(fields, list, row);
        rows.Add(row);
    }
    return rows;
}

// The further field of a list record that has a display name and nothing else to show.
template <typename Record>
inline constexpr Field kNamed[] = {
    {"name", Show<&Record::display>},
};

#endif

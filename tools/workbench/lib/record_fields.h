// Records of the module as documents. A table of fields describes how a record is shown; the type of a field
// decides how its value is shown, unless its row says otherwise.
#ifndef WORKBENCH_LIB_RECORD_FIELDS_H
#define WORKBENCH_LIB_RECORD_FIELDS_H

#include "workbench/lib/document.h"
#include "workbench/lib/text.h"

#include <cstdint>
#include <cstring>
#include <vector>

template <size_t N>
Document ToDocument(const char (&text)[N]) {
    return FieldText(text);
}

template <size_t N>
Document ToDocument(const wchar_t (&text)[N]) {
    return FieldText(text);
}

template <typename Number>
Document ToDocument(const Number& numbers) {
    return numbers;
}

// A block of 32-bit numbers, whose meaning is unknown.
template <size_t N>
Document ToDocument(const uint8_t (&block)[N]) {
    uint32_t numbers[N / sizeof(uint32_t)];
    memcpy(numbers, block, sizeof(numbers));
    return numbers;
}

// A copy of one field of a record. Records are packed, so the field itself may be unaligned.
template <auto kField>
struct FieldOf;
template <typename Record, typename Value, Value Record::*kField>
struct FieldOf<kField> {
    explicit FieldOf(const void* record) {
        memcpy(&value, &(static_cast<const Record*>(record)->*kField), sizeof(value));
    }
    Value value;
};

// One field of a record: its name in the document, and how it is shown.
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

// The records of a list: key and value of each, then its further fields. Null for a null list.
template <typename Record, size_t N>
Document ListDocument(const Record* list, const Field (&fields)[N]) {
    if (list == nullptr)
        return nullptr;
    Document rows = Document::MakeList();
    for (const Record& record : Listed(list)) {
        Document row = {
            {"key", ToDocument(record.head.key)},
            {"value", static_cast<int32_t>(record.head.value)}, // -1 is "unknown"
        };
        AddFields(fields, &record, row);
        rows.Add(row);
    }
    return rows;
}

// The further field of a list record whose display name is all that is shown.
template <typename Record>
inline constexpr Field kNamed[] = {
    {"name", Show<&Record::display>},
};

#endif

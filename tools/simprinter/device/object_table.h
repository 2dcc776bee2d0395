// MIB tables of the printer: each column is a row with its number and the function that returns its value.
#ifndef SIMPRINTER_OBJECT_TABLE_H
#define SIMPRINTER_OBJECT_TABLE_H

#include "simprinter/snmp/snmp_values.h"

template <typename Thing>
struct Column {
    uint32_t number;
    Value (*value)(const Thing& thing);
};

// A conceptual row: the object that it describes and its index, the sub-identifiers after the column's
// number.
template <typename Thing>
struct ConceptualRow {
    Oid index;
    Thing thing;
};

// An object's name is `base`, the column's number and the row's index. A scalar has the row index 0.
template <typename Thing, size_t kColumns>
void AddTable(ObjectMap& to, const char* base, const Column<Thing> (&columns)[kColumns],
              const std::vector<ConceptualRow<Thing>>& rows) {
    const Oid start = OidFromText(base).value();
    for (const Column<Thing>& column : columns) {
        for (const ConceptualRow<Thing>& row : rows) {
            Oid name = start;
            name.push_back(column.number);
            name.insert(name.end(), row.index.begin(), row.index.end());
            to[name] = column.value(row.thing);
        }
    }
}

template <typename Thing, size_t kColumns>
void AddScalars(ObjectMap& to, const char* base, const Column<Thing> (&columns)[kColumns],
                const Thing& thing) {
    AddTable<Thing>(to, base, columns, {{{0}, thing}});
}

// Values of columns: a fixed number, or a number or text member of the described object.
template <int kNumber, typename Thing>
Value Fixed(const Thing&) {
    return NumberValue(kNumber);
}
template <auto kMember, typename Thing>
Value Number(const Thing& thing) {
    return NumberValue(thing.*kMember);
}
template <auto kMember, typename Thing>
Value Text(const Thing& thing) {
    return TextValue(thing.*kMember);
}

inline Value OidValueFrom(const char* text) {
    return OidValue(OidFromText(text).value());
}

#endif

// The schema of parameter data files: the record kinds with their fields, and the entries by name. All of
// prmc (readers, writers, rules, diff) works from these tables. A new entry is one row; a new kind of record
// is one table of fields.
#ifndef PRMC_SCHEMA_H
#define PRMC_SCHEMA_H

#include "base/rows.h"
#include "paramdata/fact_names.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

enum class FieldType {
    kKey,     // offset of an 8-bit text: the item's key
    kName,    // offset of a UTF-16 text: a display name; 0 when there is none
    kText,    // 8-bit text in the record
    kNumbers, // one or more numbers
    kPairs,   // count and offset of records that are two 8-bit texts each
};

// The range that a field of the driver can hold.
struct Limits {
    int64_t least = 0;
    int64_t most = 0;

    constexpr bool AreGiven() const { return least < most; }
};

struct Field {
    const char* name; // in YAML
    FieldType type;
    bool required;
    size_t offset;      // in the record; of pairs: their count
    size_t count = 1;   // numbers: how many; names: most characters, 1: the entry's limit;
                        // texts: bytes of the field; pairs: bytes of each text
    Limits limits = {}; // numbers; not given: the entry's limits
    size_t link = 0;    // numbers: offset of the flag that is 1 when they are given, 0: always given;
                        // pairs: offset of the first pair's offset
    size_t width = 4;   // numbers: bytes of each
};

// How an entry is written in YAML and where its records are.
enum class Form {
    kList,   // {default: KEY, items: [{...}, ...]}; each record reached through the item offset array
    kTable,  // {NAME: VALUE, ...}; one record, whose only field is pairs
    kSingle, // {FIELD: VALUE, ...}; one record
    kRange,  // {FIELD: VALUE, ...}; one record directly after the entry, no items
};

struct Kind {
    const char* label;
    Form form;
    size_t size; // of a record, in bytes
    Rows<Field> fields;
    size_t chain = 0; // offset of the link to the next item; 0: items are not chained

    // An entry whose items have no key can't have a default.
    bool HasKeys() const { return fields[0].type == FieldType::kKey; }
};

struct EntryRow {
    const char* name;
    const Kind* kind;
    size_t nameChars;            // most UTF-16 characters of a display name in the driver's list
    Limits values;               // of an item's value, or of a range
    bool defaultNeeded;          // the driver uses the default item
    Rows<const char*> keys = {}; // that the driver knows; empty: any key
    size_t maxItems = 0;         // that the driver takes; 0: any number
    Rows<FactRow> facts = {};    // of a name/value table; empty: its rows are the feature switches
};

constexpr Limits LimitsOf(const EntryRow& row, const Field& field) {
    return field.limits.AreGiven() ? field.limits : row.values;
}

constexpr size_t kMaxKeyChars = 31;

Rows<EntryRow> KnownEntries();

// Ignores case. Null when there is no such entry.
const EntryRow* FindEntryRow(std::string_view name);

#endif

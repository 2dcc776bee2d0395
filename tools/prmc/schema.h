// The one description of what a parameter data file holds: record kinds with their fields, and the entries by
// name. Every engine of prmc (reading and writing YAML, reading and writing the binary file, rules, diff)
// works from these tables: a new entry is one row, a new record kind one field table.
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
    kText,    // 8-bit text inside the record
    kNumbers, // one or more numbers
    kPairs,   // count and offset of records that are two 8-bit texts each
};

// Which numbers their readers keep.
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
    size_t count = 1;   // numbers: how many; names: most characters, 1: as the entry says;
                        // texts: bytes of the field; pairs: bytes of each text
    Limits limits = {}; // numbers; not given: as the entry says
    size_t link = 0;    // numbers: offset of the flag that is 1 when they are there, 0: always there;
                        // pairs: offset of the first pair's offset
    size_t width = 4;   // numbers: bytes of each
};

// How an entry is written in YAML and where its records lie.
enum class Form {
    kList,   // {default: KEY, items: [{...}, ...]}; each record reached through the item offset array
    kTable,  // {NAME: VALUE, ...}; one record, whose only field is pairs
    kSingle, // {FIELD: VALUE, ...}; one record
    kRange,  // {FIELD: VALUE, ...}; one record directly behind the entry, no items
};

struct Kind {
    const char* label;
    Form form;
    size_t size; // of a record, in bytes
    Rows<Field> fields;
    size_t chain = 0; // offset of the link to the next item; 0: items are not chained

    // An entry whose items have no key has no default.
    bool HasKeys() const { return fields[0].type == FieldType::kKey; }
};

struct EntryRow {
    const char* name;
    const Kind* kind;
    size_t nameChars;            // most UTF-16 characters of a display name that the entry's list holds
    Limits values;               // of an item's value, or of a range
    bool defaultNeeded;          // readers take the default item from the entry
    Rows<const char*> keys = {}; // of the items, as far as readers take any; empty: any key
    size_t mostItems = 0;        // that readers take; 0: any number
    Rows<FactRow> facts = {};    // of a name/value table; empty: its rows are the feature switches
};

constexpr Limits LimitsOf(const EntryRow& row, const Field& field) {
    return field.limits.AreGiven() ? field.limits : row.values;
}

constexpr size_t kMaxKeyChars = 31;

Rows<EntryRow> KnownEntries();

// Null when there is no such entry. Case does not matter.
const EntryRow* FindEntryRow(std::string_view name);

#endif

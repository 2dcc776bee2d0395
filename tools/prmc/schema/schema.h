// The schema of parameter data files: the record kinds with their fields, and the entries by name. All of
// prmc (readers, writers, rules, diff, reference) works from these tables. A new entry is one row in
// device_entries.cpp or choice_entries.cpp; a new kind of record is one table of fields in record_kinds.cpp.
#ifndef PRMC_SCHEMA_SCHEMA_H
#define PRMC_SCHEMA_SCHEMA_H

#include "base/rows.h"
#include "paramdata/fact_names.h"
#include "paramdata/paper_sources.h"

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
    const char* meaning;
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
    const char* example; // of an item, or of the entry if it is no list; may have a key of its own
    size_t chain = 0;    // offset of the link to the next item; 0: items are not chained

    // An entry whose items have no key can't have a default.
    bool HasKeys() const { return fields[0].type == FieldType::kKey; }
};

struct EntryRow {
    const char* name;
    const Kind* kind;
    size_t nameChars;                   // most UTF-16 characters of a display name in the driver's list
    Limits values;                      // of an item's value, or of a range
    bool defaultNeeded;                 // the driver uses the default item
    const char* use;                    // what the driver does with it; the first sentence is a summary
    const char* absence;                // what the driver does without it
    const char* example = nullptr;      // as a kind's, or several items, a line each; null: the kind's
    Rows<const char*> keys = {};        // that the driver knows; empty: any key
    size_t maxItems = 0;                // that the driver takes; 0: any number
    Rows<const char*> specialKeys = {}; // when any key is taken: those to which the driver gives a meaning
    Rows<FactRow> facts = {};           // of a name/value table; empty: its rows are the feature switches
    Rows<const char*> rowMeanings = {}; // of the facts, in their order
    Rows<PaperSourceRow> bins = {};     // of the sources that the driver knows without the entry
};

// Entries under one heading of the reference.
struct EntryGroup {
    const char* title;
    const char* note; // about all of its entries; may be empty
    Rows<EntryRow> entries;
};

// What the module itself does with a feature switch; all others are for the generic modules.
struct SwitchUse {
    size_t position; // in kFeatureSwitches
    const char* use;
};

constexpr Limits LimitsOf(const EntryRow& row, const Field& field) {
    return field.limits.AreGiven() ? field.limits : row.values;
}

constexpr size_t kMaxKeyChars = 31;

Rows<EntryRow> KnownEntries();
Rows<EntryGroup> EntryGroups();
Rows<SwitchUse> UsedSwitches();

// Ignores case. Null when there is no such entry.
const EntryRow* FindEntryRow(std::string_view name);

#endif

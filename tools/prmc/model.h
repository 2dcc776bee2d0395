// A model's parameter data in memory, as read from YAML or from a binary file. Plain structures that own
// their contents.
#ifndef PRMC_MODEL_H
#define PRMC_MODEL_H

#include "common/findings.h"
#include "prmc/schema/schema.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct Pair {
    std::string name;
    std::string value;
    Place namePlace;
    Place valuePlace;
};

// A field's value: a text (UTF-8), numbers or pairs, according to the field's type.
struct Value {
    bool given = false; // otherwise the field is 0 in the file
    Place place;
    std::string text;
    std::vector<int64_t> numbers;
    std::vector<Pair> pairs;
};

struct Record {
    Place place;
    std::vector<Value> values; // one for each field of the entry's kind
};

struct Entry {
    const EntryRow* row;
    std::string name;
    Place place;
    std::vector<Record> records;
    std::optional<size_t> defaultItem; // position in `records`
};

// An entry of the base that the model removes.
struct Removal {
    std::string name;
    Place place;
};

struct Model {
    std::vector<Entry> entries; // in file order
    std::vector<Removal> removals;
};

// The item's name for messages: the text of its first field, which is the key if it has one.
inline std::string ItemLabel(const Record& record) {
    return record.values.front().text;
}

#endif

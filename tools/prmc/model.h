// A model's parameter data in memory, as read from YAML or from a binary file.
// Every engine of prmc passes these around; they own their contents.
#ifndef PRMC_MODEL_H
#define PRMC_MODEL_H

#include "common/findings.h"
#include "prmc/schema.h"

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

// What a field holds: of the three the one that its type asks for. Texts are UTF-8.
struct Value {
    bool given = false; // else the field is 0 in the file
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

struct Model {
    std::vector<Entry> entries; // in file order
};

// What an item is called: its key, or the text of its first field; empty when it has neither.
inline std::string ItemLabel(const Record& record) {
    return record.values.front().text;
}

#endif

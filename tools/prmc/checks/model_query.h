// Looks up parts of a model by name. Names are compared without regard to case.
#ifndef PRMC_CHECKS_MODEL_QUERY_H
#define PRMC_CHECKS_MODEL_QUERY_H

#include "prmc/model.h"

#include <string_view>

// An entry without items when the model lacks it.
const Entry& EntryOf(const Model& model, std::string_view name);

// Where the model says that the entry has no items: the place of the empty entry or of its removal;
// `otherwise` when it says nothing of it.
Place PlaceOfAbsence(const Model& model, std::string_view name, Place otherwise);

// The item with this key; null when there is none.
const Record* FindItem(const Entry& entry, std::string_view key);

// The row of a name/value table; null when there is none.
const Pair* FindRow(const Entry& table, std::string_view name);

// A field of an item of the entry; null when it is not given.
const Value* FindValue(const Entry& entry, const Record& item, std::string_view field);

// A feature switch as the driver takes it.
struct Feature {
    const Pair* row; // null: off
    unsigned type;   // the n of a value TYPEn, otherwise 1
};
Feature FeatureOf(const Model& model, std::string_view name);

// Whether the driver takes the device for one that prints in colour.
bool HasColor(const Model& model);

#endif

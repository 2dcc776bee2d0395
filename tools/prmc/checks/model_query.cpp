// Looks up parts of a model by name.
#include "prmc/checks/model_query.h"

#include "common/text.h"
#include "paramdata/feature_switches.h"

#include <algorithm>

const Entry& EntryOf(const Model& model, std::string_view name) {
    static const Entry none = {};
    for (const Entry& entry : model.entries)
        if (EqualNoCase(entry.name, name))
            return entry;
    return none;
}

Place PlaceOfAbsence(const Model& model, std::string_view name, Place otherwise) {
    if (const Entry& entry = EntryOf(model, name); entry.row != nullptr)
        return entry.place;
    for (const Removal& removal : model.removals)
        if (EqualNoCase(removal.name, name))
            return removal.place;
    return otherwise;
}

const Record* FindItem(const Entry& entry, std::string_view key) {
    for (const Record& item : entry.records)
        if (EqualNoCase(ItemLabel(item), key))
            return &item;
    return nullptr;
}

const Pair* FindRow(const Entry& table, std::string_view name) {
    for (const Record& record : table.records)
        for (const Pair& row : record.values.front().pairs)
            if (EqualNoCase(row.name, name))
                return &row;
    return nullptr;
}

const Value* FindValue(const Entry& entry, const Record& item, std::string_view field) {
    const Rows<Field>& fields = entry.row->kind->fields;
    for (size_t i = 0; i < fields.count; ++i)
        if (fields[i].name == field && item.values[i].given)
            return &item.values[i];
    return nullptr;
}

Feature FeatureOf(const Model& model, std::string_view name) {
    constexpr size_t kPrefix = sizeof("TYPE") - 1;
    const Pair* row = FindRow(EntryOf(model, "FeatureSetting"), name);
    if (row == nullptr)
        return {};
    for (const FeatureSwitchRow& feature : kFeatureSwitches) {
        if (!EqualNoCase(feature.name, name))
            continue;
        if (feature.enablingValue != nullptr)
            return EqualNoCase(row->value, feature.enablingValue) ? Feature{row, 1} : Feature{};
        const std::string_view number =
            std::string_view(row->value).substr(std::min(kPrefix, row->value.size()));
        return {row, ParseWhole<unsigned>(number).value_or(1)};
    }
    return {};
}

bool HasColor(const Model& model) {
    const Pair* device = FindRow(EntryOf(model, "DevInfo"), "ColorDevice");
    return device != nullptr && EqualNoCase(device->value, "TRUE");
}

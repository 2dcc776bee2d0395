// Looks up features and selected items.
#include "picture/capabilities/feature_table.h"

#include "base/keyed_list.h"

int32_t FindFeature(const FeatureRecord* features, const char* key) {
    const FeatureRecord* feature = FindByKey(features, key);
    return feature != nullptr ? static_cast<int32_t>(feature - features) : -1;
}

const ItemRecord* SelectedItem(const FeatureRecord* features, const FeatureSettings* settings,
                               int32_t position) {
    const Rows<ItemRecord> items = Listed(features[position].items);
    const int32_t choice = settings != nullptr ? settings[position] : -1;
    return choice >= 0 && static_cast<size_t>(choice) < items.count ? items.first + choice : nullptr;
}

// Looks up features and selected items.
#include "picture/capabilities/feature_table.h"

#include "base/keyed_list.h"

int32_t FindFeature(const FeatureRecord* features, const char* key) {
    const FeatureRecord* feature = FindByKey(features, key);
    return feature != nullptr ? static_cast<int32_t>(feature - features) : -1;
}

const ItemRecord* SelectedItem(const FeatureRecord* features, const FeatureSettings* settings,
                               int32_t position) {
    const ItemRecord* item = features[position].items;
    if (item == nullptr || settings == nullptr)
        return nullptr;
    for (int32_t i = 0; item->head.key[0] != 0; ++i, ++item)
        if (i == settings[position])
            return item;
    return nullptr;
}

// Feature table look-ups: see the header. The records are the caller's and are only read.
#include "picture/capabilities/feature_table.h"

#include "base/text.h"

int32_t FindFeature(const FeatureRecord* features, const char* key) {
    if (features == nullptr)
        return -1;
    for (int32_t i = 0; features[i].feature.head.key[0] != 0; ++i)
        if (SameText(features[i].feature.head.key, key))
            return i;
    return -1;
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

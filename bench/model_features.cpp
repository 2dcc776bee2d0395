// The shipped model's installable options as a feature table: see the header.
#include "model_features.h"

#include "paramdata/prm_readers.h"

#include <string>

ModelFeatures::ModelFeatures(const PrmFile& file, const InputSlotRecord* trays) {
    Add(file, "OpOutTrayUnit");
    for (; trays->head.key[0] != 0; ++trays)
        Add(file, ("Op" + std::string(trays->head.key)).c_str());
    features.push_back({});
}

void ModelFeatures::Add(const PrmFile& file, const char* key) {
    PrmItems found;
    if (!PrmFindItems(file, key, found))
        return;
    std::vector<ItemRecord> records(found.count + 1);
    for (uint32_t i = 0; i < found.count; ++i) {
        PrmItemDescriptor item = {};
        PrmReadRecord16(file, PrmItemOffset(file, found, i), item);
        PrmReadKey(file, item.head.key, records[i].head.key);
    }
    FeatureRecord feature = {};
    CopyText(feature.feature.head.key, key);
    items.push_back(std::move(records));
    feature.items = items.back().data();
    features.push_back(feature);
    settings.push_back(0);
}

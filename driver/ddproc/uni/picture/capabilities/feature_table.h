// Look-ups in the caller's feature table and its current choices. The records belong to the caller, are only
// read and may be incomplete: a choice that names no item gives null.
#ifndef PICTURE_CAPABILITIES_FEATURE_TABLE_H
#define PICTURE_CAPABILITIES_FEATURE_TABLE_H

#include "base/records.h"

// Position of the first feature with this key, ASCII case ignored; -1 when there is none.
int32_t FindFeature(const FeatureRecord* features, const char* key);

// The selected item of the feature at this position; null when there is no item table or the choice names no
// item.
const ItemRecord* SelectedItem(const FeatureRecord* features, const FeatureSettings* settings,
                               int32_t position);

#endif

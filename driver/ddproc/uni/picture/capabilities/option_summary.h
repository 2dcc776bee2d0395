// The installed options that the printer's picture shows, from the caller's option features.
#ifndef PICTURE_CAPABILITIES_OPTION_SUMMARY_H
#define PICTURE_CAPABILITIES_OPTION_SUMMARY_H

#include "picture/capabilities/feature_table.h"
#include "picture/capabilities/option_keys.h"

// Of several features with the same key the last one counts, even if it gives 0. A choice that names no item
// gives 0. A null feature table gives all 0.
OptionSummary SummarizeOptions(const FeatureRecord* features, const FeatureSettings* settings);

#endif

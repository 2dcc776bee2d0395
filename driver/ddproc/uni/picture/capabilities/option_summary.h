// The installed options that the printer's picture shows, from the caller's option features.
#ifndef PICTURE_CAPABILITIES_OPTION_SUMMARY_H
#define PICTURE_CAPABILITIES_OPTION_SUMMARY_H

#include "picture/capabilities/feature_table.h"

// Each field is the number of the selected unit, counted from 1; 0 when there is none.
struct OptionSummary {
    int32_t bodyPrinter;
    int32_t inputUnit;
    int32_t outputUnit;
    int32_t hardDisk;
    int32_t mailbinKit;
    int32_t saddleKit;
};

// Of several features with the same key the last one counts, even if it gives 0. A choice that names no item
// gives 0. A null feature table gives all 0.
OptionSummary SummarizeOptions(const FeatureRecord* features, const FeatureSettings* settings);

#endif

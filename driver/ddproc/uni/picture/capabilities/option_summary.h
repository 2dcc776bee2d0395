// What is installed, as far as the printer's picture shows it, worked out from the caller's option features.
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

// A later feature of the same key overrides an earlier one, also back to 0. A choice that names no item is 0;
// so is everything without a feature table.
OptionSummary SummarizeOptions(const FeatureRecord* features, const FeatureSettings* settings);

#endif

// The feature table that the generic modules would pass for the shipped model: its installable options.
#ifndef BENCH_MODEL_FEATURES_H
#define BENCH_MODEL_FEATURES_H

#include "paramdata/device_table.h"
#include "picture/feature_table.h"

#include <list>
#include <vector>

struct PrmFile;

struct ModelFeatures {
    // Takes the output tray unit and each paper source's option from the file; the first item of each is
    // chosen.
    ModelFeatures(const PrmFile& file, const InputSlotRecord* trays);

    std::vector<FeatureRecord> features; // with their end
    std::vector<FeatureSettings> settings;

private:
    void Add(const PrmFile& file, const char* key);

    std::list<std::vector<ItemRecord>> items; // what the features refer to
};

#endif

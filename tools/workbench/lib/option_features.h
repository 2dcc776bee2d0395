// The option features of the model and their current items: the feature table and settings that the generic
// modules pass to the module, built here from the parameter data file.
#ifndef WORKBENCH_LIB_OPTION_FEATURES_H
#define WORKBENCH_LIB_OPTION_FEATURES_H

#include "workbench/lib/document.h"
#include "workbench/lib/family_files.h"

#include <memory>
#include <vector>

struct OptionFeatures {
    std::vector<std::shared_ptr<ItemRecord[]>> items; // of each feature; `features` points to them
    std::vector<FeatureRecord> features;              // ends at an empty key, as the items do
    std::vector<FeatureSettings> settings; // position of the current item; -1: the file has no default
};

// The features in the file, set to the file's defaults.
OptionFeatures ReadOptionFeatures(const FamilyFiles& family);

// The item of "FEATURE=ITEM" (ASCII case ignored); null when the model lacks it or the feature.
const ItemRecord* FindOption(const OptionFeatures& options, const std::string& assignment);

// Applies "FEATURE=ITEM". Throws Failure that lists what is possible when the model lacks either.
void SetOption(OptionFeatures& options, const std::string& assignment);

// Applies what a printer reports. A feature or item that the model does not have is ignored.
void ApplyReportedOption(OptionFeatures& options, const char* featureKey, const char* itemKey);

// Adds a machine of this name (UTF-8) to the model's own and selects it. Throws Failure when the name is too
// long or empty, or the model has no "OpMachine".
void AddMachine(OptionFeatures& options, const std::string& name);

// The current item of the feature at this position; null when there is none.
const ItemRecord* CurrentItem(const OptionFeatures& options, size_t position);

// A row for each feature with its current item.
Document OptionsDocument(const OptionFeatures& options);

#endif

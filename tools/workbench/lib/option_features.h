// The option features of the model, as the generic modules keep them: the caller's feature table and
// settings, made from the plain entries of the parameter data file.
#ifndef WORKBENCH_LIB_OPTION_FEATURES_H
#define WORKBENCH_LIB_OPTION_FEATURES_H

#include "picture/capabilities/feature_table.h"
#include "workbench/lib/document.h"
#include "workbench/lib/family_files.h"

#include <memory>
#include <vector>

struct OptionFeatures {
    std::vector<std::shared_ptr<ItemRecord[]>> items; // of each feature; the features refer to them
    std::vector<FeatureRecord> features;              // ends at an empty key, as the items do
    std::vector<FeatureSettings> settings; // position of the item in force; -1: the file has no default
};

// The features that the file has, set to the file's defaults.
OptionFeatures ReadOptionFeatures(const FamilyFiles& family);

// Applies "FEATURE=ITEM" (letter case ignored). Throws Failure that names what is possible.
void SetOption(OptionFeatures& options, const std::string& assignment);

// Puts the item in force that a printer reports; a feature or item that the model doesn't have changes
// nothing.
void TakeReportedOption(OptionFeatures& options, const char* featureKey, const char* itemKey);

// Offers a machine of this name (UTF-8) besides the model's own, and puts it in force. Throws Failure when
// the name doesn't fit a display name or the model has no "OpMachine".
void AddMachine(OptionFeatures& options, const std::string& name);

// One row per feature: the item in force.
Document OptionsDocument(const OptionFeatures& options);

#endif

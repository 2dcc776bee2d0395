// The colour settings of the model, as a person chooses them in its colour dialog.
#ifndef WORKBENCH_PROPERTY_SHEET_COLOR_SETTINGS_H
#define WORKBENCH_PROPERTY_SHEET_COLOR_SETTINGS_H

#include "workbench/lib/family_files.h"

#include <string>
#include <vector>

// A setting that differs from its default. All texts are the user's.
struct ChangedColorSetting {
    std::string name;
    std::string before;
    std::string after;
    std::string numbers; // the values behind these names
};

// In the order of the model's colour dialog. What the dialog derives from a choice is not listed.
std::vector<ChangedColorSetting> ChangedColorSettings(const FamilyFiles& family, const OemDevmode& settings);

// Sets all colour settings and colour profiles to their defaults.
void ResetColorSettings(OemDevmode& settings);

#endif

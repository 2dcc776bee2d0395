// The fields of the private print settings by name, and the differences between two records.
#ifndef WORKBENCH_LIB_SETTINGS_FIELDS_H
#define WORKBENCH_LIB_SETTINGS_FIELDS_H

#include "workbench/lib/document.h"
#include "workbench/lib/module_parts.h"

#include <string>
#include <vector>

// One field of the settings.
struct SettingsField {
    const char* group;
    std::string name;
    size_t offset;
    size_t bytes;
    Document (*show)(const void* at);
};

// All fields by group, within a group in the order of the record. The font table is not among them.
const std::vector<SettingsField>& SettingsFields();

Document ShowSetting(const SettingsField& field, const OemDevmode& settings);

// A row for each field that differs, with its value before and after. Bytes outside the fields (reserved
// ones, the font table) have rows of their own without a name.
Document SettingsChanges(const OemDevmode& before, const OemDevmode& after);

#endif

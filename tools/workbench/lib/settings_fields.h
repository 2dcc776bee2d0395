// The fields of the private print settings by name, and what differs between two records of them.
#ifndef WORKBENCH_LIB_SETTINGS_FIELDS_H
#define WORKBENCH_LIB_SETTINGS_FIELDS_H

#include "base/records.h"
#include "workbench/lib/document.h"

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

// Every field, in the order of the record within a group; the font table, which is none of them, follows.
const std::vector<SettingsField>& SettingsFields();

Document ShowSetting(const SettingsField& field, const OemDevmode& settings);

// A row for each field that differs: its value before and after. Bytes that belong to no field, such as
// reserved ones and the font table's, have rows of their own, without a name.
Document SettingsChanges(const OemDevmode& before, const OemDevmode& after);

#endif

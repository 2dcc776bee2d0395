// The built-in default of the private print settings: compiled in, then taken from the parameter data file at
// process attach. The dialogs use it when the print queue has no stored defaults.
#ifndef PARAMDATA_DEFAULT_SETTINGS_H
#define PARAMDATA_DEFAULT_SETTINGS_H

#include "base/records.h"
#include "paramdata/device_table.h"

extern OemDevmode defaultSettings;

// Stores the defaults of the file in `defaultSettings` and the spreadsheet job control in the table. The
// colour tables must still be as compiled in. Defaults that the file lacks are unchanged; fonts, and what is
// derived from other settings (binding, tray papers, cover printing), are always set.
void BuildDefaultSettings(const PrmFile& file, DeviceTable& table);

// Stores the value of the entry's default item in the location fields: for "OvlForm_Location" that of the
// overlay, for "Prof_Location" those of the five colour profiles. Stores nothing for any other entry, a null
// list, and a key that names no item.
void ApplyLocationDefault(const PrmFile& file, const char* entry, const TextItemRecord* list,
                          OemDevmode& settings);

#endif

// The built-in default of the private print settings: compiled in, then taken from the parameter data file
// while the process attaches. The dialogs fall back to it when the printer holds no stored defaults.
#ifndef PARAMDATA_DEFAULT_SETTINGS_H
#define PARAMDATA_DEFAULT_SETTINGS_H

#include "base/records.h"
#include "paramdata/device_table.h"

extern OemDevmode defaultSettings;

// Writes the file's defaults into `defaultSettings` and the spreadsheet job control into the table. The
// colour tables must still be as compiled in. Defaults that the file lacks stay as they were; fonts and what
// follows from other settings (binding, tray papers, cover printing) are written in any case.
void BuildDefaultSettings(const PrmFile& file, DeviceTable& table);

// Writes the value of the list item that is the entry's default into the location fields: for
// "OvlForm_Location" the overlay's, for "Prof_Location" those of the five colour profiles. Any other entry, a
// null list and a key that names no item write nothing.
void ApplyLocationDefault(const PrmFile& file, const char* entry, const TextItemRecord* list,
                          OemDevmode& settings);

#endif

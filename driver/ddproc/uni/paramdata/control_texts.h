// The control text tables of the model's dialogs: which texts the parameter data file gives to which
// controls. The dialogs hand them to the user-interface module, which reads this layout.
#ifndef PARAMDATA_CONTROL_TEXTS_H
#define PARAMDATA_CONTROL_TEXTS_H

#include "base/records.h"
#include <cstddef>
#include <cstdint>

struct PrmFile;

// Each is filled from the entry of its name: "Property_0", "Dlg_ColorSetting", "Dlg_PaperSourceTraySetting".
extern ControlTextRecord (&propertyTexts)[17];
extern ControlTextRecord (&colorDialogTexts)[31];
extern ControlTextRecord (&trayDialogTexts)[16];

// Fills the display texts of a table from the file's entry. Keys that no row has are skipped, empty texts
// change nothing. False, and the table as it was, when the file lacks the entry.
bool ApplyControlTexts(const PrmFile& file, const char* entry, ControlTextRecord* table);

#endif

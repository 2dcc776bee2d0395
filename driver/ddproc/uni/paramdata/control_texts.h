// The texts of the controls in the model's dialogs, from the parameter data file. The dialogs pass these
// tables to the user-interface module.
#ifndef PARAMDATA_CONTROL_TEXTS_H
#define PARAMDATA_CONTROL_TEXTS_H

#include "base/records.h"

struct PrmFile;

// The records of the rows in control_text_keys.h and an end record. Filled from the entries "Property_0",
// "Dlg_ColorSetting" and "Dlg_PaperSourceTraySetting".
extern ControlTextRecord (&propertyTexts)[17];
extern ControlTextRecord (&colorDialogTexts)[31];
extern ControlTextRecord (&trayDialogTexts)[16];

// Sets the display texts of a table from the entry of the file. Unknown keys and empty texts are skipped.
// False when the file lacks the entry.
bool ApplyControlTexts(const PrmFile& file, const char* entry, ControlTextRecord* table);

#endif

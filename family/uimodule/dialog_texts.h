// Replaces a dialog's texts by those of the parameter data file.
#ifndef UIMODULE_DIALOG_TEXTS_H
#define UIMODULE_DIALOG_TEXTS_H

#include "paramdata/control_texts.h"

#include <windows.h>

// Sets the texts of the dialog's controls from a table and, for the table of a model's dialog (isModel), the
// title. uimodule/exports.h explains the rows.
void ReplaceTexts(HWND dialog, const ControlTextRecord* texts, bool isModel);

#endif

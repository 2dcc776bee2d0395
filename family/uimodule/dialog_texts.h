// The parameter data file's texts, put into a dialog, and room for those of its lists.
#ifndef UIMODULE_DIALOG_TEXTS_H
#define UIMODULE_DIALOG_TEXTS_H

#include "paramdata/control_texts.h"

#include <windows.h>

// Puts a table's texts into the dialog's controls and, when the table is one of a model's dialogs (isModel),
// its title. uimodule/exports.h says how rows are told apart.
void ReplaceTexts(HWND dialog, const ControlTextRecord* texts, bool isModel);

// Makes the entries of the owner-drawn lists as high as the dialog's font, where that is higher than what the
// model's dialogs measure for them: on screens of high resolution.
void FitListEntries(HWND dialog);

#endif

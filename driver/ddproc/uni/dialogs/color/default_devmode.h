// The default settings that the dialogs' Defaults buttons take.
#ifndef DIALOGS_COLOR_DEFAULT_DEVMODE_H
#define DIALOGS_COLOR_DEFAULT_DEVMODE_H

#include "dialogs/shared/dialog_context.h"
#include "paramdata/device_table.h"

#include <windows.h>

// The defaults that are stored with the print queue; otherwise the built-in ones, in the paper and units of
// the user's region. They lie in the context's scratch area, which is the answer; null without context or
// area.
const OemDevmode* GetDefaultOemDevmode(const DeviceTable* table, const DialogContext* context);

// Puts paper and units of the user's region into the built-in default settings. The table may be null: the
// paper then stays.
void LocalizeDefaultOemDevmode(const DeviceTable* table);

// Whether the queue's driver is one for black only, by its name. A null handle has the printer opened by
// name, which may be null, too. False when nothing can be asked.
bool IsMonoDriver(HANDLE printer, const wchar_t* name);

#endif

// The default settings that the Defaults buttons copy.
#ifndef DIALOGS_COLOR_DEFAULT_DEVMODE_H
#define DIALOGS_COLOR_DEFAULT_DEVMODE_H

#include "dialogs/shared/dialog_context.h"
#include "paramdata/device_table.h"

#include <windows.h>

// Writes the default settings to the context's scratch area and returns it: those stored with the print
// queue, otherwise the built-in ones with the paper and units of the user's region. Null without a context or
// area.
const OemDevmode* GetDefaultOemDevmode(const DeviceTable* table, const DialogContext* context);

// Sets paper and units of the built-in default settings to those of the user's region. With a null table the
// paper is left unchanged.
void LocalizeDefaultOemDevmode(const DeviceTable* table);

// Whether the name of the queue's driver is that of a black-only driver. With a null handle the printer is
// opened by its name, which may be null, too. False when the driver's name cannot be read.
bool IsMonoDriver(HANDLE printer, const wchar_t* name);

#endif

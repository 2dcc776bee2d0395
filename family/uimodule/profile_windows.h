// What the buttons for the printer's profiles open.
#ifndef UIMODULE_PROFILE_WINDOWS_H
#define UIMODULE_PROFILE_WINDOWS_H

#include "base/records.h"

#include <windows.h>

// Lists the profiles of the context and where they are stored. Does nothing with a null context.
void ShowProfiles(HWND dialog, const DialogContext* context);

// The Download Manager is another program, which this library only mentions. It counts as installed when the
// environment variable LUMORA_DOWNLOAD_MANAGER is 1.
bool IsDownloadManagerInstalled();
void ShowDownloadManager(HWND dialog);

#endif

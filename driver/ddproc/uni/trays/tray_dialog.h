// The tray-setting dialogs, in which the user sets the paper in each tray. There are three kinds, which
// differ in the attributes that they offer.
#ifndef TRAYS_TRAY_DIALOG_H
#define TRAYS_TRAY_DIALOG_H

#include <cstdint>
#include <windows.h>

struct TrayDialogEntry {
    uint32_t templateId;
    DLGPROC procedure; // its creation parameter is the dialog's context
};

// The dialog for a value of the switch that chooses it; null when there is none. Lives as long as the module.
const TrayDialogEntry* FindTrayDialog(uint32_t type);

#endif

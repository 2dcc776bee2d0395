// The stop signs beside controls whose choice is refused.
#ifndef UIMODULE_STOP_ICONS_H
#define UIMODULE_STOP_ICONS_H

#include "base/records.h"

// The icon controls of a dialog.
struct StopIcons {
    size_t count;
    int32_t controls[sizeof(StopIconTable::records) / sizeof(StopIconRecord)];
};

// Those of the table that the dialog has. A null table has none.
StopIcons FindStopIcons(HWND dialog, const StopIconTable* table);

// The control beside an icon control; 0 when the table does not know.
uint32_t ControlBeside(const StopIconTable* table, uint32_t iconControl);

// Fills the item's rectangle with the dialog's background and, when wanted, puts a stop sign into the middle,
// as large as fits: a template gives the icons their size, at every resolution.
void DrawStopIcon(const DRAWITEMSTRUCT& item, bool isStop);

#endif

// Stop signs, shown next to controls whose choice is refused.
#ifndef UIMODULE_STOP_ICONS_H
#define UIMODULE_STOP_ICONS_H

#include "base/records.h"

// Icon controls of a dialog.
struct StopIcons {
    size_t count;
    int32_t controls[sizeof(StopIconTable::records) / sizeof(StopIconRecord)];
};

// The icon controls of the table that the dialog has. A null table has none.
StopIcons FindStopIcons(HWND dialog, const StopIconTable* table);

// The control that an icon control belongs to; 0 when the table lacks it.
uint32_t ControlOfStopIcon(const StopIconTable* table, uint32_t iconControl);

// Fills the item's rectangle with the dialog's background and, if `isStop`, draws a stop sign in its centre,
// as large as fits. The template gives the icons their size at every resolution.
void DrawStopIcon(const DRAWITEMSTRUCT& item, bool isStop);

#endif

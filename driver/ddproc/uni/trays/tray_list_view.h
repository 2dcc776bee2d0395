// The list view of the tray-setting dialogs: a row for each tray, a column for each thing that is known of
// its paper. Rows are drawn by the module, and always as a whole.
#ifndef TRAYS_TRAY_LIST_VIEW_H
#define TRAYS_TRAY_LIST_VIEW_H

#include "dialogs/shared/dialog_context.h"
#include "trays/tray_settings.h"

#include <windows.h>

constexpr int kTrayList = 1844;

// Inserts the columns that the model shows.
void SetUpTrayColumns(HWND dialog);

// Lists the paper sources but the automatic one, ten at the most, and gives each tray record the key and the
// bin number of its source. Nothing is selected afterwards. Without tray records there are no rows.
void FillTrayRows(HWND dialog, const DialogContext* context);

// Draws a row, for WM_DRAWITEM.
void DrawTrayRow(HWND dialog, const DialogContext* context, const DRAWITEMSTRUCT& item);

// The row that is selected; -1 when none is.
int SelectedTrayRow(HWND dialog);
void SelectTrayRow(HWND dialog, int row);

// The record that a row shows; null when there is no such row or no records.
TrayPaperSetting* TrayOfRow(HWND dialog, const DialogContext* context, int row);

// The list view's window procedure in front of its own one: widens every painting to whole rows.
LRESULT RepaintTrayRows(WNDPROC own, HWND list, UINT message, WPARAM wParam, LPARAM lParam);

#endif

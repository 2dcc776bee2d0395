// The list view of the tray-setting dialogs: a row for each tray, a column for each attribute of its paper.
// The module draws the rows, always as a whole.
#ifndef TRAYS_TRAY_LIST_VIEW_H
#define TRAYS_TRAY_LIST_VIEW_H

#include "dialogs/shared/dialog_context.h"

#include <windows.h>

// Inserts the columns that the model shows.
void SetUpTrayColumns(HWND dialog);

// Lists the paper sources, at most ten, without the automatic one, and sets key and bin number of each tray
// record. Nothing is selected afterwards. Without tray records there are no rows.
void FillTrayRows(HWND dialog, const DialogContext* context);

// Draws a row, for WM_DRAWITEM.
void DrawTrayRow(HWND dialog, const DialogContext* context, const DRAWITEMSTRUCT& item);

// The selected row; -1 when there is none.
int SelectedTrayRow(HWND dialog);
void SelectTrayRow(HWND dialog, int row);

// The record that a row shows; null when there is no such row or no records.
TrayPaperSetting* TrayOfRow(HWND dialog, const DialogContext* context, int row);

// Runs before the list view's own window procedure: extends every painting to whole rows.
LRESULT RepaintTrayRows(WNDPROC own, HWND list, UINT message, WPARAM wParam, LPARAM lParam);

#endif

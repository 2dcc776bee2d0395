// Fits a dialog's lists to the fonts and texts of this screen. The model's dialogs ask for entries of 16
// pixels and for columns as wide as their titles.
#ifndef UIMODULE_LIST_FIT_H
#define UIMODULE_LIST_FIT_H

#include <windows.h>

// Makes the entries of the owner-drawn drop-down lists at least as high as their font needs.
void FitListEntries(HWND dialog);

// Makes an open drop-down list as wide as its longest entry. Call it before the list drops down.
void FitDroppedWidth(HWND list);

// The height of a row of the tray list.
UINT TrayRowHeight(HWND list);

// Makes the tray list ask its dialog again how high a row is.
void MeasureTrayRows(HWND dialog);

using CellText = wchar_t[260];

struct TrayCell {
    int row;
    int column;
};

// Reads a cell of the tray list. Whether its column is too narrow for it.
bool ReadCutCell(HWND list, const TrayCell& cell, CellText& text);

// Makes the first column as wide as its longest cell or its title, and the others too as far as there is
// room. The last one takes the rest.
void FitTrayColumns(HWND dialog);

#endif

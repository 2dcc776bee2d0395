// What the list views of the property sheet have in common: columns and rows, widths of columns, tool tips
// for what is cut, copying. Texts are UTF-8.
#ifndef WORKBENCH_PROPERTY_SHEET_LIST_VIEW_H
#define WORKBENCH_PROPERTY_SHEET_LIST_VIEW_H

#include <string>
#include <vector>
#include <windows.h>

#include <commctrl.h> // after windows.h

// Replaces the columns. The list has no rows then.
void SetListColumns(HWND list, const std::vector<std::string>& titles);

// Adds an empty row; the cells of a row.
void AddListRow(HWND list, size_t row);
void SetListCell(HWND list, size_t row, size_t column, const std::string& utf8);

// Makes every column as wide as its longest cell and its title. The last one gets the rest of the width.
void FitColumns(HWND list);

// From now on a tool tip shows the text of a cell that is wider than its column. It ends with the list.
void ShowCutCells(HWND list);

// A tool tip of a control, which ends with the control's sheet, and its text; an empty text is not shown.
HWND MakeTip(HWND control);
void SetTip(HWND tip, HWND control, std::wstring text);

// Puts the selected row on the clipboard when the key is Ctrl+C; cells are separated by tabs.
void CopyRowOnKey(const NMLVKEYDOWN& key);

// Puts a text (UTF-8) on the clipboard. Throws Failure when another program keeps the clipboard.
void PutOnClipboard(HWND owner, const std::string& utf8);

#endif

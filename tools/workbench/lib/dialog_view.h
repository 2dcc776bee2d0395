// What an open dialog or page shows: its controls, their states and texts, the hint below it, its picture.
#ifndef WORKBENCH_LIB_DIALOG_VIEW_H
#define WORKBENCH_LIB_DIALOG_VIEW_H

#include "workbench/lib/document.h"

#include <vector>
#include <windows.h>

struct DialogView {
    std::string title;
    std::string hint;  // empty: none is shown
    Document controls; // a row for each list, list view and button, in tab order
    Document entries;  // a row for each entry of the lists, and for each row of the list views
    Document disabled; // identifiers of all disabled controls, including labels
};
DialogView ViewDialog(HWND dialog);

// The text in the hint window below the dialog; empty when none is visible.
std::string HintOf(HWND dialog);

bool IsOfClass(HWND window, const wchar_t* name);

// The window's text in UTF-8.
std::string TextOf(HWND window);

// The kinds of control that a user can operate.
enum class ControlKind { kNone, kList, kRows, kButton, kCheckBox, kRadioButton };
ControlKind KindOf(HWND control);

// The windows of all controls, in tab order.
std::vector<HWND> ControlsOf(HWND dialog);

// The texts of a list's entries, or of the first cells of a list view's rows.
std::vector<std::string> EntriesOf(HWND list);

// The position of the selected entry or row; -1: none.
int SelectionOf(HWND list);

// Selects an entry or a row, as a user does.
void SelectEntry(HWND list, WPARAM index);

// Copies the dialog and the windows that it owns from the screen into a PNG file.
Document TakePicture(HWND dialog, const std::string& path);

#endif

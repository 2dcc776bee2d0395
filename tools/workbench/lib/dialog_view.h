// What an open dialog shows: its controls, their states and texts, the hint below it, its picture.
#ifndef WORKBENCH_LIB_DIALOG_VIEW_H
#define WORKBENCH_LIB_DIALOG_VIEW_H

#include "workbench/lib/document.h"

#include <vector>
#include <windows.h>

struct DialogView {
    std::string title;
    std::string hint;  // empty: none is shown
    Document controls; // a row for each list, list view and button, in the order of the tabulator
    Document entries;  // a row for each entry of the lists, and for each row of the list views
    Document disabled; // identifiers of all disabled controls, labels too
};
DialogView ViewDialog(HWND dialog);

// The text of the window with the hint that the dialog has below itself, while it is visible.
std::string HintOf(HWND dialog);

bool IsOfClass(HWND window, const wchar_t* name);

// What a user can do something with.
enum class ControlKind { kNone, kList, kRows, kButton, kCheckBox, kRadioButton };
ControlKind KindOf(HWND control);

// The windows of all controls, in the order of the tabulator.
std::vector<HWND> ControlsOf(HWND dialog);

// The texts of a list's entries, or of the first cells of a list view's rows.
std::vector<std::string> EntriesOf(HWND list);

// Selects one of them, as a user does.
void SelectEntry(HWND list, WPARAM index);

// Copies the dialog, and the windows that belong to it, from the screen into a PNG file.
Document TakePicture(HWND dialog, const std::string& path);

#endif

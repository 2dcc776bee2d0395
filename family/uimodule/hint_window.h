// The window with the hints: a tool tip that stays below the dialog while there is a hint.
#ifndef UIMODULE_HINT_WINDOW_H
#define UIMODULE_HINT_WINDOW_H

#include <windows.h>

// Creates the window, hidden. The dialog owns and destroys it. Null when it cannot be created.
HWND CreateHintWindow(HWND dialog);

// Shows the text, which may have several lines, or hides the window when the text is empty. Does nothing
// unless the dialog owns the window.
void ShowHint(HWND hintWindow, HWND dialog, const wchar_t* text);

#endif

// The window with the hints: a tool tip that stays below the dialog for as long as there is something to say.
#ifndef UIMODULE_HINT_WINDOW_H
#define UIMODULE_HINT_WINDOW_H

#include <windows.h>

// Hidden; owned by the dialog and destroyed with it. Null when it can't be made.
HWND CreateHintWindow(HWND dialog);

// Shows the text, of one line or several, or hides the window when it is empty. Does nothing for a window
// that is not the dialog's.
void ShowHint(HWND hintWindow, HWND dialog, const wchar_t* text);

#endif

// The library's own window: a text to read next to the dialog, which stays usable. There is one at a time.
#ifndef UIMODULE_TEXT_WINDOW_H
#define UIMODULE_TEXT_WINDOW_H

#include <windows.h>

// Opens the window without text, or empties it when it is open. Null when it cannot be created. Escape,
// Return and its button close it.
HWND OpenTextWindow(HWND dialog, const wchar_t* title);

void AppendParagraph(HWND textWindow, const wchar_t* text);

// Shows the window, from its first line, and gives it the focus.
void ShowTextWindow(HWND textWindow);

#endif

// Places a dialog over its owner, and what belongs to it.
#ifndef UIMODULE_PLACEMENT_H
#define UIMODULE_PLACEMENT_H

#include <windows.h>

// Centres the dialog over the window that it was opened from, within the screen. Without a visible one it
// stays where it is.
void PlaceOverOwner(HWND dialog);

// Places a window next to the dialog that owns it, to its right if there is room, within the screen.
void PlaceNextTo(HWND window, HWND dialog);

// Moves the stop icon of the check box for the paper's colour to the end of its text. The template's places
// are the limits.
void PlaceCheckBoxIcon(HWND dialog);

#endif

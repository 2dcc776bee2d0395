// Help on a dialog and its controls, in the library's own window.
#ifndef UIMODULE_HELP_H
#define UIMODULE_HELP_H

#include <windows.h>

// Shows the help on all controls of the dialog.
void ShowHelp(HWND dialog);

// Shows the help on a control or, when there is none, on the dialog.
void ShowHelpOn(HWND dialog, HWND control);

// Shows the menu for help on a control at this point of the screen, and the help when it is chosen. For a
// point of the keyboard, -1 and -1, the control's corner.
void OfferHelpOn(HWND dialog, HWND control, POINT at);

#endif

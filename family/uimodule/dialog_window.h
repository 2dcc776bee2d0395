// Takes messages of a model's dialog before the module does: those that the module leaves to the
// user-interface module, help, and those that fit the lists.
#ifndef UIMODULE_DIALOG_WINDOW_H
#define UIMODULE_DIALOG_WINDOW_H

#include <windows.h>

// Replaces the dialog's procedure until the dialog is destroyed. Calling it again changes nothing. The dialog
// frees this library while it handles WM_DESTROY, so a hook puts the procedure back before that. Windows that
// the dialog owns have ended by then, too.
void AttachToDialog(HWND dialog);

// Whether an attached dialog is handling that it has become active.
bool IsBecomingActive();

#endif

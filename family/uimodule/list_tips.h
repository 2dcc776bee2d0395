// Tool tips of the drop-down lists: the chosen text, when the list is too narrow for it.
#ifndef UIMODULE_LIST_TIPS_H
#define UIMODULE_LIST_TIPS_H

#include <windows.h>

#include <commctrl.h>

// Adds a tool tip to each drop-down list of the dialog. The dialog owns their window and gets
// TTN_GETDISPINFOW before one is shown.
void AddListTips(HWND dialog);

// Answers the notification with the list's chosen text or, when that is not cut, without a text. The text is
// valid until the next call.
void DescribeCutText(NMTTDISPINFOW& tip);

#endif

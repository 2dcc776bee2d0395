// Tool tips of the lists: the chosen text of a drop-down list, or the tray list's cell below the pointer,
// when it is cut.
#ifndef UIMODULE_LIST_TIPS_H
#define UIMODULE_LIST_TIPS_H

#include <windows.h>

#include <commctrl.h>

// Adds a tool tip to each drop-down list and to the tray list of the dialog. The dialog owns their window and
// gets TTN_GETDISPINFOW before one is shown.
void AddListTips(HWND dialog);

// Answers the notification with the list's text or, when that is not cut, without a text. The text is valid
// until the next call.
void DescribeCutText(NMTTDISPINFOW& tip);

// Takes WM_SETCURSOR, which comes with each message of the pointer over the tray list: the module replaces
// the list's procedure, so the tool tip can't. A tool tip ends when the pointer comes to another cell.
void FollowPointer(HWND dialog, HWND window, UINT mouseMessage);

#endif

// TELMAR_U.DLL, a stand-in for the driver family's user-interface module: the callbacks that the model's
// dialogs find by name. They all run on the dialog's thread. State is kept for the one dialog that is open:
// its stop icons, its hint window and the choice that was refused last. Texts, tables, contexts and settings
// belong to the caller, and none is kept beyond a call.
//
// With a null dialog, table or context a callback does nothing and returns 0 or null.
#ifndef UIMODULE_EXPORTS_H
#define UIMODULE_EXPORTS_H

#include "telmar_d.h"

extern "C" {

// Both set the dialog's texts from a table. A row is one of these:
// - the title: the first row of a model's table, when it has several identifiers (dialog templates) or one
// that
//   no control of the dialog has. The common items have no title;
// - a list-view column (-1), or a control that this dialog lacks: skipped;
// - otherwise the text of the control with the first identifier.
// Empty texts change nothing. A text without '&' that replaces one with an access key keeps that key: at the
// first occurrence of its letter, otherwise appended as " (&X)", in front of a closing colon or "...".
// Nothing is appended to the text of a group box. Texts are cut to their fields. The dialog's identifier and
// the context are not used. The first callback also makes the entries of owner-drawn lists as high as their
// font needs, the second moves the stop icon of the check box to the end of its text.
TelmarReplaceDlgDispStringCmnItem ReplaceDlgDispStringCmnItem;
TelmarReplaceDlgDispString ReplaceDlgDispString;

// Creates the hint window. The dialog owns and destroys it. It is hidden until there is a hint, stays below
// the dialog or within the screen, and never takes the focus. Its window text is the hint. Null when it
// cannot be created.
// Also places the dialog over its owner and, until it is destroyed, takes messages before the dialog does:
// help, the buttons for profiles and the height of tray rows. Lists are fitted to their texts: the tray list
// when the dialog is shown and after each choice, a drop-down list when it opens. A chosen text or a tray's
// cell that is cut is in the list's tool tip.
TelmarCreateToolWnd CreateToolWnd;

// Notes which of the table's icon controls the dialog has.
TelmarStoreStopIconRect StoreStopIconRect;

// Checks a control's choice, which is already in the settings of the dialog's context or, of a tray, in its
// lists, against the rows of uimodule/constraints.cpp. 100 and 101 refuse it, 0 keeps it. A refused choice
// stays marked until the next call, other than that for all controls when the dialog becomes active. Control
// 0 refuses nothing. The hint window is known from CreateToolWnd; the argument is not used, since a tray
// dialog passes that of a colour dialog.
TelmarDoConstraints DoConstraints;

// Shows the hints in the hint window, or hides it when there are none, and redraws the stop icons. They are
// all reasons why the last choice was refused, otherwise all conflicts of settings whose controls the dialog
// has.
TelmarDispHintControl DispHintControl;

// 1 when the environment variable LUMORA_DOWNLOAD_MANAGER is 1, otherwise 0: not installed.
TelmarIsInstalledDLManager IsInstalledDLManager;

// Draws a stop sign when the choice of the icon's control is refused or in conflict, otherwise only the
// dialog's background.
TelmarReqDrawStopInfoIcon ReqDrawStopInfoIcon;

// Calls DialogBoxParamW. -1 or 0 when the dialog cannot be created.
TelmarMyDialogBox MyDialogBox;

// This library. It has the icons IDI_PORTRAIT and IDI_LANDSCAPE, pages in 16 and 32 pixels.
TelmarGetImgResInst GetImgResInst;
}

#endif

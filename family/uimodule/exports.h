// TELMAR_U.DLL, a stand-in for the driver family's user-interface module: the callbacks with which the
// model's dialogs put themselves into the hands of that module. They have the types of
// dialogs/shared/ui_callbacks.h and are found by their names. All of them run on the dialog's thread; state
// is kept for the one dialog that is open (its stop icons, its hint window, the choice refused last). Texts,
// tables, contexts and settings are the caller's; none is kept beyond a call.
//
// A null dialog, table or context is answered by doing nothing, and 0 or null.
#ifndef UIMODULE_EXPORTS_H
#define UIMODULE_EXPORTS_H

#include "telmar_d.h"

extern "C" {

// Both put a table's display texts into the dialog. A row is one of these:
// - the title: the first row of a model's table, when it has several identifiers (dialog templates) or one
//   that no control of the dialog has. The common items have no title, whatever their rows say;
// - a list-view column (-1), or no control of this dialog: skipped;
// - a control's text, by the first identifier.
// Empty texts change nothing. Where a text without '&' replaces one with an access key, the key stays: at the
// first place of its letter, otherwise behind the text as " (&X)" (in front of a closing colon or "..."). A
// group box is not added to. Texts are cut to their fields. The dialog's identifier and the context are not
// needed. The first also makes the entries of owner-drawn lists as high as their font needs.
TelmarReplaceDlgDispStringCmnItem ReplaceDlgDispStringCmnItem;
TelmarReplaceDlgDispString ReplaceDlgDispString;

// The hint window: owned by the dialog, which destroys it; hidden until there is a hint. It stays below the
// dialog, or within where the screen ends, and never takes the focus. Its window text is the hint. Null when
// it can't be made.
TelmarCreateToolWnd CreateToolWnd;

// Notes which of the table's icon controls the dialog has.
TelmarStoreStopIconRect StoreStopIconRect;

// Checks the choice of a control, already stored in the settings of the dialog's context, against the rows of
// uimodule/constraints.cpp: 100 or 101 refuses it, 0 keeps it. A refused choice is marked until the next
// call. With control 0 there is nothing to refuse: 0. The hint window is known from CreateToolWnd; the
// argument is not used, since a tray dialog hands over that of a colour dialog.
TelmarDoConstraints DoConstraints;

// Shows the hints in the hint window, or hides it when there are none, and has the stop icons drawn anew.
// The hint tells of the refused choice, otherwise of what is in conflict in the settings, as far as the
// dialog has the controls.
TelmarDispHintControl DispHintControl;

// 0: there is none.
TelmarIsInstalledDLManager IsInstalledDLManager;

// A stop sign when the choice of the control beside the icon is refused or in conflict, otherwise only the
// dialog's background.
TelmarReqDrawStopInfoIcon ReqDrawStopInfoIcon;

// DialogBoxParamW; -1 or 0 when the dialog can't be made.
TelmarMyDialogBox MyDialogBox;

// This library: icon 473 is a page in portrait format, 474 in landscape format, in 16 and 32 pixels.
TelmarGetImgResInst GetImgResInst;
}

#endif

// The user-interface module while a dialog is open, and the module-wide state of the one dialog that is open
// at a time. Not locked: everything here runs on the dialog's thread.
#ifndef DIALOGS_SHARED_UI_MODULE_H
#define DIALOGS_SHARED_UI_MODULE_H

#include "base/entry_point.h"
#include "base/records.h"

struct DialogState {
    HMODULE uiModule;                        // TELMAR_U.DLL; null when it is not loaded
    TelmarDoConstraints* doConstraintsEntry; // both only used while the module is loaded
    TelmarDispHintControl* dispHintControlEntry;
    HWND hintToolWindow; // of the colour dialogs
    uint32_t currentDialogId;
};
extern DialogState dialogState;

// Loads TELMAR_U.DLL from beside the module. False, and no module, when that fails. What was loaded before is
// overwritten, not freed.
bool LoadUiModule();

// Frees it, when it is loaded.
void ReleaseUiModule();

// A callback under its type; null without the module, or when the module lacks it.
template <typename Function>
Function* UiCallback(const char* name) {
    return dialogState.uiModule != nullptr ? FindEntryPoint<Function>(dialogState.uiModule, name) : nullptr;
}

// What differs between the dialogs when they bind themselves to the module.
struct UiBinding {
    uint32_t commonItemsId; // passed with the texts of common items
    const ControlTextRecord* texts;
    HWND* hintWindow; // where the window that the module creates is kept
};

// The calls of a dialog's initialisation, from the texts to the first check of all settings and the hints.
// The module must have been loaded.
void BindUiModule(HWND dialog, DialogContext* context, const UiBinding& binding);

// Checks the settings after this control has changed. True when the change is refused, for a reason that the
// hint window shows, and must be undone. Without module or callback nothing is.
bool IsChangeRefused(HWND dialog, HWND hintWindow, uint32_t control);

// Checks all settings at once, where nothing can be refused, and shows the hints for the current dialog.
void CheckSettings(HWND dialog, DialogContext* context);

// Shows the hints anew, for the dialog of this identifier.
void ShowHints(HWND dialog, DialogContext* context, uint16_t dialogId);

// The control that an icon control stands beside; 0 when it is none.
uint16_t ControlBesideIcon(uint32_t iconControl);

// Has the module draw an icon control. False when it can't.
bool DrawIconControl(HWND dialog, uint32_t control, const DRAWITEMSTRUCT& item);

#endif

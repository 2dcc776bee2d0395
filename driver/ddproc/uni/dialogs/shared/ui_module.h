// The user-interface module while a dialog is open, and the state of the one dialog that is open at a time.
// Not locked: everything here runs on the dialog's thread.
#ifndef DIALOGS_SHARED_UI_MODULE_H
#define DIALOGS_SHARED_UI_MODULE_H

#include "base/entry_point.h"
#include "base/records.h"

struct DialogState {
    HMODULE uiModule;                        // TELMAR_U.DLL; null when it is not loaded
    TelmarDoConstraints* doConstraintsEntry; // this and the next are called only while the module is loaded
    TelmarDispHintControl* dispHintControlEntry;
    HWND hintToolWindow; // of the colour dialogs
    uint32_t currentDialogId;
};
extern DialogState dialogState;

// Loads TELMAR_U.DLL from the module's folder. False, and no module, when that fails. A handle from an
// earlier call is overwritten and never freed: by contract every initialisation loads the library once more.
bool LoadUiModule();

// Frees the user-interface module if it is loaded.
void ReleaseUiModule();

// A callback by its name; null when the user-interface module is not loaded or does not export it.
template <typename Function>
Function* UiCallback(const char* name) {
    return dialogState.uiModule != nullptr ? FindEntryPoint<Function>(dialogState.uiModule, name) : nullptr;
}

// How the dialogs differ when they bind themselves to the user-interface module.
struct UiBinding {
    uint32_t commonItemsId; // passed with the texts of common items
    const ControlTextRecord* texts;
    HWND* hintWindow; // receives the window that the user-interface module creates
};

// Makes the calls of a dialog's initialisation, from the texts to the first check of all settings and the
// hints. The user-interface module must be loaded.
void BindUiModule(HWND dialog, DialogContext* context, const UiBinding& binding);

// Checks the settings after this control has changed. True when the change is refused and must be undone; the
// hint window shows the reason. False when the user-interface module or its callback is missing.
bool IsChangeRefused(HWND dialog, HWND hintWindow, uint32_t control);

// Checks all settings at once, which refuses nothing, and shows the hints for the current dialog.
void CheckSettings(HWND dialog, DialogContext* context);

// Updates the hints for the dialog with this identifier.
void ShowHints(HWND dialog, DialogContext* context, uint16_t dialogId);

// The control that a stop-icon control belongs to; 0 for any other control.
uint16_t ControlOfIcon(uint32_t iconControl);

// Lets the user-interface module draw an icon control. False when it cannot.
bool DrawIconControl(HWND dialog, uint32_t control, const DRAWITEMSTRUCT& item);

#endif

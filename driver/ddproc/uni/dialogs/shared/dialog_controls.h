// Enabling, showing and focusing a dialog's controls, and its help.
#ifndef DIALOGS_SHARED_DIALOG_CONTROLS_H
#define DIALOGS_SHARED_DIALOG_CONTROLS_H

#include <cstdint>
#include <windows.h>

// Enables a control that is visible; a hidden one stays hidden and is disabled. Disabled controls stay
// visible.
void EnableDlgControl(HWND dialog, int control, bool isEnabled);

// Shows and enables the control, or hides and disables it.
void ShowDlgControl(HWND dialog, int control, bool isShown);

// Gives the control the focus, unless it has it.
void FocusDlgControl(HWND dialog, int control);

// Disables the controls of a list that ends with 0, in its order.
void DisableControls(HWND dialog, const uint32_t* controls);

// A control and its help topic, as WinHelp reads them; a table ends with two zeros.
struct HelpId {
    uint32_t control;
    uint32_t topic;
};
constexpr uint32_t kNoHelp = 0xFFFFFFFF; // topic of a control without help

// WinHelp on TELMAR__.HLP beside the module, or of that name alone when the module's own path is not known.
void ShowDialogHelp(HWND window, UINT command, ULONG_PTR data);

// Help for what WM_HELP (its help information) and WM_CONTEXTMENU (its window) ask about.
void AnswerHelp(LPARAM helpInfo, const HelpId* table);
void AnswerContextMenu(WPARAM window, const HelpId* table);

#endif

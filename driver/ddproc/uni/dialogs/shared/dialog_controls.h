// Enabling, showing and focusing a dialog's controls, and its help.
#ifndef DIALOGS_SHARED_DIALOG_CONTROLS_H
#define DIALOGS_SHARED_DIALOG_CONTROLS_H

#include <cstdint>
#include <windows.h>

// Enables or disables a control without changing whether it is visible. Enabling a hidden control disables
// it.
void EnableDlgControl(HWND dialog, int control, bool isEnabled);

// Shows and enables the control, or hides and disables it.
void ShowDlgControl(HWND dialog, int control, bool isShown);

// Gives the control the focus, unless it has it.
void FocusDlgControl(HWND dialog, int control);

// Disables the controls of a list, in its order. The list ends with 0.
void DisableControls(HWND dialog, const uint32_t* controls);

// A control and its help topic, as WinHelp reads them; a table ends with two zeros.
struct HelpId {
    uint32_t control;
    uint32_t topic;
};

// Calls WinHelp with TELMAR__.HLP in the module's folder, or with the bare name when that folder is unknown.
void ShowDialogHelp(HWND window, UINT command, ULONG_PTR data);

// Answer WM_HELP, by its help information, and WM_CONTEXTMENU, by its window.
void AnswerHelp(LPARAM helpInfo, const HelpId* table);
void AnswerContextMenu(WPARAM window, const HelpId* table);

#endif

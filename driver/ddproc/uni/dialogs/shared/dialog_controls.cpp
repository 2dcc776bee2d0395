// Enables, shows and focuses controls, and opens the help file.
#include "dialogs/shared/dialog_controls.h"

#include "base/module_handles.h"

void EnableDlgControl(HWND dialog, int control, bool isEnabled) {
    HWND window = GetDlgItem(dialog, control);
    if (!isEnabled) {
        EnableWindow(window, FALSE);
        return;
    }
    const bool wasVisible = ShowWindow(window, SW_SHOW) != FALSE; // the visibility before the call
    if (!wasVisible)
        ShowWindow(window, SW_HIDE);
    EnableWindow(window, wasVisible ? TRUE : FALSE);
}

void ShowDlgControl(HWND dialog, int control, bool isShown) {
    HWND window = GetDlgItem(dialog, control);
    ShowWindow(window, isShown ? SW_SHOW : SW_HIDE);
    EnableWindow(window, isShown ? TRUE : FALSE);
}

void FocusDlgControl(HWND dialog, int control) {
    HWND window = GetDlgItem(dialog, control);
    if (GetFocus() != window)
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
}

void DisableControls(HWND dialog, const uint32_t* controls) {
    for (; *controls != 0; ++controls)
        EnableDlgControl(dialog, static_cast<int>(*controls), false);
}

void ShowDialogHelp(HWND window, UINT command, ULONG_PTR data) {
    constexpr const wchar_t* kHelpFile = L"TELMAR__.HLP";
    wchar_t path[kPathCapacity];
    const bool isKnown = SiblingPath(ModuleInstance(), kHelpFile, path);
    WinHelpW(window, isKnown ? path : kHelpFile, command, data);
}

void AnswerHelp(LPARAM helpInfo, const HelpId* table) {
    const auto& info = *reinterpret_cast<const HELPINFO*>(helpInfo);
    ShowDialogHelp(static_cast<HWND>(info.hItemHandle), HELP_WM_HELP, reinterpret_cast<ULONG_PTR>(table));
}

void AnswerContextMenu(WPARAM window, const HelpId* table) {
    ShowDialogHelp(reinterpret_cast<HWND>(window), HELP_CONTEXTMENU, reinterpret_cast<ULONG_PTR>(table));
}

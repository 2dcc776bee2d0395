// The callbacks of the stand-in and its entry point. telmar_u.def is the export table.
#include "uimodule/exports.h"

#include "base/text.h"
#include "uimodule/constraints.h"
#include "uimodule/dialog_texts.h"
#include "uimodule/dialog_window.h"
#include "uimodule/hint_window.h"
#include "uimodule/library_texts.h"
#include "uimodule/list_fit.h"
#include "uimodule/placement.h"
#include "uimodule/profile_windows.h"
#include "uimodule/stop_icons.h"

#include <commctrl.h>

HINSTANCE library;

namespace {

// The dialog that is open.
struct OpenDialog {
    HWND window;
    HWND hintWindow;
    StopIcons icons;
    uint32_t refusedControl;
    HintText refusal; // why; empty: no choice is refused
};
OpenDialog open;

// The state of this dialog. It is reset when another dialog was open before.
OpenDialog& StateOf(HWND dialog) {
    if (open.window != dialog)
        open = {dialog, nullptr, {}, 0, {}};
    return open;
}

DialogChoices ChoicesOf(HWND dialog) {
    return {dialog, reinterpret_cast<const DialogContext*>(GetWindowLongPtrW(dialog, DWLP_USER))};
}

bool IsMarked(const OpenDialog& dialog, uint32_t control) {
    HintText reasons = {};
    return (dialog.refusal[0] != 0 && dialog.refusedControl == control)
           || CheckChoice(ChoicesOf(dialog.window), control, reasons) != 0;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH)
        library = instance;
    return TRUE;
}

void WINAPI ReplaceDlgDispStringCmnItem(HWND dialog, const ControlTextRecord* texts, uint32_t /*dialogId*/,
                                        DialogContext* /*context*/) {
    ReplaceTexts(dialog, texts, false);
    FitListEntries(dialog);
}

void WINAPI ReplaceDlgDispString(HWND dialog, const ControlTextRecord* texts) {
    ReplaceTexts(dialog, texts, true);
    PlaceCheckBoxIcon(dialog);
}

HWND WINAPI CreateToolWnd(HWND dialog) {
    if (dialog == nullptr)
        return nullptr;
    InitCommonControls();
    PlaceOverOwner(dialog);
    AttachToDialog(dialog);
    MeasureTrayRows(dialog);
    open = {dialog, CreateHintWindow(dialog), {}, 0, {}};
    return open.hintWindow;
}

void WINAPI StoreStopIconRect(HWND dialog, const StopIconTable* table) {
    if (dialog == nullptr)
        return;
    StateOf(dialog).icons = FindStopIcons(dialog, table);
}

int32_t WINAPI DoConstraints(const void* /*reserved1*/, HWND dialog, HWND /*hintWindow*/, uint32_t control,
                             int32_t /*all*/, const void* /*reserved2*/) {
    if (dialog == nullptr)
        return 0;
    OpenDialog& state = StateOf(dialog);
    if (control == 0 && state.refusal[0] != 0 && IsBecomingActive())
        return 0; // nothing has changed while the user was in another window
    state.refusedControl = control;
    return CheckChoice(ChoicesOf(dialog), control, state.refusal);
}

void WINAPI DispHintControl(HWND dialog, DialogContext* context, uint16_t /*dialogId*/) {
    if (dialog == nullptr)
        return;
    const OpenDialog& state = StateOf(dialog);
    HintText hint = {};
    if (state.refusal[0] != 0)
        CopyText(hint, state.refusal);
    else
        DescribeConflicts({dialog, context}, hint);
    ShowHint(state.hintWindow, dialog, hint);
    for (size_t i = 0; i < state.icons.count; ++i)
        InvalidateRect(GetDlgItem(dialog, state.icons.controls[i]), nullptr, TRUE);
}

int32_t WINAPI IsInstalledDLManager() {
    return IsDownloadManagerInstalled() ? 1 : 0;
}

void WINAPI ReqDrawStopInfoIcon(HWND dialog, uint32_t control, const DRAWITEMSTRUCT* item,
                                const StopIconTable* table) {
    if (dialog == nullptr || item == nullptr)
        return;
    const uint32_t owner = ControlOfStopIcon(table, control);
    DrawStopIcon(*item, owner != 0 && IsMarked(StateOf(dialog), owner));
}

INT_PTR WINAPI MyDialogBox(HINSTANCE resources, HWND owner, uint32_t templateId, DLGPROC procedure,
                           LPARAM parameter) {
    return DialogBoxParamW(resources, MAKEINTRESOURCEW(templateId), owner, procedure, parameter);
}

HINSTANCE WINAPI GetImgResInst() {
    return library;
}

// The callbacks of the stand-in and its entry point. telmar_u.def is the export table.
#include "uimodule/exports.h"

#include "base/text.h"
#include "dialogs/shared/dialog_context.h"
#include "uimodule/constraints.h"
#include "uimodule/dialog_texts.h"
#include "uimodule/hint_window.h"
#include "uimodule/stop_icons.h"

namespace {

HINSTANCE instance;

// The dialog that is open.
struct OpenDialog {
    HWND window;
    HWND hintWindow;
    StopIcons icons;
    uint32_t refusedControl;
    const wchar_t* refusedHint; // null: no choice is refused
};
OpenDialog open;

// The state of this dialog. It is reset when another dialog was open before.
OpenDialog& StateOf(HWND dialog) {
    if (open.window != dialog)
        open = {dialog, nullptr, {}, 0, nullptr};
    return open;
}

const OemDevmode* SettingsOf(HWND dialog) {
    return GetDialogSettings(reinterpret_cast<const DialogContext*>(GetWindowLongPtrW(dialog, DWLP_USER)));
}

// Checks a control's choice and returns the answer of DoConstraints. `hint` is null unless it is refused.
int32_t Check(HWND dialog, uint32_t control, const wchar_t*& hint) {
    const OemDevmode* settings = SettingsOf(dialog);
    const Constraint* broken = settings != nullptr ? FindBroken(*settings, control) : nullptr;
    hint = broken != nullptr ? broken->hint : nullptr;
    return broken != nullptr ? broken->answer : 0;
}

bool IsMarked(const OpenDialog& dialog, uint32_t control) {
    const OemDevmode* settings = SettingsOf(dialog.window);
    return (dialog.refusedHint != nullptr && dialog.refusedControl == control)
           || (settings != nullptr && FindBroken(*settings, control) != nullptr);
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void* /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH)
        instance = library;
    return TRUE;
}

void WINAPI ReplaceDlgDispStringCmnItem(HWND dialog, const ControlTextRecord* texts, uint32_t /*dialogId*/,
                                        DialogContext* /*context*/) {
    ReplaceTexts(dialog, texts, false);
    FitListEntries(dialog);
}

void WINAPI ReplaceDlgDispString(HWND dialog, const ControlTextRecord* texts) {
    ReplaceTexts(dialog, texts, true);
}

HWND WINAPI CreateToolWnd(HWND dialog) {
    if (dialog == nullptr)
        return nullptr;
    open = {dialog, CreateHintWindow(dialog), {}, 0, nullptr};
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
    state.refusedControl = control;
    return Check(dialog, control, state.refusedHint);
}

void WINAPI DispHintControl(HWND dialog, DialogContext* context, uint16_t /*dialogId*/) {
    if (dialog == nullptr)
        return;
    const OpenDialog& state = StateOf(dialog);
    HintText hint = {};
    const OemDevmode* settings = GetDialogSettings(context);
    if (state.refusedHint != nullptr)
        CopyText(hint, state.refusedHint);
    else if (settings != nullptr)
        DescribeConflicts(hint, *settings, dialog);
    ShowHint(state.hintWindow, dialog, hint);
    for (size_t i = 0; i < state.icons.count; ++i)
        InvalidateRect(GetDlgItem(dialog, state.icons.controls[i]), nullptr, TRUE);
}

int32_t WINAPI IsInstalledDLManager() {
    return 0;
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
    return instance;
}

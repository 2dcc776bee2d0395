// A dialog that is run modally: see the header. The script runs from a timer, one action at a time: timers
// come last, so that each action finds the dialog as the one before it, its paint messages included, has left
// it.
#include "workbench/lib/dialog_run.h"

#include "base/scope_guard.h"
#include "workbench/lib/output.h"

#include <exception>
#include <utility>

namespace {

constexpr UINT kActionInterval = 30; // milliseconds
constexpr const wchar_t* kDialogClass = L"#32770";

struct DialogRun {
    const ModelDialog& dialog;
    const DialogUse& use;
    HWND window = nullptr;
    bool isCancelled = false; // by the script's end
    INT_PTR pressed = 0;      // OK or Cancel
    bool isPageTold = false;
    WNDPROC ownProcedure = nullptr; // of a dialog that the module has opened
    DialogView atEnd = {};
    std::exception_ptr failure = nullptr;
};
DialogRun* running; // the one that runs

// What the last action has left.
void NoteHint(DialogRun& run) {
    const std::string hint = HintOf(run.window);
    Document& done = run.use.script.done;
    if (!done.Elements().empty())
        done.Elements().back()["hint"] = hint.empty() ? Document() : Document(hint);
}

// What OK or Cancel ends.
void NoteEnd(DialogRun& run) {
    NoteHint(run);
    run.atEnd = ViewDialog(run.window);
    if (!run.use.lastPicture.empty())
        run.use.script.pictures.Add(TakePicture(run.window, run.use.lastPicture));
}

// Carries a failure past the system, which calls what is run here.
template <typename Step>
bool Try(DialogRun& run, const Step& step) {
    try {
        step(run);
        return true;
    } catch (...) {
        run.failure = std::current_exception();
        return false;
    }
}

void Act(DialogRun& run) {
    NoteHint(run);
    if (run.use.script.next < run.use.script.actions.size()) {
        RunNextAction(run.use.script, run.window);
    } else if (!run.use.waitsForPerson) {
        if (std::exchange(run.isCancelled, true))
            throw Failure(kExitFailed, "the dialog doesn't end at Cancel; the module is at fault");
        PressButton(run.window, IDCANCEL);
    }
}

void NoteCommand(DialogRun& run, UINT message, WPARAM wParam) {
    if (message != WM_COMMAND || (wParam != IDOK && wParam != IDCANCEL))
        return;
    run.pressed = static_cast<INT_PTR>(wParam);
    Try(run, NoteEnd);
}

// --- A dialog that the module opens -----------------------------------------------------------------------

LRESULT CALLBACK WatchDialog(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    NoteCommand(*running, message, wParam);
    return CallWindowProcW(running->ownProcedure, window, message, wParam, lParam);
}

BOOL CALLBACK FindOpened(HWND window, LPARAM /*parameter*/) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !IsOfClass(window, kDialogClass))
        return TRUE;
    running->window = window;
    running->ownProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchDialog)));
    return FALSE;
}

// The property sheet, whose page has the button.
LRESULT CALLBACK SheetProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == TELMAR_WM_TRAYS_CHANGED)
        running->isPageTold = true;
    return DefWindowProcW(window, message, wParam, lParam);
}

// Presses the button on a page of its own, which nobody sees. 0 when no dialog has come.
INT_PTR RunByButton(DialogRun& run, DialogContext& context) {
    const HWND sheet =
        CreateWindowW(L"Static", L"", WS_POPUP, 0, 0, 0, 0, run.use.owner, nullptr, nullptr, nullptr);
    const HWND page =
        CreateWindowW(kDialogClass, L"", WS_CHILD, 0, 0, 0, 0, sheet, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(sheet, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(SheetProcedure));
    SetWindowLongPtrW(page, DWLP_USER, reinterpret_cast<LONG_PTR>(&context));
    int32_t handled = 0;
    if (run.use.owner != nullptr)
        EnableWindow(run.use.owner, FALSE); // the dialog itself sees to `sheet` only
    run.dialog.answer(TELMAR_TRAY_BUTTON_PAGE, page, WM_COMMAND, TELMAR_TRAY_BUTTON, 0, &handled);
    const KeepLastError keep; // why no dialog has come
    if (run.use.owner != nullptr)
        EnableWindow(run.use.owner, TRUE);
    DestroyWindow(sheet);
    return run.pressed;
}

// --- A dialog that the workbench opens, as the user-interface module does ---------------------------------

// Hands every message to the module.
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DialogRun& run = *running;
    NoteCommand(run, message, wParam);
    int32_t handled = 0;
    const int32_t result = run.dialog.answer(run.dialog.id, window, message, wParam, lParam, &handled);
    if (message == WM_INITDIALOG) {
        run.window = window;
        if (handled == 0)
            EndDialog(window, -1);
    }
    if (handled == 0)
        return FALSE;
    SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
    return result;
}

INT_PTR RunByTemplate(DialogRun& run, DialogContext& context) {
    return DialogBoxParamW(run.dialog.templates, MAKEINTRESOURCEW(run.dialog.id), run.use.owner,
                           DialogProcedure, reinterpret_cast<LPARAM>(&context));
}

void CALLBACK OnTimer(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    if (running->window == nullptr)
        EnumThreadWindows(GetCurrentThreadId(), FindOpened, 0);
    if (running->failure != nullptr || !IsWindowVisible(running->window))
        return;
    if (!Try(*running, Act))
        EndDialog(running->window, IDCANCEL);
}

[[noreturn]] void FailToOpen(const DialogRun& run, DWORD error) {
    const std::string name = "dialog " + std::to_string(run.dialog.id);
    if (run.window != nullptr)
        throw Failure(kExitFailed, name + ": TELMAR_D.DLL doesn't run this dialog");
    throw Failure(kExitFailed, name + ": can't be opened (" + ErrorText(error)
                                   + "); it needs a display, its template in TELMAR_S.DLL and, for trays, "
                                     "TELMAR_U.DLL beside the module");
}

} // namespace

uint32_t TrayDialogOf(const DeviceTable* table) {
    constexpr uint32_t kDialogs[] = {0, 155, 165, 166}; // by type
    const uint32_t type = SwitchValue(table, kSwitchDlgMediaType);
    return type < std::size(kDialogs) ? kDialogs[type] : 0;
}

DialogAreas::DialogAreas(OemDevmode& settings, TrayPaperSetting* trays, const PrinterProfiles& profiles)
    : lists(ListsOf(profiles)) {
    context.settings = &settings;
    context.saveArea = &saveArea;
    context.scratch = &scratch;
    context.profiles = &lists;
    context.changesAllowed = 1;
    context.trays = trays;
}

DialogEnd RunDialog(const ModelDialog& dialog, DialogContext& context, const DialogUse& use) {
    DialogRun run = {dialog, use};
    running = &run;
    const UINT_PTR timer = SetTimer(nullptr, 0, kActionInterval, OnTimer);
    const INT_PTR code = dialog.hasButton ? RunByButton(run, context) : RunByTemplate(run, context);
    const DWORD error = GetLastError();
    KillTimer(nullptr, timer);
    running = nullptr;
    if (run.failure != nullptr)
        std::rethrow_exception(run.failure);
    if (code != IDOK && code != IDCANCEL)
        FailToOpen(run, error);
    const DialogScript& script = use.script;
    if (script.next < script.actions.size())
        throw Failure(kExitUsage, script.actions[script.next].place + ": the dialog has ended before this");
    return {code, run.atEnd, run.isPageTold};
}

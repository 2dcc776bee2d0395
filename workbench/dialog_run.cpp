// A dialog that is run modally: see the header. The script runs from a timer, one action at a time: timers
// come last, so that each action finds the dialog as the one before it, its paint messages included, has left
// it.
#include "dialog_run.h"

#include "output.h"

#include <exception>

namespace {

constexpr UINT kActionInterval = 30; // milliseconds

struct DialogRun {
    const ModelDialog& dialog;
    DialogScript& script;
    bool waitsForPerson;
    HWND window = nullptr;
    bool isCancelled = false; // by the script's end
    DialogView atEnd = {};
    std::exception_ptr failure = nullptr;
};
DialogRun* running; // the one that runs

// What the last action has left.
void NoteHint(DialogRun& run) {
    const std::string hint = HintOf(run.window);
    if (!run.script.done.empty())
        run.script.done.back()["hint"] = hint.empty() ? Document() : Document(hint);
}

void Act(DialogRun& run) {
    NoteHint(run);
    if (run.script.next < run.script.actions.size()) {
        RunNextAction(run.script, run.window);
    } else if (!run.waitsForPerson) {
        if (std::exchange(run.isCancelled, true))
            throw Failure(kExitFailed, "the dialog doesn't end at Cancel; the module is at fault");
        PressButton(run.window, IDCANCEL);
    }
}

void CALLBACK OnTimer(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    if (running->failure != nullptr || !IsWindowVisible(running->window))
        return;
    try {
        Act(*running);
    } catch (...) {
        running->failure = std::current_exception();
        EndDialog(running->window, IDCANCEL);
    }
}

// Hands every message to the module.
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DialogRun& run = *running;
    if (message == WM_COMMAND && (wParam == IDOK || wParam == IDCANCEL)) {
        NoteHint(run);
        run.atEnd = ViewDialog(window);
    }
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

[[noreturn]] void FailToOpen(const DialogRun& run, DWORD error) {
    const std::string name = "dialog " + std::to_string(run.dialog.id);
    if (run.window != nullptr)
        throw Failure(kExitFailed,
                      name + ": TELMAR_D.DLL doesn't run this dialog; the README says which it does");
    throw Failure(kExitFailed, name + ": can't be opened (" + ErrorText(error)
                                   + "); it needs a display and its template in TELMAR_S.DLL");
}

} // namespace

DialogEnd RunDialog(const ModelDialog& dialog, DialogContext& context, DialogScript& script,
                    bool waitsForPerson) {
    DialogRun run = {dialog, script, waitsForPerson};
    running = &run;
    const UINT_PTR timer = SetTimer(nullptr, 0, kActionInterval, OnTimer);
    const INT_PTR code = DialogBoxParamW(dialog.templates, MAKEINTRESOURCEW(dialog.id), nullptr,
                                         DialogProcedure, reinterpret_cast<LPARAM>(&context));
    const DWORD error = GetLastError();
    KillTimer(nullptr, timer);
    running = nullptr;
    if (run.failure != nullptr)
        std::rethrow_exception(run.failure);
    if (code != IDOK && code != IDCANCEL)
        FailToOpen(run, error);
    if (script.next < script.actions.size())
        throw Failure(kExitUsage, script.actions[script.next].place + ": the dialog has ended before this");
    return {code, run.atEnd};
}

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
    const DialogUse& use;
    HWND window = nullptr;
    bool isCancelled = false; // by the script's end
    DialogView atEnd = {};
    std::exception_ptr failure = nullptr;
};
DialogRun* running; // the one that runs

// What the last action has left.
void NoteHint(DialogRun& run) {
    const std::string hint = HintOf(run.window);
    Document& done = run.use.script.done;
    if (!done.empty())
        done.back()["hint"] = hint.empty() ? Document() : Document(hint);
}

// What OK or Cancel ends.
void NoteEnd(DialogRun& run) {
    NoteHint(run);
    run.atEnd = ViewDialog(run.window);
    if (!run.use.lastPicture.empty())
        run.use.script.pictures.push_back(TakePicture(run.window, run.use.lastPicture));
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

void CALLBACK OnTimer(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    if (running->failure != nullptr || !IsWindowVisible(running->window))
        return;
    if (!Try(*running, Act))
        EndDialog(running->window, IDCANCEL);
}

// Hands every message to the module.
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DialogRun& run = *running;
    if (message == WM_COMMAND && (wParam == IDOK || wParam == IDCANCEL))
        Try(run, NoteEnd);
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

DialogEnd RunDialog(const ModelDialog& dialog, DialogContext& context, const DialogUse& use) {
    DialogRun run = {dialog, use};
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
    const DialogScript& script = use.script;
    if (script.next < script.actions.size())
        throw Failure(kExitUsage, script.actions[script.next].place + ": the dialog has ended before this");
    return {code, run.atEnd};
}

// Runs a dialog and its script. A timer runs one action at a time. Timer messages come after all others, so
// that each action finds the dialog completely updated and painted after the previous one.
#include "workbench/lib/dialog_run.h"

#include "workbench/lib/output.h"
#include "workbench/lib/text.h"

#include <atomic>
#include <cstdlib>
#include <exception>
#include <optional>
#include <thread>
#include <utility>

namespace {

constexpr UINT kActionInterval = 30; // milliseconds
constexpr const wchar_t* kDialogClass = L"#32770";

class TimeLimit;

struct DialogRun {
    const ModelDialog& dialog;
    const DialogUse& use;
    const HINSTANCE templates;
    const decltype(&DDProc_DlgProc) dialogProcedure; // the module's
    HWND window = nullptr;
    bool isCancelled = false; // at the end of the script
    INT_PTR pressed = 0;      // OK or Cancel
    bool isPageNotified = false;
    WNDPROC originalProcedure = nullptr; // of a dialog that the module has opened
    DialogView atEnd = {};
    std::exception_ptr failure = nullptr;
    TimeLimit* limit = nullptr; // null: none
};
DialogRun* running; // null: none

// Records the hint that the last action has left.
void RecordHint(DialogRun& run) {
    const std::string hint = HintOf(run.window);
    Document& done = run.use.script.done;
    if (!done.Elements().empty())
        done.Elements().back()["hint"] = hint.empty() ? Document() : Document(hint);
}

// Records the dialog before OK or Cancel closes it.
void RecordEnd(DialogRun& run) {
    RecordHint(run);
    run.atEnd = ViewDialog(run.window);
    if (!run.use.lastPicture.empty())
        run.use.script.pictures.Add(TakePicture(run.window, run.use.lastPicture));
}

// Exceptions must not pass through the system's callbacks: they are kept and thrown again later.
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

// --- The time limit --------------------------------------------------------------------------------------

// Ends the process when a script's action takes too long. The dialog's thread may then wait in a call that
// nothing can end.
class TimeLimit {
public:
    explicit TimeLimit(const DialogScript& watched)
        : actions(watched.actions), seconds(watched.timeLimit),
          next(CreateEventW(nullptr, FALSE, FALSE, nullptr)), thread([this] { Watch(); }) {}
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;
    ~TimeLimit() {
        isOver = true;
        SetEvent(next);
        thread.join();
        CloseHandle(next);
    }

    // The script's next action begins.
    void Restart(const DialogScript& script) {
        seconds = script.timeLimit;
        begun = script.next + 1;
        SetEvent(next);
    }

private:
    void Watch() const {
        while (!isOver)
            if (WaitForSingleObject(next, static_cast<DWORD>(seconds) * 1000) == WAIT_TIMEOUT)
                EndProcess();
    }

    [[noreturn]] void EndProcess() const {
        const std::string place = begun == 0                ? "before the first action"
                                  : begun <= actions.size() ? actions[begun - 1].place
                                                            : "after the last action";
        Print(STD_ERROR_HANDLE, "workbench: " + place + ": the dialog has not responded for "
                                    + std::to_string(seconds)
                                    + " s; it may wait for a window of the system or of another program\n");
        TerminateProcess(GetCurrentProcess(), kExitFailed);
        std::abort();
    }

    const std::vector<ScriptAction>& actions;
    std::atomic<int> seconds;
    std::atomic<size_t> begun = 0; // actions
    const HANDLE next;
    std::atomic<bool> isOver = false;
    std::thread thread; // the last member: it uses the others
};

// --- The script ------------------------------------------------------------------------------------------

// Cancels the dialog without a click, which would move the focus in the last picture.
void Cancel(const DialogRun& run) {
    SendMessageW(run.window, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(run.window, IDCANCEL)));
}

void Act(DialogRun& run) {
    RecordHint(run);
    if (run.limit != nullptr)
        run.limit->Restart(run.use.script);
    if (run.use.script.next < run.use.script.actions.size()) {
        RunNextAction(run.use.script, run.window);
    } else if (!run.use.waitsForPerson) {
        if (std::exchange(run.isCancelled, true))
            throw Failure(kExitFailed, "the dialog does not close on Cancel: this is an error in the module");
        Cancel(run);
    }
}

void RecordCommand(DialogRun& run, UINT message, WPARAM wParam) {
    if (message != WM_COMMAND || (wParam != IDOK && wParam != IDCANCEL))
        return;
    run.pressed = static_cast<INT_PTR>(wParam);
    Try(run, RecordEnd);
}

// --- A dialog that the module opens -----------------------------------------------------------------------

LRESULT CALLBACK WatchDialog(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    RecordCommand(*running, message, wParam);
    return CallWindowProcW(running->originalProcedure, window, message, wParam, lParam);
}

BOOL CALLBACK FindOpened(HWND window, LPARAM /*parameter*/) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !IsOfClass(window, kDialogClass))
        return TRUE;
    running->window = window;
    running->originalProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchDialog)));
    return FALSE;
}

// Replaces the property sheet, the parent of the page with the button.
LRESULT CALLBACK SheetProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == TELMAR_WM_TRAYS_CHANGED)
        running->isPageNotified = true;
    return DefWindowProcW(window, message, wParam, lParam);
}

// Presses the button on an invisible page. 0 with the last error set when no dialog has opened.
INT_PTR RunByButton(DialogRun& run, DialogContext& context) {
    const HWND sheet =
        CreateWindowW(L"Static", L"", WS_POPUP, 0, 0, 0, 0, run.use.owner, nullptr, nullptr, nullptr);
    const HWND page =
        CreateWindowW(kDialogClass, L"", WS_CHILD, 0, 0, 0, 0, sheet, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(sheet, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(SheetProcedure));
    SetWindowLongPtrW(page, DWLP_USER, reinterpret_cast<LONG_PTR>(&context));
    int32_t handled = 0;
    if (run.use.owner != nullptr)
        EnableWindow(run.use.owner, FALSE); // the dialog itself disables only `sheet`
    run.dialogProcedure(TELMAR_TRAY_BUTTON_PAGE, page, WM_COMMAND, TELMAR_TRAY_BUTTON, 0, &handled);
    const DWORD error = GetLastError();
    if (run.use.owner != nullptr)
        EnableWindow(run.use.owner, TRUE);
    DestroyWindow(sheet);
    SetLastError(error);
    return run.pressed;
}

// --- A dialog that the workbench opens, as the user-interface module does ---------------------------------

// Passes every message to the module.
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DialogRun& run = *running;
    RecordCommand(run, message, wParam);
    int32_t handled = 0;
    const int32_t result = run.dialogProcedure(run.dialog.id, window, message, wParam, lParam, &handled);
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
    return DialogBoxParamW(run.templates, MAKEINTRESOURCEW(run.dialog.id), run.use.owner, DialogProcedure,
                           reinterpret_cast<LPARAM>(&context));
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
        throw Failure(kExitFailed, name + ": TELMAR_D.DLL does not implement this dialog");
    throw Failure(kExitFailed, name + ": cannot be opened (" + ErrorText(error)
                                   + "); it needs a display, its template in TELMAR_S.DLL and, for trays, "
                                     "TELMAR_U.DLL next to the module");
}

} // namespace

DialogAreas::DialogAreas(OemDevmode& settings, TrayPaperSetting* trays, const PrinterProfiles& profiles)
    : lists(ListsOf(profiles)) {
    context.settings = &settings;
    context.saveArea = &saveArea;
    context.scratch = &scratch;
    context.profiles = &lists;
    context.changesAllowed = 1;
    context.trays = trays;
}

DialogEnd RunDialog(const FamilyFiles& family, HINSTANCE templates, const ModelDialog& dialog,
                    DialogContext& context, const DialogUse& use) {
    DialogRun run = {dialog, use, templates, EXPORT(family, DDProc_DlgProc)};
    running = &run;
    std::optional<TimeLimit> limit;
    if (!use.waitsForPerson)
        run.limit = &limit.emplace(use.script);
    const UINT_PTR timer = SetTimer(nullptr, 0, kActionInterval, OnTimer);
    const INT_PTR code = dialog.isForTrays ? RunByButton(run, context) : RunByTemplate(run, context);
    const DWORD error = GetLastError();
    KillTimer(nullptr, timer);
    limit.reset();
    running = nullptr;
    if (run.failure != nullptr)
        std::rethrow_exception(run.failure);
    if (code != IDOK && code != IDCANCEL)
        FailToOpen(run, error);
    const DialogScript& script = use.script;
    if (script.next < script.actions.size())
        throw Failure(kExitUsage,
                      script.actions[script.next].place + ": the dialog was closed before this action");
    return {code, run.atEnd, run.isPageNotified};
}

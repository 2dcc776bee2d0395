// The built TELMAR_U.DLL, bound to a dialog as the model's dialogs bind it.
#ifndef UIMODULE_SUPPORT_H
#define UIMODULE_SUPPORT_H

#include "uimodule/exports.h"

#include "base/dialog_ids.h"
#include "base/records.h"
#include "dialogs/shared/control_parts.h"
#include "support/canvas.h"
#include "uimodule/resource_ids.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <string>

#define FUNCTION(name) Function<decltype(&(name))>(#name)

inline HMODULE freedWithDialog;
inline int messagesPassed; // that the library takes: they must not reach the dialog

inline INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG && lParam == 0)
        EndDialog(dialog, 17);
    if (message == WM_MEASUREITEM) // as the module
        return reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 16, TRUE;
    messagesPassed += message == WM_HELP || message == WM_CONTEXTMENU
                      || (message == WM_COMMAND && (wParam == IDHELP || wParam == 1528 || wParam == 1393));
    if (message == WM_APP)
        DestroyWindow(dialog);
    if (message == WM_DESTROY && freedWithDialog != nullptr)
        FreeLibrary(freedWithDialog);
    return FALSE;
}

inline void Pump(DWORD milliseconds) {
    for (const DWORD start = GetTickCount(); GetTickCount() - start < milliseconds; Sleep(5))
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
            if (!IsDialogMessageW(GetDesktopWindow(), &message)) // calls the filters of a dialog's loop
                DispatchMessageW(&message);
}

inline std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

// The next window of this process behind another one (null: the first). On a desktop other programs have windows of the
// same classes.
inline HWND NextOwnWindow(HWND before, const wchar_t* className) {
    DWORD process = 0;
    do {
        before = FindWindowExW(nullptr, before, className, nullptr);
        GetWindowThreadProcessId(before, &process);
    } while (before != nullptr && process != GetCurrentProcessId());
    return before;
}

// The dialog, bound to the library.
struct UiModule : testing::Test {
    UiModule() : library(LoadLibraryW(L"TELMAR_U.DLL")) {
        context.settings = settings.get();
        StopIconRecord* icon = icons->records;
        for (const ControlParts& parts : kControlParts)
            if (parts.icon != 0) {
                icon->iconControl = parts.icon;
                (icon++)->control = parts.control;
            }
        Open(GetModuleHandleW(nullptr), 155);
    }
    void Open(HINSTANCE templates, int id, HWND owner = nullptr) {
        DestroyWindow(dialog);
        dialog = CreateDialogParamW(templates, MAKEINTRESOURCEW(id), owner, DialogProcedure,
                                    reinterpret_cast<LPARAM>(&context));
        SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&context));
        hintWindow = FUNCTION(CreateToolWnd)(dialog);
        FUNCTION(StoreStopIconRect)(dialog, icons.get());
    }
    // A model's dialog, with the model's defaults.
    void OpenModel(int id, HWND owner = nullptr) {
        *settings = {};
        settings->image = {1, 2, 0, {}};
        settings->text = {0, 0, 2, {}};
        settings->graphics = {0, 1, 1, {}};
        settings->imageRgbSource = settings->textRgbSource = settings->graphicsRgbSource = 1;
        settings->rgbSource = 1;
        Open(modelTemplates, id, owner);
    }
    ~UiModule() override {
        DestroyWindow(dialog);
        FreeLibrary(modelTemplates);
        if (std::exchange(freedWithDialog, nullptr) == nullptr)
            FreeLibrary(library);
    }

    template <typename Pointer>
    Pointer Function(const char* name) const {
        return reinterpret_cast<Pointer>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
    }

    HWND Control(int id) const { return GetDlgItem(dialog, id); }

    // The hint that is shown after a choice, which is already in the settings; "-" for none.
    std::wstring HintAfter(uint32_t control, int32_t expectedAnswer = 0) {
        EXPECT_EQ(FUNCTION(DoConstraints)(nullptr, dialog, hintWindow, control, -1, nullptr), expectedAnswer);
        FUNCTION(DispHintControl)(dialog, &context, 128);
        return IsWindowVisible(hintWindow) ? TextOf(hintWindow) : L"-";
    }

    // The controls that have a stop sign next to them.
    std::set<uint32_t> StoppedControls() const {
        std::set<uint32_t> controls;
        for (const StopIconRecord& icon : icons->records)
            if (icon.iconControl != 0 && IsStopDrawn(icon.iconControl))
                controls.insert(icon.control);
        return controls;
    }
    std::string Stops() const {
        std::string controls;
        for (const uint32_t control : StoppedControls())
            controls += " " + std::to_string(control);
        return controls;
    }

    // The text of the library's window; "-" when it is not open.
    std::wstring WindowText() const {
        const HWND window = NextOwnWindow(nullptr, L"#32770");
        const HWND found = window != nullptr && GetDlgItem(window, IDC_TEXT) != nullptr ? window : nullptr;
        return found != nullptr && IsWindowVisible(found) ? TextOf(GetDlgItem(found, IDC_TEXT)) : L"-";
    }

    // Draws an icon into a square of a larger bitmap: outside nothing changes, inside it is red or not.
    bool IsStopDrawn(uint32_t icon) const {
        constexpr int margin = 3, size = 24, side = size + 2 * margin;
        const Canvas canvas(side, side, 0);
        DRAWITEMSTRUCT item = {};
        item.hDC = canvas.dc;
        item.rcItem = {margin, margin, margin + size, margin + size};
        FUNCTION(ReqDrawStopInfoIcon)(dialog, icon, &item, icons.get());
        std::map<uint32_t, int> count;
        for (const uint32_t pixel : canvas.Content().pixels)
            ++count[pixel];
        EXPECT_EQ(count[0], side * side - size * size);
        return count[0xCC0000] > 0;
    }

    HMODULE library;
    HMODULE modelTemplates = LoadLibraryW(L"TELMAR_S.DLL");
    HWND dialog = nullptr;
    HWND hintWindow = nullptr;
    std::unique_ptr<OemDevmode> settings = std::make_unique<OemDevmode>();
    std::unique_ptr<StopIconTable> icons = std::make_unique<StopIconTable>();
    DialogContext context = {};
};

#endif

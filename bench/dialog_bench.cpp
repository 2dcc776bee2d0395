// Opens the full colour dialog and, in turn, a bare dialog of the same template with the same list entries:
// both are created, filled, shown, painted once and destroyed.
#include "base/dialog_ids.h"
#include "base/entry_point.h"
#include "base/records.h"
#include "bench/stopwatch.h"
#include "dialogs/shared/dialog_context.h"

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>

namespace {

constexpr int kRounds = 50;
constexpr uint32_t kDialogId = IDD_COLOR_FULL;

decltype(DDProc_DlgProc)* dlgProc;

// The entries of each list, as the module has filled them.
std::map<int, std::vector<std::wstring>> entries;

// Passes every message to the module and uses its answer, as the user-interface module does.
INT_PTR CALLBACK RunOurs(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    int32_t handled = 0;
    const int32_t result = dlgProc(kDialogId, window, message, wParam, lParam, &handled);
    return handled != 0 ? result : FALSE;
}

INT_PTR CALLBACK RunBare(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_MEASUREITEM) {
        reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 16;
        return TRUE;
    }
    if (message != WM_INITDIALOG)
        return message == WM_DRAWITEM;
    for (const auto& [list, texts] : entries) {
        for (size_t i = 0; i < texts.size(); ++i) {
            SendDlgItemMessageW(window, list, CB_INSERTSTRING, i, reinterpret_cast<LPARAM>(texts[i].c_str()));
            SendDlgItemMessageW(window, list, CB_SETITEMDATA, i, static_cast<LPARAM>(i));
        }
        SendDlgItemMessageW(window, list, CB_SETCURSEL, 0, 0);
    }
    return FALSE;
}

BOOL CALLBACK NoteEntries(HWND control, LPARAM) {
    const LRESULT count = SendMessageW(control, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        wchar_t text[300] = {};
        SendMessageW(control, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        entries[GetDlgCtrlID(control)].emplace_back(text);
    }
    return TRUE;
}

struct Opening {
    HMODULE templates;
    DLGPROC procedure;
    DialogContext* context;

    HWND Show() const {
        HWND window = CreateDialogParamW(templates, MAKEINTRESOURCEW(kDialogId), nullptr, procedure,
                                         reinterpret_cast<LPARAM>(context));
        ShowWindow(window, SW_SHOW);
        UpdateWindow(window);
        return window;
    }
};

} // namespace

int wmain(int, wchar_t** arguments) {
    const std::filesystem::path folder = std::filesystem::absolute(arguments[0]).parent_path();
    HMODULE module = LoadLibraryW((folder / "TELMAR_D.DLL").c_str());
    HMODULE templates = LoadLibraryW((folder / "TELMAR_S.DLL").c_str());
    dlgProc = FindEntryPoint<decltype(DDProc_DlgProc)>(module, "DDProc_DlgProc");
    OemDevmode settings = {};
    OemDevmode saveArea = {};
    OemDevmode scratch = {};
    DialogContext context = {&settings, &saveArea, &scratch, nullptr, nullptr, 1, 0, nullptr};
    const Opening ours = {templates, RunOurs, &context};
    const Opening bare = {templates, RunBare, nullptr};
    HWND first = dlgProc != nullptr ? ours.Show() : nullptr;
    if (first == nullptr) {
        fprintf(stderr,
                "dialog_bench: TELMAR_D.DLL, TELMAR_S.DLL and TELMAR_U.DLL must be in this program's folder, "
                "and it needs a screen\n");
        return 1;
    }
    EnumChildWindows(first, NoteEntries, 0);
    DestroyWindow(first);

    std::vector<double> oursTimes;
    std::vector<double> bareTimes;
    for (int i = 0; i < kRounds; ++i) {
        oursTimes.push_back(Measure([&] { DestroyWindow(ours.Show()); }));
        bareTimes.push_back(Measure([&] { DestroyWindow(bare.Show()); }));
    }
    PrintTimes("Dialog", oursTimes);
    PrintTimes("BareDialog", bareTimes);
    return 0;
}

// Runs a search as long as the dialog is open.
#include "workbench/property_sheet/search_dialog.h"

#include "workbench/lib/dialog_view.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_search.h"
#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/list_view.h"
#include "workbench/property_sheet/page_ids.h"

#include <memory>

#include <commctrl.h>

namespace {

constexpr UINT kAnswersArrived = WM_APP + 1;
constexpr UINT_PTR kEndTimer = 1;
constexpr UINT kSearchTime = 5000; // milliseconds; answers that come later are still listed

struct Search {
    std::unique_ptr<PrinterSearch> network;
    std::vector<FoundPrinter> found; // by row
    std::string chosen;              // address
    bool isRunning = false;          // for the person
};

HWND ListOf(HWND dialog) {
    return GetDlgItem(dialog, ID_FOUND);
}

void AddColumns(HWND dialog) {
    SetListColumns(ListOf(dialog),
                   {LocalizedText(PRINTER_TEXT_FOUND_NAME), LocalizedText(PRINTER_TEXT_FOUND_MODEL),
                    LocalizedText(PRINTER_TEXT_FOUND_ADDRESS)});
    FitColumns(ListOf(dialog));
}

void ShowCount(HWND dialog, const Search& search) {
    const std::string count = std::to_string(search.found.size());
    SetDlgItemTextW(dialog, ID_FOUND_STATUS,
                    Wide(search.isRunning       ? LocalizedText(PRINTER_TEXT_SEARCHING, {count})
                         : search.found.empty() ? LocalizedText(
                               search.network->IsSent() ? PRINTER_TEXT_NONE_FOUND : PRINTER_TEXT_NO_NETWORK)
                                                : LocalizedText(PRINTER_TEXT_SEARCHED, {count}))
                        .c_str());
    EnableWindow(GetDlgItem(dialog, IDOK), SelectionOf(ListOf(dialog)) >= 0);
}

void AddFound(HWND dialog, Search& search) {
    HWND list = ListOf(dialog);
    for (const FoundPrinter& printer : search.network->Receive()) {
        const size_t row = search.found.size();
        AddListRow(list, row);
        SetListCell(list, row, 0, printer.name);
        SetListCell(list, row, 1, printer.model);
        SetListCell(list, row, 2, printer.address);
        search.found.push_back(printer);
        if (search.found.size() == 1)
            SelectEntry(list, 0);
    }
    FitColumns(list);
    ShowCount(dialog, search);
}

void Choose(HWND dialog, Search& search) {
    const int row = SelectionOf(ListOf(dialog));
    if (row < 0)
        return;
    search.chosen = search.found.at(static_cast<size_t>(row)).address;
    EndDialog(dialog, IDOK);
}

INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        auto& started = *reinterpret_cast<Search*>(lParam);
        AddColumns(dialog);
        started.network = std::make_unique<PrinterSearch>(dialog, kAnswersArrived);
        SetTimer(dialog, kEndTimer, kSearchTime, nullptr);
        started.isRunning = started.network->IsSent();
        ShowCount(dialog, started);
        return TRUE;
    }
    auto* search = reinterpret_cast<Search*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (search == nullptr)
        return FALSE;
    switch (message) {
    case kAnswersArrived:
        AddFound(dialog, *search);
        return TRUE;
    case WM_TIMER:
        KillTimer(dialog, kEndTimer);
        search->isRunning = false;
        ShowCount(dialog, *search);
        return TRUE;
    case WM_NOTIFY: {
        const NMHDR& note = *reinterpret_cast<const NMHDR*>(lParam);
        if (note.idFrom == ID_FOUND && note.code == static_cast<UINT>(LVN_ITEMCHANGED))
            EnableWindow(GetDlgItem(dialog, IDOK), SelectionOf(ListOf(dialog)) >= 0);
        else if (note.idFrom == ID_FOUND && note.code == static_cast<UINT>(NM_DBLCLK))
            Choose(dialog, *search);
        return FALSE;
    }
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK)
            Choose(dialog, *search);
        else if (LOWORD(wParam) == IDCANCEL)
            EndDialog(dialog, IDCANCEL);
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

std::optional<std::string> FindPrinter(HWND owner) {
    Search search;
    const INT_PTR end = DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(DIALOG_SEARCH), owner,
                                        Procedure, reinterpret_cast<LPARAM>(&search));
    return end == IDOK ? std::optional(search.chosen) : std::nullopt;
}

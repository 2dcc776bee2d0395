// Runs a search as long as the dialog is open.
#include "workbench/property_sheet/search_dialog.h"

#include "workbench/lib/dialog_view.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_search.h"
#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"
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

void SetFoundCell(HWND list, size_t row, int column, const std::string& utf8) {
    std::wstring text = Wide(utf8);
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text.data();
    SendMessageW(list, LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

void AddColumns(HWND dialog) {
    SendMessageW(ListOf(dialog), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    RECT client = {};
    GetClientRect(ListOf(dialog), &client);
    for (const UINT title : {PRINTER_TEXT_FOUND_NAME, PRINTER_TEXT_FOUND_MODEL, PRINTER_TEXT_FOUND_ADDRESS}) {
        std::wstring text = Wide(LocalizedText(title));
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = text.data();
        column.cx = client.right / 3;
        SendMessageW(ListOf(dialog), LVM_INSERTCOLUMNW, title - PRINTER_TEXT_FOUND_NAME,
                     reinterpret_cast<LPARAM>(&column));
    }
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
        LVITEMW item = {};
        item.iItem = static_cast<int>(search.found.size());
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        const std::string* const cells[] = {&printer.name, &printer.model, &printer.address};
        for (int column = 0; column < 3; ++column)
            SetFoundCell(list, search.found.size(), column, *cells[column]);
        search.found.push_back(printer);
        if (search.found.size() == 1)
            SelectEntry(list, 0);
    }
    for (WPARAM column = 0; column < 3 && !search.found.empty(); ++column)
        SendMessageW(list, LVM_SETCOLUMNWIDTH, column, LVSCW_AUTOSIZE_USEHEADER);
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

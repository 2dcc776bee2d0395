// One page of the property sheet: see the header.
#include "property_page.h"

#include "../dialog_run.h"
#include "../output.h"

#include <commctrl.h>

namespace {

void Tell(HWND window, const std::string& failure) {
    MessageBoxW(GetParent(window), Wide(failure).c_str(), L"lumora R880", MB_OK | MB_ICONWARNING);
}

} // namespace

PROPSHEETPAGEW PropertyPage::Description() {
    PROPSHEETPAGEW page = {};
    page.dwSize = sizeof(page);
    page.hInstance = GetModuleHandleW(nullptr);
    page.pszTemplate = MAKEINTRESOURCEW(templateId);
    page.pfnDlgProc = Procedure;
    page.lParam = reinterpret_cast<LPARAM>(this);
    return page;
}

INT_PTR CALLBACK PropertyPage::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* page = reinterpret_cast<PropertyPage*>(reinterpret_cast<PROPSHEETPAGEW*>(lParam)->lParam);
        page->window = window;
        SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(page));
    }
    auto* page = reinterpret_cast<PropertyPage*>(GetWindowLongPtrW(window, DWLP_USER));
    if (page == nullptr)
        return FALSE;
    try {
        return page->Answer(message, wParam, lParam);
    } catch (const std::exception& failure) {
        Tell(window, failure.what());
        return TRUE;
    }
}

INT_PTR PropertyPage::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        Init();
        Show();
        return TRUE;
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_NOTIFY: {
        const NMHDR& note = *reinterpret_cast<const NMHDR*>(lParam);
        if (note.code == static_cast<UINT>(PSN_SETACTIVE))
            Show();
        else if (note.code == static_cast<UINT>(PSN_APPLY))
            SaveState(state);
        else
            OnNotify(note);
        return FALSE;
    }
    case WM_DRAWITEM:
        OnDraw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        OnMeasure(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_DESTROY:
        Close();
        return FALSE;
    default:
        OnMessage(message, wParam, lParam);
        return FALSE;
    }
}

void PropertyPage::SetText(int id, const std::string& utf8) const {
    SetDlgItemTextW(window, id, Wide(utf8).c_str());
}

std::string PropertyPage::Text(int id) const {
    wchar_t text[256] = L"";
    GetDlgItemTextW(window, id, text, 256);
    return Utf8(text);
}

void PropertyPage::SetColumns(int id, const std::vector<const char*>& titles) const {
    Send(id, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    for (size_t i = 0; i < titles.size(); ++i) {
        std::wstring title = Wide(titles[i]);
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_SUBITEM;
        column.pszText = title.data();
        column.iSubItem = static_cast<int>(i);
        Send(id, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
}

void PropertyPage::SetRows(int id, const std::vector<std::vector<std::string>>& rows) const {
    Send(id, WM_SETREDRAW, FALSE);
    Send(id, LVM_DELETEALLITEMS);
    size_t columns = 0;
    for (size_t row = 0; row < rows.size(); ++row)
        for (size_t column = 0; column < rows[row].size(); ++column) {
            std::wstring text = Wide(rows[row][column]);
            LVITEMW item = {};
            item.mask = LVIF_TEXT;
            item.iItem = static_cast<int>(row);
            item.iSubItem = static_cast<int>(column);
            item.pszText = text.data();
            Send(id, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            columns = std::max(columns, column + 1);
        }
    for (size_t column = 0; column < columns; ++column)
        Send(id, LVM_SETCOLUMNWIDTH, column, LVSCW_AUTOSIZE_USEHEADER);
    Send(id, WM_SETREDRAW, TRUE);
}

int PropertyPage::SelectedRow(int id) const {
    return static_cast<int>(Send(id, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED));
}

void PropertyPage::SelectRow(int id, int row) const {
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    Send(id, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void PropertyPage::SetEntries(int id, const std::vector<std::string>& entries, int selected) const {
    Send(id, CB_RESETCONTENT);
    for (const std::string& entry : entries)
        Send(id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry).c_str()));
    Send(id, CB_SETCURSEL, static_cast<WPARAM>(selected));
}

void PropertyPage::NoteChange() const {
    SendMessageW(GetParent(window), PSM_CHANGED, reinterpret_cast<WPARAM>(window), 0);
}

void PropertyPage::RunModelDialog(uint32_t id, bool isForTrays) {
    const PrinterProfiles profiles = ProfilesOf(state);
    DialogAreas areas(state.settings, state.papers.data(), profiles);
    DialogScript nothing;
    const bool isScripted = state.script != nullptr;
    HWND sheet = GetParent(window);
    EnableWindow(sheet, FALSE);
    try {
        RunDialog({id, state.templates, EXPORT(state.family, DDProc_DlgProc), isForTrays}, areas.context,
                  {isScripted ? *state.script : nothing, !isScripted, ""});
    } catch (...) {
        EnableWindow(sheet, TRUE);
        throw;
    }
    EnableWindow(sheet, TRUE);
    SetActiveWindow(sheet);
    NoteChange();
    Show();
}

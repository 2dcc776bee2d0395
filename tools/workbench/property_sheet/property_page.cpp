// One page of the property sheet: see the header.
#include "workbench/property_sheet/property_page.h"

#include "workbench/lib/dialog_run.h"
#include "workbench/lib/output.h"

#include <commctrl.h>

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
        page->Tell(failure.what());
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
            return Apply();
        else
            OnNotify(note);
        return FALSE;
    }
    case WM_DRAWITEM:
        OnDraw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_DESTROY:
        Close();
        return FALSE;
    default:
        OnMessage(message, wParam, lParam);
        return FALSE;
    }
}

// Every page is asked to apply; the first that is keeps what all have changed. The sheet stays open when that
// fails.
INT_PTR PropertyPage::Apply() const {
    LONG_PTR answer = PSNRET_NOERROR;
    try {
        SaveState(state);
    } catch (const std::exception& failure) {
        Tell(failure.what());
        answer = PSNRET_INVALID_NOCHANGEPAGE;
    }
    SetWindowLongPtrW(window, DWLP_MSGRESULT, answer);
    return TRUE;
}

void PropertyPage::Tell(const std::string& failure) const {
    if (state.user != nullptr)
        state.user->failures.push_back(failure);
    else
        TellPerson(failure, GetParent(window));
}

void PropertyPage::SetText(int id, const std::string& utf8) const {
    SetDlgItemTextW(window, id, Wide(utf8).c_str());
}

std::string PropertyPage::Text(int id) const {
    wchar_t text[256] = L"";
    GetDlgItemTextW(window, id, text, 256);
    return Utf8(text);
}

int PropertyPage::FontHeight() const {
    TEXTMETRICW font = {};
    const HDC dc = GetDC(window);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
    GetTextMetricsW(dc, &font);
    SelectObject(dc, before);
    ReleaseDC(window, dc);
    return font.tmHeight;
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
    for (size_t row = 0; row < rows.size(); ++row) {
        LVITEMW item = {};
        item.iItem = static_cast<int>(row);
        Send(id, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        for (size_t column = 0; column < rows[row].size(); ++column)
            SetCell(id, row, column, rows[row][column]);
    }
    const auto header = reinterpret_cast<HWND>(Send(id, LVM_GETHEADER));
    const LRESULT columns = SendMessageW(header, HDM_GETITEMCOUNT, 0, 0);
    for (LRESULT column = 0; column < columns; ++column)
        FitColumn(id, static_cast<WPARAM>(column));
    Send(id, WM_SETREDRAW, TRUE);
}

// As wide as its cells and its title need. The system leaves a title less room around than it then draws.
void PropertyPage::FitColumn(int id, WPARAM column) const {
    wchar_t title[64] = L"";
    LVCOLUMNW shown = {};
    shown.mask = LVCF_TEXT;
    shown.pszText = title;
    shown.cchTextMax = static_cast<int>(std::size(title));
    Send(id, LVM_GETCOLUMNW, column, reinterpret_cast<LPARAM>(&shown));
    Send(id, LVM_SETCOLUMNWIDTH, column, LVSCW_AUTOSIZE_USEHEADER);
    const LRESULT needed =
        Send(id, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(title)) + LRESULT{2} * FontHeight();
    if (Send(id, LVM_GETCOLUMNWIDTH, column) < needed)
        Send(id, LVM_SETCOLUMNWIDTH, column, needed);
}

void PropertyPage::SetCell(int id, size_t row, size_t column, const std::string& utf8) const {
    std::wstring text = Wide(utf8);
    LVITEMW item = {};
    item.iSubItem = static_cast<int>(column);
    item.pszText = text.data();
    Send(id, LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
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
    state.hasChanges = true;
    SendMessageW(GetParent(window), PSM_CHANGED, reinterpret_cast<WPARAM>(window), 0);
}

void PropertyPage::RunModelDialog(uint32_t id, bool isForTrays) {
    const PrinterProfiles profiles = ProfilesOf(state);
    OemDevmode settings = state.settings;
    TrayPapers papers = state.papers;
    DialogAreas areas(settings, papers.data(), profiles);
    DialogScript nothing;
    const bool isByPerson = state.user == nullptr;
    HWND sheet = GetParent(window);
    const DialogEnd end =
        RunDialog({id, state.templates, EXPORT(state.family, DDProc_DlgProc), isForTrays}, areas.context,
                  {isByPerson ? nothing : state.user->script, isByPerson, "", sheet});
    SetActiveWindow(sheet);
    if (end.code != IDOK)
        return;
    state.settings = settings;
    state.papers = papers;
    NoteChange();
    Show();
}

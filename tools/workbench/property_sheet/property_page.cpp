// Dispatches the messages of a page and fills its controls.
#include "workbench/property_sheet/property_page.h"

#include "workbench/lib/dialog_run.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/output.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/list_view.h"
#include "workbench/property_sheet/text_ids.h"

#include <algorithm>

#include <commctrl.h>

namespace {

constexpr UINT kActivated = WM_APP + 100; // posted to a page that has become current

// Makes the list of a combo box as wide as its longest entry, but not narrower than the box.
void WidenDropDown(HWND comboBox, const std::vector<std::string>& entries) {
    const HDC dc = GetDC(comboBox);
    const HGDIOBJ before =
        SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(comboBox, WM_GETFONT, 0, 0)));
    int width = 0;
    for (const std::string& entry : entries) {
        const std::wstring text = Wide(entry);
        SIZE size = {};
        GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
        width = std::max(width, static_cast<int>(size.cx));
    }
    SelectObject(dc, before);
    ReleaseDC(comboBox, dc);
    const int edges = 2 * GetSystemMetrics(SM_CXEDGE) + GetSystemMetrics(SM_CXVSCROLL);
    SendMessageW(comboBox, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width) + static_cast<WPARAM>(edges), 0);
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
        page->Report(failure.what());
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
    case WM_NOTIFY:
        return AnswerNote(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_DRAWITEM:
        OnDraw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case kActivated:
        TakeFocus();
        return TRUE;
    case PSM_QUERYSIBLINGS:
        if (static_cast<Event>(wParam) == Event::kReset)
            OnReset();
        if (IsWindowVisible(window))
            Show();
        return FALSE; // the next page receives it, too
    case WM_DESTROY:
        Close();
        return FALSE;
    default:
        OnMessage(message, wParam, lParam);
        return FALSE;
    }
}

INT_PTR PropertyPage::AnswerNote(const NMHDR& note) {
    switch (note.code) {
    case static_cast<UINT>(PSN_SETACTIVE):
        Show();
        PostMessageW(window, kActivated, 0, 0); // the page is not visible yet
        return FALSE;
    case static_cast<UINT>(PSN_APPLY):
        return Apply();
    case static_cast<UINT>(LVN_KEYDOWN):
        CopyRowOnKey(reinterpret_cast<const NMLVKEYDOWN&>(note));
        return FALSE;
    default:
        if (!isFilling)
            OnNotify(note);
        return FALSE;
    }
}

// Every page receives PSN_APPLY; the first one saves the changes of all. The sheet stays open if that fails.
INT_PTR PropertyPage::Apply() const {
    LONG_PTR answer = PSNRET_NOERROR;
    try {
        SaveState(state);
    } catch (const std::exception& failure) {
        Report(failure.what());
        answer = PSNRET_INVALID_NOCHANGEPAGE;
    }
    SetWindowLongPtrW(window, DWLP_MSGRESULT, answer);
    return TRUE;
}

// The focus stays on the tabs if it is there. Elsewhere it would remain on the page that is now hidden.
void PropertyPage::TakeFocus() const {
    const HWND sheet = GetParent(window);
    const auto tabs = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
    const HWND focus = GetFocus();
    if (!IsWindowVisible(window) || focus == tabs || IsChild(window, focus))
        return;
    if (const HWND first = GetNextDlgTabItem(window, nullptr, FALSE); first != nullptr)
        SendMessageW(sheet, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}

void PropertyPage::Report(const std::string& failure) const {
    if (state.user != nullptr)
        state.user->failures.push_back(failure);
    else
        ShowWarning(failure, TextOf(GetParent(window)), GetParent(window));
}

void PropertyPage::SetText(int id, const std::string& utf8) const {
    SetDlgItemTextW(window, id, Wide(utf8).c_str());
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

void PropertyPage::SetColumns(int id, const std::vector<std::string>& titles) {
    shownRows.erase(id);
    SetListColumns(Control(id), titles);
}

void PropertyPage::SetRows(int id, const TableRows& rows) {
    TableRows& shown = shownRows[id];
    if (rows != shown) {
        isFilling = true;
        Send(id, WM_SETREDRAW, FALSE);
        if (shown.size() != rows.size()) {
            Send(id, LVM_DELETEALLITEMS);
            shown.clear();
        }
        for (size_t row = 0; row < rows.size(); ++row) {
            if (row == shown.size()) {
                AddListRow(Control(id), row);
                shown.emplace_back();
            }
            for (size_t column = 0; column < rows[row].size(); ++column)
                SetListCell(Control(id), row, column, rows[row][column]);
        }
        shown = rows;
        FitColumns(Control(id));
        Send(id, WM_SETREDRAW, TRUE);
        isFilling = false;
    }
    EnableList(id, !rows.empty());
}

// The focus does not stay on a disabled list.
void PropertyPage::EnableList(int id, bool isEnabled) const {
    if (!isEnabled && GetFocus() == Control(id))
        SendMessageW(GetParent(window), WM_NEXTDLGCTL, 0, FALSE);
    const HWND label = GetWindow(Control(id), GW_HWNDPREV);
    if (IsOfClass(label, L"Static"))
        EnableWindow(label, isEnabled);
    EnableWindow(Control(id), isEnabled);
}

void PropertyPage::SetEntries(int id, const std::vector<std::string>& entries, int selected) const {
    FillEntries(id, entries, selected);
    EnableList(id, !entries.empty());
}

void PropertyPage::FillEntries(int id, const std::vector<std::string>& entries, int selected) const {
    const bool isSame = EntriesOf(Control(id)) == entries;
    if (isSame && (Send(id, CB_GETDROPPEDSTATE) != 0 || SelectionOf(Control(id)) == selected))
        return;
    if (!isSame) {
        Send(id, CB_SHOWDROPDOWN, FALSE);
        Send(id, CB_RESETCONTENT);
        for (const std::string& entry : entries)
            Send(id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry).c_str()));
        WidenDropDown(Control(id), entries);
    }
    Send(id, CB_SETCURSEL, static_cast<WPARAM>(selected));
}

bool PropertyPage::Confirm(const std::string& question) const {
    const HWND sheet = GetParent(window);
    if (state.user == nullptr)
        return MessageBoxW(sheet, Wide(question).c_str(), Wide(TextOf(sheet)).c_str(),
                           MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2)
               == IDYES;
    state.user->questions.push_back(question);
    return state.user->confirms;
}

void PropertyPage::NoteChange() const {
    state.hasChanges = true;
    SendMessageW(GetParent(window), PSM_CHANGED, reinterpret_cast<WPARAM>(window), 0);
}

void PropertyPage::RunModelDialog(const ModelDialog& dialog) {
    const PrinterProfiles profiles = ProfilesOf(state);
    OemDevmode settings = state.settings;
    TrayPapers papers = state.papers;
    DialogAreas areas(settings, papers.data(), profiles);
    DialogScript noScript;
    const bool isByPerson = state.user == nullptr;
    HWND sheet = GetParent(window);
    DialogEnd end = {};
    try {
        end = RunDialog(state.family, state.templates, dialog, areas.context,
                        {isByPerson ? noScript : state.user->script, isByPerson, "", sheet});
    } catch (const Failure&) {
        if (!isByPerson)
            throw; // the reason is for developers
        throw Failure(kExitFailed, LocalizedText(TEXT_DIALOG_FAILED));
    }
    SetActiveWindow(sheet);
    if (end.code != IDOK)
        return;
    state.settings = settings;
    state.papers = papers;
    NoteChange();
    Show();
}

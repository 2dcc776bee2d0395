// One tool tip window of the system for all lists of a dialog. Which text is cut is asked when it is needed.
#include "uimodule/list_tips.h"

#include "base/dialog_ids.h"
#include "uimodule/list_fit.h"
#include "uimodule/window_parts.h"

namespace {

HWND tips; // of the dialog that was opened last
CellText shown;
TrayCell pointed; // the tray list's cell below the pointer; its row is -1 when there is none

bool IsTrayList(HWND window) {
    return GetDlgCtrlID(window) == IDC_TRAY_LIST;
}

POINT PointerOver(HWND window) {
    POINT at = {};
    GetCursorPos(&at);
    ScreenToClient(window, &at);
    return at;
}

TrayCell CellBelowPointer(HWND list) {
    LVHITTESTINFO hit = {};
    hit.pt = PointerOver(list);
    SendMessageW(list, LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return {hit.iItem, hit.iSubItem};
}

// Whether the chosen entry is cut.
bool ReadCutChoice(HWND list, CellText& text) {
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof(parts);
    GetComboBoxInfo(list, &parts);
    const LRESULT selected = SendMessageW(list, CB_GETCURSEL, 0, 0);
    const auto index = static_cast<WPARAM>(selected);
    text[0] = 0;
    if (selected >= 0
        && SendMessageW(list, CB_GETLBTEXTLEN, index, 0)
               < static_cast<LRESULT>(sizeof(text) / sizeof(text[0])))
        SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
    return TextWidth(list, text, DT_NOPREFIX) > parts.rcItem.right - parts.rcItem.left;
}

bool ReadCutText(HWND list, CellText& text) {
    if (!IsTrayList(list))
        return ReadCutChoice(list, text);
    const TrayCell cell = CellBelowPointer(list);
    return cell.row >= 0 && ReadCutCell(list, cell, text);
}

} // namespace

void AddListTips(HWND dialog) {
    tips = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0, 0, dialog, nullptr,
                           nullptr, nullptr);
    if (tips == nullptr)
        return;
    for (HWND at = GetWindow(dialog, GW_CHILD); at != nullptr; at = GetWindow(at, GW_HWNDNEXT)) {
        if (!IsKind(at, L"ComboBox", 0, 0) && !IsTrayList(at))
            continue;
        TTTOOLINFOW tool = {};
        tool.cbSize = TTTOOLINFOW_V1_SIZE;
        tool.uFlags = TTF_IDISHWND | (IsTrayList(at) ? 0 : TTF_SUBCLASS);
        tool.hwnd = dialog;
        tool.uId = reinterpret_cast<UINT_PTR>(at);
        tool.lpszText = LPSTR_TEXTCALLBACKW;
        SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

void DescribeCutText(NMTTDISPINFOW& tip) {
    tip.szText[0] = 0;
    tip.lpszText = ReadCutText(reinterpret_cast<HWND>(tip.hdr.idFrom), shown) ? shown : tip.szText;
}

void FollowPointer(HWND dialog, HWND window, UINT mouseMessage) {
    if (!IsTrayList(window) || GetWindow(tips, GW_OWNER) != dialog)
        return;
    const TrayCell cell = CellBelowPointer(window);
    if (cell.row != pointed.row || cell.column != pointed.column)
        SendMessageW(tips, TTM_POP, 0, 0);
    pointed = cell;
    MSG message = {};
    message.hwnd = window;
    message.message = mouseMessage;
    GetCursorPos(&message.pt);
    const POINT at = PointerOver(window);
    message.lParam = MAKELPARAM(at.x, at.y);
    SendMessageW(tips, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
}

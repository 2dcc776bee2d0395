// One tool tip window of the system for all lists of a dialog. Which text is cut is asked when it is needed.
#include "uimodule/list_tips.h"

#include "uimodule/window_parts.h"

namespace {

constexpr size_t kTextCapacity = 260;
wchar_t chosen[kTextCapacity];

} // namespace

void AddListTips(HWND dialog) {
    HWND tips = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0, 0, dialog,
                                nullptr, nullptr, nullptr);
    if (tips == nullptr)
        return;
    for (HWND at = GetWindow(dialog, GW_CHILD); at != nullptr; at = GetWindow(at, GW_HWNDNEXT)) {
        if (!IsKind(at, L"ComboBox", 0, 0))
            continue;
        TTTOOLINFOW tool = {};
        tool.cbSize = TTTOOLINFOW_V1_SIZE;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = dialog;
        tool.uId = reinterpret_cast<UINT_PTR>(at);
        tool.lpszText = LPSTR_TEXTCALLBACKW;
        SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

void DescribeCutText(NMTTDISPINFOW& tip) {
    HWND list = reinterpret_cast<HWND>(tip.hdr.idFrom);
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof(parts);
    GetComboBoxInfo(list, &parts);
    const LRESULT selected = SendMessageW(list, CB_GETCURSEL, 0, 0);
    chosen[0] = 0;
    if (selected >= 0
        && SendMessageW(list, CB_GETLBTEXTLEN, static_cast<WPARAM>(selected), 0)
               < static_cast<LRESULT>(kTextCapacity))
        SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(selected), reinterpret_cast<LPARAM>(chosen));
    const bool isCut = TextWidth(list, chosen) > parts.rcItem.right - parts.rcItem.left;
    tip.szText[0] = 0;
    tip.lpszText = isCut ? chosen : tip.szText;
}

// How TELMAR_U.DLL fits the model's dialogs to their texts, also run at other resolutions.
#include "family/uimodule_support.h"

#include <commctrl.h>

namespace {

using UiModuleLayout = UiModule;

SIZE Needed(HWND control, const wchar_t* text) {
    RECT needed = {};
    const HDC dc = GetDC(control);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    DrawTextW(dc, text, -1, &needed, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    SelectObject(dc, before);
    ReleaseDC(control, dc);
    return {needed.right, needed.bottom};
}

RECT FrameOf(HWND window) {
    RECT frame = {};
    GetWindowRect(window, &frame);
    return frame;
}

TEST_F(UiModuleLayout, TrayRowsAndColumnsAreLargeEnough) {
    OpenModel(155);
    HWND list = Control(1844);
    for (int i = 0; i < 7; ++i) { // narrow, as the module's titles make them
        wchar_t title[] = L"Title";
        LVCOLUMNW column = {LVCF_TEXT | LVCF_WIDTH, 0, 30, title, 0, i, 0, 0, 0, 0, 0};
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
    }
    wchar_t name[] = L"A tray with a very long name";
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.pszText = name;
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    ShowWindow(dialog, SW_SHOW);
    RECT row = {}, client = {};
    SendMessageW(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    EXPECT_GE(row.bottom - row.top, Needed(list, name).cy + 2);
    EXPECT_GE(SendMessageW(list, LVM_GETCOLUMNWIDTH, 0, 0), Needed(list, name).cx);
    LRESULT all = 0;
    for (WPARAM i = 0; i < 7; ++i)
        all += SendMessageW(list, LVM_GETCOLUMNWIDTH, i, 0);
    GetClientRect(list, &client);
    EXPECT_EQ(all, client.right);
}

TEST_F(UiModuleLayout, OpenListsAreAsWideAsTheirLongestEntry) {
    OpenModel(128);
    ShowWindow(dialog, SW_SHOW);
    const std::wstring name = std::wstring(40, L'W') + L" (1)";
    SendDlgItemMessageW(dialog, 1504, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    SendDlgItemMessageW(dialog, 1504, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info = {sizeof(info), {}, {}, 0, nullptr, nullptr, nullptr};
    GetComboBoxInfo(Control(1504), &info);
    RECT entries = {};
    GetClientRect(info.hwndList, &entries);
    EXPECT_GE(entries.right, Needed(Control(1504), name.c_str()).cx + 20) << "the module leaves room for an icon";
}

TEST_F(UiModuleLayout, CutChoiceIsInAToolTip) {
    OpenModel(128);
    const std::wstring name(40, L'W');
    for (const wchar_t* entry : {L"short", name.c_str()})
        SendDlgItemMessageW(dialog, 1504, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
    for (WPARAM i = 0; i < 2; ++i) {
        SendDlgItemMessageW(dialog, 1504, CB_SETCURSEL, i, 0);
        NMTTDISPINFOW tip = {};
        tip.hdr = {nullptr, reinterpret_cast<UINT_PTR>(Control(1504)), static_cast<UINT>(TTN_GETDISPINFOW)};
        SendMessageW(dialog, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
        EXPECT_EQ(tip.lpszText, i == 0 ? std::wstring() : name);
    }
}

TEST_F(UiModuleLayout, CutCellBelowThePointerIsInAToolTip) {
    OpenModel(155);
    HWND list = Control(1844);
    std::wstring texts[] = {L"Tray", std::wstring(20, L'W')};
    for (int column = 0; column < 2; ++column) {
        wchar_t title[] = L"Title";
        LVCOLUMNW record = {LVCF_TEXT | LVCF_WIDTH, 0, 100, title, 0, column, 0, 0, 0, 0, 0};
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&record));
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iSubItem = column;
        item.pszText = texts[column].data();
        SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    ShowWindow(dialog, SW_SHOW);
    SendMessageW(list, LVM_SETCOLUMNWIDTH, 1, MAKELPARAM(100, 0));
    RECT row = {};
    SendMessageW(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    const LONG first = static_cast<LONG>(SendMessageW(list, LVM_GETCOLUMNWIDTH, 0, 0));
    for (const auto& [x, y, text] : {std::tuple(first / 2, row.top + 2, std::wstring()),
                                     {first + 50, row.top + 2, texts[1]},
                                     {first + 50, row.bottom + 40, std::wstring()}}) {
        POINT at = {x, y};
        ClientToScreen(list, &at);
        SetCursorPos(at.x, at.y);
        Pump(1000); // the pointer comes to rest
        std::wstring shown;
        for (HWND tip = nullptr; (tip = NextOwnWindow(tip, TOOLTIPS_CLASSW)) != nullptr;)
            if (IsWindowVisible(tip))
                shown += TextOf(tip);
        EXPECT_EQ(shown, text);
    }
}

TEST_F(UiModuleLayout, StopSignOfACheckBoxIsNextToItsText) {
    for (const int id : {122, 124, 128})
        for (const wchar_t* text : {L"Paper", L"A text that is much too long for the place that the box has"}) {
            OpenModel(id);
            const LONG end = FrameOf(Control(1527)).right;
            ControlTextRecord rows[] = {{{1526}, {}, "Box"}, {}};
            wcsncpy(rows[0].display, text, std::size(rows[0].display) - 1);
            FUNCTION(ReplaceDlgDispString)(dialog, rows);
            const RECT box = FrameOf(Control(1526)), icon = FrameOf(Control(1527));
            const LONG square = box.bottom - box.top;
            const LONG needed = Needed(Control(1526), TextOf(Control(1526)).c_str()).cx + square;
            EXPECT_LE(icon.left, box.left + needed + square) << "not far off";
            EXPECT_TRUE(icon.left >= box.left + needed || end - icon.right < square) << "not over the text";
            EXPECT_TRUE(icon.left >= box.right && icon.right <= end) << id;
        }
}

TEST_F(UiModuleLayout, DialogsOpenOverTheirOwner) {
    // Near the middle of the screen, so that the dialog has room on all sides.
    const int left = GetSystemMetrics(SM_CXSCREEN) / 2 + 30, top = GetSystemMetrics(SM_CYSCREEN) / 2 - 40;
    const HWND owner =
        CreateWindowW(L"Static", L"", WS_POPUP | WS_VISIBLE, left, top, 40, 30, nullptr, nullptr, nullptr, nullptr);
    const HWND between =
        CreateWindowW(L"Static", L"", WS_POPUP, 0, 0, 0, 0, owner, nullptr, nullptr, nullptr); // invisible
    const auto middle = [](const RECT& frame) { return std::pair(frame.left + frame.right, frame.top + frame.bottom); };
    OpenModel(123, between);
    const auto [x, y] = middle(FrameOf(dialog));
    EXPECT_LE(abs(x - (2 * left + 40)) + abs(y - (2 * top + 30)), 2);
    SetWindowPos(owner, nullptr, -300, -300, 0, 0, SWP_NOSIZE);
    OpenModel(123, between);
    EXPECT_EQ(std::pair(FrameOf(dialog).left, FrameOf(dialog).top), std::pair(0L, 0L)) << "within the screen";
    DestroyWindow(dialog);
    DestroyWindow(owner);
}

} // namespace

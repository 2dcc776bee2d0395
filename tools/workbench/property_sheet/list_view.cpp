// Fits columns, shows tool tips for cut cells and copies rows.
#include "workbench/property_sheet/list_view.h"

#include "workbench/lib/document.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/text_ids.h"

#include <algorithm>

#include <windowsx.h>

namespace {

constexpr LRESULT kCellPadding = 14; // at 96 dots per inch, left and right together
constexpr int kMaxTipWidth = 600;    // pixels; longer texts are broken into lines
constexpr UINT_PTR kTipSubclass = 1;
constexpr wchar_t kTipProperty[] = L"CellTip";
constexpr int kMaxCell = 512; // UTF-16 units

int ColumnCount(HWND list) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    return static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
}

std::wstring CellOf(HWND list, int row, int column) {
    wchar_t text[kMaxCell] = L"";
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = kMaxCell;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

std::wstring TitleOf(HWND list, int column) {
    wchar_t text[kMaxCell] = L"";
    LVCOLUMNW shown = {};
    shown.mask = LVCF_TEXT;
    shown.pszText = text;
    shown.cchTextMax = kMaxCell;
    SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&shown));
    return text;
}

// The width of a column that shows the whole text.
int WidthFor(HWND list, const std::wstring& text) {
    const HDC screen = GetDC(nullptr);
    const int padding = MulDiv(kCellPadding, GetDeviceCaps(screen, LOGPIXELSX), 96);
    ReleaseDC(nullptr, screen);
    return padding
           + static_cast<int>(
               SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str())));
}

int ColumnWidth(HWND list, int column) {
    return static_cast<int>(SendMessageW(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0));
}

// The text of the cell below the mouse if it is cut, otherwise empty.
std::wstring CutCellAt(HWND list, POINT place) {
    LVHITTESTINFO hit = {};
    hit.pt = place;
    if (SendMessageW(list, LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)) < 0)
        return {};
    const std::wstring text = CellOf(list, hit.iItem, hit.iSubItem);
    return WidthFor(list, text) > ColumnWidth(list, hit.iSubItem) ? text : std::wstring();
}

TTTOOLINFOW ToolOf(HWND control) {
    TTTOOLINFOW tool = {};
    tool.cbSize = sizeof(tool);
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = control;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    return tool;
}

// The tip has the text of the cell that the mouse is over.
LRESULT CALLBACK WatchMouse(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                            DWORD_PTR /*data*/) {
    const auto tip = static_cast<HWND>(GetPropW(list, kTipProperty));
    if (message == WM_MOUSEMOVE) {
        SetTip(tip, list, CutCellAt(list, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}));
    } else if (message == WM_NCDESTROY) {
        RemovePropW(list, kTipProperty);
        RemoveWindowSubclass(list, WatchMouse, kTipSubclass);
    }
    return DefSubclassProc(list, message, wParam, lParam);
}

} // namespace

void SetListColumns(HWND list, const std::vector<std::string>& titles) {
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0); // cells refer to columns
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    while (SendMessageW(list, LVM_DELETECOLUMN, 0, 0) != 0) {}
    for (size_t i = 0; i < titles.size(); ++i) {
        std::wstring title = Wide(titles[i]);
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_SUBITEM;
        column.pszText = title.data();
        column.iSubItem = static_cast<int>(i);
        SendMessageW(list, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
    ShowCutCells(list);
}

void AddListRow(HWND list, size_t row) {
    LVITEMW item = {};
    item.iItem = static_cast<int>(row);
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

void SetListCell(HWND list, size_t row, size_t column, const std::string& utf8) {
    std::wstring text = Wide(utf8);
    LVITEMW item = {};
    item.iSubItem = static_cast<int>(column);
    item.pszText = text.data();
    SendMessageW(list, LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
}

void FitColumns(HWND list) {
    const int columns = ColumnCount(list);
    const auto rows = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    RECT client = {};
    GetClientRect(list, &client);
    LONG rest = client.right;
    const bool isScrolled = (GetWindowLongW(list, GWL_STYLE) & WS_VSCROLL) != 0;
    if (!isScrolled && rows > SendMessageW(list, LVM_GETCOUNTPERPAGE, 0, 0))
        rest -= GetSystemMetrics(SM_CXVSCROLL); // the list adds it later
    for (int column = 0; column < columns; ++column) {
        int width = WidthFor(list, TitleOf(list, column));
        for (int row = 0; row < rows; ++row)
            width = std::max(width, WidthFor(list, CellOf(list, row, column)));
        if (column == columns - 1)
            width = std::max(width, static_cast<int>(rest));
        SendMessageW(list, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), width);
        rest -= width;
    }
}

void ShowCutCells(HWND list) {
    if (GetPropW(list, kTipProperty) != nullptr)
        return;
    SetPropW(list, kTipProperty, MakeTip(list));
    SetWindowSubclass(list, WatchMouse, kTipSubclass, 0);
}

HWND MakeTip(HWND control) {
    const HWND tip =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0,
                        0, 0, 0, control, nullptr, nullptr, nullptr);
    TTTOOLINFOW tool = ToolOf(control);
    wchar_t nothing[] = L"";
    tool.lpszText = nothing;
    SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(tip, TTM_SETMAXTIPWIDTH, 0, kMaxTipWidth);
    return tip;
}

void SetTip(HWND tip, HWND control, std::wstring text) {
    wchar_t shown[kMaxCell] = L"";
    TTTOOLINFOW tool = ToolOf(control);
    tool.lpszText = shown;
    SendMessageW(tip, TTM_GETTEXTW, kMaxCell, reinterpret_cast<LPARAM>(&tool));
    if (text == shown)
        return;
    tool.lpszText = text.data();
    SendMessageW(tip, TTM_POP, 0, 0);
    SendMessageW(tip, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CopyRowOnKey(const NMLVKEYDOWN& key) {
    const HWND list = key.hdr.hwndFrom;
    const auto row = static_cast<int>(SendMessageW(list, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED));
    if (key.wVKey != 'C' || GetKeyState(VK_CONTROL) >= 0 || row < 0)
        return;
    std::wstring text;
    const int columns = ColumnCount(list);
    for (int column = 0; column < columns; ++column)
        text += (column == 0 ? L"" : L"\t") + CellOf(list, row, column);
    PutOnClipboard(list, Utf8(text));
}

void PutOnClipboard(HWND owner, const std::string& utf8) {
    const std::wstring text = Wide(utf8);
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    if (!OpenClipboard(owner))
        throw Failure(kExitFailed, LocalizedText(TEXT_CLIPBOARD_IN_USE));
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (void* at = memory != nullptr ? GlobalLock(memory) : nullptr; at != nullptr) {
        memcpy(at, text.c_str(), bytes);
        GlobalUnlock(memory);
        SetClipboardData(CF_UNICODETEXT, memory); // the system owns the memory from now on
    }
    CloseClipboard();
}

// Fits the drop-down lists and the tray list.
#include "uimodule/list_fit.h"

#include "base/dialog_ids.h"
#include "base/window_services.h"
#include "uimodule/window_parts.h"

#include <commctrl.h>

namespace {

constexpr LONG kMargins = 2;     // pixels above and below a text
constexpr LONG kIconRoom = 20;   // pixels in front of the text of an entry or orientation, left by the module
constexpr LONG kIconHeight = 16; // pixels, of the orientation
constexpr size_t kTextCapacity = sizeof(CellText) / sizeof(wchar_t);
constexpr int kMaxColumns = 7;
constexpr int kOrientationColumn = 2;

// Width of the longest text in each column, in pixels.
struct ColumnWidths {
    int count;
    LONG titles[kMaxColumns];
    LONG wanted[kMaxColumns]; // with the cells
};

LONG StringWidth(HWND list, const wchar_t* text) {
    return static_cast<LONG>(SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text)));
}

LONG TitleWidth(HWND list, int column) {
    wchar_t title[kTextCapacity] = L"";
    LVCOLUMNW record = {};
    record.mask = LVCF_TEXT;
    record.pszText = title;
    record.cchTextMax = kTextCapacity;
    SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&record));
    HWND header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    const auto margin = static_cast<LONG>(SendMessageW(header, HDM_GETBITMAPMARGIN, 0, 0));
    return StringWidth(list, title) + 2 * margin + FontHeight(list);
}

void ReadCell(HWND list, const TrayCell& cell, CellText& text) {
    text[0] = 0;
    LVITEMW record = {};
    record.iSubItem = cell.column;
    record.pszText = text;
    record.cchTextMax = kTextCapacity;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(cell.row), reinterpret_cast<LPARAM>(&record));
}

// What the module leaves free in front of a cell's text.
LONG Inset() {
    return LOWORD(GetDialogBaseUnits()) / 4;
}

// Where a cell's text ends, from the cell's left edge.
LONG EndOfText(HWND list, int column, const CellText& text) {
    return Inset() + StringWidth(list, text) + (column == kOrientationColumn ? kIconRoom : 0);
}

LONG CellWidth(HWND list, const TrayCell& cell) {
    CellText text;
    ReadCell(list, cell, text);
    return EndOfText(list, cell.column, text) + Inset() + FontHeight(list);
}

ColumnWidths MeasureColumns(HWND list) {
    HWND header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    const auto rows = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    ColumnWidths widths = {};
    widths.count = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    widths.count = static_cast<int>(Smaller(widths.count, kMaxColumns));
    for (int column = 0; column < widths.count; ++column) {
        widths.titles[column] = TitleWidth(list, column);
        widths.wanted[column] = widths.titles[column];
        for (int row = 0; row < rows; ++row)
            widths.wanted[column] = Larger(widths.wanted[column], CellWidth(list, {row, column}));
    }
    return widths;
}

} // namespace

void FitListEntries(HWND dialog) {
    constexpr WPARAM parts[] = {0, static_cast<WPARAM>(-1)}; // entries, edit field
    for (HWND at = GetWindow(dialog, GW_CHILD); at != nullptr; at = GetWindow(at, GW_HWNDNEXT)) {
        if (!IsKind(at, L"ComboBox", CBS_OWNERDRAWFIXED, CBS_OWNERDRAWFIXED))
            continue;
        const LONG height = FontHeight(at) + kMargins;
        for (const WPARAM part : parts)
            if (SendMessageW(at, CB_GETITEMHEIGHT, part, 0) < height)
                SendMessageW(at, CB_SETITEMHEIGHT, part, height);
    }
}

void FitDroppedWidth(HWND list) {
    LONG width = 0;
    const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
        wchar_t text[kTextCapacity] = L"";
        if (SendMessageW(list, CB_GETLBTEXTLEN, i, 0) < static_cast<LRESULT>(kTextCapacity))
            SendMessageW(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
        width = Larger(width, TextWidth(list, text, DT_NOPREFIX));
    }
    const RECT screen = WorkAreaOf(list);
    width += kIconRoom + GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE);
    SendMessageW(list, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(Smaller(width, screen.right - screen.left)),
                 0); // never narrower than the list
}

UINT TrayRowHeight(HWND list) {
    return static_cast<UINT>(Larger(FontHeight(list) + kMargins, kIconHeight));
}

// The list asks whenever its size has changed.
void MeasureTrayRows(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_TRAY_LIST);
    if (list == nullptr)
        return;
    const RECT frame = FrameOf(list);
    WINDOWPOS change = {};
    change.hwnd = list;
    change.cx = frame.right - frame.left;
    change.cy = frame.bottom - frame.top;
    change.flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    SendMessageW(list, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&change));
}

bool ReadCutCell(HWND list, const TrayCell& cell, CellText& text) {
    ReadCell(list, cell, text);
    const auto column = static_cast<WPARAM>(cell.column);
    const auto width = static_cast<LONG>(SendMessageW(list, LVM_GETCOLUMNWIDTH, column, 0));
    return EndOfText(list, cell.column, text) > width;
}

void FitTrayColumns(HWND dialog) {
    HWND list = GetDlgItem(dialog, IDC_TRAY_LIST);
    if (list == nullptr)
        return;
    const ColumnWidths widths = MeasureColumns(list);
    RECT client = {};
    GetClientRect(list, &client);
    LONG room = client.right;
    LONG later = 0; // titles of the columns that are still to come
    for (int column = 1; column < widths.count; ++column)
        later += widths.titles[column];
    for (int column = 0; column < widths.count; ++column) {
        LONG width = widths.wanted[column];
        if (column == widths.count - 1)
            width = Larger(room, widths.titles[column]);
        else if (column > 0)
            width = Larger(widths.titles[column], Smaller(width, room - later));
        SendMessageW(list, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MAKELPARAM(width, 0));
        room -= width;
        if (column + 1 < widths.count)
            later -= widths.titles[column + 1];
    }
}

// The list view of the tray-setting dialogs: columns, rows, drawing.
#include "trays/tray_list_view.h"

#include "base/dialog_ids.h"
#include "base/text.h"
#include "paramdata/device_table.h"
#include "trays/tray_settings.h"

#include <commctrl.h>

namespace {

constexpr int kColumnExtra = 20;      // pixels after a title
constexpr int kIconRoom = 16;         // pixels before the orientation's text
constexpr uint32_t kPlainColumns = 4; // tray, size, orientation, type
constexpr size_t kOrientationColumn = 2;
constexpr size_t kNameCapacity = 32;  // of a tray's name, in characters
constexpr size_t kTextCapacity = 260; // of a cell's text
constexpr int16_t kPortrait = 1;
constexpr uint32_t kTypeWithFourColumns = 3; // of the dialog

uint32_t trayColumnCount; // columns of a row; 0 without rows

LRESULT Send(HWND list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(list, message, wParam, lParam);
}

template <typename Record>
LRESULT Send(HWND list, UINT message, WPARAM wParam, Record* record) {
    return SendMessageW(list, message, wParam, reinterpret_cast<LPARAM>(record));
}

HWND ListOf(HWND dialog) {
    return GetDlgItem(dialog, IDC_TRAY_LIST);
}

int ClientWidth(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    return client.right;
}

// --- Columns

// The columns inserted so far. A column is as wide as its title, the last one takes the rest.
struct ColumnsSoFar {
    HWND list;
    int room;   // width of the list
    int margin; // on either side of a title
    int count;
    int width;
};

void InsertColumn(ColumnsSoFar& columns, MediaTypeColumn& column, bool takesRest) {
    const auto title = static_cast<int>(Send(columns.list, LVM_GETSTRINGWIDTHW, 0, column.title));
    LVCOLUMNW inserted = {};
    inserted.mask = LVCF_FMT | LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    inserted.fmt = LVCFMT_LEFT;
    inserted.pszText = column.title;
    inserted.iSubItem = columns.count;
    inserted.cx = takesRest ? columns.room - columns.width : title + 2 * columns.margin + kColumnExtra;
    Send(columns.list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(columns.count), &inserted);
    ++columns.count;
    columns.width += inserted.cx;
}

// --- Rows

// The names of the listed trays.
struct TrayNames {
    wchar_t names[TELMAR_TRAY_COUNT][kNameCapacity];
    size_t count;
};

// Collects the names and sets key and bin number of each record.
void TakeSources(TrayNames& trays, TrayPaperSetting* records) {
    for (const InputSlotRecord& source : Listed(deviceTable != nullptr ? deviceTable->inputTrays : nullptr)) {
        if (IsAutomaticBin(source.head.value))
            continue;
        if (trays.count == TELMAR_TRAY_COUNT)
            return;
        CopyText(trays.names[trays.count], source.display);
        TrayPaperSetting& record = records[trays.count++];
        CopyText(record.key, source.head.key);
        record.bin = source.head.value;
    }
}

// The name of the last item with this value; null when there is none.
const wchar_t* NameOf(size_t attribute, int32_t value) {
    const wchar_t* name = nullptr;
    for (const ItemRecord& item : Listed(AttributeValues(static_cast<MediaTypeList>(attribute))))
        if (static_cast<int32_t>(item.head.value) == value)
            name = item.display;
    return name;
}

void InsertRow(HWND list, int row, const wchar_t* name, const TrayPaperSetting& tray) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(name);
    item.lParam = row;
    Send(list, LVM_INSERTITEMW, 0, &item);
    LVITEMW cell = {};
    for (size_t i = 0; i < kMediaTypeListCount; ++i) {
        if (!IsColumnShown(deviceTable, static_cast<MediaTypeList>(i)))
            continue;
        ++cell.iSubItem;
        const wchar_t* text = NameOf(i, LoadAttribute(tray, trayAttributes[i]));
        cell.pszText = const_cast<wchar_t*>(text);
        if (text != nullptr)
            Send(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), &cell);
    }
}

// --- Drawing

struct RowDrawing {
    const DRAWITEMSTRUCT& item;
    HBRUSH background;
    int icon; // of the orientation

    HDC Dc() const { return item.hDC; }
    HWND List() const { return item.hwndItem; }
    const RECT& Area() const { return item.rcItem; }
    bool Is(UINT state) const { return (item.itemState & state) != 0; }
};

COLORREF BackgroundColor(const RowDrawing& row) {
    if (row.Is(ODS_DISABLED))
        return GetSysColor(COLOR_BTNFACE);
    if (row.Is(ODS_SELECTED))
        return GetSysColor(COLOR_HIGHLIGHT);
    const auto color = static_cast<COLORREF>(Send(row.List(), LVM_GETTEXTBKCOLOR));
    const bool isNoColor = (color & 0xFF000000) != 0;
    return isNoColor ? GetSysColor(COLOR_WINDOW) : color;
}

COLORREF TextColor(const RowDrawing& row) {
    const int color = row.Is(ODS_DISABLED)   ? COLOR_GRAYTEXT
                      : row.Is(ODS_SELECTED) ? COLOR_HIGHLIGHTTEXT
                                             : COLOR_WINDOWTEXT;
    return GetSysColor(color);
}

// The row, across the width of the list.
RECT RowBounds(const RowDrawing& row) {
    RECT bounds = {};
    bounds.left = LVIR_BOUNDS; // in: what to return
    if (!Send(row.List(), LVM_GETITEMRECT, row.item.itemID, &bounds))
        return {};
    ++bounds.left;
    bounds.right = ClientWidth(row.List()) - 1;
    return bounds;
}

// Draws the text of a cell, clipped to the cell.
void DrawCellText(const RowDrawing& row, size_t column, const RECT& cell) {
    wchar_t text[kTextCapacity] = L"";
    LVITEMW asked = {};
    asked.iSubItem = static_cast<int>(column);
    asked.pszText = text;
    asked.cchTextMax = kTextCapacity;
    Send(row.List(), LVM_GETITEMTEXTW, row.item.itemID, &asked);
    TEXTMETRICW font = {};
    GetTextMetricsW(row.Dc(), &font);
    const int left = cell.left + LOWORD(GetDialogBaseUnits()) / 4;
    const int top = (cell.top + cell.bottom - font.tmHeight) / 2;
    ExtTextOutW(row.Dc(), left, top, ETO_CLIPPED, &cell, text, static_cast<UINT>(TextLength(text)), nullptr);
}

void DrawOrientation(const RowDrawing& row, int left) {
    const auto images = reinterpret_cast<HIMAGELIST>(Send(row.List(), LVM_GETIMAGELIST, LVSIL_SMALL));
    if (images != nullptr)
        ImageList_Draw(images, row.icon, row.Dc(), left, row.Area().top, ILD_TRANSPARENT);
}

// Draws each cell with its background, which covers what the cell before has drawn beyond its end.
void DrawCells(const RowDrawing& row) {
    SetBkMode(row.Dc(), TRANSPARENT);
    SetTextColor(row.Dc(), TextColor(row));
    RECT strip = row.Area();
    strip.right = strip.left;
    for (size_t column = 0; column < trayColumnCount; ++column) {
        const auto width = static_cast<int>(Send(row.List(), LVM_GETCOLUMNWIDTH, column));
        strip.left = strip.right;
        strip.right = strip.left + width;
        FillRect(row.Dc(), &strip, row.background);
        RECT cell = strip;
        if (column == kOrientationColumn) {
            DrawOrientation(row, strip.left);
            OffsetRect(&cell, kIconRoom, 0);
        }
        DrawCellText(row, column, cell);
    }
}

void DrawWholeRow(const RowDrawing& row) {
    RECT bounds = RowBounds(row);
    FillRect(row.Dc(), &bounds, row.background);
    DrawCells(row);
    InflateRect(&bounds, 0, -1);
    if (row.Is(ODS_FOCUS) && GetFocus() == row.List())
        DrawFocusRect(row.Dc(), &bounds);
}

} // namespace

void SetUpTrayColumns(HWND dialog) {
    HWND list = ListOf(dialog);
    Send(list, WM_SETREDRAW, FALSE);
    HWND header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
    SetWindowLongPtrW(header, GWL_STYLE, GetWindowLongPtrW(header, GWL_STYLE) & ~LONG_PTR{HDS_BUTTONS});
    const uint32_t type = SwitchValue(deviceTable, kSwitchDlgMediaType);
    const size_t last = type == kTypeWithFourColumns ? kMediaType : kMediaPrePunched;
    ColumnsSoFar columns = {list, ClientWidth(list),
                            static_cast<int>(SendMessageW(header, HDM_GETBITMAPMARGIN, 0, 0)), 0, 0};
    InsertColumn(columns, mediaTypeColumns[0], false);
    for (size_t i = 0; i < kMediaTypeListCount; ++i)
        if (IsColumnShown(deviceTable, static_cast<MediaTypeList>(i)))
            InsertColumn(columns, mediaTypeColumns[1 + i], i == last);
    Send(list, LVM_DELETEALLITEMS);
    Send(list, WM_SETREDRAW, TRUE);
}

void FillTrayRows(HWND dialog, const DialogContext* context) {
    HWND list = ListOf(dialog);
    Send(list, LVM_DELETEALLITEMS);
    TrayPaperSetting* records = GetTraySettings(context);
    TrayNames trays = {};
    if (records != nullptr)
        TakeSources(trays, records);
    trayColumnCount = 0;
    if (trays.count == 0)
        return;
    for (size_t i = 0; i < trays.count; ++i)
        InsertRow(list, static_cast<int>(i), trays.names[i], records[i]);
    trayColumnCount = kPlainColumns;
    for (size_t i = kMediaWeight; i < kMediaTypeListCount; ++i)
        trayColumnCount += IsColumnShown(deviceTable, static_cast<MediaTypeList>(i)) ? 1 : 0;
}

void DrawTrayRow(HWND dialog, const DialogContext* context, const DRAWITEMSTRUCT& item) {
    const int state = SaveDC(item.hDC);
    if (item.itemID == UINT_MAX) {
        DrawFocusRect(item.hDC, &item.rcItem);
        RestoreDC(item.hDC, state);
        return;
    }
    RowDrawing row = {item, nullptr, 0};
    const COLORREF color = BackgroundColor(row);
    if (row.Is(ODS_SELECTED) && !row.Is(ODS_DISABLED))
        SetBkColor(item.hDC, color);
    row.background = CreateSolidBrush(color);
    const TrayPaperSetting* tray = TrayOfRow(dialog, context, static_cast<int>(item.itemID));
    row.icon = tray != nullptr && tray->orientation == kPortrait ? 0 : 1;
    DrawWholeRow(row);
    RestoreDC(item.hDC, state);
    DeleteObject(row.background);
}

int SelectedTrayRow(HWND dialog) {
    return static_cast<int>(
        Send(ListOf(dialog), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), MAKELPARAM(LVNI_SELECTED, 0)));
}

void SelectTrayRow(HWND dialog, int row) {
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED; // the arrow keys go on from here
    Send(ListOf(dialog), LVM_SETITEMSTATE, static_cast<WPARAM>(row), &item);
}

TrayPaperSetting* TrayOfRow(HWND dialog, const DialogContext* context, int row) {
    TrayPaperSetting* records = GetTraySettings(context);
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    if (records == nullptr || row < 0 || !Send(ListOf(dialog), LVM_GETITEMW, 0, &item)
        || static_cast<size_t>(item.lParam) >= TELMAR_TRAY_COUNT)
        return nullptr;
    return &records[item.lParam];
}

LRESULT RepaintTrayRows(WNDPROC own, HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(list, &paint);
        RECT strip = {};
        GetClipBox(dc, &strip);
        strip.left = 0;
        strip.right = ClientWidth(list);
        InvalidateRect(list, &strip, FALSE);
        EndPaint(list, &paint);
    }
    return CallWindowProcW(own, list, message, wParam, lParam);
}

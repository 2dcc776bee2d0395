// Reads the stop-icon table and draws the signs.
#include "uimodule/stop_icons.h"

namespace {

constexpr COLORREF kRed = RGB(204, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

// Calls `use` for each record in use.
template <typename Use>
void ForEachRecord(const StopIconTable* table, const Use& use) {
    if (table == nullptr)
        return;
    for (const StopIconRecord& record : table->records) {
        if (record.iconControl == 0)
            return;
        use(record);
    }
}

void FillArea(HDC dc, const RECT& area, COLORREF color) {
    SetDCBrushColor(dc, color);
    FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

} // namespace

StopIcons FindStopIcons(HWND dialog, const StopIconTable* table) {
    StopIcons icons = {};
    ForEachRecord(table, [&](const StopIconRecord& record) {
        const auto control = static_cast<int32_t>(record.iconControl);
        if (GetDlgItem(dialog, control) != nullptr)
            icons.controls[icons.count++] = control;
    });
    return icons;
}

uint32_t ControlOfStopIcon(const StopIconTable* table, uint32_t iconControl) {
    uint32_t control = 0;
    ForEachRecord(table, [&](const StopIconRecord& record) {
        if (record.iconControl == iconControl)
            control = record.control;
    });
    return control;
}

void DrawStopIcon(const DRAWITEMSTRUCT& item, bool isStop) {
    const RECT& area = item.rcItem;
    HDC dc = item.hDC;
    FillRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const int size = width < height ? width : height;
    if (!isStop || size <= 0)
        return;
    const int saved = SaveDC(dc);
    const int left = area.left + (width - size) / 2;
    const int top = area.top + (height - size) / 2;
    SelectObject(dc, GetStockObject(DC_PEN));
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SetDCPenColor(dc, kRed);
    SetDCBrushColor(dc, kRed);
    Ellipse(dc, left, top, left + size, top + size);
    const int margin = size / 5;
    const int half = size / 8; // half the bar's height; an odd size has a bar of odd height
    const RECT bar = {left + margin, top + size / 2 - half, left + size - margin,
                      top + (size + 1) / 2 + half};
    FillArea(dc, bar, kWhite);
    RestoreDC(dc, saved);
}

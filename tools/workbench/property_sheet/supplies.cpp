// Draws the supplies in the list of the printer page.
#include "workbench/property_sheet/supplies.h"

#include "workbench/lib/text.h"

#include <algorithm>

#include <commctrl.h>

namespace {

// The colours are for a white window. With any other, as in high contrast, the words alone say it.
COLORREF TextColor(Need need, bool isSelected) {
    if (isSelected)
        return GetSysColor(COLOR_HIGHLIGHTTEXT);
    const bool isOnWhite = GetSysColor(COLOR_WINDOW) == RGB(255, 255, 255);
    if (!isOnWhite || need == Need::kLater || need == Need::kUnknown)
        return GetSysColor(COLOR_WINDOWTEXT);
    return need == Need::kNow ? RGB(192, 0, 0) : RGB(148, 82, 0);
}

int TextHeight(HDC dc) {
    TEXTMETRICW font = {};
    GetTextMetricsW(dc, &font);
    return font.tmHeight;
}

int BarWidth(int textHeight) {
    return textHeight * 4;
}

int Gap(int textHeight) {
    return textHeight / 2;
}

// The frames are in the colour of the text: black toner on a black window would not be seen without them.
void DrawBar(HDC dc, RECT bar, const MrkSupRequestItem& supply, COLORREF frame) {
    SetDCBrushColor(dc, frame);
    const auto brush = static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    FillRect(dc, &bar, GetSysColorBrush(COLOR_BTNFACE));
    if (supply.value > 0) {
        RECT full = bar;
        full.right = bar.left + std::max(MulDiv(bar.right - bar.left, supply.value, 100), 3);
        SetDCBrushColor(dc, supply.color);
        FillRect(dc, &full, brush);
        SetDCBrushColor(dc, frame);
        FrameRect(dc, &full, brush);
    }
    FrameRect(dc, &bar, brush);
}

} // namespace

void DrawSupplyRow(const DRAWITEMSTRUCT& item, const ShownSupply& supply) {
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    const int height = TextHeight(item.hDC);
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, TextColor(supply.need, isSelected));
    constexpr UINT kFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    RECT place = item.rcItem;
    place.right = place.left + static_cast<LONG>(SendMessageW(item.hwndItem, LVM_GETCOLUMNWIDTH, 0, 0));
    RECT name = place;
    InflateRect(&name, -Gap(height), 0);
    DrawTextW(item.hDC, Wide(supply.name).c_str(), -1, &name, kFormat);

    RECT bar = {place.right, place.top + 2, place.right + BarWidth(height), place.bottom - 2};
    if (supply.answer.state == TELMAR_STATE_PERCENT)
        DrawBar(item.hDC, bar, supply.answer,
                GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    RECT level = {bar.right + Gap(height), place.top, item.rcItem.right, place.bottom};
    DrawTextW(item.hDC, Wide(supply.level).c_str(), -1, &level, kFormat);
    if ((item.itemState & ODS_FOCUS) != 0)
        DrawFocusRect(item.hDC, &item.rcItem);
}

int SupplyLevelWidth(HWND list, int textHeight, const std::vector<ShownSupply>& supplies) {
    LRESULT width = 0;
    for (const ShownSupply& supply : supplies)
        width = std::max(width, SendMessageW(list, LVM_GETSTRINGWIDTHW, 0,
                                             reinterpret_cast<LPARAM>(Wide(supply.level).c_str())));
    return BarWidth(textHeight) + 2 * Gap(textHeight) + static_cast<int>(width);
}

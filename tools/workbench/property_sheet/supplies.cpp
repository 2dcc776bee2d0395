// Names, sorts and draws the supplies.
#include "workbench/property_sheet/supplies.h"

#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"

#include <algorithm>

#include <commctrl.h>

namespace {

constexpr int kLowPercent = 10; // below this a supply is low

constexpr struct {
    const char* key;
    UINT name;
} kSupplyNames[] = {
    {"Consumable2", PRINTER_TEXT_CYAN},       {"Consumable3", PRINTER_TEXT_MAGENTA},
    {"Consumable4", PRINTER_TEXT_YELLOW},     {"Consumable5", PRINTER_TEXT_BLACK},
    {"Consumable11", PRINTER_TEXT_WASTE_BOX},
};

constexpr struct {
    int32_t level;
    UINT text;
    Need need;
} kLevels[] = {
    {TELMAR_LEVEL_EMPTY, PRINTER_TEXT_LEVEL_EMPTY, Need::kNow},
    {TELMAR_LEVEL_FULL, PRINTER_TEXT_LEVEL_FULL, Need::kNow},
    {TELMAR_LEVEL_NEARLY_EMPTY, PRINTER_TEXT_LEVEL_NEARLY_EMPTY, Need::kSoon},
    {TELMAR_LEVEL_NEARLY_FULL, PRINTER_TEXT_LEVEL_NEARLY_FULL, Need::kSoon},
    {TELMAR_LEVEL_IN_ORDER, PRINTER_TEXT_LEVEL_IN_ORDER, Need::kLater},
};

struct Level {
    std::string text;
    Need need;
};

Level LevelOf(const MrkSupRequestItem& supply) {
    const std::string number = std::to_string(supply.value);
    if (supply.state == TELMAR_STATE_PERCENT) {
        if (supply.value == 0)
            return {LocalizedText(PRINTER_TEXT_PERCENT_EMPTY, {number}), Need::kNow};
        return supply.value < kLowPercent
                   ? Level{LocalizedText(PRINTER_TEXT_PERCENT_LOW, {number}), Need::kSoon}
                   : Level{LocalizedText(PRINTER_TEXT_PERCENT, {number}), Need::kLater};
    }
    for (const auto& row : kLevels)
        if (supply.state == TELMAR_STATE_LEVEL && supply.value == row.level)
            return {LocalizedText(row.text), row.need};
    return {LocalizedText(PRINTER_TEXT_LEVEL_UNKNOWN), Need::kUnknown};
}

const MrkSupRequestItem* FindSupply(const Supplies& supplies, const char* key) {
    for (const MrkSupRequestItem& supply : supplies)
        if (SameText(supply.name, key))
            return &supply;
    return nullptr;
}

// Sorts supplies of the same need: low ones by level, those in words last, all others as they come.
int Urgency(const ShownSupply& supply) {
    if (supply.need > Need::kSoon)
        return 0;
    return supply.answer.state == TELMAR_STATE_PERCENT ? supply.answer.value : kLowPercent;
}

// --- Drawing -----------------------------------------------------------------------------------------------

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

std::vector<ShownSupply> ShownSupplies(const Supplies& supplies, const Supplies& before) {
    std::vector<ShownSupply> shown;
    for (const auto& row : kSupplyNames) {
        const MrkSupRequestItem* supply = FindSupply(supplies, row.key);
        if (supply == nullptr)
            continue;
        Level level = LevelOf(*supply);
        const MrkSupRequestItem* previous = FindSupply(before, row.key);
        if (previous != nullptr && LevelOf(*previous).text != level.text)
            level.text = LocalizedText(PRINTER_TEXT_WAS, {level.text, LevelOf(*previous).text});
        shown.push_back({LocalizedText(row.name), level.text, level.need, *supply});
    }
    std::stable_sort(shown.begin(), shown.end(), [](const ShownSupply& a, const ShownSupply& b) {
        return std::pair(a.need, Urgency(a)) < std::pair(b.need, Urgency(b));
    });
    return shown;
}

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

// Draws the printer's picture. view_rules.cpp chooses the bitmaps and their order.
#include "base/records.h"
#include "base/text.h"
#include "picture/view/bitmaps.h"
#include "picture/view/view_rules.h"

namespace {

constexpr UINT kDiskMissing = 201;
constexpr UINT kDiskInstalled = 202;
constexpr int kBadgeMargin = 8; // pixels from the top right corner

constexpr int kCaptionMargin = 4; // pixels from the top left corner
constexpr int kCaptionPoints = 9;

// Between two edges of the caller's rectangle, in either order.
LONG Distance(LONG from, LONG to) {
    const int64_t distance = static_cast<int64_t>(to) - from;
    return static_cast<LONG>(distance < 0 ? -distance : distance);
}

void DrawBitmaps(HDC to, POINT centre, const ViewBitmaps& bitmaps) {
    for (size_t i = 0; i < bitmaps.partCount; ++i)
        DrawPart(to, centre, bitmaps.parts[i]);
    for (size_t i = 0; i < bitmaps.highlightCount; ++i) {
        DrawPart(to, centre, bitmaps.highlights[i] + 1); // the mask
        DrawHighlightColor(to, centre, bitmaps.highlights[i]);
    }
}

// Loads the badge once to measure it, then draws it like any part.
void DrawBadge(HDC to, const RECT& rectangle, UINT id) {
    const SIZE size = BitmapSize(LoadedBitmap(id).handle);
    const POINT centre = {Sum(rectangle.right, -(size.cx / 2) - kBadgeMargin),
                          Sum(rectangle.top, size.cy / 2 + kBadgeMargin)};
    DrawPart(to, centre, id);
}

// The name of the selected machine, when there are several to choose from; null otherwise.
const ItemRecord* CaptionItem(const PrinterViewRequest& request) {
    const int32_t machine = FindFeature(request.features, "OpMachine");
    if (machine < 0)
        return nullptr;
    const ItemRecord* items = request.features[machine].items;
    if (items == nullptr || items[0].head.key[0] == 0 || items[1].head.key[0] == 0)
        return nullptr;
    return SelectedItem(request.features, request.settings, machine);
}

// A bold font whose height follows the target's resolution. The caller deletes it.
HFONT CreateCaptionFont(HDC target) {
    LOGFONTW font = {};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof(font), &font);
    font.lfHeight = -MulDiv(kCaptionPoints, GetDeviceCaps(target, LOGPIXELSY), 72);
    font.lfWeight = FW_BOLD;
    return CreateFontIndirectW(&font);
}

void DrawCaption(HDC to, HDC target, const RECT& rectangle, const ItemRecord& item) {
    HFONT font = CreateCaptionFont(target);
    HGDIOBJ before = font != nullptr ? SelectObject(to, font) : nullptr;
    TextOutW(to, Sum(rectangle.left, kCaptionMargin), Sum(rectangle.top, kCaptionMargin), item.display,
             static_cast<int>(TextLength(item.display)));
    if (before != nullptr)
        SelectObject(to, before);
    if (font != nullptr)
        DeleteObject(font);
}

// Draws to `to`. The target is asked for its resolution only.
void DrawAll(HDC to, HDC target, const RECT& rectangle, SIZE size, const PrinterViewRequest& request) {
    const OptionSummary options = SummarizeOptions(request.features, request.settings);
    FillRect(to, &rectangle, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    DrawBitmaps(to, {Sum(rectangle.left, size.cx / 2), Sum(rectangle.top, size.cy / 2)},
                ChooseBitmaps(options, request));
    DrawBadge(to, rectangle, options.hardDisk == 1 ? kDiskInstalled : kDiskMissing);
    if (const ItemRecord* item = CaptionItem(request))
        DrawCaption(to, target, rectangle, *item);
}

} // namespace

void WINAPI DrawPrinterView(HDC target, const RECT* rectangle, const PrinterViewRequest* request) {
    if (rectangle == nullptr || request == nullptr)
        return;
    const SIZE size = {Distance(rectangle->left, rectangle->right),
                       Distance(rectangle->top, rectangle->bottom)};
    HBITMAP canvas = CreateCompatibleBitmap(target, size.cx, size.cy);
    { // the context must be deleted before the bitmap that is selected into it
        MemoryContext memory(target);
        if (memory.handle != nullptr && canvas != nullptr && memory.Select(canvas)) {
            DrawAll(memory.handle, target, *rectangle, size, *request);
            // By contract to the target's origin, wherever the rectangle is.
            BitBlt(target, 0, 0, size.cx, size.cy, memory.handle, 0, 0, SRCCOPY);
        } else {
            DrawAll(target, target, *rectangle, size, *request);
        }
    }
    if (canvas != nullptr)
        DeleteObject(canvas);
}

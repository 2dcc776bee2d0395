// Draws the logo on the pages and on the version tab. Nothing is kept between calls.
#include "base/dialog_ids.h"
#include "base/records.h"
#include "picture/view/bitmaps.h"

namespace {

// The mask of each is the next bitmap: white where the logo is, black elsewhere.
constexpr UINT kPageLogo = 500;
constexpr UINT kPageLogoMask = 501;
constexpr UINT kVersionLogo = 502;
constexpr UINT kVersionLogoMask = 503;

constexpr WORD kMovingPage = 6;
constexpr int kLogoGap = 8; // pixels between the logo and the control below it

// Whitens the area of the mask, then draws the logo there. The rest of the picture stays unchanged.
void DrawThroughMask(HDC to, const Area& area, HBITMAP logo, HBITMAP mask, MemoryContext& through) {
    CopyBitmap(to, area, mask, through, SRCPAINT);
    CopyBitmap(to, area, logo, through, SRCAND);
}

// Moves the control vertically so that it ends where its neighbour begins. Does nothing when the page lacks
// one of them. Its new size is that of its client area: a control with a frame shrinks, by contract.
void AlignWithNeighbor(HWND page) {
    HWND control = GetDlgItem(page, IDC_LOGO_MOVED);
    RECT client;
    RECT window;
    RECT neighbor;
    if (!GetClientRect(control, &client) || !GetWindowRect(control, &window)
        || !GetWindowRect(GetDlgItem(page, IDC_LOGO_MOVED_NEIGHBOR), &neighbor))
        return;
    POINT corner = {window.left, neighbor.top - (window.bottom - window.top)};
    ScreenToClient(page, &corner);
    MoveWindow(control, corner.x, corner.y, client.right, client.bottom, FALSE);
}

} // namespace

void WINAPI DrawLogoImage(HDC context, HWND page, const void* /*reserved*/, WORD pageKind) {
    const LoadedBitmap logo(kPageLogo);
    const LoadedBitmap mask(kPageLogoMask);
    if (logo.handle == nullptr || mask.handle == nullptr)
        return;
    const SIZE size = BitmapSize(logo.handle);
    if (pageKind == kMovingPage)
        AlignWithNeighbor(page);

    RECT anchor;
    if (!GetWindowRect(GetDlgItem(page, IDC_LOGO_ANCHOR), &anchor))
        return;
    POINT topLeft = {anchor.right - size.cx, anchor.top - size.cy - kLogoGap};
    ScreenToClient(page, &topLeft);
    MemoryContext through(context);
    if (through.handle != nullptr)
        DrawThroughMask(context, {topLeft, size}, logo.handle, mask.handle, through);
}

void WINAPI DrawLogoVersionTab(HDC context, const void* /*reserved*/, LONG x, LONG y) {
    const LoadedBitmap logo(kVersionLogo);
    const LoadedBitmap mask(kVersionLogoMask);
    MemoryContext through(context);
    if (through.handle == nullptr || logo.handle == nullptr)
        return;
    const Area area = AreaAround({x, y}, BitmapSize(logo.handle));
    if (mask.handle != nullptr)
        DrawThroughMask(context, area, logo.handle, mask.handle, through);
    else
        CopyBitmap(context, area, logo.handle, through, SRCCOPY);
}

// The logo: see the header. Nothing survives a call but the moved control.
#include "base/records.h"

#include "picture/view/bitmaps.h"

namespace {

// The bitmap behind each is its mask: white where the logo lies, black elsewhere.
constexpr UINT kPageLogo = 500;
constexpr UINT kPageLogoMask = 501;
constexpr UINT kVersionLogo = 502;
constexpr UINT kVersionLogoMask = 503;

constexpr int kLogoNeighbor = 1074; // the logo sits above it
constexpr int kMovedControl = 1301;
constexpr int kMovedAbove = 1007;

constexpr WORD kMovingPage = 6;
constexpr int kLogoGap = 8; // pixels between the logo and its neighbour

// Whitens what the mask names, then puts the logo there. Everything else stays.
void DrawThroughMask(HDC to, const Area& area, HBITMAP logo, HBITMAP mask, MemoryContext& through) {
    CopyBitmap(to, area, mask, through, SRCPAINT);
    CopyBitmap(to, area, logo, through, SRCAND);
}

// Moves the control upward or downward until it stands upon its neighbour. Not when the page lacks one of
// them.
void StandUponNeighbor(HWND page) {
    HWND control = GetDlgItem(page, kMovedControl);
    RECT client;
    RECT window;
    RECT neighbor;
    if (!GetClientRect(control, &client) || !GetWindowRect(control, &window)
        || !GetWindowRect(GetDlgItem(page, kMovedAbove), &neighbor))
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
        StandUponNeighbor(page);

    RECT neighbor;
    if (!GetWindowRect(GetDlgItem(page, kLogoNeighbor), &neighbor))
        return;
    POINT topLeft = {neighbor.right - size.cx, neighbor.top - size.cy - kLogoGap};
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

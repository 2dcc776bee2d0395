// Loads and draws the module's bitmaps.
#include "picture/view/bitmaps.h"

#include "base/module_handles.h"

namespace {

void DrawCentred(HDC to, POINT centre, UINT id, DWORD rasterOperation) {
    const LoadedBitmap bitmap(id);
    if (bitmap.handle == nullptr)
        return;
    MemoryContext through(to);
    if (through.handle != nullptr)
        CopyBitmap(to, AreaAround(centre, BitmapSize(bitmap.handle)), bitmap.handle, through,
                   rasterOperation);
}

} // namespace

// A DIB section keeps the bitmap's own colours, whatever the screen supports.
LoadedBitmap::LoadedBitmap(UINT id)
    : handle(static_cast<HBITMAP>(
        LoadImageW(ModuleInstance(), MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION))) {}

LoadedBitmap::~LoadedBitmap() {
    if (handle != nullptr)
        DeleteObject(handle);
}

SIZE BitmapSize(HBITMAP bitmap) {
    BITMAP info = {};
    if (GetObjectW(bitmap, sizeof(info), &info) == 0)
        return {};
    return {info.bmWidth, info.bmHeight};
}

MemoryContext::MemoryContext(HDC compatibleWith) : handle(CreateCompatibleDC(compatibleWith)) {}

MemoryContext::~MemoryContext() {
    if (handle == nullptr)
        return;
    if (own != nullptr)
        SelectObject(handle, own);
    DeleteDC(handle);
}

bool MemoryContext::Select(HBITMAP bitmap) {
    HGDIOBJ before = SelectObject(handle, bitmap);
    if (before != nullptr && own == nullptr)
        own = before;
    return before != nullptr;
}

Area AreaAround(POINT centre, SIZE size) {
    return {{Sum(centre.x, -(size.cx / 2)), Sum(centre.y, -(size.cy / 2))}, size};
}

void CopyBitmap(HDC to, const Area& area, HBITMAP bitmap, MemoryContext& through, DWORD rasterOperation) {
    if (through.Select(bitmap))
        BitBlt(to, area.topLeft.x, area.topLeft.y, area.size.cx, area.size.cy, through.handle, 0, 0,
               rasterOperation);
}

void DrawPart(HDC to, POINT centre, UINT id) {
    DrawCentred(to, centre, id, SRCAND);
}

void DrawHighlightColor(HDC to, POINT centre, UINT id) {
    DrawCentred(to, centre, id, SRCINVERT);
}

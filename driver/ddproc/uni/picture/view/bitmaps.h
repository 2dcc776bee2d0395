// The module's own bitmaps: loaded by resource id when they are drawn, measured, drawn and released.
#ifndef PICTURE_VIEW_BITMAPS_H
#define PICTURE_VIEW_BITMAPS_H

#include <windows.h>

// Owns one bitmap of the module's resources; the handle is null when it can't be loaded.
struct LoadedBitmap {
    explicit LoadedBitmap(UINT id);
    ~LoadedBitmap();
    LoadedBitmap(const LoadedBitmap&) = delete;
    LoadedBitmap& operator=(const LoadedBitmap&) = delete;

    const HBITMAP handle;
};

// Width and height in pixels; 0 x 0 when they can't be read.
SIZE BitmapSize(HBITMAP bitmap);

// Owns a memory context; the handle is null when it can't be created. What is selected into it must outlive
// it: the context goes first, with its own bitmap back in place.
struct MemoryContext {
    explicit MemoryContext(HDC compatibleWith);
    ~MemoryContext();
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;

    // False when the bitmap can't be selected. The context's own bitmap goes back at the end.
    bool Select(HBITMAP bitmap);

    const HDC handle;
    HGDIOBJ own = nullptr; // the context's bitmap, while another is selected
};

// Where a bitmap goes.
struct Area {
    POINT topLeft;
    SIZE size;
};

// Coordinates come from callers: their sums wrap instead of overflowing.
constexpr LONG Sum(LONG a, LONG b) {
    return static_cast<LONG>(static_cast<LONGLONG>(a) + b);
}

// The area of this size around a centre; halves are cut toward zero.
Area AreaAround(POINT centre, SIZE size);

// Copies a bitmap to this area with a raster operation, from the bitmap's top left corner on. What can't be
// selected is not drawn.
void CopyBitmap(HDC to, const Area& area, HBITMAP bitmap, MemoryContext& through, DWORD rasterOperation);

// Draws a bitmap around a centre: AND, so that what is white in it leaves what lies below. A bitmap that
// can't be loaded is skipped, as is one for which there is no memory context.
void DrawPart(HDC to, POINT centre, UINT id);

// The same with XOR: puts the colours into what a mask has cleared to black.
void DrawHighlightColor(HDC to, POINT centre, UINT id);

#endif

// The module's bitmaps. Each is loaded by its resource identifier for one drawing and released afterwards.
#ifndef PICTURE_VIEW_BITMAPS_H
#define PICTURE_VIEW_BITMAPS_H

#include <windows.h>

// Owns one bitmap of the module's resources. The handle is null when it cannot be loaded.
struct LoadedBitmap {
    explicit LoadedBitmap(UINT id);
    ~LoadedBitmap();
    LoadedBitmap(const LoadedBitmap&) = delete;
    LoadedBitmap& operator=(const LoadedBitmap&) = delete;

    const HBITMAP handle;
};

// Width and height in pixels; 0 x 0 when they cannot be read.
SIZE BitmapSize(HBITMAP bitmap);

// Owns a memory context. The handle is null when it cannot be created. A bitmap that is selected into it must
// outlive it; the destructor selects the context's own bitmap again before it deletes the context.
struct MemoryContext {
    explicit MemoryContext(HDC compatibleWith);
    ~MemoryContext();
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;

    // False when the bitmap cannot be selected.
    bool Select(HBITMAP bitmap);

    const HDC handle;
    HGDIOBJ own = nullptr; // the context's bitmap, while another is selected
};

// Where a bitmap is drawn.
struct Area {
    POINT topLeft;
    SIZE size;
};

// Coordinates are the callers' and may be anything: sums wrap around.
constexpr LONG Sum(LONG a, LONG b) {
    return static_cast<LONG>(static_cast<LONGLONG>(a) + b);
}

// The area of this size around a centre. Halves are rounded towards zero.
Area AreaAround(POINT centre, SIZE size);

// Copies a bitmap to this area with a raster operation, starting at the bitmap's top left corner. Draws
// nothing when the bitmap cannot be selected.
void CopyBitmap(HDC to, const Area& area, HBITMAP bitmap, MemoryContext& through, DWORD rasterOperation);

// Draws a bitmap around a centre with AND: its white pixels leave the picture unchanged. Draws nothing when
// the bitmap cannot be loaded or the memory context cannot be created.
void DrawPart(HDC to, POINT centre, UINT id);

// The same with XOR: adds the colours where a mask has cleared the picture to black.
void DrawHighlightColor(HDC to, POINT centre, UINT id);

#endif

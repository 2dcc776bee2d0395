// Pictures for tests: bitmaps unpacked from a module's resources without the system's help, canvases to draw
// on, and their comparison.
#ifndef SUPPORT_CANVAS_H
#define SUPPORT_CANVAS_H

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>
#include <windows.h>

constexpr uint32_t kWhite = 0xFFFFFF;
constexpr uint32_t kGround = 0x3060C0; // of a canvas, where nothing is drawn

struct Picture {
    int width, height;
    std::vector<uint32_t> pixels; // row by row from the top, 0xRRGGBB
};

// A bitmap of the resources; all zero when there is none with this identifier.
struct ResourceBitmap : Picture {
    ResourceBitmap(HMODULE module, UINT id);

    BITMAPINFOHEADER header = {};
    DWORD bytes = 0; // of the whole resource
};

// A 32-bit DIB section with a context of its own, initially of one colour.
struct Canvas {
    Canvas(int canvasWidth, int canvasHeight, uint32_t color = kGround);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void Clear(uint32_t color = kGround) const;
    // Combines a picture with the canvas, pixel by pixel: SRCAND, SRCINVERT, SRCPAINT or SRCCOPY.
    void Combine(const Picture& picture, POINT topLeft, DWORD rasterOperation) const;
    Picture Content() const;

    const int width, height;
    const HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap;
    uint32_t* bits;
    HGDIOBJ own;
};

// Fails when the pictures differ, and writes both as bitmaps named after the test next to the test program.
testing::AssertionResult SamePicture(const Canvas& got, const Canvas& wanted);

bool IsSamePicture(const Canvas& got, const Canvas& wanted);

#endif

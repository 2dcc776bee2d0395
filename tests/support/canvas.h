// Pictures of the tests: the module's bitmaps unpacked from its resources by hand, canvases to draw on, and
// their comparison.
#ifndef SUPPORT_CANVAS_H
#define SUPPORT_CANVAS_H

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>
#include <windows.h>

constexpr uint32_t kWhite = 0xFFFFFF;
constexpr uint32_t kGround = 0x3060C0; // of a canvas, to show what is not drawn

struct Picture {
    int width, height;
    std::vector<uint32_t> pixels; // from the top left corner on, as 0xRRGGBB
};

// A bitmap as it lies in the resources; all zero when there is none of this id.
struct ResourceBitmap : Picture {
    ResourceBitmap(HMODULE module, UINT id);

    BITMAPINFOHEADER header = {};
    DWORD octets = 0; // of the whole resource
};

// A 32-bit section with a context of its own, in one colour at first.
struct Canvas {
    Canvas(int canvasWidth, int canvasHeight, uint32_t color = kGround);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void Clear(uint32_t color = kGround) const;
    // Puts a picture here, pixel by pixel: SRCAND, SRCINVERT, SRCPAINT or SRCCOPY.
    void Combine(const Picture& picture, POINT topLeft, DWORD rasterOperation) const;
    Picture Content() const;

    const int width, height;
    const HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap;
    uint32_t* bits;
    HGDIOBJ own;
};

// For a test that expects them to be the same: a pair that differs is left as two bitmaps beside the test
// program, named after the test.
testing::AssertionResult SamePicture(const Canvas& got, const Canvas& wanted);

// For a test that goes by the answer.
bool IsSamePicture(const Canvas& got, const Canvas& wanted);

#endif

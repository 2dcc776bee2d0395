// Pictures in memory: drawing on them with GDI, captions, and PNG files. No display is needed.
#ifndef WORKBENCH_LIB_PICTURE_H
#define WORKBENCH_LIB_PICTURE_H

#include "workbench/lib/document.h"

#include <memory>
#include <windows.h>

// A white picture, 32 bits per pixel. Sizes are in pixels.
struct Canvas {
    explicit Canvas(SIZE wanted); // throws Failure when memory is exhausted
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    const SIZE size;
    HDC context = nullptr;
    HBITMAP bitmap = nullptr;
    void* pixels = nullptr; // top row first, without gaps; owned by the bitmap
    HGDIOBJ before = nullptr;
};

struct TextStyle {
    LONG height; // of a line, in pixels
    LONG weight;
    COLORREF color;
    UINT placement; // DT_ flags
};
constexpr TextStyle kCaptionStyle = {14, FW_NORMAL, RGB(73, 80, 87), DT_CENTER | DT_VCENTER};

// Draws one line of text (UTF-8) into the rectangle. A text that does not fit ends in dots.
void DrawLine(HDC to, RECT place, const TextStyle& style, const char* text);

// The picture as a PNG file. `hasAlpha`: the fourth byte of each pixel is its opacity; otherwise it is
// ignored, since GDI leaves it undefined.
std::string EncodePng(const Canvas& canvas, bool hasAlpha = false);

// Writes the picture to this path (UTF-8) and returns path and size. An existing file is replaced only when
// the new one is complete. Throws Failure with the reason.
Document WritePicture(const Canvas& canvas, const std::string& path);

// Reads the picture in a file (UTF-8 path). Throws Failure when there is none.
std::unique_ptr<Canvas> ReadPicture(const std::string& path);

#endif

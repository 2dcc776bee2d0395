// Pictures in memory, drawn on by GDI and written as PNG files. No display is needed.
#ifndef WORKBENCH_LIB_PICTURE_FILE_H
#define WORKBENCH_LIB_PICTURE_FILE_H

#include "workbench/lib/document.h"

#include <memory>
#include <windows.h>

// White at the start, 32 bits per pixel. Sizes are pixels.
struct Canvas {
    explicit Canvas(SIZE wanted); // throws Failure when the system has no memory for it
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    const SIZE size;
    HDC context = nullptr;
    HBITMAP bitmap = nullptr;
    void* pixels = nullptr; // top row first, without gaps; the bitmap's
    HGDIOBJ before = nullptr;
};

// Writes the picture to this path (UTF-8), in place of what is there only once it is complete, and tells path
// and size. Throws Failure that says why it can't be written.
Document WritePicture(const Canvas& canvas, const std::string& path);

// The picture in a file (UTF-8 path). Throws Failure when there is none.
std::unique_ptr<Canvas> ReadPicture(const std::string& path);

#endif

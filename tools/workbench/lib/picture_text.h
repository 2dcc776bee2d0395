// Lines of text on sheets of pictures.
#ifndef WORKBENCH_LIB_PICTURE_TEXT_H
#define WORKBENCH_LIB_PICTURE_TEXT_H

#include <windows.h>

struct TextStyle {
    LONG height; // of a line, in pixels
    LONG weight;
    COLORREF color;
    UINT placement; // DT_ flags
};
constexpr TextStyle kCaptionStyle = {14, FW_NORMAL, RGB(73, 80, 87), DT_CENTER | DT_VCENTER};

// Writes one line (UTF-8) into the place, with dots where it doesn't fit.
void DrawLine(HDC to, RECT place, const TextStyle& style, const char* text);

#endif

// What the module draws, and what it should draw.
#ifndef DIALOGS_TEST_PICTURES_H
#define DIALOGS_TEST_PICTURES_H

#include "support/canvas.h"

#include <string>

constexpr RECT kPlace = {30, 7, 190, 23}; // of an entry

struct Pictures {
    Pictures(int width, int height) : got(width, height), wanted(width, height) {}

    void Clear() {
        got.Clear();
        wanted.Clear();
    }
    void WantFill(const RECT& area, COLORREF color) const {
        HBRUSH brush = CreateSolidBrush(color);
        FillRect(wanted.dc, &area, brush);
        DeleteObject(brush);
    }
    void WantTextIn(int color) const {
        SetBkMode(wanted.dc, TRANSPARENT);
        SetTextColor(wanted.dc, GetSysColor(color));
    }
    void WantBackground(int color) const { WantFill(kPlace, GetSysColor(color)); }
    void WantText(const std::wstring& text, int indent, int color) const {
        WantTextIn(color);
        TextOutW(wanted.dc, kPlace.left + indent, kPlace.top + 1, text.c_str(), static_cast<int>(text.size()));
    }
    void WantFocus(const RECT& area = kPlace) const { DrawFocusRect(wanted.dc, &area); }

    Canvas got, wanted;
};

#endif

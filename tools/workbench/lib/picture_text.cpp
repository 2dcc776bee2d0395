// Lines of text on sheets of pictures: see the header.
#include "workbench/lib/picture_text.h"

#include "workbench/lib/output.h"

void DrawLine(HDC to, RECT place, const TextStyle& style, const char* text) {
    LOGFONTW description = {};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof(description), &description);
    description.lfHeight = style.height;
    description.lfWeight = style.weight;
    description.lfQuality = ANTIALIASED_QUALITY;
    const HFONT font = CreateFontIndirectW(&description);
    const HGDIOBJ before = SelectObject(to, font);
    SetTextColor(to, style.color);
    SetBkMode(to, TRANSPARENT);
    DrawTextW(to, Wide(text).c_str(), -1, &place,
              style.placement | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(to, before);
    DeleteObject(font);
}

// The logo on the property pages and on the version page.
#ifndef PICTURE_VIEW_LOGO_H
#define PICTURE_VIEW_LOGO_H

#include <windows.h>

extern "C" {

// Puts the logo just above control 1074 of the page (a dialog), right edges in line, with the page's client
// coordinates in the context. On a page of kind 6 control 1301 is moved first, to stand upon control 1007.
// Does nothing at all unless the module holds both bitmaps, logo and mask; as delivered it holds neither.
void WINAPI DrawLogoImage(HDC context, HWND page, const void* reserved, WORD pageKind);

// Puts the logo picture around this centre (logical units): through its mask when the module holds one,
// otherwise as it is.
void WINAPI DrawLogoVersionTab(HDC context, const void* reserved, LONG x, LONG y);
}

#endif

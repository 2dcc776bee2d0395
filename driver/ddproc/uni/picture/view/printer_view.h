// The picture of the printer with its installed units, for the property pages.
#ifndef PICTURE_VIEW_PRINTER_VIEW_H
#define PICTURE_VIEW_PRINTER_VIEW_H

#include "picture/view/view_request.h"

#include <windows.h>

// Fills the rectangle (logical units of the target) with the picture on white: composed off-screen as large
// as the rectangle, then copied to the target's origin at once; straight on the target when there is no
// memory for that. Nothing is drawn without a rectangle or a request.
extern "C" void WINAPI DrawPrinterView(HDC target, const RECT* rectangle, const PrinterViewRequest* request);

#endif

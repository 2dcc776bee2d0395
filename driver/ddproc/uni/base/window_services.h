// Calls to windows and controls that the module and the driver's other programs with dialogs share. Header
// only and without state: the programs link nothing of each other.
#ifndef BASE_WINDOW_SERVICES_H
#define BASE_WINDOW_SERVICES_H

#include <windows.h>

// Sends a message to a control of a dialog.
inline LRESULT SendToControl(HWND dialog, int control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendDlgItemMessageW(dialog, control, message, wParam, lParam);
}

// Height of the window's font in pixels.
inline LONG FontHeight(HWND window) {
    TEXTMETRICW metrics = {};
    const HDC dc = GetDC(window);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, before);
    ReleaseDC(window, dc);
    return metrics.tmHeight;
}

#endif

// Small questions about windows that several files of the library ask. Header only.
#ifndef UIMODULE_WINDOW_PARTS_H
#define UIMODULE_WINDOW_PARTS_H

#include <windows.h>

// Whether the window is of this class and its style, under the mask, has this value.
inline bool IsKind(HWND window, const wchar_t* name, LONG_PTR mask, LONG_PTR style) {
    wchar_t className[16] = L"";
    GetClassNameW(window, className, sizeof(className) / sizeof(className[0]));
    return lstrcmpiW(className, name) == 0 && (GetWindowLongPtrW(window, GWL_STYLE) & mask) == style;
}

// On the screen.
inline RECT FrameOf(HWND window) {
    RECT frame = {};
    GetWindowRect(window, &frame);
    return frame;
}

inline LONG Smaller(LONG a, LONG b) {
    return a < b ? a : b;
}

inline LONG Larger(LONG a, LONG b) {
    return a > b ? a : b;
}

// The part of the window's screen that programs may cover.
inline RECT WorkAreaOf(HWND window) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

// Width of a text in the window's font, in pixels. A single '&' marks an access key and has no width, unless
// the format is DT_NOPREFIX.
inline LONG TextWidth(HWND window, const wchar_t* text, UINT format = 0) {
    const HDC dc = GetDC(window);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
    RECT area = {};
    DrawTextW(dc, text, -1, &area, DT_CALCRECT | DT_SINGLELINE | format);
    SelectObject(dc, before);
    ReleaseDC(window, dc);
    return area.right - area.left;
}

#endif

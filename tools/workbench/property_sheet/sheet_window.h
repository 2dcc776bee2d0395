// The window of the property sheet with all pages.
#ifndef WORKBENCH_PROPERTY_SHEET_SHEET_WINDOW_H
#define WORKBENCH_PROPERTY_SHEET_SHEET_WINDOW_H

#include "workbench/property_sheet/property_page.h"

// An open sheet, where it was last time: the first time in the middle of the monitor with the mouse. The
// destructor destroys the window, then the pages.
class SheetWindow {
public:
    // Throws Failure when there is no display.
    explicit SheetWindow(SheetState& state);
    ~SheetWindow();
    SheetWindow(const SheetWindow&) = delete;
    SheetWindow& operator=(const SheetWindow&) = delete;

    HWND Window() const { return window; }
    HWND CurrentPage() const;
    POINT Place() const; // the window's corner on the screen

    // Waits for messages, at most this many milliseconds, and handles them. False when OK or Cancel has
    // closed the sheet.
    bool HandleMessages(DWORD maxWait = INFINITE);

private:
    bool IsKeyOfPage(const MSG& message) const;

    std::vector<std::unique_ptr<PropertyPage>> pages;
    HWND window = nullptr;
};

#endif

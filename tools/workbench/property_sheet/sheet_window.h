// The property sheet: all pages in one window.
#ifndef WORKBENCH_PROPERTY_SHEET_SHEET_WINDOW_H
#define WORKBENCH_PROPERTY_SHEET_SHEET_WINDOW_H

#include "workbench/property_sheet/property_page.h"

// An open sheet. It destroys its window, and then its pages, at its end.
class SheetWindow {
public:
    // Throws Failure when there is no display.
    explicit SheetWindow(SheetState& state);
    ~SheetWindow();
    SheetWindow(const SheetWindow&) = delete;
    SheetWindow& operator=(const SheetWindow&) = delete;

    HWND Window() const { return window; }
    HWND CurrentPage() const;

    // Waits for messages, at most so many milliseconds, and handles them. False when the sheet has been
    // ended, by OK or Cancel.
    bool HandleMessages(DWORD longestWait = INFINITE);

private:
    std::vector<std::unique_ptr<PropertyPage>> pages;
    HWND window = nullptr;
};

#endif

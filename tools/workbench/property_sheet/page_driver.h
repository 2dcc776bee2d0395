// Uses an open property sheet by messages, as a person would: for the tour and for tests.
#ifndef WORKBENCH_PROPERTY_SHEET_PAGE_DRIVER_H
#define WORKBENCH_PROPERTY_SHEET_PAGE_DRIVER_H

#include "workbench/property_sheet/sheet_window.h"

#include <functional>

class PageDriver {
public:
    explicit PageDriver(SheetWindow& sheetWindow) : sheet(sheetWindow) {}

    // Controls are those of the page in front.
    HWND Control(int id) const { return GetDlgItem(sheet.CurrentPage(), id); }
    std::string Text(int id) const;

    void TurnTo(SheetPage page) const;
    void SetText(int id, const std::string& utf8) const;
    void Click(int button) const;

    // Chooses the first entry, or row, with this text. Throws Failure when there is none.
    void Choose(int list, const std::string& wanted) const;

    // Presses a button of the sheet: PSBTN_OK, PSBTN_APPLYNOW, PSBTN_CANCEL. False when the sheet has ended.
    bool Press(int button) const;

    // Handles messages until the condition holds. Throws Failure after that many milliseconds.
    void WaitUntil(const std::function<bool()>& condition, DWORD most) const;

    // Saves a picture of the sheet; path in UTF-8.
    Document Picture(const std::string& path) const;

private:
    SheetWindow& sheet;
};

#endif

// Operates an open property sheet by messages, as a person would. For the tour and for tests.
#ifndef WORKBENCH_PROPERTY_SHEET_PAGE_DRIVER_H
#define WORKBENCH_PROPERTY_SHEET_PAGE_DRIVER_H

#include "workbench/lib/dialog_view.h"
#include "workbench/property_sheet/sheet_window.h"

#include <functional>

class PageDriver {
public:
    explicit PageDriver(SheetWindow& sheetWindow) : sheet(sheetWindow) {}

    // Controls are those of the current page.
    HWND Control(int id) const { return GetDlgItem(sheet.CurrentPage(), id); }
    std::string Text(int id) const { return TextOf(Control(id)); }

    void TurnTo(SheetPage page) const;
    void SetText(int id, const std::string& utf8) const;
    void Click(int button) const;

    // Selects the first entry or row with this text. Throws Failure when there is none.
    void Choose(int list, const std::string& wanted) const;

    // Selects the entry or row at this position.
    void ChooseAt(int list, size_t position) const;

    // Presses a button of the sheet: PSBTN_OK, PSBTN_APPLYNOW, PSBTN_CANCEL. False when the sheet has closed.
    bool Press(int button) const;

    // Handles messages until the condition is true. Throws Failure after this many milliseconds.
    void WaitUntil(const std::function<bool()>& condition, DWORD maxWait) const;

    // Saves a picture of the sheet; path in UTF-8.
    Document Picture(const std::string& path) const;

private:
    SheetWindow& sheet;
};

#endif

// Operates the pages of a property sheet by messages.
#include "workbench/property_sheet/page_driver.h"

#include "workbench/lib/text.h"

void PageDriver::TurnTo(SheetPage page) const {
    SendMessageW(sheet.Window(), PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
}

void PageDriver::SetText(int id, const std::string& utf8) const {
    SetWindowTextW(Control(id), Wide(utf8).c_str());
    // A combo box reports only what a person types.
    SendMessageW(sheet.CurrentPage(), WM_COMMAND, MAKEWPARAM(id, CBN_EDITCHANGE),
                 reinterpret_cast<LPARAM>(Control(id)));
}

void PageDriver::Click(int button) const {
    SendMessageW(Control(button), BM_CLICK, 0, 0);
}

void PageDriver::Choose(int list, const std::string& wanted) const {
    const std::vector<std::string> entries = EntriesOf(Control(list));
    const auto found = std::find(entries.begin(), entries.end(), wanted);
    if (found == entries.end())
        throw Failure(kExitFailed, "the page has no '" + wanted + "' in list " + std::to_string(list));
    ChooseAt(list, static_cast<size_t>(found - entries.begin()));
}

void PageDriver::ChooseAt(int list, size_t position) const {
    SelectEntry(Control(list), position);
    SendMessageW(sheet.CurrentPage(), WM_COMMAND, MAKEWPARAM(list, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Control(list)));
}

bool PageDriver::Press(int button) const {
    SendMessageW(sheet.Window(), PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
    return sheet.CurrentPage() != nullptr;
}

void PageDriver::WaitUntil(const std::function<bool()>& condition, DWORD maxWait) const {
    const DWORD start = GetTickCount();
    while (!condition()) {
        const DWORD spent = GetTickCount() - start;
        if (spent >= maxWait)
            throw Failure(kExitFailed, "the page is still waiting after " + std::to_string(maxWait)
                                           + " milliseconds; try again");
        sheet.HandleMessages(maxWait - spent);
    }
}

Document PageDriver::Picture(const std::string& path) const {
    return TakePicture(sheet.Window(), path);
}

// press_button LIST POSITION BUTTON: waits for a dialog with this list, selects the entry at this position as a user
// does, and presses a button. Exit code 1 when no such dialog opens within a minute.
#include <cstdlib>
#include <windows.h>

namespace {

struct Search {
    int list;
    HWND found;
};

BOOL CALLBACK FindDialog(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (IsWindowVisible(window) && GetDlgItem(window, search.list) != nullptr)
        search.found = window;
    return search.found == nullptr;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 4)
        return 2;
    Search search = {std::atoi(arguments[1]), nullptr};
    for (int waits = 0; search.found == nullptr && waits < 600; ++waits) {
        Sleep(100);
        EnumWindows(FindDialog, reinterpret_cast<LPARAM>(&search));
    }
    if (search.found == nullptr)
        return 1;
    const HWND list = GetDlgItem(search.found, search.list);
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(std::atoi(arguments[2])), 0);
    SendMessageW(search.found, WM_COMMAND, MAKEWPARAM(search.list, CBN_SELENDOK), reinterpret_cast<LPARAM>(list));
    PostMessageW(GetDlgItem(search.found, std::atoi(arguments[3])), BM_CLICK, 0, 0);
    return 0;
}

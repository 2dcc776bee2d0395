// Places windows by the owner's frame and the screen, and an icon by its text.
#include "uimodule/placement.h"

#include "base/dialog_ids.h"
#include "uimodule/window_parts.h"

namespace {

void MoveIntoScreen(HWND window, LONG x, LONG y) {
    const RECT frame = FrameOf(window);
    const RECT screen = WorkAreaOf(window);
    x = Larger(screen.left, Smaller(x, screen.right - (frame.right - frame.left)));
    y = Larger(screen.top, Smaller(y, screen.bottom - (frame.bottom - frame.top)));
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Owners on the way may be invisible.
HWND VisibleOwner(HWND dialog) {
    HWND owner = GetWindow(dialog, GW_OWNER);
    while (owner != nullptr && (!IsWindowVisible(owner) || IsIconic(owner)))
        owner = GetWindow(owner, GW_OWNER);
    return owner;
}

} // namespace

void PlaceOverOwner(HWND dialog) {
    HWND owner = VisibleOwner(dialog);
    if (owner == nullptr)
        return;
    const RECT below = FrameOf(owner);
    const RECT frame = FrameOf(dialog);
    MoveIntoScreen(dialog, (below.left + below.right - (frame.right - frame.left)) / 2,
                   (below.top + below.bottom - (frame.bottom - frame.top)) / 2);
}

void PlaceNextTo(HWND window, HWND dialog) {
    const RECT frame = FrameOf(dialog);
    MoveIntoScreen(window, frame.right, frame.top);
}

void PlaceCheckBoxIcon(HWND dialog) {
    HWND box = GetDlgItem(dialog, IDC_MATCH_PAPER_COLOR);
    HWND icon = GetDlgItem(dialog, IDC_MATCH_PAPER_COLOR_ICON);
    if (box == nullptr || icon == nullptr)
        return;
    wchar_t text[128] = L"";
    GetWindowTextW(box, text, sizeof(text) / sizeof(text[0]));
    RECT boxFrame = FrameOf(box);
    RECT iconFrame = FrameOf(icon);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&boxFrame), 2);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&iconFrame), 2);
    const LONG height = boxFrame.bottom - boxFrame.top;
    const LONG gap = height / 4;
    // The square takes less than the height of the line; the text begins a gap after it.
    const LONG end = Smaller(boxFrame.left + height + 2 * gap + TextWidth(box, text), iconFrame.left - gap);
    SetWindowPos(box, nullptr, 0, 0, end - boxFrame.left, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(icon, nullptr, end + gap, iconFrame.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

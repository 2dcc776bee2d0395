// The hint window. It is a tool tip of the system: the dialog frees this library while it is being destroyed,
// and no window procedure of the library may be running then.
#include "uimodule/hint_window.h"

#include "uimodule/window_parts.h"

#include <commctrl.h>

namespace {

constexpr UINT_PTR kFollowTimer = 0x4849; // of the hint window; the tool tip's own timers have small numbers
constexpr UINT kFollowInterval = 50;      // milliseconds

// The only tool is the dialog itself, at a position that is set.
TTTOOLINFOW Tool(HWND dialog, wchar_t* text) {
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    tool.hwnd = dialog;
    tool.lpszText = text;
    return tool;
}

LRESULT SendTool(HWND hintWindow, UINT message, WPARAM wParam, const TTTOOLINFOW& tool) {
    return SendMessageW(hintWindow, message, wParam, reinterpret_cast<LPARAM>(&tool));
}

// Keeps the window below the dialog and within the screen. A tool tip is above all windows by default; this
// one is only above its dialog.
void CALLBACK Follow(HWND hintWindow, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    HWND dialog = GetWindow(hintWindow, GW_OWNER);
    const RECT below = FrameOf(dialog);
    const RECT frame = FrameOf(hintWindow);
    const RECT screen = WorkAreaOf(dialog);
    const LONG x = Smaller(below.left, screen.right - (frame.right - frame.left));
    const LONG y = Smaller(below.bottom, screen.bottom - (frame.bottom - frame.top));
    if (x != frame.left || y != frame.top)
        SetWindowPos(hintWindow, HWND_NOTOPMOST, x, y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
}

} // namespace

HWND CreateHintWindow(HWND dialog) {
    if (dialog == nullptr)
        return nullptr;
    HWND hintWindow =
        CreateWindowExW(WS_EX_NOACTIVATE, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                        0, 0, 0, 0, dialog, nullptr, nullptr, nullptr);
    wchar_t noText[] = L"";
    if (hintWindow != nullptr)
        SendTool(hintWindow, TTM_ADDTOOLW, 0, Tool(dialog, noText));
    return hintWindow;
}

void ShowHint(HWND hintWindow, HWND dialog, const wchar_t* text) {
    if (hintWindow == nullptr || GetWindow(hintWindow, GW_OWNER) != dialog)
        return;
    if (text[0] == 0) {
        KillTimer(hintWindow, kFollowTimer);
        SendTool(hintWindow, TTM_TRACKACTIVATE, FALSE, Tool(dialog, nullptr));
        SendTool(hintWindow, TTM_UPDATETIPTEXTW, 0, Tool(dialog, const_cast<wchar_t*>(text)));
        return;
    }
    const RECT frame = FrameOf(dialog);
    SendMessageW(hintWindow, TTM_SETMAXTIPWIDTH, 0, frame.right - frame.left);
    SendMessageW(hintWindow, TTM_TRACKPOSITION, 0, MAKELPARAM(frame.left, frame.bottom));
    const TTTOOLINFOW tool = Tool(dialog, const_cast<wchar_t*>(text));
    SendTool(hintWindow, TTM_UPDATETIPTEXTW, 0, tool);
    SendTool(hintWindow, TTM_TRACKACTIVATE, TRUE, tool);
    Follow(hintWindow, 0, 0, 0);
    SetTimer(hintWindow, kFollowTimer, kFollowInterval, Follow);
}

// The entry through which the user-interface module has the model's dialogs run.
#ifndef FRAME_DLG_PROC_H
#define FRAME_DLG_PROC_H

#include <cstdint>
#include <windows.h>

constexpr uint32_t kTrayButtonPage = 156; // the property page with the tray-settings button
constexpr int kTrayButton = 1847;

// From the page with the tray-settings button to its parent, once the tray dialog has ended by OK: wParam is
// the page.
constexpr UINT kTraysChangedMessage = WM_USER + 104;

// Answers one message of the dialog with this identifier. `handled`, which may be null, becomes 1 when the
// dialog has acted on the message. 0, and nothing handled, for other identifiers.
extern "C" int32_t WINAPI DDProc_DlgProc(uint32_t dialogId, HWND window, UINT message, WPARAM wParam,
                                         LPARAM lParam, int32_t* handled);

#endif

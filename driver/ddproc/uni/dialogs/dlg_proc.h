// The entry through which the user-interface module has the model's dialogs run.
#ifndef DIALOGS_DLG_PROC_H
#define DIALOGS_DLG_PROC_H

#include <cstdint>
#include <windows.h>

// Answers one message of the dialog with this identifier. `handled`, which may be null, becomes 1 when the
// dialog has acted on the message. 0, and nothing handled, for other identifiers.
extern "C" int32_t WINAPI DDProc_DlgProc(uint32_t dialogId, HWND window, UINT message, WPARAM wParam,
                                         LPARAM lParam, int32_t* handled);

#endif

// The functions of TELMAR_U.DLL that the dialogs call, by the names that they are exported under. Any of them
// may be missing: then its effect is lost.
#ifndef DIALOGS_SHARED_UI_CALLBACKS_H
#define DIALOGS_SHARED_UI_CALLBACKS_H

#include "dialogs/shared/dialog_context.h"
#include "paramdata/control_texts.h"

#include <windows.h>

#pragma pack(push, 1)

// The icon control that shows a stop sign beside a control whose choice is refused.
struct StopIconRecord {
    uint32_t iconControl;
    uint16_t control;
    uint16_t reserved1;
    uint8_t reserved2[8224];
};
static_assert(sizeof(StopIconRecord) == 8232);

// The records that are used come first; the first icon control 0 ends them.
struct StopIconTable {
    uint8_t header[16];
    StopIconRecord records[120];
    uint8_t reserved[2176];
};
static_assert(sizeof(StopIconTable) == 990032);

#pragma pack(pop)

// Results of DoConstraints that refuse a change; any other keeps it.
constexpr int32_t kChangeRefused = 100;
constexpr int32_t kChangeRefusedToo = 101;

extern "C" {

// Puts the texts of common items, then those of the model, into the dialog's title and controls.
using ReplaceDlgDispStringCmnItemFunction = void WINAPI(HWND dialog, const ControlTextRecord* texts,
                                                        uint32_t dialogId, DialogContext* context);
using ReplaceDlgDispStringFunction = void WINAPI(HWND dialog, const ControlTextRecord* texts);

// The dialog's hint window.
using CreateToolWndFunction = HWND WINAPI(HWND dialog);

using StoreStopIconRectFunction = void WINAPI(HWND dialog, const StopIconTable* table);

// Checks the settings after the control has changed, or all of them (control 0).
using DoConstraintsFunction = int32_t WINAPI(const void* reserved1, HWND dialog, HWND hintWindow,
                                             uint32_t control, int32_t all, const void* reserved2);

// Refreshes the hint display.
using DispHintControlFunction = void WINAPI(HWND dialog, DialogContext* context, uint16_t dialogId);

// 0 when the download manager is not installed.
using IsInstalledDLManagerFunction = int32_t WINAPI();

// Draws an icon control from its WM_DRAWITEM record.
using ReqDrawStopInfoIconFunction = void WINAPI(HWND dialog, uint32_t control, const DRAWITEMSTRUCT* item,
                                                const StopIconTable* table);

// Runs a dialog modally and returns its end code; 1 means OK.
using MyDialogBoxFunction = INT_PTR WINAPI(HINSTANCE resources, HWND owner, uint32_t templateId,
                                           DLGPROC procedure, LPARAM parameter);

// The instance that holds the icons of the tray list.
using GetImgResInstFunction = HINSTANCE WINAPI();
}

#endif

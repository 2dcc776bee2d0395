// What the user-interface module hands over for each dialog, and the questions that the dialogs ask of it.
// The module never keeps or frees any of it.
#ifndef DIALOGS_SHARED_DIALOG_CONTEXT_H
#define DIALOGS_SHARED_DIALOG_CONTEXT_H

#include "paramdata/oem_devmode.h"

#include <windows.h>

struct TrayPaperSetting; // trays/tray_settings.h

#pragma pack(push, 1)

// Colour profiles that the printer holds, of one use.
struct ProfileList {
    const ProfileEntry* entries; // may be null when there are none
    uint32_t count;
};

struct ProfileLists {
    ProfileList rgbSources;
    ProfileList simulations;
    ProfileList destinations;
};
static_assert(sizeof(ProfileList) == 12 && sizeof(ProfileLists) == 36);

struct DialogContext {
    OemDevmode* settings; // edited in place
    OemDevmode* saveArea; // holds the settings as they were at opening, from then to the dialog's end
    OemDevmode* scratch;  // for the default settings
    const ProfileLists* profiles;
    HANDLE printer;          // of the spooler
    uint32_t changesAllowed; // 0: the user may look, but not change
    uint32_t shortRgbLists;  // not 0: RGB sources are device RGB and sRGB only
    TrayPaperSetting* trays; // ten records, for the tray-setting dialogs
};
static_assert(sizeof(DialogContext) == 56 && offsetof(DialogContext, saveArea) == 8
              && offsetof(DialogContext, scratch) == 16 && offsetof(DialogContext, profiles) == 24
              && offsetof(DialogContext, printer) == 32 && offsetof(DialogContext, changesAllowed) == 40
              && offsetof(DialogContext, shortRgbLists) == 44 && offsetof(DialogContext, trays) == 48);

#pragma pack(pop)

// The answers; of a null context null, or what changes nothing.
inline OemDevmode* GetDialogSettings(const DialogContext* context) {
    return context != nullptr ? context->settings : nullptr;
}
inline OemDevmode* GetDialogSaveArea(const DialogContext* context) {
    return context != nullptr ? context->saveArea : nullptr;
}
inline const ProfileLists* GetPrinterProfileLists(const DialogContext* context) {
    return context != nullptr ? context->profiles : nullptr;
}
inline bool IsSettingChangeAllowed(const DialogContext* context) {
    return context == nullptr || context->changesAllowed != 0;
}
inline bool IsShortRgbListContext(const DialogContext* context) {
    return context != nullptr && context->shortRgbLists != 0;
}
inline TrayPaperSetting* GetTraySettings(const DialogContext* context) {
    return context != nullptr ? context->trays : nullptr;
}

// To a colour dialog that lists the printer's profiles: show the settings again. No parameters.
constexpr UINT kRefreshMessage = WM_USER + 100;

#endif

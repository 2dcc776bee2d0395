// What the user-interface module hands over for each dialog, and the questions that the dialogs ask of it.
// The module never keeps or frees any of it.
#ifndef DIALOGS_SHARED_DIALOG_CONTEXT_H
#define DIALOGS_SHARED_DIALOG_CONTEXT_H

#include "base/records.h"

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

#endif

// Access to the dialog context, which the user-interface module passes to each dialog. It and all that it
// points to belong to that module; nothing of it is kept beyond the dialog or freed here.
#ifndef DIALOGS_SHARED_DIALOG_CONTEXT_H
#define DIALOGS_SHARED_DIALOG_CONTEXT_H

#include "base/records.h"

// A null context gives null pointers, permits changes and has full RGB lists.
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

// Runs one of the model's dialogs modally, as the user-interface module does: the module handles its
// messages, and a script or a person uses it.
#ifndef WORKBENCH_LIB_DIALOG_RUN_H
#define WORKBENCH_LIB_DIALOG_RUN_H

#include "workbench/lib/dialog_script.h"
#include "workbench/lib/dialog_view.h"
#include "workbench/lib/family_files.h"
#include "workbench/lib/model_dialogs.h"
#include "workbench/lib/profile_file.h"

// The context of a dialog: the settings and trays that it edits, its work areas and the printer's profiles.
// The arguments must outlive the object.
struct DialogAreas {
    DialogAreas(OemDevmode& settings, TrayPaperSetting* trays, const PrinterProfiles& profiles);
    DialogAreas(const DialogAreas&) = delete;
    DialogAreas& operator=(const DialogAreas&) = delete;

    DialogContext context = {}; // changes are allowed

private:
    OemDevmode saveArea = {};
    OemDevmode scratch = {};
    const ProfileLists lists;
};

struct DialogEnd {
    INT_PTR code;        // the dialog's result
    DialogView view;     // what it showed when OK or Cancel was pressed
    bool isPageNotified; // of a tray dialog: after OK the page's parent received TELMAR_WM_TRAYS_CHANGED
};

struct DialogUse {
    DialogScript& script;    // runs when the dialog is open
    bool waitsForPerson;     // after the script; otherwise Cancel is pressed if the dialog is still open
    std::string lastPicture; // file for a picture of the dialog before it closes; empty: none
    HWND owner = nullptr;    // stays below the dialog and is disabled while it is open
};

// Opens the dialog and uses it; one at a time. Throws Failure when the dialog cannot be opened or the script
// cannot be completed. When an action takes longer than the script's time limit, for example because the
// system waits for an answer in a window of its own, the process ends with a message. A person has no time
// limit.
DialogEnd RunDialog(const FamilyFiles& family, HINSTANCE templates, const ModelDialog& dialog,
                    DialogContext& context, const DialogUse& use);

#endif

// One of the model's dialogs, run modally: a dialog box whose messages the module answers, as the
// user-interface module runs it, and a script or a person that uses it.
#ifndef WORKBENCH_LIB_DIALOG_RUN_H
#define WORKBENCH_LIB_DIALOG_RUN_H

#include "base/records.h"
#include "dialogs/shared/dialog_context.h"
#include "paramdata/device_table.h"
#include "workbench/lib/dialog_script.h"
#include "workbench/lib/dialog_view.h"
#include "workbench/lib/profile_file.h"

// The dialog for trays that the model chooses; 0 when it has none.
uint32_t TrayDialogOf(const DeviceTable* table);

// What a dialog is given: settings and trays to be changed, the areas that go with them, the printer's
// profiles. All that is referred to outlives it.
struct DialogAreas {
    DialogAreas(OemDevmode& settings, TrayPaperSetting* trays, const PrinterProfiles& profiles);
    DialogAreas(const DialogAreas&) = delete;
    DialogAreas& operator=(const DialogAreas&) = delete;

    DialogContext context = {}; // the user may change everything

private:
    OemDevmode saveArea = {};
    OemDevmode scratch = {};
    const ProfileLists lists;
};

struct ModelDialog {
    uint32_t id; // of the dialog and its template
    HINSTANCE templates;
    decltype(&DDProc_DlgProc) answer; // the module's
    bool hasButton; // opened by the module itself, when the button of a property page is pressed
};

struct DialogEnd {
    INT_PTR code;    // that the dialog ends with
    DialogView view; // what it showed when OK or Cancel was pressed
    bool isPageTold; // of a dialog with a button: the page's parent has been told of the OK
};

struct DialogUse {
    DialogScript& script; // runs once the dialog is up
    bool waitsForPerson;  // after the script; otherwise Cancel is pressed where that leaves the dialog open
    std::string lastPicture; // file for a picture of what OK or Cancel ends; empty: none is taken
    HWND owner = nullptr;    // stays below the dialog, and is disabled meanwhile
};

// Opens the dialog and uses it. Throws Failure when there is no such dialog, no display, or the script can't
// be run to its end. One at a time.
DialogEnd RunDialog(const ModelDialog& dialog, DialogContext& context, const DialogUse& use);

#endif

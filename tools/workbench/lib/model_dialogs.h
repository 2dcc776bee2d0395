// Which dialogs there are, and which of them a model has. The types of two switches of the device table
// decide: "ColorSetting" and "Dlg_MediaType".
#ifndef WORKBENCH_LIB_MODEL_DIALOGS_H
#define WORKBENCH_LIB_MODEL_DIALOGS_H

#include "workbench/lib/module_parts.h"

#include <vector>

// A dialog and its template have the same number.
struct ModelDialog {
    uint32_t id;
    bool isForTrays; // opened by the module itself when the button on a property page is pressed
};

// All dialogs of all models, by number.
std::vector<ModelDialog> AllDialogs();

// The colour dialog of the model. Each model has one.
ModelDialog ColorDialogOf(const DeviceTable& table);

// The tray-setting dialog of the model; its number is 0 when the model has none.
ModelDialog TrayDialogOf(const DeviceTable& table);

#endif

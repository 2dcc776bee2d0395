// Finds the model's dialogs. The user-interface module opens the colour dialogs, so the choice among them is
// made here as it makes it; the module chooses the tray-setting dialog, so that is looked up in the module.
#include "workbench/lib/model_dialogs.h"

#include "common/color_dialogs.h"

#include <algorithm>
#include <iterator>

std::vector<ModelDialog> AllDialogs() {
    std::vector<ModelDialog> dialogs;
    for (const ColorDialogRow& dialog : kColorDialogsByType)
        dialogs.push_back({dialog.id, false});
    for (uint32_t type = 1; FindTrayDialog(type) != nullptr; ++type)
        dialogs.push_back({FindTrayDialog(type)->templateId, true});
    std::sort(dialogs.begin(), dialogs.end(), [](const auto& a, const auto& b) { return a.id < b.id; });
    const auto isSame = [](const auto& a, const auto& b) { return a.id == b.id; };
    dialogs.erase(std::unique(dialogs.begin(), dialogs.end(), isSame), dialogs.end());
    return dialogs;
}

ModelDialog ColorDialogOf(const DeviceTable& table) {
    const uint32_t type = SwitchValue(&table, kSwitchColorSetting);
    return {kColorDialogsByType[type < std::size(kColorDialogsByType) ? type : 0].id, false};
}

ModelDialog TrayDialogOf(const DeviceTable& table) {
    const TrayDialogEntry* dialog = FindTrayDialog(SwitchValue(&table, kSwitchDlgMediaType));
    return {dialog != nullptr ? dialog->templateId : 0, true};
}

// Finds the model's dialogs. The user-interface module opens the colour dialogs, so the choice among them is
// made here as it makes it; the module chooses the tray-setting dialog, so that is looked up in the module.
#include "workbench/lib/model_dialogs.h"

#include <algorithm>
#include <iterator>

namespace {

// By type of "ColorSetting". Further types have the dialog of type 0, too.
constexpr uint32_t kColorDialogs[] = {123, 128, 122, 123, 124, 125};

} // namespace

std::vector<ModelDialog> AllDialogs() {
    std::vector<ModelDialog> dialogs;
    for (const uint32_t id : kColorDialogs)
        dialogs.push_back({id, false});
    for (uint32_t type = 1; FindTrayDialog(type) != nullptr; ++type)
        dialogs.push_back({FindTrayDialog(type)->templateId, true});
    std::sort(dialogs.begin(), dialogs.end(), [](const auto& a, const auto& b) { return a.id < b.id; });
    const auto isSame = [](const auto& a, const auto& b) { return a.id == b.id; };
    dialogs.erase(std::unique(dialogs.begin(), dialogs.end(), isSame), dialogs.end());
    return dialogs;
}

ModelDialog ColorDialogOf(const DeviceTable& table) {
    const uint32_t type = SwitchValue(&table, kSwitchColorSetting);
    return {kColorDialogs[type < std::size(kColorDialogs) ? type : 0], false};
}

ModelDialog TrayDialogOf(const DeviceTable& table) {
    const TrayDialogEntry* dialog = FindTrayDialog(SwitchValue(&table, kSwitchDlgMediaType));
    return {dialog != nullptr ? dialog->templateId : 0, true};
}

// All entries by group, the search by name, and what the module does with the feature switches.
#include "common/text.h"
#include "paramdata/feature_switches.h"
#include "prmc/schema/record_kinds.h"

#include <vector>

namespace {

constexpr SwitchUse kSwitchUses[] = {
    {kSwitchColorSetting, "TYPE3 selects another help topic for the basic colour dialog, and locks fewer of "
                          "its controls."},
    {kSwitchMediaWeight, "Shows the weight in the tray dialog of TYPE1."},
    {kSwitchMediaColor, "Shows the colour in the tray dialogs of TYPE1 and TYPE2."},
    {kSwitchMediaPrePunched, "Shows whether paper is pre-punched in the tray dialogs of TYPE1 and TYPE2."},
    {kSwitchBindingEdge, "The settings start from binding edge 10, otherwise from 14."},
    {kSwitchFCoverPrint, "The settings start with both covers printed by the driver (1), otherwise not (4)."},
    {kSwitchDlgMediaType, "Selects the tray dialog. TYPE1: six attributes; TYPE2: without the weight; TYPE3: "
                          "size, orientation and type. Without it the button opens no dialog."},
};

constexpr const char* kTextNote =
    "A key names the control that shows the text, or the dialog whose title it is.";
constexpr const char* kSelectionNote =
    "The lists are for the generic modules. Each item has the bin number of the source that its key names.";
constexpr const char* kOptionNote =
    "Items and defaults are for the generic modules. This module learns from them what is installed.";

const EntryGroup kGroups[] = {
    {"Features, ranges and facts about the device", "", kDeviceEntries},
    {"Paper and trays", "", kPaperEntries},
    {"Quality, layout and finishing", "", kFinishingEntries},
    {"Output and storage", "", kOutputEntries},
    {"Tray selections", kSelectionNote, kTraySelectionEntries},
    {"Colour settings", "", kColorEntries},
    {"Texts of the dialogs", kTextNote, kDialogTextEntries},
    {"Installable options", kOptionNote, kOptionEntries},
};

std::vector<EntryRow> AllEntries() {
    std::vector<EntryRow> all;
    for (const EntryGroup& group : kGroups)
        all.insert(all.end(), group.entries.begin(), group.entries.end());
    return all;
}

} // namespace

Rows<EntryRow> KnownEntries() {
    static const std::vector<EntryRow> all = AllEntries();
    return {all.data(), all.size()};
}

Rows<EntryGroup> EntryGroups() {
    return kGroups;
}

Rows<SwitchUse> UsedSwitches() {
    return kSwitchUses;
}

const EntryRow* FindEntryRow(std::string_view name) {
    for (const EntryRow& row : KnownEntries()) {
        if (EqualNoCase(row.name, name))
            return &row;
    }
    return nullptr;
}

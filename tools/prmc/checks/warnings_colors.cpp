// Warnings about the colour settings.
#include "common/choices.h"
#include "common/color_dialogs.h"
#include "common/text.h"
#include "paramdata/color_keys.h"
#include "paramdata/control_text_keys.h"
#include "prmc/checks/dialog_templates.h"
#include "prmc/checks/model_query.h"
#include "prmc/checks/warning_checks.h"

#include <algorithm>

namespace {

// Lists in which an item's position is its value, and the keys in the order of the values.
const struct {
    const char* entry;
    Rows<const char*> keys;
} kPositionalLists[] = {
    {"RGBProf", kPageProfileKeys},
    {"SimulationProf", kSimulationKeys},
    {"DestinationProf", kPageDestinationKeys},
    {"Simu_CMYKGray", kSimulationGrayKeys},
};

std::string InOrder(const Rows<const char*>& keys) {
    return Listing(keys, [](const char* key) { return key; });
}

void CheckPositions(const Model& model, Findings& findings) {
    for (const auto& [name, keys] : kPositionalLists) {
        const std::vector<Record>& items = EntryOf(model, name).records;
        for (size_t i = 0; i < std::min(items.size(), keys.count); ++i) {
            const Value& key = items[i].values.front();
            const auto isSame = [&key = key](const char* known) { return EqualNoCase(known, key.text); };
            if (isSame(keys[i]) || std::none_of(keys.begin(), keys.end(), isSame))
                continue;
            findings.Warning(key.place, Quote(key.text) + " means " + Quote(keys[i])
                                            + " here, since the driver stores an item's position in "
                                            + Quote(name) + " and not its key: write the items in its order, "
                                            + InOrder(keys));
            break;
        }
    }
}

// The dialog counts this many entries before those of the printer's profiles, however many items there are.
void CheckSimulations(const Model& model, Findings& findings) {
    const Entry& entry = EntryOf(model, "SimulationProf");
    if (entry.row != nullptr && entry.records.size() < kMaxSimulations)
        findings.Warning(entry.place,
                         "'SimulationProf' has " + std::to_string(entry.records.size())
                             + " items, but the colour dialog takes the entries after the "
                             + std::to_string(kMaxSimulations)
                             + "th for profiles of the printer: a profile that the user chooses is "
                               "lost, or another one is stored; write all items, "
                             + InOrder(kSimulationKeys));
}

// The labels of a colour dialog have the names of the entries that fill the lists below them.
void CheckShownLists(const Model& model, Findings& findings) {
    const Feature feature = FeatureOf(model, "ColorSetting");
    if (feature.row == nullptr || !HasColor(model)) // without colour the whole dialog is reported
        return;
    const size_t type = feature.type < std::size(kColorDialogsByType) ? feature.type : 0;
    const auto dialog = static_cast<int>(kColorDialogsByType[type].id);
    std::string missing;
    for (const ControlTextRow& label : kColorDialogTexts)
        if (ListOfLabel(label.identifiers[0]) != 0 && HasControl(dialog, label.identifiers[0])
            && EntryOf(model, label.key).records.empty())
            missing += (missing.empty() ? "" : ", ") + Quote(label.key);
    if (!missing.empty())
        findings.Warning(feature.row->namePlace,
                         "feature 'ColorSetting' is on, but lists of its dialog, " + std::to_string(dialog)
                             + ", are missing or empty, so that it shows no texts in them: " + missing);
}

void CheckMonochrome(const Model& model, Findings& findings) {
    const Feature dialog = FeatureOf(model, "ColorSetting");
    if (dialog.row != nullptr && !HasColor(model))
        findings.Warning(
            dialog.row->namePlace,
            "'ColorSetting' is on, but for the driver this printer has no colour: omit the row, or "
            "write ColorDevice: \"TRUE\" in 'DevInfo'");
}

} // namespace

void CheckColors(const Model& model, bool isWhole, Findings& findings) {
    CheckPositions(model, findings);
    if (!isWhole)
        return;
    CheckSimulations(model, findings);
    CheckMonochrome(model, findings);
    CheckShownLists(model, findings);
}

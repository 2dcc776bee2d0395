// Warnings about texts that are longer than what shows them, and about the one key that is read as a number.
#include "base/dialog_ids.h"
#include "common/text.h"
#include "paramdata/control_text_keys.h"
#include "paramdata/feature_switches.h"
#include "paramdata/paper_sources.h"
#include "paramdata/prm_layout.h"
#include "prmc/checks/dialog_templates.h"
#include "prmc/checks/model_query.h"
#include "prmc/checks/text_width.h"
#include "prmc/checks/warning_checks.h"

#include <algorithm>

namespace {

void CheckWidth(const Entry& entry, const Record& item, int control, Findings& findings) {
    const Value* name = FindValue(entry, item, "name");
    const int room = WidestControl(control);
    const int width = name != nullptr ? LeastTextWidth(name->text) : 0;
    if (room != 0 && width > room)
        findings.Warning(name->place, "name " + Quote(name->text) + " is cut: it needs "
                                          + std::to_string(width)
                                          + " dialog units or more, and what shows it has "
                                          + std::to_string(room) + ": shorten it");
}

void CheckListWidths(const Entry& entry, int list, Findings& findings) {
    for (const Record& item : entry.records)
        CheckWidth(entry, item, list, findings);
}

// The texts of a dialog's controls; those of several dialogs are titles.
void CheckControlWidths(const Entry& entry, const Rows<ControlTextRow>& texts, Findings& findings) {
    for (const ControlTextRow& text : texts) {
        const bool isControl = text.identifiers[0] > 0 && text.identifiers[1] == 0;
        if (const Record* item = isControl ? FindItem(entry, text.key) : nullptr)
            CheckWidth(entry, *item, text.identifiers[0], findings);
    }
}

// The lists of the tray dialog. An entry of the colour dialog has the name of its label's text.
const struct {
    const char* entry;
    int list;
} kTrayLists[] = {
    {"PaperSize", IDC_TRAY_SIZE},
    {"MediaTypeList_Size", IDC_TRAY_SIZE},
    {"MediaTypeList_Orient", IDC_TRAY_ORIENTATION},
    {"MediaType", IDC_TRAY_TYPE},
    {"MediaTypeList_Type", IDC_TRAY_TYPE},
    {"MediaWeight", IDC_TRAY_WEIGHT},
    {"MediaTypeList_Weight", IDC_TRAY_WEIGHT},
    {"MediaColor", IDC_TRAY_COLOR},
    {"MediaTypeList_Color", IDC_TRAY_COLOR},
    {"MediaPrePunched", IDC_TRAY_PRE_PUNCHED},
    {"MediaTypeList_Hole", IDC_TRAY_PRE_PUNCHED},
};

void CheckWidths(const Model& model, Findings& findings) {
    if (FeatureOf(model, "ColorSetting").row != nullptr) {
        CheckControlWidths(EntryOf(model, "Dlg_ColorSetting"), kColorDialogTexts, findings);
        for (const ControlTextRow& label : kColorDialogTexts)
            CheckListWidths(EntryOf(model, label.key), ListOfLabel(label.identifiers[0]), findings);
    }
    const Feature trayDialog = FeatureOf(model, "Dlg_MediaType");
    if (trayDialog.row != nullptr && trayDialog.type <= kLastTrayDialogType) {
        CheckControlWidths(EntryOf(model, "Dlg_PaperSourceTraySetting"), kTrayDialogTexts, findings);
        for (const auto& [entry, list] : kTrayLists)
            CheckListWidths(EntryOf(model, entry), list, findings);
    }
}

// The system's list of paper sources has a field of fixed length for each name.
void CheckBinNames(const Model& model, Findings& findings) {
    const Entry& entry = EntryOf(model, "InTray");
    for (const Record& tray : entry.records) {
        const Value* name = FindValue(entry, tray, "name");
        if (name != nullptr && Utf16FromUtf8(name->text).size() > kMaxBinNameChars)
            findings.Warning(name->place,
                             "name " + Quote(name->text) + " is cut after " + std::to_string(kMaxBinNameChars)
                                 + " characters in the system's list of paper sources: shorten it");
    }
}

void CheckResolutions(const Model& model, Findings& findings) {
    for (const Record& item : EntryOf(model, "Resolution").records) {
        const Value& key = item.values.front();
        const std::string number = key.text.substr(std::min(kResolutionNumberAt, key.text.size()));
        if (key.given && number.find_first_of("123456789") == std::string::npos)
            findings.Warning(key.place, "the driver takes 0 for the resolution of " + Quote(key.text)
                                            + ": it reads the number in the key after character "
                                            + std::to_string(kResolutionNumberAt) + ", as in Reso_600dpi");
    }
}

} // namespace

void CheckTexts(const Model& model, bool isWhole, Findings& findings) {
    if (!isWhole) // a text may be an error already
        return;
    CheckWidths(model, findings);
    CheckBinNames(model, findings);
    CheckResolutions(model, findings);
}

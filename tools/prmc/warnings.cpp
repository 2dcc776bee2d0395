// Warnings, each from what the driver does with the data. What differs only in data is a row of a table.
#include "prmc/warnings.h"

#include "base/dialog_ids.h"
#include "base/text.h"
#include "common/choices.h"
#include "common/text.h"
#include "paramdata/color_keys.h"
#include "paramdata/control_text_keys.h"
#include "paramdata/feature_switches.h"
#include "paramdata/paper_sources.h"
#include "paramdata/prm_layout.h"
#include "prmc/dialog_templates.h"
#include "prmc/text_width.h"

#include <algorithm>

namespace {

// --- Parts of the model ------------------------------------------------------------------------------------

const Entry* FindEntry(const Model& model, std::string_view name) {
    for (const Entry& entry : model.entries)
        if (EqualNoCase(entry.name, name))
            return &entry;
    return nullptr;
}

// The items of an entry; none without the entry.
Rows<Record> ItemsOf(const Model& model, std::string_view name) {
    const Entry* entry = FindEntry(model, name);
    return entry != nullptr ? Rows<Record>(entry->records.data(), entry->records.size()) : Rows<Record>();
}

const Record* FindItem(const Model& model, std::string_view entry, std::string_view key) {
    for (const Record& item : ItemsOf(model, entry))
        if (EqualNoCase(ItemLabel(item), key))
            return &item;
    return nullptr;
}

// The row of a name/value table; null without one.
const Pair* FindRow(const Model& model, std::string_view table, std::string_view name) {
    for (const Record& record : ItemsOf(model, table))
        for (const Pair& row : record.values.front().pairs)
            if (EqualNoCase(row.name, name))
                return &row;
    return nullptr;
}

// A field of an item; null when it is not given.
const Value* FindValue(const Kind& kind, const Record& item, std::string_view field) {
    for (size_t i = 0; i < kind.fields.count; ++i)
        if (kind.fields[i].name == field && item.values[i].given)
            return &item.values[i];
    return nullptr;
}

// A feature that is on: its row, and the n of TYPEn or 1. Without a row it is off.
struct Feature {
    const Pair* row;
    unsigned type;
};

Feature FindFeature(const Model& model, const char* name) {
    const Pair* row = FindRow(model, "FeatureSetting", name);
    if (row == nullptr)
        return {};
    for (const FeatureSwitchRow& feature : kFeatureSwitches) {
        if (!EqualNoCase(feature.name, name))
            continue;
        if (feature.enablingValue != nullptr)
            return EqualNoCase(row->value, feature.enablingValue) ? Feature{row, 1} : Feature{};
        constexpr size_t kPrefix = sizeof("TYPE") - 1;
        const std::string_view number =
            std::string_view(row->value).substr(std::min(kPrefix, row->value.size()));
        return {row, ParseWhole<unsigned>(number).value_or(1)};
    }
    return {};
}

bool HasTrayDialog(const Feature& feature) {
    return feature.row != nullptr && feature.type <= kLastTrayDialogType;
}

std::string InOrder(const Rows<const char*>& keys) {
    return Listing(keys, [](const char* key) { return key; });
}

// --- Colour settings ---------------------------------------------------------------------------------------

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

void CheckPositions(const Model& model, Findings& findings) {
    for (const auto& [entry, keys] : kPositionalLists) {
        const Rows<Record> items = ItemsOf(model, entry);
        for (size_t i = 0; i < std::min(items.count, keys.count); ++i) {
            const Value& key = items[i].values.front();
            const bool isKnown = std::any_of(keys.begin(), keys.end(),
                                             [&](const char* known) { return EqualNoCase(known, key.text); });
            if (!isKnown || EqualNoCase(key.text, keys[i]))
                continue;
            findings.Warning(key.place,
                             Quote(key.text) + " means " + Quote(keys[i])
                                 + " here, since the driver stores an item's position in " + Quote(entry)
                                 + " and not its key: write the items in its order, " + InOrder(keys));
            break;
        }
    }
}

// The colour dialog counts from the position after the last item. See the entries of the list of simulations.
void CheckSimulations(const Model& model, Findings& findings) {
    const Entry* entry = FindEntry(model, "SimulationProf");
    if (entry != nullptr && entry->records.size() < kMaxSimulations)
        findings.Warning(entry->place,
                         "'SimulationProf' has " + std::to_string(entry->records.size())
                             + " items, but the colour dialog takes the entries after the "
                             + std::to_string(kMaxSimulations)
                             + "th for profiles of the printer: a profile that the user chooses is "
                               "lost, or another one is stored; write all items, "
                             + InOrder(kSimulationKeys));
}

void CheckMonochrome(const Model& model, Findings& findings) {
    const Feature dialog = FindFeature(model, "ColorSetting");
    const Pair* device = FindRow(model, "DevInfo", "ColorDevice");
    if (dialog.row != nullptr && (device == nullptr || !EqualNoCase(device->value, "TRUE")))
        findings.Warning(
            dialog.row->namePlace,
            "'ColorSetting' is on, but for the driver this printer has no colour: omit the row, or write "
            "ColorDevice: \"TRUE\" in 'DevInfo'");
}

// --- Paper sources -----------------------------------------------------------------------------------------

void CheckSourceKeys(const Model& model, Findings& findings) {
    const auto keyOf = [](const PaperSourceRow& source) { return source.key; };
    for (const char* entry : {"InTray", "ALL_InTray"}) {
        for (const Record& item : ItemsOf(model, entry)) {
            const Value& key = item.values.front();
            if (key.given
                && std::none_of(std::begin(kPaperSources), std::end(kPaperSources),
                                [&](const auto& source) { return EqualNoCase(source.key, key.text); }))
                findings.Warning(key.place,
                                 Quote(key.text)
                                     + " is no paper source that the driver knows: no picture marks it, "
                                       "and it can't be chosen for covers or single pages; "
                                     + Choices(kPaperSources, keyOf));
        }
    }
}

// The bin number that tray selections store for a source.
int64_t BinOf(const Model& model, const PaperSourceRow& source) {
    const Record* item = FindItem(model, "ALL_InTray", source.key);
    const Entry* entry = FindEntry(model, "ALL_InTray");
    const Value* value = item != nullptr ? FindValue(*entry->row->kind, *item, "value") : nullptr;
    return value != nullptr ? value->numbers[0] : source.bin;
}

void CheckBins(const Model& model, Findings& findings) {
    for (const PaperSourceRow& source : kPaperSources) {
        const Record* tray = FindItem(model, "InTray", source.key);
        const Value* value =
            tray != nullptr ? FindValue(*FindEntry(model, "InTray")->row->kind, *tray, "value") : nullptr;
        const int64_t bin = BinOf(model, source);
        for (size_t i = 0; value != nullptr && value->numbers[0] != bin && i < kTraySelectionCount; ++i) {
            if (source.selectionKeys[i][0] == 0
                || FindItem(model, kTraySelectionFeatures[i], source.selectionKeys[i]) == nullptr)
                continue;
            findings.Warning(value->place,
                             Quote(source.key) + " has the bin number " + std::to_string(value->numbers[0])
                                 + ", but " + Quote(source.selectionKeys[i]) + " of "
                                 + Quote(kTraySelectionFeatures[i]) + " stores " + std::to_string(bin)
                                 + ": give the item of 'ALL_InTray' the same value");
            break;
        }
    }
}

// The driver's list of trays ends at the first one that is not enabled.
void CheckHiddenTrays(const Model& model, Findings& findings) {
    const Entry* entry = FindEntry(model, "InTray");
    const Rows<Record> trays = ItemsOf(model, "InTray");
    const auto isOff = [&](const Record& tray) {
        const Value* enabled = FindValue(*entry->row->kind, tray, "enabled");
        return enabled != nullptr && enabled->numbers[0] == 0;
    };
    const Record* off = std::find_if(trays.begin(), trays.end(), isOff);
    const Record* hidden = std::find_if_not(off, trays.end(), isOff);
    if (hidden != trays.end())
        findings.Warning(off->place, Quote(ItemLabel(*off))
                                         + " is not enabled, which hides all trays after it, such as "
                                         + Quote(ItemLabel(*hidden)));
    if (off != trays.end() && entry->defaultItem && &trays[*entry->defaultItem] >= off)
        findings.Warning(
            trays[*entry->defaultItem].place,
            "the default " + Quote(ItemLabel(trays[*entry->defaultItem]))
                + " is not listed, since it or a tray before it is not enabled: choose another default");
}

void CheckTrayCount(const Model& model, Findings& findings) {
    const Entry* entry = FindEntry(model, "InTray");
    size_t count = 0;
    for (const Record& tray : ItemsOf(model, "InTray")) {
        const Value* bin = FindValue(*entry->row->kind, tray, "value");
        const bool hasPaper = bin != nullptr && bin->numbers[0] != BinOf(model, kPaperSources[0]);
        count += hasPaper ? 1 : 0;
        if (hasPaper && count == kMaxTraySettings + 1)
            findings.Warning(tray.place, Quote(ItemLabel(tray))
                                             + " and what follows are missing in the tray dialog: "
                                               "the settings keep the paper of "
                                             + std::to_string(kMaxTraySettings) + " trays");
    }
}

void CheckTrayNames(const Model& model, Findings& findings) {
    const Rows<Record> trays = ItemsOf(model, "InTray");
    for (const Record& item : ItemsOf(model, "MediaTypeList_Tray")) {
        const std::string& key = ItemLabel(item);
        const bool isUsed = std::any_of(trays.begin(), trays.end(), [&](const Record& tray) {
            const std::string& ending = ItemLabel(tray);
            return ending.size() < key.size() && EqualNoCase(key.substr(key.size() - ending.size()), ending);
        });
        if (!isUsed)
            findings.Warning(item.values.front().place,
                             Quote(key)
                                 + " names no tray: a key of 'MediaTypeList_Tray' ends in the key of an item "
                                   "of 'InTray', as in MediaTypeList_InTray1");
    }
}

// --- Features and what they need
// -----------------------------------------------------------------------------

constexpr const char* kNoChoice = "there is nothing to choose from";
constexpr const char* kNoTexts = "a list of the colour dialog shows no texts";
constexpr const char* kNoUnknown = "the tray dialog has no entry for trays of which this is unknown";

// A list that a feature needs, with at least one item.
const struct {
    const char* feature;
    const char* list;
    const char* effect;                 // of its absence
    const char* attribute = nullptr;    // another feature that must be on
    unsigned lastType = kMaxSwitchType; // dialogs of a higher type do without
} kNeeds[] = {
    // clang-format off
    {"MediaTypeDetail",    "MediaType",            kNoChoice},
    {"MediaWeight",        "MediaWeight",          kNoChoice},
    {"MediaColor",         "MediaColor",           kNoChoice},
    {"MediaPrePunched",    "MediaPrePunched",      kNoChoice},
    {"PaperOption1",       "PaperOption1",         kNoChoice},
    {"PaperOption2",       "PaperOption2",         kNoChoice},
    {"PaperArrangement",   "PaperArrangement",     kNoChoice},
    {"Staple",             "Staple",               kNoChoice},
    {"HolePunch",          "HolePunch",            kNoChoice},
    {"Folding",            "Folding",              kNoChoice},
    {"OutputTray",         "OutputTray",           kNoChoice},
    {"OutputOrder",        "OutputOrder",          kNoChoice},
    {"OHP_Interleave",     "OHP_Interleave",       kNoChoice},
    {"ExcelJobCtrl",       "ExcelJobCtrl",         kNoChoice},
    {"FCoverPrint",        "FCoverTray",           kNoChoice},
    {"BCoverPrint",        "BCoverTray",           kNoChoice},
    {"SeparatePagePrint",  "SeparatePageTray",     kNoChoice},
    {"OHPPrint",           "OHPIntTray",           kNoChoice},
    {"PICover",            "PIFrontCover",         kNoChoice},
    {"PICover",            "PIBackCover",          kNoChoice},
    {"PerPageSetting",     "PerPageListPrintType", kNoChoice},
    {"PPS_PaperSrc",       "PerPageListPaperSrc",  kNoChoice},
    {"PPS_Staple",         "PerPageListStaple",    kNoChoice},
    {"PPS_TabPaper",       "TabPaperPaperSize",    kNoChoice},
    {"Overlay",            "OvlForm_Location",     kNoChoice},
    {"ColorProfileSource", "Prof_Location",        "the profiles of the printer are listed without their location"},
    // Those of every colour dialog.
    {"ColorSetting",       "Text_RGBColorMatch",   kNoTexts},
    {"ColorSetting",       "Text_RGBGray",         kNoTexts},
    {"ColorSetting",       "Text_Halftone",        kNoTexts},
    {"ColorSetting",       "Img_RGBColorMatch",    kNoTexts},
    {"ColorSetting",       "Img_Halftone",         kNoTexts},
    {"Dlg_MediaType",      "InTray",               "the tray dialog has no trays",                         nullptr, kLastTrayDialogType},
    {"Dlg_MediaType",      "PaperSize",            "the tray dialog has no paper sizes to choose from",    nullptr, kLastTrayDialogType},
    {"Dlg_MediaType",      "MediaType",            "the tray dialog has no paper types to choose from",    nullptr, kLastTrayDialogType},
    {"Dlg_MediaType",      "MediaTypeList_Orient", "the tray dialog has no orientations to choose from",   nullptr, kLastTrayDialogType},
    {"Dlg_MediaType",      "MediaTypeList_Size",   kNoUnknown,                                             nullptr, kLastTrayDialogType},
    {"Dlg_MediaType",      "MediaTypeList_Type",   kNoUnknown,                                             nullptr, kLastTrayDialogType},
    {"Dlg_MediaType",      "MediaTypeList_Weight", kNoUnknown,                                             "MediaWeight", 1},
    {"Dlg_MediaType",      "MediaTypeList_Color",  kNoUnknown,                                             "MediaColor", 2},
    {"Dlg_MediaType",      "MediaTypeList_Hole",   kNoUnknown,                                             "MediaPrePunched", 2},
    // clang-format on
};

void CheckNeeds(const Model& model, Findings& findings) {
    for (const auto& need : kNeeds) {
        const Feature feature = FindFeature(model, need.feature);
        const bool isUsed =
            feature.row != nullptr && feature.type <= need.lastType
            && (need.attribute == nullptr || FindFeature(model, need.attribute).row != nullptr);
        if (isUsed && ItemsOf(model, need.list).count == 0)
            findings.Warning(feature.row->namePlace, Quote(need.feature) + " is on, but " + Quote(need.list)
                                                         + " has no items: " + need.effect);
    }
}

void CheckTrayDialog(const Model& model, Findings& findings) {
    const Feature dialog = FindFeature(model, "Dlg_MediaType");
    if (dialog.row != nullptr && !HasTrayDialog(dialog))
        findings.Warning(dialog.row->valuePlace,
                         Quote(dialog.row->value)
                             + " is no tray dialog of the driver, so that none opens: write "
                               "TYPE1 to TYPE"
                             + std::to_string(kLastTrayDialogType));
}

// --- Texts -------------------------------------------------------------------------------------------------

void CheckWidth(const Model& model, const char* entryName, const Record& item, int control,
                Findings& findings) {
    const Value* name = FindValue(*FindEntry(model, entryName)->row->kind, item, "name");
    const int room = WidestControl(control);
    const int width = name != nullptr ? LeastTextWidth(name->text) : 0;
    if (room != 0 && width > room)
        findings.Warning(name->place, "name " + Quote(name->text) + " is cut: it needs "
                                          + std::to_string(width)
                                          + " dialog units or more, and what shows it has "
                                          + std::to_string(room) + ": shorten it");
}

void CheckItemWidths(const Model& model, const char* entry, int control, Findings& findings) {
    for (const Record& item : ItemsOf(model, entry))
        CheckWidth(model, entry, item, control, findings);
}

// The texts of a dialog's controls.
void CheckControlWidths(const Model& model, const char* entry, const Rows<ControlTextRow>& texts,
                        Findings& findings) {
    for (const ControlTextRow& text : texts) {
        const bool isControl = text.identifiers[0] > 0 && text.identifiers[1] == 0;
        if (const Record* item = isControl ? FindItem(model, entry, text.key) : nullptr)
            CheckWidth(model, entry, *item, text.identifiers[0], findings);
    }
}

// The lists of the tray dialog. Those of the colour dialog have the names of their labels' texts.
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
    if (FindFeature(model, "ColorSetting").row != nullptr) {
        CheckControlWidths(model, "Dlg_ColorSetting", kColorDialogTexts, findings);
        for (const ControlTextRow& label : kColorDialogTexts)
            CheckItemWidths(model, label.key, ListOfLabel(label.identifiers[0]), findings);
    }
    if (HasTrayDialog(FindFeature(model, "Dlg_MediaType"))) {
        CheckControlWidths(model, "Dlg_PaperSourceTraySetting", kTrayDialogTexts, findings);
        for (const auto& [entry, list] : kTrayLists)
            CheckItemWidths(model, entry, list, findings);
    }
}

// The system's list of paper sources has a field of fixed length for each.
void CheckBinNames(const Model& model, Findings& findings) {
    const Entry* entry = FindEntry(model, "InTray");
    for (const Record& tray : ItemsOf(model, "InTray")) {
        const Value* name = FindValue(*entry->row->kind, tray, "name");
        if (name != nullptr && Utf16FromUtf8(name->text).size() > kMaxBinNameChars)
            findings.Warning(name->place,
                             "name " + Quote(name->text) + " is cut after " + std::to_string(kMaxBinNameChars)
                                 + " characters in the system's list of paper sources: shorten it");
    }
}

void CheckResolutions(const Model& model, Findings& findings) {
    for (const Record& item : ItemsOf(model, "Resolution")) {
        const Value& key = item.values.front();
        const std::string_view number =
            std::string_view(key.text).substr(std::min(kResolutionNumberAt, key.text.size()));
        if (key.given && number.find_first_of("123456789") == std::string_view::npos)
            findings.Warning(key.place, "the driver takes 0 for the resolution of " + Quote(key.text)
                                            + ": it reads the number in the key after character "
                                            + std::to_string(kResolutionNumberAt) + ", as in Reso_600dpi");
    }
}

using Check = void (*)(const Model& model, Findings& findings);

// Of what the model has, and of what it lacks.
constexpr Check kPresent[] = {CheckPositions,   CheckSourceKeys, CheckBins,
                              CheckHiddenTrays, CheckTrayCount,  CheckTrayDialog,
                              CheckWidths,      CheckBinNames,   CheckResolutions};
constexpr Check kAbsent[] = {CheckSimulations, CheckMonochrome, CheckTrayNames, CheckNeeds};

} // namespace

void FindWarnings(const Model& model, Findings& findings) {
    const bool isWhole = !findings.HasErrors();
    for (const Check check : kPresent)
        check(model, findings);
    for (const Check check : kAbsent)
        if (isWhole)
            check(model, findings);
}

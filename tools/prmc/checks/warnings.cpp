// Warnings about features and what they need, and the groups of warnings.
#include "prmc/checks/warnings.h"

#include "common/text.h"
#include "paramdata/feature_switches.h"
#include "prmc/checks/model_query.h"
#include "prmc/checks/warning_checks.h"

namespace {

constexpr unsigned kEvery = kLastTrayDialogType; // tray dialog
constexpr const char* kNoChoice = "there is nothing to choose from";
constexpr const char* kNoUnknown = "the tray dialog has no entry for trays of which this is unknown";

// A list that a feature needs, with at least one item.
constexpr struct {
    const char* feature;
    const char* list;
    const char* effect;                 // of its absence
    unsigned lastType = kMaxSwitchType; // dialogs of a higher type do without
    const char* attribute = nullptr;    // another feature that must be on
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
    {"ColorProfileSource", "Prof_Location",        "profiles are listed without their location"},
    {"Dlg_MediaType",      "InTray",               "the tray dialog has no trays",            kEvery},
    {"Dlg_MediaType",      "PaperSize",            "the tray dialog offers no paper sizes",   kEvery},
    {"Dlg_MediaType",      "MediaType",            "the tray dialog offers no paper types",   kEvery},
    {"Dlg_MediaType",      "MediaTypeList_Orient", "the tray dialog offers no orientations",  kEvery},
    {"Dlg_MediaType",      "MediaTypeList_Size",   kNoUnknown,                                kEvery},
    {"Dlg_MediaType",      "MediaTypeList_Type",   kNoUnknown,                                kEvery},
    {"Dlg_MediaType",      "MediaTypeList_Weight", kNoUnknown,                                1, "MediaWeight"},
    {"Dlg_MediaType",      "MediaTypeList_Color",  kNoUnknown,                                2, "MediaColor"},
    {"Dlg_MediaType",      "MediaTypeList_Hole",   kNoUnknown,                                2, "MediaPrePunched"},
    // clang-format on
};

void CheckNeeds(const Model& model, Findings& findings) {
    for (const auto& need : kNeeds) {
        const Feature feature = FeatureOf(model, need.feature);
        const bool isUsed = feature.row != nullptr && feature.type <= need.lastType
                            && (need.attribute == nullptr || FeatureOf(model, need.attribute).row != nullptr);
        if (isUsed && EntryOf(model, need.list).records.empty())
            findings.Warning(PlaceOfAbsence(model, need.list, feature.row->namePlace),
                             "feature " + Quote(need.feature) + " is on, but the list " + Quote(need.list)
                                 + " is missing or empty: " + need.effect);
    }
}

void CheckTrayDialog(const Model& model, Findings& findings) {
    const Feature dialog = FeatureOf(model, "Dlg_MediaType");
    const Feature button = FeatureOf(model, "PaperSourceTraySetting");
    if (button.row != nullptr && dialog.row == nullptr)
        findings.Warning(button.row->namePlace,
                         "feature 'PaperSourceTraySetting' is on, but its button opens no dialog: write "
                         "Dlg_MediaType: TYPE1 to TYPE"
                             + std::to_string(kLastTrayDialogType) + ", too");
    if (dialog.row != nullptr && dialog.type > kLastTrayDialogType)
        findings.Warning(dialog.row->valuePlace,
                         Quote(dialog.row->value)
                             + " is no tray dialog of the driver, so that none opens: write TYPE1 to TYPE"
                             + std::to_string(kLastTrayDialogType));
}

} // namespace

void CheckFeatures(const Model& model, bool isWhole, Findings& findings) {
    CheckTrayDialog(model, findings);
    if (isWhole)
        CheckNeeds(model, findings);
}

void FindWarnings(const Model& model, Findings& findings) {
    const bool isWhole = !findings.HasErrors();
    for (const auto check : {CheckFeatures, CheckColors, CheckPaperSources, CheckLists, CheckTexts})
        check(model, isWhole, findings);
}

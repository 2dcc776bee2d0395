// Warnings: the shipped model has none, and one change of it causes what is expected.
#include "engine_support.h"

#include "common/files.h"
#include "prmc/checks/warnings.h"
#include "prmc/forms/yaml_reader.h"

#include <gtest/gtest.h>
#include <set>

namespace {

const std::string kSource = "no paper source that the driver knows: no picture marks it, and it can't be chosen for "
                            "covers or single pages; possible: InTrayAuto, SAMEASBODY, InTray1, InTray2, InTray3, "
                            "InTray4, InTray5, InTrayManual, PITray1, PITray2, InTrayLCT\n";
const std::string kW21(21, 'W'), kW23(23, 'W'), kW26(26, 'W');

// clang-format off
// A text of the shipped model, what replaces it, and the warnings, one a line.
const std::tuple<std::string, std::string, std::string> kChanges[] = {
    {"", "", ""},
    {"key: Simu_SWOP, ", "key: Simu_TOYO2, ", ""}, // another key has no known value
    {"    - {key: Simu_SWOP,            name: SWOP}\n    - {key: Simu_Euroscale,       name: Euroscale}\n",
     "    - {key: Simu_Euroscale,       name: Euroscale}\n    - {key: Simu_SWOP,            name: SWOP}\n",
     "'Simu_Euroscale' means 'Simu_SWOP' here, since the driver stores an item's position in 'SimulationProf' and not "
     "its key: write the items in its order, Simu_None, Simu_SWOP, Simu_Euroscale, Simu_CommercialPress, Simu_TOYO, "
     "Simu_DIC\n"},
    {"    - {key: Simu_DIC,             name: DIC}\n", "",
     "'SimulationProf' has 5 items, but the colour dialog takes the entries after the 6th for profiles of the printer: "
     "a profile that the user chooses is lost, or another one is stored; write all items, Simu_None, Simu_SWOP, "
     "Simu_Euroscale, Simu_CommercialPress, Simu_TOYO, Simu_DIC\n"},
    {"ColorDevice: \"TRUE\"", "ColorDevice: \"FALSE\"",
     "'ColorSetting' is on, but for the driver this printer has no colour: omit the row, or write ColorDevice: "
     "\"TRUE\" in 'DevInfo'\n"},
    {"Dlg_MediaType: TYPE1", "Dlg_MediaType: TYPE4",
     "'TYPE4' is no tray dialog of the driver, so that none opens: write TYPE1 to TYPE3\n"},
    // Paper sources
    {"key: InTray5,      name: Tray 5,              value", "key: InTray6,      name: Tray 5,              value",
     "'InTray6' is " + kSource},
    {"key: MediaTypeList_InTray5,", "key: MediaTypeList_Tray5,",
     "'MediaTypeList_Tray5' names no tray: a key of 'MediaTypeList_Tray' ends in the key of an item of 'InTray', "
     "as in MediaTypeList_InTray1\n"},
    {"value: 257,  enabled", "value: 300,  enabled",
     "'InTray1' has the bin number 300, but 'FCover_Tray1' of 'FCoverTray' stores 257: give the item of 'ALL_InTray' "
     "the same value\n"},
    {"value: 261,  enabled: 1", "value: 261,  enabled: 0",
     "'InTray5' is not enabled, which hides all trays after it, such as 'InTrayLCT'\n"},
    {"value: 7,    enabled: 1", "value: 7,    enabled: 0",
     "'InTrayAuto' is not enabled, which hides all trays after it, such as 'InTray1'\n"
     "the default 'InTrayAuto' is not listed, since it or a tray before it is not enabled: choose another default\n"},
    {"value: 4,    enabled: 1, text: MANUAL}\n",
     "value: 4,    enabled: 1}\n    - {key: PITray1, name: n, value: 1001, enabled: 1}\n"
     "    - {key: PITray2, name: n, value: 1002, enabled: 1}\n"
     "    - {key: SAMEASBODY, name: n, value: 32767, enabled: 1}\n"
     "    - {key: InTray7, name: n, value: 1007, enabled: 1}\n",
     "'InTray7' and what follows are missing in the tray dialog: the settings keep the paper of 10 trays\n'InTray7' is "
     + kSource},
    // Features and lists
    {"  Dlg_MediaType: TYPE1 ", "  #",
     "feature 'PaperSourceTraySetting' is on, but its button opens no dialog: write Dlg_MediaType: TYPE1 to TYPE3, too\n"},
    {"default: DisOpHDD\n  items:\n    - {key: EnaOpHDD, name: Installed}\n    - {key: DisOpHDD,",
     "default: HDD_Off\n  items:\n    - {key: HDD_On, name: Installed}\n    - {key: HDD_Off,",
     "the driver knows no item of 'OpHDD', so that whatever is chosen has no effect; possible: EnaOpHDD, DisOpHDD\n"},
    {"value: 258,  enabled", "value: 257,  enabled",
     "'InTray2' has the bin number 257, but 'FCover_Tray2' of 'FCoverTray' stores 258: give the item of 'ALL_InTray' "
     "the same value\n'InTray2' has the same value as 'InTray1', which is chosen in its place\n"},
    {"  ColorSetting: TYPE1 ", "  ColorSetting: TYPE5 ", ""},
    // Texts
    {"name: Large-capacity tray, value: 1000, enabled", "name: Large-capacity tray 100, value: 1000, enabled", ""},
    {"name: Large-capacity tray, value: 1000, enabled", "name: Large-capacity tray 1000, value: 1000, enabled",
     "name 'Large-capacity tray 1000' is cut after 23 characters in the system's list of paper sources: shorten it\n"},
    {"key: Text_RGBColorMatch,  name: \"Colour matching:\"", "key: Text_RGBColorMatch, name: " + kW21,
     "name '" + kW21 + "' is cut: it needs 126 dialog units or more, and what shows it has 124: shorten it\n"},
    {"key: Text_sRGB,          name: sRGB", "key: Text_sRGB, name: " + kW23,
     "name '" + kW23 + "' is cut: it needs 138 dialog units or more, and what shows it has 136: shorten it\n"},
    {"key: Text_sRGB,          name: sRGB", "key: Text_sRGB, name: " + kW21, ""}, // fits
    {"key: Thick1,         name: Thick 1", "key: Thick1, name: " + kW26,
     "name '" + kW26 + "' is cut: it needs 156 dialog units or more, and what shows it has 152: shorten it\n"},
    {"key: Reso_1200dpi", "key: Fine",
     "the driver takes 0 for the resolution of 'Fine': it reads the number in the key after character 5, "
     "as in Reso_600dpi\n"},
};
// clang-format on

std::string WarningsOf(const Model& model, Findings findings = {}) {
    FindWarnings(model, findings);
    findings.Sort();
    std::string messages;
    for (const Finding& finding : findings.list)
        messages += finding.message + "\n";
    return messages;
}

TEST(Warnings, ChangesOfTheShippedModel) {
    const std::string shipped = ReadFile(MODEL_FILE);
    for (const auto& [from, to, wanted] : kChanges) {
        const size_t at = shipped.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        Findings findings;
        const Model model = ReadYaml(std::string(shipped).replace(at, from.size(), to), findings);
        EXPECT_EQ(WarningsOf(model, findings), wanted) << to;
    }
}

// The entries that a feature of the shipped model needs, and no others.
TEST(Warnings, MissingLists) {
    // clang-format off
    const std::set<std::string> wanted = {
        "MediaType", "MediaWeight", "MediaColor", "MediaPrePunched", "PaperOption1", "PaperArrangement", "Staple",
        "HolePunch", "Folding", "OutputTray", "OutputOrder", "OHP_Interleave", "ExcelJobCtrl", "FCoverTray", "BCoverTray",
        "SeparatePageTray", "OHPIntTray", "PIFrontCover", "PIBackCover", "PerPageListPrintType", "PerPageListPaperSrc",
        "PerPageListStaple", "TabPaperPaperSize", "OvlForm_Location", "Prof_Location",
        // of the full colour dialog
        "Text_RGBProf", "Text_RGBColorMatch", "Text_RGBGray", "Text_Halftone", "Text_Destination",
        "Img_RGBProf", "Img_RGBColorMatch", "Img_RGBGray", "Img_Halftone", "Img_Destination",
        "Graph_RGBProf", "Graph_RGBColorMatch", "Graph_RGBGray", "Graph_Halftone", "Graph_Destination",
        "SimulationProf", "Simu_CMYKGray",
        // of the tray dialog
        "InTray", "PaperSize", "MediaTypeList_Orient", "MediaTypeList_Size", "MediaTypeList_Type", "MediaTypeList_Weight",
        "MediaTypeList_Color", "MediaTypeList_Hole",
        "DevInfo"};
    // clang-format on
    Findings findings;
    const Model shipped = ReadYaml(ReadFile(MODEL_FILE), findings);
    std::set<std::string> needed;
    for (size_t i = 0; i < shipped.entries.size(); ++i) {
        Model model = shipped;
        model.entries.erase(model.entries.begin() + static_cast<ptrdiff_t>(i));
        if (!WarningsOf(model).empty())
            needed.insert(shipped.entries[i].name);
    }
    EXPECT_EQ(needed, wanted);
}

} // namespace

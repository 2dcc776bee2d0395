// The model's paper sources, and the item keys by which the tray selection features name them. The module's
// table of them and the compiler of parameter data files both take them from here.
#ifndef PARAMDATA_PAPER_SOURCES_H
#define PARAMDATA_PAPER_SOURCES_H

#include <cstddef>
#include <cstdint>

// The features that select a paper source, in the order of their columns below and of their lists in the
// device table.
inline constexpr const char* kTraySelectionFeatures[] = {
    "FCoverTray",   "BCoverTray",  "SeparatePageTray",    "OHPIntTray",
    "PIFrontCover", "PIBackCover", "PerPageListPaperSrc",
};
constexpr size_t kTraySelectionCount = sizeof(kTraySelectionFeatures) / sizeof(kTraySelectionFeatures[0]);

struct PaperSourceRow {
    const char* key;
    uint16_t bin;
    const char* selectionKeys[kTraySelectionCount]; // empty: the feature does not offer this source
};

// clang-format off
inline constexpr PaperSourceRow kPaperSources[] = {
    // key           bin   front cover     back cover      separator page  interleave       inserter front/back   per-page source
    {"InTrayAuto",       7, {"",              "",              "",             "",              "",         "",         ""}},
    {"SAMEASBODY",   32767, {"FCover_Auto",   "BCover_Auto",   "SPage_Auto",   "",              "",         "",         "PPSTraySameAsBody"}},
    {"InTray1",        257, {"FCover_Tray1",  "BCover_Tray1",  "SPage_Tray1",  "OHPInt_Tray1",  "",         "",         "PPSTray1"}},
    {"InTray2",        258, {"FCover_Tray2",  "BCover_Tray2",  "SPage_Tray2",  "OHPInt_Tray2",  "",         "",         "PPSTray2"}},
    {"InTray3",        259, {"FCover_Tray3",  "BCover_Tray3",  "SPage_Tray3",  "OHPInt_Tray3",  "",         "",         "PPSTray3"}},
    {"InTray4",        260, {"FCover_Tray4",  "BCover_Tray4",  "SPage_Tray4",  "OHPInt_Tray4",  "",         "",         "PPSTray4"}},
    {"InTray5",        261, {"FCover_Tray5",  "BCover_Tray5",  "SPage_Tray5",  "OHPInt_Tray5",  "",         "",         "PPSTray5"}},
    {"InTrayManual",     4, {"FCover_Manual", "BCover_Manual", "SPage_Manual", "OHPInt_Manual", "",         "",         "PPSMANUAL"}},
    {"PITray1",       1001, {"",              "",              "",             "",              "PIFTray1", "PIBTray1", "PPSPITray1"}},
    {"PITray2",       1002, {"",              "",              "",             "",              "PIFTray2", "PIBTray2", "PPSPITray2"}},
    {"InTrayLCT",     1000, {"FCover_LCT",    "BCover_LCT",    "",             "OHPInt_LCT",    "",         "",         "PPSLCT"}},
};
// clang-format on
constexpr size_t kPaperSourceCount = sizeof(kPaperSources) / sizeof(kPaperSources[0]);

constexpr size_t kMaxTraySettings = 10; // trays whose paper the settings keep
constexpr size_t kMaxBinNameChars = 23; // of a paper source's name in the system's list

#endif

// The feature switches in the order of the device table: the row of "FeatureSetting" that sets each, and the
// value that turns it on. The compiler of parameter data files uses the same table.
#ifndef PARAMDATA_FEATURE_SWITCHES_H
#define PARAMDATA_FEATURE_SWITCHES_H

#include <cstddef>

struct FeatureSwitchRow {
    const char* name; // row of "FeatureSetting"
    // The value that makes the switch 1; null: the switch holds the number n of a value "TYPEn".
    const char* enablingValue;
};

inline constexpr FeatureSwitchRow kFeatureSwitches[] = {
    // clang-format off
    /*  0 */ {"SeparatePagePrint",       "Driver"},
    /*  1 */ {"OHP_Interleave",          "Enable"},
    /*  2 */ {"ColorAdjustment",         "Enable"},
    /*  3 */ {"ColorSeparation",         "Enable"},
    /*  4 */ {"TonerSave",               "Enable"},
    /*  5 */ {"Point4Character",         "Enable"},
    /*  6 */ {"DiminBarcode",            "Enable"},
    /*  7 */ {"ImageCompression",        "Enable"},
    /*  8 */ {"QualityOption",           "Enable"},
    /*  9 */ {"ColorProfileSource",      "OpenAPI"},
    /* 10 */ {"ColorAdjustIccProf",      "Enable"},
    /* 11 */ {"ColorSetting",            nullptr},
    /* 12 */ {"PaperOption1",            "Enable"},
    /* 13 */ {"PaperOption2",            "Enable"},
    /* 14 */ {"Poster",                  "Enable"},
    /* 15 */ {"PerPageSetting",          "Enable"},
    /* 16 */ {"PICover",                 "Enable"},
    /* 17 */ {"MediaTypeDetail",         "Enable"},
    /* 18 */ {"MediaWeight",             "Enable"},
    /* 19 */ {"MediaColor",              "Enable"},
    /* 20 */ {"MediaPrePunched",         "Enable"},
    /* 21 */ {"JobOffset",               "Enable"},
    /* 22 */ {"BoxSave",                 "Enable"},
    /* 23 */ {"Engine2in1",              "Enable"},
    /* 24 */ {"Chapter",                 "Enable"},
    /* 25 */ {"BookletPrint",            "Driver"},
    /* 26 */ {"BindingEdge",             "4Bind"},
    /* 27 */ {"ImageShift",              "Enable"},
    /* 28 */ {"ImageShift_SwitchSetup",  "Enable"},
    /* 29 */ {"Staple",                  "Enable"},
    /* 30 */ {"HolePunch",               "Enable"},
    /* 31 */ {"CenterStaple",            "Enable"},
    /* 32 */ {"CenterErase",             "Enable"},
    /* 33 */ {"Folding",                 "Enable"},
    /* 34 */ {"AdhesiveBind",            "Enable"},
    /* 35 */ {"Trim",                    "Enable"},
    /* 36 */ {"DivideOutput",            "Enable"},
    /* 37 */ {"OutputTray",              "Enable"},
    /* 38 */ {"OutputOrder",             "Enable"},
    /* 39 */ {"PileMode",                "Enable"},
    /* 40 */ {"Tandem",                  "Enable"},
    /* 41 */ {"PaperArrangement",        "Enable"},
    /* 42 */ {"PPS_PaperSrc",            "Enable"},
    /* 43 */ {"PPS_MediaType",           "Enable"},
    /* 44 */ {"PPS_Staple",              "Enable"},
    /* 45 */ {"PPS_FinishStapling",      "Enable"},
    /* 46 */ {"PPS_HolePunch",           "Enable"},
    /* 47 */ {"PPS_TabPaper",            "Enable"},
    /* 48 */ {"PPS_TabPosition",         "Enable"},
    /* 49 */ {"PPS_TabPaperSetting",     "Enable"},
    /* 50 */ {"PPS_PunchSetting",        "Enable"},
    /* 51 */ {"PPS_StapleSetting",       "Enable"},
    /* 52 */ {"Overlay",                 "SoftOverlay"},
    /* 53 */ {"HeaderFooter",            "Enable"},
    /* 54 */ {"NumberingType",           "Enable"},
    /* 55 */ {"NumberingColor",          "Enable"},
    /* 56 */ {"CopyProtect",             "Enable"},
    /* 57 */ {"2Color",                  "Enable"},
    /* 58 */ {"GlossyMode",              "Enable"},
    /* 59 */ {"EMFSpool",                "Enable"},
    /* 60 */ {"UserAuthentication",      "Enable"},
    /* 61 */ {"AccountTrack",            "Enable"},
    /* 62 */ {"PaperSourceTraySetting",  "Enable"},
    /* 63 */ {"PrintPosition",           "Enable"},
    /* 64 */ {"ZarvoWebConnect",         "Enable"},
    /* 65 */ {"ZarvoDataAdmin",          "Enable"},
    /* 66 */ {"ZarvoPrnComplete",        "Enable"},
    /* 67 */ {"FirstSheetAll",           "Enable"},
    /* 68 */ {"HardSecurityMode",        "Enable"},
    /* 69 */ {"UserData",                "Enable"},
    /* 70 */ {"ExcelJobCtrl",            "Enable"},
    /* 71 */ {"EncryptionKey",           "Enable"},
    /* 72 */ {"ImageShiftPrint",         "Driver"},
    /* 73 */ {"FCoverPrint",             "Driver"},
    /* 74 */ {"BCoverPrint",             "Driver"},
    /* 75 */ {"OHPPrint",                "Driver"},
    /* 76 */ {"UserAuthentication",      "Enable"},
    /* 77 */ {"AccountTrackSetting",     "Enable"},
    /* 78 */ {"MultiDepartmentMng",      "Enable"},
    /* 79 */ {"EmailNotify",             "Enable"},
    /* 80 */ {"TreeDomainName",          "Enable"},
    /* 81 */ {"ExpenseCode",             "Enable"},
    /* 82 */ {"ExpenseCodePassword",     "Enable"},
    /* 83 */ {"Dlg_MediaType",           nullptr},
    /* 84 */ {"InterimAuthenticSetting", "Enable"},
    // clang-format on
};
constexpr size_t kFeatureSwitchCount = sizeof(kFeatureSwitches) / sizeof(kFeatureSwitches[0]);
static_assert(kFeatureSwitchCount == 85);

// Position of the first row with this name. For constant expressions only, where an unknown name does not
// compile.
constexpr size_t SwitchPosition(const char* name) {
    for (size_t i = 0;; ++i) {
        const char* row = kFeatureSwitches[i].name;
        size_t same = 0;
        while (name[same] != 0 && row[same] == name[same])
            ++same;
        if (row[same] == name[same])
            return i;
    }
}

// Positions of the switches that the module itself reads.
enum FeatureSwitch : size_t {
    kSwitchColorSetting = SwitchPosition("ColorSetting"), // variant of the basic colour dialog
    kSwitchMediaWeight = SwitchPosition("MediaWeight"),
    kSwitchMediaColor = SwitchPosition("MediaColor"),
    kSwitchMediaPrePunched = SwitchPosition("MediaPrePunched"),
    kSwitchBindingEdge = SwitchPosition("BindingEdge"),
    kSwitchFCoverPrint = SwitchPosition("FCoverPrint"),
    kSwitchDlgMediaType = SwitchPosition("Dlg_MediaType"), // variant of the tray dialog
};
static_assert(kSwitchColorSetting == 11 && kSwitchDlgMediaType == 83);

constexpr unsigned kLastTrayDialogType = 3; // "Dlg_MediaType" from TYPE1 on
constexpr unsigned kMaxSwitchType = 255;    // "TYPEn" is recognized from 1 to this number

#endif

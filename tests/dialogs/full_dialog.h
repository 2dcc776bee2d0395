// Dialog 128 as a person would write it down: its controls, what they list with the printer's profiles of
// these tests, and settings to open it on.
#ifndef DIALOGS_TEST_FULL_DIALOG_H
#define DIALOGS_TEST_FULL_DIALOG_H

#include "dialog_driver.h"

// clang-format off
inline const std::string kBuiltInRgb =
    "Device RGB=0|sRGB=1|Adobe RGB (1998)=128|Apple RGB=129|CIE RGB=130|ColorMatch RGB=131|NTSC (1953)=132|PAL=133|"
    "SMPTE-C=134|sRGB (monitor)=135|Wide gamut RGB=136|SMPTE-240M=137|Print server RGB=138|sRGB (standard)=139|"
    "ProPhoto RGB=140|sRGB (blue adjusted)=141";
inline const std::string
    kRgb          = kBuiltInRgb + "|Camera Hard disk=256|Scanner (Office) Memory=257",
    kMatch        = "Vivid=0|Photographic=1|Proof=2|Exact match=3",
    kGray         = "Four-colour black=0|Black and grey=1|Black toner only=2",
    kHalftone     = "Finest detail=0|Detail=1|Smooth gradation=2",
    kGraphHalf    = "Same as text setting=3|Same as image setting=4|" + kHalftone,
    kDestinations = "Automatic=0|Press A Built in=128|Press B (Coated) Built in, hard disk=129",
    kSimuItems    = "None=0|SWOP=1|Euroscale=2|Commercial press=3|TOYO=4|DIC=5",
    kSimulations  = kSimuItems + "|Sim A Flash memory=128|Sim B (Q) =129"; // no such location

struct FullControl {
    uint16_t id;
    std::string entries;
    int selection; // on the settings below; of the box: 1, checked
    int32_t result; // of a change
};
// In the order of filling (the box apart), showing and storing.
inline const FullControl kFull[] = {
    {1504, kRgb, 2, 1},  {1354, kMatch, 1, 1}, {1335, kGray, 0, 1}, {1599, kDestinations, 0, 0}, {1332, kHalftone, 2, 1},
    {1509, kRgb, 17, 1}, {1353, kMatch, 3, 1}, {1334, kGray, 2, 1}, {1592, kDestinations, 2, 0}, {1330, kHalftone, 1, 1},
    {1513, kRgb, 1, 1},  {1516, kMatch, 2, 1}, {1519, kGray, 1, 1}, {1584, kDestinations, 1, 0}, {1522, kGraphHalf, 1, 1},
    {1524, kSimulations, 7, 0}, {1526, "", 1, 0}, {1627, kGray, 2, 1},
};
constexpr uint16_t kBox = 1526;

inline const RawBytes
    kCamera = Profile(L"", L"Camera", 4), kScanner = Profile(L"Office", L"Scanner", 3),
    kSimA = Profile(L"", L"Sim A", 5), kSimB = Profile(L"Q", L"Sim B", 99),
    kPressA = Profile(L"", L"Press A", 1), kPressB = Profile(L"Coated", L"Press B", 2), kNone = RawBytes(kProfileSize);

// Puts a record in; what else the record's place holds goes.
inline RawBytes& PutRecord(RawBytes& settings, size_t offset, const RawBytes& record) {
    memcpy(&settings.bytes.at(offset + kProfileSize - 1) + 1 - kProfileSize, record.bytes.data(), kProfileSize);
    return settings;
}

// All choices are offered. Profiles are known by name alone, so the rest of their records is the pattern's.
inline RawBytes FullSettings() {
    return Pattern(1)
        .U16(2514, 128).U8(2153, 1).U8(2155, 0).U16(3026, 0).U8(2154, 2)
        .U16(2516, 257).U8(2157, 3).U8(2159, 2).U16(3024, 128).Wide(3030 + 82, L"Press B").U16(3030 + 96, 0).U8(2158, 1)
        .U16(2518, 1).U8(2161, 2).U8(2163, 1).U16(3028, 128).Wide(3366 + 82, L"press a").U16(3366 + 96, 0).U8(2162, 4)
        .U16(2166, 128).Wide(2168 + 82, L"SIM b").U16(2168 + 92, 0).U8(3534, 1).U16(3536, 2);
}
// clang-format on

struct FullDialog : testing::Test, DialogDriver {
    FullDialog() : DialogDriver(128) {
        rgbSources = {kCamera, kScanner};
        simulations = {kSimA, kSimB};
        destinations = {kPressA, kPressB};
        settings = FullSettings();
    }

    // What all controls show.
    std::vector<int> Shown() const {
        std::vector<int> shown;
        for (const FullControl& control : kFull)
            shown.push_back(control.id == kBox ? static_cast<int>(Send(kBox, BM_GETCHECK))
                                               : Selection(control.id));
        return shown;
    }
    static std::vector<int> ShownAtFirst() {
        std::vector<int> shown;
        for (const FullControl& control : kFull)
            shown.push_back(control.selection);
        return shown;
    }

    // "fill 1504\nfill 1354\n...": all controls of the dialog in order.
    static std::string InOrder(const std::string& action, bool withBox) {
        std::string text;
        for (const FullControl& control : kFull)
            if (withBox || control.id != kBox)
                text += action + " " + std::to_string(control.id) + "\n";
        return text;
    }

    void ExpectSettings(const RawBytes& wanted) const {
        EXPECT_EQ(Differences(settings.bytes.data(), wanted), "");
    }
    void ExpectSaved(const RawBytes& wanted) const {
        EXPECT_EQ(Differences(saveArea.bytes.data(), wanted), "");
    }
};

#endif

// The colour dialogs as published, written down by hand with their numbers: what each has, in which order,
// with which help. A driver opens one of them on settings whose choices are all offered.
#ifndef DIALOGS_TEST_COLOR_DRIVER_H
#define DIALOGS_TEST_COLOR_DRIVER_H

#include "dialogs/dialog_driver.h"

#include <algorithm>

constexpr int kBox = 1526;                  // matching of the paper colour
constexpr int kImages = 1477, kText = 1475; // what graphics follow; the lists below name the first for both

struct ColorDialogCase {
    const char* name;
    uint32_t id;
    const wchar_t* model;
    uint32_t topic;
    bool listsProfiles;           // has the messages and buttons that go with the printer's profiles
    std::vector<int> controls;    // in the order of filling, showing and storing
    std::vector<size_t> defaults; // offsets of the fields that the Defaults button copies
    std::vector<uint32_t> help;
    std::vector<int> icons;
    std::vector<int> locksFirst, locksNever; // otherwise what has help is locked, in the same order
    std::vector<int> locks = {};             // instead of all that
};

// clang-format off
#define HELP_IMAGES 1501, 6640, 1502, 6650, 1504, 6650, 1468, 6660, 1354, 6660
#define HELP_IMAGE_GRAY 1469, 6670, 1335, 6670
#define HELP_IMAGE_HALFTONE 1471, 6675, 1332, 6675
#define HELP_TEXT 1506, 6680, 1507, 6690, 1509, 6690, 1465, 6700, 1353, 6700, 1466, 6710, 1334, 6710
#define HELP_TEXT_HALFTONE 1467, 6720, 1330, 6720
#define HELP_GRAPHICS 1473, 6730, 1477, 6780, 1475, 6790
#define HELP_SIMULATION 1523, ~0u, 1398, 6810, 1524, 6810, 1526, 6830, 1625, 6855, 1627, 6855
#define HELP_BUTTONS 1393, 6840, 1528, 6850
#define HELP_END 1069, ~0u, 1032, 9510, 0, 0
#define BASIC_COLUMNS \
    {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, kImages}, {2514, 2688, 2153, 2516, 2520, 2157, 2165}, \
    {HELP_IMAGES, HELP_IMAGE_GRAY, HELP_IMAGE_HALFTONE, HELP_TEXT, HELP_TEXT_HALFTONE, HELP_GRAPHICS, HELP_END}, \
    {1400, 1401, 1402, 1403, 1503, 1505, 1508, 1510}, {}, {}
inline const ColorDialogCase kColorDialogs[] = {
    {"Full", 128, L"", 6631, true,
     {1504, 1354, 1335, 1599, 1332, 1509, 1353, 1334, 1592, 1330, 1513, 1516, 1519, 1584, 1522, 1524, kBox, 1627},
     {2514, 2688, 2153, 3026, 3198, 2516, 2520, 2157, 3024, 3030, 2518, 2856, 2161, 3028, 3366, 2166, 2168, 3534, 3536},
     {HELP_IMAGES, HELP_IMAGE_GRAY, 1597, 6860, 1599, 6860, HELP_IMAGE_HALFTONE, HELP_TEXT, 1589, 6865, 1592, 6865,
      HELP_TEXT_HALFTONE, 1473, 6730, 1511, 6740, 1513, 6740, 1514, 6750, 1516, 6750, 1517, 6760, 1519, 6760, 1582,
      6870, 1584, 6870, 1520, 6770, 1522, 6770, HELP_SIMULATION, HELP_BUTTONS, HELP_END},
     {1400, 1401, 1402, 1403, 1482, 1503, 1505, 1508, 1510, 1512, 1515, 1518, 1521, 1527, 1529, 1530, 1587, 1594,
      1601, 1629},
     {}, {}},
    {"Simulation", 124, L"", 6630, true,
     {1504, 1354, 1332, 1509, 1353, 1334, 1330, kImages, 1524, kBox, 1627},
     {2514, 2688, 2153, 2516, 2520, 2157, 2165, 2166, 2168, 3534, 3536},
     {HELP_IMAGES, HELP_IMAGE_HALFTONE, HELP_TEXT, HELP_TEXT_HALFTONE, HELP_GRAPHICS, HELP_SIMULATION, HELP_BUTTONS,
      HELP_END},
     {1400, 1401, 1402, 1482, 1503, 1505, 1508, 1510, 1527, 1529, 1530, 1629}, {}, {}},
    {"CommonDestination", 122, L"", 6610, true,
     {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, kImages, 1524, kBox, 1627, 1525},
     {2514, 2688, 2153, 2516, 2520, 2157, 2165, 2166, 2168, 3534, 3536, 2336, 2338},
     {HELP_IMAGES, HELP_IMAGE_GRAY, HELP_IMAGE_HALFTONE, HELP_TEXT, HELP_TEXT_HALFTONE, HELP_GRAPHICS, HELP_SIMULATION,
      1630, ~0u, 1408, 6820, 1525, 6820, HELP_BUTTONS, HELP_END},
     {1400, 1401, 1402, 1403, 1482, 1486, 1503, 1505, 1508, 1510, 1527, 1529, 1530, 1629}, {}, {1507}},
    {"SingleSource", 125, L"", 6620, false,
     {1634, 1354, 1332, 1353, 1334, 1330, kImages}, {2512, 2153, 2157, 2165},
     {1501, 6640, 1468, 6660, 1354, 6660, HELP_IMAGE_HALFTONE, 1506, 6680, 1465, 6700, 1353, 6700, 1466, 6710, 1334,
      6710, HELP_TEXT_HALFTONE, HELP_GRAPHICS, HELP_END},
     {1400, 1401, 1402, 1505, 1510, 1636}, {1632, 1634}, {}},
    {"BasicA", 123, L"type2", 6621, false, BASIC_COLUMNS, {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, 1477, 1475,
      1032}},
    {"BasicB", 123, L"type3", 6600, false, BASIC_COLUMNS},
};

const std::string kBuiltInRgb =
    "Device RGB=0|sRGB=1|Adobe RGB (1998)=128|Apple RGB=129|CIE RGB=130|ColorMatch RGB=131|NTSC (1953)=132|PAL=133|"
    "SMPTE-C=134|sRGB (monitor)=135|Wide gamut RGB=136|SMPTE-240M=137|Print server RGB=138|sRGB (standard)=139|"
    "ProPhoto RGB=140|sRGB (blue adjusted)=141";
const std::string
    kRgb          = kBuiltInRgb + "|Camera Hard disk=256|Scanner (Office) Memory=257",
    kMatch        = "Vivid=0|Photographic=1|Proof=2|Exact match=3",
    kGray         = "Four-colour black=0|Black and grey=1|Black toner only=2",
    kHalftone     = "Finest detail=0|Detail=1|Smooth gradation=2",
    kGraphHalf    = "Same as text setting=3|Same as image setting=4|" + kHalftone,
    kDestinations = "Automatic=0|Press A Built in=128|Press B (Coated) Built in, hard disk=129",
    kSimuItems    = "None=0|SWOP=1|Euroscale=2|Commercial press=3|TOYO=4|DIC=5",
    kSimulations  = kSimuItems + "|Sim A Flash memory=128|Sim B (Q) =129"; // no such location

const RawBytes
    kCamera = Profile(L"", L"Camera", 4), kScanner = Profile(L"Office", L"Scanner", 3),
    kSimA = Profile(L"", L"Sim A", 5), kSimB = Profile(L"Q", L"Sim B", 99),
    kPressA = Profile(L"", L"Press A", 1), kPressB = Profile(L"Coated", L"Press B", 2), kNone = RawBytes(kProfileSize);

// Replaces a whole profile record.
inline RawBytes& PutRecord(RawBytes& settings, size_t offset, const RawBytes& record) {
    memcpy(&settings.bytes.at(offset + kProfileSize - 1) + 1 - kProfileSize, record.bytes.data(), kProfileSize);
    return settings;
}

// All choices are offered; graphics follow images. Profiles are found by name, so only the names of their records
// are set.
inline RawBytes OfferedSettings(const ColorDialogCase& dialog) {
    return Pattern(1)
        .U16(2512, 1).U16(2514, 128).U8(2153, 1).U8(2155, 1).U16(3026, 0).U8(2154, 2)
        .U16(2516, dialog.id == 123 ? 129 : 257).U8(2157, 3).U8(2159, 2).U8(2158, 1)
        .U16(3024, 128).Wide(3030 + 82, L"Press B").U16(3030 + 96, 0).U8(2165, 1)
        .U16(2518, 1).U8(2161, 2).U8(2163, 1).U16(3028, 128).Wide(3366 + 82, L"press a").U16(3366 + 96, 0).U8(2162, 4)
        .U16(2166, 128).Wide(2168 + 82, L"SIM b").U16(2168 + 92, 0).U8(3534, 1).U16(3536, 2)
        .U16(2336, 128).Wide(2338 + 82, L"Press A").U16(2338 + 96, 0);
}
// clang-format on

// Other settings, for the Defaults button.
inline RawBytes OtherSettings() {
    RawBytes other = Pattern(128).U16(2512, 0).U16(2514, 0).U16(2516, 1).U16(2518, 1).U16(2336, 0);
    return other.U16(2166, 3).U16(3536, 1).U8(2165, 0).U16(3024, 0).U16(3026, 0).U16(3028, 0);
}

struct ColorDriver : DialogDriver {
    explicit ColorDriver(const ColorDialogCase& wanted = kColorDialogs[0])
        : DialogDriver(wanted.id, wanted.model), dialog(wanted) {
        rgbSources.Append(kCamera).Append(kScanner);
        simulations.Append(kSimA).Append(kSimB);
        destinations.Append(kPressA).Append(kPressB);
        settings = OfferedSettings(dialog);
    }

    bool Has(int control) const { return std::count(dialog.controls.begin(), dialog.controls.end(), control) != 0; }
    // "fill 1504\nfill 1354\n...": what is done to all controls, or to all lists.
    std::string InOrder(const std::string& action, bool withButtons) const {
        std::string text;
        for (const int control : dialog.controls)
            if (withButtons || (control != kBox && control != kImages))
                text += action + " " + std::to_string(control) + "\n"
                        + (control == kImages ? action + " " + std::to_string(kText) + "\n" : "");
        return text;
    }
    std::string Fills() const { return InOrder("fill", false); }
    std::string Shows() const { return InOrder("show", true); }
    std::string Check(int control = 0) const { return DialogDriver::Check(control, dialog.id); }

    const ColorDialogCase& dialog;
};

struct FullDialog : testing::Test, ColorDriver {};

#endif

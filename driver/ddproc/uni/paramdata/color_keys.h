// Item keys of the colour settings and their values. The module's tables and the compiler
// of parameter data files both take them from here.
#ifndef PARAMDATA_COLOR_KEYS_H
#define PARAMDATA_COLOR_KEYS_H

#include <cstddef>
#include <cstdint>

// Columns of the tables below: the kind of object whose settings use the key.
enum ColorKeyColumn { kTextKeys, kImageKeys, kGraphicsKeys };

// A value and its keys, by column; an empty key: the kind of object does not have this value. A table ends at
// the value -1.
struct ColorKeyRow {
    int32_t value;
    const char* keys[3];
};

// clang-format off
#define COLOR_KEYS(name) {"Text_" name, "Img_" name, "Graph_" name}
inline constexpr ColorKeyRow kProfileKeys[] = {
    {0,   COLOR_KEYS("DeviceRGB")},
    {1,   COLOR_KEYS("sRGB")},
    {128, COLOR_KEYS("AdobeRGB1998")},
    {129, COLOR_KEYS("AppleRGB")},
    {130, COLOR_KEYS("CIERGB")},
    {131, COLOR_KEYS("ColorMatchRGB")},
    {132, COLOR_KEYS("NTSC1953")},
    {133, COLOR_KEYS("PAL")},
    {134, COLOR_KEYS("SMPTE_C")},
    {135, COLOR_KEYS("sRGB_MS")},
    {136, COLOR_KEYS("WideGamutRGB")},
    {137, COLOR_KEYS("SMPTE_240M")},
    {138, COLOR_KEYS("EFIRGB")},
    {139, COLOR_KEYS("sRGB_Standard")},
    {140, COLOR_KEYS("ProPhotoRGB")},
    {141, COLOR_KEYS("BlueAdjust")},
    {-1,  {"", "", ""}},
};
inline constexpr ColorKeyRow kColorMatchKeys[] = {
    {0,   COLOR_KEYS("Vivid")},
    {1,   COLOR_KEYS("Photographic")},
    {2,   COLOR_KEYS("Proof")},
    {3,   COLOR_KEYS("Match")},
    {-1,  {"", "", ""}},
};
inline constexpr ColorKeyRow kGrayKeys[] = {
    {0,   COLOR_KEYS("4Color")},
    {1,   COLOR_KEYS("BandG")},
    {2,   COLOR_KEYS("BlackOnly")},
    {-1,  {"", "", ""}},
};
// Parameter data files spell the first text key one letter short.
inline constexpr ColorKeyRow kHalftoneKeys[] = {
    {0,   {"Text_UltraDetai", "Img_UltraDetail", "Graph_UltraDetail"}},
    {1,   COLOR_KEYS("Detail")},
    {2,   COLOR_KEYS("Smooth")},
    {3,   {"", "", "Graph_HalftoneText"}},
    {4,   {"", "", "Graph_HalftoneImage"}},
    {-1,  {"", "", ""}},
};
inline constexpr ColorKeyRow kDestinationKeys[] = {
    {0,   COLOR_KEYS("DestAuto")},
    {-1,  {"", "", ""}},
};
#undef COLOR_KEYS
// clang-format on

// Keys whose position is their value.
inline constexpr const char* kColorModeKeys[] = {
    "Color_Auto", "Color_Doc", "Color_Photo", "Color_Presen", "Color_DTP",
    "Color_Web",  "Color_CAD", "Color_ICM",   "Color_Custom",
};
inline constexpr const char* kGraphicsFollowKeys[] = {"Graph_MatchText", "Graph_MatchImage"};
inline constexpr const char* kMatchPaperKeys[] = {"MatchPaperColorOFF", "MatchPaperColorON"};

// The same for lists in which an item of the parameter data file has its position there as its value,
// whatever its key. With these keys in this order, keys and values match.
inline constexpr const char* kPageProfileKeys[] = {"DeviceRGB", "sRGB"};
inline constexpr const char* kSimulationKeys[] = {
    "Simu_None", "Simu_SWOP", "Simu_Euroscale", "Simu_CommercialPress", "Simu_TOYO", "Simu_DIC",
};
inline constexpr const char* kPageDestinationKeys[] = {"Dest_Auto"};
inline constexpr const char* kSimulationGrayKeys[] = {"Simu_4Color", "Simu_BandG", "Simu_BlackOnly"};

// Most items of these lists.
constexpr size_t kMaxPageProfiles = sizeof(kPageProfileKeys) / sizeof(kPageProfileKeys[0]);
constexpr size_t kMaxSimulations = sizeof(kSimulationKeys) / sizeof(kSimulationKeys[0]);
constexpr size_t kMaxPageDestinations = sizeof(kPageDestinationKeys) / sizeof(kPageDestinationKeys[0]);
constexpr size_t kMaxSimulationGrays = sizeof(kSimulationGrayKeys) / sizeof(kSimulationGrayKeys[0]);

#endif

// Takes the defaults of the colour settings from the parameter data file.
#include "paramdata/color_defaults.h"

#include "base/text.h"
#include "paramdata/color_keys.h"
#include "paramdata/color_tables.h"
#include "paramdata/default_fields.h"

namespace {

// Entries whose default is the value of an item of the colour table of the same name.
struct ColorDefault {
    const char* entry;
    DevmodeField field;
};
// clang-format off
constexpr ColorDefault kTextAndImageDefaults[] = {
    {"Text_RGBColorMatch",  FIELD(text.colorMatch)},
    {"Text_Halftone",       FIELD(text.halftone)},
    {"Text_RGBGray",        FIELD(text.gray)},
    {"Img_RGBColorMatch",   FIELD(image.colorMatch)},
    {"Img_Halftone",        FIELD(image.halftone)},
    {"Img_RGBGray",         FIELD(image.gray)},
};
constexpr ColorDefault kGraphicsDefaults[] = {
    {"Graph_RGBColorMatch", FIELD(graphics.colorMatch)},
    {"Graph_Halftone",      FIELD(graphics.halftone)},
    {"Graph_RGBGray",       FIELD(graphics.gray)},
};
constexpr ColorDefault kProfileDefaults[] = {
    {"Text_Destination",    FIELD(textDestination)},
    {"Img_Destination",     FIELD(imageDestination)},
    {"Graph_Destination",   FIELD(graphicsDestination)},
    {"SimulationProf",      FIELD(simulation)},
    {"DestinationProf",     FIELD(destination)},
};
constexpr ColorDefault kRgbSourceDefault      = {"RGBProf",       FIELD(rgbSource)};
constexpr ColorDefault kTextRgbSourceDefault  = {"Text_RGBProf",  FIELD(textRgbSource)};
constexpr ColorDefault kImageRgbSourceDefault = {"Img_RGBProf",   FIELD(imageRgbSource)};
constexpr ColorDefault kGraphRgbSourceDefault = {"Graph_RGBProf", FIELD(graphicsRgbSource)};
constexpr ColorDefault kSimulationGrayDefault = {"Simu_CMYKGray", FIELD(simulationGray)};
// clang-format on

// Stores the value of the default item. Null when the file names no item of the table.
const ItemRecord* ApplyColorDefault(const PrmFile& file, const ColorDefault& row, OemDevmode& settings) {
    DefaultKey key;
    if (!ReadDefaultKey(file, row.entry, key))
        return nullptr;
    const ItemRecord* item = FindColorItem(row.entry, key);
    if (item != nullptr)
        Store(settings, row.field, item->head.value);
    return item;
}

template <size_t Count>
void ApplyColorDefaults(const PrmFile& file, const ColorDefault (&rows)[Count], OemDevmode& settings) {
    for (const ColorDefault& row : rows)
        ApplyColorDefault(file, row, settings);
}

// Stores the RGB source of one kind of object, with the display name that the table has now.
void ApplyRgbSource(const PrmFile& file, const ColorDefault& row, ProfileEntry& profile,
                    OemDevmode& settings) {
    if (const ItemRecord* item = ApplyColorDefault(file, row, settings))
        CopyText(profile.qualifier, item->display);
}

// Sets a field to 1 when the default of the entry is the second of the two items, to 0 when it is any other.
void ApplyChoice(const PrmFile& file, const char* entry, const char* const (&itemKeys)[2], uint8_t& field) {
    DefaultKey key;
    if (ReadDefaultKey(file, entry, key))
        field = SameText(key, itemKeys[1]) ? 1 : 0;
}

} // namespace

void ApplyColorModeDefault(const PrmFile& file, OemDevmode& settings) {
    DefaultKey key;
    if (!ReadDefaultKey(file, "ColorSetting", key))
        return;
    uint8_t mode = 0;
    for (const char* name : kColorModeKeys) {
        if (SameText(name, key))
            settings.colorMode = mode;
        ++mode;
    }
}

void ApplyObjectColorDefaults(const PrmFile& file, OemDevmode& settings) {
    ApplyColorDefaults(file, kTextAndImageDefaults, settings);
    ApplyChoice(file, "Graphics", kGraphicsFollowKeys, settings.graphicsFollow);
    ApplyColorDefaults(file, kGraphicsDefaults, settings);
}

void ApplyRgbSourceDefaults(const PrmFile& file, OemDevmode& settings) {
    ApplyColorDefault(file, kRgbSourceDefault, settings);
    ApplyRgbSource(file, kTextRgbSourceDefault, settings.textRgbProfile, settings);
    ApplyRgbSource(file, kImageRgbSourceDefault, settings.imageRgbProfile, settings);
    ApplyRgbSource(file, kGraphRgbSourceDefault, settings.graphicsRgbProfile, settings);
}

void ApplyProfileDefaults(const PrmFile& file, OemDevmode& settings) {
    ApplyColorDefaults(file, kProfileDefaults, settings);
}

void ApplySimulationDefaults(const PrmFile& file, OemDevmode& settings) {
    ApplyChoice(file, "MatchPaperColor", kMatchPaperKeys, settings.matchPaperColor);
    ApplyColorDefault(file, kSimulationGrayDefault, settings);
}

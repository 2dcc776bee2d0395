// The file's compiler refuses item keys that the module does not look for. Its lists of them, which stand
// apart, are held against what the module's tables hold and what its readers take.
#include "paramdata/color_defaults.h"
#include "paramdata/color_tables.h"
#include "paramdata/control_texts.h"
#include "paramdata/input_slots.h"
#include "prmc/schema.h"
#include "support/prm_image.h"
#include "trays/media_type_lists.h"

#include <algorithm>

namespace {

struct KnownKeysTest : ParameterDataTest {};

using Keys = std::vector<std::string>;

Keys Sorted(Keys keys) {
    std::sort(keys.begin(), keys.end());
    return keys;
}

Keys CompilersKeys(const std::string& entry) {
    const EntryRow* row = FindEntryRow(entry);
    return row != nullptr ? Keys(row->keys.begin(), row->keys.end()) : Keys();
}

// Of records that end at an empty key.
Keys KeysOf(const ControlTextRecord* records) {
    Keys keys;
    for (; records->key[0] != 0; ++records)
        keys.emplace_back(records->key);
    return keys;
}
Keys KeysOf(const ItemRecord* records) {
    Keys keys;
    for (; records->head.key[0] != 0; ++records)
        keys.emplace_back(records->head.key);
    return keys;
}

TEST_F(KnownKeysTest, TraySelections) {
    for (size_t column = 0; column < kTraySelectionCount; ++column) {
        Keys keys;
        for (const TraySourceRecord& slot : inputSlots)
            if (slot.selectionKeys[column][0] != 0)
                keys.emplace_back(slot.selectionKeys[column]);
        const char* entry = kTraySelectionFeatures[column];
        EXPECT_EQ(Sorted(CompilersKeys(entry)), Sorted(keys)) << entry;
    }
}

TEST_F(KnownKeysTest, TablesOfTheColorDialogsAndTexts) {
    const auto& [text, image, graphics] = std::tie(colorTables.text, colorTables.image, colorTables.graphics);
    const struct {
        const char* entry;
        Keys keys;
    } tables[] = {
        {"Text_RGBProf", KeysOf(text.rgbProfiles.items)},
        {"Text_RGBColorMatch", KeysOf(text.colorMatches.items)},
        {"Text_RGBGray", KeysOf(text.grays.items)},
        {"Text_Halftone", KeysOf(text.halftones.items)},
        {"Text_Destination", KeysOf(text.destinations.items)},
        {"Img_RGBProf", KeysOf(image.rgbProfiles.items)},
        {"Img_RGBColorMatch", KeysOf(image.colorMatches.items)},
        {"Img_RGBGray", KeysOf(image.grays.items)},
        {"Img_Halftone", KeysOf(image.halftones.items)},
        {"Img_Destination", KeysOf(image.destinations.items)},
        {"Graph_RGBProf", KeysOf(graphics.rgbProfiles.items)},
        {"Graph_RGBColorMatch", KeysOf(graphics.colorMatches.items)},
        {"Graph_RGBGray", KeysOf(graphics.grays.items)},
        {"Graph_Halftone", KeysOf(graphics.halftones.items)},
        {"Graph_Destination", KeysOf(graphics.destinations.items)},
        {"Property_0", KeysOf(propertyTexts)},
        {"Dlg_ColorSetting", KeysOf(colorDialogTexts)},
        {"Dlg_PaperSourceTraySetting", KeysOf(trayDialogTexts)},
    };
    for (const auto& table : tables)
        EXPECT_EQ(Sorted(CompilersKeys(table.entry)), Sorted(table.keys)) << table.entry;
}

// The lists take the texts of all the keys, in a file that holds nothing else.
TEST_F(KnownKeysTest, TextsOfTheMediaTypeLists) {
    const char* const entries[kMediaTypeListCount] = {"MediaTypeList_Size",  "MediaTypeList_Orient",
                                                      "MediaTypeList_Type",  "MediaTypeList_Weight",
                                                      "MediaTypeList_Color", "MediaTypeList_Hole"};
    PrmImage image;
    for (const char* entry : entries) {
        std::vector<PrmItemDescriptor> items;
        for (const std::string& key : CompilersKeys(entry))
            items.push_back(image.Plain(key, L"Text"));
        image.Items(entry, items);
    }
    const DeviceTable table = {};
    OpenedImage file(image);
    MediaTypeLists* lists = BuildMediaTypeLists(file.file, &table);
    ASSERT_NE(lists, nullptr);
    for (size_t list = 0; list < kMediaTypeListCount; ++list)
        EXPECT_EQ(KeysOf(lists->lists[list]), CompilersKeys(entries[list])) << entries[list];
    FreeMediaTypeLists(lists);
}

// Each mode has a value of its own; of two choices one sets the field.
TEST_F(KnownKeysTest, DefaultsOfColorModesAndChoices) {
    const struct {
        const char* entry;
        void (*apply)(const PrmFile& file, OemDevmode& settings);
        uint8_t OemDevmode::*field;
        std::vector<int> values;
    } defaults[] = {
        {"ColorSetting", ApplyColorModeDefault, &OemDevmode::colorMode, {0, 1, 2, 3, 4, 5, 6, 7, 8}},
        {"Graphics", ApplyObjectColorDefaults, &OemDevmode::graphicsFollow, {0, 1}},
        {"MatchPaperColor", ApplySimulationDefaults, &OemDevmode::matchPaperColor, {1, 0}},
    };
    for (const auto& row : defaults) {
        std::vector<int> values;
        for (const std::string& key : CompilersKeys(row.entry)) {
            PrmImage image;
            image.StringValue(row.entry, key);
            OemDevmode settings = {};
            settings.*row.field = 0xFF;
            row.apply(*OpenedImage(image), settings);
            values.push_back(settings.*row.field);
        }
        EXPECT_EQ(values, row.values) << row.entry;
    }
}

} // namespace

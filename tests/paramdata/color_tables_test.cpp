// The tables of the colour dialogs filled from the parameter data file: colour items, destination lists,
// texts.
#include "paramdata/prm_readers.h"
#include "support/prm_image.h"

namespace {

struct ColorTablesTest : ParameterDataTest {};

const std::string kProfiles = "DeviceRGB=0;sRGB=1;AdobeRGB1998=128;AppleRGB=129;CIERGB=130;ColorMatchRGB=131;"
                              "NTSC1953=132;PAL=133;SMPTE_C=134;sRGB_MS=135;WideGamutRGB=136;SMPTE_240M=137;"
                              "EFIRGB=138;sRGB_Standard=139;ProPhotoRGB=140;BlueAdjust=141";
// Items "key=value" with a prefix before each key.
std::string With(const std::string& prefix, const std::string& items) {
    std::string result;
    for (const std::string& item : Split(items, ';'))
        result += (result.empty() ? "" : ";") + prefix + item;
    return result;
}

struct Item {
    std::string key;
    uint32_t value;
    std::string display; // ASCII
};

// From items "key=value:display".
std::vector<Item> Items(const std::string& text) {
    std::vector<Item> items;
    for (const std::string& item : Split(text, ';')) {
        const size_t equals = item.find('='), colon = item.find(':');
        items.push_back({item.substr(0, equals), static_cast<uint32_t>(std::stoul(item.substr(equals + 1))),
                         colon == std::string::npos ? "" : item.substr(colon + 1)});
    }
    return items;
}

// The bytes of a table with room for so many items and the end record.
RawBytes TableOf(const std::vector<Item>& items, size_t capacity) {
    RawBytes table(0);
    for (size_t i = 0; i < items.size() && i < capacity; ++i)
        table.Append(
            ListRecord(items[i].key.substr(0, 31), items[i].value, Widened(items[i].display.substr(0, 47)).data()));
    table.bytes.resize(144 * (capacity + 1));
    return table;
}

// A table, the entry that fills it, and the items of the entry in a file; "": the file lacks the entry.
struct Table {
    const char* entry;
    const void* table;
    size_t capacity;
    std::string fromFile;
};

std::vector<Table> Tables() {
    const auto& [text, image, graphics] = std::tie(colorTables.text, colorTables.image, colorTables.graphics);
    const std::string textProfiles = "Text_sRGB=1:S;text_BLUEADJUST=141:B;Img_PAL=0;Text_PALs=0:P;Text_PAL=133";
    const std::string imageProfiles =
        With("Img_", "PAL=133:P;" + kProfiles.substr(kProfiles.find("sRGB=")) + ";DeviceRGB=0;Beyond=0");
    return {
        // clang-format off
        {"RGBProf",             &colorTables.rgbProfiles,     2,  "sRGB=0:S;Other=1:O;Third=2"},
        {"Text_RGBProf",        &text.shortRgbProfiles,       2,  textProfiles},
        {"Text_RGBProf",        &text.rgbProfiles,            16, textProfiles},
        {"Text_RGBColorMatch",  &text.colorMatches,           4,  "Text_Match=3:M;Text_Vivid=0;Img_Proof=0;Text_Proof=2;Text_Photographic=1"},
        {"Text_RGBGray",        &text.grays,                  3,  "Text_BlackOnly=2:B"},
        {"Text_Halftone",       &text.halftones,              3,  "Text_Smooth=2:S;=3:no key;Text_UltraDetai=0"},
        {"Img_RGBProf",         &image.shortRgbProfiles,      2,  imageProfiles},
        {"Img_RGBProf",         &image.rgbProfiles,           16, imageProfiles},
        {"Img_RGBColorMatch",   &image.colorMatches,          4,  ""},
        {"Img_RGBGray",         &image.grays,                 3,  "Img_BandG=1:G;Text_BlackOnly=0"},
        {"Img_Halftone",        &image.halftones,             3,  "Img_Detail=1:D;Graph_HalftoneText=0"},
        {"Graph_RGBProf",       &graphics.shortRgbProfiles,   2,  "Graph_ProPhotoRGB=140:P"},
        {"Graph_RGBProf",       &graphics.rgbProfiles,        16, "Graph_ProPhotoRGB=140:P"},
        {"Graph_RGBColorMatch", &graphics.colorMatches,       4,  "Graph_Photographic=1;Graph_Vivid=0"},
        {"Graph_RGBGray",       &graphics.grays,              3,  "Graph_4Color=0:4;Graph_BlackOnly=2:K"},
        {"Graph_Halftone",      &graphics.halftones,          5,  "Graph_HalftoneImage=4;Graph_Smooth=2:S;Graph_HalftoneText=3:T"},
        {"SimulationProf",      &colorTables.simulations,     6,  "Simu_DIC=0:D;Simu_TOYO=1;C=2;D=3;E=4;Simu_None=5:N;Simu_SWOP=6"},
        {"DestinationProf",     &colorTables.destinations,    1,  "A_key_of_more_than_31_characters_is_cut=0:A name of more than 47 characters, which is cut there"},
        {"Simu_CMYKGray",       &colorTables.simulationGrays, 3,  "Simu_BlackOnly=0;Simu_4Color=1"},
        {"Text_Destination",    &text.destinations,           1,  ""}, // rebuilt elsewhere
        {"Img_Destination",     &image.destinations,          1,  ""},
        {"Graph_Destination",   &graphics.destinations,       1,  ""},
        // clang-format on
    };
}

void FillFrom(const PrmImage& image) {
    FillColorTables(*OpenedImage(image));
}

// The table as it was before the test.
RawBytes Before(const ParameterDataTest& test, const Table& table) {
    const size_t size = 144 * (table.capacity + 1);
    RawBytes before(size);
    const auto at = static_cast<const uint8_t*>(table.table) - reinterpret_cast<uint8_t*>(&colorTables);
    memcpy(before.bytes.data(), test.kept.colors.bytes + at, size);
    return before;
}

TEST_F(ColorTablesTest, FilledFromTheFile) {
    PrmImage image;
    std::string written; // the entry before
    for (const Table& c : Tables()) {
        if (c.fromFile.empty() || written == c.entry)
            continue;
        written = c.entry;
        std::vector<PrmItemDescriptor> items;
        for (const Item& item : Items(c.fromFile))
            items.push_back(image.Plain(item.key, Widened(item.display).data()));
        image.Items(c.entry, items);
    }
    FillFrom(image);
    for (const Table& c : Tables()) {
        const RawBytes filled = TableOf(Items(c.fromFile), c.capacity);
        EXPECT_EQ(Differences(c.table, c.fromFile.empty() ? Before(*this, c) : filled), "") << c.entry << c.capacity;
    }
}

TEST_F(ColorTablesTest, AnAbsentEntryClearsTheGraphicsProfilesOnly) {
    FillFrom(PrmImage());
    for (const Table& c : Tables()) {
        const bool cleared = std::string(c.entry) == "Graph_RGBProf";
        EXPECT_EQ(Differences(c.table, cleared ? TableOf({}, c.capacity) : Before(*this, c)), "") << c.entry;
    }
    PrmImage image;
    image.Entry("Img_RGBGray"); // an entry without items
    FillFrom(image);
    EXPECT_EQ(Differences(&colorTables.image.grays, RawBytes(4 * 144)), "");
}

TEST_F(ColorTablesTest, DestinationLists) {
    const struct {
        const char *what, *entry;
        uint32_t kind;
        const char* items;     // of the file; a display name "-": offset 0
        ItemTable<1>* rebuilt; // null: fails and changes nothing
        const char* expected;
    } cases[] = {
        // clang-format off
        {"text, in the table's spelling", "Text_Destination",  1, "TEXT_destauto=0:New", &colorTables.text.destinations,     "Text_DestAuto=5:New"},
        {"image, no display offset",      "Img_Destination",   2, "Img_DestAuto=0:-",    &colorTables.image.destinations,    "Img_DestAuto=5:Old"},
        {"graphics, empty text",          "Graph_Destination", 4, "Graph_DestAuto=0:",   &colorTables.graphics.destinations, "Graph_DestAuto=5"},
        {"unknown key ends the list",     "Text_Destination",  1, "A=0;Text_DestAuto=0", &colorTables.text.destinations,     ""},
        {"beyond the capacity",           "Text_Destination",  1, "Text_DestAuto=0:A;Text_DestAuto=0:B", &colorTables.text.destinations, "Text_DestAuto=5:A"},
        {"empty key",                     "Text_Destination",  1, "=0:A",                &colorTables.text.destinations,     ""},
        {"no items",                      "Img_Destination",   2, "",                    &colorTables.image.destinations,    ""},
        {"another entry",                 "Text_Destination",  2, "Img_DestAuto=0:A",    nullptr, ""},
        {"no kind",                       "RGBProf",           0, "sRGB=0:A",            nullptr, ""},
        {"two kinds",                     "Text_Destination",  3, "Text_DestAuto=0:A",   nullptr, ""},
        {"unknown kind",                  "Text_Destination",  8, "Text_DestAuto=0:A",   nullptr, ""},
        // clang-format on
    };
    for (const auto& c : cases) {
        kept.Restore();
        for (auto* table :
             {&colorTables.text.destinations, &colorTables.image.destinations, &colorTables.graphics.destinations}) {
            table->items[0].head.value = 5; // as if another number and a name were compiled in
            CopyText(table->items[0].display, L"Old");
        }
        RawBytes expected(sizeof(colorTables));
        memcpy(expected.bytes.data(), &colorTables, sizeof(colorTables));
        if (c.rebuilt != nullptr) {
            const auto at = reinterpret_cast<uint8_t*>(c.rebuilt) - reinterpret_cast<uint8_t*>(&colorTables);
            const RawBytes table = TableOf(Items(c.expected), 1);
            memcpy(&expected.bytes[static_cast<size_t>(at)], table.bytes.data(), table.bytes.size());
        }
        PrmImage image;
        std::vector<PrmItemDescriptor> items;
        for (const Item& item : Items(c.items)) {
            items.push_back(image.Plain(item.key, Widened(item.display).data()));
            if (item.display == "-")
                items.back().head.display = 0;
        }
        image.Items(c.entry, items);
        EXPECT_EQ(BuildDestinationList(*OpenedImage(image), c.kind), c.rebuilt != nullptr) << c.what;
        EXPECT_EQ(Differences(&colorTables, expected), "") << c.what;
    }
}

TEST_F(ColorTablesTest, ControlTextsFromTheFile) {
    PrmImage image;
    std::vector<PrmItemDescriptor> items;
    for (const char* item : {"b=1:In another case", "C=1:Long", "A=1:First", "A=1:Later", "Empty=1:", "A2=1:Longer key",
                             "Missing=1:X", "B=1:Beyond the count"}) {
        const Item parts = Items(item)[0];
        items.push_back(image.Plain(parts.key, Widened(parts.display).data()));
    }
    items[1].head.display = image.Wide(Repeated(L'c', 60).data());
    const uint32_t entry = image.Items("Texts", items);
    auto& info = image.At<PrmEntryInfo>(entry + 52);
    --info.itemCount;
    info.itemOffsets = 0xFFFFFFFF; // the chain leads to the items, not the array

    const ControlTextRecord rows[] = {{{1}, L"", "A"}, {{2}, L"", "B"}, {{3}, L"Was", "Empty"}, {{4}, L"second A", "A"},
                                      {{5}, L"", "C"}, {{6}, L"", ""},  {{7}, L"", "Missing"}};
    ControlTextRecord table[std::size(rows)];
    memcpy(table, rows, sizeof(rows));
    OpenedImage file(image);
    EXPECT_FALSE(ApplyControlTexts(*file, "Text", table));
    EXPECT_EQ(memcmp(table, rows, sizeof(rows)), 0);
    EXPECT_TRUE(ApplyControlTexts(*file, "texts", table));
    RawBytes expected(sizeof(rows));
    memcpy(expected.bytes.data(), rows, sizeof(rows));
    expected.Wide(20, L"Later").Wide(148 + 20, L"In another case");
    expected.Wide(4 * 148 + 20, Repeated(L'c', 47).data());
    EXPECT_EQ(Differences(table, expected), "");
}

} // namespace

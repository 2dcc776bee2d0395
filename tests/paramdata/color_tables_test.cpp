// What the colour dialogs show: the colour item tables, the destination lists and the control texts, as
// compiled in and as the file replaces them.
#include "paramdata/prm_readers.h"
#include "support/prm_image.h"

namespace {

struct ColorTablesTest : ParameterDataTest {};

const std::string kProfiles = "DeviceRGB=0;sRGB=1;AdobeRGB1998=128;AppleRGB=129;CIERGB=130;ColorMatchRGB=131;"
                              "NTSC1953=132;PAL=133;SMPTE_C=134;sRGB_MS=135;WideGamutRGB=136;SMPTE_240M=137;"
                              "EFIRGB=138;sRGB_Standard=139;ProPhotoRGB=140;BlueAdjust=141";
const std::string kMatches = "Vivid=0;Photographic=1;Proof=2;Match=3";
const std::string kGrays = "4Color=0;BandG=1;BlackOnly=2";

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
        table.Append(ListRecord(items[i].key.substr(0, 31), items[i].value,
                                Widened(items[i].display.substr(0, 47)).data()));
    table.bytes.resize(144 * (capacity + 1));
    return table;
}

// One table: the entry that fills it, what is compiled in, and what a file may make of it. "" in place of a
// file's items: the file lacks the entry. Items beyond the capacity are in the file only.
struct Table {
    const char* entry;
    const void* table;
    size_t capacity;
    std::string compiledIn, fromFile;
};

std::vector<Table> Tables() {
    const auto& [text, image, graphics] = std::tie(colorTables.text, colorTables.image, colorTables.graphics);
    const std::string textProfiles =
        "Text_sRGB=1:S;text_BLUEADJUST=141:B;Img_PAL=0;Text_PALs=0:P;Text_PAL=133";
    const std::string imageProfiles =
        With("Img_", "PAL=133:P;" + kProfiles.substr(kProfiles.find("sRGB=")) + ";DeviceRGB=0;Beyond=0");
    return {
        // clang-format off
        {"RGBProf",             &colorTables.rgbProfiles,     2,  "DeviceRGB=0;sRGB=1", "sRGB=0:S;Other=1:O;Third=2"},
        {"Text_RGBProf",        &text.shortRgbProfiles,       2,  With("Text_", kProfiles), textProfiles},
        {"Text_RGBProf",        &text.rgbProfiles,            16, With("Text_", kProfiles), textProfiles},
        {"Text_RGBColorMatch",  &text.colorMatches,           4,  With("Text_", kMatches),  "Text_Match=3:M;Text_Vivid=0;Img_Proof=0;Text_Proof=2;Text_Photographic=1"},
        {"Text_RGBGray",        &text.grays,                  3,  With("Text_", kGrays),    "Text_BlackOnly=2:B"},
        {"Text_Halftone",       &text.halftones,              3,  "Text_UltraDetai=0;Text_Detail=1;Text_Smooth=2", "Text_Smooth=2:S;=3:no key;Text_UltraDetai=0"},
        {"Img_RGBProf",         &image.shortRgbProfiles,      2,  With("Img_", kProfiles),  imageProfiles},
        {"Img_RGBProf",         &image.rgbProfiles,           16, With("Img_", kProfiles),  imageProfiles},
        {"Img_RGBColorMatch",   &image.colorMatches,          4,  With("Img_", kMatches),   ""},
        {"Img_RGBGray",         &image.grays,                 3,  With("Img_", kGrays),     "Img_BandG=1:G;Text_BlackOnly=0"},
        {"Img_Halftone",        &image.halftones,             3,  "Img_UltraDetail=0;Img_Detail=1;Img_Smooth=2", "Img_Detail=1:D;Graph_HalftoneText=0"},
        {"Graph_RGBProf",       &graphics.shortRgbProfiles,   2,  With("Graph_", kProfiles), "Graph_ProPhotoRGB=140:P"},
        {"Graph_RGBProf",       &graphics.rgbProfiles,        16, With("Graph_", kProfiles), "Graph_ProPhotoRGB=140:P"},
        {"Graph_RGBColorMatch", &graphics.colorMatches,       4,  With("Graph_", kMatches),  "Graph_Photographic=1;Graph_Vivid=0"},
        {"Graph_RGBGray",       &graphics.grays,              3,  With("Graph_", kGrays),    "Graph_4Color=0:4;Graph_BlackOnly=2:K"},
        {"Graph_Halftone",      &graphics.halftones,          5,  "Graph_HalftoneText=3:Same as Text Setting;Graph_HalftoneImage=4:Same as Image Setting;"
                                                                  "Graph_UltraDetail=0:UltraDetail;Graph_Detail=1:Detail;Graph_Smooth=2:Smooth",
                                                                  "Graph_HalftoneImage=4;Graph_Smooth=2:S;Graph_HalftoneText=3:T"},
        {"SimulationProf",      &colorTables.simulations,     6,  "Simu_None=0;Simu_SWOP=1;Simu_Euroscale=2;Simu_CommercialPress=3;Simu_TOYO=4;Simu_DIC=5",
                                                                  "Simu_DIC=0:D;Simu_TOYO=1;C=2;D=3;E=4;Simu_None=5:N;Simu_SWOP=6"},
        {"DestinationProf",     &colorTables.destinations,    1,  "Dest_Auto=0", "A_key_of_more_than_31_characters_is_cut=0:A name of more than 47 characters, which is cut there"},
        {"Simu_CMYKGray",       &colorTables.simulationGrays, 3,  "Simu_4Color=0;Simu_BandG=1;Simu_BlackOnly=2", "Simu_BlackOnly=0;Simu_4Color=1"},
        // destination lists, which are rebuilt elsewhere
        {"",                    &text.destinations,           1,  "Text_DestAuto=0",  ""},
        {"",                    &image.destinations,          1,  "Img_DestAuto=0",   ""},
        {"",                    &graphics.destinations,       1,  "Graph_DestAuto=0", ""},
        // clang-format on
    };
}

void FillFrom(const PrmImage& image) {
    FillColorTables(*OpenedImage(image));
}

TEST_F(ColorTablesTest, CompiledIn) {
    size_t bytes = 0;
    for (const Table& c : Tables()) {
        EXPECT_EQ(Differences(c.table, TableOf(Items(c.compiledIn), c.capacity)), "") << c.entry;
        bytes += 144 * (c.capacity + 1);
    }
    EXPECT_EQ(bytes, sizeof(colorTables)) << "there is another table";
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
        const std::string& items = c.fromFile.empty() ? c.compiledIn : c.fromFile;
        EXPECT_EQ(Differences(c.table, TableOf(Items(items), c.capacity)), "") << c.entry << c.capacity;
    }
}

TEST_F(ColorTablesTest, AnAbsentEntryClearsTheGraphicsProfilesOnly) {
    FillFrom(PrmImage());
    for (const Table& c : Tables()) {
        const bool cleared = std::string(c.entry) == "Graph_RGBProf";
        EXPECT_EQ(Differences(c.table, TableOf(Items(cleared ? "" : c.compiledIn), c.capacity)), "")
            << c.entry;
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
        for (auto* table : {&colorTables.text.destinations, &colorTables.image.destinations,
                            &colorTables.graphics.destinations}) {
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

TEST_F(ColorTablesTest, ControlTextsAsCompiledIn) {
    // clang-format off
    const struct {
        const ControlTextRecord* table;
        size_t records; // the end included
        std::vector<uint32_t> templates;
        const char* rows; // behind the row of the templates
    } cases[] = {
        {propertyTexts, std::size(propertyTexts), {1130},
         "ViewPrinter;ViewPaper=1130;ViewCover=1130;ViewOverlay=1130;ViewWatermark=1130;ViewQuality=1130;"
         "PrinterInfoBT=1201;EasySet=1131;EasySetDefaults=-1;EasySetUntitled=-1;SaveEasySet=1133;"
         "EditEasySet=1134;OK=1;Cancel=2;Default=1032;Help=9"},
        {colorDialogTexts, std::size(colorDialogTexts), {122, 123, 124, 125, 128},
         "Dlg_ColorSetting;RGBProf=1632;Text=1506;Text_RGBProf=1507;Text_RGBColorMatch=1465;"
         "Text_RGBGray=1466;Text_Halftone=1467;Text_Destination=1589;Image=1501;Img_RGBProf=1502;"
         "Img_RGBColorMatch=1468;Img_RGBGray=1469;Img_Halftone=1471;Img_Destination=1597;Graphics=1473;"
         "Graph_MatchText=1475;Graph_MatchImage=1477;Graph_RGBProf=1511;Graph_RGBColorMatch=1514;"
         "Graph_RGBGray=1517;Graph_Halftone=1520;Graph_Destination=1582;PSProfile=1523;SimulationProf=1398;"
         "MatchPaperColor=1526;Simu_CMYKGray=1625;PSProfile2=1630;DestinationProf=1408;"
         "Profile_Download=1393;ManageProfile=1528"},
        {trayDialogTexts, std::size(trayDialogTexts), {155},
         "Dlg_PaperSourceTraySetting;MediaType_Info=1845;MediaTypeList_Tray=-1;MediaTypeList_Size=-1;"
         "MediaTypeList_Orient=-1;MediaTypeList_Type=-1;MediaTypeList_Weight=-1;MediaTypeList_Color=-1;"
         "MediaTypeList_Hole=-1;MediaType_Size=1859;MediaType_Orientation=1861;MediaType_Paper=1005;"
         "MediaType_Weight=1084;MediaType_Color=1089;MediaType_Hole=1097"},
    };
    // clang-format on
    for (const auto& c : cases) {
        RawBytes expected(148 * c.records);
        for (size_t i = 0; i < c.templates.size(); ++i)
            expected.U32(4 * i, c.templates[i]);
        size_t at = 0;
        for (const std::string& row : Split(c.rows, ';')) {
            const size_t equals = row.find('=');
            expected.Text(at + 116, row.substr(0, equals));
            if (equals != std::string::npos)
                expected.U32(at, static_cast<uint32_t>(std::stoi(row.substr(equals + 1))));
            at += 148;
        }
        EXPECT_EQ(at + 148, 148 * c.records) << c.rows;
        EXPECT_EQ(Differences(c.table, expected), "") << c.rows;
    }
}

TEST_F(ColorTablesTest, ControlTextsFromTheFile) {
    PrmImage image;
    std::vector<PrmItemDescriptor> items;
    for (const char* item : {"b=1:In another case", "C=1:Long", "A=1:First", "A=1:Later",
                             "Empty=1:", "A2=1:Longer key", "Missing=1:X", "B=1:Beyond the count"}) {
        const Item parts = Items(item)[0];
        items.push_back(image.Plain(parts.key, Widened(parts.display).data()));
    }
    items[1].head.display = image.Wide(Repeated(L'c', 60).data());
    const uint32_t entry = image.Items("Texts", items);
    auto& info = image.At<PrmEntryInfo>(entry + 52);
    --info.itemCount;
    info.itemOffsets = 0xFFFFFFFF; // the chain leads to the items, not the array

    const ControlTextRecord rows[] = {{{1}, L"", "A"},         {{2}, L"", "B"}, {{3}, L"Was", "Empty"},
                                      {{4}, L"second A", "A"}, {{5}, L"", "C"}, {{6}, L"", ""},
                                      {{7}, L"", "Missing"}};
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

// The tables of the colour dialogs filled from the parameter data file: colour items, destination lists,
// texts.
#include "paramdata/prm_readers.h"
#include "support/prm_image.h"

#include <algorithm>

namespace {

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

// The same items for an entry of a file, which has no values. A display name "-" becomes the offset 0.
std::vector<PrmItemDescriptor> FileItems(PrmImage& image, const std::string& text) {
    std::vector<PrmItemDescriptor> items;
    for (const Item& item : Items(text)) {
        items.push_back(image.Plain(item.key, Widened(item.display).data()));
        if (item.display == "-")
            items.back().head.display = 0;
    }
    return items;
}

struct ColorTablesTest : ParameterDataTest {
    ColorTablesTest() { Restart(); }
    // Expects the tables as they are now.
    void Restart() { memcpy(expected.bytes.data(), &colorTables, sizeof(colorTables)); }
    // Expects the first items, as many as fit, in one of the tables.
    template <size_t Capacity>
    void Expect(const ItemTable<Capacity>& table, const std::string& text) {
        RawBytes records(0);
        for (const Item& item : Items(text))
            records.Append(ListRecord(item.key.substr(0, 31), item.value, Widened(item.display.substr(0, 47)).data()));
        records.bytes.resize(std::min(records.bytes.size(), 144 * Capacity));
        records.bytes.resize(144 * (Capacity + 1)); // with the end record
        const auto at = reinterpret_cast<const uint8_t*>(&table) - reinterpret_cast<const uint8_t*>(&colorTables);
        std::copy(records.bytes.begin(), records.bytes.end(), expected.bytes.begin() + at);
    }

    RawBytes expected{sizeof(colorTables)};
};

TEST_F(ColorTablesTest, EntriesFillTheirTables) {
    PrmImage file;
    const auto fill = [&](const char* entry, const std::string& items, const auto&... tables) {
        file.Items(entry, FileItems(file, items));
        (Expect(tables, items), ...);
    };
    const auto& [text, image, graphics] = std::tie(colorTables.text, colorTables.image, colorTables.graphics);
    std::string imageProfiles = "Img_PAL=133:P";
    for (const std::string& profile :
         Split("sRGB=1;AdobeRGB1998=128;AppleRGB=129;CIERGB=130;ColorMatchRGB=131;NTSC1953=132;PAL=133;SMPTE_C=134;"
               "sRGB_MS=135;WideGamutRGB=136;SMPTE_240M=137;EFIRGB=138;sRGB_Standard=139;ProPhotoRGB=140;"
               "BlueAdjust=141;DeviceRGB=0;Beyond=0",
               ';'))
        imageProfiles += ";Img_" + profile;
    fill("RGBProf", "sRGB=0:S;Other=1:O;Third=2", colorTables.rgbProfiles);
    fill("Text_RGBProf", "Text_sRGB=1:S;text_BLUEADJUST=141:B;Img_PAL=0;Text_PALs=0:P;Text_PAL=133",
         text.shortRgbProfiles, text.rgbProfiles);
    fill("Text_RGBColorMatch", "Text_Match=3:M;Text_Vivid=0;Img_Proof=0;Text_Proof=2;Text_Photographic=1",
         text.colorMatches);
    fill("Text_RGBGray", "Text_BlackOnly=2:B", text.grays);
    fill("Text_Halftone", "Text_Smooth=2:S;=3:no key;Text_UltraDetai=0", text.halftones);
    fill("Img_RGBProf", imageProfiles, image.shortRgbProfiles, image.rgbProfiles);
    fill("Img_RGBGray", "Img_BandG=1:G;Text_BlackOnly=0", image.grays);
    fill("Img_Halftone", "Img_Detail=1:D;Graph_HalftoneText=0", image.halftones);
    fill("Graph_RGBProf", "Graph_ProPhotoRGB=140:P", graphics.shortRgbProfiles, graphics.rgbProfiles);
    fill("Graph_RGBColorMatch", "Graph_Photographic=1;Graph_Vivid=0", graphics.colorMatches);
    fill("Graph_RGBGray", "Graph_4Color=0:4;Graph_BlackOnly=2:K", graphics.grays);
    fill("Graph_Halftone", "Graph_HalftoneImage=4;Graph_Smooth=2:S;Graph_HalftoneText=3:T", graphics.halftones);
    fill("SimulationProf", "Simu_DIC=0:D;Simu_TOYO=1;C=2;D=3;E=4;Simu_None=5:N;Simu_SWOP=6", colorTables.simulations);
    fill("DestinationProf",
         "A_key_of_more_than_31_characters_is_cut=0:A name of more than 47 characters, which is cut there",
         colorTables.destinations);
    fill("Simu_CMYKGray", "Simu_BlackOnly=0;Simu_4Color=1", colorTables.simulationGrays);
    fill("Text_Destination", "Text_DestAuto=1:A"); // rebuilt elsewhere
    FillColorTables(*OpenedImage(file));
    EXPECT_EQ(Differences(&colorTables, expected), "");
}

TEST_F(ColorTablesTest, AbsentEntryClearsTheGraphicsProfilesOnly) {
    PrmImage image;
    image.Entry("Img_RGBGray"); // present, without items
    FillColorTables(*OpenedImage(image));
    Expect(colorTables.image.grays, "");
    Expect(colorTables.graphics.shortRgbProfiles, "");
    Expect(colorTables.graphics.rgbProfiles, "");
    EXPECT_EQ(Differences(&colorTables, expected), "");
}

TEST_F(ColorTablesTest, DestinationListTakesTheKnownItemsOfItsEntry) {
    ItemTable<1>* const text = &colorTables.text.destinations;
    ItemTable<1>* const image = &colorTables.image.destinations;
    ItemTable<1>* const graphics = &colorTables.graphics.destinations;
    // Without a table the call fails and changes nothing.
    const std::tuple<const char*, const char*, uint32_t, const char*, ItemTable<1>*, const char*> cases[] = {
        {"text, in the table's spelling", "Text_Destination", 1, "TEXT_destauto=0:New", text, "Text_DestAuto=5:New"},
        {"image, no display offset", "Img_Destination", 2, "Img_DestAuto=0:-", image, "Img_DestAuto=5:Old"},
        {"graphics, empty text", "Graph_Destination", 4, "Graph_DestAuto=0:", graphics, "Graph_DestAuto=5"},
        {"unknown key ends the list", "Text_Destination", 1, "A=0;Text_DestAuto=0", text, ""},
        {"beyond the capacity", "Img_Destination", 2, "Img_DestAuto=0:A;Img_DestAuto=0:B", image, "Img_DestAuto=5:A"},
        {"empty key", "Text_Destination", 1, "=0:A", text, ""},
        {"no items", "Img_Destination", 2, "", image, ""},
        {"another entry", "Text_Destination", 2, "Img_DestAuto=0:A", nullptr, ""},
        {"no kind", "RGBProf", 0, "sRGB=0:A", nullptr, ""},
        {"two kinds", "Text_Destination", 3, "Text_DestAuto=0:A", nullptr, ""},
        {"unknown kind", "Text_Destination", 8, "Text_DestAuto=0:A", nullptr, ""},
    };
    for (const auto& [what, entry, kind, items, rebuilt, wanted] : cases) {
        for (auto* table : {text, image, graphics}) {
            table->items[0].head.value = 5; // as if another number and a name were compiled in
            CopyText(table->items[0].display, L"Old");
        }
        Restart();
        if (rebuilt != nullptr)
            Expect(*rebuilt, wanted);
        PrmImage file;
        file.Items(entry, FileItems(file, items));
        EXPECT_EQ(BuildDestinationList(*OpenedImage(file), kind), rebuilt != nullptr) << what;
        EXPECT_EQ(Differences(&colorTables, expected), "") << what;
        kept.Restore();
    }
}

TEST_F(ColorTablesTest, EntryGivesTheTextsOfItsControls) {
    PrmImage image;
    std::vector<PrmItemDescriptor> items =
        FileItems(image, "b=1:In another case;C=1:Long;A=1:First;A=1:Later;Empty=1:;A2=1:Longer key;Missing=1:X;"
                         "B=1:Beyond the count");
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
    RawBytes texts(sizeof(rows));
    memcpy(texts.bytes.data(), rows, sizeof(rows));
    texts.Wide(20, L"Later").Wide(148 + 20, L"In another case");
    texts.Wide(4 * 148 + 20, Repeated(L'c', 47).data());
    EXPECT_EQ(Differences(table, texts), "");
}

} // namespace

// The default settings: the compiled-in record, and each step that takes the defaults of the file. All 7808
// bytes of the record are compared in every case, by raw offset.
#include "support/prm_image.h"

namespace {

constexpr unsigned kFiller = 0x5A; // in every byte before the build, so that a written 0 shows

struct Written {
    size_t position;
    unsigned width;
    uint32_t value; // its low bytes
};
using Writes = std::vector<Written>;

RawBytes Write(RawBytes record, const Writes& writes) {
    for (const Written& w : writes)
        for (unsigned i = 0; i < w.width; ++i)
            record.U8(w.position + i, w.value >> 8 * i & 0xFF);
    return record;
}

// With the font substitution table and the byte before it. The byte at 5297 is unchanged.
RawBytes WithFonts(RawBytes record) {
    const struct {
        const char *trueType, *printer;
        unsigned code, checksum; // the checksum is the sum of the name's bytes
    } fonts[] = {
        // clang-format off
        {"Arial",           "Arial",           5,  489},
        {"Courier New",     "Courier",         11, 1059},
        {"Times New Roman", "Times New Roman", 23, 1385},
        {"Symbol",          "Symbol",          20, 630},
        {"Wingdings",       "Wingdings",       26, 938},
        {"\x82\x6C\x82\x72\x20\x83\x53\x83\x56\x83\x62\x83\x4E",         "HGGothic-Bold",   29, 1383},
        {"\x82\x6C\x82\x72\x20\x82\x6F\x83\x53\x83\x56\x83\x62\x83\x4E", "HGPGothic-Bold",  30, 1624},
        {"\x82\x6C\x82\x72\x20\x96\xBE\x92\xA9",                         "HGMincho-Light",  31, 1169},
        {"\x82\x6C\x82\x72\x20\x82\x6F\x96\xBE\x92\xA9",                 "HGPMincho-Light", 32, 1410},
        // clang-format on
    };
    record.U8(3541, 0, 5297 - 3541).U8(5298, 0, 2 + 27 * 4).U16(5298, 9);
    for (const auto& font : fonts) {
        const auto i = static_cast<size_t>(&font - fonts);
        record.Text(3542 + 32 * i, font.trueType).Text(4433 + 32 * i, font.printer);
        record.U8(4406 + i, font.code).U32(5300 + 4 * i, font.checksum);
    }
    return record;
}

RawBytes CompiledIn() {
    const Writes fields = {{66, 2, 9},  {68, 2, 2100}, {70, 2, 2970}, {72, 2, 43},   {74, 2, 43},
                           {76, 2, 43}, {78, 2, 43},   {96, 2, 357},  {98, 2, 2100}, {100, 2, 2970},
                           {120, 2, 7}, {122, 2, 257}, {160, 2, 257}, {598, 2, 1},   {2165, 1, 1}};
    return WithFonts(Write(RawBytes(7808), fields));
}

// Derived from other settings without anything in the file: binding edge, equal shifts, cover print.
const Writes kDerived = {{1395, 1, 14}, {1396, 1, 1}, {1478, 1, 4}, {1483, 1, 4}};

RawBytes Filled() {
    return Write(WithFonts(RawBytes(7808).U8(0, kFiller, 7808)), kDerived);
}

struct DefaultsTest : ParameterDataTest {
    // Builds from the image, over the current settings.
    void Build(const PrmImage& image) {
        OpenedImage file(image);
        DeviceTable* table = BuildDeviceTable(*file);
        ASSERT_NE(table, nullptr);
        BuildDefaultSettings(*file, *table);
        excelJobCtrl = NumberAt<uint32_t>(table, 630);
        FreeDeviceTable(table);
    }
    // Builds from the image over filler with these fields written before; returns the differences from what is
    // expected: a record, or the filler with these fields written.
    std::string Compare(const PrmImage& image, const RawBytes& expected, const Writes& before = {}) {
        memcpy(&defaultSettings, Write(RawBytes(7808).U8(0, kFiller, 7808), before).bytes.data(), 7808);
        Build(image);
        return Differences(&defaultSettings, expected);
    }
    std::string Compare(const PrmImage& image, const Writes& writes, const Writes& before = {}) {
        return Compare(image, Write(Write(Filled(), before), writes), before);
    }

    uint32_t excelJobCtrl = 0;
};

TEST_F(DefaultsTest, FileWithoutDefaultsLeavesTheCompiledInRecord) {
    EXPECT_EQ(Differences(&defaultSettings, CompiledIn()), "");
    Build(PrmImage());
    EXPECT_EQ(Differences(&defaultSettings, Write(CompiledIn(), kDerived)), "");
    EXPECT_EQ(excelJobCtrl, 1u);
    EXPECT_EQ(Compare(PrmImage(), Writes()), "") << "fonts are always written";
}

TEST_F(DefaultsTest, PaperGivesItsSizeToAnOutputPaperThatIsTheSame) {
    // The value of the output paper, 0 without an entry, and what is written besides the paper.
    const std::tuple<const char*, uint32_t, bool, Writes> cases[] = {
        {"same as the paper", 357, true, {{96, 2, 357}, {98, 2, 4200}, {100, 2, 2971}}},
        {"same as the paper before", 357, false, {{96, 2, 357}, {98, 2, 2100}, {100, 2, 2970}}},
        {"of its own", 8, true, {{96, 2, 8}, {98, 2, 1111}, {100, 2, 2222}}},
        {"not in the file", 0, true, {}},
    };
    for (const auto& [what, outputPaper, hasPaper, further] : cases) {
        PrmImage image;
        Writes writes = further;
        const RawBytes paper = RawBytes(620).U32(16, 0x10008).U32(24, 4200).U32(28, 2971);
        if (hasPaper) { // without its flag at 288; the margins count
            image.Entry("PaperSize", {}, 0,
                        image.Put(RawBytes(paper).U32(136, 1).U32(140, 2).U32(144, 3).U32(148, 0x10004)));
            writes.insert(writes.end(), {{66, 2, 8}, {68, 2, 4200}, {70, 2, 2971}});
            writes.insert(writes.end(), {{72, 2, 1}, {74, 2, 2}, {76, 2, 3}, {78, 2, 4}});
        }
        const RawBytes output = RawBytes(320).U32(16, outputPaper).U32(24, 1111).U32(28, 2222);
        if (outputPaper != 0)
            image.Entry("OutPaperSize", {}, 0, image.Put(output));
        EXPECT_EQ(Compare(image, writes, {{68, 2, 2100}, {70, 2, 2970}}), "") << what;
    }
}

TEST_F(DefaultsTest, DefaultRecordGivesItsValue) {
    constexpr uint32_t kValue = 0x81828384;
    const std::tuple<const char*, unsigned, std::vector<size_t>> cases[] = {
        {"MediaType", 2, {122, 160}},  {"MediaWeight", 2, {162}},  {"MediaColor", 2, {164}},
        {"MediaPrePunched", 1, {166}}, {"InTray", 2, {120}},       {"Collate", 1, {600}},
        {"PaperOption1", 1, {744}},    {"PaperOption2", 1, {745}}, {"Staple", 1, {1457}},
        {"HolePunch", 1, {1459}},      {"Folding", 1, {1466}},     {"Combination", 1, {1470}},
        {"OutputTray", 2, {1460}},     {"OutputOrder", 1, {1462}}, {"ExcelJobCtrl", 0, {}},
    };
    for (const auto& [entry, width, positions] : cases) {
        PrmImage image;
        const uint32_t record = image.Put(RawBytes(156).U8(0, 0xAB, 156).U32(12, kValue));
        image.At<PrmEntryInfo>(image.Entry(entry, {}, 0, record) + 52).itemCount = 0xFFFFFFFF; // not used
        Writes writes;
        for (const size_t position : positions)
            writes.push_back({position, width, kValue});
        EXPECT_EQ(Compare(image, writes), "") << entry;
        EXPECT_EQ(excelJobCtrl, std::string(entry) == "ExcelJobCtrl" ? kValue : 1) << entry;
    }
}

// The user paper has two copies of each length, and a third in the metric unit.
Writes UserPaper(size_t isLength, uint32_t metric, uint32_t inches) {
    return {{81 + 2 * isLength, 2, metric},
            {103 + 2 * isLength, 2, metric},
            {7699 + 2 * isLength, 2, metric},
            {88 + 4 * isLength, 4, inches},
            {108 + 4 * isLength, 4, inches}};
}

TEST_F(DefaultsTest, RangeGivesItsDefaultInBothUnits) {
    const auto negative = [](int value) { return static_cast<uint32_t>(value); };
    const std::tuple<const char*, uint32_t, const char*, Writes> cases[] = {
        // clang-format off
        {"Copies",             0x12345,        "", {{598, 2, 0x2345}}},
        {"UserPaper_Width",    2970,           "", UserPaper(0, 2970, 1169)},
        {"UserPaper_Width",    2970,        "MFP", UserPaper(0, 2970, 11693)},
        {"UserPaper_Width",    negative(-10),  "", UserPaper(0, 65526, negative(-3))},
        {"UserPaper_Length",   32767,       "MFP", UserPaper(1, 32767, 129004)},
        {"UserPaper_Length",   negative(-1),   "", UserPaper(1, 65535, 0)},
        {"BindShift_Front",    50,             "", {{1396, 1, 0}, {1398, 2, 50}, {1402, 2, 197}}},
        {"BindShift_Front",    negative(-50),  "", {{1396, 1, 0}, {1398, 2, 65486}, {1402, 2, negative(-196)}}},
        {"BindShift_Front",    0x5A5A,         "", {{1398, 2, 0x5A5A}, {1402, 2, 91063}}}, // as the shift of the back
        {"BindShift_Back",     1,           "MFP", {{1396, 1, 0}, {1400, 2, 1}, {1404, 2, 4}}},
        {"ImgShiftMFP_FrontH", 5,              "", {{1412, 2, 50}, {1420, 2, 197}}},
        {"ImgShiftMFP_FrontV", negative(-5),   "", {{1414, 2, 65486}, {1422, 2, negative(-196)}}},
        {"ImgShiftMFP_BackH",  4000,           "", {{1430, 2, 40000}, {1438, 2, negative(-100534)}}}, // 16 bits: -25536
        {"ImgShiftMFP_BackV",  1,              "", {{1432, 2, 10}, {1440, 2, 39}}},
        {"DivideFinish",       0x10007,        "", {{1472, 2, 7}}},
        // clang-format on
    };
    for (const auto& [entry, value, figureType, writes] : cases) {
        PrmImage image;
        image.Range(entry, 111, 222, value);
        image.Table("PaperSizeFigure", std::string("FigureType=") + figureType);
        EXPECT_EQ(Compare(image, writes), "") << entry << " " << value;
    }
}

// Colour keys are looked up in the compiled-in tables.
TEST_F(DefaultsTest, DefaultKeyGivesTheValueOfItsItem) {
    // A width of 0: nothing is written.
    const std::tuple<const char*, const char*, Written> cases[] = {
        // clang-format off
        {"FCoverTray", "FCover_Tray3", {1480, 2, 259}},              {"BCoverTray", "bcover_lct", {1484, 2, 1000}},
        {"PIFrontCover", "PIFTray2", {1491, 2, 1002}},               {"PIBackCover", "PIBTray1", {1494, 2, 1001}},
        {"OHPIntTray", "OHPInt_Manual", {1488, 2, 4}},               {"FCoverTray", "", {}}, // as many sources there
        {"Text_RGBColorMatch", "Text_Match", {2157, 1, 3}},          {"Text_RGBColorMatch", "Img_Match", {}},
        {"Text_Halftone", "Text_UltraDetai", {2158, 1, 0}},          {"Text_RGBGray", "text_BLACKonly", {2159, 1, 2}},
        {"Img_RGBColorMatch", "Img_Proof", {2153, 1, 2}},            {"Img_Halftone", "Img_Smooth", {2154, 1, 2}},
        {"Img_RGBGray", "Img_BandG", {2155, 1, 1}},                  {"RGBProf", "sRGB", {2512, 2, 1}},
        {"Graphics", "Graph_MatchImage", {2165, 1, 1}},              {"Graphics", "Graph_MatchText", {2165, 1, 0}},
        {"Graph_Halftone", "Graph_HalftoneImage", {2162, 1, 4}},     {"Graph_RGBGray", "Graph_4Color", {2163, 1, 0}},
        {"Graph_RGBColorMatch", "Graph_Photographic", {2161, 1, 1}}, {"SimulationProf", "Simu_DIC", {2166, 2, 5}},
        {"Text_Destination", "Text_DestAuto", {3024, 2, 0}},         {"Img_Destination", "Img_DestAuto", {3026, 2, 0}},
        {"Graph_Destination", "Graph_DestAuto", {3028, 2, 0}},       {"DestinationProf", "Dest_Auto", {2336, 2, 0}},
        {"MatchPaperColor", "MatchPaperColorON", {3534, 1, 1}},      {"Simu_CMYKGray", "Simu_BandG", {3536, 2, 1}},
        {"MatchPaperColor", "MatchPaperColorOFF", {3534, 1, 0}},
        // clang-format on
    };
    for (const auto& [entry, key, written] : cases) {
        PrmImage image;
        image.StringValue(entry, key);
        EXPECT_EQ(Compare(image, Writes{written}), "") << entry << " " << key;
    }
    uint32_t mode = 0;
    for (const std::string& name : Split("Auto doc Photo Presen DTP Web CAD ICM Custom", ' ')) {
        PrmImage image;
        image.StringValue("ColorSetting", "Color_" + name);
        EXPECT_EQ(Compare(image, Writes{{2095, 1, mode++}}), "") << name;
    }
}

TEST_F(DefaultsTest, RgbSourceTakesTheDisplayNameOfItsTable) {
    const std::tuple<const char*, const char*, ItemRecord&, size_t, size_t> cases[] = {
        {"Text_RGBProf", "Text_BlueAdjust", colorTables.text.rgbProfiles.items[15], 2516, 2520},
        {"Img_RGBProf", "Img_BlueAdjust", colorTables.image.rgbProfiles.items[15], 2514, 2688},
        {"Graph_RGBProf", "Graph_BlueAdjust", colorTables.graphics.rgbProfiles.items[15], 2518, 2856},
    };
    PrmImage image;
    RawBytes expected = Filled();
    for (const auto& [entry, key, item, value, name] : cases) {
        image.StringValue(entry, key);
        const auto character = static_cast<wchar_t>(entry[0]);
        memcpy(item.display, Repeated(character, 47).data(), sizeof(item.display));
        expected.U16(value, 141).Wide(name, Repeated(character, 40).data()).U16(name + 80, 0);
    }
    EXPECT_EQ(Compare(image, expected), "");
}

TEST_F(DefaultsTest, DefaultLocationGivesItsValue) {
    const std::tuple<const char*, const char*, std::vector<size_t>> cases[] = {
        {"OvlForm_Location", "hdd", {2088}}, {"Prof_Location", "HDD", {2684, 2852, 3020, 2332, 2502, 2508}},
        {"OvlForm_Location", "HD", {}},      {"Prof_Location", "", {}},
        {"OutputMethod", "HDD", {}},
    };
    for (const auto& [name, key, positions] : cases) {
        PrmImage image;
        const uint32_t entry = image.Items<PrmTextItem>(
            name, {image.WithText("Memory", L"", 7, ""), image.WithText("HDD", L"", 0x10203, "")});
        image.SetDefault(entry, image.Put(RawBytes(16).U32(0, image.Text(key))));
        Writes writes;
        for (const size_t position : positions)
            writes.push_back({position, 4, 0x10203});
        EXPECT_EQ(Compare(image, writes), "") << name << key;
    }
}

// A watermark with its number in every field.
RawBytes Watermark(PrmImage& image, const std::string& key, uint32_t i) {
    const auto text = [&](size_t length) {
        return image.Wide(Repeated(static_cast<wchar_t>(L'a' + i), length).data());
    };
    RawBytes record = RawBytes(80).U8(0, 0xAB, 80).U32(0, image.Text(key)).U32(20, text(40));
    record.U32(32, text(200)).U32(44, text(40)).U32(48, 0xFFFF1000 + i).U32(52, 0xFFFF2000 + i);
    record.U32(56, 0xC0B0A0 + i).U32(60, 0xFFFF3000 + i).U8(64, 0x64 + i, 8).U32(72, 0xFFFF4000 + i);
    return record;
}

TEST_F(DefaultsTest, WatermarkIsTheLastItemWithTheDefaultKey) {
    // Keys of the items, key of the default record; the item's position (-1: none), and whether it is taken over.
    const std::tuple<const char*, const char*, bool, int, bool> cases[] = {
        {"WM_None WM_A WM_B", "wm_a", true, 1, true},  // in another case
        {"WM_None WM_A WM_B", "WM_B", false, 2, true}, // black only
        {"WM_A WM_B WM_A", "WM_A", true, 2, true},     // two of one key
        {"WM_A WM_None WM_NONE", "wm_none", true, 2, false},
        {"WM_None WM_AA", "WM_A", true, -1, false}, // unknown key
        {"WM_A  WM_B", "", true, 1, true},          // empty key
    };
    for (const auto& [keys, defaultKey, isColor, position, hasFields] : cases) {
        PrmImage image;
        image.Table("DevInfo", isColor ? "ColorDevice=TRUE" : "ColorDevice=FALSE");
        std::vector<uint32_t> offsets;
        for (const std::string& key : Split(keys, ' '))
            offsets.push_back(image.Put(Watermark(image, key, static_cast<uint32_t>(offsets.size()))));
        image.Entry("Watermark", offsets, 0, image.Put(Watermark(image, defaultKey, 9)));

        RawBytes expected = Filled();
        const auto i = static_cast<unsigned>(position);
        if (position >= 0)
            expected.U16(1500, i);
        if (hasFields) {
            const auto character = static_cast<wchar_t>(L'a' + i);
            expected.Wide(1534, Repeated(character, 31).data()).U16(1596, 0);
            expected.Wide(1598, Repeated(character, 128).data()).U16(1854, 0);
            expected.Wide(1856, Repeated(character, 31).data()).U16(1918, 0);
            expected.U16(1920, 0x1000 + i).U16(1922, 0x2000 + i);
            expected.U32(1924, isColor ? 0xC0B0A0 + i : 0x808080);
            expected.U16(1928, 0x3000 + i).U8(1930, 0x64 + i, 8).U16(1946, 0x4000 + i);
        }
        EXPECT_EQ(Compare(image, expected), "") << keys << ": " << defaultKey;
    }
}

TEST_F(DefaultsTest, ResolutionIsTheFirstItemWithTheDefaultKey) {
    // With the number that follows the fifth character of the key.
    const auto second = [](uint32_t number) {
        return Writes{{2136, 1, 1}, {2138, 2, 21}, {2140, 2, 22}, {2142, 2, 23}, {2144, 2, number}};
    };
    constexpr uint32_t kTooMany = 0x80000000; // than the file can hold
    const std::tuple<const char*, const char*, uint32_t, Writes> cases[] = {
        {"Res2_1200x600", "res2_1200X600", 3, second(1200)},
        {"600x1x42", "600x1x42", 3, second(42)},
        {"600x1x42", "600x1x42", kTooMany, {}},
        {"Res_2", "Res_", 3, {}},
        {"", "", 3, second(0)},
    };
    for (const auto& [secondKey, defaultKey, count, writes] : cases) {
        PrmImage image;
        std::vector<uint32_t> offsets;
        for (const char* key : {"Res_1", secondKey, secondKey}) {
            const auto i = static_cast<uint32_t>(10 + 10 * offsets.size());
            const RawBytes record = RawBytes(32).U32(12, 77).U32(16, 77).U32(20, 0x10001 + i).U32(24, 2 + i);
            offsets.push_back(image.Put(RawBytes(record).U32(0, image.Text(key)).U32(28, 3 + i)));
        }
        const uint32_t record = image.Put(RawBytes(32).U32(0, image.Text(defaultKey)));
        image.At<PrmEntryInfo>(image.Entry("Resolution", offsets, 0, record) + 52).itemCount = count;
        EXPECT_EQ(Compare(image, writes), "") << secondKey << " " << defaultKey;
    }
}

TEST_F(DefaultsTest, SwitchesLimitTheBindingEdgeAndSetTheCoverPrint) {
    for (const bool fourEdges : {false, true}) {
        PrmImage image;
        image.Table("FeatureSetting", fourEdges ? "BindingEdge=4Bind;FCoverPrint=Driver" : "BCoverPrint=Driver");
        const unsigned cover = fourEdges ? 1 : 4;
        for (unsigned before = 0; before < 20; ++before) {
            const unsigned edge =
                fourEdges ? (before == 10 || before == 11 ? before : 10) : (before >= 14 && before <= 17 ? before : 14);
            const Writes writes = {{1395, 1, edge}, {1478, 1, cover}, {1483, 1, cover}};
            EXPECT_EQ(Compare(image, writes, {{1395, 1, before}}), "") << fourEdges << before;
        }
    }
}

TEST_F(DefaultsTest, EachTrayTakesTheDefaultPaper) {
    // Trays have keys of one character.
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"automatic choice is no tray", "A=257;X=7;B=258", "X=7", "A=257;B=258"},
        {"bin of the automatic choice from the file", "A=7;X=301;C=0;Y=301", "X=301", "A=7;C=0"},
        {"ten slots", "X=7;A=1;B=2;C=3;D=4;E=5;F=6;G=8;H=9;I=10;J=11;K=12", "X=7",
         "A=1;B=2;C=3;D=4;E=5;F=6;G=8;H=9;I=10;J=11"},
    };
    const auto bin = [](const std::string& tray) { return static_cast<uint32_t>(std::stoul(tray.substr(2))); };
    for (const auto& [what, fileTrays, automatic, slots] : cases) {
        PrmImage image;
        std::vector<PrmMediaItem> trays;
        for (const std::string& tray : Split(fileTrays, ';'))
            trays.push_back(image.Media(tray.substr(0, 1), L"", bin(tray), 1, ""));
        image.Items("InTray", trays);
        image.Items<PrmMediaItem>("ALL_InTray", {image.Media("InTrayAuto", L"", bin(automatic), 1, "")});
        const Writes media = {{122, 2, 0x1234}, {162, 2, 0x2345}, {164, 2, 0x3456}, {166, 1, 0x78}};
        RawBytes expected = Write(Filled(), media);
        size_t at = 167;
        for (const std::string& slot : Split(slots, ';')) { // slots without a tray stay
            expected.Text(at, slot.substr(0, 1)).U8(at + 1, 0).U32(at + 32, bin(slot)).U16(at + 36, 0x1234);
            expected.U16(at + 38, 0x2345).U16(at + 40, 0x3456).U8(at + 42, 0x78);
            at += 43;
        }
        EXPECT_EQ(Compare(image, expected, media), "") << what;
    }
}

} // namespace

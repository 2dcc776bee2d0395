// Device table: the order of its 818 bytes, checked byte by byte, and the builders of its scalar fields and
// of the machine information.
#include "support/prm_image.h"

namespace {

struct DeviceTableTest : ParameterDataTest {};

constexpr size_t kTableSize = 818;

// Builds the table from the image and compares all of it.
void ExpectTable(const PrmImage& image, const RawBytes& expected, const std::string& what) {
    EXPECT_EQ(Differences(BuiltTable(image).table, expected), "") << what;
}

TEST_F(DeviceTableTest, ValuesOfSwitches) {
    // clang-format off
    const std::tuple<std::string, size_t, uint32_t> cases[] = {
        {"sTAPLE=enable", 29, 1},              {"Staple=Enabled", 29, 0},       {"Staple=Enabl", 29, 0},
        {"Staples=Enable", 29, 0},             {"SeparatePagePrint=Enable", 0, 0},
        {std::string(32, 'S') + "=Enable", 29, 0}, // no terminator in the name's field
        {"Poster=Enable;Poster=other", 14, 0}, {"Poster=other;Overlay=x;Poster=Enable", 14, 1},
        {"ColorSetting=TYPE3", 11, 3},         {"ColorSetting=TYPE256", 11, 1}, {"ColorSetting=TYPE0", 11, 1},
        {"Dlg_MediaType=type255", 83, 255},    {"Dlg_MediaType=TYPE03", 83, 1}, {"Dlg_MediaType=TYPE", 83, 1},
        {"Dlg_MediaType=TYPE3x", 83, 1},       {"Dlg_MediaType=TYPE 3", 83, 1}, {"Dlg_MediaType=", 83, 1},
        {"Dlg_MediaType=TYPE4294967299", 83, 1}, // 3 in 32 bits
        {"Dlg_MediaType=TYPE9;Dlg_MediaType=none", 83, 1},
        {"SeparatePagePrint=Driver", 0, 1},    {"BindingEdge=4Bind", 26, 1},    {"Overlay=SoftOverlay", 52, 1},
        {"InterimAuthenticSetting=Enable", 84, 1},
    };
    // clang-format on
    for (const auto& [rows, index, value] : cases) {
        PrmImage image;
        image.Table("FeatureSetting", rows);
        ExpectTable(image, RawBytes(kTableSize).U32(4 * index, value), rows);
    }
    PrmImage image;
    image.Table("FeatureSetting", "UserAuthentication=Enable");
    ExpectTable(image, RawBytes(kTableSize).U32(4 * 60, 1).U32(4 * 76, 1), "one row sets two switches");
}

TEST_F(DeviceTableTest, DeviceFactsAndFigureType) {
    RawBytes none(kTableSize);
    const auto byte = [&](size_t at, unsigned value) { return RawBytes(none).U8(at, value); };
    const auto dword = [&](size_t at, uint32_t value) { return RawBytes(none).U32(at, value); };
    // clang-format off
    const std::pair<const char*, RawBytes> cases[] = {
        {"PrintRatePPM=35", dword(352, 35)},            {"printrateppm=  +42ppm", dword(352, 42)},
        {"PrintRatePPM=-3", dword(352, 0xFFFFFFFD)},    {"PrintRatePPM=x35", none},
        {"PrintRate=70000", dword(356, 70000)},         {"PrintRate=1000;PrintRate=fast", none},
        {"PrintRateUnit=cps", byte(360, 2)},            {"PrintRateUnit=LPM", byte(360, 3)},
        {"PrintRateUnit=IPM", byte(360, 4)},            {"PrintRateUnit=ppm", byte(360, 1)},
        {"PrintRateUnit=LPMs", byte(360, 1)},           {"PrintRateUnit=", byte(360, 1)},
        {"Staple=true", dword(361, 1)},                 {"Staple=Enable", none},
        {"Staple=TRUE;Staple=FALSE", none},             {"PrintRatePPM2=1;PrintRat=1;Stapler=TRUE", none},
        {"ColorDevice=TRUE", dword(365, 1)},            {"ColorDevice=TRUES", none},
        {"PDLType=PCL6 PS3", byte(369, 6).U8(371, 3)},  {"PDLType=6 3;PDLType=PS2", byte(369, 2)},
        {"PDLType=65537", byte(369, 1)},
        {"MachineEncryption=aes", byte(373, 1)},        {"MachineEncryption=DES", byte(373, 2)},
        {"figuretype=mfp", dword(386, 1)},              {"FigureType=MFPs;Figure=MFP", none},
        {"FigureType=MFP;FigureType=Printer", dword(386, 1)}, // a row can only set it
    };
    // clang-format on
    for (const auto& [rows, expected] : cases) {
        PrmImage image;
        image.Table("DevInfo", rows);
        image.Table("PaperSizeFigure", rows);
        ExpectTable(image, expected, rows);
    }
}

TEST_F(DeviceTableTest, RangesAndCountry) {
    PrmImage image;
    ExpectTable(image, RawBytes(kTableSize), "no entry");
    image.Range("Copies", 1, 999, 5);
    image.Range("UserPaper_Width", 1000, 3110, 2100);
    image.Range("UserPaper_Length", 0x10000 + 1480, 4572, 2970);
    image.Entry("Country", {image.Put(RawBytes(8).U32(0, 0x81000031).U32(4, 7))});
    RawBytes expected = RawBytes(kTableSize).U16(340, 999).U16(342, 1).U32(626, 0x81000031);
    expected.U16(344, 1000).U16(346, 3110).U16(348, 1480).U16(350, 4572);
    ExpectTable(image, expected, "all of them");
    FreeDeviceTable(nullptr);
}

TEST_F(DeviceTableTest, MachineInformation) {
    PrmImage image;
    const std::string v16(16, 'v'), v15(15, 'v'); // without terminator in the file, and what is kept of it
    const uint32_t details = image.Put(RawBytes(64).Text(0, "lumora R880").Text(16, v16).Text(32, v16).Text(48, "2"));
    const uint32_t first = image.Put(RawBytes(24).Text(0, "0123456789ABCDEF").U32(16, 2).U32(20, details));
    const uint32_t second = image.Put(RawBytes(24).Text(0, "B").U32(16, 0).U32(20, details));
    image.Entry("MachineInfo", {first, second});
    BuiltTable built(image);
    const uint8_t* machines = built.List(378);
    EXPECT_EQ(NumberAt<uint32_t>(built.table, 374), 3u);
    ASSERT_EQ(Differences(machines, RawBytes(20).Text(0, "0123456789ABCDE").U32(16, 3)), "");
    EXPECT_EQ(Differences(machines + 28, RawBytes(20).Text(0, "B").U32(16, 1)), "");
    EXPECT_EQ(Differences(machines + 56, RawBytes(28)), "");
    RawBytes expected = RawBytes(96).Text(0, "lumora R880").Text(16, v15).Text(32, v15).Text(48, "2");
    EXPECT_EQ(Differences(NumberAt<void*>(machines, 20), expected), "");
    EXPECT_EQ(Differences(NumberAt<void*>(machines, 28 + 20), RawBytes(32)), "");
}

TEST_F(DeviceTableTest, ImpossibleCountLosesOnlyWhatItCounts) {
    for (const uint32_t count : {0xFFFFFFFFu, 0x80000000u, 0x10000000u}) {
        PrmImage image;
        const uint32_t switches = image.Table("FeatureSetting", "Staple=Enable");
        const uint32_t header = image.Word(image.At<PrmEntryInfo>(switches + 52).itemOffsets);
        image.At<PrmTableHeader>(header).rowCount = count;
        const uint32_t staples = image.Items<PrmTextItem>("Staple", {image.WithText("A", L"", 1, "")});
        image.At<PrmEntryInfo>(staples + 52).itemCount = count;
        image.Entry("MachineInfo", {image.Put(RawBytes(24).Text(0, "M").U32(16, count))});
        for (const uint32_t entry : {image.Range("Copies", 1, 2, 3), image.Table("PaperSizeFigure", "FigureType=MFP"),
                                     image.Entry("Country", {image.Put(RawBytes(8).U32(0, 49))})})
            image.At<PrmEntryInfo>(entry + 52).itemCount = count; // not used
        BuiltTable built(image);
        EXPECT_EQ(built.List(682), nullptr) << count;
        EXPECT_EQ(NumberAt<uint32_t>(built.table, 4 * 29), 0u) << count;
        EXPECT_EQ(NumberAt<uint16_t>(built.table, 340), 2) << count;
        EXPECT_EQ(NumberAt<uint32_t>(built.table, 386), 1u) << count;
        EXPECT_EQ(NumberAt<uint32_t>(built.table, 626), 49u) << count;
        ASSERT_NE(built.List(378), nullptr) << count;
        EXPECT_EQ(NumberAt<void*>(built.List(378), 20), nullptr) << count;
    }
}

} // namespace

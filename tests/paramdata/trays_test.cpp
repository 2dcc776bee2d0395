// Paper sources: their list in the device table, the compiled-in table and its update, the lists of features
// that select a source, and the tray rows.
#include "paramdata/feature_lists.h"
#include "support/prm_image.h"

namespace {

struct TraysTest : ParameterDataTest {};

PrmMediaItem Tray(PrmImage& image, const std::string& key, uint32_t value, uint32_t enabled = 1) {
    return image.Media(key, L"Tray", value, enabled, "text of " + key);
}

TEST_F(TraysTest, DisabledTrayHasATextButNoKey) {
    PrmImage image;
    image.Items<PrmMediaItem>("InTray", {Tray(image, "InTray1", 257), Tray(image, "InTray2", 258, 0),
                                         Tray(image, "InTray3", 259, 0x80000000)});
    RawBytes expected(4 * 256); // three records and the end
    for (const unsigned i : {0u, 1u, 2u, 3u})
        expected.U32(256 * i, 256);
    expected.Text(4, "InTray1").U32(36, 257).U16(44, 32515).Wide(48, L"Tray").Text(112, "text of InTray1");
    expected.Text(256 + 112, "text of InTray2");
    expected.Text(512 + 4, "InTray3").U32(512 + 36, 259).U16(512 + 44, 32515).Wide(512 + 48, L"Tray");
    EXPECT_EQ(Differences(BuiltTable(image).List(582), expected.Text(512 + 112, "text of InTray3")), "");
}

// The features that select a paper source, the position of their list in the device table, and some of their
// items with the bin number.
// clang-format off
const std::tuple<const char*, size_t, std::string> kSelections[] = {
    {"FCoverTray",          722, "FCover_Auto=32767;FCover_Tray3=259;FCover_LCT=1000"},
    {"BCoverTray",          730, "BCover_Tray1=257;BCover_Manual=4;BCover_Auto=32767"},
    {"SeparatePageTray",    738, "SPage_Tray2=258;SPage_Manual=4"},
    {"OHPIntTray",          746, "OHPInt_Tray5=261;OHPInt_LCT=1000"},
    {"PIFrontCover",        754, "PIFTray1=1001;PIFTray2=1002"},
    {"PIBackCover",         762, "PIBTray2=1002;PIBTray1=1001"},
    {"PerPageListPaperSrc", 770, "PPSTraySameAsBody=32767;PPSTray4=260;PPSMANUAL=4;PPSPITray2=1002"},
};
// clang-format on

TEST_F(TraysTest, SelectionLists) {
    PrmImage image;
    const char* const unknown = ";SPage_LCT=0;InTray1=0;FCover_Tray=0;PPSTray12=0"; // to every feature
    for (const auto& [feature, position, list] : kSelections) {
        std::vector<PrmItemDescriptor> items;
        for (const std::string& item : Split(list + unknown, ';'))
            items.push_back(image.Plain(Split(item, '=')[0], L"Tray \u00E4"));
        image.Items(feature, items);
    }
    BuiltTable built(image);
    for (const auto& [feature, position, list] : kSelections) {
        RawBytes expected(0);
        for (const std::string& item : Split(list + unknown, ';')) {
            const std::vector<std::string> parts = Split(item, '=');
            const auto value = static_cast<uint32_t>(std::stoul(parts[1]));
            expected.Append(ListRecord(parts[0], value, L"Tray \u00E4"));
        }
        EXPECT_EQ(Differences(built.List(position), expected.Append(RawBytes(144))), "") << feature;
    }
}

TEST_F(TraysTest, UnknownFeatureBitStoresNoList) {
    PrmImage image;
    image.Items<PrmItemDescriptor>("FCoverTray", {image.Plain("FCover_Tray2")});
    const BuiltTable built((PrmImage()));
    OpenedImage file(image);
    for (const uint32_t bit : {0u, 3u, 128u, 0x80000000u, 0xFFFFFFFFu})
        BuildTraySelectionList(*file, built.table, "FCoverTray", bit);
    BuildTraySelectionList(*file, built.table, "Missing", 1);
    BuildTraySelectionList(*file, nullptr, "FCoverTray", 1);
    EXPECT_EQ(Differences(built.table, RawBytes(818)), "");
    BuildTraySelectionList(*file, built.table, "FCoverTray", 32);
    ASSERT_NE(built.List(762), nullptr) << "the bit chooses the field";
    EXPECT_EQ(NumberAt<uint32_t>(built.List(762), 36), 258u) << "the name chooses the value";
}

TEST_F(TraysTest, SelectionListsUseUpdatedBinNumbers) {
    RawBytes expected(sizeof(inputSlots));
    memcpy(expected.bytes.data(), inputSlots, sizeof(inputSlots));
    const size_t tray3 = 388 * 4, lct = 388 * 10;
    EXPECT_EQ(NumberAt<uint16_t>(inputSlots, tray3 + 32), 259);
    expected.U16(tray3 + 32, 300).Text(tray3 + 34, "text of intray3");
    expected.U16(lct + 32, 0xFFFF).Text(lct + 34, "text of InTrayLCT");

    PrmImage image;
    image.Items<PrmItemDescriptor>("FCoverTray", {image.Plain("FCover_Tray3")});
    image.Items<PrmMediaItem>("ALL_InTray",
                              {Tray(image, "intray3", 0x10000 + 300, 0), Tray(image, "InTray", 1),
                               Tray(image, "InTray33", 2), Tray(image, "", 3), Tray(image, "InTrayLCT", 0xFFFF)});
    BuiltTable built(image);
    EXPECT_EQ(Differences(inputSlots, expected), "");
    ASSERT_NE(built.List(722), nullptr);
    EXPECT_EQ(NumberAt<uint32_t>(built.List(722), 36), 300u);
}

TEST_F(TraysTest, RowTakesTheNameOfAnItemThatEndsInItsKey) {
    const std::string long37 = std::string(30, 'x') + "InTray1";
    std::string trays63, rows63;
    for (int i = 0; i < 63; ++i) {
        trays63 += "T ";
        rows63 += "T: ";
    }
    // clang-format off
    // Keys; after the colon the display name of an item or a row.
    const std::tuple<const char*, std::string, std::string, std::string> cases[] = {
        {"suffix",                 "InTray1 InTray2",  "Media_InTray2:B",        "InTray1: Media_InTray2:B"},
        {"in any case",            "InTray1",          "x_INTRAY1:A",            "x_INTRAY1:A"},
        {"equal key",              "InTray1",          "InTray1:A",              "InTray1:"},
        {"within, not at the end", "InTray1",          "xInTray1x:A",            "InTray1:"},
        {"shorter key",            "InTray1",          "Tray1:A",                "InTray1:"},
        {"empty key is skipped",   "InTray1",          ":A xInTray1:B",          "xInTray1:B"},
        {"first row wins",         "Tray1 InTray1",    "xInTray1:A",             "xInTray1:A InTray1:"},
        {"current key counts",     "Tray1 InTray1",    "xInTray1:A yInTray1:B",  "xInTray1:A yInTray1:B"},
        {"renamed again",          "InTray1",          "xInTray1:A yxInTray1:B", "yxInTray1:B"},
        {"cut key",                "InTray1",          long37 + ":A",            long37.substr(0, 31) + ":A"},
        {"after an empty key",    "InTray1  InTray3", "xInTray3:A",             "InTray1:"},
        {"65th row", trays63 + "InTray64 InTray65", "xInTray65:A xInTray64:B", rows63 + "xInTray64:B InTray65:"},
    };
    // clang-format on
    for (const auto& [what, trayKeys, fileItems, rows] : cases) {
        PrmImage image;
        std::vector<PrmMediaItem> trays;
        for (const std::string& key : Split(trayKeys, ' '))
            trays.push_back(Tray(image, key, 257 + static_cast<uint32_t>(trays.size())));
        image.Items("InTray", trays);
        std::vector<PrmItemDescriptor> items;
        for (const std::string& item : Split(fileItems + " Beyond_InTray1:Z", ' ')) {
            const wchar_t display[] = {static_cast<wchar_t>(item.back()), 0};
            items.push_back(image.Plain(item.substr(0, item.find(':')), display));
        }
        const uint32_t entry = image.Items("MediaTypeList_Tray", items);
        auto& info = image.At<PrmEntryInfo>(entry + 52);
        --info.itemCount;              // the chain goes on after the last item that counts
        info.itemOffsets = 0xFFFFFFFF; // the chain leads to the items, not the array
        RawBytes expected(0);
        for (const std::string& row : Split(rows, ' ')) {
            const auto bin = static_cast<uint32_t>(257 + expected.bytes.size() / 112);
            RawBytes record = ListRecord(row.substr(0, row.find(':')), bin, L"", 112);
            expected.Append(record.Text(48, row.substr(row.find(':') + 1)));
        }
        const BuiltTable built(image);
        EXPECT_EQ(Differences(built.List(810), expected.Append(RawBytes(112).U32(0, 112))), "") << what;
    }
}

TEST_F(TraysTest, RowsNeedBothEntries) {
    PrmImage onlyTrays, onlyNames;
    onlyTrays.Items<PrmMediaItem>("InTray", {Tray(onlyTrays, "InTray1", 1)});
    onlyNames.Items<PrmItemDescriptor>("MediaTypeList_Tray", {onlyNames.Plain("xInTray1")});
    EXPECT_EQ(BuiltTable(onlyTrays).List(810), nullptr);
    EXPECT_EQ(BuiltTable(onlyNames).List(810), nullptr);
}

} // namespace

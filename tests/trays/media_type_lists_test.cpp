// Media type lists, their texts from the parameter data file, and which columns the list view shows.
#include "trays/media_type_lists.h"

#include "support/prm_image.h"
#include "trays/tray_settings.h"

namespace {

struct MediaTypeListsTest : ParameterDataTest {};

constexpr size_t kTableSize = 818;

const DeviceTable* AsTable(const RawBytes& table) {
    return reinterpret_cast<const DeviceTable*>(table.bytes.data());
}

void AddTexts(PrmImage& image, const std::string& entry, const std::string& keys, const wchar_t* display) {
    std::vector<PrmItemDescriptor> items;
    for (const std::string& key : Split(keys, ' '))
        items.push_back(image.Plain(key, display));
    image.Items(entry, items);
}

// The lists' entries; in the device table their position (0: none), record size and room for the name.
const std::tuple<std::string, size_t, size_t, size_t> kLists[] = {
    {"MediaTypeList_Size", 390, 1004, 48},  {"MediaTypeList_Orient", 0, 0, 0},     {"MediaTypeList_Type", 574, 240, 32},
    {"MediaTypeList_Weight", 598, 240, 32}, {"MediaTypeList_Color", 606, 240, 32}, {"MediaTypeList_Hole", 674, 240, 32},
};

// With and without records of the device table, the second with key and name unterminated, and with and
// without texts of the file.
TEST_F(MediaTypeListsTest, ListHasRecordsThenTexts) {
    for (const bool records : {false, true})
        for (const bool texts : {false, true}) {
            RawBytes table(kTableSize);
            PrmImage image;
            std::vector<RawBytes> lists, expected;
            lists.reserve(std::size(kLists)); // the table points into them
            for (const auto& [entry, position, recordSize, displayRoom] : kLists) {
                RawBytes wanted(0);
                if (records && position != 0) {
                    RawBytes from(3 * recordSize);
                    from.Text(4, entry).U32(36, 0x10001).U32(40, 9).U16(44, 9).U16(46, 9).Wide(48, L"A4");
                    from.Text(recordSize + 4, std::string(32, 'k')).U32(recordSize + 36, 7);
                    from.Wide(recordSize + 48, Repeated(L'x', displayRoom).data());
                    from.U16(recordSize + 48 + 2 * displayRoom, L'y');
                    lists.push_back(from);
                    table.Pointer(position, lists.back().bytes.data());
                    wanted.Append(ListRecord(entry, 0x10001, L"A4"));
                    const size_t length = displayRoom == 48 ? 47 : 32;
                    wanted.Append(ListRecord(std::string(31, 'k'), 7, Repeated(L'x', length).data()));
                }
                const std::string unknown = entry + "_Unknown";
                if (texts && position == 0) {
                    AddTexts(image, entry, unknown + " mediatypelist_LANDSCAPE MediaTypeList_Portrait", L"T");
                    wanted.Append(ListRecord("MediaTypeList_Portrait", 1, L"T"));
                    wanted.Append(ListRecord("MediaTypeList_Landscape", 2, L"T"));
                } else if (texts) {
                    AddTexts(image, entry, "Other " + unknown, Repeated(L'T', 60).data());
                }
                const auto name = Repeated(L'T', position == 0 ? 1 : 47);
                if (texts)
                    wanted.Append(ListRecord(unknown, 0xFFFFFFFF, name.data()));
                expected.push_back(wanted.Append(RawBytes(144)));
            }
            MediaTypeLists* built = BuildMediaTypeLists(OpenedImage(image).file, AsTable(table));
            ASSERT_NE(built, nullptr);
            for (size_t i = 0; i < std::size(kLists); ++i)
                EXPECT_EQ(Differences(built->lists[i], expected[i]), "") << std::get<0>(kLists[i]) << records << texts;
            FreeMediaTypeLists(built);
        }
}

TEST_F(MediaTypeListsTest, MissingTextLeavesNoGap) {
    PrmImage image;
    AddTexts(image, "MediaTypeList_Orient", "MediaTypeList_Portrait MediaTypeList_Orient_Unknown", L"");
    AddTexts(image, "MediaTypeList_Size", "MediaTypeList_Size_Unknown_", L"Longer key");
    PrmImage other;
    AddTexts(other, "MediaTypeList_Orient", "MediaTypeList_Landscape", L"Across");
    const RawBytes table(kTableSize);
    for (const bool withLandscape : {false, true}) {
        const OpenedImage file(withLandscape ? other : image);
        MediaTypeLists* built = BuildMediaTypeLists(file.file, AsTable(table));
        ASSERT_NE(built, nullptr);
        const RawBytes none(144), one = ListRecord("MediaTypeList_Landscape", 2, L"Across").Append(none);
        EXPECT_EQ(Differences(built->lists[1], withLandscape ? one : none), "");
        EXPECT_EQ(Differences(built->lists[0], none), "");
        FreeMediaTypeLists(built);
    }
    const OpenedImage file(image);
    EXPECT_EQ(BuildMediaTypeLists(nullptr, AsTable(table)), nullptr);
    EXPECT_EQ(BuildMediaTypeLists(file.file, nullptr), nullptr);
    FreeMediaTypeLists(nullptr);
}

TEST_F(MediaTypeListsTest, ItemTexts) {
    const std::string key127(127, 'k'), key128(128, 'k');
    PrmImage image;
    const auto text = [&](const std::string& key, const wchar_t* display) { return image.Plain(key, display); };
    const uint32_t entry = image.Items<PrmItemDescriptor>(
        "List", {text("Keys", L"longer"), text("Key", L"Text"), text("KEY", L"later"), text("Empty", L""),
                 text("Empty", L"later"), text(key127, L"127"), text(key128, L"128"), text("Beyond", L"x")});
    --image.At<PrmEntryInfo>(entry + 52).itemCount;
    image.Entry("NoItems", {}, image.At<PrmEntry>(entry).firstItem);
    const OpenedImage opened(image);
    const std::tuple<const char*, const char*, size_t, const wchar_t*> kCases[] = {
        // entry, key, room; the text, or null: there is none
        {"List", "Key", 8, L"Text"},         {"LIST", "kEY", 8, L"Text"},          {"List", "Key", 5, L"Text"},
        {"List", "Key", 4, L"Tex"},          {"List", "Key", 1, nullptr},          {"List", "Ke", 8, nullptr},
        {"List", "Empty", 8, nullptr},       {"List", "Beyond", 8, nullptr},       {"NoItems", "Key", 8, nullptr},
        {"Missing", "Key", 8, nullptr},      {nullptr, "Key", 8, nullptr},         {"List", nullptr, 8, nullptr},
        {"List", key127.c_str(), 8, L"127"}, {"List", key128.c_str(), 8, nullptr},
    };
    for (const auto& [list, key, capacity, wanted] : kCases) {
        SCOPED_TRACE(testing::PrintToString(list) + testing::PrintToString(key) + std::to_string(capacity));
        RawBytes got = RawBytes(18).U8(0, 0x5A, 18), expected = got;
        EXPECT_EQ(PrmGetItemText(*opened.file, list, key, reinterpret_cast<wchar_t*>(got.bytes.data()), capacity),
                  wanted != nullptr);
        if (list != nullptr && key != nullptr) // the whole buffer is cleared, nothing beyond it
            expected.U8(0, 0, 2 * capacity).Wide(0, wanted != nullptr ? wanted : L"");
        EXPECT_EQ(Differences(got.bytes.data(), expected), "");
    }
    EXPECT_FALSE(PrmGetItemText(*opened.file, "List", "Key", nullptr, 8));
}

TEST_F(MediaTypeListsTest, EachColumnNeedsItsSwitchAndADialogTypeThatHasIt) {
    for (const uint32_t type : {0u, 1u, 2u, 3u, 4u})
        for (uint32_t i = 0; i < 3; ++i) {
            const RawBytes table = RawBytes(kTableSize).U32(4 * (18 + i), 1).U32(4 * 83, type);
            EXPECT_EQ(IsColumnShown(AsTable(table), kMediaWeight), i == 0 && type != 2 && type != 3) << type;
            EXPECT_EQ(IsColumnShown(AsTable(table), kMediaColor), i == 1 && type != 3) << type;
            EXPECT_EQ(IsColumnShown(AsTable(table), kMediaPrePunched), i == 2 && type != 3) << type;
        }
}

} // namespace

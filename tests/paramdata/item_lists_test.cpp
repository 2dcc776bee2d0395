// Item lists: every kind of list record, byte by byte with its terminator, from file records built by hand.
#include "support/prm_image.h"

namespace {

struct ItemListsTest : ParameterDataTest {};

const std::string kLongKey(40, 'k'), kCutKey(31, 'k'), kFullText(128, 't'), kCutText(127, 't');

// A text longer than any display field, and what fields of 32 and 48 characters keep of it.
constexpr wchar_t kLongDisplay[] = L"\u00C4123456789_123456789_123456789_123456789_123456789_123456789";
constexpr wchar_t kCut32[] = L"\u00C4123456789_123456789_123456789_";
constexpr wchar_t kCut48[] = L"\u00C4123456789_123456789_123456789_123456789_123456";
static_assert(sizeof(kCut32) == 64 && sizeof(kCut48) == 96);

// Compares the list at a position of the table, its terminating record included.
void ExpectList(const BuiltTable& built, size_t position, RawBytes expected, size_t recordSize, bool sizedEnd) {
    expected.Append(RawBytes(recordSize).U32(0, sizedEnd ? static_cast<uint32_t>(recordSize) : 0));
    EXPECT_EQ(Differences(built.List(position), expected), "") << "list at " << position;
}

TEST_F(ItemListsTest, ListsOfItemsWithText) {
    // Position of the pointer in the device table, size of a record, display names of 48 characters.
    // clang-format off
    const std::tuple<const char*, size_t, size_t, bool> lists[] = {
        {"OutputTray",       590, 272, true }, {"MediaWeight",          598, 240, false},
        {"MediaColor",       606, 240, false}, {"Combination",          634, 240, false},
        {"Folding",          642, 240, false}, {"HolePunch",            650, 288, false},
        {"OutputOrder",      658, 240, false}, {"PerPageListPrintType", 666, 240, false},
        {"MediaPrePunched",  674, 240, false}, {"Staple",               682, 288, false},
        {"PerPageListStaple", 690, 240, false}, {"OutputMethod",        698, 272, true },
        {"OvlForm_Location", 706, 272, true }, {"Prof_Location",        714, 272, true },
        {"OHP_Interleave",   794, 272, true }, {"PaperArrangement",     802, 272, true },
    };
    // clang-format on
    PrmImage image;
    for (const auto& [entry, position, size, wide] : lists)
        image.Items<PrmTextItem>(entry, {image.WithText(entry, L"Fach \u4E2D", 7, "text"),
                                         image.WithText(kLongKey, kLongDisplay, 0xFFFFFFFE, kFullText),
                                         image.WithText("NoDisplay", L"", 0, "")});
    BuiltTable built(image);
    for (const auto& [entry, position, size, wide] : lists) {
        const size_t textAt = wide ? 144 : 112;
        RawBytes expected = ListRecord(entry, 7, L"Fach \u4E2D", size).Text(textAt, "text");
        RawBytes full = ListRecord(kCutKey, 0xFFFFFFFE, wide ? kCut48 : kCut32, size);
        expected.Append(full.Text(textAt, kCutText)).Append(ListRecord("NoDisplay", 0, L"", size));
        ExpectList(built, position, expected, size, false);
    }
}

TEST_F(ItemListsTest, ItemsBeyondTheFileAreEmpty) {
    PrmImage image;
    image.Entry("Staple");
    image.Entry("Collate");
    image.Entry("Folding", {0xFFFFFFFF, image.Size() + 0x1000});
    BuiltTable built(image);
    ExpectList(built, 682, RawBytes(0), 288, false);
    ExpectList(built, 786, RawBytes(0), 180, true);
    ExpectList(built, 642, ListRecord("", 0, L"", 240).Append(ListRecord("", 0, L"", 240)), 240, false);
    EXPECT_EQ(built.List(598), nullptr) << "no entry";
}

TEST_F(ItemListsTest, MediaTypesAndCollate) {
    PrmImage image;
    image.Items<PrmMediaItem>("MediaType", {image.Media("Plain", L"Plain paper", 1, 0, "first"),
                                            image.Media("Thick", kLongDisplay, 2, 1, "second")});
    PrmMediaItem two = image.Media("NoSort", L"", 4, 0, "one");
    memcpy(two.texts[1], "two", 3);
    // Both texts of the first item are full, with no terminator in between.
    image.Items<PrmMediaItem>("Collate", {image.Media("Sort", L"not taken", 3, 0xFFFFFFFF, kFullText), two});
    const BuiltTable built(image);
    RawBytes types = ListRecord("Plain", 1, L"Plain paper", 240).Text(112, "first");
    types.Append(ListRecord("Thick", 2, kCut32, 240).Text(112, "second"));
    ExpectList(built, 574, types, 240, true);
    const std::string t63(63, 't');
    RawBytes collates = ListRecord("Sort", 3, L"", 180).U32(48, 0xFFFFFFFF).Text(52, t63).Text(116, t63);
    collates.Append(ListRecord("NoSort", 4, L"", 180).Text(52, "one").Text(116, "two"));
    ExpectList(built, 786, collates, 180, true);
}

TEST_F(ItemListsTest, TabAndOutputPapers) {
    PrmImage image;
    const PrmTabPaper tab = {image.Head("TabA4", kLongDisplay), 9, {5, 2230, 2970}};
    image.Items<PrmTabPaper>("TabPaperPaperSize", {tab});
    const PrmItemHead head = image.Head("A4", L"A4 paper");
    RawBytes item = RawBytes(320).U8(0, 0xAB, 320).U32(0, head.key).U32(8, head.display).U32(16, 9);
    item.U32(308, image.Wide(kLongDisplay)).U32(312, 0x01020304).U32(316, 0x05060708);
    image.Entry("OutPaperSize", {image.Put(item)});
    const BuiltTable built(image);
    const RawBytes tabs = ListRecord("TabA4", 9, kCut48, 156).U32(144, 5).U32(148, 2230).U32(152, 2970);
    ExpectList(built, 778, tabs, 156, true);
    RawBytes paper = ListRecord("A4", 9, L"A4 paper", 440).Wide(144, L"A4 paper").Wide(240, kCut48);
    ExpectList(built, 566, paper.Wide(336, kCut48).U32(432, 0x01020304).U32(436, 0x05060708), 440, true);
}

TEST_F(ItemListsTest, Resolutions) {
    const std::pair<const char*, unsigned> cases[] = {
        {"Reso_600x1200", 600}, {"RES_1200", 200}, // the number starts after the fifth character
        {"R1234", 0},           {"12345A", 0},     {"", 0}, {"Reso_70000", 4464},
    };
    PrmImage image;
    std::vector<PrmResolution> items;
    RawBytes expected(0);
    for (const auto& [key, number] : cases) {
        RawBytes record = ListRecord(key, static_cast<uint32_t>(items.size()), kCut32, 120).U16(118, number);
        expected.Append(record.U16(112, 600).U16(114, 0x5678).U16(116, 2));
        PrmResolution& item = items.emplace_back(PrmResolution{image.Head(key, kLongDisplay), {}, {}});
        memset(item.unread, 0xAB, sizeof(item.unread));
        item.values[0] = 600;
        item.values[1] = 0x12345678;
        item.values[2] = 2;
    }
    image.Items("Resolution", items);
    ExpectList(BuiltTable(image), 614, expected, 120, true);
}

// 1 when the geometry set, 1 to 5, is one of the present ones.
unsigned Flag(unsigned present, unsigned set) {
    return present >> (set - 1) & 1;
}

// A paper record of the file; every set is filled with its own number, what is not read with a pattern.
RawBytes FilePaper(PrmImage& image, const char* key, unsigned present) {
    const PrmItemHead head = image.Head(key, L"A4");
    RawBytes item = RawBytes(620).U8(0, 0xAB, 620).U32(0, head.key).U32(8, head.display).U32(16, 9);
    item.U32(24, 2100).U32(28, 2970).U32(32, 2160).U32(36, 3030);
    item.U32(40, Flag(present, 1)).U8(44, 0x11, 72).U32(124, Flag(present, 2)).U8(128, 0x22, 8);
    item.U8(136, 0x33, 16).U8(152, 0x44, 120).U8(272, 0x55, 16).U32(288, Flag(present, 3));
    item.U32(292, Flag(present, 4)).U32(296, Flag(present, 5)).U32(308, image.Wide(L"210 x 297 mm"));
    item.Text(312, kFullText).U32(440, 101).U32(444, 102).Text(448, std::string(32, 's'));
    return item.U32(480, 103).U32(484, 104).U32(488, 105).Text(492, kFullText);
}

// The list record that it gives.
RawBytes ListPaper(const char* key, unsigned present) {
    RawBytes record = ListRecord(key, 9, L"A4", 1004).Wide(144, L"A4").Wide(240, L"210 x 297 mm");
    record.Wide(336, L"210 x 297 mm").Text(432, kCutText).U32(560, 2100).U32(564, 2970);
    const size_t flags[] = {568, 644, 808, 812, 816}, sets[] = {572, 648, 656, 672, 792},
                 sizes[] = {72, 8, 16, 120, 16};
    for (unsigned i = 0; i < 5; ++i)
        record.U32(flags[i], Flag(present, i + 1)).U8(sets[i], Flag(present, i + 1) * 0x11 * (i + 1), sizes[i]);
    record.U32(820, 101).U32(824, 102).U32(828, 1).Text(832, std::string(31, 's'));
    return record.U32(864, 103).U32(868, 104).U32(872, 105).Text(876, kCutText);
}

TEST_F(ItemListsTest, Papers) {
    PrmImage image;
    std::vector<uint32_t> items;
    RawBytes expected(0);
    for (const unsigned present : {0b11111u, 0u, 0b1u, 0b10u, 0b100u, 0b1000u, 0b10000u}) {
        items.push_back(image.Put(FilePaper(image, "A4", present)));
        expected.Append(ListPaper("A4", present));
    }
    const size_t fileAt[] = {448, 480, 484, 488, 492}, listAt[] = {832, 864, 868, 872, 876},
                 sizes[] = {32, 4, 4, 4, 128};
    for (size_t i = 0; i < 5; ++i) { // without any one of these the paper is not complete
        items.push_back(image.Put(FilePaper(image, "A4", 0).U8(fileAt[i], 0, sizes[i])));
        expected.Append(ListPaper("A4", 0).U8(listAt[i], 0, sizes[i]).U32(828, 0));
    }
    image.Entry("PaperSize", items);
    ExpectList(BuiltTable(image), 390, expected, 1004, true);
}

TEST_F(ItemListsTest, UserPaperAlsoFillsTheDeviceTable) {
    const std::tuple<const char*, unsigned, bool> cases[] = {
        {"UserPaper", 0b11100, true}, {"USERPAPER", 0b00111, true},   {"UserPaper", 0b01000, true},
        {"UserPaper", 0b10000, true}, {"UserPaper2", 0b11111, false}, {"User", 0b11111, false},
    };
    for (const auto& [key, present, found] : cases) {
        PrmImage image;
        image.Entry("PaperSize", {image.Put(FilePaper(image, key, present))});
        const BuiltTable built(image);
        RawBytes expected(168); // positions 398 to 566
        if (found) {
            expected.U32(0, 2100).U32(4, 2160).U32(8, 2970).U32(12, 3030).U8(16, Flag(present, 3) * 0x33, 16);
            expected.U8(32, Flag(present, 4) * 0x44, 120).U8(152, Flag(present, 5) * 0x55, 16);
        }
        EXPECT_EQ(Differences(reinterpret_cast<uint8_t*>(built.table) + 398, expected), "") << key;
    }
}

} // namespace

// Parameter file reader: search for entries, typed readers and their results, parsing of numbers.
#include "base/text.h"
#include "support/prm_image.h"

#include <filesystem>

namespace {

TEST(Reader, FindsEntriesByFullNameInAnyCase) {
    PrmImage image;
    const uint32_t longer = image.Entry("StapleSetting");
    const uint32_t longest = image.Entry("Name_of_31_characters_012345678");
    const uint32_t last = image.Entry("Last");
    // clang-format off
    const std::pair<const char*, uint32_t> cases[] = {
        {"First", 8}, {"fIRST", 8}, {"Firs", 0}, {"First ", 0}, {"Staple", 0}, {"Setting", 0}, {"None", 0},
        {"STAPLEsetting", longer}, {"Name_of_31_characters_012345678", longest}, {"Last", last}};
    // clang-format on
    OpenedImage file(image);
    for (const auto& [name, offset] : cases)
        EXPECT_EQ(PrmFindEntry(*file, name), offset) << name;
}

TEST(Reader, EntryChainEndsAtItsBoundOrAfterTheMaximumOfSteps) {
    PrmImage image;
    const uint32_t low = image.Entry("Low"), high = image.Entry("High"), beyond = image.Entry("Beyond");
    const uint32_t end = image.Size();
    // clang-format off
    const struct {
        const char* what;
        uint32_t first, low, high, chainEnd; // next offsets of the three entries, and the header's bound
        std::vector<uint32_t> found;         // First, Low, High, Beyond
    } cases[] = {
        {"forwards",                  low,    high,     beyond, end,      {8, low, high, beyond}},
        {"backwards",                 high,   beyond,   low,    end,      {8, low, high, beyond}},
        {"bound at an entry",         low,    high,     end,    high,     {8, low, 0, 0}},
        {"bound one after an entry",  low,    high,     end,    high + 1, {8, low, high, 0}},
        {"bound at the first entry",  low,    high,     end,    8,        {0, 0, 0, 0}},
        {"loops back",                low,    high,     8,      end,      {8, low, high, 0}},
        {"leads to a cut entry",      low,    end - 51, end,    end,      {8, low, 0, 0}},
        {"comes back from beyond",    beyond, high,     end,    high,     {8, 0, 0, 0}},
        // An entry at offset 0 would have its next offset in bytes that the first entry does not use.
        {"leads to offset 0",         0,      high,     end,    end,      {8, low, high, beyond}},
    };
    // clang-format on
    image.SetWord(48, beyond);
    image.At<PrmEntry>(beyond).next = low;
    for (const auto& c : cases) {
        image.At<PrmEntry>(8).next = c.first;
        image.At<PrmEntry>(low).next = c.low;
        image.At<PrmEntry>(high).next = c.high;
        image.At<PrmHeader>(0).chainEnd = c.chainEnd;
        OpenedImage file(image);
        std::vector<uint32_t> found;
        for (const char* name : {"First", "Low", "High", "Beyond"})
            found.push_back(PrmFindEntry(*file, name));
        EXPECT_EQ(found, c.found) << c.what;
        EXPECT_EQ(PrmFindEntry(*file, "Nobody"), 0u) << c.what;
    }
}

TEST(Reader, SmallestAndLargestFilesAndNoFile) {
    for (const uint32_t size : {0u, 7u, 8u, 59u, 60u}) {
        PrmImage cut;
        cut.bytes.resize(size);
        OpenedImage file(cut);
        ASSERT_NE(file.file, nullptr) << size;
        EXPECT_EQ(PrmFindEntry(*file, "First"), size == 60 ? 8u : 0u) << size;
    }
    EXPECT_EQ(PrmOpenW(L"no_such_folder/no_such_file.prm"), nullptr);
    const TemporaryFile disk(PrmImage().bytes);
    constexpr uint64_t kMax = 8 << 20; // nothing is read from a larger file
    for (const uint64_t size : {kMax, kMax + 1, (uint64_t{1} << 32) + 60}) {
        std::filesystem::resize_file(disk.path, size);
        PrmFile* file = PrmOpenW(disk.widePath.data());
        EXPECT_EQ(file != nullptr, size == kMax) << size;
        PrmClose(file);
    }
    std::filesystem::resize_file(disk.path, 60);
    PrmFile* byNarrowName = PrmOpen(disk.path.c_str(), 0);
    EXPECT_NE(byNarrowName, nullptr);
    PrmClose(byNarrowName);
}

TEST(Reader, ItemsAreFollowedUpToALimit) {
    PrmImage image;
    const uint32_t entry = image.Items("Loop", std::vector<PrmItemDescriptor>{image.Plain("K")});
    const auto item = image.At<PrmEntry>(entry).firstItem;
    image.At<PrmItemDescriptor>(item).next = item;
    image.bytes.resize(1 << 20); // room for more
    for (const uint32_t count : {65536u, 65537u}) {
        image.At<PrmEntryInfo>(entry + 52).itemCount = count;
        OpenedImage file(image);
        PrmItems items;
        EXPECT_EQ(PrmFindItems(*file, "Loop", items), count == 65536) << count;
        ASSERT_TRUE(PrmFindEntryInfo(*file, "Loop", items));
        uint32_t steps = 0;
        PrmForEachInChain(*file, items, [&](const PrmItemHead&, const char*) { return ++steps != 0; });
        EXPECT_EQ(steps, 65536u) << count;
    }
}

TEST(Reader, ReadsEndAtTheEndOfTheFile) {
    const PrmImage image;
    const uint32_t size = image.Size();
    OpenedImage file(image);
    // clang-format off
    const std::tuple<uint32_t, uint64_t, uint32_t> cases[] = {
        {4, 0, 4}, {8, size - 3, 3}, {1, size - 1, 1}, {1, size, 0}, {0, 0, 0}, {0x7FFFFFFF, 8, size - 8},
        {4, 0xFFFFFFFF, 0}, {4, 0x100000008, 0}}; // the last is 8 in 32 bits
    // clang-format on
    for (const auto& [count, offset, delivered] : cases) {
        std::vector<uint8_t> to(size + 4, 0xEE), expected = to;
        for (uint32_t i = 0; i < delivered; ++i)
            expected[i] = image.bytes[offset + i];
        uint32_t got = 77;
        EXPECT_TRUE(PrmRead(*file, to.data(), count, offset, got)) << offset;
        EXPECT_EQ(got, delivered) << offset;
        EXPECT_EQ(to, expected) << offset;
    }
}

TEST(Reader, RecordIsReadWhenItsFirstByteIsThere) {
    PrmImage image;
    const uint32_t last = image.Put(RawBytes(1).U8(0, 0x5A));
    OpenedImage file(image);
    PrmPaper record = {};
    EXPECT_FALSE(PrmReadRecord(*file, last + 1, record)) << "at the end of the file";
    EXPECT_EQ(Differences(&record, RawBytes(sizeof(record))), "");
    EXPECT_TRUE(PrmReadRecord(*file, last, record)) << "at its last byte";
    EXPECT_EQ(Differences(&record, RawBytes(sizeof(record)).U8(0, 0x5A)), "");
}

TEST(Reader, RangeWithoutItsLastFieldIsRefused) {
    PrmImage image;
    const uint32_t range = image.Range("Copies", 1, 999, 5) + 64;
    for (const bool complete : {true, false}) { // one byte of the last field is enough
        uint32_t values[3] = {};
        image.bytes.resize(range + (complete ? 45 : 44));
        EXPECT_EQ(PrmReadRange(*OpenedImage(image), range, values), complete);
    }
}

TEST(Reader, TextOfMoreThan290CharactersIsRefused) {
    PrmImage image;
    const std::string most(290, 'a');
    // clang-format off
    const std::tuple<const char*, uint32_t, bool, std::string> cases[] = {
        {"short", image.Text("InTray1"), true, "InTray1"},
        {"empty", image.Text(""), true, ""},
        {"290 characters", image.Text(most), true, most},
        {"291 characters", image.Text(most + "b"), false, "as before"},
        {"291 to the end of the file", image.Put(RawBytes(291).U8(0, 'c', 291)), false, "as before"},
        {"290 to the end of the file", image.Size() - 290, true, std::string(290, 'c')},
        {"beyond the file", image.Size(), true, ""},
        {"far beyond the file", 0xFFFFFFFF, true, ""},
    };
    // clang-format on
    OpenedImage file(image);
    for (const auto& [what, offset, success, expected] : cases) {
        PrmText text = "as before";
        EXPECT_EQ(PrmReadString(*file, offset, text), success) << what;
        EXPECT_EQ(text, expected) << what;
    }
}

TEST(Reader, EmptyWideTextIsRefusedAndALongOneCut) {
    PrmImage image;
    const auto text291 = Repeated(L'\u00FC', 291), text292 = Repeated(L'\u00FC', 292);
    // clang-format off
    const std::tuple<const char*, uint32_t, bool, const wchar_t*> cases[] = {
        {"short", image.Wide(L"Fach \u00E4\u4E2D"), true, L"Fach \u00E4\u4E2D"},
        {"empty counts as absent", image.Wide(L""), false, L"as before"},
        {"291 characters", image.Wide(text291.data()), true, text291.data()},
        {"292 characters", image.Wide(text292.data()), true, text291.data()},
        {"to the end of the file", image.Put(L"ABC", 6), true, L"ABC"},
        {"beyond the file", image.Size(), false, L"as before"},
    };
    // clang-format on
    OpenedImage file(image);
    for (const auto& [what, offset, success, expected] : cases) {
        PrmWideText text = L"as before";
        EXPECT_EQ(PrmReadWideString(*file, offset, text), success) << what;
        EXPECT_EQ(Differences(text, RawBytes(2 * TextLength(expected) + 2).Wide(0, expected)), "") << what;
    }
}

TEST(Reader, StringValueMustFitWithItsTerminator) {
    PrmImage image;
    const std::string c126(126, 'a'), c290(290, 'b');
    image.StringValue("Empty", "");
    image.At<PrmEntryInfo>(image.StringValue("Short", "A4") + 52).itemCount = 0xFFFFFFFF; // not used
    image.StringValue("C126", c126);
    image.StringValue("C127", c126 + "a");
    image.StringValue("C290", c290);
    image.StringValue("C292", c290 + "cc");
    image.Entry("NoDefault", {}, 0, 0xFFFFFFF0);
    // clang-format off
    const std::tuple<const char*, size_t, bool, std::string> cases[] = {
        {"Short", 128, true, "A4"}, {"short", 4, true, "A4"},   {"Short", 3, false, ""},
        {"C126", 128, true, c126},  {"C127", 128, false, ""},   {"C290", 300, true, c290},
        {"C292", 300, true, ""},    {"Missing", 9, false, ""},  {"NoDefault", 9, true, ""},
        {"Empty", 2, true, ""}};
    // clang-format on
    OpenedImage file(image);
    for (const auto& [name, capacity, success, value] : cases) {
        std::string to(capacity + 1, '#'), expected = value;
        EXPECT_EQ(PrmReadStringValue(*file, name, to.data(), capacity), success) << name << capacity;
        expected.resize(capacity);
        EXPECT_EQ(to, expected + '#') << name << capacity;
    }
}

} // namespace

// Host only: the reader and the build of the device table with failing allocations and reads, and with a
// damaged file. The sanitizers check every access; leaks are counted after each test.
#include "support/prm_image.h"
#include "win32_control.h"

#include <set>
#include <sstream>

namespace {

struct FaultsTest : ParameterDataTest {};

const char* const kTextLists =
    "OutputTray MediaWeight MediaColor Combination Folding HolePunch OutputOrder Staple "
    "PerPageListPrintType MediaPrePunched PerPageListStaple OutputMethod OvlForm_Location "
    "Prof_Location OHP_Interleave PaperArrangement";
const char* const kPlainLists =
    "MediaTypeList_Tray FCoverTray BCoverTray SeparatePageTray OHPIntTray PIFrontCover "
    "PIBackCover PerPageListPaperSrc";

// Positions in the device table of the pointers to the lists, the machine information aside.
constexpr size_t kListPositions[] = {390, 566, 574, 582, 590, 598, 606, 614, 634, 642, 650,
                                     658, 666, 674, 682, 690, 698, 706, 714, 722, 730, 738,
                                     746, 754, 762, 770, 778, 786, 794, 802, 810};

// A small file with every entry that the device table is built from.
PrmImage CompleteImage() {
    PrmImage image;
    image.Table("FeatureSetting", "Staple=Enable;ColorSetting=TYPE3");
    image.Range("Copies", 1, 999, 1);
    image.Table("DevInfo", "PrintRatePPM=35;PDLType=PCL6 PS3");
    const uint32_t detail = image.Put(RawBytes(32).Text(0, "lumora").Text(16, "R880"));
    image.Entry("MachineInfo", {image.Put(RawBytes(24).Text(0, "M").U32(16, 1).U32(20, detail))});
    image.Table("PaperSizeFigure", "FigureType=MFP");
    const PrmItemHead head = image.Head("UserPaper", L"Custom");
    const RawBytes paper = RawBytes(620).U32(0, head.key).U32(8, head.display).U32(308, head.display);
    image.Entry("PaperSize", {image.Put(paper)});
    image.Entry("OutPaperSize", {image.Put(paper)});
    for (const std::string& name : Split("MediaType InTray ALL_InTray Collate", ' '))
        image.Items<PrmMediaItem>(name, {image.Media("InTray1", L"Tray 1", 257, 1, "text")});
    for (const std::string& name : Split(kTextLists, ' '))
        image.Items<PrmTextItem>(name, {image.WithText("Key", L"Name", 1, "text")});
    for (const std::string& name : Split(kPlainLists, ' '))
        image.Items<PrmItemDescriptor>(name, {image.Plain("x_InTray1", L"First"), image.Plain("PIFTray2")});
    image.Entry("Resolution", {image.Put(paper)});
    image.Entry("TabPaperPaperSize", {image.Put(paper)});
    image.Entry("Country", {image.Put(RawBytes(8).U32(0, 49))});
    image.StringValue("Default", "A4");
    return image;
}

// The results of the readers at offsets throughout the file and beyond it.
std::string Transcript(const PrmFile& file, uint32_t size) {
    std::ostringstream said;
    char value[128];
    for (const char* name : {"First", "copies", "PaperSize", "Default", "Missing"})
        said << PrmFindEntry(file, name) << PrmReadStringValue(file, name, value, sizeof(value)) << value
             << '\n';
    for (uint32_t offset = 0; offset < size + 100; offset += 7) {
        PrmPaper record = {};
        uint32_t dword = 0, delivered = 0, range[3] = {};
        PrmText text = {};
        PrmWideText wide = {};
        said << PrmReadRecord(file, offset, record) << PrmReadRecord(file, offset, dword)
             << PrmReadString(file, offset, text) << PrmReadWideString(file, offset, wide)
             << PrmReadRange(file, offset, range) << PrmRead(file, &record, 50, offset, delivered)
             << delivered << dword << text << range[0]
             << std::string(reinterpret_cast<char*>(&record), sizeof(record)) << '\n';
    }
    return said.str();
}

TEST_F(FaultsTest, ResultsAreTheSameWithoutImageAndWithSmallReads) {
    const PrmImage image = CompleteImage();
    const std::string expected = Transcript(*OpenedImage(image), image.Size());
    const struct {
        const char* what;
        unsigned failingAllocation;
        win32::FileFaults faults; // failing read, most bytes per read, size query fails
        bool hasImage;
    } ways[] = {
        {"size query fails", 0, {0, 0, true}, false},
        {"no memory for the image", 2, {}, false},
        {"first read fails", 0, {1}, false},
        {"third of many reads fails", 0, {3, 1000}, false},
        {"small reads", 0, {0, 7}, true},
        {"small reads without image", 2, {0, 3}, false},
    };
    for (const auto& way : ways) {
        win32::FailAllocations(way.failingAllocation);
        win32::SetFileFaults(way.faults);
        OpenedImage file(image);
        ASSERT_NE(file.file, nullptr) << way.what;
        EXPECT_EQ(file.file->image != nullptr, way.hasImage) << way.what;
        EXPECT_EQ(Transcript(*file, image.Size()), expected) << way.what;
        win32::SetFileFaults({});
    }
    win32::FailAllocations(1);
    EXPECT_EQ(OpenedImage(image).file, nullptr) << "no memory for the handle";
}

TEST_F(FaultsTest, FailedReadsAndSeeksWithoutImage) {
    const PrmImage image;
    win32::FailAllocations(2);
    OpenedImage file(image);
    PrmText text = {};
    uint32_t value = 0, delivered = 77;
    win32::SetFileFaults({1});
    EXPECT_FALSE(PrmRead(*file, &value, 4, 8, delivered));
    win32::SetFileFaults({1});
    EXPECT_FALSE(PrmReadRecord(*file, 8, value));
    win32::SetFileFaults({1});
    EXPECT_FALSE(PrmReadString(*file, 8, text));
    win32::SetFileFaults({0, 0, false, true}); // a failed seek reads nothing, and is no failure of the text
    EXPECT_TRUE(PrmRead(*file, &value, 4, 8, delivered));
    EXPECT_EQ(delivered, 0u);
    EXPECT_FALSE(PrmReadRecord(*file, 8, value));
    EXPECT_TRUE(PrmReadString(*file, 8, text));
    EXPECT_EQ(PrmFindEntry(*file, "First"), 0u);
    win32::SetFileFaults({});
    for (const uint64_t offset : {0x80000000u, 0xFFFFFFFFu}) // no distance below 0
        EXPECT_TRUE(PrmRead(*file, &value, 4, offset, delivered) && delivered == 0) << offset;
}

std::set<size_t> MissingLists(const DeviceTable* table) {
    std::set<size_t> missing;
    for (const size_t position : kListPositions)
        if (NumberAt<void*>(table, position) == nullptr)
            missing.insert(position);
    return missing;
}

TEST_F(FaultsTest, FailedAllocationLosesOnlyItsList) {
    const PrmImage image = CompleteImage();
    EXPECT_EQ(MissingLists(BuiltTable(image).table), std::set<size_t>());
    const unsigned allocations = win32::Count().allocations;
    std::set<size_t> failedOnce;
    unsigned tables = 0;
    for (unsigned n = 2; n <= allocations; ++n) { // the first is the file's handle
        win32::FailAllocations(n);
        const BuiltTable built(image);
        if (built.table == nullptr)
            continue;
        ++tables;
        const std::set<size_t> missing = MissingLists(built.table);
        const bool withRows = missing == std::set<size_t>{582, 810}; // no tray rows without input trays
        EXPECT_LE(missing.size(), withRows ? 2u : 1u) << n;
        EXPECT_EQ(NumberAt<uint32_t>(built.table, 626), 49u) << n;
        failedOnce.insert(missing.begin(), missing.end());
    }
    EXPECT_EQ(tables, allocations - 2) << "only the table's own block costs the table";
    EXPECT_EQ(failedOnce.size(), std::size(kListPositions));

    OpenedImage file(image);
    win32::FailAllocations(2, 1000);
    DeviceTable* table = BuildDeviceTable(*file);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(MissingLists(table).size(), std::size(kListPositions));
    EXPECT_EQ(NumberAt<uint32_t>(table, 4 * 29), 1u) << "switches need no memory";
    FreeDeviceTable(table);
}

// A small file that announces much: every item of every list is the same record. Allocations stay within a
// small multiple of the file.
TEST_F(FaultsTest, AllocationsStayInProportionToTheFile) {
    PrmImage image;
    const uint32_t key = image.Text("Key");
    const std::vector<uint32_t> items(5000, image.Put(RawBytes(620).U32(0, key).U32(24, 1)));
    for (const std::string& name :
         Split("PaperSize OutPaperSize MediaType InTray MediaTypeList_Tray Staple MachineInfo", ' '))
        image.Entry(name, items, items[0]);
    const size_t before = win32::Count().allocatedBytes;
    EXPECT_NE(BuiltTable(image).table, nullptr);
    EXPECT_LE(win32::Count().allocatedBytes - before, 32 * image.Size() + 16384);
}

} // namespace

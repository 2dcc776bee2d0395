// Host only: the reader and the build of the device table with failing allocations and reads, and with a
// damaged file. The sanitizers check every access; leaks are counted after each test.
#include "support/prm_image.h"
#include "win32_control.h"

#include <sstream>

namespace {

struct FaultsTest : ParameterDataTest {};

// A small file with an entry of each kind.
PrmImage MixedImage() {
    PrmImage image;
    image.Table("DevInfo", "PrintRatePPM=35;PDLType=PCL6 PS3");
    image.Range("Copies", 1, 999, 1);
    const PrmItemHead head = image.Head("UserPaper", L"Custom");
    image.Entry("PaperSize", {image.Put(RawBytes(620).U32(0, head.key).U32(8, head.display))});
    image.Items<PrmItemDescriptor>("FCoverTray", {image.Plain("FCover_Tray1", L"First"), image.Plain("Other")});
    image.StringValue("Default", "A4");
    return image;
}

// The results of the readers at offsets throughout the file and beyond it.
std::string Transcript(const PrmFile& file, uint32_t size) {
    std::ostringstream said;
    char value[128];
    for (const char* name : {"First", "copies", "PaperSize", "Default", "Missing"})
        said << PrmFindEntry(file, name) << PrmReadStringValue(file, name, value, sizeof(value)) << value << '\n';
    for (uint32_t offset = 0; offset < size + 100; offset += 7) {
        PrmPaper record = {};
        uint32_t dword = 0, delivered = 0, range[3] = {};
        PrmText text = {};
        PrmWideText wide = {};
        said << PrmReadRecord(file, offset, record) << PrmReadRecord(file, offset, dword)
             << PrmReadString(file, offset, text) << PrmReadWideString(file, offset, wide)
             << PrmReadRange(file, offset, range) << PrmRead(file, &record, 50, offset, delivered) << delivered << dword
             << text << range[0] << std::string(reinterpret_cast<char*>(&record), sizeof(record)) << '\n';
    }
    return said.str();
}

TEST_F(FaultsTest, ResultsAreTheSameWithoutImageAndWithSmallReads) {
    const PrmImage image = MixedImage();
    const std::string expected = Transcript(*OpenedImage(image), image.Size());
    // Of a file: failing read, most bytes per read, size query fails.
    const std::tuple<const char*, unsigned, win32::FileFaults, bool> ways[] = {
        {"size query fails", 0, {0, 0, true}, false},
        {"no memory for the image", 2, {}, false},
        {"first read fails", 0, {1}, false},
        {"third of many reads fails", 0, {3, 100}, false},
        {"small reads", 0, {0, 7}, true},
        {"small reads without image", 2, {0, 3}, false},
    };
    for (const auto& [what, failingAllocation, faults, hasImage] : ways) {
        win32::FailAllocations(failingAllocation);
        win32::SetFileFaults(faults);
        OpenedImage file(image);
        ASSERT_NE(file.file, nullptr) << what;
        EXPECT_EQ(file.file->image != nullptr, hasImage) << what;
        EXPECT_EQ(Transcript(*file, image.Size()), expected) << what;
        EXPECT_TRUE(hasImage || PrmMaxElements(*file, 1) <= 1024) << what << ": each step is a read";
        win32::SetFileFaults({});
    }
    win32::SetFileFaults({0, 0, false, false, 60});
    OpenedImage cut(image);
    EXPECT_EQ(cut.file->size, image.Size() + 60);
    EXPECT_EQ(Differences(cut.file->image + image.Size(), RawBytes(60)), "") << "zeros instead of the missing bytes";
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

} // namespace

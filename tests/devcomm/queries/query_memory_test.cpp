// Host only: walks over what a scripted device stores while each of their requests fails in turn, then each of
// their allocations.
#include "devcomm/queries/scripted_device.h"
#include "telmar_d.h"
#include "win32_control.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

const struct Walk {
    void* (*ask)();
    size_t requests; // for each row, and one for the end
} kWalks[] = {
    {[]() -> void* { return MIB_OverlayRequest(kAgent, 0); }, 3},
    {[]() -> void* { return MIB_ProfileRequest(kAgent); }, 7},
};

// So many of each: columns 2 and 5 are numbers, 3 and 4 texts. A profile is in two lists.
void Script(ScriptedDevice& scripted, int rows) {
    for (const std::string table : {"12", "13"})
        for (const char column : {'2', '3', '4', '5'})
            for (int row = 1; row <= rows; ++row) {
                const std::string object = table + ".1.1." + column + ".1." + std::to_string(row);
                scripted.answers[".1.3.6.1.4.1.47913.1.1.1.1.6." + object] = column == '2'   ? Number(1)
                                                                             : column == '5' ? Number(3)
                                                                                             : Text("text");
            }
}

TEST(StoredResources, EachRequestFailing) {
    for (const Walk& walk : kWalks) {
        const size_t count = 3 * walk.requests + 1;
        for (size_t failing = 1; failing <= count + 1; ++failing) {
            SCOPED_TRACE(failing);
            ScriptedDevice scripted;
            Script(scripted, 3);
            scripted.failingRequest = failing;
            void* block = walk.ask();
            EXPECT_EQ(block != nullptr, failing > count);
            EXPECT_TRUE(failing > count || GetLastError() == kRequestError);
            EXPECT_EQ(scripted.asked.size(), std::min(failing, count));
            MIB_FreeOverlayInfo(block);
        }
    }
}

// Also while a long list grows.
TEST(StoredResources, EachAllocationFailing) {
    for (const Walk& walk : kWalks)
        for (const int rows : {0, 20}) {
            bool done = false;
            for (unsigned failing = 1; !done; ++failing) {
                SCOPED_TRACE(failing);
                ScriptedDevice scripted;
                Script(scripted, rows);
                const win32::Counts before = win32::Count();
                win32::FailAllocations(failing);
                void* block = walk.ask();
                const win32::Counts after = win32::Count();
                win32::FailAllocations(0);
                done = block != nullptr;
                EXPECT_EQ(done, after.allocations - before.allocations < failing) << "one failed, and was missed";
                EXPECT_EQ(after.localBlocks, before.localBlocks + done);
                MIB_FreeOverlayInfo(block);
            }
        }
}

} // namespace

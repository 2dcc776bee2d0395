// Host only: walks over what a scripted device stores while each of their requests fails in turn, then each
// allocation of the device's memory, then each of the local heap.
#include "devcomm/queries/scripted_device.h"
#include "telmar_d.h"
#include "win32_control.h"

#include <gtest/gtest.h>

namespace {

const struct Walk {
    void* (*ask)();
    size_t requests;     // for three rows
    size_t deviceBlocks; // three for each request, one for every other reply, one for each text
    size_t header;       // bytes of the block before the entries
} kWalks[] = {
    {[]() -> void* { return MIB_OverlayRequest(kAgent, 0); }, 3 * 3 + 1, 3 * 10 + 5 + 6, 16},
    {[]() -> void* { return MIB_ProfileRequest(kAgent); }, 7 * 3 + 1, 3 * 22 + 11 + 6, 48},
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

TEST(StoredResources, EachRequestAndDeviceBlockFailing) {
    for (const Walk& walk : kWalks)
        for (const bool inMemory : {false, true}) {
            const size_t count = inMemory ? walk.deviceBlocks : walk.requests;
            for (size_t failing = 1; failing <= count + 1; ++failing) {
                SCOPED_TRACE(failing);
                ScriptedDevice scripted;
                Script(scripted, 3);
                (inMemory ? scripted.failingAllocation : scripted.failingRequest) = failing;
                void* block = walk.ask();
                const bool isLast = failing > count;
                EXPECT_EQ(block != nullptr, isLast);
                EXPECT_TRUE(isLast || GetLastError() == (inMemory ? kMemoryError : kRequestError));
                EXPECT_TRUE(inMemory || scripted.asked.size() == (isLast ? walk.requests : failing));
                MIB_FreeOverlayInfo(block);
            }
        }
}

TEST(StoredResources, EachLocalAllocationFailing) {
    for (const Walk& walk : kWalks)
        for (const bool isEmpty : {false, true}) { // a block without entries is the only one
            bool done = false;
            for (unsigned failing = 1; !done; ++failing) {
                SCOPED_TRACE(failing);
                ScriptedDevice scripted;
                if (!isEmpty)
                    Script(scripted, 40);
                const win32::Counts before = win32::Count();
                win32::FailAllocations(failing);
                void* block = walk.ask();
                const win32::Counts after = win32::Count();
                win32::FailAllocations(0);
                done = block != nullptr;
                EXPECT_EQ(done, after.allocations - before.allocations < failing) << "one failed, and was missed";
                EXPECT_EQ(after.localBlocks, before.localBlocks + done);
                EXPECT_TRUE(done || GetLastError() == ERROR_NOT_ENOUGH_MEMORY);
                // Long walks don't ask for memory entry by entry: far fewer allocations than entries.
                EXPECT_LT(after.allocations - before.allocations, 10u);
                EXPECT_TRUE(!done || !isEmpty || after.allocatedBytes - before.allocatedBytes == walk.header);
                MIB_FreeOverlayInfo(block);
            }
        }
}

} // namespace

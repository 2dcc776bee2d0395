// Host only: the walks over a scripted device while the local heap runs out at each allocation in turn.
#include "devcomm/scripted_device.h"
#include "telmar_d.h"
#include "win32_control.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

constexpr size_t kHeader[] = {16, 48}; // of the overlays' block, of the profiles'

void* Ask(bool profiles) {
    return profiles ? static_cast<void*>(MIB_ProfileRequest(kAgent)) : MIB_OverlayRequest(kAgent, 0);
}

// Forty of each: columns 2 and 5 are numbers, 3 and 4 texts. A profile is then in two lists.
void Script(ScriptedDevice& scripted) {
    for (const char* table : {"12", "13"})
        for (const char* column : {"2", "3", "4", "5"})
            for (int row = 1; row <= 40; ++row) {
                std::ostringstream object;
                object << ".1.3.6.1.4.1.47913.1.1.1.1.6." << table << ".1.1." << column << ".1." << row;
                scripted.answers[object.str()] = *column == '2' ? Number(1) : *column == '5' ? Number(3) : Text("text");
            }
}

TEST(QueryMemory, EachAllocationFailing) {
    for (const bool profiles : {false, true})
        for (const bool isEmpty : {false, true}) { // a block without entries is the only one
            bool done = false;
            for (unsigned failing = 1; !done; ++failing) {
                SCOPED_TRACE(failing);
                ScriptedDevice scripted;
                if (!isEmpty)
                    Script(scripted);
                const win32::Counts before = win32::Count();
                win32::FailAllocations(failing);
                void* block = Ask(profiles);
                const win32::Counts after = win32::Count();
                win32::FailAllocations(0);
                done = block != nullptr;
                EXPECT_EQ(done, after.allocations - before.allocations < failing) << "one failed, and was missed";
                EXPECT_EQ(after.localBlocks, before.localBlocks + done);
                EXPECT_TRUE(done || GetLastError() == ERROR_NOT_ENOUGH_MEMORY);
                // Long walks don't ask for memory entry by entry: far fewer allocations than entries.
                EXPECT_LT(after.allocations - before.allocations, 10u);
                if (done && isEmpty) {
                    EXPECT_EQ(after.allocatedBytes - before.allocatedBytes, kHeader[profiles]);
                }
                MIB_FreeOverlayInfo(block);
            }
        }
}

} // namespace

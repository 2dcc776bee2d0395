// Host only, linked into every test program: resets the simulated system before each test, and fails a test that
// does not release a block, a file, a library reference, a printer or a registry key.
#include "win32_control.h"

#include <gtest/gtest.h>

namespace {

struct LeakCheck : testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { win32::Reset(); }
    void OnTestEnd(const testing::TestInfo&) override {
        const win32::Counts counts = win32::Count();
        EXPECT_EQ(counts.globalBlocks, 0);
        EXPECT_EQ(counts.localBlocks, 0);
        EXPECT_EQ(counts.files, 0);
        EXPECT_EQ(counts.libraryReferences, 0);
        EXPECT_EQ(counts.sockets, 0);
        EXPECT_EQ(counts.socketUses, 0);
        EXPECT_EQ(counts.printers, 0);
        EXPECT_EQ(counts.registryKeys, 0);
    }
};

// The test framework owns the listener.
[[maybe_unused]] const bool registered = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new LeakCheck);
    return true;
}();

} // namespace

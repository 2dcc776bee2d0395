// The printer's picture when a system call fails, and what is left behind afterwards.
#include "picture/view/view_model.h"
#include "support/gdi_recorder.h"
#include "support/live_objects.h"
#include "support/product.h"
#include "support/rounds.h"

namespace {

constexpr RECT kRectangle = {12, 9, 331, 219}; // off the origin: positions in memory and target differ
const Choice kChoice = {2, 1, 1, 0, 1, 0, true, "InTrayManual", 1 << 2};
const std::wstring kName = L"QUORVANE lumora R880";

struct PictureFailures : testing::Test {
    PictureFailures() {
        records.Choose(kChoice);
        records.settings[6] = 1;
    }

    LoadedModule module;
    ViewRecords records{UnitFeatures({{"OpMachine", {"A", "B"}, {L"A", kName}}})};
    const std::vector<UINT> ids = WantedIds(kChoice);
    Canvas got{350, 230}, wanted{350, 230};
};

// Pixels outside the picture stay. The font follows the resolution of the target, not of the memory bitmap.
TEST_F(PictureFailures, TargetIsWrittenByOneTransfer) {
    GdiRecorder recorder(module.handle);
    recorder.fineContext = got.dc;
    records.Draw(module, got.dc, kRectangle);
    EXPECT_EQ(recorder.copies[got.dc], 1);
    EXPECT_EQ(recorder.ids, ids);
    DrawWanted(module.handle, wanted, kRectangle, ids, kName, {}, 192);
    EXPECT_TRUE(SamePicture(got, wanted));
}

TEST_F(PictureFailures, AFailedCallCostsOnlyItsPart) {
    const std::map<std::string, size_t> kCalls = {
        {"CreateCompatibleDC", ids.size()}, // the memory, and each bitmap except the measured badge
        {"CreateCompatibleBitmap", 1},      {"LoadImageW", ids.size()},
        {"GetObjectW", ids.size()},         {"SelectObject", ids.size() + 1}, // the last one is the font
        {"CreateFontIndirectW", 1},
    };
    for (const auto& [function, calls] : kCalls)
        for (size_t n = 1; n <= calls; ++n) {
            SCOPED_TRACE(function + " " + std::to_string(n));
            GdiRecorder recorder(module.handle);
            recorder.Fail(function.c_str(), n);
            got.Clear();
            wanted.Clear();
            records.Draw(module, got.dc, kRectangle);
            Failure failure; // what the call costs
            failure.isStraight = recorder.loadsBefore == 0;
            failure.hasNoFont = !failure.isStraight && recorder.failedType == OBJ_FONT;
            if (!failure.isStraight && !failure.hasNoFont)
                failure.skipped = recorder.loadsBefore - 1;
            EXPECT_TRUE(recorder.hasFailed);
            EXPECT_EQ(recorder.copies[got.dc] == 1, !failure.isStraight);
            DrawWanted(module.handle, wanted, kRectangle, ids, kName, failure);
            EXPECT_TRUE(SamePicture(got, wanted));
        }
}

TEST_F(PictureFailures, ManyDrawingsLeaveNothingBehind) {
    size_t before = 0;
    GdiRecorder recorder(module.handle);
    for (int i = 0; i < Rounds(2000, 10000); ++i) {
        const bool isFull = i % 50 == 0; // a complete picture takes long
        records.request.U8(0, isFull);
        records.settings[2] = isFull ? 2 : 0;
        records.Draw(module, got.dc, isFull ? kRectangle : RECT{0, 0, 30, 20});
        ASSERT_EQ(recorder.Errors(), "") << i;
        if (i == 0)
            before = CountGraphicsObjects(); // without what the system caches
    }
    EXPECT_GT(before, 0u);
    EXPECT_LE(CountGraphicsObjects(), before + (IsWine() ? 0 : 100)) << "one for each drawing would be thousands";
}

} // namespace

// DrawPrinterView through the built module: bitmaps, pixels and caption, and incomplete records.
#include "picture/view/view_model.h"
#include "support/gdi_recorder.h"
#include "support/product.h"

#include <functional>
#include <optional>

namespace {

struct PrinterView : testing::Test {
    // Draws on a canvas as large as the rectangle's far corner, and compares.
    testing::AssertionResult IsAsWanted(const ViewRecords& records, const std::vector<UINT>& ids,
                                        const RECT& rectangle = {0, 0, 200, 200}, const std::wstring& caption = {},
                                        const Failure& failure = {}) const {
        const int width = std::max({rectangle.right, rectangle.left, 1L}) + 10;
        const int height = std::max({rectangle.bottom, rectangle.top, 1L}) + 10;
        Canvas got(width, height), wanted(width, height);
        SetTextColor(got.dc, 0x1E5AC8), SetBkColor(got.dc, 0x8C143C); // must not colour masks of 1 bit
        records.Draw(module, got.dc, rectangle);
        DrawWanted(module.handle, wanted, rectangle, ids, caption, failure);
        return SamePicture(got, wanted);
    }

    LoadedModule module;
};

// Every combination that the rules distinguish. Without a paper path, sources and flags make no difference.
void ForEachChoice(const std::function<void(const Choice&)>& use) {
    std::vector<uint32_t> flagSets = {0x3FE, 0};
    for (uint32_t a = 1; a <= 9; ++a)
        for (uint32_t b = a; b <= 9; ++b)
            flagSets.push_back(1u << a | 1u << b);
    const std::vector<std::string> slots = {"InTray1", "InTray2",      "InTray3",   "InTray4",
                                            "intray4", "InTrayManual", "InTrayLCT", "InTrayAuto"};
    for (int32_t bits = 0; bits < 5 << 6; ++bits)
        for (const std::string& slot : slots)
            for (const uint32_t flags : flagSets) {
                const bool hasPath = (bits & 32) != 0;
                if (hasPath || (slot == slots[0] && flags == flagSets[0]))
                    use({bits >> 6, bits & 1, bits >> 1 & 1, bits >> 2 & 1, bits >> 3 & 1, bits >> 4 & 1, hasPath, slot,
                         flags});
            }
}

// First the order of the bitmaps for every combination, then pixels, until each pair of bitmaps has been on a picture.
TEST_F(PrinterView, EveryCombinationIsDrawnInOrder) {
    ViewRecords records(UnitFeatures());
    std::map<std::vector<UINT>, Choice> pictures;
    {
        GdiRecorder recorder(module.handle);
        Canvas nowhere(1, 1);
        ForEachChoice([&](const Choice& choice) {
            if (HasFailure())
                return; // the first one is enough
            recorder.Fail("", GdiRecorder::kEvery);
            records.Choose(choice);
            records.Draw(module, nowhere.dc, {0, 0, 1, 1});
            const std::vector<UINT> wanted = WantedIds(choice);
            EXPECT_EQ(recorder.ids, wanted) << choice.outputUnit << ", " << choice.slot << ", flags " << choice.flags;
            pictures.emplace(wanted, choice);
        });
    }
    ASSERT_EQ(pictures.size(), 57u * 7 * 4); // units with their highlights, sources, input unit and disk
    std::set<std::pair<UINT, UINT>> compared;
    for (const auto& [ids, choice] : pictures) {
        const size_t before = compared.size();
        for (const UINT id : ids)
            for (const UINT other : ids)
                compared.emplace(id, other);
        if (compared.size() == before)
            continue;
        records.Choose(choice);
        ASSERT_TRUE(IsAsWanted(records, ids)) << testing::PrintToString(ids);
    }
}

TEST_F(PrinterView, RectanglesOfAnySizeAndPositionAreFilled) {
    constexpr RECT kRectangles[] = {
        {0, 0, 200, 200},   {0, 0, 201, 203},   {0, 0, 333, 222},   {0, 0, 120, 90},    {0, 0, 39, 17},
        {0, 0, 1, 1},       {0, 0, 7, 400},     {11, 23, 211, 223}, {30, 40, 131, 97},  {-15, -7, 186, 194},
        {-60, 3, 141, 120}, {200, 200, 0, 0},   {190, 0, 3, 201},   {0, 151, 200, -50}, {-37, 180, -240, -21},
        {50, 50, 50, 90},   {-250, -250, 0, 0},
    };
    const Choice choices[] = {{1, 1, 1, 1, 1, 0, true, "InTray3", 1 << 7}, {4, 0, 0, 0, 0, 0, true, "InTrayLCT", 0}};
    ViewRecords records(UnitFeatures());
    for (const Choice& choice : choices)
        for (const RECT& rectangle : kRectangles)
            for (const bool isStraight : {false, true}) {
                records.Choose(choice);
                std::optional<GdiRecorder> recorder;
                if (isStraight)
                    recorder.emplace(module.handle).Fail("CreateCompatibleBitmap", 1);
                EXPECT_TRUE(IsAsWanted(records, WantedIds(choice), rectangle, {}, {SIZE_MAX, isStraight, false}))
                    << rectangle.left << ' ' << rectangle.top << ' ' << rectangle.right << ' ' << rectangle.bottom
                    << (isStraight ? ", straight" : "");
            }
}

TEST_F(PrinterView, CaptionNamesTheSelectedMachine) {
    const std::wstring full(48, L'W');
    const Choice choice = {2, 0, 1, 0, 0, 0, true, "InTray2", 1 << 5};
    const Feature three = {"OpMachine", {"A", "B", "C"}, {L"QUORVANE R880 & Co", full, L""}};
    const Feature alone = {"OpMachine", {"A"}, {L"Alone"}}, empty = {"OpMachine", {}};
    const Feature two = {"opmachine", {"A", "B"}, {L"A", L"Two"}};
    const std::tuple<std::vector<Feature>, int32_t, std::wstring> kCases[] = {
        // after the options; the one selected
        {{three}, 0, three.names[0]}, {{three}, 1, full}, {{three}, 2, {}}, {{three}, 3, {}},         {{three}, -1, {}},
        {{two}, 1, L"Two"},           {{alone}, 0, {}},   {{empty}, 0, {}}, {{two, three}, 1, L"Two"}};
    for (const auto& [machines, selected, caption] : kCases) {
        ViewRecords records(UnitFeatures(machines));
        records.Choose(choice);
        records.settings[6] = selected;
        if (caption == full)
            records.items[6].Wide(2 * 144, L"XX"); // in the record after the name
        for (const RECT& rectangle : {RECT{0, 0, 700, 200}, RECT{9, 5, 640, 210}})
            EXPECT_TRUE(IsAsWanted(records, WantedIds(choice), rectangle, caption))
                << machines.size() << ' ' << selected;
    }

    Canvas one(700, 200), other(700, 200); // this system does draw texts
    DrawWanted(module.handle, one, {0, 0, 700, 200}, WantedIds(choice), full);
    DrawWanted(module.handle, other, {0, 0, 700, 200}, WantedIds(choice), L"");
    EXPECT_FALSE(IsSamePicture(one, other));
}

TEST_F(PrinterView, ChoicesWithoutAnItemInstallNothing) {
    ViewRecords records(UnitFeatures({{"OpMachine", {"A", "B"}, {L"A", L"B"}}}));
    const std::vector<UINT> bare = WantedIds({});
    for (const int32_t index : {-1, 5, 1000000, INT32_MIN, INT32_MAX}) {
        std::fill(records.settings.begin(), records.settings.end(), index);
        EXPECT_TRUE(IsAsWanted(records, bare)) << index;
    }
    std::fill(records.settings.begin(), records.settings.end(), 1);
    const auto wantBareWithout = [&](RawBytes& record, size_t offset) {
        const std::vector<uint8_t> before = record.bytes;
        record.Pointer(offset, nullptr);
        EXPECT_TRUE(IsAsWanted(records, bare)) << offset;
        std::copy(before.begin(), before.end(), record.bytes.begin());
    };
    wantBareWithout(records.request, 1); // features
    wantBareWithout(records.request, 9); // settings
    for (size_t i = 0; i < 6; ++i)
        records.features.Pointer(i * 152 + 144, nullptr);
    wantBareWithout(records.features, 6 * 152 + 144); // the last item table
    wantBareWithout(records.request, 9);
    EXPECT_TRUE(IsAsWanted(ViewRecords({}), bare));
}

TEST_F(PrinterView, KeysAreComparedWholeAndInAnyCase) {
    ViewRecords shouting({{"OPHDD", {"enaophdd"}}, {"opOUTtrayUNIT", {"OPOUTTRAYUNIT2"}}});
    EXPECT_TRUE(IsAsWanted(shouting, WantedIds({2, 0, 1, 0, 0, 0, false, "", 0})));
    ViewRecords longer({{"OpHDD1", {"EnaOpHDD"}},
                        {"OpOutTrayUnit", {"OpOutTrayUnit21"}},
                        {"OpHDD", {"EnaOpHDDx"}},
                        {"OpInTrayUni", {"OpInTrayUnit1"}},
                        {"OpInTrayUnit", {"OpInTrayUnit2"}}});
    for (const std::string& slot : {std::string(40, 'x'), std::string("InTray12"), std::string("InTray")}) {
        longer.Choose({0, 0, 0, 0, 0, 0, true, slot, 0});
        EXPECT_TRUE(IsAsWanted(longer, WantedIds({}))) << slot;
    }
}

TEST_F(PrinterView, LaterFeatureOverridesBothWays) {
    const Feature disk = {"OpHDD", {"EnaOpHDD", "DisOpHDD"}};
    const Feature unit = {"OpOutTrayUnit", {"OpOutTrayUnit3", "OpOutTrayUnit9"}};
    ViewRecords records({disk, unit, disk, unit});
    for (int bits = 0; bits < 16; ++bits) {
        for (size_t i = 0; i < 4; ++i)
            records.settings[i] = bits >> i & 1;
        const Choice choice = {(bits & 8) != 0 ? 0 : 3, 0, (bits & 4) != 0 ? 0 : 1, 0, 0, 0, false, "", 0};
        EXPECT_TRUE(IsAsWanted(records, WantedIds(choice))) << bits;
    }
}

// The rest of an end record, and the records after it.
TEST_F(PrinterView, NothingAfterTheEndIsRead) {
    ViewRecords records({{"OpHDD", {"DisOpHDD", "", "EnaOpHDD"}},
                         {"", {"OpMachine", "OpMachine"}, {L"left", L"over"}},
                         {"OpInTrayUnit", {"OpInTrayUnit1"}},
                         {"OpMachine", {"A", "B"}, {L"A", L"B"}}});
    records.settings[0] = 2;
    records.features.Text(152 + 5, "pHDD");
    records.items[0].Text(144 + 5, "naOpHDD");
    EXPECT_TRUE(IsAsWanted(records, WantedIds({})));
}

TEST_F(PrinterView, NothingIsDrawnWithoutRectangleOrRequest) {
    const auto draw = module.Export<void WINAPI(HDC, const RECT*, const void*)>("DrawPrinterView");
    ViewRecords records(UnitFeatures());
    constexpr RECT kRectangle = {0, 0, 200, 200};
    Canvas canvas(200, 200), untouched(200, 200);
    draw(canvas.dc, nullptr, records.request.bytes.data());
    draw(canvas.dc, &kRectangle, nullptr);
    EXPECT_TRUE(SamePicture(canvas, untouched));
    draw(nullptr, &kRectangle, records.request.bytes.data());
    for (const RECT& wild : {RECT{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, RECT{INT32_MAX, 0, INT32_MIN, 9}})
        draw(canvas.dc, &wild, records.request.bytes.data());
}

} // namespace

// The Defaults button of dialog 128: which bytes it takes, and from where.
#include "dialogs/color/default_devmode.h"
#include "full_dialog.h"
#include "paramdata/default_settings.h"
#include "support/print_queue.h"

#include <winspool.h>

namespace {

constexpr uint16_t kDefaults = 1032;

// Differ from the settings in every byte but for zeros in names and numbers; all choices are offered.
RawBytes OtherSettings() {
    // clang-format off
    return Pattern(128)
        .U16(2514, 257).U16(2516, 0).U16(2518, 256)
        .U8(2153, 0).U8(2154, 1).U8(2155, 2).U8(2157, 2).U8(2158, 0).U8(2159, 1).U8(2161, 3).U8(2162, 3).U8(2163, 0)
        .U16(3024, 0x101).Wide(3030 + 82, L"PRESS A").U16(3030 + 96, 0).U16(3026, 0x8080).Wide(3198 + 82, L"press b")
        .U16(3198 + 96, 0).U16(3028, 0).U16(2166, 4).U8(3534, 0).U16(3536, 1);
    // clang-format on
}

struct Defaults : FullDialog {
    // From now on they are what the queue has stored.
    void StoreDefaults(const RawBytes& defaults) { storedDefaults = defaults.bytes; }
    uint16_t Scratch16(size_t offset) const { return NumberAt<uint16_t>(scratch.bytes.data(), offset); }
};

// Moving the focus activates a dialog that is not active, which then refreshes itself from the old settings.
TEST_F(Defaults, SurviveTheActivationByTheirFocus) {
    StoreDefaults(OtherSettings());
    Open();
    const HWND other =
        CreateWindowW(L"Button", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    SetFocus(other);
    events.clear();
    Command(kDefaults);
    const std::string check = "DoConstraints 0\nDispHintControl 128\n", show = InOrder("show", true);
    EXPECT_EQ(Events({"DoConstraints", "DispHintControl", "fill", "show"}),
              check + InOrder("fill", false) + show + check + show);
    EXPECT_EQ(Selection(1524), 4);
    DestroyWindow(other);
}

TEST_F(Defaults, StoredOnesCountAtTheirFullLengthOnly) {
    Open();
    for (const size_t length :
         {size_t{0}, size_t{7800}, kSettingsSize - 1, kSettingsSize + 1, kSettingsSize}) {
        storedDefaults = OtherSettings().bytes;
        storedDefaults->resize(length);
        Command(kDefaults);
        EXPECT_EQ(NumberAt<uint16_t>(settings.bytes.data(), 2166), length == kSettingsSize ? 4 : 0) << length;
        EXPECT_EQ(scratch.bytes[7700] == OtherSettings().bytes[7700], length == kSettingsSize) << length;
    }
    EXPECT_EQ(scratch.bytes[2094], OtherSettings().bytes[2094]); // taken as they are
}

TEST_F(Defaults, BuiltInOnesHaveThePaperAndUnitsOfTheRegion) {
    const struct {
        const wchar_t *country, *measure;
        bool isLetter, isInches;
    } cases[] = {
        {L"1", L"1", true, true},    {L"81", L"0", false, false}, {L"2", L"0", true, false},
        {L"", L"1", false, true},    {L"1", L"", true, false},    {L"12", L"11", false, false},
        {L"02", L"01", true, false}, {L"21", L"2", false, false}, {L"0", L"1", false, true},
    };
    Open();
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << "row " << &row - cases);
        country = row.country;
        measure = row.measure;
        Command(kDefaults);
        const std::vector<int> wanted = row.isLetter ? std::vector{1, 2159, 2794, 43, 43, 43, 43, 1}
                                                     : std::vector{9, 2100, 2970, 43, 43, 43, 43, 9};
        std::vector<int> got;
        for (const size_t offset : {66, 68, 70, 72, 74, 76, 78, 96})
            got.push_back(Scratch16(offset));
        EXPECT_EQ(got, wanted);
        EXPECT_EQ(NumberAt<uint32_t>(scratch.bytes.data(), 116), row.isInches ? 0x01010101u : 0u);
    }
}

TEST_F(Defaults, BuiltInOnesKnowBlackPrintersByTheirName) {
    Open();
    const std::pair<const wchar_t*, int> cases[] = {
        {L"lumora Mono", 1}, {L"lumora MONO", 0}, {L"lumora Mono2", 0}, {L"Mono", 1}, {L"ono", 0}, {L"", 0},
        {L"lumoraMono", 1},  {L"Mono lumora", 0}, {L"xxmono", 0},
    };
    for (const auto& [driver, mono] : cases) {
        printerDriver = driver;
        Command(kDefaults);
        EXPECT_EQ(scratch.bytes[2094], mono) << driver;
    }
    printerDriver = L"lumora Mono";
    failingAllocation = 1; // its description is not read
    Command(kDefaults);
    EXPECT_EQ(scratch.bytes[2094], 0);
}

TEST_F(Defaults, AreNoneWithoutTheirArea) {
    StoreDefaults(OtherSettings());
    Open();
    context.scratch = nullptr;
    EXPECT_EQ(Command(kDefaults), (Answer{0, 1}));
    ExpectSettings(FullSettings());
}

// The functions themselves, linked in, for what the dialogs don't reach.
TEST(DefaultSettings, StayWithoutThePaperOfTheRegion) {
    const OemDevmode before = defaultSettings;
    PaperSizeRecord papers[2] = {};
    papers[0].head.key[0] = 'X';
    DeviceTable table = {};
    table.paperSizes = papers;
    for (const DeviceTable* without : {static_cast<const DeviceTable*>(nullptr), &std::as_const(table)}) {
        defaultSettings.paper = 77;
        LocalizeDefaultOemDevmode(without);
        EXPECT_EQ(defaultSettings.paper, 77);
    }
    defaultSettings = before;
}

HANDLE closed;
BOOL WINAPI NoteClosing(HANDLE printer) {
    closed = printer;
    return TRUE;
}

TEST(DefaultSettings, BlackPrintersAreOpenedByTheirName) {
    constexpr wchar_t kQueue[] = L"Lumora mono test";
    Queue queue(kQueue, L"LPT1:");
    EXPECT_FALSE(IsMonoDriver(nullptr, kQueue));
    queue.Text(L"Printer Driver", L"lumora Mono");
    {
        const auto close = GetProcAddress(GetModuleHandleW(L"winspool.drv"), "ClosePrinter");
        const PatchedImport patch(GetModuleHandleW(nullptr), reinterpret_cast<void*>(close),
                                  reinterpret_cast<void*>(NoteClosing));
        EXPECT_TRUE(IsMonoDriver(nullptr, kQueue));
    }
    EXPECT_TRUE(ClosePrinter(closed)) << "what has been opened";
    EXPECT_FALSE(IsMonoDriver(nullptr, L"Lumora mono"));
    EXPECT_FALSE(IsMonoDriver(nullptr, nullptr));
}

} // namespace

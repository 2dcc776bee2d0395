// The Defaults button of the full colour dialog: where its settings come from.
#include "dialogs/color/color_driver.h"
#include "dialogs/color/default_devmode.h"
#include "paramdata/default_settings.h"
#include "support/print_queue.h"
#include "support/wine.h"

#include <winspool.h>

namespace {

using Defaults = FullDialog;

// Moving the focus activates a dialog that is not active, which then refreshes itself from the old settings.
TEST_F(Defaults, SurviveTheActivationByTheFocus) {
    storedDefaults = OtherSettings().bytes;
    Open();
    const HWND other = CreateWindowW(L"Button", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    SetFocus(other);
    events.clear();
    Command(IDC_DEFAULTS);
    EXPECT_EQ(Events({"DoConstraints", "DispHintControl", "fill", "show"}),
              Check() + Fills() + Shows() + Check() + Shows());
    EXPECT_EQ(Shown(IDC_SIMULATION), 3);
    DestroyWindow(other);
}

TEST_F(Defaults, StoredOnesAreUsedAtTheirFullLengthOnly) {
    Open();
    for (const size_t length : {size_t{0}, size_t{7800}, kSettingsSize - 1, kSettingsSize + 1, kSettingsSize}) {
        storedDefaults = OtherSettings().bytes;
        storedDefaults->resize(length);
        Command(IDC_DEFAULTS);
        EXPECT_EQ(NumberAt<uint16_t>(settings.bytes.data(), 2166), length == kSettingsSize ? 3 : 0) << length;
        EXPECT_EQ(scratch.bytes[7700] == OtherSettings().bytes[7700], length == kSettingsSize) << length;
    }
    EXPECT_EQ(scratch.bytes[2094], OtherSettings().bytes[2094]) << "not changed for the driver";
    context.scratch = nullptr;
    const RawBytes before = settings;
    EXPECT_EQ(Command(IDC_DEFAULTS), (Answer{0, 1}));
    Expect(before);
}

TEST_F(Defaults, BuiltInOnesHaveThePaperAndUnitsOfTheRegion) {
    const std::tuple<const wchar_t*, const wchar_t*, bool, bool> kRegions[] = {
        // country, measure; letter, inches
        {L"1", L"1", true, true},    {L"81", L"0", false, false}, {L"2", L"0", true, false},
        {L"", L"1", false, true},    {L"1", L"", true, false},    {L"12", L"11", false, false},
        {L"02", L"01", true, false}, {L"21", L"2", false, false},
    };
    Open();
    for (const auto& [countryCode, measureCode, isLetter, isInches] : kRegions) {
        country = countryCode;
        measure = measureCode;
        SCOPED_TRACE(testing::PrintToString(country + L", " + measure));
        Command(IDC_DEFAULTS);
        const std::vector<int> wanted =
            isLetter ? std::vector{1, 2159, 2794, 43, 43, 43, 43, 1} : std::vector{9, 2100, 2970, 43, 43, 43, 43, 9};
        std::vector<int> got;
        for (const size_t offset : {66, 68, 70, 72, 74, 76, 78, 96})
            got.push_back(NumberAt<uint16_t>(scratch.bytes.data(), offset));
        EXPECT_EQ(got, wanted);
        EXPECT_EQ(NumberAt<uint32_t>(scratch.bytes.data(), 116), isInches ? 0x01010101u : 0u);
    }
}

TEST_F(Defaults, BuiltInOnesAreMonochromeForDriversNamedMono) {
    Open();
    const std::pair<const wchar_t*, int> cases[] = {{L"lumora Mono", 1}, {L"lumora MONO", 0}, {L"lumora Mono2", 0},
                                                    {L"Mono", 1},        {L"ono", 0},         {L"", 0}};
    for (const auto& [driver, mono] : cases) {
        printerDriver = driver;
        Command(IDC_DEFAULTS);
        EXPECT_EQ(scratch.bytes[2094], mono) << driver;
    }
    printerDriver = L"lumora Mono";
    failingAllocation = 1; // for the description of the printer
    Command(IDC_DEFAULTS);
    EXPECT_EQ(scratch.bytes[2094], 0);
}

// Linked in: the shipped model has the papers of every region, and the dialogs always have a printer handle.
TEST(DefaultSettings, KeepTheirPaperWhenTheTableLacksTheRegions) {
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

TEST(DefaultSettings, PrintersAreOpenedByNameAndClosed) {
    SKIP_WITHOUT_OWN_SPOOLER();
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

// What the colour dialogs have in common, dialog by dialog: how they open, what they answer, change, refuse
// and store. Graphics have lists of their own in 128 and follow images or text in 124, 122, 125 and both
// variants of 123.
#include "canvas.h"
#include "dialogs/color/color_descriptions.h"
#include "full_dialog.h"
#include "live_objects.h"
#include "support/rounds.h"

namespace {

constexpr int kImages = 1477, kText = 1475; // what graphics follow; stand for their pair in the lists below

// A dialog as a person would write it down.
struct ColorDialogCase {
    const char* name;
    uint32_t id;
    const wchar_t* model;
    uint32_t topic;
    bool listsProfiles;               // has the messages and buttons that go with the printer's profiles
    std::vector<int> controls, fills; // in their orders of showing and storing, and of filling
    std::vector<std::pair<size_t, size_t>> defaults; // offset and length
    std::vector<int> locks;
    std::vector<uint32_t> help;
    std::vector<int> icons;
};

// clang-format off
#define HELP_TOP 1501, 6640, 1502, 6650, 1504, 6650, 1468, 6660, 1354, 6660
#define HELP_GRAY 1469, 6670, 1335, 6670
#define HELP_TEXT 1471, 6675, 1332, 6675, 1506, 6680, 1507, 6690, 1509, 6690, 1465, 6700, 1353, 6700, 1466, 6710, 1334, 6710, \
    1467, 6720, 1330, 6720, 1473, 6730, 1477, 6780, 1475, 6790
#define HELP_SIMULATION 1523, ~0u, 1398, 6810, 1524, 6810, 1526, 6830, 1625, 6855, 1627, 6855
#define HELP_END 1069, ~0u, 1032, 9510, 0, 0
const std::vector<int> kBasic = {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, kImages};
const std::vector<int> kBasicFills = {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330};
const std::vector<std::pair<size_t, size_t>> kBasicDefaults = {{2514, 2}, {2688, 168}, {2153, 4}, {2516, 2}, {2520, 168}, {2157, 4}, {2165, 1}};
const std::vector<uint32_t> kBasicHelp = {HELP_TOP, HELP_GRAY, HELP_TEXT, HELP_END};
const std::vector<int> kBasicIcons = {1400, 1401, 1402, 1403, 1503, 1505, 1508, 1510};
const ColorDialogCase kDialogs[] = {
    {"128", 128, L"", 6631, true,
     {1504, 1354, 1335, 1599, 1332, 1509, 1353, 1334, 1592, 1330, 1513, 1516, 1519, 1584, 1522, 1524, 1526, 1627},
     {1504, 1354, 1335, 1599, 1332, 1509, 1353, 1334, 1592, 1330, 1513, 1516, 1519, 1584, 1522, 1524, 1627},
     {{2514, 2}, {2688, 168}, {2153, 4}, {3026, 2}, {3198, 168}, {2516, 2}, {2520, 168}, {2157, 4}, {3024, 2}, {3030, 168}, {2518, 2}, {2856, 168}, {2161, 4}, {3028, 2}, {3366, 168}, {2166, 2}, {2168, 168}, {3534, 1}, {3536, 2}},
     {1501, 1502, 1504, 1468, 1354, 1469, 1335, 1597, 1599, 1471, 1332, 1506, 1507, 1509, 1465, 1353, 1466, 1334, 1589, 1592, 1467, 1330, 1473, 1511, 1513, 1514, 1516, 1517, 1519, 1582, 1584, 1520, 1522, 1523, 1398, 1524, 1526, 1625, 1627, 1393, 1528, 1032},
     {1501, 6640, 1502, 6650, 1504, 6650, 1468, 6660, 1354, 6660, 1469, 6670, 1335, 6670, 1597, 6860, 1599, 6860, 1471, 6675, 1332, 6675, 1506, 6680, 1507, 6690, 1509, 6690, 1465, 6700, 1353, 6700, 1466, 6710, 1334, 6710, 1589, 6865, 1592, 6865, 1467, 6720, 1330, 6720, 1473, 6730, 1511, 6740, 1513, 6740, 1514, 6750, 1516, 6750, 1517, 6760, 1519, 6760, 1582, 6870, 1584, 6870, 1520, 6770, 1522, 6770, 1523, ~0u, 1398, 6810, 1524, 6810, 1526, 6830, 1625, 6855, 1627, 6855, 1393, 6840, 1528, 6850, 1069, ~0u, 1032, 9510, 0, 0},
     {1400, 1401, 1402, 1403, 1482, 1503, 1505, 1508, 1510, 1512, 1515, 1518, 1521, 1527, 1529, 1530, 1587, 1594, 1601, 1629}},
    {"124", 124, L"", 6630, true,
     {1504, 1354, 1332, 1509, 1353, 1334, 1330, kImages, 1524, 1526, 1627},
     {1504, 1354, 1332, 1509, 1353, 1334, 1330, 1524, 1627},
     {{2514, 2}, {2688, 168}, {2153, 4}, {2516, 2}, {2520, 168}, {2157, 4}, {2165, 1}, {2166, 2}, {2168, 168}, {3534, 1}, {3536, 2}},
     {1501, 1502, 1504, 1468, 1354, 1471, 1332, 1506, 1507, 1509, 1465, 1353, 1466, 1334, 1467, 1330, 1473, 1477, 1475, 1523, 1398, 1524, 1526, 1625, 1627, 1528, 1393, 1032},
     {HELP_TOP, HELP_TEXT, HELP_SIMULATION, 1393, 6840, 1528, 6850, HELP_END},
     {1400, 1401, 1402, 1482, 1503, 1505, 1508, 1510, 1527, 1529, 1530, 1629}},
    {"122", 122, L"", 6610, true,
     {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, kImages, 1524, 1526, 1627, 1525},
     {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, 1524, 1627, 1525},
     {{2514, 2}, {2688, 168}, {2153, 4}, {2516, 2}, {2520, 168}, {2157, 4}, {2165, 1}, {2166, 2}, {2168, 168}, {3534, 1}, {3536, 2}, {2336, 2}, {2338, 168}},
     {1501, 1502, 1504, 1468, 1354, 1469, 1335, 1471, 1332, 1506, 1509, 1465, 1353, 1466, 1334, 1467, 1330, 1473, 1477, 1475, 1523, 1398, 1524, 1526, 1625, 1627, 1630, 1408, 1525, 1528, 1393, 1032},
     {HELP_TOP, HELP_GRAY, HELP_TEXT, HELP_SIMULATION, 1630, ~0u, 1408, 6820, 1525, 6820, 1393, 6840, 1528, 6850, HELP_END},
     {1400, 1401, 1402, 1403, 1482, 1486, 1503, 1505, 1508, 1510, 1527, 1529, 1530, 1629}},
    {"125", 125, L"", 6620, false,
     {1634, 1354, 1332, 1353, 1334, 1330, kImages},
     {1634, 1354, 1332, 1353, 1334, 1330},
     {{2512, 2}, {2153, 4}, {2157, 4}, {2165, 1}},
     {1632, 1634, 1501, 1468, 1354, 1471, 1332, 1506, 1465, 1353, 1466, 1334, 1467, 1330, 1473, 1477, 1475, 1032},
     {1501, 6640, 1468, 6660, 1354, 6660, 1471, 6675, 1332, 6675, 1506, 6680, 1465, 6700, 1353, 6700, 1466, 6710, 1334, 6710,
      1467, 6720, 1330, 6720, 1473, 6730, 1477, 6780, 1475, 6790, HELP_END},
     {1400, 1401, 1402, 1505, 1510, 1636}},
    {"123 A", 123, L"type2", 6621, false, kBasic, kBasicFills, kBasicDefaults,
     {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, 1477, 1475, 1032}, kBasicHelp, kBasicIcons},
    {"123 B", 123, L"type3", 6600, false, kBasic, kBasicFills, kBasicDefaults,
     {1501, 1502, 1504, 1468, 1354, 1469, 1335, 1471, 1332, 1506, 1507, 1509, 1465, 1353, 1466, 1334, 1467, 1330, 1473, 1477, 1475, 1032},
     kBasicHelp, kBasicIcons},
};

// An entry that is chosen, and what it stores; `record` only where the dialog remembers profiles.
struct Change {
    int control, entry;
    size_t field, size;
    unsigned value;
    size_t recordAt; // 0: none
    RawBytes record;
    int result;
};
const Change kChanges[] = {
    {1504, 3, 2514, 2, 129, 2688, Profile(L"Apple RGB", L"", 0), 1}, {1504, 17, 2514, 2, 257, 2688, kScanner, 1},
    {1504, 16, 2514, 2, 256, 2688, kCamera, 1}, {1509, 0, 2516, 2, 0, 2520, Profile(L"Device RGB", L"", 0), 1},
    {1509, 16, 2516, 2, 256, 2520, kCamera, 1}, {1513, 15, 2518, 2, 141, 2856, Profile(L"sRGB (blue adjusted)", L"", 0), 1},
    {1513, 17, 2518, 2, 257, 2856, kScanner, 1}, {1524, 0, 2166, 2, 0, 2168, kNone, 0},
    {1524, 5, 2166, 2, 5, 2168, kNone, 0}, {1524, 6, 2166, 2, 128, 2168, kSimA, 0},
    {1524, 7, 2166, 2, 128, 2168, kSimB, 0}, {1599, 1, 3026, 2, 128, 3198, kPressA, 0},
    {1599, 2, 3026, 2, 128, 3198, kPressB, 0}, {1592, 0, 3024, 2, 0, 3030, kNone, 0},
    {1592, 1, 3024, 2, 128, 3030, kPressA, 0}, {1584, 0, 3028, 2, 0, 3366, kNone, 0},
    {1584, 2, 3028, 2, 128, 3366, kPressB, 0}, {1354, 3, 2153, 1, 3, 0, kNone, 1},
    {1335, 2, 2155, 1, 2, 0, kNone, 1}, {1332, 0, 2154, 1, 0, 0, kNone, 1},
    {1353, 0, 2157, 1, 0, 0, kNone, 1}, {1334, 1, 2159, 1, 1, 0, kNone, 1},
    {1330, 2, 2158, 1, 2, 0, kNone, 1}, {1516, 0, 2161, 1, 0, 0, kNone, 1},
    {1519, 2, 2163, 1, 2, 0, kNone, 1}, {1522, 0, 2162, 1, 3, 0, kNone, 1},
    {1522, 4, 2162, 1, 2, 0, kNone, 1}, {1526, 0, 3534, 1, 0, 0, kNone, 0},
    {1627, 1, 3536, 2, 1, 0, kNone, 1}, {1525, 0, 2336, 2, 0, 2338, kNone, 0},
    {1525, 2, 2336, 2, 128, 2338, kPressB, 0}, {1634, 0, 2512, 2, 0, 0, kNone, 1},
};
// clang-format on

// All choices are offered; graphics follow images.
RawBytes Settings(const ColorDialogCase& dialog) {
    RawBytes settings = FullSettings().U8(2155, 1).U8(2165, 1).U16(2512, 1);
    settings.U16(2336, 128).Wide(2338 + 82, L"Press A").U16(2338 + 96, 0);
    return dialog.id == 123 ? settings.U16(2516, 129) : settings;
}

struct Driver : DialogDriver {
    explicit Driver(const ColorDialogCase& wanted) : DialogDriver(wanted.id, wanted.model), dialog(wanted) {
        rgbSources = {kCamera, kScanner};
        simulations = {kSimA, kSimB};
        destinations = {kPressA, kPressB};
        settings = Settings(dialog);
    }

    bool Has(int control) const {
        return std::count(dialog.controls.begin(), dialog.controls.end(), control) != 0;
    }
    bool HasRecords() const { return dialog.listsProfiles; }
    bool Has(const Change& change) const {
        const bool isProfile = change.field >= 2512 && change.field < 2520 && change.value >= 256;
        return Has(change.control) && (dialog.listsProfiles || !isProfile);
    }
    static std::string Lines(const std::string& action, const std::vector<int>& controls) {
        std::string text;
        for (const int control : controls)
            text += action + " " + std::to_string(control) + "\n"
                    + (control == kImages ? action + " " + std::to_string(kText) + "\n" : "");
        return text;
    }
    std::string Fills() const { return Lines("fill", dialog.fills); }
    std::string Shows() const { return Lines("show", dialog.controls); }
    int Shown(int control) const {
        const bool isButton = control == kBox || control == kImages || control == kText;
        return static_cast<int>(Send(control, isButton ? UINT{BM_GETCHECK} : CB_GETCURSEL));
    }
    Answer Make(int control, int entry) {
        const bool isButton = control == kBox || control == kImages || control == kText;
        if (control == kImages || control == kText)
            Send(control == kImages ? kText : kImages, BM_SETCHECK, BST_UNCHECKED);
        return isButton ? Check(control, entry != 0) : Choose(control, entry);
    }
    void Expect(const RawBytes& wanted) const { EXPECT_EQ(Differences(settings.bytes.data(), wanted), ""); }

    // What graphics take, on the settings above.
    RawBytes& Derive(RawBytes& wanted, bool fromImages) const {
        const unsigned gray = !fromImages ? 2 : Has(1335) ? 1 : 0;
        wanted.U8(2165, fromImages).U8(2161, fromImages ? 1 : 3).U8(2163, gray).U8(2162, fromImages ? 2 : 1);
        if (!Has(1504))
            return wanted;
        wanted.U16(2518, fromImages ? 128 : HasRecords() ? 257 : 129);
        return !HasRecords() ? wanted
               : fromImages  ? PutRecord(wanted, 2856, Profile(L"Adobe RGB (1998)", L"", 0))
                             : PutRecord(wanted, 2856, kScanner);
    }

    const ColorDialogCase& dialog;
};

struct ColorDialogs : testing::TestWithParam<ColorDialogCase> {};
struct FollowingGraphics : ColorDialogs {};
const auto kNameOf = [](const auto& dialog) {
    std::string name = dialog.param.name;
    name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
    return name;
};
INSTANTIATE_TEST_SUITE_P(All, ColorDialogs, testing::ValuesIn(kDialogs), kNameOf);
INSTANTIATE_TEST_SUITE_P(All, FollowingGraphics,
                         testing::ValuesIn(std::begin(kDialogs) + 1, std::end(kDialogs)), kNameOf);

TEST_P(ColorDialogs, OpenAndRefreshInOrder) {
    Driver driver(GetParam());
    driver.downloadManager = 0;
    const std::set<std::string> kinds = {"fill",          "show",           "disable", "IsInstalledDLManager",
                                         "DoConstraints", "DispHintControl"};
    const std::string check = "DoConstraints 0\nDispHintControl " + std::to_string(GetParam().id) + "\n";
    const bool lists = GetParam().listsProfiles;
    driver.Open();
    EXPECT_EQ(driver.initAnswer, (Answer{0, 1}));
    EXPECT_EQ(driver.Events(kinds), check + driver.Fills() + driver.Shows()
                                        + (lists ? "IsInstalledDLManager\ndisable 1393\n" : ""));
    driver.Expect(Settings(GetParam()));
    EXPECT_EQ(Differences(driver.saveArea.bytes.data(), Settings(GetParam())), "");
    EXPECT_EQ(driver.Shown(kImages), driver.Has(kImages));
    EXPECT_EQ(driver.Shown(kText), 0);
    for (const auto& [list, entries] :
         {std::pair(1504, lists ? kRgb : kBuiltInRgb), {1634, "Device RGB=0|sRGB=1"}, {1525, kDestinations}})
        EXPECT_EQ(driver.Entries(list), driver.Has(list) ? entries : "") << list;

    driver.events.clear();
    EXPECT_EQ(driver.Tell(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 1)), (Answer{0, kUntouched}));
    EXPECT_EQ(driver.Events(kinds), "");
    EXPECT_EQ(driver.Tell(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1)), (Answer{0, 1}));
    EXPECT_EQ(driver.Events(kinds), check + (lists ? driver.Fills() : "") + driver.Shows());
    driver.Expect(Settings(GetParam()));

    driver.events.clear();
    driver.settings.U8(2165, 2); // neither: text
    RawBytes wanted = driver.settings;
    EXPECT_EQ(driver.Tell(WM_USER + 100), lists ? (Answer{1, 1}) : (Answer{0, kUntouched}));
    EXPECT_EQ(driver.Events(kinds), lists ? driver.Fills() + driver.Shows() : "");
    if (lists && driver.Has(kImages))
        driver.Derive(wanted, false);
    driver.Expect(wanted);
    EXPECT_EQ(driver.Shown(kText), lists && driver.Has(kImages));
}

TEST_P(ColorDialogs, AnswerTheirOwnMessagesOnly) {
    Driver driver(GetParam());
    driver.Open();
    driver.events.clear();
    for (const WPARAM command : {WPARAM{1393}, WPARAM{1528}})
        EXPECT_EQ(driver.Command(command), (Answer{GetParam().listsProfiles ? 1 : 0, kUntouched}));
    for (const WPARAM command : {WPARAM{MAKEWPARAM(kImages, 1)}, Chosen(kText), Chosen(kBox), WPARAM{1504},
                                 MAKEWPARAM(1504, CBN_SELCHANGE), IDOK | 1ull << 32, Chosen(0), WPARAM{0},
                                 WPARAM{MAKEWPARAM(IDOK, 1)}, WPARAM{MAKEWPARAM(1528, 1)}})
        EXPECT_EQ(driver.Command(command), (Answer{0, kUntouched})) << command;
    for (const Change& change : kChanges) {
        const WPARAM command = change.control == kBox ? kBox : Chosen(static_cast<WPARAM>(change.control));
        EXPECT_EQ(driver.Command(command),
                  driver.Has(change.control) ? (Answer{change.result, 1}) : (Answer{0, kUntouched}))
            << change.control;
        MEASUREITEMSTRUCT item = {ODT_COMBOBOX, static_cast<UINT>(change.control), 0, 0, 3, 0};
        driver.Tell(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.itemHeight, driver.Has(change.control) && change.control != kBox ? 16u : 3u)
            << change.control;
    }
    driver.events.clear();
    EXPECT_EQ(driver.Command(9), (Answer{0, 1}));
    HELPINFO info = {};
    info.hItemHandle = driver.Control(1353);
    EXPECT_EQ(driver.Tell(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), (Answer{0, 1}));
    EXPECT_EQ(driver.helpTable, GetParam().help);
    EXPECT_EQ(driver.Tell(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(driver.Control(1354))), (Answer{0, 1}));
    EXPECT_EQ(driver.Events({"WinHelp"}),
              "WinHelp 0 1 " + std::to_string(GetParam().topic) + "\nWinHelp 1353 12\nWinHelp 1354 10\n");
    EXPECT_EQ(driver.helpTable, GetParam().help);

    std::vector<int> icons;
    for (int icon = 1390; icon < 1640; ++icon) {
        DRAWITEMSTRUCT item = {
            ODT_STATIC, static_cast<UINT>(icon), 0, ODA_DRAWENTIRE, 0, driver.window, nullptr, {}, 0};
        driver.events.clear();
        driver.Tell(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        if (driver.Events({"ReqDrawStopInfoIcon"}) == "ReqDrawStopInfoIcon " + std::to_string(icon) + "\n")
            icons.push_back(icon);
    }
    EXPECT_EQ(icons, GetParam().icons);
    DRAWITEMSTRUCT item = {ODT_STATIC, 1400, 0, ODA_DRAWENTIRE, 0, driver.window, nullptr, {}, 0};
    EXPECT_EQ(driver.Tell(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item)), (Answer{1, 1}));
    driver.Tell(WM_DESTROY); // the user-interface module has gone
    EXPECT_EQ(driver.Tell(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item)), (Answer{0, kUntouched}));
    driver.Close();

    driver.context.changesAllowed = 0;
    driver.events.clear();
    driver.Open();
    std::string locks;
    for (const int control : GetParam().locks)
        locks += "disable " + std::to_string(control) + "\n";
    EXPECT_EQ(driver.Events({"disable"}), locks);
    for (const int control : GetParam().locks)
        EXPECT_TRUE(GetWindowLongW(driver.Control(control), GWL_STYLE) & WS_VISIBLE) << control;
    driver.Close();
    driver.Open(false); // without a context nothing is locked
    EXPECT_TRUE(IsWindowEnabled(driver.Control(1354)));
}

TEST_P(ColorDialogs, ChangesAreKeptOrRefused) {
    Driver driver(GetParam());
    driver.Open();
    for (const Change& change : kChanges)
        for (const int32_t answer : {100, 101, 99, 0}) {
            if (!driver.Has(change))
                continue;
            SCOPED_TRACE(testing::Message() << change.control << ", " << answer);
            const RawBytes before = driver.settings;
            RawBytes wanted = before;
            change.size == 1 ? wanted.U8(change.field, change.value) : wanted.U16(change.field, change.value);
            if (change.recordAt != 0 && driver.HasRecords())
                PutRecord(wanted, change.recordAt, change.record);
            driver.constraints = [&](uint32_t) {
                driver.Expect(wanted);
                return answer;
            };
            const int shown = driver.Shown(change.control);
            const bool isRefused = answer >= 100;
            EXPECT_EQ(driver.Make(change.control, change.entry), (Answer{change.result, 1}));
            EXPECT_EQ(driver.Events({"DoConstraints", "DispHintControl"}),
                      "DoConstraints " + std::to_string(change.control) + "\nDispHintControl "
                          + std::to_string(GetParam().id) + "\n");
            driver.Expect(isRefused ? before : wanted);
            EXPECT_EQ(driver.Shown(change.control), isRefused ? shown : change.entry);
        }
}

TEST_P(FollowingGraphics, TakeWhatIsChosen) {
    Driver driver(GetParam());
    driver.Open();
    RawBytes wanted = driver.settings;
    for (const auto& [button, answer] : {std::pair(kText, 100), {kText, 0}, {kImages, 101}, {kImages, 99}}) {
        SCOPED_TRACE(testing::Message() << button << ", " << answer);
        const uint8_t before = wanted.bytes[2165];
        driver.Derive(wanted, button == kImages);
        driver.constraints = [&, answer = answer](uint32_t) {
            driver.Expect(wanted); // which sees what has been derived
            return answer;
        };
        EXPECT_EQ(driver.Make(button, 1), (Answer{1, 1}));
        EXPECT_EQ(driver.Events({"DoConstraints"}), "DoConstraints " + std::to_string(button) + "\n");
        const bool isRefused = answer >= 100; // puts back the choice alone
        if (isRefused)
            wanted.U8(2165, before);
        driver.Expect(wanted);
        EXPECT_EQ(driver.Shown(kImages), wanted.bytes[2165]);
        EXPECT_EQ(driver.Shown(kText), 1 - wanted.bytes[2165]);
    }
}

TEST_P(ColorDialogs, DefaultsTakeTheirFieldsOnly) {
    Driver driver(GetParam());
    RawBytes defaults =
        Pattern(128).U16(2514, 0).U16(2516, 1).U16(2512, 0).U16(2336, 0).U16(2166, 3).U16(3536, 1);
    defaults.U8(2165, 0).U16(2518, 1).U16(3024, 0).U16(3026, 0).U16(3028, 0);
    driver.storedDefaults = defaults.bytes;
    driver.Open();
    SetFocus(driver.Control(1354));
    driver.constraints = [](uint32_t) { return 100; }; // refuses no defaults
    driver.events.clear();
    EXPECT_EQ(driver.Command(1032), (Answer{0, 1}));
    RawBytes wanted = Settings(GetParam());
    for (const auto& [offset, length] : GetParam().defaults)
        memcpy(&wanted.bytes[offset], &defaults.bytes[offset], length);
    driver.Expect(wanted);
    EXPECT_EQ(driver.Events({"focus", "DoConstraints", "DispHintControl", "fill", "show"}),
              "focus 1032\nDoConstraints 0\nDispHintControl " + std::to_string(GetParam().id) + "\n"
                  + driver.Shows());
    EXPECT_EQ(driver.Shown(kText), driver.Has(kImages));
    driver.events.clear();
    driver.Command(1032);
    EXPECT_EQ(driver.Events({"focus"}), "") << "it has the focus already";
}

// What is no longer offered becomes the first entry; only where profiles are remembered in their record, too.
TEST_P(ColorDialogs, ChoicesThatAreNotOfferedBecomeTheFirst) {
    Driver driver(GetParam());
    driver.settings.U16(2514, 300)
        .U16(2518, 255)
        .U16(2516, 0x8001)
        .U16(2512, 5)
        .U16(2336, 1)
        .Wide(2338 + 82, L"Press C");
    driver.settings.U16(2166, 99).U16(3536, 7).U8(2153, 9).U8(3534, 2); // not 0: checked
    RawBytes wanted = driver.settings;
    const auto become0 = [&](int control, size_t field, size_t record, const wchar_t* text) {
        if (!driver.Has(control))
            return;
        wanted.U16(field, 0);
        if (record != 0 && driver.HasRecords())
            PutRecord(wanted, record, Profile(text, L"", 0));
    };
    become0(1504, 2514, 2688, L"Device RGB");
    become0(1509, 2516, 2520, L"Device RGB");
    become0(1513, 2518, 2856, L"Device RGB");
    become0(1634, 2512, 0, L"");
    become0(1525, 2336, 2338, L"");
    become0(1524, 2166, 2168, L"");
    become0(1627, 3536, 0, L"");
    const RawBytes opening = driver.settings;
    driver.Open();
    driver.Expect(wanted);
    EXPECT_EQ(driver.Shown(1354), -1);
    EXPECT_EQ(driver.Shown(kBox), driver.Has(kBox));
    for (uint8_t& octet : driver.settings.bytes)
        octet ^= 0xFF; // others change them, too
    EXPECT_EQ(driver.Command(IDCANCEL), (Answer{1, 1}));
    EXPECT_EQ(driver.events.back(), "EndDialog 2");
    driver.Expect(opening);
    driver.Command(IDOK); // no selection is -1, for graphics that follow, too
    EXPECT_EQ(driver.settings.bytes[2153], 255);
    EXPECT_EQ(driver.settings.bytes[2161] == 255, driver.Has(kImages));
}

// What the lists show counts at OK, told or not.
TEST_P(ColorDialogs, OkStoresWhatIsShown) {
    Driver driver(GetParam());
    driver.Open();
    RawBytes wanted = driver.settings;
    for (const Change& change : kChanges) {
        if (!driver.Has(change))
            continue;
        driver.Send(change.control, change.control == kBox ? UINT{BM_SETCHECK} : CB_SETCURSEL,
                    static_cast<WPARAM>(change.entry));
        change.size == 1 ? wanted.U8(change.field, change.value) : wanted.U16(change.field, change.value);
        if (change.recordAt != 0 && driver.HasRecords())
            PutRecord(wanted, change.recordAt, change.record);
    }
    if (driver.Has(kImages)) { // as text has them now
        driver.Send(kImages, BM_SETCHECK, BST_UNCHECKED);
        driver.Send(kText, BM_SETCHECK, BST_CHECKED);
        wanted.U8(2165, 0).U8(2161, 0).U8(2163, 1).U8(2162, 2);
        if (driver.Has(1509))
            wanted.U16(2518, driver.HasRecords() ? 256 : 0);
        if (driver.HasRecords())
            PutRecord(wanted, 2856, kCamera);
    }
    driver.events.clear();
    driver.Command(IDOK);
    driver.Expect(wanted);
    EXPECT_EQ(driver.Events({"DoConstraints", "DispHintControl", "EndDialog"}), "EndDialog 1\n");
    std::string order, last;
    for (const std::string& event : driver.events)
        if (event.rfind("read ", 0) == 0 && event != std::exchange(last, event))
            order += event + "\n";
    std::string stored;
    for (const int control : GetParam().controls)
        stored += control != kImages
                      ? driver.Lines("read", {control})
                      : "read 1477\n"
                            + driver.Lines("read", driver.Has(1509) ? std::vector{1509, 1353, 1334, 1330}
                                                                    : std::vector{1353, 1334, 1330});
    EXPECT_EQ(order, stored);
}

// Each list takes the table of its own, though many say the same.
TEST_P(ColorDialogs, ListsHaveTheirOwnTables) {
    constexpr struct {
        int list;
        const char* key;
    } kMarked[] = {{1504, "Img_AdobeRGB1998"}, {1509, "Text_AdobeRGB1998"}, {1354, "Img_Proof"},
                   {1353, "Text_Proof"},       {1335, "Img_BandG"},         {1334, "Text_BandG"},
                   {1332, "Img_Detail"},       {1330, "Text_Detail"},       {1524, "Simu_SWOP"},
                   {1627, "Simu_BandG"},       {1525, "Dest_Auto"},         {1634, "sRGB"},
                   {1516, "Graph_Proof"},      {1519, "Graph_BandG"},       {1522, "Graph_Detail"},
                   {1599, "Img_DestAuto"},     {1592, "Text_DestAuto"},     {1584, "Graph_DestAuto"}};
    Driver driver(GetParam());
    for (const auto& [list, key] : kMarked)
        memcpy(driver.FindItem(key) + 48, std::to_wstring(list).c_str(), 10);
    memcpy(driver.FindItem("Graph_AdobeRGB1998") + 48, L"mark", 10);
    driver.Open();
    EXPECT_EQ(driver.Has(1513), driver.Entries(1513).find("mark=128") != std::string::npos);
    for (const auto& [list, key] : kMarked)
        EXPECT_EQ(driver.Entries(list).find(std::to_string(list) + "=") != std::string::npos,
                  driver.Has(list))
            << list;
    driver.Command(IDOK);
    const std::wstring derived = reinterpret_cast<wchar_t*>(&driver.settings.bytes[2856]);
    EXPECT_EQ(derived == L"mark", driver.HasRecords() && driver.Has(kImages));
}

TEST_P(ColorDialogs, LeaveNothingBehind) {
    Driver driver(GetParam());
    driver.usesOwnCallbacks = true;
    std::optional<LiveObjects> before;
    const int rounds = Rounds(20, 200);
    for (int i = 0; i < rounds; ++i) {
        driver.Open();
        ShowWindow(driver.window, i % 20 < 4 ? SW_SHOWNOACTIVATE : SW_HIDE); // which takes its time
        UpdateWindow(driver.window);
        driver.Make(kText, 1);
        driver.Choose(1524, 0);
        driver.Make(kBox, 1); // refused, with a hint and a stop sign
        driver.Command(1032);
        driver.Close();
        if (i == 3)
            before = CountLiveObjects();
    }
    EXPECT_EQ(CountLiveObjects(), *before);
    EXPECT_GT(before->graphics, 0);
    EXPECT_EQ(driver.uiLoads, rounds);
    EXPECT_EQ(driver.uiFrees, rounds);
    EXPECT_EQ(GetModuleHandleW(L"TELMAR_U.DLL"), nullptr);
}

TEST(BasicDialog, VariantByTheModelsType) {
    DeviceTable table = {};
    for (const uint32_t type : {0u, 1u, 2u, 3u, 4u, 13u, 255u}) {
        table.switches[kSwitchColorSetting] = type;
        EXPECT_EQ(FindColorDialog(123, &table)->helpTopic, type == 3 ? 6621u : 6600u) << type;
    }
    EXPECT_EQ(FindColorDialog(123, nullptr)->helpTopic, 6600u);
}

// In a context of short lists 123 offers two sources; entries are drawn as those of RGB sources.
TEST(BasicDialog, ShortListsAndPrinterProfiles) {
    Driver driver(kDialogs[5]);
    driver.settings.U16(2514, 0).U16(2516, 1);
    driver.context.shortRgbLists = 1;
    driver.Open();
    EXPECT_EQ(driver.Entries(1504) + driver.Entries(1509), "Device RGB=0|sRGB=1Device RGB=0|sRGB=1");
    driver.Close();
    driver.context.shortRgbLists = 0;
    driver.Open();
    Canvas known{220, 30}, unknown{220, 30};
    for (const auto& [canvas, data] : {std::pair(&known, ULONG_PTR{257}), {&unknown, 258}}) {
        DRAWITEMSTRUCT item = {ODT_COMBOBOX,    1504, 0, ODA_DRAWENTIRE, 0, driver.Control(1504), canvas->dc,
                               {5, 5, 200, 21}, data};
        driver.Tell(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    }
    EXPECT_NE(known.Content().pixels, unknown.Content().pixels) << "the second profile has a text";
    RawBytes wanted = driver.settings;
    driver.Choose(1509, 2);
    EXPECT_EQ(Differences(driver.settings.bytes.data(), wanted.U16(2516, 128)), "") << "no record is written";
}

} // namespace

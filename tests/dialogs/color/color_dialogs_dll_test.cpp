// Each colour dialog through the built module: how it opens, what it answers, changes, refuses and stores.
#include "dialogs/color/color_descriptions.h"
#include "dialogs/color/color_driver.h"
#include "support/live_objects.h"
#include "support/rounds.h"

#include <map>

namespace {

// An entry that is chosen, and what is stored for it.
struct Change {
    int control, entry;
    size_t field, size;
    unsigned value;
    size_t recordAt; // of a profile, in the dialogs that list profiles; 0: none
    RawBytes record;
    int result;
};
// clang-format off
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
    {1522, 4, 2162, 1, 2, 0, kNone, 1}, {kBox, 0, 3534, 1, 0, 0, kNone, 0},
    {1627, 1, 3536, 2, 1, 0, kNone, 1}, {1525, 0, 2336, 2, 0, 2338, kNone, 0},
    {1525, 2, 2336, 2, 128, 2338, kPressB, 0}, {1634, 0, 2512, 2, 0, 0, kNone, 1},
};

// What a list offers, which entry the offered settings select, and an item that only its own table has.
struct OfferedList { int list; std::string entries; int selection; const char* key; };
const OfferedList kLists[] = {
    {1504, kRgb, 2, "Img_AdobeRGB1998"}, {1509, kRgb, 17, "Text_AdobeRGB1998"}, {1513, kRgb, 1, "Graph_AdobeRGB1998"},
    {1354, kMatch, 1, "Img_Proof"},      {1353, kMatch, 3, "Text_Proof"},       {1516, kMatch, 2, "Graph_Proof"},
    {1335, kGray, 1, "Img_BandG"},       {1334, kGray, 2, "Text_BandG"},        {1519, kGray, 1, "Graph_BandG"},
    {1332, kHalftone, 2, "Img_Detail"},  {1330, kHalftone, 1, "Text_Detail"},   {1522, kGraphHalf, 1, "Graph_Detail"},
    {1599, kDestinations, 0, "Img_DestAuto"}, {1592, kDestinations, 2, "Text_DestAuto"},
    {1584, kDestinations, 1, "Graph_DestAuto"}, {1525, kDestinations, 1, "Dest_Auto"},
    {1524, kSimulations, 7, "Simu_SWOP"}, {1627, kGray, 2, "Simu_BandG"}, {1634, "Device RGB=0|sRGB=1", 1, "sRGB"},
};

// A stored choice -> what it becomes when the dialog opens, and which entry shows it.
struct Stored {
    uint32_t dialog;
    int list, field, value;
    uint16_t record;
    const wchar_t* name; // of the profile in the record
    uint16_t becomes;
    const wchar_t* text; // in the record afterwards; null: the record stays
    int selection;
};
const Stored kStored[] = {
    {128, 1504, 2514, 258,    2688, L"Scanner", 0,      L"Device RGB", 0},
    {128, 1509, 2516, 0xFFFF, 2520, L"Camera",  0,      L"Device RGB", 0},
    {128, 1513, 2518, 0x8100, 2856, L"Camera",  0,      L"Device RGB", 0}, // negative
    {128, 1513, 2518, 256,    2856, L"Other",   256,    nullptr,       16},
    {128, 1592, 3024, 128,    3030, L"Press C", 0,      L"",           0},
    {128, 1592, 3024, 0,      3030, L"Press A", 0,      nullptr,       0},
    {128, 1599, 3026, 1,      3198, L"PRESS B", 1,      nullptr,       2}, // the first of two
    {128, 1599, 3026, 0x8000, 3198, L"Press",   0,      L"",           0},
    {128, 1584, 3028, 0xFFFF, 3366, L"pReSs A", 0xFFFF, nullptr,       1},
    {128, 1524, 2166, 5,      2168, L"Sim A",   5,      nullptr,       5},
    {128, 1524, 2166, 6,      2168, L"Sim A",   0,      L"",           0},
    {128, 1524, 2166, 128,    2168, L"sim a",   128,    nullptr,       6},
    {128, 1524, 2166, 128,    2168, L"Sim AB",  0,      L"",           0},
    {128, 1524, 2166, 129,    2168, L"Sim B",   0,      L"",           0},
    {128, 1627, 3536, 258,    0,    nullptr,    0,      nullptr,       0},
    {122, 1525, 2336, 1,      2338, L"Press C", 0,      L"",           0},
    {125, 1634, 2512, 5,      0,    nullptr,    0,      nullptr,       0},
    {123, 1504, 2514, 300,    2688, L"Camera",  0,      nullptr,       0},
};
// clang-format on

struct Driver : ColorDriver {
    using ColorDriver::ColorDriver;

    bool Offers(const Change& change) const {
        const bool isProfile = change.field >= 2512 && change.field < 2520 && change.value >= 256;
        return Has(change.control) && (dialog.listsProfiles || !isProfile);
    }
    void Put(RawBytes& wanted, const Change& change, unsigned value, const RawBytes& record) const {
        change.size == 1 ? wanted.U8(change.field, value) : wanted.U16(change.field, value);
        if (change.recordAt != 0 && dialog.listsProfiles)
            PutRecord(wanted, change.recordAt, record);
    }

    // What graphics take, on the offered settings.
    RawBytes& Derive(RawBytes& wanted, bool fromImages) const {
        const unsigned gray = !fromImages ? 2 : Has(1335) ? 1 : 0;
        wanted.U8(2165, fromImages).U8(2161, fromImages ? 1 : 3).U8(2163, gray).U8(2162, fromImages ? 2 : 1);
        if (Has(1504))
            wanted.U16(2518, fromImages ? 128 : dialog.listsProfiles ? 257 : 129);
        return dialog.listsProfiles ? PutRecord(wanted, 2856, fromImages ? Profile(L"mark", L"", 0) : kScanner)
                                    : wanted;
    }
};

struct ColorDialogs : testing::TestWithParam<ColorDialogCase> {};
struct FollowingGraphics : ColorDialogs {};
const auto kNameOf = [](const auto& dialog) { return std::string(dialog.param.name); };
INSTANTIATE_TEST_SUITE_P(, ColorDialogs, testing::ValuesIn(kColorDialogs), kNameOf);
INSTANTIATE_TEST_SUITE_P(, FollowingGraphics, testing::ValuesIn(kColorDialogs + 1, std::end(kColorDialogs)), kNameOf);

TEST_P(ColorDialogs, OpenAndRefreshInOrder) {
    Driver driver(GetParam());
    driver.downloadManager = 0;
    std::map<int, std::string> marked; // each table has an item of its own, named after its list
    for (const auto& [list, entries, selection, key] : kLists) {
        uint8_t* const text = driver.FindItem(key) + 48;
        const std::string name = Narrow(reinterpret_cast<const wchar_t*>(text)) + "=";
        marked[list] = entries;
        marked[list].replace(marked[list].find(name), name.size(), std::to_string(list) + "=");
        memcpy(text, std::to_wstring(list).c_str(), 10);
    }
    const std::set<std::string> kinds = {"fill",          "show",           "disable", "IsInstalledDLManager",
                                         "DoConstraints", "DispHintControl"};
    const bool lists = GetParam().listsProfiles, follows = driver.Has(kImages);
    driver.Open();
    EXPECT_EQ(driver.initAnswer, (Answer{0, 1}));
    EXPECT_EQ(driver.Events(kinds),
              driver.Check() + driver.Fills() + driver.Shows() + (lists ? "IsInstalledDLManager\ndisable 1393\n" : ""));
    driver.Expect(OfferedSettings(GetParam()));
    EXPECT_EQ(Differences(driver.saveArea.bytes.data(), OfferedSettings(GetParam())), "");
    for (const OfferedList& row : kLists)
        if (driver.Has(row.list)) {
            const bool isBasicRgb = !lists && row.entries == kRgb; // without the printer's profiles
            EXPECT_EQ(driver.Entries(row.list),
                      isBasicRgb ? marked[row.list].substr(0, marked[row.list].find("|Camera")) : marked[row.list]);
            EXPECT_EQ(driver.Shown(row.list), isBasicRgb && row.list == 1509 ? 3 : row.selection);
        }
    EXPECT_EQ(driver.Shown(kBox), driver.Has(kBox));
    EXPECT_EQ(driver.Shown(kImages), follows);
    EXPECT_EQ(driver.Shown(kText), 0);

    driver.events.clear();
    EXPECT_EQ(driver.Deliver(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 1)), (Answer{0, kUntouched}));
    EXPECT_EQ(driver.Events(kinds), "");
    EXPECT_EQ(driver.Deliver(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1)), (Answer{0, 1}));
    EXPECT_EQ(driver.Events(kinds), driver.Check() + (lists ? driver.Fills() : "") + driver.Shows());
    driver.Expect(OfferedSettings(GetParam()));

    driver.events.clear();
    driver.settings.U8(2165, 2); // neither: text
    RawBytes wanted = driver.settings;
    EXPECT_EQ(driver.Deliver(WM_USER + 100), lists ? (Answer{1, 1}) : (Answer{0, kUntouched}));
    EXPECT_EQ(driver.Events(kinds), lists ? driver.Fills() + driver.Shows() : "");
    driver.Expect(lists && follows ? driver.Derive(wanted, false) : wanted);
    EXPECT_EQ(driver.Shown(kText), lists && follows);
}

TEST_P(ColorDialogs, AnswerTheirOwnMessagesOnly) {
    Driver driver(GetParam());
    driver.Open();
    for (const WPARAM command : {WPARAM{1393}, WPARAM{1528}})
        EXPECT_EQ(driver.Command(command), (Answer{GetParam().listsProfiles ? 1 : 0, kUntouched}));
    for (const WPARAM command :
         {WPARAM{MAKEWPARAM(kImages, 1)}, Chosen(kText), Chosen(kBox), WPARAM{1504}, MAKEWPARAM(1504, CBN_SELCHANGE),
          IDOK | 1ull << 32, Chosen(0), WPARAM{0}, WPARAM{MAKEWPARAM(IDOK, 1)}, WPARAM{MAKEWPARAM(1528, 1)}})
        EXPECT_EQ(driver.Command(command), (Answer{0, kUntouched})) << command;
    for (const Change& change : kChanges) {
        const WPARAM command = change.control == kBox ? kBox : Chosen(static_cast<WPARAM>(change.control));
        EXPECT_EQ(driver.Command(command),
                  driver.Has(change.control) ? (Answer{change.result, 1}) : (Answer{0, kUntouched}))
            << change.control;
        MEASUREITEMSTRUCT item = {ODT_COMBOBOX, static_cast<UINT>(change.control), 0, 0, 3, 0};
        driver.Deliver(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.itemHeight, driver.Has(change.control) && change.control != kBox ? 16u : 3u) << change.control;
    }
    driver.events.clear();
    EXPECT_EQ(driver.Command(IDHELP), (Answer{0, 1}));
    HELPINFO info = {};
    info.hItemHandle = driver.Control(1353);
    EXPECT_EQ(driver.Deliver(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), (Answer{0, 1}));
    EXPECT_EQ(driver.helpTable, GetParam().help);
    EXPECT_EQ(driver.Deliver(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(driver.Control(1354))), (Answer{0, 1}));
    EXPECT_EQ(driver.Events({"WinHelp"}),
              "WinHelp 0 1 " + std::to_string(GetParam().topic) + "\nWinHelp 1353 12\nWinHelp 1354 10\n");
    EXPECT_EQ(driver.helpTable, GetParam().help);

    std::vector<int> icons;
    DRAWITEMSTRUCT item = {ODT_STATIC, 1390, 0, ODA_DRAWENTIRE, 0, driver.window, nullptr, {}, 0};
    for (; item.CtlID < 1640; ++item.CtlID) {
        driver.events.clear();
        const Answer answer = driver.Deliver(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        if (!driver.Events({"ReqDrawStopInfoIcon"}).empty() && answer == Answer{1, 1})
            icons.push_back(static_cast<int>(item.CtlID));
    }
    EXPECT_EQ(icons, GetParam().icons);
    driver.Deliver(WM_DESTROY); // frees the user-interface module
    item.CtlID = 1400;
    EXPECT_EQ(driver.Deliver(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item)), (Answer{0, kUntouched}));
}

TEST_P(ColorDialogs, LockTheirControls) {
    Driver driver(GetParam());
    driver.context.changesAllowed = 0;
    driver.Open();
    std::vector<int> locks = GetParam().locksFirst, never = GetParam().locksNever;
    never.insert(never.end(), {0, 1069});
    for (size_t i = 0; i < GetParam().help.size(); i += 2)
        if (const int id = static_cast<int>(GetParam().help[i]); !std::count(never.begin(), never.end(), id))
            locks.push_back(id);
    if (GetParam().id == 122 || GetParam().id == 124) // the buttons for profiles in the other order
        std::swap(locks[locks.size() - 3], locks[locks.size() - 2]);
    if (!GetParam().locks.empty())
        locks = GetParam().locks;
    std::string events;
    for (const int control : locks) {
        events += "disable " + std::to_string(control) + "\n";
        EXPECT_TRUE(GetWindowLongW(driver.Control(control), GWL_STYLE) & WS_VISIBLE) << control;
    }
    EXPECT_EQ(driver.Events({"disable"}), events);
}

TEST_P(ColorDialogs, ChangesAreKeptOrRefused) {
    Driver driver(GetParam());
    driver.Open();
    for (const Change& change : kChanges)
        for (const int32_t answer : {100, 101, 99, 0}) {
            if (!driver.Offers(change))
                continue;
            SCOPED_TRACE(testing::Message() << change.control << ", " << answer);
            const RawBytes before = driver.settings;
            RawBytes wanted = before;
            driver.Put(wanted, change, change.value, change.record);
            driver.constraints = [&](uint32_t) {
                driver.Expect(wanted);
                return answer;
            };
            const int shown = driver.Shown(change.control);
            const bool isRefused = answer == 100 || answer == 101;
            EXPECT_EQ(driver.Choose(change.control, change.entry), (Answer{change.result, 1}));
            EXPECT_EQ(driver.Events({"DoConstraints", "DispHintControl"}),
                      "DoConstraints " + std::to_string(change.control) + "\nDispHintControl "
                          + std::to_string(GetParam().id) + "\n");
            driver.Expect(isRefused ? before : wanted);
            EXPECT_EQ(driver.Shown(change.control), isRefused ? shown : change.entry);
        }
}

TEST_P(FollowingGraphics, TakeWhatIsChosen) {
    Driver driver(GetParam());
    memcpy(driver.FindItem("Graph_AdobeRGB1998") + 48, L"mark", 10); // names come from the table of graphics
    driver.Open();
    RawBytes wanted = driver.settings;
    for (const auto& [button, answer] : {std::pair(kText, 100), {kText, 0}, {kImages, 101}, {kImages, 99}}) {
        SCOPED_TRACE(testing::Message() << button << ", " << answer);
        const uint8_t before = wanted.bytes[2165];
        driver.Derive(wanted, button == kImages);
        driver.constraints = [&, answer = answer](uint32_t) {
            driver.Expect(wanted); // with the derived settings
            return answer;
        };
        driver.Send(button == kImages ? kText : kImages, BM_SETCHECK, BST_UNCHECKED);
        EXPECT_EQ(driver.Choose(button, 1), (Answer{1, 1}));
        EXPECT_EQ(driver.Events({"DoConstraints"}), "DoConstraints " + std::to_string(button) + "\n");
        if (answer >= 100) // refused: restores the choice, not what was derived
            wanted.U8(2165, before);
        driver.Expect(wanted);
        EXPECT_EQ(driver.Shown(kImages), wanted.bytes[2165]);
        EXPECT_EQ(driver.Shown(kText), 1 - wanted.bytes[2165]);
    }
}

TEST_P(ColorDialogs, DefaultsCopyTheirFieldsOnly) {
    const std::set<size_t> fourBytes = {2153, 2157, 2161}, oneByte = {2165, 3534};
    const std::set<size_t> records = {2168, 2338, 2520, 2688, 2856, 3030, 3198, 3366};
    Driver driver(GetParam());
    const RawBytes defaults = OtherSettings();
    driver.storedDefaults = defaults.bytes;
    driver.Open();
    SetFocus(driver.Control(1354));
    driver.constraints = [](uint32_t) { return 100; }; // defaults are not refused
    driver.events.clear();
    EXPECT_EQ(driver.Command(IDC_DEFAULTS), (Answer{0, 1}));
    RawBytes wanted = OfferedSettings(GetParam());
    for (const size_t at : GetParam().defaults)
        memcpy(&wanted.bytes[at], &defaults.bytes[at],
               fourBytes.count(at) ? 4
               : oneByte.count(at) ? 1
               : records.count(at) ? kProfileSize
                                   : 2);
    driver.Expect(wanted);
    EXPECT_EQ(driver.Events({"focus", "DoConstraints", "DispHintControl", "fill", "show"}),
              "focus 1032\n" + driver.Check() + driver.Shows());
    EXPECT_EQ(driver.Shown(kText), driver.Has(kImages));
    driver.events.clear();
    driver.Command(IDC_DEFAULTS);
    EXPECT_EQ(driver.Events({"focus"}), "") << "it has the focus already";
}

TEST_P(ColorDialogs, ChoicesThatAreNotOfferedBecomeTheFirst) {
    Driver driver(GetParam());
    driver.destinations.push_back(kPressB);
    for (const Stored& row : kStored) {
        if (row.dialog != GetParam().id)
            continue;
        SCOPED_TRACE(testing::Message() << row.list << ", value " << row.value << ", row " << &row - kStored);
        driver.settings = OfferedSettings(GetParam()).U16(row.field, row.value);
        if (row.name != nullptr)
            driver.settings.Wide(row.record + 82, row.name).U16(row.record + 82 + 2 * wcslen(row.name), 0);
        const RawBytes stored = driver.settings;
        RawBytes wanted = stored;
        wanted.U16(row.field, row.becomes);
        if (row.text != nullptr)
            PutRecord(wanted, row.record, Profile(row.text, L"", 0));
        driver.events.clear();
        driver.Open();
        EXPECT_EQ(driver.Shown(row.list), row.selection);
        driver.Expect(wanted);
        EXPECT_EQ(Differences(driver.saveArea.bytes.data(), stored), "");
        EXPECT_EQ(driver.Events({"DoConstraints"}), "DoConstraints 0\n");
        driver.Close();
    }
}

TEST_P(ColorDialogs, CancelRestoresTheSettingsAtOpening) {
    Driver driver(GetParam());
    driver.settings.U8(2153, 9).U8(3534, 2);
    const RawBytes opening = driver.settings;
    driver.Open();
    EXPECT_EQ(driver.Shown(1354), -1) << "an unknown item selects nothing";
    EXPECT_EQ(driver.Shown(kBox), driver.Has(kBox)) << "any value but 0";
    for (uint8_t& byte : driver.settings.bytes)
        byte ^= 0xFF;
    EXPECT_EQ(driver.Command(IDCANCEL), (Answer{1, 1}));
    EXPECT_EQ(driver.events.back(), "EndDialog 2");
    driver.Expect(opening);
}

// OK stores what the controls show, whether or not a change was reported.
TEST_P(ColorDialogs, OkStoresWhatIsShown) {
    Driver driver(GetParam());
    driver.Open();
    RawBytes wanted = driver.settings;
    for (const Change& change : kChanges)
        if (driver.Offers(change)) {
            driver.Send(change.control, change.control == kBox ? UINT{BM_SETCHECK} : CB_SETCURSEL,
                        static_cast<WPARAM>(change.entry));
            driver.Put(wanted, change, change.value, change.record);
        }
    if (driver.Has(kImages)) { // as text now is
        driver.Send(kImages, BM_SETCHECK, BST_UNCHECKED);
        wanted.U8(2165, 0).U8(2161, 0).U8(2163, 1).U8(2162, 2);
        if (driver.Has(1509))
            wanted.U16(2518, GetParam().listsProfiles ? 256 : 0);
        if (GetParam().listsProfiles)
            PutRecord(wanted, 2856, kCamera);
    }
    driver.events.clear();
    driver.Command(IDOK);
    driver.Expect(wanted);
    EXPECT_EQ(driver.Events({"DoConstraints", "DispHintControl", "EndDialog"}), "EndDialog 1\n");
    std::string order, last, stored;
    for (const std::string& event : driver.events)
        if (event.rfind("read ", 0) == 0 && event != std::exchange(last, event))
            order += event + "\n";
    for (const int control : GetParam().controls)
        stored += "read " + std::to_string(control) + "\n"
                  + (control != kImages ? ""
                     : driver.Has(1509) ? "read 1509\nread 1353\nread 1334\nread 1330\n"
                                        : "read 1353\nread 1334\nread 1330\n");
    EXPECT_EQ(order, stored);
}

// No selection is item data -1; for destinations and simulations it is the first entry.
TEST_P(ColorDialogs, OkWithoutSelections) {
    Driver driver(GetParam());
    driver.Open();
    RawBytes wanted = driver.settings;
    for (const Change& change : kChanges)
        if (driver.Has(change.control) && change.control != kBox) {
            driver.Send(change.control, CB_SETCURSEL, static_cast<WPARAM>(-1));
            driver.Put(wanted, change, change.result == 0 ? 0 : 0xFFFF, kNone);
        }
    if (driver.Has(kImages)) {
        wanted.U8(2161, 255).U8(2162, 255).U8(2163, driver.Has(1335) ? 255 : 0);
        if (driver.Has(1504))
            wanted.U16(2518, 0xFFFF);
        if (GetParam().listsProfiles)
            PutRecord(wanted, 2856, kNone);
    }
    driver.Command(IDOK);
    driver.Expect(wanted);
}

TEST_P(ColorDialogs, ShortRgbListsHaveTwoItems) {
    Driver driver(GetParam());
    driver.context.shortRgbLists = 1;
    driver.Open();
    for (const int list : {1504, 1509, 1513})
        EXPECT_EQ(driver.Entries(list), driver.Has(list) ? "Device RGB=0|sRGB=1" : "");
}

TEST_P(ColorDialogs, LeaveNothingBehind) {
    Driver driver(GetParam());
    driver.usesOwnCallbacks = true;
    std::optional<LiveObjects> before;
    const int rounds = Rounds(20, 200);
    for (int i = 0; i < rounds; ++i) {
        driver.Open();
        ShowWindow(driver.window, i % 20 < 4 ? SW_SHOWNOACTIVATE : SW_HIDE); // showing takes long
        UpdateWindow(driver.window);
        driver.Choose(kText, 1);
        driver.Choose(1524, 0);
        driver.Choose(kBox, 1); // refused, with a hint and a stop sign
        driver.Command(IDC_DEFAULTS);
        driver.Close();
        if (i == 3)
            before = CountLiveObjects();
    }
    EXPECT_EQ(CountLiveObjects(), *before);
    EXPECT_EQ(driver.uiLoads, rounds);
    EXPECT_EQ(driver.uiFrees, rounds);
    EXPECT_EQ(GetModuleHandleW(L"TELMAR_U.DLL"), nullptr);
}

TEST(BasicDialog, HasVariantAForTypeThreeOnly) {
    DeviceTable table = {};
    for (const uint32_t type : {0u, 1u, 2u, 3u, 4u, 13u, 255u}) {
        table.switches[kSwitchColorSetting] = type;
        EXPECT_EQ(FindColorDialog(123, &table)->helpTopic, type == 3 ? 6621u : 6600u) << type;
    }
    EXPECT_EQ(FindColorDialog(123, nullptr)->helpTopic, 6600u);
}

} // namespace

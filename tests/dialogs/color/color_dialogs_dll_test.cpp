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
    {1504, 3, 2514, 2, 129, 2688, Profile(L"Apple RGB", L"", 0), 1}, {1504, 16, 2514, 2, 256, 2688, kCamera, 1},
    {1509, 0, 2516, 2, 0, 2520, Profile(L"Device RGB", L"", 0), 1}, {1509, 16, 2516, 2, 256, 2520, kCamera, 1},
    {1513, 15, 2518, 2, 141, 2856, Profile(L"sRGB (blue adjusted)", L"", 0), 1},
    {1513, 17, 2518, 2, 257, 2856, kScanner, 1}, {1524, 5, 2166, 2, 5, 2168, kNone, 0},
    {1524, 6, 2166, 2, 128, 2168, kSimA, 0}, {1524, 7, 2166, 2, 128, 2168, kSimB, 0},
    {1599, 1, 3026, 2, 128, 3198, kPressA, 0}, {1599, 2, 3026, 2, 128, 3198, kPressB, 0},
    {1592, 0, 3024, 2, 0, 3030, kNone, 0}, {1592, 1, 3024, 2, 128, 3030, kPressA, 0},
    {1584, 2, 3028, 2, 128, 3366, kPressB, 0}, {1354, 3, 2153, 1, 3, 0, kNone, 1}, {1335, 2, 2155, 1, 2, 0, kNone, 1},
    {1332, 0, 2154, 1, 0, 0, kNone, 1}, {1353, 0, 2157, 1, 0, 0, kNone, 1}, {1334, 1, 2159, 1, 1, 0, kNone, 1},
    {1330, 2, 2158, 1, 2, 0, kNone, 1}, {1516, 0, 2161, 1, 0, 0, kNone, 1}, {1519, 2, 2163, 1, 2, 0, kNone, 1},
    {1522, 0, 2162, 1, 3, 0, kNone, 1}, {1522, 4, 2162, 1, 2, 0, kNone, 1}, {kBox, 0, 3534, 1, 0, 0, kNone, 0},
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
const std::tuple<uint32_t, int, int, int, uint16_t, const wchar_t*, uint16_t, const wchar_t*, int> kStored[] = {
    // dialog, list, field, value, record of a profile, its name; the value and the record (null: it stays), the entry
    {128, 1504, 2514, 258,    2688, L"Scanner", 0,      L"Device RGB", 0},
    {128, 1509, 2516, 0xFFFF, 2520, L"Camera",  0,      L"Device RGB", 0},
    {128, 1513, 2518, 0x8100, 2856, L"Camera",  0,      L"Device RGB", 0}, // negative
    {128, 1513, 2518, 256,    2856, L"Other",   256,    nullptr,       16},
    {128, 1592, 3024, 128,    3030, L"Press C", 0,      L"",           0},
    {128, 1592, 3024, 0,      3030, L"Press A", 0,      nullptr,       0},
    {128, 1599, 3026, 1,      3198, L"PRESS B", 1,      nullptr,       2}, // the first of two
    {128, 1584, 3028, 0xFFFF, 3366, L"pReSs A", 0xFFFF, nullptr,       1},
    {128, 1524, 2166, 5,      2168, L"Sim A",   5,      nullptr,       5},
    {128, 1524, 2166, 128,    2168, L"sim a",   128,    nullptr,       6},
    {128, 1524, 2166, 128,    2168, L"Sim AB",  0,      L"",           0},
    {128, 1524, 2166, 129,    2168, L"Sim B",   0,      L"",           0}, // item data, but not a stored value
    {128, 1627, 3536, 258,    0,    nullptr,    0,      nullptr,       0},
    {122, 1525, 2336, 1,      2338, L"Press C", 0,      L"",           0},
    {125, 1634, 2512, 5,      0,    nullptr,    0,      nullptr,       0},
    {123, 1504, 2514, 300,    2688, L"Camera",  0,      nullptr,       0},
};
// clang-format on

struct ColorDialogs : testing::TestWithParam<ColorDialogCase>, ColorDriver {
    ColorDialogs() : ColorDriver(GetParam()) {}

    bool Offers(const Change& change) const {
        const bool isProfile = change.field >= 2512 && change.field < 2520 && change.value >= 256;
        return Has(change.control) && (dialog.listsProfiles || !isProfile);
    }
    void Put(RawBytes& wanted, const Change& change, unsigned value, const RawBytes& record) const {
        change.size == 1 ? wanted.U8(change.field, value) : wanted.U16(change.field, value);
        if (change.recordAt != 0 && dialog.listsProfiles)
            PutRecord(wanted, change.recordAt, record);
    }

    // What graphics take from the settings of images or text, and their profile.
    RawBytes& Derive(RawBytes& wanted, bool fromImages, const RawBytes& profile) const {
        uint8_t* const bytes = wanted.U8(2165, fromImages).bytes.data();
        memcpy(bytes + 2161, bytes + (fromImages ? 2153 : 2157), 3); // matching, halftone, grey
        if (fromImages && !Has(1335))
            wanted.U8(2163, 0);
        if (Has(1504))
            memcpy(bytes + 2518, bytes + (fromImages ? 2514 : 2516), 2);
        return dialog.listsProfiles ? PutRecord(wanted, 2856, profile) : wanted;
    }
};

struct FollowingGraphics : ColorDialogs {};
const auto kNameOf = [](const auto& row) { return std::string(row.param.name); };
INSTANTIATE_TEST_SUITE_P(, ColorDialogs, testing::ValuesIn(kColorDialogs), kNameOf);
INSTANTIATE_TEST_SUITE_P(, FollowingGraphics, testing::ValuesIn(kColorDialogs + 1, std::end(kColorDialogs)), kNameOf);

TEST_P(ColorDialogs, OpenAndRefreshInOrder) {
    downloadManager = 0;
    std::map<int, std::string> marked; // each table has an item of its own, named after its list
    for (const auto& [list, entries, selection, key] : kLists) {
        uint8_t* const text = FindItem(key) + 48;
        const std::string name = Narrow(reinterpret_cast<const wchar_t*>(text)) + "=";
        marked[list] = entries;
        marked[list].replace(marked[list].find(name), name.size(), std::to_string(list) + "=");
        memcpy(text, std::to_wstring(list).c_str(), 10);
    }
    const std::set<std::string> kinds = {"fill",          "show",           "disable", "IsInstalledDLManager",
                                         "DoConstraints", "DispHintControl"};
    const bool hasProfiles = dialog.listsProfiles, follows = Has(kImages);
    Open();
    EXPECT_EQ(initAnswer, (Answer{0, 1}));
    EXPECT_EQ(Events(kinds), Check() + Fills() + Shows() + (hasProfiles ? "IsInstalledDLManager\ndisable 1393\n" : ""));
    Expect(OfferedSettings(dialog));
    EXPECT_EQ(Differences(saveArea.bytes.data(), OfferedSettings(dialog)), "");
    for (const OfferedList& row : kLists)
        if (Has(row.list)) {
            const bool isBasicRgb = !hasProfiles && row.entries == kRgb; // without the printer's profiles
            EXPECT_EQ(Entries(row.list),
                      isBasicRgb ? marked[row.list].substr(0, marked[row.list].find("|Camera")) : marked[row.list]);
            EXPECT_EQ(Shown(row.list), isBasicRgb && row.list == 1509 ? 3 : row.selection);
        }
    EXPECT_EQ(Shown(kBox), Has(kBox));
    EXPECT_EQ(Shown(kImages), follows);
    EXPECT_EQ(Shown(kText), 0);

    events.clear();
    EXPECT_EQ(Deliver(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 1)), (Answer{0, kUntouched}));
    EXPECT_EQ(Events(kinds), "");
    EXPECT_EQ(Deliver(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1)), (Answer{0, 1}));
    EXPECT_EQ(Events(kinds), Check() + (hasProfiles ? Fills() : "") + Shows());
    Expect(OfferedSettings(dialog));

    events.clear();
    settings.U8(2165, 2); // neither: text
    RawBytes wanted = settings;
    EXPECT_EQ(Deliver(WM_USER + 100), hasProfiles ? (Answer{1, 1}) : (Answer{0, kUntouched}));
    EXPECT_EQ(Events(kinds), hasProfiles ? Fills() + Shows() : "");
    Expect(hasProfiles && follows ? Derive(wanted, false, kScanner) : wanted);
    EXPECT_EQ(Shown(kText), hasProfiles && follows);
}

TEST_P(ColorDialogs, AnswerTheirOwnMessagesOnly) {
    Open();
    for (const WPARAM command : {WPARAM{1393}, WPARAM{1528}})
        EXPECT_EQ(Command(command), (Answer{dialog.listsProfiles ? 1 : 0, kUntouched}));
    for (const WPARAM command :
         {WPARAM{MAKEWPARAM(kImages, 1)}, Chosen(kText), Chosen(kBox), WPARAM{1504}, MAKEWPARAM(1504, CBN_SELCHANGE),
          IDOK | 1ull << 32, Chosen(0), WPARAM{0}, WPARAM{MAKEWPARAM(IDOK, 1)}, WPARAM{MAKEWPARAM(1528, 1)}})
        EXPECT_EQ(Command(command), (Answer{0, kUntouched})) << command;
    for (const Change& change : kChanges) {
        const WPARAM command = change.control == kBox ? kBox : Chosen(static_cast<WPARAM>(change.control));
        EXPECT_EQ(Command(command), Has(change.control) ? (Answer{change.result, 1}) : (Answer{0, kUntouched}))
            << change.control;
        MEASUREITEMSTRUCT item = {ODT_COMBOBOX, static_cast<UINT>(change.control), 0, 0, 3, 0};
        Deliver(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.itemHeight, Has(change.control) && change.control != kBox ? 16u : 3u) << change.control;
    }
    events.clear();
    EXPECT_EQ(Command(IDHELP), (Answer{0, 1}));
    HELPINFO info = {};
    info.hItemHandle = Control(1353);
    EXPECT_EQ(Deliver(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), (Answer{0, 1}));
    EXPECT_EQ(helpTable, dialog.help);
    EXPECT_EQ(Deliver(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Control(1354))), (Answer{0, 1}));
    EXPECT_EQ(Events({"WinHelp"}),
              "WinHelp 0 1 " + std::to_string(dialog.topic) + "\nWinHelp 1353 12\nWinHelp 1354 10\n");
    EXPECT_EQ(helpTable, dialog.help);

    std::vector<int> icons;
    DRAWITEMSTRUCT item = {ODT_STATIC, 1390, 0, ODA_DRAWENTIRE, 0, window, nullptr, {}, 0};
    for (; item.CtlID < 1640; ++item.CtlID) {
        events.clear();
        const Answer answer = Deliver(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        if (!Events({"ReqDrawStopInfoIcon"}).empty() && answer == Answer{1, 1})
            icons.push_back(static_cast<int>(item.CtlID));
    }
    EXPECT_EQ(icons, dialog.icons);
    Deliver(WM_DESTROY); // frees the user-interface module
    item.CtlID = 1400;
    EXPECT_EQ(Deliver(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item)), (Answer{0, kUntouched}));
}

TEST_P(ColorDialogs, LockTheirControls) {
    context.changesAllowed = 0;
    Open();
    std::vector<int> locks = dialog.locksFirst, never = dialog.locksNever;
    never.insert(never.end(), {0, 1069});
    for (size_t i = 0; i < dialog.help.size(); i += 2)
        if (const int id = static_cast<int>(dialog.help[i]); !std::count(never.begin(), never.end(), id))
            locks.push_back(id);
    if (dialog.id == 122 || dialog.id == 124) // the buttons for profiles in the other order
        std::swap(locks[locks.size() - 3], locks[locks.size() - 2]);
    if (!dialog.locks.empty())
        locks = dialog.locks;
    std::string disabled;
    for (const int control : locks) {
        disabled += "disable " + std::to_string(control) + "\n";
        EXPECT_TRUE(GetWindowLongW(Control(control), GWL_STYLE) & WS_VISIBLE) << control;
    }
    EXPECT_EQ(Events({"disable"}), disabled);
}

TEST_P(ColorDialogs, ChangesAreKeptOrRefused) {
    Open();
    for (const Change& change : kChanges)
        for (const int32_t answer : {100, 101, 99, 0}) {
            if (!Offers(change))
                continue;
            SCOPED_TRACE(testing::Message() << change.control << ", " << answer);
            const RawBytes before = settings;
            RawBytes wanted = before;
            Put(wanted, change, change.value, change.record);
            constraints = [&](uint32_t) { return Expect(wanted), answer; };
            const int shown = Shown(change.control);
            const bool isRefused = answer == 100 || answer == 101;
            EXPECT_EQ(Choose(change.control, change.entry), (Answer{change.result, 1}));
            EXPECT_EQ(Checks(), Check(change.control));
            Expect(isRefused ? before : wanted);
            EXPECT_EQ(Shown(change.control), isRefused ? shown : change.entry);
        }
}

TEST_P(FollowingGraphics, TakeWhatIsChosen) {
    memcpy(FindItem("Graph_AdobeRGB1998") + 48, L"mark", 10); // names come from the table of graphics
    Open();
    RawBytes wanted = settings;
    for (const auto& [button, answer] : {std::pair(kText, 100), {kText, 0}, {kImages, 101}, {kImages, 99}}) {
        SCOPED_TRACE(testing::Message() << button << ", " << answer);
        const uint8_t before = wanted.bytes[2165];
        Derive(wanted, button == kImages, button == kImages ? Profile(L"mark", L"", 0) : kScanner);
        constraints = [&, answer = answer](uint32_t) {
            Expect(wanted); // with the derived settings
            return answer;
        };
        Send(button == kImages ? kText : kImages, BM_SETCHECK, BST_UNCHECKED);
        EXPECT_EQ(Choose(button, 1), (Answer{1, 1}));
        EXPECT_EQ(Events({"DoConstraints"}), "DoConstraints " + std::to_string(button) + "\n");
        if (answer >= 100) // refused: restores the choice, not what was derived
            wanted.U8(2165, before);
        Expect(wanted);
        EXPECT_EQ(Shown(kImages), wanted.bytes[2165]);
        EXPECT_EQ(Shown(kText), 1 - wanted.bytes[2165]);
    }
}

TEST_P(ColorDialogs, DefaultsCopyTheirFieldsOnly) {
    std::map<size_t, size_t> sizes = {{2153, 4}, {2157, 4}, {2161, 4}, {2165, 1}, {3534, 1}}; // otherwise 2 bytes
    for (const size_t record : {2168, 2338, 2520, 2688, 2856, 3030, 3198, 3366})
        sizes[record] = kProfileSize;
    const RawBytes defaults = OtherSettings();
    storedDefaults = defaults.bytes;
    Open();
    SetFocus(Control(1354));
    constraints = [](uint32_t) { return 100; }; // defaults are not refused
    events.clear();
    EXPECT_EQ(Command(IDC_DEFAULTS), (Answer{0, 1}));
    RawBytes wanted = OfferedSettings(dialog);
    for (const size_t at : dialog.defaults)
        memcpy(&wanted.bytes[at], &defaults.bytes[at], sizes.count(at) != 0 ? sizes[at] : 2);
    Expect(wanted);
    EXPECT_EQ(Events({"focus", "DoConstraints", "DispHintControl", "fill", "show"}),
              "focus 1032\n" + Check() + Shows());
    EXPECT_EQ(Shown(kText), Has(kImages));
    events.clear();
    Command(IDC_DEFAULTS);
    EXPECT_EQ(Events({"focus"}), "") << "it has the focus already";
}

TEST_P(ColorDialogs, ChoicesThatAreNotOfferedBecomeTheFirst) {
    destinations.Append(kPressB);
    for (const auto& [id, list, field, value, record, name, becomes, text, selection] : kStored) {
        if (id != dialog.id)
            continue;
        SCOPED_TRACE(testing::Message() << list << ", value " << value);
        settings = OfferedSettings(dialog).U16(field, value);
        if (name != nullptr)
            settings.Wide(record + 82, name).U16(record + 82 + 2 * wcslen(name), 0);
        const RawBytes stored = settings;
        RawBytes wanted = stored;
        wanted.U16(field, becomes);
        if (text != nullptr)
            PutRecord(wanted, record, Profile(text, L"", 0));
        events.clear();
        Open();
        EXPECT_EQ(Shown(list), selection);
        Expect(wanted);
        EXPECT_EQ(Differences(saveArea.bytes.data(), stored), "");
        EXPECT_EQ(Events({"DoConstraints"}), "DoConstraints 0\n");
        Close();
    }
}

TEST_P(ColorDialogs, CancelRestoresTheSettingsAtOpening) {
    settings.U8(2153, 9).U8(3534, 2);
    const RawBytes opening = settings;
    Open();
    EXPECT_EQ(Shown(1354), -1) << "an unknown item selects nothing";
    EXPECT_EQ(Shown(kBox), Has(kBox)) << "any value but 0";
    for (uint8_t& byte : settings.bytes)
        byte ^= 0xFF;
    EXPECT_EQ(Command(IDCANCEL), (Answer{1, 1}));
    EXPECT_EQ(events.back(), "EndDialog 2");
    Expect(opening);
}

// OK stores what the controls show, whether or not a change was reported.
TEST_P(ColorDialogs, OkStoresWhatIsShown) {
    Open();
    RawBytes wanted = settings;
    for (const Change& change : kChanges)
        if (Offers(change)) {
            Send(change.control, change.control == kBox ? UINT{BM_SETCHECK} : CB_SETCURSEL,
                 static_cast<WPARAM>(change.entry));
            Put(wanted, change, change.value, change.record);
        }
    if (Has(kImages)) { // as text now is
        Send(kImages, BM_SETCHECK, BST_UNCHECKED);
        Derive(wanted, false, kCamera);
    }
    events.clear();
    Command(IDOK);
    Expect(wanted);
    EXPECT_EQ(Events({"DoConstraints", "DispHintControl", "EndDialog"}), "EndDialog 1\n");
    std::string order, last, stored;
    for (const std::string& event : events)
        if (event.rfind("read ", 0) == 0 && event != std::exchange(last, event))
            order += event + "\n";
    for (const int control : dialog.controls)
        stored += "read " + std::to_string(control) + "\n"
                  + (control != kImages ? ""
                     : Has(1509)        ? "read 1509\nread 1353\nread 1334\nread 1330\n"
                                        : "read 1353\nread 1334\nread 1330\n");
    EXPECT_EQ(order, stored);
}

// No selection is item data -1; for destinations and simulations it is the first entry.
TEST_P(ColorDialogs, OkWithoutSelections) {
    Open();
    RawBytes wanted = settings;
    for (const Change& change : kChanges)
        if (Has(change.control) && change.control != kBox) {
            Send(change.control, CB_SETCURSEL, static_cast<WPARAM>(-1));
            Put(wanted, change, change.result == 0 ? 0 : 0xFFFF, kNone);
        }
    if (Has(kImages))
        Derive(wanted, true, kNone);
    Command(IDOK);
    Expect(wanted);
}

TEST_P(ColorDialogs, ShortRgbListsHaveTwoItems) {
    context.shortRgbLists = 1;
    Open();
    for (const int list : {1504, 1509, 1513})
        EXPECT_EQ(Entries(list), Has(list) ? "Device RGB=0|sRGB=1" : "");
}

TEST_P(ColorDialogs, LeaveNothingBehind) {
    usesOwnCallbacks = true;
    std::optional<LiveObjects> before;
    const int rounds = Rounds(20, 200);
    for (int i = 0; i < rounds; ++i) {
        Open();
        ShowWindow(window, i % 10 < 2 ? SW_SHOWNOACTIVATE : SW_HIDE); // showing takes long
        UpdateWindow(window);
        Choose(kText, 1);
        Choose(1524, 0);
        Choose(kBox, 1); // refused, with a hint and a stop sign
        Command(IDC_DEFAULTS);
        Close();
        if (i == 1)
            before = CountLiveObjects();
    }
    EXPECT_TRUE(HasLeftNothing(*before, rounds - 2));
    EXPECT_EQ(uiLoads, rounds);
    EXPECT_EQ(uiFrees, rounds);
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

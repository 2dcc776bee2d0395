// Dialog 128: what its lists offer and select, what the settings become when they no longer offer a choice,
// and callers who give less than all.
#include "dialogs/shared/dialog_controls.h"
#include "full_dialog.h"

namespace {

TEST_F(FullDialog, FillsAndShowsEveryControl) {
    Open();
    for (const FullControl& control : kFull)
        EXPECT_EQ(control.id == kBox ? "" : Entries(control.id), control.entries) << control.id;
    EXPECT_EQ(Shown(), ShownAtFirst());
}

TEST_F(FullDialog, OffersNoProfilesThatTheContextLacks) {
    context.shortRgbLists = 1;
    Open();
    for (const int list : {1504, 1509, 1513})
        EXPECT_EQ(Entries(list), "Device RGB=0|sRGB=1");
    EXPECT_EQ(Entries(1592) + Entries(1524), kDestinations + kSimulations);
    context.shortRgbLists = 0;
    lists.rgbSources.entries = lists.destinations.entries = lists.simulations.entries = nullptr;
    Tell(WM_USER + 100);
    EXPECT_EQ(Entries(1509) + Entries(1584) + Entries(1524), kBuiltInRgb + "Automatic=0" + kSimuItems);
}

// A stored choice -> what it becomes, and which entry shows it.
struct Stored {
    int list, field, value;
    uint16_t record;
    const wchar_t* name; // of the profile in the record
    uint16_t becomes;
    const wchar_t* text; // that the record then holds; null: the record stays
    int selection;
};
// clang-format off
const Stored kStored[] = {
    {1504, 2514, 258,    2688, L"Scanner", 0,   L"Device RGB", 0},
    {1504, 2514, 255,    2688, L"Camera",  0,   L"Device RGB", 0},
    {1509, 2516, 0xFFFF, 2520, L"Camera",  0,   L"Device RGB", 0},
    {1513, 2518, 0x8100, 2856, L"Camera",  0,   L"Device RGB", 0}, // negative
    {1513, 2518, 256,    2856, L"Other",   256, nullptr,       16},
    {1592, 3024, 128,    3030, L"Press C", 0,   L"",           0},
    {1592, 3024, 128,    3030, L"",        0,   L"",           0},
    {1592, 3024, 0,      3030, L"Press A", 0,   nullptr,       0},
    {1599, 3026, 1,      3198, L"PRESS B", 1,   nullptr,       2},
    {1599, 3026, 0x8000, 3198, L"Press",   0,   L"",           0},
    {1584, 3028, 0xFFFF, 3366, L"pReSs A", 0xFFFF, nullptr,    1},
    {1524, 2166, 5,      2168, L"Sim A",   5,   nullptr,       5},
    {1524, 2166, 6,      2168, L"Sim A",   0,   L"",           0},
    {1524, 2166, 127,    2168, L"Sim A",   0,   L"",           0},
    {1524, 2166, 128,    2168, L"sim a",   128, nullptr,       6},
    {1524, 2166, 128,    2168, L"Sim AB",  0,   L"",           0},
    {1524, 2166, 129,    2168, L"Sim B",   0,   L"",           0},
    {1524, 2166, 65535,  2168, L"Sim B",   0,   L"",           0},
    {1627, 3536, 3,      0,    nullptr,    0,   nullptr,       0},
    {1627, 3536, 258,    0,    nullptr,    0,   nullptr,       0},
    {1627, 3536, 65535,  0,    nullptr,    0,   nullptr,       0},
};
// clang-format on

TEST_F(FullDialog, ChoicesThatAreNotOfferedBecomeTheFirst) {
    destinations.push_back(kPressB); // the first of a name counts
    for (const Stored& row : kStored) {
        SCOPED_TRACE(testing::Message() << row.list << ", value " << row.value << ", row " << &row - kStored);
        settings = FullSettings().U16(row.field, row.value);
        if (row.name != nullptr)
            settings.Wide(row.record + 82, row.name).U16(row.record + 82 + 2 * wcslen(row.name), 0);
        const RawBytes stored = settings;
        RawBytes wanted = stored;
        wanted.U16(row.field, row.becomes);
        if (row.text != nullptr)
            PutRecord(wanted, row.record, Profile(row.text, L"", 0));
        events.clear();
        Open();
        EXPECT_EQ(Selection(row.list), row.selection);
        ExpectSettings(wanted);
        ExpectSaved(stored);
        EXPECT_EQ(Events({"DoConstraints"}), "DoConstraints 0\n");
        Close();
    }
}

// A model whose automatic destination the module doesn't know: profiles stand first.
TEST_F(FullDialog, DestinationsWithoutTheAutomaticOne) {
    FindItem("Text_DestAuto")[4] = 0;
    settings.U16(3024, 0);
    Open();
    EXPECT_EQ(Selection(1592), -1);
    for (const int entry : {0, 1}) {
        RawBytes wanted = settings;
        PutRecord(wanted.U16(3024, 128), 3030, entry == 0 ? kPressA : kPressB);
        Choose(1592, entry);
        ExpectSettings(wanted);
        Tell(WM_USER + 100);
        EXPECT_EQ(Selection(1592), entry);
    }
}

TEST_F(FullDialog, ProfilesWithoutMemoryForTheirTextEndTheList) {
    Open();
    failingAllocation = 3; // after both of 1504
    Tell(WM_USER + 100);
    EXPECT_EQ(Entries(1504), kRgb);
    EXPECT_EQ(Entries(1599), "Automatic=0");
    EXPECT_EQ(Entries(1509), kRgb);
    failingAllocation = 4;
    Tell(WM_USER + 100);
    EXPECT_EQ(Entries(1599), "Automatic=0|Press A Built in=128");
    for (const auto& [entry, entries] :
         {std::pair(3, std::string("Device RGB=0|sRGB=1")), {17, kBuiltInRgb}}) {
        failingEntry = entry; // no room for it
        Tell(WM_USER + 100);
        EXPECT_EQ(Entries(1504), entries);
    }
}

TEST_F(FullDialog, TextsThatFillTheirFieldsStayInThem) {
    const std::wstring name(41, L'n'), qualifier(41, L'q');
    const RawBytes full = Profile(qualifier.c_str(), name.c_str(), 5);
    destinations = {Profile(L"", L"nnn", 5), full};
    uint8_t* const item = FindItem("Img_AdobeRGB1998");
    const std::wstring display(47, L'd');
    memcpy(item + 48, display.data(), 2 * display.size());
    Open();
    EXPECT_EQ(Entries(1599), "Automatic=0|nnn Flash memory=128|" + std::string(41, 'n') + " ("
                                 + std::string(41, 'q') + ") Flash memory=129");
    RawBytes wanted = settings;
    Choose(1599, 2);
    ExpectSettings(PutRecord(wanted.U16(3026, 128), 3198, full));
    Tell(WM_USER + 100);
    EXPECT_EQ(Selection(1599), 2);
    Choose(1504, 2);
    ExpectSettings(PutRecord(wanted, 2688, Profile(std::wstring(40, L'd').c_str(), L"", 0)));
}

TEST_F(FullDialog, OkWithoutSelections) {
    Open();
    for (const FullControl& control : kFull)
        if (control.id != kBox)
            Send(control.id, CB_SETCURSEL, static_cast<WPARAM>(-1));
    RawBytes wanted = FullSettings();
    for (const size_t item : {2153u, 2154u, 2155u, 2157u, 2158u, 2159u, 2161u, 2162u, 2163u})
        wanted.U8(item, 255);
    for (const size_t none : {2514u, 2516u, 2518u, 3536u})
        wanted.U16(none, 0xFFFF);
    for (const size_t first : {3024u, 3026u, 3028u, 2166u})
        wanted.U16(first, 0);
    for (const size_t record : {2520u, 2688u, 2856u, 3030u, 3198u, 3366u, 2168u})
        PutRecord(wanted, record, kNone);
    Command(IDOK);
    ExpectSettings(wanted);
}

// The printer's profiles may go while the lists still show them; what is behind a list's end isn't read.
TEST_F(FullDialog, ProfilesThatAreGoneAreNotRead) {
    const struct {
        int list, entry;
        size_t field, record;
    } cases[] = {{1504, 17, 2514, 2688}, {1599, 2, 3026, 3198}, {1592, 2, 3024, 3030}, {1524, 7, 2166, 2168}};
    Open();
    lists.rgbSources.count = lists.destinations.count = lists.simulations.count = 1;
    RawBytes wanted = settings;
    for (const auto& row : cases) {
        Choose(row.list, row.entry);
        const uint16_t value = NumberAt<uint16_t>(settings.bytes.data(), row.field);
        EXPECT_NE(value, 128) << "a profile, but none is remembered";
        PutRecord(wanted.U16(row.field, value), row.record, kNone);
    }
    ExpectSettings(wanted);
    context.profiles = nullptr;
    Choose(1509, 16);
    ExpectSettings(PutRecord(wanted.U16(2516, 256), 2520, kNone));
}

TEST_F(FullDialog, OtherDialogsAreNotHandled) {
    Open();
    events.clear();
    for (const uint32_t other : {0u, 126u, 127u, 129u, 155u, 157u, 0x10080u, 0xFFFFFFFFu})
        for (const UINT message : {WM_INITDIALOG, WM_COMMAND}) {
            int32_t handled = kUntouched;
            EXPECT_EQ(Ask(other, window, message, 1847, 0, &handled), (Answer{0, kUntouched})) << other;
        }
    EXPECT_TRUE(events.empty());
}

// Nothing is offered or stored, and those who don't ask whether a message is handled get its result.
TEST_F(FullDialog, AnswersWithoutAContext) {
    Open(false);
    EXPECT_EQ(initAnswer, (Answer{0, 1}));
    EXPECT_EQ(Entries(1524), kSimuItems);
    const RawBytes stored = settings;
    for (const FullControl& control : kFull)
        EXPECT_EQ(Command(control.id == kBox ? kBox : Chosen(control.id)), (Answer{control.result, 1}));
    const struct {
        UINT message;
        WPARAM wParam;
        Answer answer;
    } cases[] = {
        {WM_COMMAND, 1032, {0, 1}},
        {WM_COMMAND, 1393, {1, kUntouched}},
        {WM_COMMAND, IDOK, {1, 1}},
        {WM_COMMAND, IDCANCEL, {1, 1}},
        {WM_ACTIVATE, WA_ACTIVE, {0, kUntouched}},
        {WM_USER + 100, 0, {1, 1}},
        {WM_CLOSE, 0, {0, kUntouched}},
        {WM_DESTROY, 0, {0, 1}},
        {WM_DESTROY, 0, {0, 1}},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Tell(row.message, row.wParam), row.answer) << row.message;
        EXPECT_EQ(Ask(128, window, row.message, row.wParam, 0, nullptr).result, row.answer.result);
    }
    ExpectSettings(stored);
    EXPECT_EQ(uiFrees, 1) << "a module that is gone is not freed again";
}

// What the dialogs' own messages don't reach.
TEST(Controls, AreEnabledOnlyWhereTheyAreVisible) {
    HWND dialog = CreateWindowW(L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90, nullptr, nullptr,
                                nullptr, nullptr);
    HWND control = CreateWindowW(L"Button", L"", WS_CHILD, 0, 0, 20, 20, dialog, reinterpret_cast<HMENU>(7),
                                 nullptr, nullptr);
    const auto state = [control] {
        return std::pair(IsWindowVisible(control) != 0, IsWindowEnabled(control) != 0);
    };
    EnableDlgControl(dialog, 7, true);
    EXPECT_EQ(state(), std::pair(false, false));
    ShowDlgControl(dialog, 7, true);
    EXPECT_EQ(state(), std::pair(true, true));
    EnableDlgControl(dialog, 7, false);
    EXPECT_EQ(state(), std::pair(true, false));
    EnableDlgControl(dialog, 7, true);
    EXPECT_EQ(state(), std::pair(true, true));
    DestroyWindow(dialog);
}

} // namespace

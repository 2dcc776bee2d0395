// What the lists of dialog 128 offer and select, and what the settings become when they no longer offer a
// choice.
#include "full_dialog.h"

namespace {

TEST_F(FullDialog, FillsAndShowsEveryControlInOrder) {
    Open();
    for (const FullControl& control : kFull) {
        EXPECT_EQ(control.id == kBox ? "" : Entries(control.id), control.entries) << control.id;
        EXPECT_TRUE(control.id == kBox || Send(control.id, CB_GETITEMHEIGHT, 0) == 16) << control.id;
    }
    EXPECT_EQ(Shown(), ShownAtFirst());
    EXPECT_EQ(Events({"fill", "show"}), InOrder("fill", false) + InOrder("show", true));
    ExpectSettings(FullSettings());
    ExpectSaved(FullSettings());
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
    EXPECT_EQ(Entries(1509) + Entries(1584) + Entries(1524), kRgbItems + "Automatic=0" + kSimuItems);
    PassProfiles();
    context.profiles = nullptr;
    Tell(WM_USER + 100);
    EXPECT_EQ(Entries(1513) + Entries(1599) + Entries(1524), kRgbItems + "Automatic=0" + kSimuItems);
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

TEST_F(FullDialog, ItemsThatAreNotOfferedSelectNothing) {
    const uint16_t rows[][2] = {{1354, 2153}, {1335, 2155}, {1332, 2154}, {1353, 2157}, {1334, 2159},
                                {1330, 2158}, {1516, 2161}, {1519, 2163}, {1522, 2162}};
    for (const auto& [list, field] : rows)
        settings.U8(field, list == 1522 ? 5 : 4);
    settings.U8(3534, 2); // not 0: checked
    const RawBytes stored = settings;
    Open();
    for (const auto& [list, field] : rows)
        EXPECT_EQ(Selection(list), -1) << list;
    EXPECT_EQ(Send(kBox, BM_GETCHECK), BST_CHECKED);
    ExpectSettings(stored);
    constraints = [](uint32_t) { return 100; };
    Choose(1354, 1);
    EXPECT_EQ(Selection(1354), -1);
    Check(kBox, false);
    EXPECT_EQ(Send(kBox, BM_GETCHECK), BST_CHECKED);
    ExpectSettings(stored);
    Command(IDOK);
    for (const auto& row : rows)
        EXPECT_EQ(settings.bytes[row[1]], 255) << row[1];
}

TEST_F(FullDialog, FindsAProfileAtAnotherPosition) {
    Open();
    Choose(1592, 2);
    Close();
    std::swap(destinations[0], destinations[1]);
    std::swap(simulations[0], simulations[1]);
    destinations.push_back(kPressB); // the first of a name counts
    const RawBytes stored = settings;
    Open();
    EXPECT_EQ(Selection(1592), 1);
    EXPECT_EQ(Selection(1584), 2);
    EXPECT_EQ(Selection(1524), 6);
    ExpectSettings(stored);
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

} // namespace

// The full colour dialog on odd lists, without memory, without profiles and without a context.
#include "dialogs/color/color_driver.h"
#include "dialogs/shared/dialog_controls.h"

namespace {

TEST_F(FullDialog, OffersNoProfilesThatTheContextLacks) {
    context.shortRgbLists = 1;
    Open();
    EXPECT_EQ(Entries(1592) + Entries(1524), kDestinations + kSimulations);
    context.shortRgbLists = 0;
    lists.rgbSources.entries = lists.destinations.entries = lists.simulations.entries = nullptr;
    Deliver(WM_USER + 100);
    EXPECT_EQ(Entries(1509) + Entries(1584) + Entries(1524), kBuiltInRgb + "Automatic=0" + kSimuItems);
}

// In a model whose automatic destination is unknown to the module the profiles come first.
TEST_F(FullDialog, DestinationsWithoutTheAutomaticOne) {
    FindItem("Text_DestAuto")[4] = 0;
    settings.U16(3024, 0);
    Open();
    EXPECT_EQ(Shown(1592), -1);
    for (const int entry : {0, 1}) {
        RawBytes wanted = settings;
        PutRecord(wanted.U16(3024, 128), 3030, entry == 0 ? kPressA : kPressB);
        Choose(1592, entry);
        Expect(wanted);
        Deliver(WM_USER + 100);
        EXPECT_EQ(Shown(1592), entry);
    }
}

TEST_F(FullDialog, ListsEndWhereMemoryRunsOut) {
    Open();
    for (const auto& [allocation, entry, sources, outputs] : // the one that fails; what is listed
         {std::tuple(3, 0, kRgb, std::string("Automatic=0")),
          {4, 0, kRgb, "Automatic=0|Press A Built in=128"},
          {0, 3, "Device RGB=0|sRGB=1", kDestinations},
          {0, 17, kBuiltInRgb, kDestinations}}) {
        failingAllocation = allocation;
        failingEntry = entry;
        Deliver(WM_USER + 100);
        EXPECT_EQ(Entries(1504), sources);
        EXPECT_EQ(Entries(1599), outputs);
        EXPECT_EQ(Entries(1509), kRgb);
    }
}

TEST_F(FullDialog, TextsThatFillTheirFieldsStayInThem) {
    const RawBytes full = Profile(std::wstring(41, L'q').c_str(), std::wstring(41, L'n').c_str(), 5); // no terminators
    destinations = Profile(L"", L"nnn", 5).Append(full);
    memcpy(FindItem("Img_AdobeRGB1998") + 48, std::wstring(47, L'd').data(), 2 * 47);
    Open();
    EXPECT_EQ(Entries(1599), "Automatic=0|nnn Flash memory=128|" + std::string(41, 'n') + " (" + std::string(41, 'q')
                                 + ") Flash memory=129");
    RawBytes wanted = settings;
    Choose(1599, 2);
    Expect(PutRecord(wanted.U16(3026, 128), 3198, full));
    Deliver(WM_USER + 100);
    EXPECT_EQ(Shown(1599), 2);
    Choose(1504, 2);
    Expect(PutRecord(wanted, 2688, Profile(std::wstring(40, L'd').c_str(), L"", 0)));
}

// The printer can lose profiles while the lists show them. Nothing beyond the end of a list is read.
TEST_F(FullDialog, ProfilesThatAreGoneAreNotRead) {
    constexpr int kCases[][4] = {
        {1504, 17, 2514, 2688}, {1599, 2, 3026, 3198}, {1592, 2, 3024, 3030}, {1524, 7, 2166, 2168}};
    Open();
    lists.rgbSources.count = lists.destinations.count = lists.simulations.count = 1;
    RawBytes wanted = settings;
    for (const auto& [list, entry, field, record] : kCases) {
        Choose(list, entry);
        const uint16_t value = NumberAt<uint16_t>(settings.bytes.data(), field);
        EXPECT_NE(value, 128) << "the value of a profile without its record";
        PutRecord(wanted.U16(field, value), record, kNone);
    }
    Expect(wanted);
    context.profiles = nullptr;
    Choose(1509, 16);
    Expect(PutRecord(wanted.U16(2516, 256), 2520, kNone));
}

TEST_F(FullDialog, OtherDialogsAreNotHandled) {
    Open();
    events.clear();
    for (const uint32_t other : {0u, 126u, 127u, 129u, 155u, 157u, 0x10080u, 0xFFFFFFFFu})
        for (const UINT message : {WM_INITDIALOG, WM_COMMAND})
            EXPECT_EQ(DeliverTo(other, window, message, 1847), (Answer{0, kUntouched})) << other;
    EXPECT_TRUE(events.empty());
}

// Stores nothing, locks nothing, and returns the same results when no handled flag is passed.
TEST_F(FullDialog, AnswersWithoutAContext) {
    Open(false);
    EXPECT_EQ(initAnswer, (Answer{0, 1}));
    EXPECT_EQ(Entries(1524), kSimuItems);
    EXPECT_TRUE(IsWindowEnabled(Control(1354)));
    const std::tuple<UINT, WPARAM, Answer> cases[] = {
        {WM_COMMAND, Chosen(1504), {1, 1}}, {WM_COMMAND, Chosen(1592), {0, 1}},
        {WM_COMMAND, Chosen(1524), {0, 1}}, {WM_COMMAND, kBox, {0, 1}},
        {WM_COMMAND, 1032, {0, 1}},         {WM_COMMAND, 1393, {1, kUntouched}},
        {WM_COMMAND, IDOK, {1, 1}},         {WM_COMMAND, IDCANCEL, {1, 1}},
        {WM_USER + 100, 0, {1, 1}},         {WM_ACTIVATE, WA_ACTIVE, {0, kUntouched}},
        {WM_CLOSE, 0, {0, kUntouched}},     {WM_DESTROY, 0, {0, 1}},
    };
    for (const auto& [message, wParam, answer] : cases) {
        EXPECT_EQ(Deliver(message, wParam), answer) << message;
        EXPECT_EQ(DeliverTo(128, window, message, wParam, 0, false), (Answer{answer.first, kUntouched}));
    }
    Expect(OfferedSettings(dialog));
    EXPECT_EQ(uiFrees, 1) << "freed once";
}

// Linked in: the dialogs never enable a control.
TEST(Controls, OnlyVisibleOnesAreEnabled) {
    HWND dialog =
        CreateWindowW(L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90, nullptr, nullptr, nullptr, nullptr);
    HWND control =
        CreateWindowW(L"Button", L"", WS_CHILD, 0, 0, 20, 20, dialog, reinterpret_cast<HMENU>(7), nullptr, nullptr);
    const auto state = [control] { return std::pair(IsWindowVisible(control) != 0, IsWindowEnabled(control) != 0); };
    EnableDlgControl(dialog, 7, true);
    EXPECT_EQ(state(), std::pair(false, false));
    ShowDlgControl(dialog, 7, true);
    EnableDlgControl(dialog, 7, false);
    EXPECT_EQ(state(), std::pair(true, false));
    EnableDlgControl(dialog, 7, true);
    EXPECT_EQ(state(), std::pair(true, true));
    DestroyWindow(dialog);
}

} // namespace

// The tray-setting dialogs through the built module: how the button opens them, what they list, change and
// refuse, and how they end. The trays and their papers are those of the model file.
#include "support/live_objects.h"
#include "support/rounds.h"
#include "trays/tray_driver.h"

namespace {

// clang-format off
const std::set<std::string> kNoted = {
    "ReplaceDlgDispStringCmnItem", "ReplaceDlgDispString", "CreateToolWnd", "StoreStopIconRect", "DoConstraints",
    "DispHintControl", "fill", "show", "disable", "EndDialog", "WinHelp"};
// clang-format on

// One of the three kinds, by its model.
struct TrayDialogs : testing::TestWithParam<Kind>, Trays {
    TrayDialogs() : Trays(GetParam().model) {}

    // "disable 1860\ndisable 1862\n...": what is done to each of the kind's boxes.
    std::string InOrder(const std::string& action) const {
        std::string text;
        for (const int i : GetParam().attributes)
            text += action + " " + std::to_string(kAttributes[i].box) + "\n";
        return text;
    }
    static bool Has(ptrdiff_t attribute) {
        const std::vector<int>& own = GetParam().attributes;
        return std::count(own.begin(), own.end(), attribute) != 0;
    }
};
INSTANTIATE_TEST_SUITE_P(, TrayDialogs, testing::ValuesIn(kKinds));

TEST_P(TrayDialogs, AreRunByTheButtonWhichReportsOk) {
    const std::string run = "MyDialogBox " + std::to_string(GetParam().templateId) + "\n";
    for (const INT_PTR end : {INT_PTR{2}, INT_PTR{1}, INT_PTR{0}, INT_PTR{-1}}) {
        endCode = end;
        PressButton();
        EXPECT_EQ(Events({"MyDialogBox", "trays-changed"}), run + (end == 1 ? "trays-changed\n" : ""));
        Close();
    }
    const int loads = uiLoads;
    for (const WPARAM command : {WPARAM{1846}, WPARAM{MAKEWPARAM(1847, 1)}, 1847 | WPARAM{1} << 32})
        EXPECT_EQ(DeliverTo(156, page, WM_COMMAND, command), (Answer{0, kUntouched}));
    EXPECT_EQ(DeliverTo(156, page, WM_NOTIFY, 1847), (Answer{0, kUntouched}));
    PressButton(false);
    EXPECT_EQ(uiLoads, loads);
    endCode = 1;
    missing = {"MyDialogBox"};
    PressButton();
    missing.clear();
    hasUiModule = false;
    PressButton();
    EXPECT_EQ(Events({"MyDialogBox", "trays-changed"}), "");
}

TEST_P(TrayDialogs, OpenInOrderWithTheFirstTray) {
    RawBytes wanted = Keyed(records);
    constraints = [&](uint32_t) { // changes the settings that Cancel restores
        records.U16(36, 8);
        return 100;
    };
    wanted.U16(36, 8);
    PressButton();
    const std::string done = Events(kNoted);
    EXPECT_EQ(done.find("ReplaceDlgDispStringCmnItem Printer view 155\nReplaceDlgDispString Paper Source Settings\n"
                        "CreateToolWnd\nStoreStopIconRect\nDoConstraints 0\nDispHintControl 155\n"),
              0u)
        << done;
    EXPECT_NE(done.find(InOrder("fill") + InOrder("show")), std::string::npos) << done;
    EXPECT_EQ(done.find("disable"), std::string::npos);
    ExpectRecords(wanted);
    EXPECT_EQ(List(LVM_GETITEMCOUNT), 7);
    EXPECT_EQ(Row(), 0);
    EXPECT_EQ(Selections(GetParam()), GetParam().selections);
    EXPECT_EQ(RowText(0), std::wstring(L"Tray 1|A3|Portrait|Plain paper|") + GetParam().cells + L"0");
    EXPECT_EQ(RowText(6).substr(0, 27), L"Manual feed|A4|Portrait|Pla");
    EXPECT_EQ(Entries(1862).substr(0, 9), "Portrait=");
    Deliver(WM_COMMAND, IDCANCEL);
    ExpectRecords(wanted);
}

TEST_P(TrayDialogs, ChangesAreKeptOrRefused) {
    PressButton();
    SetWindowPos(Control(kList), nullptr, 0, 0, 300, 80, SWP_NOMOVE | SWP_NOZORDER); // too low for all rows
    for (const int row : {1, 6})
        for (const int i : GetParam().attributes)
            for (const int answer : {100, 101, 99, 102, 0x10064, 0}) {
                const Attribute& attribute = kAttributes[i];
                SCOPED_TRACE(testing::Message() << attribute.box << " in row " << row << ", answer " << answer);
                Select(row);
                const RawBytes before = records;
                RawBytes chosen = before;
                const size_t field = static_cast<size_t>(row) * kTraySize + attribute.offset;
                const auto value = static_cast<unsigned>(attribute.value);
                attribute.size == 1 ? chosen.U8(field, value) : chosen.U16(field, value);
                const int shown = Shown(attribute.box);
                constraints = [&](uint32_t) { return ExpectRecords(chosen), answer; };
                const bool isRefused = answer == 100 || answer == 101;
                EXPECT_EQ(Choose(attribute, attribute.chosen), 1);
                EXPECT_EQ(Checks(), Check(attribute.box, 156));
                ExpectRecords(isRefused ? before : chosen);
                EXPECT_EQ(Shown(attribute.box), isRefused ? shown : attribute.chosen);
                EXPECT_EQ(Row(), row);
                EXPECT_EQ(List(LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_FOCUSED), row) << "where the arrow keys go on";
                EXPECT_LT(row, List(LVM_GETTOPINDEX) + List(LVM_GETCOUNTPERPAGE));
                records = before;
            }
}

TEST_P(TrayDialogs, OkKeepsTheChangesAndCancelRestoresTheirOwn) {
    PressButton();
    const RawBytes opened = records;
    for (const int row : {0, 3}) {
        Select(row);
        for (const int i : GetParam().attributes)
            Choose(kAttributes[i], kAttributes[i].chosen);
    }
    const RawBytes changed = records;
    EXPECT_EQ(Deliver(WM_COMMAND, IDOK), 0);
    EXPECT_EQ(events.back(), "EndDialog 1");
    ExpectRecords(changed);
    RawBytes wanted = opened; // other attributes are left alone
    for (size_t i = 3; i < 6; ++i)
        if (const size_t field = 9 * kTraySize + kAttributes[i].offset; !Has(static_cast<ptrdiff_t>(i))) {
            wanted.U8(field, 0xA5);
            records.U8(field, 0xA5);
        }
    EXPECT_EQ(Deliver(WM_COMMAND, IDCANCEL), 1);
    EXPECT_EQ(events.back(), "EndDialog 2");
    ExpectRecords(wanted);
}

TEST_P(TrayDialogs, LockTheirControls) {
    context.changesAllowed = 0;
    PressButton();
    const std::string locks = "disable 1844\n" + InOrder("disable");
    EXPECT_EQ(Events({"disable"}), locks);
    Choose(kAttributes[0], 3);
    EXPECT_EQ(Events({"disable"}), locks);
    events.clear();
    EXPECT_EQ(Deliver(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1)), 0);
    EXPECT_EQ(Events({"disable"}), locks);
}

TEST_P(TrayDialogs, AnswerTheirOwnMessagesOnly) {
    PressButton();
    Select(2);
    const auto setSize = [this](unsigned value) { records.U16(2 * kTraySize + 36, value); };
    NMHDR note = {Control(kList), 4711, LVN_ITEMCHANGED};
    setSize(8);
    EXPECT_EQ(Deliver(WM_NOTIFY, 4711, reinterpret_cast<LPARAM>(&note)), 0);
    EXPECT_EQ(Shown(1860), 0);
    note.code = LVN_ITEMCHANGING;
    setSize(9);
    Deliver(WM_NOTIFY, kList, reinterpret_cast<LPARAM>(&note));
    EXPECT_EQ(Shown(1860), 0);
    events.clear();
    Deliver(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 1));
    EXPECT_EQ(Events(kNoted), "");
    Deliver(WM_ACTIVATE, WA_ACTIVE);
    EXPECT_EQ(Checks(), Check(0, 155));
    EXPECT_EQ(Shown(1860), 1);

    events.clear();
    HELPINFO info = {};
    info.hItemHandle = Control(1003);
    EXPECT_EQ(Deliver(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), 0);
    EXPECT_EQ(helpTable, GetParam().help);
    EXPECT_EQ(Deliver(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Control(1860))), 0);
    EXPECT_EQ(Deliver(WM_COMMAND, IDHELP), 0);
    EXPECT_EQ(Events({"WinHelp"}), "WinHelp 1003 12\nWinHelp 1860 10\nWinHelp 0 1 7300\n");

    MEASUREITEMSTRUCT item = {};
    for (const Attribute& attribute : kAttributes) // every kind measures the boxes of all
        EXPECT_EQ(Deliver(WM_COMMAND, Chosen(static_cast<WPARAM>(attribute.box))), Has(&attribute - kAttributes));
    for (const int control : {1860, 1862, 1003, 1086, 1091, 1094, kList, 1845}) {
        item.CtlID = static_cast<UINT>(control);
        item.itemHeight = 3;
        EXPECT_EQ(Deliver(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item)), control != 1845);
        EXPECT_EQ(item.itemHeight, control != 1845 ? 16u : 3u);
    }
    events.clear();
    for (const WPARAM command :
         {WPARAM{1860}, WPARAM{MAKEWPARAM(1860, CBN_SELCHANGE)}, WPARAM{MAKEWPARAM(IDCANCEL, 1)}})
        EXPECT_EQ(Deliver(WM_COMMAND, command), 0);
    EXPECT_EQ(Deliver(WM_USER + 100), 0);
    List(LVM_DELETEALLITEMS); // without a row nothing is stored or checked
    const RawBytes before = records;
    EXPECT_EQ(Choose(kAttributes[0], 2), 1);
    EXPECT_EQ(Events(kNoted), "");
    ExpectRecords(before);
}

// A column is 20 pixels wider than its title and margins; the last one takes the rest.
TEST(TrayList, ColumnsFollowTheModel) {
    const std::wstring titles[] = {L"Paper source", L"Paper size",   L"Orientation", L"Paper type",
                                   L"Paper weight", L"Paper colour", L"Holes"};
    const std::tuple<const wchar_t*, std::vector<int>, bool> kModels[] = {
        // whether the last column takes the rest
        {L"", {0, 1, 2, 3, 4, 5, 6}, true},
        {L"type2", {0, 1, 2, 3, 5, 6}, true},
        {L"type3", {0, 1, 2, 3}, true},
        {L"plain_paper", {0, 1, 2, 3}, false},
    };
    for (const auto& [model, columns, takesRest] : kModels) {
        Trays dialog(model);
        dialog.PressButton();
        EXPECT_EQ(GetWindowLongW(dialog.Header(), GWL_STYLE) & HDS_BUTTONS, 0);
        const LRESULT margin = SendMessageW(dialog.Header(), HDM_GETBITMAPMARGIN, 0, 0);
        RECT client = {};
        GetClientRect(dialog.Control(kList), &client);
        ASSERT_EQ(dialog.ColumnCount(), static_cast<int>(columns.size()));
        int left = 0;
        for (size_t i = 0; i < columns.size(); ++i) {
            wchar_t title[99] = L"";
            LVCOLUMNW column = {LVCF_TEXT | LVCF_WIDTH | LVCF_FMT, 0, 0, title, 99, 0, 0, 0, 0, 0, 0};
            dialog.List(LVM_GETCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
            EXPECT_EQ(title, titles[columns[i]]);
            EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_LEFT);
            const LRESULT text = dialog.List(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(title));
            const bool isRest = takesRest && i + 1 == columns.size();
            EXPECT_EQ(column.cx, isRest ? client.right - left : text + 2 * margin + 20) << i;
            left += column.cx;
        }
    }
}

TEST(TrayModel, HidesWhatTheModelLacks) {
    Trays dialog(L"plain_paper");
    dialog.PressButton();
    for (const Attribute& attribute : kAttributes)
        for (const int control : {attribute.box, attribute.label}) {
            const bool isShown = &attribute - kAttributes < 3;
            EXPECT_EQ((GetWindowLongW(dialog.Control(control), GWL_STYLE) & WS_VISIBLE) != 0, isShown) << control;
            EXPECT_EQ(IsWindowEnabled(dialog.Control(control)) != FALSE, isShown) << control;
        }
    // The automatic source is found by its bin number. Of two sizes with one value cells show the last name.
    EXPECT_EQ(dialog.List(LVM_GETITEMCOUNT), 10) << "as many trays as there are records";
    EXPECT_EQ(dialog.RowText(0), L"Auto|A5 too|Portrait|Plain paper|0");
    EXPECT_EQ(dialog.RowText(2), L"Tray 2 of thirty-one characters|A5 too|Portrait|Plain paper|2");
    EXPECT_EQ(dialog.Cell(6, 0), L"Manual feed");
    EXPECT_STREQ(reinterpret_cast<char*>(&dialog.records.bytes[6 * kTraySize]), "InTrayManual");
    EXPECT_EQ(dialog.Shown(1860), 1) << "boxes show the first of two sizes with one value";
}

struct TrayDialog : testing::Test, Trays {};

TEST_F(TrayDialog, ValuesWithoutAnEntryShowNothing) {
    records.U16(36, 40000).U16(42, 0xFFFF).U8(46, 200).U16(48 + 38, 3).U8(48 + 46, 255);
    PressButton();
    EXPECT_EQ(RowText(0), L"Tray 1||Portrait|Plain paper|Unknown|Other colour||0");
    EXPECT_EQ(Selections(kKinds[0]), (std::vector{-1, 0, 0, 6, 5, -1}));
    Select(1);
    EXPECT_EQ(RowText(1).substr(0, 10), L"Tray 2|A4|");
    EXPECT_EQ(Shown(1094), 2) << "255 is -1, the unknown entry";
    EXPECT_EQ(Shown(1862), -1);
    const RawBytes before = records;
    Choose(kAttributes[1], -1); // stores nothing but does the rest
    ExpectRecords(before);
    EXPECT_EQ(Checks(), Check(1862, 156));
}

TEST_F(TrayDialog, WorksWithoutCallbacksAndRecords) {
    missing = {"GetImgResInst", "CreateToolWnd", "StoreStopIconRect", "DoConstraints", "DispHintControl"};
    PressButton();
    EXPECT_EQ(List(LVM_GETIMAGELIST, LVSIL_SMALL), 0);
    Choose(kAttributes[0], 0);
    EXPECT_EQ(records.bytes[36], 8);
    Close();
    context.trays = nullptr;
    PressButton();
    EXPECT_EQ(List(LVM_GETITEMCOUNT), 0);
    EXPECT_EQ(Choose(kAttributes[0], 0), 1);
    EXPECT_EQ(Deliver(WM_COMMAND, IDCANCEL), 1);
    Close();
    EXPECT_EQ(procedure(nullptr, WM_DESTROY, 0, 0), 0);
}

int failingCall; // of those that make the list of icons: the n-th from now on

TEST_F(TrayDialog, HasBothIconsOrNone) {
    const PatchedImport failing[] = {
        {module.handle, ImageList_Create,
         +[](int width, int height, UINT flags, int count, int growth) {
             return failingCall-- == 1 ? nullptr : ImageList_Create(width, height, flags, count, growth);
         }},
        {module.handle, LoadImageW,
         +[](HINSTANCE library, const wchar_t* name, UINT type, int width, int height, UINT flags) {
             return failingCall-- == 1 ? nullptr : LoadImageW(library, name, type, width, height, flags);
         }},
        {module.handle, ImageList_ReplaceIcon, +[](HIMAGELIST images, int at, HICON icon) {
             return failingCall-- == 1 ? -1 : ImageList_ReplaceIcon(images, at, icon);
         }}};
    std::optional<LiveObjects> before;
    for (int call = 8; call > 0; --call) { // there are five calls
        failingCall = call;
        PressButton();
        EXPECT_EQ(List(LVM_GETIMAGELIST, LVSIL_SMALL) != 0, call > 5) << call;
        Close();
        if (call == 6)
            before = CountLiveObjects();
    }
    EXPECT_TRUE(HasLeftNothing(*before, 5));
}

TEST_F(TrayDialog, LeavesNothingBehind) {
    usesOwnCallbacks = true;
    std::optional<LiveObjects> before;
    const int rounds = Rounds(23, 203);
    for (int i = 0; i < rounds; ++i) {
        PressButton();
        const HWND list = Control(kList);
        ShowWindow(window, i < 5 ? SW_SHOWNOACTIVATE : SW_HIDE);
        UpdateWindow(window);
        Select(i % 7);
        Choose(kAttributes[0], i % 5);
        const LONG_PTR own = GetClassLongPtrW(list, GCLP_WNDPROC);
        EXPECT_NE(GetWindowLongPtrW(list, GWLP_WNDPROC), own);
        Deliver(WM_DESTROY); // the end of the window sends it again
        EXPECT_EQ(GetWindowLongPtrW(list, GWLP_WNDPROC), own);
        EXPECT_EQ(List(LVM_GETIMAGELIST, LVSIL_SMALL), 0);
        Close();
        if (i == 4) // the system keeps objects of the first dialogs and of the first hint that are shown
            before = CountLiveObjects();
    }
    EXPECT_TRUE(HasLeftNothing(*before, rounds - 5));
}

} // namespace

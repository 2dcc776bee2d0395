// The tray-setting dialogs: how the button opens them, what they list, what changes and is refused, how they
// end. The trays and lists are those of the model file.
#include "dialogs/live_objects.h"
#include "support/rounds.h"
#include "trays/tray_driver.h"

namespace {

// clang-format off
const std::set<std::string> kCalls = {
    "ReplaceDlgDispStringCmnItem", "ReplaceDlgDispString", "CreateToolWnd", "StoreStopIconRect",
    "DoConstraints", "DispHintControl", "fill", "show", "disable", "EndDialog", "WinHelp",
};
// clang-format on

TEST(TrayButton, RunsTheKindOfTheModelAndTellsOfItsOk) {
    for (const Kind& kind : kKinds) {
        Trays dialog(kind.model);
        for (const INT_PTR end : {INT_PTR{2}, INT_PTR{1}, INT_PTR{0}, INT_PTR{-1}}) {
            dialog.endCode = end;
            dialog.PressButton();
            EXPECT_EQ(dialog.Events({"MyDialogBox", "trays-changed"}),
                      "MyDialogBox " + std::to_string(kind.templateId)
                          + (end == 1 ? "\ntrays-changed\n" : "\n"));
            dialog.Close();
        }
        const int loads = dialog.uiLoads;
        int32_t handled = kUntouched;
        for (const auto& [message, wParam] : {std::pair(UINT{WM_COMMAND}, WPARAM{1846}), // not its own click
                                              {WM_COMMAND, MAKEWPARAM(1847, 1)},
                                              {WM_COMMAND, 1847 | WPARAM{1} << 32},
                                              {WM_NOTIFY, 1847}})
            EXPECT_EQ(dialog.DeliverTo(156, dialog.page, message, wParam, 0, &handled),
                      (Answer{0, kUntouched}));
        dialog.PressButton(false);
        EXPECT_EQ(dialog.uiLoads, loads);
        dialog.endCode = 1;
        dialog.missing = {"MyDialogBox"};
        dialog.PressButton();
        dialog.missing.clear();
        dialog.hasUiModule = false;
        dialog.PressButton();
        EXPECT_EQ(dialog.Events({"MyDialogBox", "trays-changed"}), "");
    }
}

TEST(TrayDialogs, OpenInOrderWithTheFirstTray) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.templateId);
        Trays dialog(kind.model);
        RawBytes wanted = Keyed(dialog.records);
        dialog.constraints = [&](uint32_t) { // what it changes is what Cancel brings back
            dialog.records.U16(36, 8);
            return 100;
        };
        wanted.U16(36, 8);
        dialog.PressButton();
        std::string fills, shows;
        for (const int i : kind.attributes) {
            fills += "fill " + std::to_string(kAttributes[i].box) + "\n";
            shows += "show " + std::to_string(kAttributes[i].box) + "\n";
        }
        const std::string events = dialog.Events(kCalls);
        EXPECT_EQ(
            events.find(
                "ReplaceDlgDispStringCmnItem Printer view 155\nReplaceDlgDispString Paper Source Settings\n"
                "CreateToolWnd\nStoreStopIconRect\nDoConstraints 0\nDispHintControl 155\n"),
            0u)
            << events;
        EXPECT_NE(events.find(fills + shows), std::string::npos) << events;
        EXPECT_EQ(events.find("disable"), std::string::npos);
        EXPECT_EQ(Differences(dialog.records.bytes.data(), wanted), "");
        EXPECT_EQ(dialog.List(LVM_GETITEMCOUNT), 7);
        EXPECT_EQ(dialog.Row(), 0);
        EXPECT_EQ(dialog.Selections(kind), kind.attributes.size() == 6   ? (std::vector{0, 0, 0, 0, 5, 0})
                                           : kind.attributes.size() == 5 ? (std::vector{0, 0, 0, 5, 0})
                                                                         : (std::vector{0, 0, 0}));
        const std::wstring tail[] = {L"60-90 g/m\u00b2|Other colour|Not punched|",
                                     L"Other colour|Not punched|", L""};
        EXPECT_EQ(dialog.RowText(0), L"Tray 1|A3|Portrait|Plain paper|" + tail[&kind - kKinds] + L"0");
        EXPECT_EQ(dialog.RowText(6).substr(0, 27), L"Manual feed|A4|Portrait|Pla");
        EXPECT_EQ(dialog.Entries(1862).substr(0, 9), "Portrait=");
        dialog.Deliver(WM_COMMAND, IDCANCEL);
        EXPECT_EQ(Differences(dialog.records.bytes.data(), wanted), "");
    }
}

// Titles and 20 pixels more; the last column has the rest.
TEST(TrayDialogs, ColumnsFollowTheModel) {
    const std::wstring titles[] = {L"Paper source", L"Paper size",   L"Orientation", L"Paper type",
                                   L"Paper weight", L"Paper colour", L"Holes"};
    const struct {
        const wchar_t* model;
        std::vector<int> columns;
        bool takesRest;
    } cases[] = {
        {L"", {0, 1, 2, 3, 4, 5, 6}, true},
        {L"type2", {0, 1, 2, 3, 5, 6}, true},
        {L"type3", {0, 1, 2, 3}, true},
        {L"plain_paper", {0, 1, 2, 3}, false},
    };
    for (const auto& row : cases) {
        Trays dialog(row.model);
        dialog.PressButton();
        EXPECT_EQ(GetWindowLongW(dialog.Header(), GWL_STYLE) & HDS_BUTTONS, 0);
        const auto margin = static_cast<int>(SendMessageW(dialog.Header(), HDM_GETBITMAPMARGIN, 0, 0));
        RECT client = {};
        GetClientRect(dialog.Control(kList), &client);
        ASSERT_EQ(dialog.ColumnCount(), static_cast<int>(row.columns.size()));
        int left = 0;
        for (size_t i = 0; i < row.columns.size(); ++i) {
            wchar_t title[99] = L"";
            LVCOLUMNW column = {};
            column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
            column.pszText = title;
            column.cchTextMax = 99;
            dialog.List(LVM_GETCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
            EXPECT_EQ(title, titles[row.columns[i]]);
            EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_LEFT);
            const auto text =
                static_cast<int>(dialog.List(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(title)));
            const bool isRest = row.takesRest && i + 1 == row.columns.size();
            EXPECT_EQ(column.cx, isRest ? client.right - left : text + 2 * margin + 20) << i;
            left += column.cx;
        }
    }
}

TEST(TrayDialogs, HideWhatTheModelLacks) {
    Trays dialog(L"plain_paper");
    dialog.PressButton();
    for (const Attribute& attribute : kAttributes)
        for (const int control : {attribute.box, attribute.label}) {
            const bool isShown = &attribute - kAttributes < 3;
            EXPECT_EQ((GetWindowLongW(dialog.Control(control), GWL_STYLE) & WS_VISIBLE) != 0, isShown)
                << control;
            EXPECT_EQ(IsWindowEnabled(dialog.Control(control)) != FALSE, isShown) << control;
        }
    // The automatic source is whichever has its bin number; of two sizes with one value cells show the last.
    EXPECT_EQ(dialog.List(LVM_GETITEMCOUNT), 10) << "as many trays as there are records";
    EXPECT_EQ(dialog.RowText(0), L"Auto|A5 too|Portrait|Plain paper|0");
    EXPECT_EQ(dialog.RowText(2), L"Tray 2 of thirty-one characters|A5 too|Portrait|Plain paper|2");
    EXPECT_EQ(dialog.Cell(6, 0), L"Manual feed");
    EXPECT_STREQ(reinterpret_cast<char*>(&dialog.records.bytes[6 * kTraySize]), "InTrayManual");
    EXPECT_EQ(dialog.Shown(1860), 1) << "of two sizes with one value boxes show the first";
}

TEST(TrayDialogs, ChangesAreKeptOrRefused) {
    for (const Kind& kind : kKinds) {
        Trays dialog(kind.model);
        dialog.PressButton();
        SetWindowPos(dialog.Control(kList), nullptr, 0, 0, 300, 80, SWP_NOMOVE | SWP_NOZORDER); // some rows
        for (const int row : {1, 6})
            for (const int i : kind.attributes)
                for (const int answer : {100, 101, 99, 102, 0x10064, 0}) {
                    const Attribute& attribute = kAttributes[i];
                    SCOPED_TRACE(testing::Message()
                                 << attribute.box << " in row " << row << ", answer " << answer);
                    dialog.Select(row);
                    const RawBytes before = dialog.records;
                    RawBytes chosen = before;
                    const size_t field = static_cast<size_t>(row) * kTraySize + attribute.offset;
                    attribute.size == 1 ? chosen.U8(field, static_cast<unsigned>(attribute.value))
                                        : chosen.U16(field, static_cast<unsigned>(attribute.value));
                    const int shown = dialog.Shown(attribute.box);
                    dialog.constraints = [&](uint32_t) {
                        EXPECT_EQ(Differences(dialog.records.bytes.data(), chosen), "");
                        return answer;
                    };
                    const bool isRefused = answer == 100 || answer == 101;
                    EXPECT_EQ(dialog.Choose(attribute, attribute.chosen), 1);
                    EXPECT_EQ(dialog.Events({"DoConstraints", "DispHintControl"}),
                              "DoConstraints " + std::to_string(attribute.box) + "\nDispHintControl 156\n");
                    EXPECT_EQ(Differences(dialog.records.bytes.data(), isRefused ? before : chosen), "");
                    EXPECT_EQ(dialog.Shown(attribute.box), isRefused ? shown : attribute.chosen);
                    EXPECT_EQ(dialog.Row(), row);
                    EXPECT_LT(row, dialog.List(LVM_GETTOPINDEX) + dialog.List(LVM_GETCOUNTPERPAGE));
                    dialog.records = before;
                }
    }
}

TEST(TrayDialogs, ValuesWithoutAnEntryShowNothing) {
    Trays dialog;
    dialog.records.U16(36, 40000).U16(42, 0xFFFF).U8(46, 200).U16(48 + 38, 3).U8(48 + 46, 255);
    dialog.PressButton();
    EXPECT_EQ(dialog.RowText(0), L"Tray 1||Portrait|Plain paper|Unknown|Other colour||0");
    EXPECT_EQ(dialog.Selections(kKinds[0]), (std::vector{-1, 0, 0, 6, 5, -1}));
    dialog.Select(1);
    EXPECT_EQ(dialog.RowText(1).substr(0, 10), L"Tray 2|A4|");
    EXPECT_EQ(dialog.Shown(1094), 2) << "255 is -1, the unknown entry";
    EXPECT_EQ(dialog.Shown(1862), -1);
    const RawBytes before = dialog.records;
    dialog.Choose(kAttributes[1], -1); // nothing is stored, but all else is done
    EXPECT_EQ(Differences(dialog.records.bytes.data(), before), "");
    EXPECT_EQ(dialog.Events({"DoConstraints", "DispHintControl"}),
              "DoConstraints 1862\nDispHintControl 156\n");
}

TEST(TrayDialogs, EndWithTheirCodes) {
    for (const Kind& kind : kKinds) {
        Trays dialog(kind.model);
        dialog.PressButton();
        const RawBytes opened = dialog.records;
        for (const int row : {0, 3}) {
            dialog.Select(row);
            for (const int i : kind.attributes)
                dialog.Choose(kAttributes[i], kAttributes[i].chosen);
        }
        // What is not the kind's own stays, also through Cancel.
        for (size_t i = 3; i < 6; ++i)
            if (std::count(kind.attributes.begin(), kind.attributes.end(), static_cast<int>(i)) == 0)
                dialog.records.U8(9 * kTraySize + kAttributes[i].offset, 0xA5);
        const RawBytes changed = dialog.records;
        dialog.events.clear();
        EXPECT_EQ(dialog.Deliver(WM_COMMAND, IDOK), 0);
        EXPECT_EQ(Differences(dialog.records.bytes.data(), changed), "");
        EXPECT_EQ(dialog.Deliver(WM_COMMAND, IDCANCEL), 1);
        RawBytes wanted = opened;
        for (size_t i = 3; i < 6; ++i)
            wanted.U8(9 * kTraySize + kAttributes[i].offset,
                      changed.bytes[9 * kTraySize + kAttributes[i].offset]);
        EXPECT_EQ(Differences(dialog.records.bytes.data(), wanted), "");
        EXPECT_EQ(dialog.Events({"EndDialog"}), "EndDialog 1\nEndDialog 2\n");
    }
}

TEST(TrayDialogs, LockTheirControls) {
    for (const Kind& kind : kKinds) {
        Trays dialog(kind.model);
        dialog.context.changesAllowed = 0;
        dialog.PressButton();
        std::string locks = "disable 1844\n";
        for (const int i : kind.attributes)
            locks += "disable " + std::to_string(kAttributes[i].box) + "\n";
        EXPECT_EQ(dialog.Events({"disable"}), locks);
        dialog.Choose(kAttributes[0], 3);
        EXPECT_EQ(dialog.Events({"disable"}), locks);
        dialog.events.clear();
        EXPECT_EQ(dialog.Deliver(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1)), 0);
        EXPECT_EQ(dialog.Events({"disable"}), locks);
    }
}

TEST(TrayDialogs, Messages) {
    for (const Kind& kind : kKinds) {
        Trays dialog(kind.model);
        dialog.PressButton();
        dialog.Select(2);
        dialog.events.clear();
        dialog.records.U16(2 * kTraySize + 36, 8); // from outside
        NMHDR note = {dialog.Control(kList), 4711, LVN_ITEMCHANGED};
        EXPECT_EQ(dialog.Deliver(WM_NOTIFY, 4711, reinterpret_cast<LPARAM>(&note)), 0);
        EXPECT_EQ(dialog.Shown(1860), 0);
        note.code = LVN_ITEMCHANGING;
        dialog.records.U16(2 * kTraySize + 36, 9);
        dialog.Deliver(WM_NOTIFY, kList, reinterpret_cast<LPARAM>(&note));
        EXPECT_EQ(dialog.Shown(1860), 0);
        dialog.events.clear();
        dialog.Deliver(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 1));
        EXPECT_EQ(dialog.Events(kCalls), "");
        dialog.Deliver(WM_ACTIVATE, WA_ACTIVE);
        EXPECT_EQ(dialog.Events({"DoConstraints", "DispHintControl"}),
                  "DoConstraints 0\nDispHintControl 155\n");
        EXPECT_EQ(dialog.Shown(1860), 1);

        dialog.events.clear();
        std::vector<uint32_t> help = kHelp;
        help.insert(help.end(), kind.help.begin(), kind.help.end());
        help.insert(help.end(), {0, 0});
        HELPINFO info = {};
        info.hItemHandle = dialog.Control(1003);
        EXPECT_EQ(dialog.Deliver(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), 0);
        EXPECT_EQ(dialog.helpTable, help);
        EXPECT_EQ(dialog.Deliver(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(dialog.Control(1860))), 0);
        EXPECT_EQ(dialog.Deliver(WM_COMMAND, IDHELP), 0);
        EXPECT_EQ(dialog.Events({"WinHelp"}), "WinHelp 1003 12\nWinHelp 1860 10\nWinHelp 0 1 7300\n");

        dialog.events.clear();
        for (const Attribute& attribute : kAttributes) { // of the kind, or of another
            const bool isOwn =
                std::count(kind.attributes.begin(), kind.attributes.end(), &attribute - kAttributes);
            EXPECT_EQ(dialog.Deliver(WM_COMMAND, Chosen(static_cast<WPARAM>(attribute.box))), isOwn);
            MEASUREITEMSTRUCT item = {ODT_COMBOBOX, static_cast<UINT>(attribute.box), 0, 0, 3, 0};
            EXPECT_EQ(dialog.Deliver(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item)), 1);
            EXPECT_EQ(item.itemHeight, 16u);
        }
        MEASUREITEMSTRUCT item = {ODT_LISTVIEW, kList, 0, 0, 3, 0};
        EXPECT_EQ(dialog.Deliver(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item)), 1);
        EXPECT_EQ(item.itemHeight, 16u);
        dialog.List(LVM_DELETEALLITEMS); // no row: nothing is stored or asked
        dialog.constraints = [](uint32_t) { return 0; };
        const RawBytes before = dialog.records;
        EXPECT_EQ(dialog.Choose(kAttributes[0], 2), 1);
        EXPECT_EQ(dialog.Events(kCalls), "");
        EXPECT_EQ(Differences(dialog.records.bytes.data(), before), "");
    }
    Trays dialog; // what none of them handles
    dialog.PressButton();
    MEASUREITEMSTRUCT item = {ODT_LISTVIEW, 1845, 0, 0, 3, 0};
    EXPECT_EQ(dialog.Deliver(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item)), 0);
    for (const WPARAM command :
         {WPARAM{1860}, WPARAM{MAKEWPARAM(1860, CBN_SELCHANGE)}, WPARAM{MAKEWPARAM(IDCANCEL, 1)}})
        EXPECT_EQ(dialog.Deliver(WM_COMMAND, command), 0);
    EXPECT_EQ(dialog.Deliver(WM_USER + 100), 0);
    EXPECT_EQ(dialog.Events({"EndDialog"}), "");
}

TEST(TrayDialogs, WorkWithWhatThereIs) {
    Trays dialog;
    dialog.missing = {"GetImgResInst", "CreateToolWnd", "StoreStopIconRect", "DoConstraints",
                      "DispHintControl"};
    dialog.PressButton();
    EXPECT_EQ(dialog.List(LVM_GETIMAGELIST, LVSIL_SMALL), 0);
    dialog.Choose(kAttributes[0], 0);
    EXPECT_EQ(dialog.records.bytes[36], 8);
    dialog.Close();
    dialog.context.trays = nullptr;
    dialog.PressButton();
    EXPECT_EQ(dialog.List(LVM_GETITEMCOUNT), 0);
    EXPECT_EQ(dialog.Choose(kAttributes[0], 0), 1);
    EXPECT_EQ(dialog.Deliver(WM_COMMAND, IDCANCEL), 1);
    const DLGPROC procedure = dialog.procedure;
    dialog.Close();
    EXPECT_EQ(procedure(nullptr, WM_DESTROY, 0, 0), 0);
}

// The n-th from now on of the calls that make the list of icons fails.
int failingCall;
HIMAGELIST WINAPI CreateList(int width, int height, UINT flags, int count, int growth) {
    return failingCall-- == 1 ? nullptr : ImageList_Create(width, height, flags, count, growth);
}
HANDLE WINAPI LoadOne(HINSTANCE library, const wchar_t* name, UINT type, int width, int height, UINT flags) {
    return failingCall-- == 1 ? nullptr : LoadImageW(library, name, type, width, height, flags);
}
int WINAPI AddIcon(HIMAGELIST images, int at, HICON icon) {
    return failingCall-- == 1 ? -1 : ImageList_ReplaceIcon(images, at, icon);
}

TEST(TrayDialogs, HaveBothIconsOrNone) {
    Trays dialog;
    const PatchedImport patches[] = {{dialog.module.handle, ImageList_Create, CreateList},
                                     {dialog.module.handle, LoadImageW, LoadOne},
                                     {dialog.module.handle, ImageList_ReplaceIcon, AddIcon}};
    std::optional<LiveObjects> before;
    for (int call = 8; call > 0; --call) { // calls beyond the fifth do not come, so none fails
        failingCall = call;
        dialog.PressButton();
        EXPECT_EQ(dialog.List(LVM_GETIMAGELIST, LVSIL_SMALL) != 0, call > 5) << call;
        dialog.Close();
        if (call == 6)
            before = CountLiveObjects();
    }
    EXPECT_EQ(CountLiveObjects(), *before);
}

TEST(TrayDialogs, LeaveNothingBehind) {
    Trays dialog;
    dialog.usesOwnCallbacks = true;
    std::optional<LiveObjects> before;
    for (int i = 0, rounds = Rounds(23, 203); i < rounds; ++i) {
        dialog.PressButton();
        const HWND list = dialog.Control(kList);
        ShowWindow(dialog.window, i < 5 ? SW_SHOWNOACTIVATE : SW_HIDE);
        UpdateWindow(dialog.window);
        dialog.Select(i % 7);
        dialog.Choose(kAttributes[0], i % 5);
        const LONG_PTR own = GetClassLongPtrW(list, GCLP_WNDPROC);
        EXPECT_NE(GetWindowLongPtrW(list, GWLP_WNDPROC), own);
        dialog.Deliver(WM_DESTROY); // once more by the window's end
        EXPECT_EQ(GetWindowLongPtrW(list, GWLP_WNDPROC), own);
        EXPECT_EQ(dialog.List(LVM_GETIMAGELIST, LVSIL_SMALL), 0);
        dialog.Close();
        if (i == 2)
            before = CountLiveObjects();
    }
    EXPECT_EQ(CountLiveObjects(), *before);
}

} // namespace

// The Printer page in this process, on a screen and with simulated printers: keys, the course of a query, what it
// shows afterwards and what is kept.
#include "support/wine.h"
#include "tools/workbench/workbench_run.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/picture.h"
#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/device_job.h"
#include "workbench/property_sheet/page_driver.h"
#include "workbench/property_sheet/page_ids.h"

#include <algorithm>
#include <set>
#include <thread>

#include <commctrl.h>

namespace {

constexpr DWORD kPrinterWait = 60000; // milliseconds

const FamilyFiles& PrinterFamily() {
    static const FamilyFiles family = OpenFamilyFiles({});
    return family;
}

using Cells = std::vector<std::string>;

// The rows of a list view, with " | " between their cells.
Cells RowsOf(HWND list) {
    Cells rows(static_cast<size_t>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)));
    for (size_t i = 0; i < rows.size(); ++i)
        for (int column = 0; column < 2; ++column) {
            wchar_t text[256] = L"";
            LVITEMW item = {};
            item.iSubItem = column;
            item.pszText = text;
            item.cchTextMax = static_cast<int>(std::size(text));
            SendMessageW(list, LVM_GETITEMTEXTW, i, reinterpret_cast<LPARAM>(&item));
            rows[i] += (column == 0 ? "" : " | ") + Utf8(text);
        }
    return rows;
}

// The last search.
Cells searched; // rows
std::string searchStatus;

struct PrinterSheet : testing::Test {
    PrinterSheet() { state.user = &user; }
    ~PrinterSheet() override {
        while (IsAnyJobRunning()) // stopped ones, which would go on in the next test
            Sleep(10);
    }

    void Start(const std::string& address) const {
        driver.SetText(ID_ADDRESS, address);
        driver.Click(ID_QUERY);
    }

    // Queries a printer and returns the status.
    std::string Query(const std::string& address) const {
        Start(address);
        driver.WaitUntil([&] { return !state.isQuerying; }, kPrinterWait);
        return driver.Text(ID_STATUS);
    }

    // As the timer does. Returns after the answer.
    void Refresh() {
        state.reportedOn.clear();
        SendMessageW(sheet.CurrentPage(), WM_TIMER, 1, 0);
        driver.WaitUntil([&] { return !state.reportedOn.empty(); }, kPrinterWait);
    }

    // A key message to the control with the focus.
    void Press(WPARAM key) {
        PostMessageW(GetFocus(), WM_KEYDOWN, key, 0);
        PostMessageW(GetFocus(), WM_KEYUP, key, 0xC0000000);
        sheet.HandleMessages(0);
    }

    bool IsOpen() const { return sheet.CurrentPage() != nullptr; }
    HWND AddressEdit() const { return GetWindow(driver.Control(ID_ADDRESS), GW_CHILD); }
    Cells Supplies() const { return RowsOf(driver.Control(ID_SUPPLIES)); }
    Cells Stored() const { return RowsOf(driver.Control(ID_STORED)); }

    // The setting of an option as shown.
    std::string Setting(const std::string& option) const {
        for (const std::string& row : RowsOf(driver.Control(ID_OPTIONS)))
            if (row.find(option + " | ") == 0)
                return row.substr(option.size() + 3);
        return "no such option";
    }

    const Library templates = OpenTemplates(PrinterFamily());
    SheetState state{PrinterFamily(), templates.get()};
    SheetUser user;
    SheetWindow sheet{state};
    const PageDriver driver{sheet};
};

TEST_F(PrinterSheet, EnterQueriesAndEscStops) {
    sheet.HandleMessages(1); // the page takes the focus
    SetFocus(AddressEdit());
    driver.SetText(ID_ADDRESS, " \t127.0.162.1 ");
    Press(VK_RETURN);
    ASSERT_TRUE(IsOpen()) << "Enter has pressed OK";
    EXPECT_TRUE(state.isQuerying);
    EXPECT_EQ(driver.Text(ID_ADDRESS), "127.0.162.1");
    EXPECT_FALSE(IsWindowEnabled(driver.Control(ID_ADDRESS)));
    driver.WaitUntil([&] { return !state.isQuerying; }, kPrinterWait);
    EXPECT_EQ(driver.Text(ID_STATUS), "Reported by 127.0.162.1.");
    EXPECT_EQ(GetFocus(), AddressEdit());

    driver.SetText(ID_ADDRESS, "127.0.162.4");
    Press(VK_RETURN);
    driver.TurnTo(kPaperPage); // the key works on every page
    sheet.HandleMessages(1);
    SetFocus(driver.Control(ID_SOURCE));
    Press(VK_ESCAPE);
    ASSERT_TRUE(IsOpen()) << "Esc has pressed Cancel";
    driver.TurnTo(kPrinterPage);
    EXPECT_EQ(driver.Text(ID_STATUS), "Stopped.");
    sheet.HandleMessages(1);
    SetFocus(AddressEdit());
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
}

TEST_F(PrinterSheet, SlowPrinterIsAskedInTheBackground) {
    Start("127.0.162.4");
    EXPECT_EQ(driver.Text(ID_STATUS), "Looking for 127.0.162.4...");
    EXPECT_EQ(driver.Text(ID_QUERY), "Sto&p");
    driver.WaitUntil([&] { return driver.Text(ID_STATUS).find("for papers (2 of ") != std::string::npos; },
                     kPrinterWait);
    EXPECT_EQ(SendMessageW(driver.Control(ID_PROGRESS), PBM_GETPOS, 0, 0), 2);
    EXPECT_TRUE(IsWindowVisible(driver.Control(ID_PROGRESS)));
    driver.Click(ID_QUERY);
    EXPECT_EQ(driver.Text(ID_STATUS), "Stopped.");
    EXPECT_EQ(Query("127.0.162.1").find("Reported by 127.0.162.1."), 0u) << "waits for the printer before";

    {
        SheetWindow other(state);
        PageDriver(other).SetText(ID_ADDRESS, "127.0.162.4");
        PageDriver(other).Click(ID_QUERY);
    }
    EXPECT_TRUE(IsAnyJobRunning()) << "closing has waited for the printer";
}

TEST_F(PrinterSheet, ReportIsShownWithTheMostUrgentFirst) {
    EXPECT_EQ(driver.Text(ID_STATUS), "Not queried yet. The picture shows the options selected above.");
    EXPECT_EQ(Query("127.0.162.1"), "Reported by 127.0.162.1.");
    EXPECT_EQ(Supplies()[1], "Magenta toner | 67 %");
    EXPECT_EQ(Supplies()[4], "Waste toner box | in order");
    EXPECT_EQ(Stored()[0], "Company letterhead | Overlay");
    EXPECT_EQ(Setting("Finisher"), "Finisher QB-220");
    EXPECT_EQ(PapersDocument(state.papers).Elements()[3]["type"].Text(), "Thick 1");

    EXPECT_EQ(Query("127.0.162.5"), "Reported by 127.0.162.5. Not available: overlays.");
    EXPECT_EQ(Stored()[0], "sRGB | RGB profile");

    EXPECT_EQ(Query("127.0.162.2"), "Reported by 127.0.162.2.");
    EXPECT_EQ(Supplies(), Cells({"Yellow toner | 0 %, empty", "Magenta toner | 4 %, low", "Cyan toner | 9 %, low",
                                 "Waste toner box | nearly full", "Black toner | 12 %"}));
    EXPECT_EQ(Query("127.0.162.12"), "Reported by 127.0.162.12.");
    EXPECT_EQ(Stored()[0], "B\u00FCro M\u00FCller \u6771\u4EAC | Overlay");
    EXPECT_TRUE(user.failures.empty());
}

TEST_F(PrinterSheet, InstalledTraysAreListedWithTheirLevels) {
    Query("127.0.162.2");
    driver.TurnTo(kPaperPage);
    EXPECT_EQ(RowsOf(driver.Control(ID_TRAYS)), Cells({"Tray 1 | 35 sheets", "Tray 2 | empty", "Manual feed | empty"}));
    driver.TurnTo(kPrinterPage);
    Query("127.0.162.1");
    driver.TurnTo(kPaperPage);
    EXPECT_EQ(RowsOf(driver.Control(ID_TRAYS))[4], "Large-capacity tray | 2100 sheets");
    driver.TurnTo(kPrinterPage);
    Start("127.0.162.2");
    driver.TurnTo(kPaperPage);
    driver.WaitUntil([&] { return !state.isQuerying; }, kPrinterWait);
    EXPECT_EQ(EntriesOf(driver.Control(ID_TRAYS)).size(), 3u) << "the page in front is not updated";
    driver.TurnTo(kPrinterPage);
    Query("127.0.162.1");
    state.report = {}; // as after a restart
    driver.TurnTo(kPrinterPage);
    EXPECT_EQ(Setting("Tray 3"), "Installed") << "reported, though the printer was not asked for this option";
    driver.TurnTo(kPaperPage);
    for (const auto& [list, name] : {std::pair(ID_TRAYS, "Tray 3"), {ID_SOURCE, "Large-capacity tray"}}) {
        const Cells entries = EntriesOf(driver.Control(list));
        EXPECT_NE(std::find(entries.begin(), entries.end(), name), entries.end()) << name;
    }
}

// What the printer has not reported is not shown as missing, and nothing of one printer as of another.
TEST_F(PrinterSheet, OptionsAreShownWithTheirOrigin) {
    EXPECT_EQ(Setting("Tray 5"), "Not installed") << "the model's default";
    Query("127.0.162.1");
    EXPECT_EQ(Setting("Tray 5"), "Not reported");
    driver.Choose(ID_OPTIONS, "Tray 5");
    driver.Choose(ID_OPTION_ITEMS, "Installed");
    Query("127.0.162.1");
    EXPECT_EQ(Setting("Tray 5"), "Installed");
    EXPECT_NE(Query("127.0.162.9").find("turn on SNMP"), std::string::npos);
    EXPECT_EQ(Setting("Finisher"), "Not reported");
    EXPECT_EQ(Setting("Tray 5"), "Not reported");
    EXPECT_TRUE(Supplies().empty());
    EXPECT_EQ(PapersDocument(state.papers).Elements()[3]["type"].Text(), "Unknown");
    driver.TurnTo(kPaperPage);
    driver.TurnTo(kPrinterPage);
    EXPECT_NE(driver.Text(ID_STATUS).find("turn on SNMP"), std::string::npos) << "not kept by the page";
    EXPECT_NE(Query("").find("address is missing"), std::string::npos);
}

BOOL CALLBACK FindOtherSheet(HWND window, LPARAM found) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() || !IsWindowVisible(window) || TextOf(window) != "lumora R880")
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// The sheet as a program of its own: its thread is in the module, waiting for the printer, when the program ends.
TEST(PrinterSheetProcess, EndsWhileItsPrinterIsAsked) {
    Result result = {};
    std::thread program([&] { result = RunWorkbench(L"run --language en --state nowhere.json"); });
    HWND other = nullptr;
    const auto waitUntil = [](const auto& condition) {
        for (DWORD waited = 0; waited < kPrinterWait && !condition(); waited += 10)
            Sleep(10);
    };
    waitUntil([&] { return EnumWindows(FindOtherSheet, reinterpret_cast<LPARAM>(&other)) == FALSE; });
    const auto page = reinterpret_cast<HWND>(SendMessageW(other, PSM_GETCURRENTPAGEHWND, 0, 0));
    SetWindowTextW(GetDlgItem(page, ID_ADDRESS), L"127.0.162.4");
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(ID_QUERY, BN_CLICKED), 0);
    waitUntil([&] { return TextOf(GetDlgItem(page, ID_STATUS)).find("Asking 127.0.162.4") == 0; });
    PostMessageW(other, WM_COMMAND, IDCANCEL, 0);
    program.join();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
}

TEST(PrinterTexts, AreCompleteInBothLanguages) {
    const std::set<std::string> alike = {"Option", "Finisher", "Fax", "Overlay", "Name", "{1} %", "{1} s"};
    for (UINT id = PRINTER_TEXT_FIRST; id < PRINTER_TEXT_END; ++id) {
        const std::string english = TextIn(kEnglish, id, {"<1>", "<2>", "<3>", "<4>"});
        const std::string german = TextIn(kGerman, id, {"<1>", "<2>", "<3>", "<4>"});
        EXPECT_TRUE(!english.empty() && !german.empty()) << id;
        EXPECT_EQ(TextIn(kEnglish, id) == TextIn(kGerman, id), alike.count(TextIn(kEnglish, id)) != 0) << english;
        for (const char* place : {"<1>", "<2>", "<3>", "<4>"})
            EXPECT_EQ(english.find(place) == std::string::npos, german.find(place) == std::string::npos) << english;
    }
}

TEST_F(PrinterSheet, TourFailsAsTheCommandsDo) {
    ExpectFailure(L"tour --out . --from 127.0.162.7", 1, "127.0.162.7 .*SNMP error status 5.*Restart");
}

TEST_F(PrinterSheet, AddressesAndTheReportAreKept) {
    const Folder folder(L"workbench_printer_page");
    state.file = folder.path / "kept.json";
    for (const char* address : {"127.0.162.1", "127.0.162.9", "127.0.162.2", "127.0.162.1"})
        Query(address);
    driver.Click(ID_REFRESH);
    EXPECT_FALSE(driver.Press(PSBTN_OK));

    SheetState kept(PrinterFamily(), templates.get());
    kept.file = state.file;
    kept.user = &user;
    EXPECT_EQ(LoadState(kept), "");
    SheetWindow next(kept);
    const PageDriver nextDriver(next);
    EXPECT_EQ(EntriesOf(nextDriver.Control(ID_ADDRESS)), Cells({"127.0.162.1", "127.0.162.2"}))
        << "only those that answer";
    EXPECT_EQ(nextDriver.Text(ID_ADDRESS), "127.0.162.1");
    EXPECT_EQ(nextDriver.Text(ID_STATUS).find("Reported by 127.0.162.1 on "), 0u) << nextDriver.Text(ID_STATUS);
    EXPECT_EQ(SendMessageW(nextDriver.Control(ID_REFRESH), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    nextDriver.Choose(ID_ADDRESS, "127.0.162.2");
    SendMessageW(next.CurrentPage(), WM_COMMAND, MAKEWPARAM(ID_ADDRESS, CBN_SELENDOK), 0);
    EXPECT_EQ(kept.address, "127.0.162.2");
}

TEST_F(PrinterSheet, RefreshMarksWhatHasChanged) {
    Query("127.0.162.1");
    for (MrkSupRequestItem& supply : state.report.supplies)
        supply.value = supply.value == 67 ? 70 : supply.value; // as if it had been so before
    for (OptionRequestItem& option : state.report.options)
        if (SameText(option.key, "OpFAXUnit"))
            CopyText(option.value, "DisOpFAXKit");
    driver.Choose(ID_OPTIONS, "Hard disk");
    driver.Choose(ID_OPTION_ITEMS, "Not installed"); // by the person
    SendMessageW(sheet.CurrentPage(), WM_TIMER, 1, 0);
    EXPECT_FALSE(state.isQuerying) << "the page stays usable";
    driver.WaitUntil([&] { return Setting("Fax") != "Installed"; }, kPrinterWait);
    EXPECT_EQ(Setting("Fax"), "Installed (was Not installed)");
    EXPECT_EQ(Setting("Hard disk"), "Installed");
    EXPECT_EQ(Supplies()[1], "Magenta toner | 67 % (was 70 %)");

    driver.Choose(ID_OPTIONS, "Tray 5");
    driver.Choose(ID_OPTION_ITEMS, "Installed");
    state.hasChanges = false;
    Refresh();
    EXPECT_EQ(Setting("Tray 5"), "Installed") << "chosen by the person, not reported";
    EXPECT_EQ(Setting("Fax"), "Installed (was Not installed)") << "marked until the person queries";
    EXPECT_EQ(Supplies()[1], "Magenta toner | 67 % (was 70 %)");
    EXPECT_FALSE(state.hasChanges);
    driver.WaitUntil([] { return !IsAnyJobRunning(); }, kPrinterWait);
    driver.SetText(ID_ADDRESS, "127.0.162.2"); // not of the printer that is edited
    SendMessageW(sheet.CurrentPage(), WM_TIMER, 1, 0);
    EXPECT_FALSE(IsAnyJobRunning());
    Query("127.0.162.1");
    EXPECT_EQ(Setting("Fax"), "Installed");
}

TEST_F(PrinterSheet, ReportLeavesTheOpenListAlone) {
    Query("127.0.162.1");
    const HWND items = driver.Control(ID_OPTION_ITEMS), options = driver.Control(ID_OPTIONS);
    driver.Choose(ID_OPTIONS, "Hard disk");
    driver.Choose(ID_OPTION_ITEMS, "Not installed");
    driver.Choose(ID_OPTIONS, "Fax");
    SetFocus(items);
    SendMessageW(items, CB_SHOWDROPDOWN, TRUE, 0);
    Refresh();
    EXPECT_EQ(Setting("Hard disk"), "Installed");
    EXPECT_EQ(GetFocus(), items);
    EXPECT_NE(SendMessageW(items, CB_GETDROPPEDSTATE, 0, 0), 0);
    EXPECT_EQ(EntriesOf(options)[static_cast<size_t>(SelectionOf(options))], "Fax");
}

TEST_F(PrinterSheet, ResetStopsTheQueryAndForgetsPrinters) {
    EXPECT_EQ(SendMessageW(driver.Control(ID_REFRESH), BM_GETCHECK, 0, 0), BST_CHECKED);
    Query("127.0.162.2");
    Start("127.0.162.4");
    driver.TurnTo(kVersionPage);
    driver.Click(ID_RESET);
    EXPECT_FALSE(state.isQuerying);
    driver.TurnTo(kPrinterPage);
    EXPECT_EQ(driver.Text(ID_ADDRESS), "");
    EXPECT_TRUE(EntriesOf(driver.Control(ID_ADDRESS)).empty());
    EXPECT_EQ(driver.Text(ID_STATUS).find("Not queried yet."), 0u) << driver.Text(ID_STATUS);
}

TEST_F(PrinterSheet, TipShowsTheWholeStatus) {
    const std::string status = Query(std::string(60, 'x') + "." + std::string(60, 'y'));
    POINT place = {20, 5};
    ClientToScreen(driver.Control(ID_STATUS), &place);
    SetCursorPos(place.x, place.y);
    driver.WaitUntil(
        [&] {
            SendMessageW(driver.Control(ID_STATUS), WM_MOUSEMOVE, 0, MAKELPARAM(20, 5));
            sheet.HandleMessages(10);
            return HintOf(sheet.Window()) == status;
        },
        kPrinterWait);
}

TEST_F(PrinterSheet, LabelsAreEnabledWithTheirLists) {
    const auto isLabelEnabled = [&](int id) { return IsWindowEnabled(GetWindow(driver.Control(id), GW_HWNDPREV)); };
    EXPECT_TRUE(isLabelEnabled(ID_ADDRESS)) << "without addresses to choose from";
    EXPECT_TRUE(isLabelEnabled(ID_OPTION_ITEMS));
    state.options.settings.clear(); // as of a model without options
    driver.TurnTo(kPaperPage);
    driver.TurnTo(kPrinterPage);
    EXPECT_FALSE(isLabelEnabled(ID_OPTION_ITEMS));
}

// Lets a search find three printers, for 30 seconds at most, then chooses the one in the last row: End, Enter.
void CALLBACK UseSearch(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    static int calls = 0;
    const HWND dialog = GetActiveWindow(), list = GetDlgItem(dialog, ID_FOUND);
    if (++calls < 600 && (list == nullptr || SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) < 3))
        return;
    KillTimer(nullptr, timer);
    searched = RowsOf(list);
    SendMessageW(dialog, WM_TIMER, 1, 0);   // the time is over
    SendMessageW(dialog, WM_APP + 1, 0, 0); // as for a late answer
    searchStatus = TextOf(GetDlgItem(dialog, ID_FOUND_STATUS));
    SetFocus(list);
    for (const WPARAM key : {VK_END, VK_RETURN})
        PostMessageW(list, WM_KEYDOWN, key, 0);
}

TEST_F(PrinterSheet, SearchListsPrintersOnly) {
    SetEnvironmentVariableW(L"LUMORA_SEARCH", L"127.0.162.8 127.0.162.1 127.0.162.9 127.0.162.2 127.0.162.12");
    SetTimer(nullptr, 0, 50, UseSearch);
    SetFocus(driver.Control(ID_FIND));
    driver.Click(ID_FIND); // returns when the dialog has closed
    std::sort(searched.begin(), searched.end());
    EXPECT_EQ(searched, Cells({"copy-room | QUORVANE lumora R880", "corridor | QUORVANE lumora R880",
                               "print-shop | QUORVANE lumora R880"}));
    EXPECT_EQ(searchStatus.find("3 found."), 0u) << searchStatus;
    EXPECT_TRUE(state.isQuerying) << "the chosen printer is not asked";
    EXPECT_EQ(state.address.find("127.0.162."), 0u);
    EXPECT_EQ(GetFocus(), driver.Control(ID_QUERY)) << "keys reach nothing";
    PostMessageW(sheet.Window(), WM_KEYDOWN, VK_ESCAPE, 0);
    sheet.HandleMessages(0);
    ASSERT_TRUE(IsOpen());
    EXPECT_FALSE(state.isQuerying);
}

// As in high contrast: black toner on a black window.
TEST_F(PrinterSheet, BarOfBlackTonerIsSeenOnBlack) {
    SKIP_ON_WINDOWS("changes the colours of the whole desktop");
    const INT parts[] = {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_BTNFACE};
    const COLORREF before[] = {GetSysColor(parts[0]), GetSysColor(parts[1]), GetSysColor(parts[2])};
    const COLORREF dark[] = {RGB(0, 0, 0), RGB(255, 255, 255), RGB(0, 0, 0)};
    SetSysColors(3, parts, dark);
    Query("127.0.162.1");
    ASSERT_EQ(Supplies()[3], "Black toner | 92 %");
    const HWND list = driver.Control(ID_SUPPLIES);
    RECT row = {LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(list, LVM_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&row));
    UpdateWindow(list);
    const HDC dc = GetDC(list);
    int edges = 0; // from black to white and back, along the middle of the bar
    const auto left = row.left + static_cast<LONG>(SendMessageW(list, LVM_GETCOLUMNWIDTH, 0, 0));
    for (LONG x = left; x < left + 50; ++x)
        edges += GetPixel(dc, x, (row.top + row.bottom) / 2) == RGB(255, 255, 255) ? 1 : 0;
    ReleaseDC(list, dc);
    SetSysColors(3, parts, before);
    EXPECT_GE(edges, 2) << "one at the start, one where the toner ends";
}

// --- At every resolution -----------------------------------------------------------------------------------

struct PrinterSheetLayout : PrinterSheet {};

// In both languages, with a long address.
TEST_F(PrinterSheetLayout, EverySentenceFits) {
    const HWND status = driver.Control(ID_STATUS);
    RECT below = {}, ofSearch = {0, 0, 246, 16}; // ID_FOUND_STATUS, in the same font
    GetClientRect(status, &below);
    MapDialogRect(sheet.CurrentPage(), &ofSearch);
    const HDC dc = GetDC(status);
    SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(status, WM_GETFONT, 0, 0)));
    const auto expectFit = [&](const RECT& place, const std::string& text) {
        RECT needed = {0, 0, place.right, 0};
        DrawTextW(dc, Wide(text).c_str(), -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        EXPECT_LE(needed.bottom, place.bottom + 1) << text;
        EXPECT_FALSE(text.empty() || text.front() == ' ' || text.back() == ' ') << "a part is missing: " << text;
    };
    for (const char* language : {"de", "en"}) {
        UseLanguage(language);
        for (auto i = static_cast<int>(Outcome::kNoAddress); i <= static_cast<int>(Outcome::kOtherModel); ++i)
            if (static_cast<Outcome>(i) != Outcome::kNoLibrary) // for commands only
                expectFit(below,
                          PrinterFailure(static_cast<Outcome>(i), "printer-2.office.example", "QUORVANE lumora R880")
                              .sentence);
        for (UINT text = PRINTER_TEXT_SEARCHING; text <= PRINTER_TEXT_NO_NETWORK; ++text)
            expectFit(ofSearch, LocalizedText(text, {"12"}));
    }
    ReleaseDC(status, dc);
}

} // namespace

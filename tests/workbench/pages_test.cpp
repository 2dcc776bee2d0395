// The property sheet in this process, on a screen and beside simulated printers: what its pages do at once,
// and what a printer's answers, their lack and a full disk make of them.
#include "workbench/lib/dialog_view.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/picture_file.h"
#include "workbench/lib/settings_fields.h"
#include "workbench/property_sheet/page_driver.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/workbench_run.h"

#include <set>

#include <commctrl.h>

namespace {

constexpr DWORD kLongestWait = 60000; // milliseconds

const FamilyFiles& Family() {
    static const FamilyFiles family = OpenFamilyFiles({});
    return family;
}

// Of a list box.
std::vector<std::string> Lines(HWND list) {
    std::vector<std::string> lines(static_cast<size_t>(SendMessageW(list, LB_GETCOUNT, 0, 0)));
    for (size_t i = 0; i < lines.size(); ++i) {
        char text[256] = "";
        SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
        lines[i] = text;
    }
    return lines;
}

struct Sheet : testing::Test {
    Sheet() { state.user = &user; }

    // What a printer tells, or why it doesn't.
    std::string Ask(const std::string& address) {
        driver.TurnTo(kPrinterPage);
        driver.SetText(ID_ADDRESS, address);
        driver.Click(ID_ASK);
        driver.WaitUntil([&] { return !state.isAsking; }, kLongestWait);
        return driver.Text(ID_STATUS);
    }

    void Install(const char* option, const char* item) {
        driver.TurnTo(kPrinterPage);
        driver.Choose(ID_OPTIONS, option);
        driver.Choose(ID_OPTION_ITEMS, item);
    }

    std::string ItemOf(const std::string& feature) const {
        for (const Document& row : OptionsDocument(state.options).Elements())
            if (row["feature"].Text() == feature)
                return row["item"].Text();
        return "none";
    }

    std::string PaperType(size_t tray) const {
        return PapersDocument(state.papers).Elements().at(tray)["type"].Text();
    }

    // What a control shows on the screen.
    std::string Pixels(int id, RECT place) const {
        const SIZE size = {place.right - place.left, place.bottom - place.top};
        const Canvas canvas(size);
        UpdateWindow(driver.Control(id));
        const HDC from = GetDC(driver.Control(id));
        BitBlt(canvas.context, 0, 0, size.cx, size.cy, from, place.left, place.top, SRCCOPY);
        ReleaseDC(driver.Control(id), from);
        GdiFlush();
        return {static_cast<const char*>(canvas.pixels), static_cast<size_t>(size.cx * size.cy * 4)};
    }

    std::string Picture() const {
        RECT client = {};
        GetClientRect(driver.Control(ID_PICTURE), &client);
        return Pixels(ID_PICTURE, client);
    }

    const Library templates = OpenTemplates(Family());
    SheetState state{Family(), templates.get()};
    SheetUser user;
    SheetWindow sheet{state};
    const PageDriver driver{sheet};
};

TEST_F(Sheet, PictureFollowsEveryChoice) {
    std::set<std::string> pictures = {Picture()};
    const std::pair<const char*, const char*> choices[] = {{"Paper unit", "Large-capacity unit QA-110"},
                                                           {"Finisher", "Finisher QD-440"},
                                                           {"Finisher", "Finisher QB-220"},
                                                           {"Mail bins", "Mail bins QE-550"}};
    for (const auto& [option, item] : choices) {
        Install(option, item);
        EXPECT_TRUE(pictures.insert(Picture()).second) << option << ' ' << item << " can't be seen";
    }
    driver.TurnTo(kPaperPage);
    driver.Choose(ID_SOURCE, "Tray 2");
    driver.TurnTo(kPrinterPage);
    EXPECT_TRUE(pictures.insert(Picture()).second) << "the paper's way can't be seen";
    EXPECT_TRUE(state.hasChanges);
}

TEST_F(Sheet, SourceThatIsTakenAwayIsChosenNoLonger) {
    Install("Tray 3", "Installed");
    driver.TurnTo(kPaperPage);
    const uint16_t first = OfferedSources(state).front().bin;
    driver.Choose(ID_SOURCE, "Tray 3");
    EXPECT_NE(state.settings.inputTray, first);
    Install("Tray 3", "Not installed");
    EXPECT_EQ(state.settings.inputTray, first);
    driver.TurnTo(kPaperPage);
    EXPECT_EQ(SendMessageW(driver.Control(ID_SOURCE), CB_GETCURSEL, 0, 0), 0);
}

TEST_F(Sheet, ShowsWhatAPrinterTells) {
    driver.TurnTo(kPaperPage);
    EXPECT_EQ(SendMessageW(driver.Control(ID_TRAYS), LVM_GETITEMCOUNT, 0, 0), 7); // of the model, unknown yet
    EXPECT_EQ(Ask("127.0.162.1"), "Told by 127.0.162.1 (bidirectional library).");
    const HWND supplies = driver.Control(ID_SUPPLIES);
    EXPECT_EQ(Lines(supplies),
              std::vector<std::string>({"Cyan toner: 83 %", "Magenta toner: 67 %", "Yellow toner: 71 %",
                                        "Black toner: 92 %", "Waste toner box: in order"}));
    const COLORREF colors[] = {0xFFFF00, 0xFF00FF, 0x00FFFF, 0x000000};
    for (size_t i = 0; i < std::size(colors); ++i) {
        RECT row = {};
        SendMessageW(supplies, LB_GETITEMRECT, i, reinterpret_cast<LPARAM>(&row));
        const LONG middle = (row.top + row.bottom) / 2;
        const std::string pixel = Pixels(ID_SUPPLIES, {row.left + 8, middle, row.left + 9, middle + 1});
        EXPECT_EQ(RGB(pixel[2], pixel[1], pixel[0]) & 0xFFFFFF, colors[i]) << "bar " << i;
    }
    EXPECT_EQ(Lines(driver.Control(ID_STORED)).at(0), "Overlay: Company letterhead");
    EXPECT_EQ(PaperType(3), "Thick 1");
    EXPECT_EQ(ItemOf("OpOutTrayUnit"), "OpOutTrayUnit1");

    // Of another printer nothing of this one's stays.
    EXPECT_EQ(Ask("127.0.162.2"), "Told by 127.0.162.2 (bidirectional library).");
    EXPECT_EQ(Lines(supplies).at(1), "Magenta toner: 4 %");
    EXPECT_EQ(ItemOf("OpOutTrayUnit"), "DisOpOutTrayUnit");
    EXPECT_EQ(PaperType(3), "Unknown"); // there is no such tray
    EXPECT_NE(Ask("127.0.162.9").find("no device answers"), std::string::npos);
    EXPECT_EQ(SendMessageW(supplies, LB_GETCOUNT, 0, 0), 0);
    driver.TurnTo(kPaperPage);
    driver.TurnTo(kPrinterPage);
    EXPECT_NE(driver.Text(ID_STATUS).find("no device answers"), std::string::npos) << "forgotten";
}

TEST_F(Sheet, PartOfTheAnswersIsBetterThanNone) {
    EXPECT_EQ(Ask("127.0.162.5"), "Told by 127.0.162.5 (bidirectional library). Not told: overlays.");
    EXPECT_EQ(SendMessageW(driver.Control(ID_SUPPLIES), LB_GETCOUNT, 0, 0), 5);
    EXPECT_EQ(Lines(driver.Control(ID_STORED)).at(0), "RGB profile: sRGB");
}

TEST_F(Sheet, GoesOnWhileAPrinterIsAsked) {
    driver.SetText(ID_ADDRESS, "127.0.162.4");
    const DWORD start = GetTickCount();
    driver.Click(ID_ASK);
    Install("Fax", "Installed");
    EXPECT_LT(GetTickCount() - start, 1000u) << "waits for the printer";
    EXPECT_TRUE(state.isAsking);
    EXPECT_EQ(driver.Text(ID_ASK), TEXT_STOP);
    EXPECT_EQ(driver.Text(ID_STATUS), "Asking for options...");

    driver.Click(ID_ASK);
    EXPECT_EQ(driver.Text(ID_ASK), TEXT_ASK);
    EXPECT_EQ(driver.Text(ID_STATUS), "Stopped.");
    EXPECT_EQ(Ask("127.0.162.1").find("Told by 127.0.162.1 "), 0u) << "the printer before is still awaited";
    EXPECT_EQ(ItemOf("OpOutTrayUnit"), "OpOutTrayUnit1");

    driver.SetText(ID_ADDRESS, "127.0.162.4");
    driver.Click(ID_ASK); // and the sheet is closed meanwhile
    EXPECT_FALSE(driver.Press(PSBTN_CANCEL));
}

TEST_F(Sheet, WantsAnAddress) {
    driver.Click(ID_ASK);
    EXPECT_FALSE(state.isAsking);
    EXPECT_EQ(user.failures.size(), 1u);
}

TEST_F(Sheet, StaysOpenWhenNothingCanBeKept) {
    const Folder folder(L"workbench_pages");
    state.file = folder.path / "nowhere" / "kept.json";
    Install("Fax", "Installed");
    driver.TurnTo(kVersionPage);
    EXPECT_TRUE(driver.Press(PSBTN_OK));
    ASSERT_EQ(user.failures.size(), 1u) << "told once, though all pages are asked to apply";
    EXPECT_NE(user.failures[0].find("kept.json: can't be written"), std::string::npos) << user.failures[0];
    state.file = folder.path / "kept.json";
    EXPECT_FALSE(driver.Press(PSBTN_OK));

    SheetState next(Family(), templates.get());
    next.file = state.file;
    EXPECT_EQ(LoadState(next), "");
    EXPECT_EQ(JsonForm(OptionsDocument(next.options)), JsonForm(OptionsDocument(state.options)));
}

TEST_F(Sheet, DialogsWorkOnCopies) {
    driver.TurnTo(kQualityPage);
    user.script = ParseDialogScript("choose 1354 Exact match\ncancel", "test");
    driver.Click(ID_COLOR_DIALOG);
    EXPECT_FALSE(state.hasChanges);
    user.script = ParseDialogScript("choose 1354 Exact match\nok", "test");
    driver.Click(ID_COLOR_DIALOG);
    EXPECT_TRUE(state.hasChanges);
    EXPECT_EQ(state.settings.image.colorMatch, 3);
    driver.Click(ID_DEFAULTS);
    EXPECT_EQ(SendMessageW(driver.Control(ID_CHANGED), LVM_GETITEMCOUNT, 0, 0), 0);
    EXPECT_TRUE(IsWindowEnabled(sheet.Window()));
    EXPECT_TRUE(user.failures.empty());
}

// --- At every resolution -----------------------------------------------------------------------------------

std::wstring TextOf(HWND window) {
    wchar_t text[512] = L"";
    GetWindowTextW(window, text, 512);
    return text;
}

// Also of what is drawn by the page, and of lists, which have no access key.
wchar_t AccessKey(HWND window) {
    const std::wstring text = TextOf(window);
    const size_t mark = text.find(L'&');
    const bool isKey = mark != std::wstring::npos && mark + 1 < text.size() && text[mark + 1] != L'&';
    return isKey ? static_cast<wchar_t>(towupper(text[mark + 1])) : L'\0';
}

std::vector<HWND> Children(HWND parent) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

RECT PlaceOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return place;
}

// What a text needs in the control's font, broken into lines of at most this width.
RECT TextSize(HWND control, const std::wstring& text, LONG width) {
    const HDC dc = GetDC(control);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT needed = {0, 0, width, 0};
    DrawTextW(dc, text.c_str(), -1, &needed, DT_CALCRECT | DT_WORDBREAK);
    SelectObject(dc, before);
    ReleaseDC(control, dc);
    return needed;
}

struct SheetLayout : Sheet, testing::WithParamInterface<int> {
    SheetLayout() { driver.TurnTo(static_cast<SheetPage>(GetParam())); }
};

TEST_P(SheetLayout, KeyboardReachesEverything) {
    std::set<wchar_t> keys;
    for (HWND button : Children(sheet.Window()))
        if (IsWindowVisible(button) && AccessKey(button) != 0)
            keys.insert(AccessKey(button));
    wchar_t before = 0;
    for (HWND control : Children(sheet.CurrentPage())) {
        const wchar_t key = AccessKey(control);
        if (key != 0) {
            EXPECT_TRUE(keys.insert(key).second) << "twice: " << static_cast<char>(key);
        }
        if ((GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) != 0) {
            EXPECT_TRUE(key != 0 || before != 0) << "control " << GetDlgCtrlID(control);
        }
        before = key;
    }
}

TEST_P(SheetLayout, EverythingFits) {
    const RECT page = PlaceOf(sheet.CurrentPage());
    const std::vector<HWND> controls = Children(sheet.CurrentPage());
    for (HWND control : controls) {
        const RECT place = PlaceOf(control);
        SCOPED_TRACE(testing::Message() << "control " << GetDlgCtrlID(control) << " at "
                                        << place.left - page.left << ", " << place.top - page.top);
        EXPECT_TRUE(place.left >= page.left && place.right <= page.right && place.top >= page.top
                    && place.bottom <= page.bottom);
        RECT both;
        for (HWND other : controls) {
            const RECT others = PlaceOf(other);
            EXPECT_FALSE(other != control && IntersectRect(&both, &place, &others));
        }
        if (!IsOfClass(control, L"Static") && !IsOfClass(control, L"Button"))
            continue;
        const RECT needed = TextSize(control, TextOf(control), place.right - place.left);
        EXPECT_LE(needed.right, place.right - place.left);
        EXPECT_LE(needed.bottom, place.bottom - place.top + 1);
    }
}

TEST_P(SheetLayout, RowsAreAsHighAsTheirText) {
    for (HWND control : Children(sheet.CurrentPage())) {
        if (!IsOfClass(control, L"ListBox"))
            continue;
        const LONG text = TextSize(control, L"Ag", 1000).bottom;
        EXPECT_GE(SendMessageW(control, LB_GETITEMHEIGHT, 0, 0), text);
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, SheetLayout, testing::Range(0, 4));

} // namespace

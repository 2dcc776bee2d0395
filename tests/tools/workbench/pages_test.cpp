// The property sheet in this process, on a screen: how its pages react to the user and to failures.
#include "tools/workbench/workbench_run.h"
#include "workbench/lib/dialog_view.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/picture.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/list_view.h"
#include "workbench/property_sheet/page_driver.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/text_ids.h"

#include <regex>
#include <set>

#include <commctrl.h>

namespace {

constexpr DWORD kMaxWait = 60000; // milliseconds

const FamilyFiles& Family() {
    static const FamilyFiles family = OpenFamilyFiles({});
    return family;
}

struct Sheet : testing::Test {
    Sheet() { state.user = &user; }

    void Install(const char* option, const char* item) {
        driver.TurnTo(kPrinterPage);
        driver.Choose(ID_OPTIONS, option);
        driver.Choose(ID_OPTION_ITEMS, item);
    }

    // The pixels of a part of a control, as on the screen.
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

TEST_F(Sheet, PictureFollowsOptionsAndPaperSource) {
    std::set<std::string> pictures = {Picture()};
    for (const auto& [option, item] : {std::pair("Paper unit", "Large-capacity unit QA-110"),
                                       {"Finisher", "Finisher QB-220"},
                                       {"Mail bins", "Mail bins QE-550"}}) {
        Install(option, item);
        EXPECT_TRUE(pictures.insert(Picture()).second) << option << ' ' << item << " is not visible";
    }
    driver.TurnTo(kPaperPage);
    driver.Choose(ID_SOURCE, "Tray 2");
    driver.TurnTo(kPrinterPage);
    EXPECT_TRUE(pictures.insert(Picture()).second) << "the paper path is not visible";
}

TEST_F(Sheet, RemovedPaperSourceIsDeselected) {
    Install("Tray 3", "Installed");
    const uint16_t first = OfferedSources(state).front().bin;
    driver.TurnTo(kPaperPage);
    driver.Choose(ID_SOURCE, "Tray 3");
    EXPECT_NE(state.settings.inputTray, first);
    Install("Tray 3", "Not installed");
    EXPECT_EQ(state.settings.inputTray, first);
    driver.TurnTo(kPaperPage);
    EXPECT_EQ(SelectionOf(driver.Control(ID_SOURCE)), 0);
}

TEST_F(Sheet, SheetStaysOpenWhenSavingFails) {
    const Folder folder(L"workbench_pages");
    Install("Fax", "Installed");
    driver.TurnTo(kVersionPage);
    fs::create_directory(folder.path / "not a file");
    for (const auto& [file, advice] : {std::pair("nowhere/kept.json", "nowhere does not exist. Create it"),
                                       {"not a file", "you may not write to "}}) {
        user.failures.clear();
        state.file = folder.path / file;
        EXPECT_TRUE(driver.Press(PSBTN_OK));
        ASSERT_EQ(user.failures.size(), 1u) << "reported once, though every page receives PSN_APPLY";
        EXPECT_NE(user.failures[0].find(advice), std::string::npos) << user.failures[0];
        EXPECT_EQ(user.failures[0].find("--"), std::string::npos) << "an option: " << user.failures[0];
        EXPECT_FALSE(state.wasSaved);
    }
    state.file = folder.path / "kept.json";
    EXPECT_FALSE(driver.Press(PSBTN_OK));
    EXPECT_TRUE(state.wasSaved);
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
    EXPECT_TRUE(IsWindowEnabled(sheet.Window()));
}

// The rows of a list view on the current page, with all cells.
std::vector<std::string> RowsOn(const SheetWindow& sheet, int list) {
    std::vector<std::string> rows;
    for (const Document& entry : ViewDialog(sheet.CurrentPage()).entries.Elements())
        if (entry["list"].Integer() == list)
            rows.push_back(entry["text"].Text());
    return rows;
}

// OK of the colour dialog also writes records of profiles, which are no changes to a person.
TEST_F(Sheet, QualityPageListsWhatThePersonChanged) {
    driver.TurnTo(kPaperPage);
    driver.Choose(ID_SOURCE, "Tray 2");
    driver.TurnTo(kQualityPage);
    EXPECT_FALSE(IsWindowEnabled(driver.Control(ID_CHANGED)));
    user.script =
        ParseDialogScript("choose 1354 Exact match\nchoose 1504 CIE RGB\nchoose 1524 SWOP\nclick 1526\nok", "test");
    driver.Click(ID_COLOR_DIALOG);
    std::vector<std::string> rows = {"Images, RGB source | sRGB | CIE RGB",
                                     "Images, Colour matching | Photographic | Exact match",
                                     "Press simulation | None | SWOP", "Match the colour of the paper | no | yes"};
    EXPECT_EQ(RowsOn(sheet, ID_CHANGED), rows);
    driver.Click(ID_DETAILS);
    for (const auto& [row, numbers] :
         {std::pair(0, "1 \u2192 130"), {1, "1 \u2192 3"}, {2, "0 \u2192 1"}, {3, "0 \u2192 1"}})
        rows[static_cast<size_t>(row)] += std::string(" | ") + numbers;
    EXPECT_EQ(RowsOn(sheet, ID_CHANGED), rows);
    state.settings.simulation = 128; // a profile of the printer
    CopyText(state.settings.simulationProfile.name, L"House offset");
    driver.Click(ID_DETAILS);
    EXPECT_EQ(RowsOn(sheet, ID_CHANGED)[2], "Press simulation | None | House offset");
    driver.Click(ID_DEFAULTS);
    EXPECT_TRUE(RowsOn(sheet, ID_CHANGED).empty());
    EXPECT_EQ(memcmp(&state.settings.imageRgbProfile, &defaultSettings.imageRgbProfile, sizeof(ProfileEntry)), 0);
    EXPECT_EQ(state.settings.inputTray, 258) << "belongs to another page";
}

TEST_F(Sheet, MonoModelHasNoColorDialog) {
    driver.TurnTo(kQualityPage);
    EXPECT_TRUE(IsWindowVisible(driver.Control(ID_COLOR_DIALOG)));
    EXPECT_FALSE(IsWindowVisible(driver.Control(ID_BLACK_ONLY)));
    const auto color = std::exchange(Family().table->colorDevice, 0);
    SheetWindow mono(state);
    SendMessageW(mono.Window(), PSM_SETCURSEL, kQualityPage, 0);
    Family().table->colorDevice = color;
    EXPECT_FALSE(IsWindowVisible(GetDlgItem(mono.CurrentPage(), ID_COLOR_DIALOG)));
    EXPECT_TRUE(IsWindowVisible(GetDlgItem(mono.CurrentPage(), ID_BLACK_ONLY)));
}

std::wstring Clipboard() {
    EXPECT_TRUE(OpenClipboard(nullptr));
    const auto* text = static_cast<const wchar_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
    std::wstring copy = text != nullptr ? text : L"";
    CloseClipboard();
    return copy;
}

TEST_F(Sheet, VersionPageListsAndCopiesTheFiles) {
    SetThreadLocale(MAKELCID(kGerman, SORT_DEFAULT));
    driver.TurnTo(kVersionPage);
    driver.Click(ID_COPY);
    SetThreadLocale(LOCALE_USER_DEFAULT);
    std::string size = std::to_string(fs::file_size(ProductFolder() / "TELMAR_D.PRM"));
    size.insert(size.size() - 3, ".");
    EXPECT_TRUE(std::regex_search(Utf8(Clipboard()),
                                  std::regex("\nTELMAR_D.PRM\t\t\\d\\d\\.\\d\\d\\.\\d{4}\t" + size + "\r\n")))
        << Utf8(Clipboard());
}

TEST_F(Sheet, ResetAsksFirst) {
    driver.TurnTo(kPrinterPage);
    driver.SetText(ID_ADDRESS, "192.0.2.1");
    driver.TurnTo(kVersionPage);
    user.confirms = false;
    driver.Click(ID_RESET);
    EXPECT_EQ(state.address, "192.0.2.1");
    user.confirms = true;
    driver.Click(ID_RESET);
    EXPECT_EQ(state.address, "");
    EXPECT_EQ(user.questions.size(), 2u);
}

// A key pressed together with Ctrl, through the sheet's own message loop.
void PressWithCtrl(SheetWindow& sheet, WPARAM key) {
    BYTE keys[256] = {};
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    sheet.HandleMessages(0);
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys);
    for (int i = 0; i < 3; ++i) // what the key has caused
        sheet.HandleMessages(1);
}

TEST_F(Sheet, FocusMovesToThePageThatKeysTurnTo) {
    sheet.HandleMessages(1);
    EXPECT_EQ(GetFocus(), GetNextDlgTabItem(sheet.CurrentPage(), nullptr, FALSE)) << "when the sheet opens";
    for (const auto& [key, page] : {std::pair(VK_TAB, kPaperPage),
                                    {VK_NEXT, kQualityPage},
                                    {VK_NEXT, kVersionPage},
                                    {VK_PRIOR, kQualityPage},
                                    {VK_TAB, kVersionPage},
                                    {VK_TAB, kPrinterPage}}) {
        PressWithCtrl(sheet, static_cast<WPARAM>(key));
        EXPECT_EQ(SendMessageW(sheet.Window(), PSM_HWNDTOINDEX, reinterpret_cast<WPARAM>(sheet.CurrentPage()), 0),
                  page);
        EXPECT_EQ(GetFocus(), GetNextDlgTabItem(sheet.CurrentPage(), nullptr, FALSE)) << "on page " << page;
    }
    const auto tabs = reinterpret_cast<HWND>(SendMessageW(sheet.Window(), PSM_GETTABCONTROL, 0, 0));
    SetFocus(tabs);
    PressWithCtrl(sheet, VK_NEXT);
    EXPECT_EQ(GetFocus(), tabs) << "a person who walks along the tabs stays on them";
}

TEST_F(Sheet, RowIsCopied) {
    driver.TurnTo(kPaperPage);
    SetFocus(driver.Control(ID_TRAYS));
    SelectEntry(driver.Control(ID_TRAYS), 1);
    PressWithCtrl(sheet, 'C');
    EXPECT_EQ(Clipboard().substr(0, 24), L"Tray 2\t\tUnknown\tUnknown\t");
}

TEST_F(Sheet, LastColumnLeavesRoomForTheScrollBar) {
    const HWND list = CreateWindowW(WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 300, 100,
                                    sheet.Window(), nullptr, nullptr, nullptr);
    const auto has = [&](LONG style) { return (GetWindowLongW(list, GWL_STYLE) & style) != 0; };
    LVCOLUMNW column = {};
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    for (int rows : {1, 50}) {
        SendMessageW(list, WM_SETREDRAW, FALSE, 0);
        while (SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) < rows) {
            LVITEMW item = {};
            SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        FitColumns(list);
        SendMessageW(list, WM_SETREDRAW, TRUE, 0);
        UpdateWindow(list);
        EXPECT_EQ(has(WS_VSCROLL), rows > 1);
        EXPECT_FALSE(has(WS_HSCROLL)) << rows << " rows";
        EXPECT_GT(SendMessageW(list, LVM_GETCOLUMNWIDTH, 0, 0), 300 - 2 * GetSystemMetrics(SM_CXVSCROLL));
    }
    DestroyWindow(list);
}

TEST_F(Sheet, TipShowsCutCell) {
    driver.TurnTo(kPaperPage);
    const HWND list = driver.Control(ID_TRAYS);
    RECT cell = {LVIR_BOUNDS, 2, 0, 0}; // the third column of the first row
    SendMessageW(list, LVM_GETSUBITEMRECT, 0, reinterpret_cast<LPARAM>(&cell));
    POINT place = {cell.left + 4, cell.top + 4};
    const auto hover = [&](const char* tip) {
        POINT onScreen = place;
        ClientToScreen(list, &onScreen);
        SetCursorPos(onScreen.x, onScreen.y);
        driver.WaitUntil(
            [&] {
                SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(place.x, place.y));
                sheet.HandleMessages(10);
                return HintOf(sheet.Window()) == tip;
            },
            kMaxWait);
    };
    SendMessageW(list, LVM_SETCOLUMNWIDTH, 2, 20);
    hover("Unknown");
    place.x = 4; // of the first column, which is wide enough
    hover("");
}

// --- Languages ---------------------------------------------------------------------------------------------

// The texts of the sheet's buttons and of all pages as they open.
std::vector<std::string> TextsIn(const char* language, HINSTANCE templates) {
    UseLanguage(language);
    SheetState state(Family(), templates);
    SheetWindow sheet(state);
    std::vector<std::string> texts;
    for (int page = kPrinterPage; page <= kVersionPage; ++page) {
        SendMessageW(sheet.Window(), PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
        for (HWND parent : {sheet.Window(), sheet.CurrentPage()})
            for (HWND control : ControlsOf(parent))
                if (IsOfClass(control, L"Static") || IsOfClass(control, L"Button"))
                    texts.push_back(TextOf(control));
    }
    UseLanguage("en");
    return texts;
}

std::multiset<char> PlacesIn(const std::string& text) {
    std::multiset<char> places;
    for (size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1))
        places.insert(text.at(at + 1));
    return places;
}

TEST_F(Sheet, BothLanguagesAreComplete) {
    const std::set<std::string> alike = {"", "OK", "Help", "De&tails", "Version", "Text", "{1}, {2}", "{1} \u2192 {2}"};
    const std::vector<std::string> english = TextsIn("en", templates.get());
    const std::vector<std::string> german = TextsIn("de", templates.get());
    ASSERT_EQ(english.size(), german.size());
    for (size_t i = 0; i < english.size(); ++i)
        EXPECT_EQ(english[i] == german[i], alike.count(english[i]) != 0) << english[i] << " / " << german[i];
    for (UINT id = TEXT_FIRST; id < TEXT_END; ++id) {
        const std::string text = TextIn(kEnglish, id);
        const std::string translated = TextIn(kGerman, id);
        EXPECT_TRUE(!text.empty() && !translated.empty()) << id;
        EXPECT_EQ(text == translated, alike.count(text) != 0) << text << " / " << translated;
        EXPECT_EQ(PlacesIn(text), PlacesIn(translated)) << text << " / " << translated;
    }
    EXPECT_EQ(LocalizedText(TEXT_SETTING_OF, {"{2}", "b"}), "{2}, b") << "arguments are not patterns";
}

// --- At every resolution -----------------------------------------------------------------------------------

// 0 for a control without a mark in its text.
char AccessKey(HWND window) {
    const std::string text = TextOf(window) + '&';
    const char key = text[text.find('&') + 1]; // the terminator without a mark
    return static_cast<char>(toupper(static_cast<unsigned char>(key == '&' ? 0 : key)));
}

RECT PlaceOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return place;
}

// The size of a text in the control's font, in lines of at most this width.
RECT TextSize(HWND control, const std::string& text, LONG width) {
    const HDC dc = GetDC(control);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT needed = {0, 0, width, 0};
    DrawTextW(dc, Wide(text).c_str(), -1, &needed, DT_CALCRECT | DT_WORDBREAK);
    SelectObject(dc, before);
    ReleaseDC(control, dc);
    return needed;
}

// A page and a language.
using PageParameters = testing::WithParamInterface<std::tuple<int, const char*>>;

struct ParameterLanguage {
    ParameterLanguage() { UseLanguage(std::get<1>(PageParameters::GetParam())); }
    ~ParameterLanguage() { UseLanguage("en"); }
};

struct SheetLayout : ParameterLanguage, Sheet, PageParameters {
    SheetLayout() { driver.TurnTo(static_cast<SheetPage>(std::get<0>(GetParam()))); }
};

TEST_P(SheetLayout, EveryControlHasAUniqueAccessKey) {
    std::set<char> keys;
    for (HWND button : ControlsOf(sheet.Window()))
        if (IsWindowVisible(button) && AccessKey(button) != 0)
            keys.insert(AccessKey(button));
    char before = 0;
    for (HWND control : ControlsOf(sheet.CurrentPage())) {
        const char key = AccessKey(control);
        EXPECT_TRUE(key == 0 || keys.insert(key).second) << "twice: " << key;
        const bool isTabStop = (GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) != 0;
        EXPECT_TRUE(!isTabStop || key != 0 || before != 0) << "control " << GetDlgCtrlID(control);
        before = key;
    }
}

TEST_P(SheetLayout, ControlsFitWithoutOverlap) {
    const RECT page = PlaceOf(sheet.CurrentPage());
    const std::vector<HWND> controls = ControlsOf(sheet.CurrentPage());
    for (HWND control : controls) {
        const RECT place = PlaceOf(control);
        SCOPED_TRACE(testing::Message() << "control " << GetDlgCtrlID(control) << " at " << place.left - page.left
                                        << ", " << place.top - page.top);
        RECT both;
        EXPECT_TRUE(UnionRect(&both, &place, &page) && EqualRect(&both, &page)) << "not within the page";
        for (HWND other : controls) {
            const RECT others = PlaceOf(other);
            EXPECT_FALSE(other != control && IntersectRect(&both, &place, &others));
        }
        EXPECT_TRUE(!IsOfClass(control, L"ListBox")
                    || SendMessageW(control, LB_GETITEMHEIGHT, 0, 0) >= TextSize(control, "Ag", 1000).bottom);
        if (!IsOfClass(control, L"Static") && !IsOfClass(control, L"Button"))
            continue;
        const RECT needed = TextSize(control, TextOf(control), place.right - place.left);
        const LONG edge = IsOfClass(control, L"Button") ? TextSize(control, "x", 100).right : 0; // left and right
        EXPECT_LE(needed.right + 2 * edge, place.right - place.left);
        EXPECT_LE(needed.bottom, place.bottom - place.top + 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, SheetLayout, testing::Combine(testing::Range(0, 4), testing::Values("en", "de")));

} // namespace

// The dialog templates of the built TELMAR_S.DLL, opened as windows in each language: they have the controls that
// the dialogs use, by their published numbers, with access keys, texts that fit, aligned groups and no overlaps.
// Also run at other resolutions.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>
#include <windows.h>

#include <commctrl.h>

namespace {

// --- What the dialogs use ----------------------------------------------------------------------------------

// clang-format off
const std::tuple<const wchar_t*, DWORD, DWORD, std::set<uint32_t>> kLooks[] = {
    // class; of the style: its low four bits, others that it must have; the controls
    {L"ComboBox", CBS_DROPDOWNLIST, CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP,
     {1504, 1354, 1335, 1599, 1332, 1509, 1353, 1334, 1592, 1330, 1513, 1516, 1519, 1584, 1522, 1524, 1627, 1525, 1634,
      1860, 1862, 1003, 1086, 1091, 1094}},
    {L"SysListView32", LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
     LVS_OWNERDRAWFIXED | LVS_SHAREIMAGELISTS | WS_TABSTOP, {1844}}, // the dialog destroys its images
    {L"Button", BS_GROUPBOX,        WS_GROUP,              {1501, 1506, 1473, 1523, 1630}},
    {L"Button", BS_AUTOCHECKBOX,    WS_TABSTOP,            {1526}},
    {L"Button", BS_PUSHBUTTON,      WS_TABSTOP,            {1393, 1528, 1032, IDCANCEL, IDHELP}},
    {L"Button", BS_DEFPUSHBUTTON,   WS_TABSTOP,            {IDOK}},
    {L"Button", BS_AUTORADIOBUTTON, WS_GROUP | WS_TABSTOP, {1477}},
    {L"Button", BS_AUTORADIOBUTTON, 0,                     {1475}},
    {L"Static", 0,                  SS_ETCHEDHORZ,         {1069}},
};
std::map<uint32_t, std::pair<uint32_t, uint32_t>> labelsAndIcons = { // 0: none
    {1504, {1502, 1503}}, {1354, {1468, 1402}}, {1335, {1469, 1403}}, {1599, {1597, 1601}}, {1332, {1471, 1401}},
    {1509, {1507, 1508}}, {1353, {1465, 1505}}, {1334, {1466, 1510}}, {1592, {1589, 1594}}, {1330, {1467, 1400}},
    {1513, {1511, 1512}}, {1516, {1514, 1515}}, {1519, {1517, 1518}}, {1584, {1582, 1587}}, {1522, {1520, 1521}},
    {1524, {1398, 1482}}, {1627, {1625, 1629}}, {1525, {1408, 1486}}, {1634, {1632, 1636}}, {1860, {1859, 0}},
    {1862, {1861, 0}}, {1003, {1005, 0}}, {1086, {1084, 0}}, {1091, {1089, 0}}, {1094, {1097, 0}}, {1844, {1845, 0}},
    {1526, {0, 1527}}, {1393, {0, 1530}}, {1528, {0, 1529}},
};

#define IMAGE_LISTS 1501, 1504, 1354, 1332
#define TEXT_LISTS 1506, 1509, 1353, 1334, 1330
#define FOLLOWING 1473, 1477, 1475
#define SIMULATION 1523, 1524, 1627, 1526, 1393, 1528
#define FOOTER 1069, 1032, 1, 2, 9
const std::pair<const uint32_t, std::vector<uint32_t>> kDialogs[] = { // without labels and icons, in any order
    {122, {IMAGE_LISTS, 1335, TEXT_LISTS, FOLLOWING, SIMULATION, 1630, 1525, FOOTER}},
    {123, {IMAGE_LISTS, 1335, TEXT_LISTS, FOLLOWING, FOOTER}},
    {124, {IMAGE_LISTS, TEXT_LISTS, FOLLOWING, SIMULATION, FOOTER}},
    {125, {1634, 1501, 1354, 1332, 1506, 1353, 1334, 1330, FOLLOWING, FOOTER}},
    {128, {IMAGE_LISTS, 1335, 1599, TEXT_LISTS, 1592, 1473, 1513, 1516, 1519, 1584, 1522, SIMULATION, FOOTER}},
    {155, {1844, 1860, 1862, 1003, 1086, 1091, 1094, 1, 2, 9}}, {165, {1844, 1860, 1862, 1003, 1091, 1094, 1, 2, 9}},
    {166, {1844, 1860, 1862, 1003, 1, 2, 9}},
};
// clang-format on

// --- What the library has ----------------------------------------------------------------------------------

bool Meets(RECT one, const RECT& other, int reach) {
    InflateRect(&one, reach, reach);
    return IntersectRect(&one, &one, &other);
}

bool Contains(const RECT& outer, const RECT& inner) {
    RECT common;
    return IntersectRect(&common, &outer, &inner) && EqualRect(&common, &inner);
}

struct Control {
    explicit Control(HWND window) : id(static_cast<uint32_t>(GetDlgCtrlID(window))) {
        wchar_t buffer[200];
        text.assign(buffer, static_cast<size_t>(GetWindowTextW(window, buffer, 200)));
        className.assign(buffer, static_cast<size_t>(GetClassNameW(window, buffer, 200)));
        GetWindowRect(window, &area);
        LONG bits = GetWindowLongW(window, GWL_STYLE);
        COMBOBOXINFO list = {sizeof(list), {}, {}, 0, nullptr, nullptr, nullptr};
        if (GetComboBoxInfo(window, &list)) {
            for (int i = 0; i < 40; ++i) // more than fit: the list shows its scroll bar
                SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
            bits |= GetWindowLongW(list.hwndList, GWL_STYLE) & WS_VSCROLL;
        }
        style = static_cast<DWORD>(bits);
        key = text.find(L'&') < text.size() ? text.at(text.find(L'&') + 1) : 0;
        RECT needed = {};
        const HDC dc = GetDC(window);
        const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
        DrawTextW(dc, text.c_str(), -1, &needed, DT_CALCRECT | DT_SINGLELINE);
        SelectObject(dc, before);
        ReleaseDC(window, dc);
        textWidth = needed.right;
    }
    bool IsGroup() const { return className == L"Button" && (style & 0xF) == BS_GROUPBOX; }
    // What the control shows next to its text: nothing, a frame, or a square to check.
    LONG Extra() const { return className != L"Button" ? 0 : (style & 0xF) <= BS_DEFPUSHBUTTON ? 8 : 20; }

    DWORD style;
    RECT area; // on the screen
    LONG textWidth;
    uint32_t id;
    std::wstring className, text;
    wchar_t key; // 0: none
};

using DialogControls = std::pair<const uint32_t, std::vector<uint32_t>>;

struct Templates : testing::TestWithParam<std::tuple<DialogControls, LANGID>> {
    void SetUp() override {
        InitCommonControls();
        SetThreadLocale(MAKELCID(std::get<LANGID>(GetParam()), SORT_DEFAULT));
        SetThreadUILanguage(std::get<LANGID>(GetParam()));
        const DLGPROC ignore = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; };
        dialog = CreateDialogParamW(library, MAKEINTRESOURCEW(Wanted().first), nullptr, ignore, 0);
        ASSERT_NE(dialog, nullptr);
        for (HWND at = GetWindow(dialog, GW_CHILD); at != nullptr; at = GetWindow(at, GW_HWNDNEXT))
            controls.emplace_back(at);
    }
    ~Templates() override {
        DestroyWindow(dialog);
        FreeLibrary(library);
    }
    static const DialogControls& Wanted() { return std::get<0>(GetParam()); }
    size_t IndexOf(uint32_t id) const {
        const auto hasId = [id](const Control& control) { return control.id == id; };
        return static_cast<size_t>(std::find_if(controls.begin(), controls.end(), hasId) - controls.begin());
    }

    const HMODULE library = LoadLibraryW(L"TELMAR_S.DLL");
    HWND dialog = nullptr;
    std::vector<Control> controls; // in the order of the template
};
INSTANTIATE_TEST_SUITE_P(, Templates, testing::Combine(testing::ValuesIn(kDialogs), testing::Values(0x409, 0x407)));

TEST_P(Templates, HaveTheControlsOfTheirDialogsOnly) {
    std::multiset<uint32_t> expectedIds, ids;
    for (const Control& control : controls)
        ids.insert(control.id);
    for (const uint32_t id : Wanted().second) {
        const auto [label, icon] = labelsAndIcons[id];
        const size_t index = IndexOf(id);
        ASSERT_LT(index, controls.size()) << id;
        const Control& control = controls[index];
        bool isAsExpected = false;
        for (const auto& [className, type, flags, withIt] : kLooks)
            isAsExpected |= withIt.count(id) != 0 && control.className == className && (control.style & 0xF) == type
                            && (control.style & flags) == flags;
        EXPECT_TRUE(isAsExpected) << id;
        EXPECT_TRUE(label == 0 || IndexOf(label) + 1 == index) << label;
        EXPECT_TRUE(id != 1475 || // the arrow keys choose between the two radio buttons only
                    (index == IndexOf(1477) + 1 && (controls[index + 1].style & ~control.style & WS_GROUP)));
        expectedIds.insert({id, label, icon});
        const Control& iconControl = controls.at(icon != 0 ? IndexOf(icon) : index);
        EXPECT_TRUE(icon == 0 || (iconControl.style & SS_TYPEMASK) == SS_OWNERDRAW) << icon;
        EXPECT_TRUE(Meets(iconControl.area, control.area, 8)) << icon;
    }
    expectedIds.erase(0);
    ids.erase(UINT32_MAX); // of controls that the dialogs do not use
    EXPECT_EQ(ids, expectedIds);
}

TEST_P(Templates, AccessKeysAreCompleteAndUnique) {
    std::set<wint_t> keys;
    for (const Control& control : controls) {
        const bool isBottomButton = control.id == IDOK || control.id == IDCANCEL || control.id == IDHELP;
        EXPECT_EQ(control.key != 0, !control.text.empty() && !control.IsGroup() && !isBottomButton) << control.id;
        EXPECT_TRUE(control.key == 0 || keys.insert(towupper(control.key)).second) << control.id;
    }
}

TEST_P(Templates, ControlsKeepTheMarginAndDoNotOverlap) {
    RECT area, margin = {7, 7, 0, 0};
    MapDialogRect(dialog, &margin);
    GetClientRect(dialog, &area);
    MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&area), 2);
    InflateRect(&area, 2 - margin.left, 2 - margin.top); // 2 pixels: rounding
    for (auto one = controls.begin(); one != controls.end(); ++one) {
        EXPECT_TRUE(Contains(area, one->area)) << one->id;
        for (auto other = one + 1; other != controls.end(); ++other)
            EXPECT_TRUE(!Meets(one->area, other->area, 0) || (one->IsGroup() && Contains(one->area, other->area)))
                << one->id << " and " << other->id;
    }
}

TEST_P(Templates, TextsAreInTheLanguageAndFit) {
    const std::wstring cancel = controls[IndexOf(IDCANCEL)].text;
    EXPECT_EQ(cancel, std::get<LANGID>(GetParam()) == 0x407 ? L"Abbrechen" : L"Cancel");
    for (const Control& control : controls) {
        const RECT& area = control.area;
        EXPECT_LE(control.textWidth + control.Extra(), area.right - area.left) << control.id;
    }
}

TEST_P(Templates, EdgesOfGroupsMeetAndNoGroupHasAnEmptyRow) {
    constexpr LONG RECT::*kEdges[] = {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom};
    RECT row = {0, 0, 0, 28}; // the distance of two lists
    MapDialogRect(dialog, &row);
    for (const Control& group : controls) {
        LONG lowest = group.area.top;
        for (const Control& other : controls) {
            if (group.IsGroup() && other.IsGroup())
                for (const auto edge : kEdges)
                    EXPECT_TRUE(group.area.*edge == other.area.*edge || abs(group.area.*edge - other.area.*edge) > 3)
                        << group.id << " and " << other.id;
            else if (Contains(group.area, other.area))
                lowest = std::max(lowest, other.area.bottom);
        }
        EXPECT_TRUE(!group.IsGroup() || group.area.bottom - lowest < row.bottom) << group.id;
    }
    RECT frame = {};
    GetWindowRect(dialog, &frame);
    const HDC dc = GetDC(nullptr);
    EXPECT_LE((frame.bottom - frame.top) * 144 / GetDeviceCaps(dc, LOGPIXELSY), 700) << "pixels at 144 dpi";
    ReleaseDC(nullptr, dc);
}

} // namespace

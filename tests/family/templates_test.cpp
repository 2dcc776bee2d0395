// The dialog templates of the built TELMAR_S.DLL, read octet by octet: do they hold what the dialogs address,
// can the keyboard reach it, does it fit?
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

#include <commctrl.h>

namespace {

// --- What the dialogs address ------------------------------------------------------------------------------

enum Kind : uint16_t { kNamed = 0, kButton = 0x80, kCombo = 0x85 }; // classes of controls

struct Look {
    Kind kind;
    DWORD type, flags; // of the style: its low four bits, others that it must have
};
// clang-format off
constexpr Look kGroup   = {kButton, BS_GROUPBOX,        WS_GROUP};
constexpr Look kCheck   = {kButton, BS_AUTOCHECKBOX,    WS_TABSTOP};
constexpr Look kPush    = {kButton, BS_PUSHBUTTON,      WS_TABSTOP};
constexpr Look kDefault = {kButton, BS_DEFPUSHBUTTON,   WS_TABSTOP};
constexpr Look kRadio   = {kButton, BS_AUTORADIOBUTTON, WS_GROUP | WS_TABSTOP};
constexpr Look kSecond  = {kButton, BS_AUTORADIOBUTTON, 0};
constexpr Look kLine    = {kNamed,  0,                  SS_ETCHEDHORZ};
constexpr Look kList    = {kCombo,  CBS_DROPDOWNLIST,   CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP};
constexpr Look kView    = {kNamed,  LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                           LVS_OWNERDRAWFIXED | LVS_SHAREIMAGELISTS | WS_TABSTOP}; // the dialog destroys its images

struct Expected { Look look; uint32_t label, icon; }; // 0: none
const std::map<uint32_t, Expected> kControls = {
    {1504, {kList, 1502, 1503}}, {1354, {kList, 1468, 1402}}, {1335, {kList, 1469, 1403}}, {1599, {kList, 1597, 1601}},
    {1332, {kList, 1471, 1401}}, {1509, {kList, 1507, 1508}}, {1353, {kList, 1465, 1505}}, {1334, {kList, 1466, 1510}},
    {1592, {kList, 1589, 1594}}, {1330, {kList, 1467, 1400}}, {1513, {kList, 1511, 1512}}, {1516, {kList, 1514, 1515}},
    {1519, {kList, 1517, 1518}}, {1584, {kList, 1582, 1587}}, {1522, {kList, 1520, 1521}}, {1524, {kList, 1398, 1482}},
    {1627, {kList, 1625, 1629}}, {1525, {kList, 1408, 1486}}, {1634, {kList, 1632, 1636}}, {1860, {kList, 1859, 0}},
    {1862, {kList, 1861, 0}},    {1003, {kList, 1005, 0}},    {1086, {kList, 1084, 0}},    {1091, {kList, 1089, 0}},
    {1094, {kList, 1097, 0}},    {1844, {kView, 1845, 0}},    {1526, {kCheck, 0, 1527}},   {1393, {kPush, 0, 1530}},
    {1528, {kPush, 0, 1529}},    {1032, {kPush, 0, 0}},       {IDCANCEL, {kPush, 0, 0}},   {IDHELP, {kPush, 0, 0}},
    {IDOK, {kDefault, 0, 0}},    {1477, {kRadio, 0, 0}},      {1475, {kSecond, 0, 0}},     {1069, {kLine, 0, 0}},
    {1501, {kGroup, 0, 0}},      {1506, {kGroup, 0, 0}},      {1473, {kGroup, 0, 0}},      {1523, {kGroup, 0, 0}},
    {1630, {kGroup, 0, 0}},
};

const std::pair<const uint32_t, std::vector<uint32_t>> kDialogs[] = { // without labels and icons
    {122, {1501, 1504, 1354, 1335, 1332, 1506, 1509, 1353, 1334, 1330, 1473, 1477, 1475, 1523, 1524, 1627, 1526, 1630, 1525, 1393, 1528, 1069, 1032, 1, 2, 9}},
    {123, {1501, 1504, 1354, 1335, 1332, 1506, 1509, 1353, 1334, 1330, 1473, 1477, 1475, 1069, 1032, 1, 2, 9}},
    {124, {1501, 1504, 1354, 1332, 1506, 1509, 1353, 1334, 1330, 1473, 1477, 1475, 1523, 1524, 1627, 1526, 1393, 1528, 1069, 1032, 1, 2, 9}},
    {125, {1634, 1501, 1354, 1332, 1506, 1353, 1334, 1330, 1473, 1477, 1475, 1069, 1032, 1, 2, 9}},
    {128, {1501, 1504, 1354, 1335, 1599, 1332, 1506, 1509, 1353, 1334, 1592, 1330, 1473, 1513, 1516, 1519, 1584, 1522, 1523, 1524, 1627, 1526, 1393, 1528, 1069, 1032, 1, 2, 9}},
    {155, {1844, 1860, 1862, 1003, 1086, 1091, 1094, 1, 2, 9}},
    {165, {1844, 1860, 1862, 1003, 1091, 1094, 1, 2, 9}},
    {166, {1844, 1860, 1862, 1003, 1, 2, 9}},
};
// clang-format on

// --- What the library holds --------------------------------------------------------------------------------

bool Meets(RECT one, const RECT& other, int reach) {
    InflateRect(&one, reach, reach);
    return IntersectRect(&one, &one, &other);
}

bool Holds(const RECT& outer, const RECT& inner) {
    RECT common;
    return IntersectRect(&common, &outer, &inner) && EqualRect(&common, &inner);
}

struct Control {
    DWORD style;
    RECT area;
    uint32_t id;
    uint16_t kind;
    std::wstring text; // without the mark of its access key
    wchar_t key;       // 0: none
    bool IsGroup() const { return kind == kButton && (style & 0xF) == BS_GROUPBOX; }
};

template <typename Value>
Value Take(const char*& at) {
    at += sizeof(Value);
    return reinterpret_cast<const Value*>(at)[-1];
}

RECT TakeArea(const char*& at) {
    const auto place = Take<std::array<int16_t, 4>>(at);
    return {place[0], place[1], place[0] + place[2], place[1] + place[3]};
}

std::wstring TakeText(const char*& at) { // 0xFFFF and a number, where a number stands in its place
    const auto first = reinterpret_cast<const wchar_t*>(at);
    const std::wstring text = *first == 0xFFFF ? std::wstring(first, 2) : std::wstring(first);
    at += (text.size() + (*first == 0xFFFF ? 0 : 1)) * sizeof(wchar_t);
    return text;
}

struct Templates : testing::TestWithParam<std::pair<const uint32_t, std::vector<uint32_t>>> {
    void SetUp() override {
        const HMODULE library = LoadLibraryExW(L"TELMAR_S.DLL", nullptr, LOAD_LIBRARY_AS_DATAFILE);
        const HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(GetParam().first), RT_DIALOG);
        ASSERT_NE(found, nullptr);
        const auto octets = static_cast<const char*>(LockResource(LoadResource(library, found)));
        const char* at = octets;
        ASSERT_EQ(Take<uint32_t>(at), 0xFFFF0001u); // the extended form
        at += 12;                                   // help, extended style, style
        controls.resize(Take<uint16_t>(at));
        area = TakeArea(at);
        for (int text = 0; text < 3; ++text) // menu, class, title
            TakeText(at);
        at += 6;      // size, weight, slant and character set of the font
        TakeText(at); // its name
        for (Control& control : controls) {
            at += ((octets - at) & 3) + 8; // help, extended style
            control = {Take<DWORD>(at), TakeArea(at), Take<uint32_t>(at), kNamed, {}, 0};
            const std::wstring name = TakeText(at);
            control.kind = name[0] == 0xFFFF ? name[1] : +kNamed;
            control.text = TakeText(at);
            at += 2; // further data: none
            if (const size_t mark = control.text.find(L'&'); mark != control.text.npos) {
                control.key = control.text.at(mark + 1);
                control.text.erase(mark, 1);
            }
            if (control.kind == kCombo)
                control.area.bottom = control.area.top + 14; // closed; the template's is with its entries
        }
        FreeLibrary(library);
    }
    size_t IndexOf(uint32_t id) const {
        const auto hasId = [id](const Control& control) { return control.id == id; };
        return static_cast<size_t>(std::find_if(controls.begin(), controls.end(), hasId) - controls.begin());
    }

    RECT area;
    std::vector<Control> controls;
};
INSTANTIATE_TEST_SUITE_P(, Templates, testing::ValuesIn(kDialogs));

TEST_P(Templates, HoldTheDialogsControlsEachAfterItsLabelAndBesideItsIconAndNoOther) {
    std::multiset<uint32_t> expectedIds, ids;
    for (const Control& control : controls)
        ids.insert(control.id);
    for (const uint32_t id : GetParam().second) {
        const auto& [look, label, icon] = kControls.at(id);
        const size_t index = IndexOf(id);
        ASSERT_LT(index, controls.size()) << id;
        const Control& control = controls[index];
        EXPECT_TRUE(control.kind == look.kind && (control.style & 0xF) == look.type) << id;
        EXPECT_EQ(control.style & look.flags, look.flags) << id;
        EXPECT_TRUE(label == 0 || IndexOf(label) + 1 == index) << label;
        EXPECT_TRUE(id != 1475 || // the arrow keys choose between the two radio buttons only
                    (index == IndexOf(1477) + 1 && (controls[index + 1].style & ~control.style & WS_GROUP)));
        expectedIds.insert({id, label, icon});
        const Control& iconControl = controls.at(icon != 0 ? IndexOf(icon) : index);
        EXPECT_TRUE(icon == 0 || (iconControl.style & SS_TYPEMASK) == SS_OWNERDRAW) << icon;
        EXPECT_TRUE(Meets(iconControl.area, control.area, 4)) << icon;
    }
    expectedIds.erase(0);
    ids.erase(UINT32_MAX); // that of controls which nobody addresses
    EXPECT_EQ(ids, expectedIds);
}

TEST_P(Templates, EveryTextThatLeadsSomewhereHasAnAccessKeyOfItsOwn) {
    std::set<wint_t> keys;
    for (const Control& control : controls) {
        const bool isBottomButton = control.id == IDOK || control.id == IDCANCEL || control.id == IDHELP;
        EXPECT_EQ(control.key != 0, !control.text.empty() && !control.IsGroup() && !isBottomButton)
            << control.id;
        EXPECT_TRUE(control.key == 0 || keys.insert(towupper(control.key)).second) << control.id;
    }
}

TEST_P(Templates, ControlsLieInsideTheMarginAndApart) {
    InflateRect(&area, -7, -7);
    for (auto one = controls.begin(); one != controls.end(); ++one) {
        EXPECT_TRUE(Holds(area, one->area)) << one->id;
        for (auto other = one + 1; other != controls.end(); ++other)
            EXPECT_TRUE(!Meets(one->area, other->area, 0)
                        || (one->IsGroup() && Holds(one->area, other->area)))
                << one->id << " and " << other->id;
    }
}

} // namespace

// Entries of the colour dialogs' lists, drawn into bitmaps and compared with bitmaps drawn by hand.
#include "dialogs/color/color_driver.h"
#include "dialogs/pictures.h"

namespace {

struct DialogDrawing : ColorDriver, Pictures {
    explicit DialogDrawing(const ColorDialogCase& wantedDialog = kColorDialogs[0])
        : ColorDriver(wantedDialog), Pictures(220, 30) {
        Open();
    }

    DRAWITEMSTRUCT Item(int list, ULONG_PTR data, UINT action, UINT state) const {
        return {ODT_COMBOBOX, static_cast<UINT>(list), 0, action, state, Control(list), nullptr, kPlace, data};
    }

    // Draws it on a cleared canvas.
    Answer Draw(DRAWITEMSTRUCT item, bool hasHandledFlag = true) {
        Clear();
        item.hDC = got.dc;
        return DeliverTo(dialogId, window, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item), hasHandledFlag);
    }
};
struct Drawing : testing::Test, DialogDrawing {};

TEST_F(Drawing, BackgroundAndTextByState) {
    const std::tuple<UINT, UINT, int, int> kCases[] = {
        // type, state; background, text
        {ODT_COMBOBOX, 0, COLOR_WINDOW, COLOR_WINDOWTEXT},
        {ODT_COMBOBOX, ODS_SELECTED, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT},
        {ODT_COMBOBOX, ODS_DISABLED, COLOR_BTNFACE, COLOR_GRAYTEXT},
        {ODT_COMBOBOX, ODS_SELECTED | ODS_DISABLED, COLOR_INACTIVECAPTION, COLOR_HIGHLIGHTTEXT},
        {ODT_LISTBOX, 0, COLOR_WINDOW, COLOR_WINDOWTEXT},
        {ODT_LISTBOX, ODS_SELECTED, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT},
        {ODT_LISTBOX, ODS_DISABLED, COLOR_WINDOW, COLOR_GRAYTEXT},
        {ODT_LISTBOX, ODS_SELECTED | ODS_DISABLED, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT},
    };
    std::set<COLORREF> colors;
    for (const int color : {COLOR_WINDOW, COLOR_HIGHLIGHT, COLOR_BTNFACE, COLOR_INACTIVECAPTION})
        colors.insert(GetSysColor(color));
    ASSERT_EQ(colors.size(), 4u);
    for (const auto& [type, state, background, textColor] : kCases)
        for (const UINT edit : {0u, UINT{ODS_COMBOBOXEDIT}})
            for (const UINT action : {ODA_DRAWENTIRE, ODA_SELECT, ODA_SELECT | ODA_FOCUS, ODA_FOCUS}) {
                SCOPED_TRACE(testing::Message() << type << " " << state << " " << edit << " " << action);
                DRAWITEMSTRUCT item = Item(1353, 2, action, state | edit);
                item.CtlType = type;
                EXPECT_EQ(Draw(item), (Answer{1, 1}));
                if (action != ODA_FOCUS) {
                    WantBackground(background);
                    WantText(L"Proof", edit != 0 ? 0 : 20, textColor);
                }
                if ((action & ODA_FOCUS) != 0)
                    WantFocus();
                EXPECT_TRUE(SamePicture(got, wanted));
            }
}

TEST_F(Drawing, TextFollowsTheItemData) {
    const std::tuple<int, LONG_PTR, std::wstring> kCases[] = {
        {1504, 1, L"sRGB"},
        {1509, 256, L"Camera Hard disk"},
        {1513, 257, L"Scanner (Office) Memory"},
        {1504, 258, L""},
        {1504, -1, L""},
        {1524, 5, L"DIC"},
        {1524, 129, L"Sim B (Q) "},
        {1524, 6, L""},
        {1584, 129, L"Press B (Coated) Built in, hard disk"},
        {1354, 128, L""},
    };
    for (const auto& [list, data, text] : kCases) {
        SCOPED_TRACE(testing::Message() << list << ", data " << data);
        Draw(Item(list, static_cast<ULONG_PTR>(data), ODA_DRAWENTIRE, 0));
        WantBackground(COLOR_WINDOW);
        WantText(text, 20, COLOR_WINDOWTEXT);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    failingAllocation = 1;
    Draw(Item(1592, 128, ODA_DRAWENTIRE, 0));
    WantBackground(COLOR_WINDOW);
    EXPECT_TRUE(SamePicture(got, wanted));
}

TEST(BasicDialog, DrawsProfilesAlthoughItListsNone) {
    DialogDrawing basic(kColorDialogs[5]);
    basic.Draw(basic.Item(1504, 256, ODA_DRAWENTIRE, 0));
    basic.WantBackground(COLOR_WINDOW);
    basic.WantText(L"Camera Hard disk", 20, COLOR_WINDOWTEXT);
    EXPECT_TRUE(SamePicture(basic.got, basic.wanted));
}

// The text then is to the right of the icon in the edit field, too.
TEST_F(Drawing, ItemsWithAnIconShowIt) {
    FindItem("Text_Proof")[40] = 1;
    for (const UINT edit : {0u, UINT{ODS_COMBOBOXEDIT}}) {
        events.clear();
        DRAWITEMSTRUCT item = Item(1353, 2, ODA_DRAWENTIRE, edit);
        Draw(item);
        EXPECT_EQ(Events({"LoadIcon", "DestroyIcon"}), "LoadIcon 32515\nDestroyIcon\n");
        WantBackground(COLOR_WINDOW);
        DrawIconEx(wanted.dc, kPlace.left, kPlace.top, LoadIconW(nullptr, IDI_WARNING), 16, 16, 0, nullptr, DI_NORMAL);
        WantText(L"Proof", 20, COLOR_WINDOWTEXT);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    events.clear();
    Draw(Item(1353, 1, ODA_DRAWENTIRE, 0));
    EXPECT_EQ(Events({"LoadIcon"}), "");
}

TEST_F(Drawing, FocusRectangle) {
    const auto draws = [this](int list, UINT action, UINT state) {
        Draw(Item(list, 999, action, state));
        if (action != ODA_FOCUS && action != 0)
            WantBackground(COLOR_WINDOW);
        const bool isPlain = IsSamePicture(got, wanted);
        WantFocus();
        EXPECT_NE(isPlain, IsSamePicture(got, wanted));
        return !isPlain;
    };
    SetFocus(Control(1504));
    ASSERT_EQ(GetFocus(), Control(1504));
    EXPECT_FALSE(draws(1504, ODA_DRAWENTIRE, 0));
    EXPECT_TRUE(draws(1504, ODA_DRAWENTIRE, ODS_FOCUS));
    EXPECT_TRUE(draws(1504, ODA_SELECT, ODS_FOCUS));
    EXPECT_TRUE(draws(1504, 0, ODS_FOCUS));
    EXPECT_FALSE(draws(1354, ODA_DRAWENTIRE, ODS_FOCUS));
    EXPECT_TRUE(draws(1354, ODA_FOCUS, 0));
    for (const UINT action : {ODA_DRAWENTIRE, ODA_SELECT, ODA_FOCUS}) { // an empty list
        DRAWITEMSTRUCT item = Item(1354, 1, action, ODS_SELECTED);
        item.itemID = ~0u;
        EXPECT_EQ(Draw(item), (Answer{1, 1}));
        WantFocus();
        EXPECT_TRUE(SamePicture(got, wanted));
    }
}

TEST_F(Drawing, EntriesAreDrawnOnlyWithAHandledFlag) {
    for (const int control : dialog.controls) {
        const bool isList = control != kBox;
        EXPECT_EQ(Draw(Item(control, 0, ODA_DRAWENTIRE, 0), false).first, isList);
        EXPECT_TRUE(SamePicture(got, wanted)) << control;
        EXPECT_EQ(Draw(Item(control, 0, ODA_DRAWENTIRE, 0)), (Answer{isList, isList ? 1 : kUntouched}));
        EXPECT_EQ(IsSamePicture(got, wanted), !isList) << control;
    }
}

} // namespace

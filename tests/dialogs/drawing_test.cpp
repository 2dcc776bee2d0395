// Entries of the lists of dialog 128, rows of the tray list and entries of its boxes, drawn into bitmaps and
// compared with bitmaps drawn by hand.
#include "canvas.h"
#include "full_dialog.h"
#include "tray_driver.h"

namespace {

constexpr RECT kPlace = {30, 7, 190, 23};

// What the module draws, and what it should.
struct Pictures {
    Pictures(int width, int height) : got(width, height), wanted(width, height) {}

    void Clear() {
        got.Clear();
        wanted.Clear();
    }
    void WantFill(const RECT& area, COLORREF color) const {
        HBRUSH brush = CreateSolidBrush(color);
        FillRect(wanted.dc, &area, brush);
        DeleteObject(brush);
    }
    void WantTextIn(int color) const {
        SetBkMode(wanted.dc, TRANSPARENT);
        SetTextColor(wanted.dc, GetSysColor(color));
    }
    // Of an entry in its place.
    void WantBackground(int color) const { WantFill(kPlace, GetSysColor(color)); }
    void WantText(const std::wstring& text, int indent, int color) const {
        WantTextIn(color);
        TextOutW(wanted.dc, kPlace.left + indent, kPlace.top + 1, text.c_str(),
                 static_cast<int>(text.size()));
    }
    void WantFocus(const RECT& area = kPlace) const { DrawFocusRect(wanted.dc, &area); }

    Canvas got, wanted;
};

struct Drawing : FullDialog, Pictures {
    Drawing() : Pictures(220, 30) { Open(); }

    DRAWITEMSTRUCT Item(int list, ULONG_PTR data, UINT action, UINT state) const {
        return {ODT_COMBOBOX, static_cast<UINT>(list), 0, action, state, Control(list), nullptr, kPlace,
                data};
    }

    // Draws it on a canvas of the ground's colour.
    Answer Draw(DRAWITEMSTRUCT item, bool isAsked = true) {
        Clear();
        item.hDC = got.dc;
        int32_t handled = kUntouched;
        return Ask(128, window, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item),
                   isAsked ? &handled : nullptr);
    }
};

TEST_F(Drawing, BackgroundAndTextByState) {
    const struct {
        UINT type, state;
        int background, text;
    } cases[] = {
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
    for (const auto& row : cases)
        for (const UINT edit : {0u, UINT{ODS_COMBOBOXEDIT}})
            for (const UINT action : {ODA_DRAWENTIRE, ODA_SELECT, ODA_SELECT | ODA_FOCUS, ODA_FOCUS}) {
                SCOPED_TRACE(testing::Message()
                             << row.type << " " << row.state << " " << edit << " " << action);
                DRAWITEMSTRUCT item = Item(1353, 2, action, row.state | edit);
                item.CtlType = row.type;
                EXPECT_EQ(Draw(item), (Answer{1, 1}));
                if (action != ODA_FOCUS) {
                    WantBackground(row.background);
                    WantText(L"Proof", edit != 0 ? 0 : 20, row.text);
                }
                if ((action & ODA_FOCUS) != 0)
                    WantFocus();
                EXPECT_TRUE(SamePicture(got, wanted));
            }
}

TEST_F(Drawing, TextByItemData) {
    const struct {
        int list;
        LONG_PTR data;
        std::wstring text;
    } cases[] = {
        {1504, 1, L"sRGB"},
        {1509, 256, L"Camera Hard disk"},
        {1513, 257, L"Scanner (Office) Memory"},
        {1504, 258, L""},
        {1504, 255, L""},
        {1504, -1, L""},
        {1599, 0, L"Automatic"},
        {1584, 129, L"Press B (Coated) Built in, hard disk"},
        {1524, 5, L"DIC"},
        {1524, 129, L"Sim B (Q) "},
        {1524, 6, L""},
        {1354, 128, L""},
        {1627, 1, L"Black and grey"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.list << ", data " << row.data);
        Draw(Item(row.list, static_cast<ULONG_PTR>(row.data), ODA_DRAWENTIRE, 0));
        WantBackground(COLOR_WINDOW);
        WantText(row.text, 20, COLOR_WINDOWTEXT);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    failingAllocation = 1;
    Draw(Item(1592, 128, ODA_DRAWENTIRE, 0));
    WantBackground(COLOR_WINDOW);
    EXPECT_TRUE(SamePicture(got, wanted));
}

// The text then stands beside the icon in the edit field, too.
TEST_F(Drawing, IconOfAnItemThatHasOne) {
    FindItem("Text_Proof")[40] = 1;
    for (const UINT edit : {0u, UINT{ODS_COMBOBOXEDIT}}) {
        events.clear();
        DRAWITEMSTRUCT item = Item(1353, 2, ODA_DRAWENTIRE, edit);
        Draw(item);
        EXPECT_EQ(Events({"LoadIcon", "DestroyIcon"}), "LoadIcon 32515\nDestroyIcon\n");
        WantBackground(COLOR_WINDOW);
        DrawIconEx(wanted.dc, kPlace.left, kPlace.top, LoadIconW(nullptr, IDI_WARNING), 16, 16, 0, nullptr,
                   DI_NORMAL);
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

TEST_F(Drawing, EntriesForThoseWhoAskWhetherTheyAreHandled) {
    for (const FullControl& control : kFull) {
        const bool isList = control.id != kBox;
        EXPECT_EQ(Draw(Item(control.id, 0, ODA_DRAWENTIRE, 0), false).result, isList);
        EXPECT_TRUE(SamePicture(got, wanted)) << control.id;
        EXPECT_EQ(Draw(Item(control.id, 0, ODA_DRAWENTIRE, 0)), (Answer{isList, isList ? 1 : kUntouched}));
        EXPECT_EQ(IsSamePicture(got, wanted), !isList) << control.id;
    }
}

struct RowDrawing : testing::Test, Trays, Pictures {
    RowDrawing() : Pictures(800, 260) {
        records.U16(2 * kTraySize + 38, 0xFFFF); // the third tray's orientation is not known
        PressButton();
        list = Control(kList);
        GetClientRect(list, &client);
        for (WPARAM i = 0; i < 7; ++i)
            List(LVM_SETCOLUMNWIDTH, i, widths[i]);
    }

    void Draw(int row, UINT state, UINT id) {
        bounds = {LVIR_BOUNDS, 0, 0, 0};
        List(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&bounds));
        Clear();
        DRAWITEMSTRUCT item = {ODT_LISTVIEW, kList, id, ODA_DRAWENTIRE, state, list, got.dc, bounds, 0};
        SetTextColor(got.dc, 0x123456);
        SetBkColor(got.dc, 0x654321);
        EXPECT_EQ(Tell(WM_DRAWITEM, kList, reinterpret_cast<LPARAM>(&item)), 1);
        EXPECT_EQ(GetTextColor(got.dc), 0x123456u) << "the state of the context is put back";
        EXPECT_EQ(GetBkColor(got.dc), 0x654321u);
    }
    void Draw(int row, UINT state) { Draw(row, state, static_cast<UINT>(row)); }

    // The row with the third column's icon: 0 portrait, 1 landscape.
    void WantRow(int row, COLORREF background, int textColor, int icon) {
        WantFill({bounds.left + 1, bounds.top, client.right - 1, bounds.bottom}, background);
        WantTextIn(textColor);
        TEXTMETRICW font = {};
        GetTextMetricsW(wanted.dc, &font);
        int left = bounds.left;
        for (int i = 0; i < 7; left += widths[i++]) {
            WantFill({left, bounds.top, left + widths[i], bounds.bottom}, background);
            const int indent = i == 2 ? 16 : 0;
            if (i == 2)
                ImageList_Draw(reinterpret_cast<HIMAGELIST>(List(LVM_GETIMAGELIST, LVSIL_SMALL)), icon,
                               wanted.dc, left, bounds.top, ILD_TRANSPARENT);
            const RECT cell = {left + indent, bounds.top, left + indent + widths[i], bounds.bottom};
            const std::wstring text = Cell(row, i);
            ExtTextOutW(wanted.dc, cell.left + LOWORD(GetDialogBaseUnits()) / 4,
                        (cell.top + cell.bottom - font.tmHeight) / 2, ETO_CLIPPED, &cell, text.c_str(),
                        static_cast<UINT>(text.size()), nullptr);
        }
    }

    const int widths[7] = {60, 80, 70, 90, 30, 40, 50}; // the last texts don't fit
    HWND list = nullptr;
    RECT client = {}, bounds = {};
};

TEST_F(RowDrawing, ColorsTextsAndIcons) {
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT), face = GetSysColor(COLOR_BTNFACE);
    const struct {
        int row;
        UINT state;
        COLORREF background;
        int text, icon;
    } cases[] = {
        {0, 0, 0xC0FFC0, COLOR_WINDOWTEXT, 0},      {1, 0, 0xC0FFC0, COLOR_WINDOWTEXT, 1},
        {2, 0, 0xC0FFC0, COLOR_WINDOWTEXT, 1},      {0, ODS_SELECTED, highlight, COLOR_HIGHLIGHTTEXT, 0},
        {1, ODS_DISABLED, face, COLOR_GRAYTEXT, 1}, {1, ODS_DISABLED | ODS_SELECTED, face, COLOR_GRAYTEXT, 1},
    };
    List(LVM_SETTEXTBKCOLOR, 0, 0xC0FFC0);
    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        Draw(row.row, row.state);
        WantRow(row.row, row.background, row.text, row.icon);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    for (const COLORREF none : {COLORREF{CLR_NONE}, COLORREF{CLR_DEFAULT}, COLORREF{0x01000000}}) {
        List(LVM_SETTEXTBKCOLOR, 0, none);
        Draw(6, 0);
        WantRow(6, GetSysColor(COLOR_WINDOW), COLOR_WINDOWTEXT, 0);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
}

TEST_F(RowDrawing, IconsAreThoseOfTheUserInterfaceModule) {
    const auto images = reinterpret_cast<HIMAGELIST>(List(LVM_GETIMAGELIST, LVSIL_SMALL));
    IMAGEINFO info = {};
    ImageList_GetImageInfo(images, 0, &info);
    EXPECT_EQ(std::pair(info.rcImage.right, info.rcImage.bottom), std::pair(16L, 16L));
    EXPECT_NE(info.hbmMask, nullptr);
    for (const int icon : {0, 1}) {
        HICON file =
            static_cast<HICON>(LoadImageW(GetModuleHandleW(L"TELMAR_U.DLL"), MAKEINTRESOURCEW(473 + icon),
                                          IMAGE_ICON, 16, 16, LR_DEFAULTCOLOR));
        Clear();
        ImageList_Draw(images, icon, got.dc, 5, 6, ILD_TRANSPARENT);
        DrawIconEx(wanted.dc, 5, 6, file, 16, 16, 0, nullptr, DI_NORMAL);
        EXPECT_TRUE(SamePicture(got, wanted)) << icon;
        DestroyIcon(file);
    }
}

TEST_F(RowDrawing, FocusRectangle) {
    const COLORREF plain = GetSysColor(COLOR_WINDOW); // the list has none of its own
    for (const bool hasFocus : {false, true}) {
        SetFocus(hasFocus ? list : Control(IDOK));
        for (const UINT state : {0u, UINT{ODS_FOCUS}}) {
            Draw(0, state);
            WantRow(0, plain, COLOR_WINDOWTEXT, 0);
            if (hasFocus && state != 0)
                WantFocus({bounds.left + 1, bounds.top + 1, client.right - 1, bounds.bottom - 1});
            EXPECT_TRUE(SamePicture(got, wanted)) << hasFocus << state;
        }
    }
    Draw(0, ODS_SELECTED, ~0u);
    WantFocus(bounds);
    EXPECT_TRUE(SamePicture(got, wanted));
}

TEST_F(RowDrawing, BoxEntriesAreTheirItems) {
    const auto draw = [this](int box, UINT entry, LRESULT data) {
        Clear();
        DRAWITEMSTRUCT item = {
            ODT_COMBOBOX, static_cast<UINT>(box),      entry, ODA_DRAWENTIRE, 0, Control(1094), got.dc,
            kPlace,       static_cast<ULONG_PTR>(data)};
        return Tell(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
    };
    EXPECT_EQ(draw(1094, 0, Send(1094, CB_GETITEMDATA, 1)), 1);
    WantBackground(COLOR_WINDOW);
    WantText(L"Pre-punched", 20, COLOR_WINDOWTEXT);
    EXPECT_TRUE(SamePicture(got, wanted));
    for (const Attribute& attribute : kAttributes) { // nothing is selected: the item data is nobody's
        EXPECT_EQ(draw(attribute.box, ~0u, -1), 1);
        WantFocus();
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    EXPECT_EQ(draw(1845, 0, 0), 0);
}

// What part of a row needs painting, the whole row is painted.
DLGPROC moduleProcedure;
RECT painted;
bool isErased;
INT_PTR CALLBACK NotePainting(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && wParam == kList)
        GetClipBox(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hDC, &painted);
    isErased |= message == WM_ERASEBKGND;
    return moduleProcedure(dialog, message, wParam, lParam);
}

TEST_F(RowDrawing, PaintsWholeRows) {
    List(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(CLR_NONE)); // erasing is left to the dialog
    ShowWindow(window, SW_SHOWNOACTIVATE);
    UpdateWindow(window);
    bounds = {LVIR_BOUNDS, 0, 0, 0};
    List(LVM_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&bounds));
    moduleProcedure = std::exchange(procedure, NotePainting);
    const RECT part = {200, bounds.top + 4, 210, bounds.top + 8};
    InvalidateRect(list, &part, FALSE);
    UpdateWindow(list);
    EXPECT_EQ(painted.left, 0);
    EXPECT_EQ(painted.right, client.right);
    EXPECT_EQ(painted.top, part.top);
    EXPECT_EQ(painted.bottom, part.bottom);
    EXPECT_FALSE(isErased) << "what is drawn over would flicker";
    procedure = moduleProcedure;
}

} // namespace

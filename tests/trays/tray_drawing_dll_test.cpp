// Rows of the tray list and entries of its boxes, drawn into bitmaps and compared with bitmaps drawn by hand.
#include "dialogs/pictures.h"
#include "trays/tray_driver.h"

namespace {

struct RowDrawing : testing::Test, Trays, Pictures {
    RowDrawing() : Pictures(800, 260) {
        records.U16(2 * kTraySize + 38, 0xFFFF); // the third tray: unknown orientation
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
        EXPECT_EQ(Deliver(WM_DRAWITEM, kList, reinterpret_cast<LPARAM>(&item)), 1);
        EXPECT_EQ(GetTextColor(got.dc), 0x123456u) << "the context is restored";
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
                ImageList_Draw(reinterpret_cast<HIMAGELIST>(List(LVM_GETIMAGELIST, LVSIL_SMALL)), icon, wanted.dc, left,
                               bounds.top, ILD_TRANSPARENT);
            const RECT cell = {left + indent, bounds.top, left + indent + widths[i], bounds.bottom};
            const std::wstring text = Cell(row, i);
            ExtTextOutW(wanted.dc, cell.left + LOWORD(GetDialogBaseUnits()) / 4,
                        (cell.top + cell.bottom - font.tmHeight) / 2, ETO_CLIPPED, &cell, text.c_str(),
                        static_cast<UINT>(text.size()), nullptr);
        }
    }

    const int widths[7] = {60, 80, 70, 90, 30, 40, 50}; // too narrow for the last texts
    HWND list = nullptr;
    RECT client = {}, bounds = {};
};

TEST_F(RowDrawing, ColorsTextsAndIcons) {
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT), face = GetSysColor(COLOR_BTNFACE);
    const std::tuple<int, UINT, COLORREF, int, int> kCases[] = {
        // row, state; background, text, icon
        {0, 0, 0xC0FFC0, COLOR_WINDOWTEXT, 0},      {1, 0, 0xC0FFC0, COLOR_WINDOWTEXT, 1},
        {2, 0, 0xC0FFC0, COLOR_WINDOWTEXT, 1},      {0, ODS_SELECTED, highlight, COLOR_HIGHLIGHTTEXT, 0},
        {1, ODS_DISABLED, face, COLOR_GRAYTEXT, 1}, {1, ODS_DISABLED | ODS_SELECTED, face, COLOR_GRAYTEXT, 1},
    };
    List(LVM_SETTEXTBKCOLOR, 0, 0xC0FFC0);
    for (const auto& [row, state, background, textColor, icon] : kCases) {
        SCOPED_TRACE(testing::Message() << row << ", state " << state);
        Draw(row, state);
        WantRow(row, background, textColor, icon);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    for (const COLORREF none : {COLORREF{CLR_NONE}, COLORREF{CLR_DEFAULT}, COLORREF{0x01000000}}) {
        List(LVM_SETTEXTBKCOLOR, 0, none);
        Draw(6, 0);
        WantRow(6, GetSysColor(COLOR_WINDOW), COLOR_WINDOWTEXT, 0);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
}

TEST_F(RowDrawing, UsesTheIconsOfTheUserInterfaceModule) {
    const auto images = reinterpret_cast<HIMAGELIST>(List(LVM_GETIMAGELIST, LVSIL_SMALL));
    IMAGEINFO info = {};
    ImageList_GetImageInfo(images, 0, &info);
    EXPECT_NE(info.hbmMask, nullptr);
    for (const int icon : {0, 1}) {
        HICON file = static_cast<HICON>(LoadImageW(GetModuleHandleW(L"TELMAR_U.DLL"), MAKEINTRESOURCEW(473 + icon),
                                                   IMAGE_ICON, 16, 16, LR_DEFAULTCOLOR));
        Clear();
        ImageList_Draw(images, icon, got.dc, 5, 6, ILD_TRANSPARENT);
        DrawIconEx(wanted.dc, 5, 6, file, 16, 16, 0, nullptr, DI_NORMAL);
        EXPECT_TRUE(SamePicture(got, wanted)) << icon;
        DestroyIcon(file);
    }
}

TEST_F(RowDrawing, FocusRectangle) {
    const COLORREF plain = GetSysColor(COLOR_WINDOW); // the list has no colour of its own
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
        return Deliver(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
    };
    EXPECT_EQ(draw(1094, 0, Send(1094, CB_GETITEMDATA, 1)), 1);
    WantBackground(COLOR_WINDOW);
    WantText(L"Pre-punched", 20, COLOR_WINDOWTEXT);
    EXPECT_TRUE(SamePicture(got, wanted));
    for (const Attribute& attribute : kAttributes) { // no selection: the item data is not read
        EXPECT_EQ(draw(attribute.box, ~0u, -1), 1);
        WantFocus();
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    EXPECT_EQ(draw(1845, 0, 0), 0);
}

// When part of a row needs painting, the whole row is painted.
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
    EXPECT_FALSE(isErased) << "it would flicker";
    procedure = moduleProcedure;
}

} // namespace

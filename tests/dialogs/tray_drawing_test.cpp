// Rows of the tray list and entries of its boxes, drawn into bitmaps and compared with bitmaps drawn by hand.
#include "canvas.h"
#include "tray_driver.h"

namespace {

struct RowDrawing : testing::Test, Trays {
    RowDrawing() {
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
        for (Canvas* canvas : {&got, &wanted})
            std::fill_n(canvas->bits, canvas->width * canvas->height, kGround);
        DRAWITEMSTRUCT item = {ODT_LISTVIEW, kList, id, ODA_DRAWENTIRE, state, list, got.dc, bounds, 0};
        SetTextColor(got.dc, 0x123456);
        SetBkColor(got.dc, 0x654321);
        EXPECT_EQ(Tell(WM_DRAWITEM, kList, reinterpret_cast<LPARAM>(&item)), 1);
        EXPECT_EQ(GetTextColor(got.dc), 0x123456u) << "the state of the context is put back";
        EXPECT_EQ(GetBkColor(got.dc), 0x654321u);
    }
    void Draw(int row, UINT state) { Draw(row, state, static_cast<UINT>(row)); }

    void Fill(int left, int right, COLORREF color) {
        const RECT area = {left, bounds.top, right, bounds.bottom};
        HBRUSH brush = CreateSolidBrush(color);
        FillRect(wanted.dc, &area, brush);
        DeleteObject(brush);
    }
    // The row with the third column's icon: 0 portrait, 1 landscape.
    void WantRow(int row, COLORREF background, int textColor, int icon) {
        Fill(bounds.left + 1, client.right - 1, background);
        SetTextColor(wanted.dc, GetSysColor(textColor));
        SetBkMode(wanted.dc, TRANSPARENT);
        TEXTMETRICW font = {};
        GetTextMetricsW(wanted.dc, &font);
        int left = bounds.left;
        for (int i = 0; i < 7; left += widths[i++]) {
            Fill(left, left + widths[i], background);
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
    void WantFocus() {
        const RECT focus = {bounds.left + 1, bounds.top + 1, client.right - 1, bounds.bottom - 1};
        DrawFocusRect(wanted.dc, &focus);
    }

    const int widths[7] = {60, 80, 70, 90, 30, 40, 50}; // the last texts don't fit
    HWND list = nullptr;
    RECT client = {}, bounds = {};
    Canvas got{800, 260}, wanted{800, 260};
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
    EXPECT_EQ(ImageList_GetImageCount(images), 2);
    int width = 0, height = 0;
    ImageList_GetIconSize(images, &width, &height);
    EXPECT_EQ(std::pair(width, height), std::pair(16, 16));
    for (const int icon : {0, 1}) {
        HICON file =
            static_cast<HICON>(LoadImageW(GetModuleHandleW(L"TELMAR_U.DLL"), MAKEINTRESOURCEW(473 + icon),
                                          IMAGE_ICON, 16, 16, LR_DEFAULTCOLOR));
        for (Canvas* canvas : {&got, &wanted})
            std::fill_n(canvas->bits, canvas->width * canvas->height, kGround);
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
                WantFocus();
            EXPECT_TRUE(SamePicture(got, wanted)) << hasFocus << state;
        }
    }
    Draw(0, ODS_SELECTED, ~0u);
    DrawFocusRect(wanted.dc, &bounds);
    EXPECT_TRUE(SamePicture(got, wanted));
}

TEST_F(RowDrawing, BoxEntriesAreTheirItems) {
    const RECT place = {30, 7, 190, 23};
    const struct {
        ULONG_PTR data;
        UINT state;
        int background;
        std::wstring text;
    } cases[] = {
        {static_cast<ULONG_PTR>(Send(1094, CB_GETITEMDATA, 1)), 0, COLOR_WINDOW, L"Pre-punched"},
        {static_cast<ULONG_PTR>(Send(1091, CB_GETITEMDATA, 1)), ODS_SELECTED, COLOR_HIGHLIGHT, L"Yellow"},
        {0, ODS_SELECTED, COLOR_HIGHLIGHT, L""},
    };
    for (const auto& row : cases) {
        for (Canvas* canvas : {&got, &wanted})
            std::fill_n(canvas->bits, canvas->width * canvas->height, kGround);
        DRAWITEMSTRUCT item = {ODT_COMBOBOX,  1094,   0,     ODA_DRAWENTIRE, row.state,
                               Control(1094), got.dc, place, row.data};
        EXPECT_EQ(Tell(WM_DRAWITEM, 1094, reinterpret_cast<LPARAM>(&item)), 1);
        bounds = place;
        Fill(place.left, place.right, GetSysColor(row.background));
        SetBkMode(wanted.dc, TRANSPARENT);
        SetTextColor(wanted.dc, GetSysColor(row.state != 0 ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        TextOutW(wanted.dc, place.left + 20, place.top + 1, row.text.c_str(),
                 static_cast<int>(row.text.size()));
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    for (const Attribute& attribute : kAttributes) { // nothing is selected: the item data is nobody's
        std::fill_n(got.bits, got.width * got.height, kGround);
        std::fill_n(wanted.bits, wanted.width * wanted.height, kGround);
        DRAWITEMSTRUCT none = {ODT_COMBOBOX,
                               static_cast<UINT>(attribute.box),
                               ~0u,
                               ODA_DRAWENTIRE,
                               0,
                               Control(1094),
                               got.dc,
                               place,
                               ~ULONG_PTR{0}};
        EXPECT_EQ(Tell(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&none)), 1);
        DrawFocusRect(wanted.dc, &place);
        EXPECT_TRUE(SamePicture(got, wanted));
    }
    DRAWITEMSTRUCT item = {ODT_COMBOBOX, 1845, 0, ODA_DRAWENTIRE, 0, Control(1094), got.dc, place, 0};
    EXPECT_EQ(Tell(WM_DRAWITEM, 1845, reinterpret_cast<LPARAM>(&item)), 0);
}

// What part of a row needs painting, the whole row is painted.
DLGPROC moduleProcedure;
RECT painted;
INT_PTR CALLBACK NotePainting(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && wParam == kList)
        GetClipBox(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hDC, &painted);
    return moduleProcedure(dialog, message, wParam, lParam);
}

TEST_F(RowDrawing, PaintsWholeRows) {
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
    procedure = moduleProcedure;
}

} // namespace

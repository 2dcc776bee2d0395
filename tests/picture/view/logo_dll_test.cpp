// The two logo exports. The bitmaps that the module does not hold, and the page with its controls, are the
// test's.
#include "support/canvas.h"
#include "support/gdi_recorder.h"
#include "support/product.h"

namespace {

constexpr int kNeighbor = 1074, kMoved = 1301, kBelow = 1007;
constexpr POINT kClient = {100, 50}; // where the page's client area begins on the screen
const HWND kPage = reinterpret_cast<HWND>(0xBEEF0);

struct {
    std::map<HWND, RECT> controls; // on the screen, by number
    std::vector<std::string> moves;
} page;

HWND Control(int id) {
    return reinterpret_cast<HWND>(static_cast<intptr_t>(id));
}

HWND WINAPI FindControl(HWND dialog, int id) {
    return dialog == kPage && page.controls.count(Control(id)) != 0 ? Control(id) : nullptr;
}
BOOL WINAPI ReadWindow(HWND control, RECT* rectangle) {
    const bool isThere = page.controls.count(control) != 0;
    if (isThere)
        *rectangle = page.controls[control];
    return isThere;
}
BOOL WINAPI ReadClient(HWND control, RECT* rectangle) { // within a frame of 2 and 3
    const bool isThere = ReadWindow(control, rectangle);
    *rectangle = {0, 0, rectangle->right - rectangle->left - 4, rectangle->bottom - rectangle->top - 6};
    return isThere;
}
BOOL WINAPI ToClient(HWND window, POINT* point) {
    EXPECT_EQ(window, kPage);
    *point = {point->x - kClient.x, point->y - kClient.y};
    return TRUE;
}
BOOL WINAPI Move(HWND control, int x, int y, int width, int height, BOOL repaints) {
    EXPECT_EQ(control, Control(kMoved));
    const int values[] = {x, y, width, height, repaints};
    page.moves.push_back(testing::PrintToString(values));
    return TRUE;
}

struct Logo : testing::Test {
    // 1301 is 80 x 35 and is to end where 1007 begins: at (130, 200 - 35) on the screen. Its client size is
    // 76 x 29.
    Logo() {
        page = {{{Control(kNeighbor), {180, 170, 290, 190}},
                 {Control(kMoved), {130, 60, 210, 95}},
                 {Control(kBelow), {140, 200, 150, 215}}},
                {}};
        // Scattered pixels on white, white in the mask. The mask is larger: it is the logo's size that
        // counts.
        for (int i = 0; i < 50 * 40; ++i)
            if (const int x = i % 50, y = i / 50; (x + y) % 3 == 0) {
                mask.bits[i] = kWhite;
                if (x < 41 && y < 27)
                    logo.bits[y * 41 + x] = static_cast<uint32_t>(x * 0x050301 + y * 0x10);
            }
    }
    void Serve(UINT id) {
        recorder.served[id] = logo.bitmap;
        recorder.served[id + 1] = mask.bitmap;
    }
    void DrawOnPage(uint32_t kind) const { // the upper half of the argument is anything
        module.Export<void WINAPI(HDC, HWND, void*, uint32_t)>("DrawLogoImage")(got.dc, kPage, nullptr, kind);
    }
    void DrawOnTab(LONG x, LONG y) const {
        module.Export<void WINAPI(HDC, void*, LONG, LONG)>("DrawLogoVersionTab")(got.dc, nullptr, x, y);
    }
    void WantThroughMask(POINT corner) {
        Canvas part(41, 27);
        part.Combine(mask.Content(), {0, 0}, SRCCOPY);
        wanted.Combine(part.Content(), corner, SRCPAINT);
        wanted.Combine(logo.Content(), corner, SRCAND);
    }
    // Nothing is drawn while each call of a kind is refused.
    template <typename Draw>
    void Refuse(const char* function, size_t nth, const Draw& draw) {
        recorder.Fail(function, nth);
        draw();
        EXPECT_TRUE(recorder.hasFailed) << function;
        EXPECT_TRUE(SamePicture(got, wanted)) << function;
        EXPECT_EQ(recorder.Complaints(), "") << function;
    }

    LoadedModule module;
    GdiRecorder recorder{module.handle};
    PatchedImport imports[5] = {{module.handle, GetDlgItem, FindControl},
                                {module.handle, GetWindowRect, ReadWindow},
                                {module.handle, GetClientRect, ReadClient},
                                {module.handle, ScreenToClient, ToClient},
                                {module.handle, MoveWindow, Move}};
    Canvas logo{41, 27, kWhite}, mask{50, 40, 0}, got{300, 200}, wanted{300, 200};
    const std::vector<std::string> none, moved = {"{ 30, 115, 76, 29, 0 }"};
};

TEST_F(Logo, TabHasThePictureCentred) {
    for (const POINT centre : {POINT{150, 100}, POINT{88, 60}, POINT{-3, -1}, POINT{299, 201}}) {
        DrawOnTab(centre.x, centre.y);
        wanted.Combine(ResourceBitmap(module.handle, 502), {centre.x - 88, centre.y - 60}, SRCCOPY);
        EXPECT_TRUE(SamePicture(got, wanted)) << centre.x << ' ' << centre.y;
    }
    DrawOnTab(INT32_MIN, INT32_MAX);
    EXPECT_TRUE(SamePicture(got, wanted));
}

TEST_F(Logo, TabIsTransparentWithAMask) {
    Serve(502);
    for (const char* function : {"CreateCompatibleDC", "LoadImageW", "GetObjectW", "SelectObject"})
        Refuse(function, GdiRecorder::kEvery, [&] { DrawOnTab(100, 70); });
    Refuse("LoadImageW", 1, [&] { DrawOnTab(100, 70); }); // the logo alone is missing
    recorder.Fail("", 0);
    DrawOnTab(100, 70);
    WantThroughMask({100 - 20, 70 - 13});
    EXPECT_TRUE(SamePicture(got, wanted));
}

TEST_F(Logo, PageIsLeftAloneUnlessBothBitmapsAreThere) {
    DrawOnPage(6);
    Serve(500);
    for (const size_t missing : {size_t{1}, size_t{2}})
        Refuse("LoadImageW", missing, [&] { DrawOnPage(6); });
    EXPECT_EQ(page.moves, none);
}

TEST_F(Logo, PageHasTheLogoAboveItsNeighbor) {
    Serve(500);
    for (const uint32_t kind : {5u, 7u, 0x60000u}) {
        DrawOnPage(kind);
        WantThroughMask({190 - 41, 120 - 27 - 8});
        EXPECT_TRUE(SamePicture(got, wanted)) << kind;
    }
    page.controls[Control(kNeighbor)] = {-20, 70, 130, 110}; // partly off the page
    DrawOnPage(5);
    WantThroughMask({30 - 41, 20 - 27 - 8});
    page.controls.erase(Control(kNeighbor)); // nowhere to draw
    DrawOnPage(5);
    EXPECT_TRUE(SamePicture(got, wanted));
    EXPECT_EQ(page.moves, none);
}

TEST_F(Logo, PageOfKindSixMovesItsControlWhateverBecomesOfTheLogo) {
    Serve(500);
    for (const char* function : {"CreateCompatibleDC", "GetObjectW", "SelectObject"}) {
        page.moves.clear();
        Refuse(function, GdiRecorder::kEvery, [&] { DrawOnPage(6); });
        EXPECT_EQ(page.moves, moved) << function;
    }
    recorder.Fail("", 0);
    page.moves.clear();
    page.controls[Control(kMoved)] = {130, 165, 210, 200}; // where it was put: it stays
    DrawOnPage(0xABCD0006);
    WantThroughMask({190 - 41, 120 - 27 - 8});
    EXPECT_TRUE(SamePicture(got, wanted));
    EXPECT_EQ(page.moves, moved);
    for (const int missing : {kBelow, kMoved}) { // nothing to stand on, nothing to move
        page.controls.erase(Control(missing));
        DrawOnPage(6);
    }
    EXPECT_EQ(page.moves, moved);
}

} // namespace

// The two logo exports of the built module. The test supplies the bitmaps that the module lacks, and the page
// with its controls.
#include "support/canvas.h"
#include "support/gdi_recorder.h"
#include "support/product.h"

namespace {

constexpr int kAnchor = 1074, kMoved = 1301, kBelow = 1007;
constexpr POINT kClient = {100, 50}; // origin of the page's client area on the screen
const HWND kPage = reinterpret_cast<HWND>(0xBEEF0);

struct {
    std::map<HWND, RECT> controls; // on the screen
    std::vector<std::string> moves;
} page;

HWND Control(int id) {
    return reinterpret_cast<HWND>(static_cast<intptr_t>(id));
}

BOOL ReadWindow(HWND control, RECT* rectangle) {
    const auto found = page.controls.find(control);
    *rectangle = found != page.controls.end() ? found->second : RECT();
    return found != page.controls.end();
}

struct Logo : testing::Test {
    // 1301 is 80 x 35, its client area 76 x 29. It must end where 1007 begins: at (130, 200 - 35) on the
    // screen.
    Logo() {
        page = {{{Control(kAnchor), {180, 170, 290, 190}},
                 {Control(kMoved), {130, 60, 210, 95}},
                 {Control(kBelow), {140, 200, 150, 215}}},
                {}};
        // Scattered pixels on white, white in the mask. The mask is larger, but only the logo's size matters.
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
    void DrawOnPage(uint32_t kind) const { // the upper half of the argument is not used
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
    // Nothing is drawn while these calls fail.
    template <typename Draw>
    void ExpectNothing(const char* function, size_t nth, const Draw& draw) {
        recorder.Fail(function, nth);
        draw();
        EXPECT_TRUE(recorder.hasFailed) << function;
        EXPECT_TRUE(SamePicture(got, wanted)) << function;
        EXPECT_EQ(recorder.Errors(), "") << function;
    }

    LoadedModule module;
    GdiRecorder recorder{module.handle};
    PatchedImport imports[5] = {
        {module.handle, GetDlgItem,
         +[](HWND dialog, int id) {
             return dialog == kPage && page.controls.count(Control(id)) != 0 ? Control(id) : nullptr;
         }},
        {module.handle, GetWindowRect, ReadWindow},
        {module.handle, GetClientRect,
         +[](HWND control, RECT* area) { // within a frame of 2 and 3
             const BOOL isThere = ReadWindow(control, area);
             *area = {0, 0, area->right - area->left - 4, area->bottom - area->top - 6};
             return isThere;
         }},
        {module.handle, ScreenToClient,
         +[](HWND window, POINT* point) -> BOOL {
             *point = {point->x - kClient.x, point->y - kClient.y};
             return window == kPage;
         }},
        {module.handle, MoveWindow, +[](HWND control, int x, int y, int width, int height, BOOL repaints) {
             const int values[] = {x, y, width, height, repaints, control == Control(kMoved)};
             page.moves.push_back(testing::PrintToString(values));
             return TRUE;
         }}};
    Canvas logo{41, 27, kWhite}, mask{50, 40, 0}, got{300, 200}, wanted{300, 200};
    const std::vector<std::string> none, moved = {"{ 30, 115, 76, 29, 0, 1 }"};
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
        ExpectNothing(function, GdiRecorder::kEvery, [&] { DrawOnTab(100, 70); });
    ExpectNothing("LoadImageW", 1, [&] { DrawOnTab(100, 70); }); // the logo alone is missing
    recorder.Fail("", 0);
    DrawOnTab(100, 70);
    WantThroughMask({100 - 20, 70 - 13});
    EXPECT_TRUE(SamePicture(got, wanted));
}

TEST_F(Logo, PageNeedsBothBitmaps) {
    DrawOnPage(6);
    Serve(500);
    for (const size_t missing : {size_t{1}, size_t{2}})
        ExpectNothing("LoadImageW", missing, [&] { DrawOnPage(6); });
    EXPECT_EQ(page.moves, none);
}

TEST_F(Logo, PageHasTheLogoAboveItsAnchor) {
    Serve(500);
    for (const uint32_t kind : {5u, 7u, 0x60000u}) {
        DrawOnPage(kind);
        WantThroughMask({190 - 41, 120 - 27 - 8});
        EXPECT_TRUE(SamePicture(got, wanted)) << kind;
    }
    page.controls[Control(kAnchor)] = {-20, 70, 130, 110}; // partly off the page
    DrawOnPage(5);
    WantThroughMask({30 - 41, 20 - 27 - 8});
    page.controls.erase(Control(kAnchor)); // no place to draw
    DrawOnPage(5);
    EXPECT_TRUE(SamePicture(got, wanted));
    EXPECT_EQ(page.moves, none);
}

TEST_F(Logo, PageOfKindSixMovesItsControlEvenIfDrawingFails) {
    Serve(500);
    for (const char* function : {"CreateCompatibleDC", "GetObjectW", "SelectObject"}) {
        page.moves.clear();
        ExpectNothing(function, GdiRecorder::kEvery, [&] { DrawOnPage(6); });
        EXPECT_EQ(page.moves, moved) << function;
    }
    recorder.Fail("", 0);
    page.moves.clear();
    page.controls[Control(kMoved)] = {130, 165, 210, 200}; // already aligned
    DrawOnPage(0xABCD0006);
    WantThroughMask({190 - 41, 120 - 27 - 8});
    EXPECT_TRUE(SamePicture(got, wanted));
    EXPECT_EQ(page.moves, moved);
    for (const int missing : {kBelow, kMoved}) { // without a neighbour, without the control
        page.controls.erase(Control(missing));
        DrawOnPage(6);
    }
    EXPECT_EQ(page.moves, moved);
}

} // namespace

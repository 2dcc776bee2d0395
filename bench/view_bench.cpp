// Draws the printer's picture and, in turn, makes the bare system calls for the same picture with its bitmaps
// already loaded and selected. Also measures how much of the time is spent loading bitmaps.
#include "base/entry_point.h"
#include "base/records.h"
#include "base/text.h"
#include "bench/stopwatch.h"

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <vector>

namespace {

constexpr int kRounds = 500;
constexpr int kEdge = 200;
constexpr size_t kPixels = size_t{kEdge} * kEdge;
constexpr RECT kRectangle = {0, 0, kEdge, kEdge};

// What the request below shows, in the order of drawing: parts, masks and images of both highlights, badge.
constexpr struct {
    UINT id;
    DWORD rasterOperation;
} kBitmaps[] = {{101, SRCAND},    {103, SRCAND}, {104, SRCAND},    {134, SRCAND}, {116, SRCAND},
                {115, SRCINVERT}, {160, SRCAND}, {159, SRCINVERT}, {202, SRCAND}};
constexpr RECT kBadge = {kEdge - 46, 8, kEdge - 46 + 39, 8 + 17};
constexpr size_t kBitmapCount = std::size(kBitmaps);

HBITMAP Load(HMODULE module, size_t i) {
    return static_cast<HBITMAP>(
        LoadImageW(module, MAKEINTRESOURCEW(kBitmaps[i].id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
}

// One feature with one item, which is selected.
void Install(FeatureRecord& feature, ItemRecord (&items)[2], const char* featureKey, const char* itemKey) {
    CopyText(feature.feature.head.key, featureKey);
    CopyText(items[0].head.key, itemKey);
    feature.items = items;
}

void DrawBare(HDC target, const HDC (&loaded)[kBitmapCount]) {
    HDC memory = CreateCompatibleDC(target);
    HBITMAP canvas = CreateCompatibleBitmap(target, kEdge, kEdge);
    HGDIOBJ before = SelectObject(memory, canvas);
    FillRect(memory, &kRectangle, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    for (size_t i = 0; i < kBitmapCount; ++i) {
        const RECT& at = i + 1 == kBitmapCount ? kBadge : kRectangle;
        BitBlt(memory, at.left, at.top, at.right - at.left, at.bottom - at.top, loaded[i], 0, 0,
               kBitmaps[i].rasterOperation);
    }
    BitBlt(target, 0, 0, kEdge, kEdge, memory, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    DeleteObject(canvas);
    DeleteDC(memory);
}

// The badge is loaded twice: measured, then drawn.
void LoadAndFree(HMODULE module) {
    for (size_t i = 0; i < kBitmapCount; ++i)
        DeleteObject(Load(module, i));
    DeleteObject(Load(module, kBitmapCount - 1));
}

} // namespace

int wmain(int, wchar_t** arguments) {
    const std::filesystem::path folder = std::filesystem::absolute(arguments[0]).parent_path();
    HMODULE module = LoadLibraryW((folder / "TELMAR_D.DLL").c_str());
    auto* draw = FindEntryPoint<decltype(DrawPrinterView)>(module, "DrawPrinterView");
    if (draw == nullptr) {
        fprintf(stderr, "view_bench: TELMAR_D.DLL must be in this program's folder\n");
        return 1;
    }

    FeatureRecord features[5] = {};
    ItemRecord items[4][2] = {};
    Install(features[0], items[0], "OpInTrayUnit", "OpInTrayUnit1");
    Install(features[1], items[1], "OpOutTrayUnit", "OpOutTrayUnit2");
    Install(features[2], items[2], "OpMailBinKit", "EnaOpMailBinKit");
    Install(features[3], items[3], "OpHDD", "EnaOpHDD");
    const FeatureSettings settings[4] = {};
    const PrinterViewRequest request = {1, features, settings, "InTray3", {0, 0, 0, 0, 0, 1, 0, 0, 0}};

    HDC loaded[kBitmapCount];
    for (size_t i = 0; i < kBitmapCount; ++i) {
        loaded[i] = CreateCompatibleDC(nullptr);
        SelectObject(loaded[i], Load(module, i));
    }
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), kEdge, -kEdge, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    HDC target = CreateCompatibleDC(nullptr);
    SelectObject(target, CreateDIBSection(target, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));

    const auto* const drawn = static_cast<const uint32_t*>(pixels);
    std::vector<uint32_t> pictures[2];
    std::vector<double> ours, bare, loading;
    for (int i = 0; i < kRounds; ++i) {
        ours.push_back(Measure([&] {
            draw(target, &kRectangle, &request);
            GdiFlush();
        }));
        pictures[0].assign(drawn, drawn + kPixels);
        bare.push_back(Measure([&] {
            DrawBare(target, loaded);
            GdiFlush();
        }));
        pictures[1].assign(drawn, drawn + kPixels);
        loading.push_back(Measure([&] { LoadAndFree(module); }));
        if (pictures[0] != pictures[1]) {
            fprintf(stderr, "view_bench: the two pictures are not the same\n");
            return 1;
        }
    }
    PrintTimes("Picture", ours);
    PrintTimes("BarePicture", bare);
    PrintTimes("PictureBitmaps", loading);
    return 0;
}

// picture: draws the printer with a finisher and a hard disk, fed from tray 2, into a bitmap, and writes
// picture.bmp. Linked with the import library.
#include "telmar_d.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

constexpr LONG kSize = 200; // pixels, as the module's bitmaps
constexpr BITMAPINFO kInfo = {
    {sizeof(BITMAPINFOHEADER), kSize, kSize, 1, 32, BI_RGB, kSize* kSize * 4, 0, 0, 0, 0}, {}};

static TelmarItemRecord Named(const char* key) {
    TelmarItemRecord record = {};
    record.head.size = sizeof(record);
    std::snprintf(record.head.key, sizeof(record.head.key), "%s", key);
    return record;
}

static void Draw(HDC context) {
    // A feature for each option, with the installed item alone. Each list ends at an empty key.
    const TelmarItemRecord items[][2] = {{Named("OpOutTrayUnit2"), {}}, {Named("EnaOpHDD"), {}}};
    const TelmarFeatureRecord features[] = {
        {Named("OpOutTrayUnit"), items[0]}, {Named("OpHDD"), items[1]}, {}};
    const TelmarFeatureSettings settings[] = {0, 0}; // the first item of each
    const TelmarPrinterViewRequest request = {1, features, settings, "InTray2", {}};
    const RECT rectangle = {0, 0, kSize, kSize};
    DrawPrinterView(context, &rectangle, &request);
    GdiFlush(); // before the pixels are read
}

static bool Write(const void* pixels) {
    const DWORD begin = sizeof(BITMAPFILEHEADER) + sizeof(kInfo.bmiHeader);
    const BITMAPFILEHEADER start = {0x4D42, begin + kInfo.bmiHeader.biSizeImage, 0, 0, begin}; // "BM"
    std::ofstream file("picture.bmp", std::ios::binary);
    file.write(reinterpret_cast<const char*>(&start), sizeof(start));
    file.write(reinterpret_cast<const char*>(&kInfo.bmiHeader), sizeof(kInfo.bmiHeader));
    file.write(static_cast<const char*>(pixels), kInfo.bmiHeader.biSizeImage);
    return file.flush().good();
}

int main() {
    void* pixels = nullptr;
    const HDC context = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(context, &kInfo, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (bitmap == nullptr)
        return std::fputs("picture: there is no memory for the bitmap\n", stderr), 1;
    const HGDIOBJ before = SelectObject(context, bitmap);
    Draw(context);
    const auto* first = static_cast<const DWORD*>(pixels);
    const auto isDrawn = [](DWORD pixel) { return (pixel & 0xFFFFFF) != 0xFFFFFF; };
    const auto drawn = static_cast<int>(std::count_if(first, first + kSize * kSize, isDrawn));
    const bool isWritten = Write(pixels);
    SelectObject(context, before);
    DeleteObject(bitmap);
    DeleteDC(context);
    if (!isWritten)
        return std::fputs("picture: picture.bmp can't be written\n", stderr), 1;
    std::printf("picture.bmp: %d of %d pixels are drawn\n", drawn, static_cast<int>(kSize * kSize));
}

// Draws with GDI; reads and writes PNG with GDI+.
#include "workbench/lib/picture.h"

#include "workbench/lib/files.h"
#include "workbench/lib/text.h"

#include <objidl.h> // before gdiplus.h, which uses IStream

#include <gdiplus.h>

namespace {

// The encoder that comes with GDI+.
constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

constexpr int kBytesPerPixel = 4;

[[noreturn]] void FailToEncode(const char* step, int status) {
    throw Failure(kExitFailed, std::string("the picture cannot be encoded as PNG: ") + step
                                   + " returned status " + std::to_string(status)
                                   + "; make it smaller, or free some memory");
}

void CheckStatus(const char* step, Gdiplus::Status status) {
    if (status != Gdiplus::Ok)
        FailToEncode(step, status);
}

// GDI+ is started while this object exists.
struct GdiPlus {
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        CheckStatus("GdiplusStartup", Gdiplus::GdiplusStartup(&token, &input, nullptr));
    }
    ~GdiPlus() { Gdiplus::GdiplusShutdown(token); }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    ULONG_PTR token = 0;
};

struct ReleaseStream {
    void operator()(IStream* stream) const { stream->Release(); }
};
using Stream = std::unique_ptr<IStream, ReleaseStream>;

// The bytes written to a stream in memory.
std::string Contents(IStream& stream) {
    STATSTG facts = {};
    HGLOBAL block = nullptr;
    if (FAILED(stream.Stat(&facts, STATFLAG_NONAME)) || FAILED(GetHGlobalFromStream(&stream, &block)))
        FailToEncode("its stream", E_FAIL);
    const auto* first = static_cast<const char*>(GlobalLock(block));
    if (first == nullptr)
        FailToEncode("its stream", E_FAIL);
    std::string bytes(first, first + facts.cbSize.QuadPart);
    GlobalUnlock(block);
    return bytes;
}

} // namespace

Canvas::Canvas(SIZE wanted) : size(wanted) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 8 * kBytesPerPixel;
    context = CreateCompatibleDC(nullptr);
    bitmap = CreateDIBSection(context, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (context == nullptr || bitmap == nullptr) {
        DeleteObject(bitmap);
        DeleteDC(context);
        throw Failure(kExitFailed, "not enough memory for a picture of " + std::to_string(size.cx) + " x "
                                       + std::to_string(size.cy) + " pixels; make it smaller");
    }
    before = SelectObject(context, bitmap);
    PatBlt(context, 0, 0, size.cx, size.cy, WHITENESS);
}

Canvas::~Canvas() {
    SelectObject(context, before);
    DeleteObject(bitmap);
    DeleteDC(context);
}

void DrawLine(HDC to, RECT place, const TextStyle& style, const char* text) {
    LOGFONTW description = {};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof(description), &description);
    description.lfHeight = style.height;
    description.lfWeight = style.weight;
    description.lfQuality = ANTIALIASED_QUALITY;
    const HFONT font = CreateFontIndirectW(&description);
    const HGDIOBJ before = SelectObject(to, font);
    SetTextColor(to, style.color);
    SetBkMode(to, TRANSPARENT);
    DrawTextW(to, Wide(text).c_str(), -1, &place,
              style.placement | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(to, before);
    DeleteObject(font);
}

std::string EncodePng(const Canvas& canvas, bool hasAlpha) {
    GdiFlush();
    const GdiPlus gdiPlus;
    IStream* created = nullptr;
    const HRESULT result = CreateStreamOnHGlobal(nullptr, TRUE, &created);
    if (FAILED(result))
        FailToEncode("its stream", result);
    const Stream stream(created);
    Gdiplus::Bitmap bitmap(canvas.size.cx, canvas.size.cy, canvas.size.cx * kBytesPerPixel,
                           hasAlpha ? PixelFormat32bppARGB : PixelFormat32bppRGB,
                           static_cast<BYTE*>(canvas.pixels));
    CheckStatus("Bitmap", bitmap.GetLastStatus());
    CheckStatus("Bitmap::Save", bitmap.Save(stream.get(), &kPngEncoder, nullptr));
    return Contents(*stream);
}

Document WritePicture(const Canvas& canvas, const std::string& path) {
    if (path.empty())
        throw Failure(kExitUsage, "--out lacks the file name of the picture; possible: FILE");
    const auto file = std::filesystem::absolute(std::filesystem::u8path(path)).make_preferred();
    if (!std::filesystem::is_directory(file.parent_path()))
        throw Failure(kExitFailed, file.u8string() + ": there is no folder " + file.parent_path().u8string()
                                       + "; create it, or specify another file with --out");
    WriteOutputFile(file, EncodePng(canvas), "--out");
    return {{"path", file.u8string()}, {"width", canvas.size.cx}, {"height", canvas.size.cy}};
}

std::unique_ptr<Canvas> ReadPicture(const std::string& path) {
    const GdiPlus gdiPlus;
    Gdiplus::Bitmap bitmap(std::filesystem::u8path(path).c_str());
    const SIZE size = {static_cast<LONG>(bitmap.GetWidth()), static_cast<LONG>(bitmap.GetHeight())};
    if (bitmap.GetLastStatus() != Gdiplus::Ok || size.cx == 0 || size.cy == 0)
        throw Failure(kExitFailed, path + ": not a picture, or cannot be read; specify a PNG file");
    auto canvas = std::make_unique<Canvas>(size);
    Gdiplus::Graphics graphics(canvas->context);
    CheckStatus("Graphics::DrawImage", graphics.DrawImage(&bitmap, 0, 0, size.cx, size.cy));
    return canvas;
}

// Unpacks, draws, compares and writes pictures.
#include "support/canvas.h"

#include "support/product.h"
#include "support/raw_bytes.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

namespace {

// Returns the path of the file.
std::string WriteBitmap(const std::string& name, const Picture& picture) {
    const auto width = static_cast<uint32_t>(picture.width), height = static_cast<uint32_t>(picture.height);
    RawBytes file(54 + 4 * width * height);
    file.Text(0, "BM").U32(2, 54 + 4 * width * height).U32(10, 54);
    file.U32(14, 40).U32(18, width).U32(22, 0 - height).U16(26, 1).U16(28, 32);
    for (size_t i = 0; i < picture.pixels.size(); ++i)
        file.U32(54 + 4 * i, picture.pixels[i]);
    const auto path = ProductFolder() / name;
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.bytes.data()), static_cast<std::streamsize>(file.bytes.size()));
    return path.string();
}

} // namespace

ResourceBitmap::ResourceBitmap(HMODULE module, UINT id) : Picture() {
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(2)); // RT_BITMAP
    if (found == nullptr)
        return;
    bytes = SizeofResource(module, found);
    const auto* const start = static_cast<const uint8_t*>(LockResource(LoadResource(module, found)));
    header = NumberAt<BITMAPINFOHEADER>(start, 0);
    width = header.biWidth;
    height = header.biHeight;
    const size_t depth = header.biBitCount, rowBytes = (static_cast<size_t>(width) * depth + 31) / 32 * 4;
    const uint8_t* const colors = start + header.biSize;
    const uint8_t* const rows = colors + 4 * size_t{header.biClrUsed};
    for (size_t y = static_cast<size_t>(height); y-- > 0;) // stored from the bottom upwards
        for (size_t bit = 0; bit < static_cast<size_t>(width) * depth; bit += depth) {
            const uint8_t* color = rows + y * rowBytes + bit / 8;
            if (depth <= 8)
                color = colors + 4 * (*color >> (8 - depth - bit % 8) & ((1 << depth) - 1));
            pixels.push_back(static_cast<uint32_t>(color[2] << 16 | color[1] << 8 | color[0]));
        }
}

Canvas::Canvas(int canvasWidth, int canvasHeight, uint32_t color) : width(canvasWidth), height(canvasHeight) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(info.bmiHeader), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* section = nullptr;
    bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &section, nullptr, 0);
    bits = static_cast<uint32_t*>(section);
    own = SelectObject(dc, bitmap);
    Clear(color);
}

Canvas::~Canvas() {
    SelectObject(dc, own);
    DeleteDC(dc);
    DeleteObject(bitmap);
}

void Canvas::Clear(uint32_t color) const {
    GdiFlush();
    std::fill_n(bits, width * height, color);
}

void Canvas::Combine(const Picture& picture, POINT topLeft, DWORD rasterOperation) const {
    GdiFlush();
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const int toX = topLeft.x + x, toY = topLeft.y + y;
            if (toX < 0 || toX >= width || toY < 0 || toY >= height)
                continue;
            const uint32_t from = picture.pixels[static_cast<size_t>(y * picture.width + x)];
            uint32_t& to = bits[toY * width + toX];
            to = rasterOperation == SRCAND      ? to & from
                 : rasterOperation == SRCINVERT ? to ^ from
                 : rasterOperation == SRCPAINT  ? to | from
                                                : from;
        }
}

Picture Canvas::Content() const {
    GdiFlush();
    Picture content = {width, height, {bits, bits + width * height}};
    for (uint32_t& pixel : content.pixels)
        pixel &= kWhite;
    return content;
}

testing::AssertionResult SamePicture(const Canvas& got, const Canvas& wanted) {
    const Picture a = got.Content(), b = wanted.Content();
    const auto [at, other] = std::mismatch(a.pixels.begin(), a.pixels.end(), b.pixels.begin());
    if (at == a.pixels.end())
        return testing::AssertionSuccess();
    std::ostringstream text;
    text << "differs first at (" << (at - a.pixels.begin()) % a.width << ", " << (at - a.pixels.begin()) / a.width
         << "): got " << std::hex << *at << ", wanted " << *other;
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string(test->test_suite_name()) + "." + test->name();
    static std::set<std::string> written; // the first pair of each test is enough to look at
    if (written.insert(name).second)
        text << "; see " << WriteBitmap(name + "_got.bmp", a) << " and " << WriteBitmap(name + "_wanted.bmp", b);
    return testing::AssertionFailure() << text.str();
}

bool IsSamePicture(const Canvas& got, const Canvas& wanted) {
    return got.Content().pixels == wanted.Content().pixels;
}

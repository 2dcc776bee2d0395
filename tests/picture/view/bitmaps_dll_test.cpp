// The bitmaps in the built module's resources: sizes, depths, colour counts, backgrounds and visible areas.
#include "support/canvas.h"
#include "support/product.h"

#include <algorithm>

namespace {

// The part of a bitmap that is not white: left, right, top, bottom, all inclusive.
using Extent = std::vector<int>;
constexpr struct {
    UINT id;
    int extent[4];
} kParts[] =
    {
        {101, {96, 184, 50, 137}}, {103, {96, 154, 138, 163}}, {104, {155, 189, 123, 163}}, {131, {54, 135, 54, 163}},
        {132, {54, 135, 54, 163}}, {133, {53, 135, 42, 163}},  {134, {53, 135, 42, 163}},   {135, {43, 135, 51, 163}},
        {136, {43, 135, 51, 163}}, {137, {85, 135, 73, 86}},   {138, {37, 135, 69, 163}},
},
  kMasks[] = {
      // each after its image
      {112, {96, 155, 120, 128}},  {114, {96, 155, 129, 137}},  {116, {86, 127, 138, 160}}, {118, {121, 156, 138, 160}},
      {120, {155, 184, 105, 123}}, {122, {155, 192, 113, 159}}, {142, {72, 121, 73, 81}},   {144, {72, 121, 73, 81}},
      {146, {84, 121, 79, 87}},    {152, {42, 79, 67, 87}},     {154, {42, 79, 77, 97}},    {156, {42, 79, 87, 107}},
      {160, {42, 70, 59, 69}},     {162, {42, 70, 53, 64}},     {164, {42, 70, 47, 59}},    {166, {42, 70, 41, 53}},
};

Extent ExtentOf(const Picture& picture) {
    Extent extent = {INT32_MAX, -1, INT32_MAX, -1};
    for (int i = 0; i < picture.width * picture.height; ++i)
        if (const int x = i % picture.width, y = i / picture.width; picture.pixels[static_cast<size_t>(i)] != kWhite)
            extent = {std::min(extent[0], x), std::max(extent[1], x), std::min(extent[2], y), std::max(extent[3], y)};
    return extent;
}

struct Bitmaps : testing::Test {
    // Checks the header and that the resource has the size that follows from it.
    ResourceBitmap Read(UINT id, int width, int height, WORD depth, DWORD colors) const {
        const ResourceBitmap bitmap(module.handle, id);
        const DWORD rowBytes = (static_cast<DWORD>(width) * depth + 31) / 32 * 4;
        EXPECT_TRUE(bitmap.width == width && bitmap.height == height && bitmap.header.biBitCount == depth) << id;
        EXPECT_EQ(bitmap.header.biCompression, static_cast<DWORD>(BI_RGB)) << id;
        EXPECT_EQ(bitmap.header.biClrUsed, colors) << id;
        EXPECT_EQ(bitmap.bytes, 40 + 4 * colors + rowBytes * static_cast<DWORD>(height)) << id;
        return bitmap;
    }

    LoadedModule module;
};

TEST_F(Bitmaps, PartsLieOnWhiteInTheirPlaces) {
    for (const auto& [id, extent] : kParts)
        EXPECT_EQ(ExtentOf(Read(id, 200, 200, 8, 256)), Extent(extent, extent + 4)) << id;
}

// AND with body and cabinet does not change a unit's colours, nor do input and output units overlap.
TEST_F(Bitmaps, UnitsKeepTheirColoursWherePartsOverlap) {
    const ResourceBitmap body(module.handle, 101), cabinet(module.handle, 103), input(module.handle, 104);
    for (const auto& part : kParts) {
        const ResourceBitmap unit(module.handle, part.id);
        size_t darkened = 0, shared = 0;
        for (size_t i = 0; i < unit.pixels.size(); ++i) {
            const bool isDrawn = unit.pixels[i] != kWhite;
            darkened += isDrawn && (unit.pixels[i] & body.pixels[i] & cabinet.pixels[i]) != unit.pixels[i];
            shared += isDrawn && input.pixels[i] != kWhite;
        }
        EXPECT_EQ(part.id > 103 ? darkened : 0, 0u) << part.id;
        EXPECT_EQ(part.id > 104 ? shared : 0, 0u) << part.id;
    }
}

TEST_F(Bitmaps, HighlightsArePairsOfMaskAndImage) {
    for (const auto& [id, extent] : kMasks) {
        const ResourceBitmap image = Read(id - 1, 200, 200, 8, 256), mask = Read(id, 200, 200, 1, 2);
        EXPECT_EQ(ExtentOf(mask), Extent(extent, extent + 4)) << id;
        size_t grey = 0, outside = 0, colored = 0;
        for (size_t i = 0; i < mask.pixels.size(); ++i) {
            grey += mask.pixels[i] != 0 && mask.pixels[i] != kWhite;
            outside += mask.pixels[i] != 0 && image.pixels[i] != 0;
            colored += image.pixels[i] != 0;
        }
        EXPECT_TRUE(grey == 0 && outside == 0 && colored > 0) << id << ' ' << grey << ' ' << outside << ' ' << colored;
    }
}

TEST_F(Bitmaps, BadgesHaveFourColorsAndDiffer) {
    EXPECT_NE(Read(201, 39, 17, 4, 4).pixels, Read(202, 39, 17, 4, 4).pixels);
}

TEST_F(Bitmaps, OnlyTheVersionLogoExistsWithoutAMask) {
    Read(502, 176, 120, 24, 0);
    for (const UINT absent : {500u, 501u, 503u})
        EXPECT_EQ(ResourceBitmap(module.handle, absent).bytes, 0u) << absent;
}

} // namespace

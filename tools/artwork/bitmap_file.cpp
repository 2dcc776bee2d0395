// Encodes bitmap files. Numbers are little-endian; rows start at the bottom and are padded to 4 bytes.
#include "bitmap_file.h"

#include "common/generated_files.h"

#include <algorithm>
#include <set>

namespace {

constexpr size_t kFileHeaderSize = 14;
constexpr size_t kInfoHeaderSize = 40;
constexpr size_t kTableEntrySize = 4;
constexpr uint32_t kPixelsPerMeter = 3780; // 96 per inch

struct Depth {
    int bitsPerPixel;
    size_t maxColors;
};
// In ascending order. Not compressed: the system does not document that it loads such bitmaps as sections.
constexpr Depth kDepths[] = {{1, 2}, {4, 16}, {8, 256}};
constexpr int kTrueColor = 24; // without a colour table

int BitsFor(size_t colors) {
    for (const Depth& depth : kDepths)
        if (colors <= depth.maxColors)
            return depth.bitsPerPixel;
    return kTrueColor;
}

// The entries in use, except that the table of 8-bit bitmaps is always a full one, by contract.
size_t TableSize(int bitsPerPixel, size_t colors) {
    return bitsPerPixel == kTrueColor ? 0 : bitsPerPixel == 8 ? 256 : colors;
}

void PutColor(std::string& file, const Rgb& color) {
    for (const uint8_t channel : {color.b, color.g, color.r})
        file += static_cast<char>(channel);
}

// One row without padding to 4 bytes. The leftmost pixel of a byte is in its highest bits.
std::string Row(const Picture& picture, int y, int bitsPerPixel, const std::vector<Rgb>& table) {
    std::string row;
    unsigned byte = 0;
    int free = 8; // bits of the byte
    for (int x = 0; x < picture.width; ++x) {
        const Rgb& pixel = picture.At(x, y);
        if (bitsPerPixel == kTrueColor) {
            PutColor(row, pixel);
            continue;
        }
        const auto index = std::lower_bound(table.begin(), table.end(), pixel) - table.begin();
        free -= bitsPerPixel;
        byte |= static_cast<unsigned>(index) << free;
        if (free == 0 || x + 1 == picture.width) {
            row += static_cast<char>(byte);
            byte = 0;
            free = 8;
        }
    }
    return row;
}

} // namespace

std::vector<Rgb> ColorsOf(const Picture& picture) {
    const std::set<Rgb> colors(picture.pixels.begin(), picture.pixels.end());
    return {colors.begin(), colors.end()};
}

std::string BitmapFile(const Picture& picture) {
    // Ascending, so that a mask has black as 0 and white as 1, like a monochrome bitmap.
    const std::vector<Rgb> table = ColorsOf(picture);
    const int bitsPerPixel = BitsFor(table.size());
    const size_t tableSize = TableSize(bitsPerPixel, table.size());
    std::string pixels;
    for (int y = picture.height - 1; y >= 0; --y) {
        pixels += Row(picture, y, bitsPerPixel, table);
        pixels.resize((pixels.size() + 3) / 4 * 4);
    }
    const size_t offset = kFileHeaderSize + kInfoHeaderSize + tableSize * kTableEntrySize;
    std::string file = "BM";
    PutNumber(file, offset + pixels.size(), 4);
    PutNumber(file, 0, 4);
    PutNumber(file, offset, 4);
    PutNumber(file, kInfoHeaderSize, 4);
    PutNumber(file, static_cast<size_t>(picture.width), 4);
    PutNumber(file, static_cast<size_t>(picture.height), 4);
    PutNumber(file, 1, 2); // planes
    PutNumber(file, static_cast<size_t>(bitsPerPixel), 2);
    PutNumber(file, 0, 4); // not compressed
    PutNumber(file, pixels.size(), 4);
    PutNumber(file, kPixelsPerMeter, 4);
    PutNumber(file, kPixelsPerMeter, 4);
    PutNumber(file, tableSize, 4);
    PutNumber(file, tableSize, 4);
    for (size_t i = 0; i < tableSize; ++i) {
        PutColor(file, i < table.size() ? table[i] : kBlack);
        PutNumber(file, 0, 1);
    }
    return file + pixels;
}

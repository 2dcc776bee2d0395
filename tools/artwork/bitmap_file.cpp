// Encodes bitmap files. Numbers are little-endian; rows start at the bottom and are padded to 4 bytes.
#include "bitmap_file.h"

#include "common/generated_files.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace {

constexpr size_t kFileHeaderSize = 14;
constexpr size_t kInfoHeaderSize = 40;
constexpr size_t kTableEntrySize = 4;
constexpr uint32_t kPixelsPerMeter = 3780; // 96 per inch

void PutColor(std::string& file, const Rgb& color) {
    for (const uint8_t channel : {color.b, color.g, color.r})
        file += static_cast<char>(channel);
}

// One row without padding.
std::string Row(const Picture& picture, int y, int bitsPerPixel, const std::vector<Rgb>& table) {
    std::string row;
    int pending = 0; // upper half of a byte with two pixels
    for (int x = 0; x < picture.width; ++x) {
        const Rgb& pixel = picture.At(x, y);
        if (bitsPerPixel == 24) {
            PutColor(row, pixel);
            continue;
        }
        const auto index =
            static_cast<int>(std::lower_bound(table.begin(), table.end(), pixel) - table.begin());
        if (bitsPerPixel == 8 || x % 2 == 1)
            row += static_cast<char>(bitsPerPixel == 8 ? index : pending | index);
        else
            pending = index << 4;
    }
    if (bitsPerPixel == 4 && picture.width % 2 == 1)
        row += static_cast<char>(pending);
    return row;
}

} // namespace

std::vector<Rgb> ColorsOf(const Picture& picture) {
    const std::set<Rgb> colors(picture.pixels.begin(), picture.pixels.end());
    return {colors.begin(), colors.end()};
}

std::string BitmapFile(const Picture& picture, int bitsPerPixel, size_t tableSize) {
    const std::vector<Rgb> table = tableSize == 0 ? std::vector<Rgb>() : ColorsOf(picture);
    if (table.size() > tableSize)
        throw std::runtime_error("a picture has " + std::to_string(table.size())
                                 + " colours, but the table has only " + std::to_string(tableSize));
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

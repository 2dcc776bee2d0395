// Writes icon files.
#include "icon_file.h"

#include "common/generated_files.h"

namespace {

// The header, the colours and the mask of transparent pixels, both from the bottom row.
std::string ImageBytes(const IconImage& image) {
    const auto size = static_cast<size_t>(image.size);
    std::string colors;
    std::string mask;
    for (size_t y = size; y-- > 0;) {
        const uint32_t* row = image.pixels.data() + y * size;
        for (size_t x = 0; x < size; ++x)
            PutNumber(colors, row[x], 4);
        for (size_t byte = 0; byte < (size + 31) / 32 * 4; ++byte) { // rows end at 4 bytes
            size_t bits = 0;
            for (size_t x = byte * 8; x < byte * 8 + 8; ++x)
                bits = bits << 1 | (x < size && row[x] >> 24 == 0 ? 1U : 0U);
            PutNumber(mask, bits, 1);
        }
    }
    std::string bytes;
    PutNumber(bytes, 40, 4);
    PutNumber(bytes, size, 4);
    PutNumber(bytes, size * 2, 4);
    PutNumber(bytes, 1, 2);  // planes
    PutNumber(bytes, 32, 2); // bits per pixel
    PutNumber(bytes, 0, 4);  // not compressed
    PutNumber(bytes, colors.size() + mask.size(), 4);
    for (int i = 0; i < 4; ++i)
        PutNumber(bytes, 0, 4); // resolution and colour table: none
    return bytes + colors + mask;
}

} // namespace

std::string IconFile(const std::vector<IconImage>& images) {
    std::string file;
    std::string contents;
    PutNumber(file, 0, 2);
    PutNumber(file, 1, 2); // an icon file
    PutNumber(file, images.size(), 2);
    for (const IconImage& image : images) {
        const std::string bytes = ImageBytes(image);
        PutNumber(file, static_cast<size_t>(image.size), 1);
        PutNumber(file, static_cast<size_t>(image.size), 1);
        PutNumber(file, 0, 2);  // no colour table
        PutNumber(file, 1, 2);  // planes
        PutNumber(file, 32, 2); // bits per pixel
        PutNumber(file, bytes.size(), 4);
        PutNumber(file, 6 + 16 * images.size() + contents.size(), 4);
        contents += bytes;
    }
    return file + contents;
}

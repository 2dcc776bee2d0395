// Icon files of Windows, uncompressed.
#ifndef ARTWORK_ICON_FILE_H
#define ARTWORK_ICON_FILE_H

#include <cstdint>
#include <string>
#include <vector>

// One square image; its pixels are 0xAARRGGBB, rows from the top. At most 255 pixels wide.
struct IconImage {
    int size;
    std::vector<uint32_t> pixels;
};

// The bytes of a file with these images.
std::string IconFile(const std::vector<IconImage>& images);

#endif

// Uncompressed bitmap files in the formats of the module's resources.
#ifndef ARTWORK_BITMAP_FILE_H
#define ARTWORK_BITMAP_FILE_H

#include "render.h"

#include <string>

// The bytes of a file with this depth: 4 or 8 bits per pixel with a colour table of `tableSize` entries, or
// 24 without a table. Throws std::runtime_error when the picture has more colours than the table.
std::string BitmapFile(const Picture& picture, int bitsPerPixel, size_t tableSize);

// The distinct colours of a picture, in ascending order.
std::vector<Rgb> ColorsOf(const Picture& picture);

#endif

// Uncompressed bitmap files of the formats that the module's resources have.
#ifndef ARTWORK_BITMAP_FILE_H
#define ARTWORK_BITMAP_FILE_H

#include "render.h"

#include <string>

// The bytes of a file with this depth: 4 or 8 bits per pixel with a colour table of exactly `tableSize`
// entries, or 24 without one. Throws std::runtime_error when the picture has more colours than the table has
// entries.
std::string BitmapFile(const Picture& picture, int bitsPerPixel, size_t tableSize);

// Different colours of a picture, in ascending order.
std::vector<Rgb> ColorsOf(const Picture& picture);

#endif

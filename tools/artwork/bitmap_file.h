// Uncompressed bitmap files in the formats of the module's resources.
#ifndef ARTWORK_BITMAP_FILE_H
#define ARTWORK_BITMAP_FILE_H

#include "render.h"

#include <string>

// The bytes of a file with the lowest depth that holds the picture's colours: 1, 4 or 8 bits per pixel with a
// colour table, or 24 without one.
std::string BitmapFile(const Picture& picture);

// The distinct colours of a picture, in ascending order.
std::vector<Rgb> ColorsOf(const Picture& picture);

#endif

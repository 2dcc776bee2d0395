// The parts of the printer's picture as bitmaps that are combined by AND.
#ifndef ARTWORK_PARTS_H
#define ARTWORK_PARTS_H

#include "render.h"

#include <string>

struct Part {
    int id;
    std::string name;
    Picture picture; // on white
};

// Body, cabinet and all units. Each pixel of the printer belongs to one part, so that nothing darkens where
// parts meet. Where a unit covers the body both have the pixel; the unit's colour is then one that AND leaves
// unchanged.
std::vector<Part> DrawParts(int width, int height, size_t mostColors);

#endif

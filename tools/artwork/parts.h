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

// Body, cabinet and all units. Each pixel of the printer belongs to one part alone, so that nothing darkens
// where parts meet. Where a unit lies before the body, both have it: the unit's colour is one that AND leaves
// as it is.
std::vector<Part> DrawParts(int width, int height, size_t mostColors);

#endif

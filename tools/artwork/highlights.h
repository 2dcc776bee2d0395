// The paper's way in and out of the printer, as highlights upon its picture.
#ifndef ARTWORK_HIGHLIGHTS_H
#define ARTWORK_HIGHLIGHTS_H

#include "render.h"

#include <string>

struct Highlight {
    int id; // of the colour image; its mask has the next one
    std::string name;
    Picture image; // black where nothing lies
    Picture mask;  // black where something lies, white elsewhere
};

std::vector<Highlight> DrawHighlights(int width, int height);

#endif

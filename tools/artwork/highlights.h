// Highlights of the paper trays on the printer's picture.
#ifndef ARTWORK_HIGHLIGHTS_H
#define ARTWORK_HIGHLIGHTS_H

#include "render.h"

#include <string>

struct Highlight {
    int id; // of the colour image; the mask has the next one
    std::string name;
    Picture image; // black elsewhere
    Picture mask;  // black for the highlight, white elsewhere
};

std::vector<Highlight> DrawHighlights(int width, int height);

#endif

// Lettering of the logo: letters are strokes with round ends.
#ifndef ARTWORK_LETTERING_H
#define ARTWORK_LETTERING_H

#include "shapes.h"

#include <string>

struct TextStyle {
    double height;   // of capitals
    double weight;   // width of the strokes
    double tracking; // between letters, in tenths of the height
    Paint paint;
};

// Adds a line of text; `at` is the upper left corner of its first capital. Throws std::runtime_error for a
// letter that is not defined.
void AddText(Scene& scene, const std::string& text, Point at, const TextStyle& style);

#endif

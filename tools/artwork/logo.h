// The logo picture of the version page.
#ifndef ARTWORK_LOGO_H
#define ARTWORK_LOGO_H

#include "render.h"

// 176 x 120 pixels: the printer in front of a light, with the maker's and the product's name.
Picture DrawLogo();

#endif

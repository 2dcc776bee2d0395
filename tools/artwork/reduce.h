// Pictures with fewer colours.
#ifndef ARTWORK_REDUCE_H
#define ARTWORK_REDUCE_H

#include "render.h"

// The picture with at most so many colours: the rarest become the ones nearest to them. White stays, and
// nothing becomes white.
Picture Reduce(const Picture& picture, size_t mostColors);

#endif

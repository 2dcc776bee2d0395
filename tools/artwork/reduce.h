// Pictures with fewer colours.
#ifndef ARTWORK_REDUCE_H
#define ARTWORK_REDUCE_H

#include "render.h"

// The picture with at most this many colours: the rarest are replaced by the nearest ones. White is kept, and
// nothing becomes white.
Picture Reduce(const Picture& picture, size_t mostColors);

#endif

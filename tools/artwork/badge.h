// The hard-disk badge.
#ifndef ARTWORK_BADGE_H
#define ARTWORK_BADGE_H

#include "render.h"

// 39 x 17 pixels in four colours: normal when the disk is installed, greyed otherwise.
Picture DrawBadge(bool isInstalled);

#endif

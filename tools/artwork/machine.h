// The printer and its units, seen from the right front: what stands where, and how it looks.
#ifndef ARTWORK_MACHINE_H
#define ARTWORK_MACHINE_H

#include "shapes.h"

// First row below the body: from here on the pixels belong to the paper feed cabinet.
constexpr int kCabinetTop = 138;

// Body and cabinet, which are always drawn together.
Scene Base();

// One unit that can be added. Left of the body it stands behind it, as seen from the right; what reaches into
// the body's output bay, and what stands at its right, lies before it.
struct Unit {
    Scene behind;
    Scene before;
};

enum class Kit { kNone, kMailbin, kSaddle };

Unit InputUnit();
Unit Finisher(bool hasMiddleTray, Kit kit); // output units 1 and 2
Unit JobSeparator();                        // output unit 3
Unit OutputRack();                          // output unit 4

#endif

// The printer and its units, seen from the front right.
#ifndef ARTWORK_MACHINE_H
#define ARTWORK_MACHINE_H

#include "shapes.h"

// First row below the body; from here on the pixels belong to the paper feed cabinet.
constexpr int kCabinetTop = 138;

// Body and cabinet, which are always drawn together.
Scene Base();

// An optional unit. Seen from the right, a unit left of the body is behind it; a unit right of it, and parts
// in the body's output bay, are in front.
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

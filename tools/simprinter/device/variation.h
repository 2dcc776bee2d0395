// Levels that change with time: paper and consumables are used up, and replaced some time after.
#ifndef SIMPRINTER_VARIATION_H
#define SIMPRINTER_VARIATION_H

#include "simprinter/device/device.h"

#include <random>

// How a tray or a supply changes. A level that something else has set is where it goes on.
struct Movement {
    double period;          // seconds from full to empty
    int shown;              // the level that it was given last
    double since = 0;       // seconds since start when it was somewhere else
    double usedAtSince = 0; // the part of its period that was over then
};

struct Variation {
    std::vector<Movement> trays, supplies; // as the device's
};

// `seconds` is the time in which the fastest tray is used up. The generator selects the speed of each thing.
Variation StartVariation(const Device& device, double seconds, std::mt19937& random);

// Sets the levels for this time since start. True when any has changed.
bool VaryLevels(Variation& variation, Device& device, double seconds);

#endif

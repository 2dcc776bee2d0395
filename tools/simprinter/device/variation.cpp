// Moves the levels of trays and supplies along a period of use, which is followed by a pause at empty.
#include "simprinter/device/variation.h"

#include <cmath>

namespace {

// In parts of the period of use.
constexpr double kPause = 0.2;           // empty, until somebody replaces it
constexpr double kWasteNearlyFull = 0.8; // of a waste box without a number: some room until then
constexpr double kWasteFull = 0.95;

// A waste box usually reports whether there is some room left instead of a number.
bool IsCoarse(const Supply& supply, int level) {
    return supply.kind->supplyClass == kReceptacle && (level == kLevelSome || level == 0 || level == 1);
}

// Of a counted level, the part of the capacity that is used.
double UsedPart(int level, int capacity) {
    return capacity > 0 ? 1 - static_cast<double>(level) / capacity : 1;
}
int CountedLevel(double used, int capacity) {
    constexpr double kRounding = 1e-6; // a whole level stays what it is
    return used >= 1 ? 0 : static_cast<int>(std::ceil((1 - used) * capacity - kRounding));
}

double CoarseUsedPart(int level) {
    return level == 0 ? kWasteFull : level == 1 ? kWasteNearlyFull : 0;
}
int CoarseLevel(double used) {
    return used >= kWasteFull ? 0 : used >= kWasteNearlyFull ? 1 : kLevelSome;
}

// The part of the period that is over at this time, at most 1 plus the pause.
double UsedAt(const Movement& movement, double seconds) {
    return std::fmod(movement.usedAtSince + (seconds - movement.since) / movement.period, 1 + kPause);
}

// Returns whether the level has changed. A level that something else has set becomes the start of the
// movement.
template <typename Thing, typename UsedOf, typename LevelAt>
bool Move(Movement& movement, Thing& thing, double seconds, const UsedOf& usedOf, const LevelAt& levelAt) {
    if (thing.level != movement.shown) {
        movement.since = seconds;
        movement.usedAtSince = usedOf(thing.level);
        movement.shown = thing.level;
        return false;
    }
    thing.level = levelAt(UsedAt(movement, seconds));
    const bool isChanged = thing.level != movement.shown;
    movement.shown = thing.level;
    return isChanged;
}

template <typename Thing>
bool IsCounted(const Thing& thing) {
    return thing.level >= 0 && thing.capacity > 0;
}

template <typename Thing>
bool MoveCounted(Movement& movement, Thing& thing, double seconds) {
    if (!IsCounted(thing))
        return false;
    return Move(
        movement, thing, seconds, [&](int level) { return UsedPart(level, thing.capacity); },
        [&](double used) { return CountedLevel(used, thing.capacity); });
}

bool MoveSupply(Movement& movement, Supply& supply, double seconds) {
    if (!IsCoarse(supply, supply.level))
        return MoveCounted(movement, supply, seconds);
    return Move(movement, supply, seconds, CoarseUsedPart, CoarseLevel);
}

// 1 to 2 times `least`, in hundredths.
double Period(double least, std::mt19937& random) {
    return least * (1 + static_cast<double>(random() % 101) / 100);
}

// Makes the fastest of the trays whose levels move take so long.
void ScaleTrays(const Device& device, double seconds, std::vector<Movement>& trays) {
    double fastest = 0;
    for (size_t i = 0; i < trays.size(); ++i) {
        if (IsCounted(device.trays[i]) && (fastest == 0 || trays[i].period < fastest))
            fastest = trays[i].period;
    }
    for (Movement& tray : trays)
        tray.period *= fastest == 0 ? 1 : seconds / fastest;
}

} // namespace

Variation StartVariation(const Device& device, double seconds, std::mt19937& random) {
    constexpr double kSuppliesLast = 5; // times as long as the paper
    constexpr int kNotShown = -1000;    // makes the level of the description the start
    Variation variation;
    for (size_t i = 0; i < device.trays.size(); ++i)
        variation.trays.push_back({Period(seconds, random), kNotShown});
    ScaleTrays(device, seconds, variation.trays);
    for (size_t i = 0; i < device.supplies.size(); ++i)
        variation.supplies.push_back({Period(kSuppliesLast * seconds, random), kNotShown});
    return variation;
}

bool VaryLevels(Variation& variation, Device& device, double seconds) {
    bool isChanged = false;
    for (size_t i = 0; i < device.trays.size(); ++i)
        isChanged = MoveCounted(variation.trays[i], device.trays[i], seconds) || isChanged;
    for (size_t i = 0; i < device.supplies.size(); ++i)
        isChanged = MoveSupply(variation.supplies[i], device.supplies[i], seconds) || isChanged;
    return isChanged;
}

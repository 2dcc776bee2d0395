// Reduces the colours of a picture. Ties go to the first colour, so that the result is the same on every
// machine.
#include "reduce.h"

#include <cstdint>
#include <map>

namespace {

using Counts = std::map<Rgb, size_t>; // pixels of each colour except white

int Distance(const Rgb& a, const Rgb& b) {
    const int r = a.r - b.r;
    const int g = a.g - b.g;
    const int blue = a.b - b.b;
    return r * r + g * g + blue * blue;
}

// The colour that is cheapest to replace, and its replacement.
struct Merge {
    Rgb from;
    Rgb to;
};

Merge CheapestMerge(const Counts& counts) {
    Merge cheapest = {};
    size_t cost = SIZE_MAX;
    for (const auto& [from, pixels] : counts)
        for (const auto& [to, others] : counts) {
            const size_t distance = static_cast<size_t>(Distance(from, to));
            if (distance == 0 || pixels * distance >= cost)
                continue;
            cost = pixels * distance;
            cheapest = {from, to};
        }
    return cheapest;
}

} // namespace

Picture Reduce(const Picture& picture, size_t mostColors) {
    Counts counts;
    for (const Rgb& pixel : picture.pixels)
        ++counts[pixel];
    counts.erase(kWhite);
    std::map<Rgb, Rgb> replacements;
    while (counts.size() + 1 > mostColors) {
        const Merge merge = CheapestMerge(counts);
        counts[merge.to] += counts[merge.from];
        counts.erase(merge.from);
        replacements[merge.from] = merge.to;
    }
    Picture reduced = picture;
    for (Rgb& pixel : reduced.pixels)
        for (auto found = replacements.find(pixel); found != replacements.end();
             found = replacements.find(pixel))
            pixel = found->second;
    return reduced;
}

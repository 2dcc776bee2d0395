// Renders the parts as bitmaps.
#include "parts.h"

#include "bitmap_file.h"
#include "machine.h"
#include "reduce.h"

#include <algorithm>

namespace {

constexpr Color kBlankPaper = {255, 255, 255};
constexpr double kOwned = 0.5; // coverage from which a pixel shared by two parts belongs to the body

struct UnitRow {
    int id;
    const char* name;
    Unit unit;
};

std::vector<UnitRow> Units() {
    return {
        {104, "large_capacity_unit", InputUnit()},
        {131, "output_unit_1", Finisher(false, Kit::kNone)},
        {132, "output_unit_2", Finisher(true, Kit::kNone)},
        {133, "output_unit_1_mailbin", Finisher(false, Kit::kMailbin)},
        {134, "output_unit_2_mailbin", Finisher(true, Kit::kMailbin)},
        {135, "output_unit_1_saddle", Finisher(false, Kit::kSaddle)},
        {136, "output_unit_2_saddle", Finisher(true, Kit::kSaddle)},
        {137, "output_unit_3", JobSeparator()},
        {138, "output_unit_4", OutputRack()},
    };
}

struct RenderedUnit {
    Raster<Sample> behind;
    Raster<Sample> before;
};

// The value nearest to `wanted` that only has bits of `below`, so that AND with `below` leaves it unchanged.
uint8_t NearestWithin(uint8_t wanted, uint8_t below) {
    uint8_t best = 0;
    for (int value = 0; value <= 255; ++value)
        if ((value & below) == value && std::abs(value - wanted) < std::abs(best - wanted))
            best = static_cast<uint8_t>(value);
    return best;
}

Rgb NearestWithin(const Rgb& wanted, const Rgb& below) {
    return {NearestWithin(wanted.r, below.r), NearestWithin(wanted.g, below.g),
            NearestWithin(wanted.b, below.b)};
}

Color ToColor(const Rgb& pixel) {
    return {static_cast<double>(pixel.r), static_cast<double>(pixel.g), static_cast<double>(pixel.b)};
}

// Body and cabinet in one. Edges blend into the background, except where a unit can be behind the body.
Picture BasePicture(const Raster<Sample>& base, const std::vector<RenderedUnit>& units) {
    Picture picture(base.width, base.height, kWhite);
    for (size_t i = 0; i < picture.pixels.size(); ++i) {
        Sample sample = base.pixels[i];
        if (std::any_of(units.begin(), units.end(),
                        [i](const RenderedUnit& unit) { return unit.behind.pixels[i].coverage > 0; }))
            sample.coverage = sample.coverage >= kOwned ? 1 : 0;
        picture.pixels[i] = Round(Over(sample, kBlankPaper));
    }
    return picture;
}

// A unit in its own colours where the body does not cover it.
Picture WantedUnit(const RenderedUnit& unit, const Raster<Sample>& base, const Picture& basePicture) {
    Picture picture(base.width, base.height, kWhite);
    for (size_t i = 0; i < picture.pixels.size(); ++i) {
        const bool isBase = base.pixels[i].coverage >= kOwned;
        const Sample behind = isBase ? Sample() : unit.behind.pixels[i];
        const Sample& before = unit.before.pixels[i];
        if (behind.coverage > 0 || before.coverage > 0)
            picture.pixels[i] =
                Round(Over(before, Over(behind, isBase ? ToColor(basePicture.pixels[i]) : kBlankPaper)));
    }
    return picture;
}

// The same in colours that AND with the base leaves unchanged.
Picture UnitPicture(const RenderedUnit& unit, const Raster<Sample>& base, const Picture& basePicture,
                    size_t mostColors) {
    const Picture wanted = WantedUnit(unit, base, basePicture);
    for (size_t colors = mostColors;; --colors) { // matching the base's bits can add colours
        Picture picture = Reduce(wanted, colors);
        for (size_t i = 0; i < picture.pixels.size(); ++i)
            if (kWhite < wanted.pixels[i] || wanted.pixels[i] < kWhite)
                picture.pixels[i] = NearestWithin(picture.pixels[i], basePicture.pixels[i]);
        if (ColorsOf(picture).size() <= mostColors)
            return picture;
    }
}

// The rows of a picture in a range, the rest white.
Picture Rows(const Picture& picture, int from, int to) {
    Picture rows(picture.width, picture.height, kWhite);
    for (int y = from; y < to; ++y)
        for (int x = 0; x < picture.width; ++x)
            rows.At(x, y) = picture.At(x, y);
    return rows;
}

} // namespace

std::vector<Part> DrawParts(int width, int height, size_t mostColors) {
    const Raster<Sample> base = Render(Base(), width, height);
    const std::vector<UnitRow> rows = Units();
    std::vector<RenderedUnit> units;
    units.reserve(rows.size());
    for (const UnitRow& row : rows)
        units.push_back({Render(row.unit.behind, width, height), Render(row.unit.before, width, height)});

    const Picture basePicture = Reduce(BasePicture(base, units), mostColors);
    std::vector<Part> parts = {
        {101, "body", Rows(basePicture, 0, kCabinetTop)},
        {103, "feed_cabinet", Rows(basePicture, kCabinetTop, height)},
    };
    for (size_t i = 0; i < rows.size(); ++i)
        parts.push_back({rows[i].id, rows[i].name, UnitPicture(units[i], base, basePicture, mostColors)});
    return parts;
}

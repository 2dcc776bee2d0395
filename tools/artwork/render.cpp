// Renders scenes by supersampling.
#include "render.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

constexpr int kSamples = 8; // in each direction

struct Covered {
    Color color;
    bool isCovered;
};

Covered ColorOf(const Scene& scene, Point at) {
    Covered result = {};
    for (const Shape& shape : scene.shapes) {
        Color color;
        if ((shape.paint.opacity < 1 && !result.isCovered) || !ColorAt(shape, at, color))
            continue;
        result = {Mix(result.color, color, shape.paint.opacity), true};
    }
    return result;
}

Sample SampleOf(const Scene& scene, double left, double top, double size) {
    Color sum = {};
    int covered = 0;
    for (int row = 0; row < kSamples; ++row)
        for (int column = 0; column < kSamples; ++column) {
            const Covered sample = ColorOf(
                scene, {left + size * (column + 0.5) / kSamples, top + size * (row + 0.5) / kSamples});
            if (!sample.isCovered)
                continue;
            sum = {sum.r + sample.color.r, sum.g + sample.color.g, sum.b + sample.color.b};
            ++covered;
        }
    if (covered == 0)
        return {};
    return {{sum.r / covered, sum.g / covered, sum.b / covered},
            static_cast<double>(covered) / (kSamples * kSamples)};
}

uint8_t ToChannel(double value) {
    return static_cast<uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
}

} // namespace

bool operator<(const Rgb& a, const Rgb& b) {
    return std::tie(a.r, a.g, a.b) < std::tie(b.r, b.g, b.b);
}

Raster<Sample> Render(const Scene& scene, int width, int height, double scale, Point shift) {
    Raster<Sample> samples(width, height, {});
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            samples.At(x, y) = SampleOf(scene, (x - shift.x) / scale, (y - shift.y) / scale, 1 / scale);
    return samples;
}

Color Over(const Sample& sample, const Color& below) {
    return Mix(below, sample.color, sample.coverage);
}

Rgb Round(const Color& color) {
    return {ToChannel(color.r), ToChannel(color.g), ToChannel(color.b)};
}

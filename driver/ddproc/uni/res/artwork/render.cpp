// Rendering by supersampling: see the header.
#include "render.h"

#include <algorithm>
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
    for (int i = 0; i < kSamples * kSamples; ++i) {
        const Covered sample = ColorOf(scene, {left + size * (i % kSamples + 0.5) / kSamples,
                                               top + size * (i / kSamples + 0.5) / kSamples});
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

uint8_t RoundChannel(double value, int step) {
    return static_cast<uint8_t>(255 - std::min(static_cast<int>((255 - value) / step + 0.5) * step, 255));
}

} // namespace

bool operator==(const Rgb& a, const Rgb& b) {
    return a.r == b.r && a.g == b.g && a.b == b.b;
}

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

Rgb Round(const Color& color, int step) {
    return {RoundChannel(color.r, step), RoundChannel(color.g, step), RoundChannel(color.b, step)};
}

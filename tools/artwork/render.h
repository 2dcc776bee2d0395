// Renders scenes into pixels.
#ifndef ARTWORK_RENDER_H
#define ARTWORK_RENDER_H

#include "shapes.h"

#include <cstddef>
#include <cstdint>

// One pixel of a finished picture.
struct Rgb {
    uint8_t r;
    uint8_t g;
    uint8_t b;
};
bool operator<(const Rgb& a, const Rgb& b);

constexpr Rgb kWhite = {255, 255, 255};
constexpr Rgb kBlack = {0, 0, 0};

template <typename Pixel>
struct Raster {
    Raster(int pixelsAcross, int pixelsDown, const Pixel& background)
        : width(pixelsAcross), height(pixelsDown),
          pixels(static_cast<size_t>(pixelsAcross) * static_cast<size_t>(pixelsDown), background) {}

    Pixel& At(int x, int y) {
        return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
    }
    const Pixel& At(int x, int y) const { return const_cast<Raster*>(this)->At(x, y); }

    int width;
    int height;
    std::vector<Pixel> pixels; // rows from the top
};

using Picture = Raster<Rgb>;

// A pixel of a rendered scene: its coverage (0 to 1) and the mean colour of the covered part.
struct Sample {
    Color color;
    double coverage;
};

// Renders a scene, enlarged by `scale` and then shifted.
Raster<Sample> Render(const Scene& scene, int width, int height, double scale = 1, Point shift = {0, 0});

// A sample composited over a colour.
Color Over(const Sample& sample, const Color& below);

Rgb Round(const Color& color);

#endif

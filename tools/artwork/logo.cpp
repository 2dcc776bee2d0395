// Draws the logo picture.
#include "logo.h"

#include "lettering.h"
#include "machine.h"

namespace {

constexpr int kWidth = 176;
constexpr int kHeight = 120;
constexpr double kPrinterScale = 0.57;
constexpr Point kPrinterShift = {44, 20};
constexpr Color kWhiteInk = {255, 255, 255};

// The dark background.
Scene Background() {
    constexpr double kFloor = 104;
    constexpr Point kLight = {109, 78};
    const Plane plane = {{0, 0}, {1, 0}, {0, 1}};
    Scene scene;
    scene.Panel(plane, {0, 0, kWidth, kHeight}, Down({9, 44, 84}, {14, 116, 158}));
    for (const double radius : {58.0, 46.0, 35.0, 25.0})
        scene.Panel(plane, {kLight.x - radius, kLight.y - radius, kLight.x + radius, kLight.y + radius},
                    Tint({255, 226, 178}, 0.13), radius);
    scene.Panel(plane, {0, kFloor, kWidth, kHeight}, Tint({4, 36, 66}, 0.45));
    return scene;
}

Scene Printer() {
    const Unit finisher = Finisher(true, Kit::kNone);
    Scene scene = finisher.behind;
    scene.Add(Base());
    scene.Add(finisher.before);
    scene.Add(InputUnit().before);
    return scene;
}

Scene Lettering() {
    Scene scene;
    AddText(scene, "QUORVANE", {13, 11}, {7, 1.3, 5, Flat({178, 224, 244})});
    AddText(scene, "lumora R880", {14, 26}, {16, 2.3, 2.6, Flat(kWhiteInk)});
    return scene;
}

void Lay(const Raster<Sample>& samples, Raster<Color>& over) {
    for (size_t i = 0; i < over.pixels.size(); ++i)
        over.pixels[i] = Over(samples.pixels[i], over.pixels[i]);
}

} // namespace

Picture DrawLogo() {
    Raster<Color> canvas(kWidth, kHeight, kWhiteInk);
    Lay(Render(Background(), kWidth, kHeight), canvas);
    Lay(Render(Printer(), kWidth, kHeight, kPrinterScale, kPrinterShift), canvas);
    Lay(Render(Lettering(), kWidth, kHeight), canvas);
    Picture picture(kWidth, kHeight, kWhite);
    for (size_t i = 0; i < picture.pixels.size(); ++i)
        picture.pixels[i] = Round(canvas.pixels[i]);
    return picture;
}

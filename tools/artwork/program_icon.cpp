// program_icon: draws the icon of the workbench, a small printer. `program_icon FOLDER` writes program.ico if
// it has changed, `program_icon --check FOLDER` only checks that the file is up to date. Exit codes: 0; 1
// when the file differs or can't be written; 2 for wrong usage.
#include "common/generated_files.h"
#include "icon_file.h"
#include "render.h"

#include <cmath>
#include <exception>
#include <iostream>

namespace {

constexpr double kGrid = 32; // units of the scene across
constexpr int kSizes[] = {16, 20, 24, 32, 40, 48, 64};

Scene Printer() {
    const Plane plane = {{0, 0}, {1, 0}, {0, 1}};
    Scene scene;
    scene.Panel(plane, {8, 2, 24, 14}, Flat({120, 140, 165}), 1);                       // sheet behind: edge
    scene.Panel(plane, {9, 3, 23, 14}, Down({255, 255, 255}, {226, 234, 244}), 0.5);    // sheet behind
    scene.Panel(plane, {2, 11, 30, 26}, Flat({36, 58, 92}), 3);                         // body: edge
    scene.Panel(plane, {3, 12, 29, 25}, Down({112, 152, 200}, {54, 92, 144}), 2.2);     // body
    scene.Panel(plane, {3.6, 12.6, 28.4, 15}, Tint({255, 255, 255}, 0.35), 1.4);        // light from above
    scene.Panel(plane, {23, 16, 26, 18}, Flat({120, 230, 120}), 0.8);                   // lamp
    scene.Panel(plane, {7, 19, 25, 22}, Flat({24, 40, 66}), 1);                         // slot
    scene.Panel(plane, {8, 20, 24, 31}, Flat({120, 140, 165}), 1);                      // printed sheet: edge
    scene.Panel(plane, {9, 20.5, 23, 30}, Down({214, 224, 238}, {255, 255, 255}), 0.5); // printed sheet
    constexpr Color kInks[] = {{0, 160, 210}, {210, 40, 120}, {240, 196, 0}};
    for (int i = 0; i < 3; ++i) // a picture in the colours of printing
        scene.Panel(plane, {11.0 + 4 * i, 23, 13.5 + 4 * i, 28}, Flat(kInks[i]), 0.6);
    return scene;
}

uint32_t Argb(const Sample& sample) {
    const auto level = [](double value) { return static_cast<uint32_t>(std::lround(value)); };
    return sample.coverage == 0 ? 0
                                : level(sample.coverage * 255) << 24 | level(sample.color.r) << 16
                                      | level(sample.color.g) << 8 | level(sample.color.b);
}

IconImage Draw(const Scene& scene, int size) {
    IconImage image = {size, {}};
    for (const Sample& sample : Render(scene, size, size, size / kGrid).pixels)
        image.pixels.push_back(Argb(sample));
    return image;
}

} // namespace

int main(int argc, char** argv) {
    const bool isCheck = argc == 3 && std::string(argv[1]) == "--check";
    if (argc != 2 && !isCheck) {
        std::cerr << "usage: program_icon [--check] FOLDER\n";
        return 2;
    }
    try {
        std::vector<IconImage> images;
        for (const int size : kSizes)
            images.push_back(Draw(Printer(), size));
        return UpdateFiles(argv[argc - 1], {{"program.ico", IconFile(images)}}, isCheck);
    } catch (const std::exception& error) {
        std::cerr << "program_icon: " << error.what() << "\n";
        return 1;
    }
}

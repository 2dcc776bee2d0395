// ui_icons: draws the icons of the user-interface module. `ui_icons FOLDER` writes the files that have
// changed, `ui_icons --check FOLDER` only checks that the files are up to date. Exit codes: 0; 1 when
// files differ or can't be written; 2 for wrong usage.
#include "common/generated_files.h"
#include "icon_file.h"

#include <cstdint>
#include <exception>
#include <iostream>

namespace {

constexpr int kSize = 16;

// '#' outlines, '+' paper, '-' the folded corner, '=' writing; the rest is transparent.
struct Icon {
    const char* file;
    const char* rows[kSize];
};

constexpr Icon kIcons[] = {
    {"473_portrait.ico",
     {
         "................", //
         "...#######......", //
         "...#+++++##.....", //
         "...#+++++#-#....", //
         "...#+++++####...", //
         "...#++++++++#...", //
         "...#+======+#...", //
         "...#++++++++#...", //
         "...#+======+#...", //
         "...#++++++++#...", //
         "...#+======+#...", //
         "...#++++++++#...", //
         "...#+====+++#...", //
         "...#++++++++#...", //
         "...##########...", //
         "................", //
     }},
    {"474_landscape.ico",
     {
         "................", //
         "................", //
         "................", //
         ".###########....", //
         ".#+++++++++##...", //
         ".#+=======+#-#..", //
         ".#+++++++++####.", //
         ".#++++++++++++#.", //
         ".#+==========+#.", //
         ".#++++++++++++#.", //
         ".#+=======++++#.", //
         ".#++++++++++++#.", //
         ".##############.", //
         "................", //
         "................", //
         "................", //
     }},
};

constexpr struct {
    char mark;
    uint32_t color; // 0xAARRGGBB
} kInks[] = {
    {'#', 0xFF395270},
    {'+', 0xFFFFFFFF},
    {'-', 0xFFC8D6E6},
    {'=', 0xFF7D9CC0},
};

uint32_t ColorOf(char mark) {
    for (const auto& ink : kInks)
        if (ink.mark == mark)
            return ink.color;
    return 0;
}

// Each mark is `scale` pixels wide and high.
IconImage Image(const Icon& icon, int scale) {
    IconImage image = {kSize * scale, {}};
    for (int y = 0; y < image.size; ++y)
        for (int x = 0; x < image.size; ++x)
            image.pixels.push_back(ColorOf(icon.rows[y / scale][x / scale]));
    return image;
}

std::vector<GeneratedFile> DrawAll() {
    std::vector<GeneratedFile> files;
    for (const Icon& icon : kIcons)
        // The double size is for programs that load an icon at the system's standard size and scale it down.
        files.push_back({icon.file, IconFile({Image(icon, 1), Image(icon, 2)})});
    return files;
}

} // namespace

int main(int argc, char** argv) {
    const bool isCheck = argc == 3 && std::string(argv[1]) == "--check";
    if (argc != 2 && !isCheck) {
        std::cerr << "usage: ui_icons [--check] FOLDER\n";
        return 2;
    }
    try {
        return UpdateFiles(argv[argc - 1], DrawAll(), isCheck);
    } catch (const std::exception& error) {
        std::cerr << "ui_icons: " << error.what() << "\n";
        return 1;
    }
}

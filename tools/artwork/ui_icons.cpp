// ui_icons: draws the icons of the user-interface module. `ui_icons FOLDER` writes the files that have
// changed, `ui_icons --check FOLDER` only checks that the files are up to date. Exit codes: 0; 1 when
// files differ or can't be written; 2 for wrong usage.
#include "common/generated_files.h"

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

// One image of an icon file: the header, the colours and the mask, both from the bottom row. Each mark is
// `scale` pixels wide and high.
std::string Image(const Icon& icon, int scale) {
    const int size = kSize * scale;
    const auto mark = [&](int x, int y) { return icon.rows[y / scale][x / scale]; };
    std::string colors;
    std::string mask;
    for (int y = size - 1; y >= 0; --y) {
        for (int x = 0; x < size; ++x)
            PutNumber(colors, ColorOf(mark(x, y)), 4);
        uint32_t row = 0; // a bit for each transparent pixel, the leftmost highest; at most 32
        for (int x = 0; x < size; ++x)
            row |= ColorOf(mark(x, y)) == 0 ? 0x80000000U >> x : 0U;
        for (int shift = 24; shift >= 0; shift -= 8)
            PutNumber(mask, row >> shift, 1);
    }
    std::string image;
    PutNumber(image, 40, 4);
    PutNumber(image, static_cast<size_t>(size), 4);
    PutNumber(image, static_cast<size_t>(size) * 2, 4);
    PutNumber(image, 1, 2);  // planes
    PutNumber(image, 32, 2); // bits per pixel
    PutNumber(image, 0, 4);  // not compressed
    PutNumber(image, colors.size() + mask.size(), 4);
    for (int i = 0; i < 4; ++i)
        PutNumber(image, 0, 4); // resolution and colour table: none
    return image + colors + mask;
}

// The double size is for programs that load an icon at the system's standard size and scale it down.
std::string IconFile(const Icon& icon) {
    constexpr int kScales[] = {1, 2};
    constexpr size_t kCount = sizeof(kScales) / sizeof(kScales[0]);
    std::string file;
    std::string images;
    PutNumber(file, 0, 2);
    PutNumber(file, 1, 2); // an icon file
    PutNumber(file, kCount, 2);
    for (const int scale : kScales) {
        const std::string image = Image(icon, scale);
        PutNumber(file, size_t{kSize} * static_cast<size_t>(scale), 1);
        PutNumber(file, size_t{kSize} * static_cast<size_t>(scale), 1);
        PutNumber(file, 0, 2);  // no colour table
        PutNumber(file, 1, 2);  // planes
        PutNumber(file, 32, 2); // bits per pixel
        PutNumber(file, image.size(), 4);
        PutNumber(file, 6 + 16 * kCount + images.size(), 4);
        images += image;
    }
    return file + images;
}

std::vector<GeneratedFile> DrawAll() {
    std::vector<GeneratedFile> files;
    for (const Icon& icon : kIcons)
        files.push_back({icon.file, IconFile(icon)});
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

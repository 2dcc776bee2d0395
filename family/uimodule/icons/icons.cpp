// ui_icons: draws the icons of the user-interface module. `ui_icons FOLDER` writes the files, `ui_icons
// --check FOLDER` tells whether the files are what it draws. Exit codes: 0; 1 when files differ or can't be
// written; 2 for a wrong command line.
#include "hosttools/files.h"

#include <cstdint>
#include <exception>
#include <iostream>

namespace {

constexpr int kSize = 16;

// '#' outlines, '+' paper, '-' the corner that is folded over, '=' writing; the rest is transparent.
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

void Put(std::string& file, size_t value, int octets) {
    for (int i = 0; i < octets; ++i)
        file += static_cast<char>(value >> (8 * i) & 0xFF);
}

// One image of an icon file: a header for colours and mask together, the colours, the mask, both from the
// bottom row. Each mark is `scale` pixels wide and high.
std::string Image(const Icon& icon, int scale) {
    const int size = kSize * scale;
    const auto mark = [&](int x, int y) { return icon.rows[y / scale][x / scale]; };
    std::string colors;
    std::string mask;
    for (int y = size - 1; y >= 0; --y) {
        for (int x = 0; x < size; ++x)
            Put(colors, ColorOf(mark(x, y)), 4);
        uint32_t row = 0; // a bit for each transparent pixel, the leftmost one highest; at most 32
        for (int x = 0; x < size; ++x)
            row |= ColorOf(mark(x, y)) == 0 ? 0x80000000U >> x : 0U;
        for (int shift = 24; shift >= 0; shift -= 8)
            Put(mask, row >> shift, 1);
    }
    std::string image;
    Put(image, 40, 4);
    Put(image, static_cast<size_t>(size), 4);
    Put(image, static_cast<size_t>(size) * 2, 4);
    Put(image, 1, 2);  // planes
    Put(image, 32, 2); // bits per pixel
    Put(image, 0, 4);  // not compressed
    Put(image, colors.size() + mask.size(), 4);
    for (int i = 0; i < 4; ++i)
        Put(image, 0, 4); // resolution and colour table: none
    return image + colors + mask;
}

// The double size is for programs that load an icon in the system's standard size and let it shrink.
std::string IconFile(const Icon& icon) {
    constexpr int kScales[] = {1, 2};
    constexpr size_t kCount = sizeof(kScales) / sizeof(kScales[0]);
    std::string file;
    std::string images;
    Put(file, 0, 2);
    Put(file, 1, 2); // an icon file
    Put(file, kCount, 2);
    for (const int scale : kScales) {
        const std::string image = Image(icon, scale);
        Put(file, static_cast<size_t>(kSize * scale), 1);
        Put(file, static_cast<size_t>(kSize * scale), 1);
        Put(file, 0, 2);  // no colour table
        Put(file, 1, 2);  // planes
        Put(file, 32, 2); // bits per pixel
        Put(file, image.size(), 4);
        Put(file, 6 + 16 * kCount + images.size(), 4);
        images += image;
    }
    return file + images;
}

int Run(const std::string& folder, bool isCheck) {
    int result = 0;
    for (const Icon& icon : kIcons) {
        const std::string path = folder + "/" + icon.file;
        if (!isCheck) {
            WriteFileWhole(path, IconFile(icon));
        } else if (ReadFile(path) != IconFile(icon)) {
            std::cerr << path << ": is not what is drawn; './dev artwork' draws it anew\n";
            result = 1;
        }
    }
    return result;
}

} // namespace

int main(int argc, char** argv) {
    const bool isCheck = argc == 3 && std::string(argv[1]) == "--check";
    if (argc != 2 && !isCheck) {
        std::cerr << "usage: ui_icons [--check] FOLDER\n";
        return 2;
    }
    try {
        return Run(argv[argc - 1], isCheck);
    } catch (const std::exception& error) {
        std::cerr << "ui_icons: " << error.what() << "\n";
        return 1;
    }
}

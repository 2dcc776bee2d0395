// artwork: draws every bitmap of the module's resources. `artwork FOLDER` writes the files that have changed;
// `artwork --check FOLDER` only checks that the files are up to date. Exit codes: 0; 1 when files differ or
// can't be written; 2 for wrong usage.
#include "badge.h"
#include "bitmap_file.h"
#include "common/generated_files.h"
#include "highlights.h"
#include "logo.h"
#include "parts.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace {

constexpr int kFrame = 200; // pixels in each direction, the same for all parts and highlights
constexpr size_t kFrameColors = 256;

std::string FileName(int id, const std::string& name) {
    return std::to_string(id) + "_" + name + ".bmp";
}

std::vector<GeneratedFile> DrawAll() {
    std::vector<GeneratedFile> files;
    const auto add = [&files](int id, const std::string& name, const Picture& picture) {
        files.push_back({FileName(id, name), BitmapFile(picture)});
    };
    for (const Part& part : DrawParts(kFrame, kFrame, kFrameColors))
        add(part.id, part.name, part.picture);
    for (const Highlight& highlight : DrawHighlights(kFrame, kFrame)) {
        add(highlight.id, highlight.name, highlight.image);
        add(highlight.id + 1, highlight.name + "_mask", highlight.mask);
    }
    add(201, "disk_missing", DrawBadge(false));
    add(202, "disk_installed", DrawBadge(true));
    add(502, "logo", DrawLogo());
    return files;
}

} // namespace

int main(int argc, char** argv) {
    try {
        CLI::App app("Draws the bitmaps of the module's resources", "artwork");
        std::string folder;
        bool isCheck = false;
        app.add_option("FOLDER", folder, "The folder of the bitmaps")
            ->required()
            ->check(CLI::ExistingDirectory);
        app.add_flag("--check", isCheck, "Write nothing; fail when a bitmap differs");
        try {
            app.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            return app.exit(error) == 0 ? 0 : 2;
        }
        return UpdateFiles(folder, DrawAll(), isCheck);
    } catch (const std::exception& error) {
        std::cerr << "artwork: " << error.what() << "\n";
        return 1;
    }
}

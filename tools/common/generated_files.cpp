// Writes or checks the files that drawing programs generate.
#include "common/generated_files.h"

#include "common/files.h"

#include <filesystem>
#include <iostream>

void PutNumber(std::string& bytes, size_t number, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

int UpdateFiles(const std::string& folder, const std::vector<GeneratedFile>& files, bool isCheck) {
    int changed = 0;
    for (const GeneratedFile& file : files) {
        const std::string path = folder + "/" + file.name;
        if (std::filesystem::exists(FilePath(path)) && ReadFile(path) == file.bytes)
            continue;
        ++changed;
        std::cout << path << (isCheck ? ": differs from what would be drawn" : ": written") << "\n";
        if (!isCheck)
            WriteFileWhole(path, file.bytes);
    }
    if (!isCheck || changed == 0)
        return 0;
    std::cerr << changed << " files differ: run './dev artwork' to redraw them\n";
    return 1;
}

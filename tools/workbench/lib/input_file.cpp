// Files that a command reads: see the header.
#include "workbench/lib/input_file.h"

#include "workbench/lib/document.h"

#include <filesystem>
#include <fstream>
#include <iterator>

std::string ReadInputFile(const std::string& path, const char* option) {
    std::ifstream file(std::filesystem::u8path(path), std::ios::binary);
    if (!file)
        throw Failure(kExitFailed, path + ": can't be read; name another file with " + option);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string ReadTextFile(const std::string& path, const char* option) {
    constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
    const std::string text = ReadInputFile(path, option);
    return text.compare(0, 3, kByteOrderMark) == 0 ? text.substr(3) : text;
}

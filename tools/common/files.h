// Whole files: reading, and writing that never leaves half a file.
#ifndef COMMON_FILES_H
#define COMMON_FILES_H

#include <filesystem>
#include <string>
#include <string_view>

// Larger than nearly all files these tools read; limits the cost of a wrong one.
constexpr size_t kMaxFileBytes = size_t{4} << 20;

// These tools have the names of files in UTF-8, whatever the system has.
inline std::filesystem::path FilePath(const std::string& name) {
    return std::filesystem::u8path(name);
}

// Throws std::runtime_error with the file's name and the reason, also for a file of more bytes than `most`.
std::string ReadFile(const std::string& path, size_t most = kMaxFileBytes);

// The file has either all of the new contents or the old ones. A pipe or a device is written directly. Throws
// as ReadFile does.
void WriteFileWhole(const std::string& path, std::string_view contents);

// The file that a new one is renamed onto to replace `path`: where its links lead. Throws std::runtime_error
// when that is something else than a file, or its folder takes no new file.
std::string FileToReplace(const std::string& path);

#endif

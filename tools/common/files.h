// Reading and writing of whole files.
#ifndef COMMON_FILES_H
#define COMMON_FILES_H

#include <string>
#include <string_view>

// Far beyond any file that people write; keeps what a broken file can cost within bounds.
constexpr size_t kMaxFileBytes = size_t{4} << 20;

// Throws std::runtime_error with the file's name and the reason.
std::string ReadFile(const std::string& path);

// The file gets the new contents whole, or keeps the old ones. What is no regular file (a pipe, a device) is
// written to directly. Throws as ReadFile does.
void WriteFileWhole(const std::string& path, std::string_view contents);

#endif

// Generated files that are kept with the sources: written when they have changed, or only checked.
#ifndef COMMON_GENERATED_FILES_H
#define COMMON_GENERATED_FILES_H

#include <cstddef>
#include <string>
#include <vector>

struct GeneratedFile {
    std::string name;
    std::string bytes;
};

// Appends the `count` low bytes of a number, little-endian.
void PutNumber(std::string& bytes, size_t number, int count);

// Writes the files that are missing in the folder or differ; with `isCheck` only lists them. Returns the exit
// code: 1 when a check finds any, else 0. Throws std::runtime_error when a file can't be read or written.
int UpdateFiles(const std::string& folder, const std::vector<GeneratedFile>& files, bool isCheck);

#endif

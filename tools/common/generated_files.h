// Files that a drawing program makes and that lie beside its sources: written where they have changed, or
// only checked.
#ifndef COMMON_GENERATED_FILES_H
#define COMMON_GENERATED_FILES_H

#include <cstddef>
#include <string>
#include <vector>

struct GeneratedFile {
    std::string name;
    std::string bytes;
};

// Appends the lowest octets of a number, the lowest first.
void PutNumber(std::string& bytes, size_t number, int octets);

// Writes the files that are missing in the folder or differ there; with `isCheck` only tells which. The
// program's exit code: 1 when a check finds any, else 0. Throws std::runtime_error when one can't be written.
int UpdateFiles(const std::string& folder, const std::vector<GeneratedFile>& files, bool isCheck);

#endif

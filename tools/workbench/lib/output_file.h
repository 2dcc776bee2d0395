// Files that a command writes.
#ifndef WORKBENCH_LIB_OUTPUT_FILE_H
#define WORKBENCH_LIB_OUTPUT_FILE_H

#include <filesystem>
#include <string_view>

// Writes the bytes to this path, in place of what is there only once they are complete. Throws Failure that
// says why they can't be written; the option has named the path.
void WriteOutputFile(const std::filesystem::path& path, std::string_view bytes, const char* option);

#endif

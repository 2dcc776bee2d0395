// Files that a command reads besides the driver's own.
#ifndef WORKBENCH_LIB_INPUT_FILE_H
#define WORKBENCH_LIB_INPUT_FILE_H

#include <string>

// All bytes of the file at this path (UTF-8), which the option has named. Throws Failure when it can't be
// read.
std::string ReadInputFile(const std::string& path, const char* option);

// The text of a file in UTF-8, without the byte order mark that it may begin with.
std::string ReadTextFile(const std::string& path, const char* option);

#endif

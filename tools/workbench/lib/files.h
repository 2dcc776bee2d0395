// Reading and writing of whole files that an option of the command line names. Messages mention that option.
#ifndef WORKBENCH_LIB_FILES_H
#define WORKBENCH_LIB_FILES_H

#include <filesystem>
#include <string>
#include <string_view>
#include <windows.h>

// The bytes of the file at this path (UTF-8). Throws Failure when it cannot be read.
std::string ReadInputFile(const std::string& path, const char* option);

// The text of a UTF-8 file, without its byte order mark if it has one.
std::string ReadTextFile(const std::string& path, const char* option);

// The absolute path of the folder, which is made if it is missing. Throws Failure with the reason.
std::filesystem::path MakeFolder(const std::string& path, const char* option);

// Writes a file as WriteOutputFile does. Returns a last-error value: why it was not written, or
// ERROR_SUCCESS.
DWORD TryWriteFile(const std::filesystem::path& path, std::string_view bytes);

// Writes the bytes to a temporary file and renames it when complete, so that an existing file is kept if
// writing fails. Throws Failure with the reason.
void WriteOutputFile(const std::filesystem::path& path, std::string_view bytes, const char* option);

#endif

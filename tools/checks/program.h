// A program that runs with its output in a log.
#ifndef CHECKS_PROGRAM_H
#define CHECKS_PROGRAM_H

#include <filesystem>
#include <string>
#include <windows.h>

struct Program {
    // Starts it in a folder, without input.
    Program(const std::filesystem::path& file, const std::string& arguments,
            const std::filesystem::path& folder, const std::filesystem::path& log);
    ~Program(); // ends it, and what it has started
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    HANDLE process = nullptr; // null when it could not be started
    DWORD startError = ERROR_SUCCESS;

private:
    const HANDLE job;
};

// A system error with its number and the system's text.
std::string ErrorText(DWORD error);

// The bytes of a file; empty when it can't be read.
std::string ReadFileBytes(const std::filesystem::path& file);

#endif

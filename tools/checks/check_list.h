// The list of checks, which is made from the list of tests when the package is made.
#ifndef CHECKS_CHECK_LIST_H
#define CHECKS_CHECK_LIST_H

#include <filesystem>
#include <string>
#include <vector>

// A test program with its arguments.
struct Check {
    std::string name;
    int limit; // seconds
    std::string
        printers;        // the list of those that it queries, relative to the folder of the data; empty: none
    std::string program; // in the folder of the programs
    std::string arguments;
};

// A line for each: NAME LIMIT PRINTERS|- PROGRAM [ARGUMENT]... Throws std::runtime_error when the file can't
// be read or a line is no check.
std::vector<Check> ReadCheckList(const std::filesystem::path& file);

#endif

// Runs the workbench as a process.
#ifndef WORKBENCH_RUN_H
#define WORKBENCH_RUN_H

#include "support/product.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <windows.h>

namespace fs = std::filesystem;
using Json = nlohmann::json;

struct Folder : TemporaryFolder {
    using TemporaryFolder::TemporaryFolder;

    // The option of the workbench that selects this folder.
    std::wstring Option() const { return L" --folder \"" + path.wstring() + L"\""; }
};

std::string Contents(const fs::path& path);

struct Result {
    int exitCode;
    std::string output;
    std::string errors;
};

// "NAME:BEFORE:AFTER " of all changed settings in a report.
std::string Changes(const Json& report);

// Runs the program in this folder.
Result RunWorkbench(const std::wstring& arguments, const fs::path& folder = ProductFolder());

// The JSON that a command writes. The command must succeed.
Json RunForJson(const std::wstring& arguments);

// Runs a command that must fail with a message that matches this regular expression and without other output.
void ExpectFailure(const std::wstring& arguments, int exitCode, const std::string& message);

// One field of every row of a table.
Json Pick(const Json& rows, const char* field);

#endif

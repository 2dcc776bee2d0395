// Runs the workbench as a process. Folders and files of the tests are created next to the test program and
// removed at the end.
#ifndef WORKBENCH_RUN_H
#define WORKBENCH_RUN_H

#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <windows.h>

namespace fs = std::filesystem;
using Json = nlohmann::json;

fs::path ProgramFolder();

// A new folder next to the test program, with copies of files from there. Programs that run at the same time
// have folders of their own. Files that a process still has open are removed by the next run.
struct Folder {
    explicit Folder(const wchar_t* name, const std::vector<std::string>& files = {}); // "NAME" or "NAME=SOURCE"
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    // The option of the workbench that selects this folder.
    std::wstring Option() const { return L" --folder \"" + path.wstring() + L"\""; }

    const fs::path path;
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
Result RunWorkbench(const std::wstring& arguments, const fs::path& folder = ProgramFolder());

// The JSON that a command writes. The command must succeed.
Json RunForJson(const std::wstring& arguments);

// Runs a command that must fail with a message that matches this regular expression and without other output.
void ExpectFailure(const std::wstring& arguments, int exitCode, const std::string& message);

// One field of every row of a table.
Json Pick(const Json& rows, const char* field);

#endif

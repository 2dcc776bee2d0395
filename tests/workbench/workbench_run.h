// Runs the workbench as a process, as a person does. Folders and files of the tests lie beside the test
// program and are removed at the end.
#ifndef WORKBENCH_RUN_H
#define WORKBENCH_RUN_H

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <windows.h>

namespace fs = std::filesystem;
using Json = nlohmann::json;

fs::path ProgramFolder();

// A new folder beside the test program, with copies of files from there. Programs that run at the same time
// have folders of their own. What a process that is still ending holds open is left to the next run.
struct Folder {
    explicit Folder(const wchar_t* name, const std::map<const char*, const char*>& sourceByName = {});
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    // Has the workbench look there.
    std::wstring Option() const { return L" --folder \"" + path.wstring() + L"\""; }

    const fs::path path;
};

std::string Contents(const fs::path& path);

struct Result {
    int exitCode;
    std::string output;
    std::string errors;
};

// Runs the program of this folder, there.
Result RunWorkbench(const std::wstring& arguments, const fs::path& folder = ProgramFolder());

// Null when it is not JSON.
Json ParseJson(const std::string& text);

// What a command that must succeed writes as JSON.
Json RunForJson(const std::wstring& arguments);

// A command that must fail says on the error output what is wrong, by this regular expression, and writes
// nothing else.
void ExpectFailure(const std::wstring& arguments, int exitCode, const std::string& says);

// One field of every row of a table.
Json Pick(const Json& rows, const char* field);

#endif

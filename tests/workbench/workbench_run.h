// Runs the workbench as a process, as a person does. Folders and files of the tests lie beside the test
// program and are removed at the end.
#ifndef WORKBENCH_RUN_H
#define WORKBENCH_RUN_H

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <windows.h>

namespace fs = std::filesystem;
using Json = nlohmann::json;

inline fs::path ProgramFolder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

// A new folder beside the test program, with copies of files from there. Programs that run at the same time
// have folders of their own. What a process that is still ending holds open is left to the next run.
struct Folder {
    explicit Folder(const wchar_t* name, std::map<const char*, const char*> sourceByName = {})
        : path(ProgramFolder() / (name + std::to_wstring(GetCurrentProcessId()))) {
        std::error_code isInUse;
        fs::remove_all(path, isInUse);
        fs::create_directory(path);
        for (const auto& [file, source] : sourceByName)
            fs::copy_file(ProgramFolder() / source, path / file);
    }
    ~Folder() {
        std::error_code isInUse;
        fs::remove_all(path, isInUse);
    }

    // Has the workbench look there.
    std::wstring Option() const { return L" --folder \"" + path.wstring() + L"\""; }

    const fs::path path;
};

inline std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Result {
    int exitCode;
    std::string output;
    std::string errors;
};

// Runs the program of this folder, there.
inline Result RunWorkbench(const std::wstring& arguments, const fs::path& folder = ProgramFolder()) {
    const Folder redirected(L"workbench_output");
    fs::current_path(folder);
    const std::wstring out = (redirected.path / "out").wstring();
    const std::wstring err = (redirected.path / "err").wstring();
    const std::wstring line = L"workbench.exe " + arguments + L" >\"" + out + L"\" 2>\"" + err + L"\"";
    const int exitCode = _wsystem(line.c_str());
    fs::current_path(ProgramFolder());
    return {exitCode, Contents(out), Contents(err)};
}

// What a command that must succeed writes as JSON.
inline Json RunForJson(const std::wstring& arguments) {
    const Result result = RunWorkbench(arguments + L" --json");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    return Json::parse(result.output, nullptr, false);
}

// A command that must fail says on the error output what is wrong, by this regular expression, and writes
// nothing else.
inline void ExpectFailure(const std::wstring& arguments, int exitCode, const std::string& says) {
    const Result result = RunWorkbench(arguments);
    EXPECT_EQ(result.exitCode, exitCode) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(std::regex_search(result.errors, std::regex("^workbench: .*" + says)))
        << says << " in: " << result.errors;
}

// One field of every row of a table.
inline Json Pick(const Json& rows, const char* field) {
    Json values = Json::array();
    for (const Json& row : rows)
        values.push_back(row.at(field));
    return values;
}

#endif

// Starts the workbench and collects its output.
#include "workbench_run.h"

#include <algorithm>
#include <fstream>
#include <regex>

namespace {

// A file for the output of a process. It is deleted when its last handle is closed, since a process that the
// system starts meanwhile may inherit the handle and keep it open.
HANDLE CreateOutputFile() {
    wchar_t name[MAX_PATH] = L"";
    GetTempFileNameW(ProductFolder().c_str(), L"out", 0, name);
    SECURITY_ATTRIBUTES inheritable = {sizeof(inheritable), nullptr, TRUE};
    HANDLE file =
        CreateFileW(name, GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    &inheritable, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << name << ": system error " << GetLastError();
    return file;
}

// Returns the contents and closes the file.
std::string TakeOutput(HANDLE file) {
    std::string text(GetFileSize(file, nullptr), '\0');
    SetFilePointer(file, 0, nullptr, FILE_BEGIN);
    DWORD read = 0;
    ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &read, nullptr);
    CloseHandle(file);
    return text;
}

} // namespace

std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Result RunWorkbench(const std::wstring& arguments, const fs::path& folder) {
    HANDLE files[] = {CreateOutputFile(), CreateOutputFile()}; // all that the process inherits
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    std::vector<char> attributes(size);
    STARTUPINFOEXW start = {};
    start.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(attributes.data());
    InitializeProcThreadAttributeList(start.lpAttributeList, 1, 0, &size);
    UpdateProcThreadAttribute(start.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, files, sizeof(files),
                              nullptr, nullptr);
    start.StartupInfo.cb = sizeof(start);
    start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    start.StartupInfo.hStdOutput = files[0];
    start.StartupInfo.hStdError = files[1];
    std::wstring line = L"workbench.exe " + arguments;
    PROCESS_INFORMATION process = {};
    DWORD exitCode = MAXDWORD; // when it does not start
    const BOOL isStarted =
        CreateProcessW((folder / "workbench.exe").c_str(), line.data(), nullptr, nullptr, TRUE,
                       EXTENDED_STARTUPINFO_PRESENT, nullptr, folder.c_str(), &start.StartupInfo, &process);
    const DWORD failure = GetLastError();
    DeleteProcThreadAttributeList(start.lpAttributeList);
    EXPECT_TRUE(isStarted) << line << ": system error " << failure;
    if (isStarted) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    return {static_cast<int>(exitCode), TakeOutput(files[0]), TakeOutput(files[1])};
}

Json RunForJson(const std::wstring& arguments) {
    const Result result = RunWorkbench(arguments + L" --json");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    return Json::parse(result.output);
}

void ExpectFailure(const std::wstring& arguments, int exitCode, const std::string& message) {
    const Result result = RunWorkbench(arguments);
    EXPECT_EQ(result.exitCode, exitCode) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(std::regex_search(result.errors, std::regex("^workbench: .*" + message)))
        << message << " not in: " << result.errors;
}

Json Pick(const Json& rows, const char* field) {
    Json values = Json::array();
    for (const Json& row : rows)
        values.push_back(row.at(field));
    return values;
}

std::string Changes(const Json& report) {
    std::string changes;
    for (const Json& row : report["changes"])
        changes += row["name"].dump() + ":" + row["before"].dump() + ":" + row["after"].dump() + " ";
    changes.erase(std::remove(changes.begin(), changes.end(), '"'), changes.end());
    return changes;
}

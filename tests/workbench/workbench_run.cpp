// The workbench as a process: see the header.
#include "workbench_run.h"

#include <fstream>
#include <regex>

namespace {

// Takes what a process writes. The file has a name of its own and goes when its last handle is closed: a
// process that the system starts meanwhile may inherit the handle and keep it.
struct OutputFile {
    OutputFile() {
        static int count;
        const std::wstring name =
            L"output" + std::to_wstring(GetCurrentProcessId()) + L"." + std::to_wstring(++count);
        SECURITY_ATTRIBUTES inheritable = {sizeof(inheritable), nullptr, TRUE};
        handle = CreateFileW((ProgramFolder() / name).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inheritable,
                             CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        EXPECT_NE(handle, INVALID_HANDLE_VALUE) << "error " << GetLastError();
    }
    ~OutputFile() { CloseHandle(handle); }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    std::string Contents() const {
        if (handle == INVALID_HANDLE_VALUE)
            return "";
        std::string text(GetFileSize(handle, nullptr), '\0');
        SetFilePointer(handle, 0, nullptr, FILE_BEGIN);
        DWORD read = 0;
        ReadFile(handle, text.data(), static_cast<DWORD>(text.size()), &read, nullptr);
        text.resize(read);
        return text;
    }

    HANDLE handle;
};

// Waits for the program's end and answers its exit code, -1 when it can't be started. It inherits the two
// files and no other handle.
int Run(const fs::path& program, const std::wstring& arguments, const OutputFile& out,
        const OutputFile& err) {
    HANDLE inherited[] = {out.handle, err.handle};
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    std::vector<char> block(size);
    STARTUPINFOEXW start = {};
    start.StartupInfo.cb = sizeof(start);
    start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    start.StartupInfo.hStdOutput = out.handle;
    start.StartupInfo.hStdError = err.handle;
    start.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(block.data());
    InitializeProcThreadAttributeList(start.lpAttributeList, 1, 0, &size);
    UpdateProcThreadAttribute(start.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, inherited,
                              sizeof(inherited), nullptr, nullptr);
    std::wstring line = L"workbench.exe " + arguments;
    PROCESS_INFORMATION process = {};
    const BOOL isStarted =
        CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, EXTENDED_STARTUPINFO_PRESENT,
                       nullptr, program.parent_path().c_str(), &start.StartupInfo, &process);
    DeleteProcThreadAttributeList(start.lpAttributeList);
    if (!isStarted)
        return -1;
    DWORD exitCode = 0;
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(exitCode);
}

} // namespace

fs::path ProgramFolder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

Folder::Folder(const wchar_t* name, const std::map<const char*, const char*>& sourceByName)
    : path(ProgramFolder() / (name + std::to_wstring(GetCurrentProcessId()))) {
    std::error_code isInUse;
    fs::remove_all(path, isInUse);
    fs::create_directory(path);
    for (const auto& [file, source] : sourceByName)
        fs::copy_file(ProgramFolder() / source, path / file);
}

Folder::~Folder() {
    std::error_code isInUse;
    fs::remove_all(path, isInUse);
}

std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Result RunWorkbench(const std::wstring& arguments, const fs::path& folder) {
    const OutputFile out, err;
    const int exitCode = Run(folder / "workbench.exe", arguments, out, err);
    return {exitCode, out.Contents(), err.Contents()};
}

Json ParseJson(const std::string& text) {
    const Json json = Json::parse(text, nullptr, false);
    return json.is_discarded() ? Json() : json;
}

Json RunForJson(const std::wstring& arguments) {
    const Result result = RunWorkbench(arguments + L" --json");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    return ParseJson(result.output);
}

void ExpectFailure(const std::wstring& arguments, int exitCode, const std::string& says) {
    const Result result = RunWorkbench(arguments);
    EXPECT_EQ(result.exitCode, exitCode) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(std::regex_search(result.errors, std::regex("^workbench: .*" + says)))
        << says << " in: " << result.errors;
}

Json Pick(const Json& rows, const char* field) {
    Json values = Json::array();
    for (const Json& row : rows)
        values.push_back(row.at(field));
    return values;
}

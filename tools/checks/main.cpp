// checks: runs the packed test programs and says what has passed. Exit codes: 0 everything that was run has
// passed; 1 something failed or was stopped; 2 nothing could be run.
#include "checks/check_run.h"
#include "checks/log_zip.h"
#include "checks/machine.h"
#include "checks/package_files.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

constexpr int kPassed = 0, kFailed = 1, kNothingRun = 2;
constexpr const char* kZip = "telmar_d-checks-logs.zip";

HANDLE stopEvent;

// The program ends when this returns, unless a key was pressed; then it ends by itself.
BOOL WINAPI Stop(DWORD kind) {
    constexpr DWORD kMaxEnd = 4000; // milliseconds, fewer than the system grants
    SetEvent(stopEvent);
    if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT)
        Sleep(kMaxEnd);
    return TRUE;
}

// What is printed also goes into the summary.
std::string summary;

void Print(const char* format, ...) {
    char text[4096];
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(text, sizeof(text), format, arguments);
    va_end(arguments);
    summary += text;
    fputs(text, stdout);
    fflush(stdout);
}

std::string Count(size_t count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

fs::path PackageFolder() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return fs::path(path).parent_path().parent_path();
}

std::runtime_error CannotWrite(const fs::path& folder, DWORD error) {
    return std::runtime_error("cannot write into " + folder.u8string() + " (" + ErrorText(error)
                              + "). Unpack the package into a folder of your own.");
}

// An empty folder for the logs, without what the run before has left. The lock, which ends with the program,
// keeps a second run away.
HANDLE PrepareLogs(const Folders& folders) {
    std::error_code error;
    if (!fs::create_directory(folders.Logs(), error) && error)
        throw CannotWrite(folders.root, static_cast<DWORD>(error.value()));
    HANDLE lock = CreateFileW((folders.Logs() / "running").c_str(), GENERIC_WRITE | DELETE, 0, nullptr,
                              CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (lock == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION)
        throw std::runtime_error("the checks of this folder are running already. Wait for their end.");
    if (lock == INVALID_HANDLE_VALUE)
        throw CannotWrite(folders.Logs(), GetLastError());
    for (const fs::directory_entry& entry : fs::directory_iterator(folders.Logs()))
        if (entry.path().filename() != "running")
            fs::remove_all(entry.path(), error);
    for (const fs::directory_entry& entry : fs::directory_iterator(folders.Programs()))
        if (entry.path().extension() == ".bmp"
            || entry.path().extension() == ".tmp") // pictures that differed, output
            fs::remove(entry.path(), error);
    fs::create_directory(folders.Logs() / "temporary", error);
    return lock;
}

// The environment of the test programs: their temporary files stay in the package.
void SetEnvironment(const Folders& folders) {
    for (const wchar_t* name : {L"TMP", L"TEMP"})
        SetEnvironmentVariableW(name, (folders.Logs() / "temporary").c_str());
    SetEnvironmentVariableW(L"LUMORA_CHECKS", L"yes");
    SetEnvironmentVariableW(L"LUMORA_LONG_TESTS", nullptr);
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX); // no window of a crash waits for an answer
}

void PrintResult(const CheckResult& result) {
    constexpr const char* kWords[] = {"passed", "FAILED", "skipped"};
    const TestLog& tests = result.tests;
    std::string counts = tests.passed != 0 || result.verdict == Verdict::kPassed
                             ? std::to_string(tests.passed) + " passed"
                             : "";
    const auto add = [&](size_t count, const char* word) {
        if (count != 0)
            counts += (counts.empty() ? "" : ", ") + std::to_string(count) + word;
    };
    add(tests.failed.size(), " failed");
    add(tests.skipped.size(), " skipped");
    Print("%-8s %5.1f s  %s\n", kWords[static_cast<int>(result.verdict)], result.duration / 1000.0,
          counts.c_str());
}

void PrintReasons(const std::vector<CheckResult>& results) {
    bool isFirst = true;
    const auto print = [&](const char* title, const CheckResult& result, const std::string& text,
                           const std::string& reason = "") {
        Print(isFirst ? "\n%s\n" : "", title);
        isFirst = false;
        Print("  %s: %s%s%s\n", result.check.name.c_str(), text.c_str(), reason.empty() ? "" : ": ",
              reason.c_str());
    };
    for (const CheckResult& result : results) {
        if (result.verdict == Verdict::kFailed && !result.reason.empty())
            print("Failed", result, result.reason);
        for (const std::string& test : result.tests.failed)
            print("Failed", result, test);
    }
    isFirst = true;
    for (const CheckResult& result : results) {
        if (result.verdict == Verdict::kSkipped && !result.reason.empty())
            print("Skipped", result, result.reason);
        for (const auto& [test, reason] : result.tests.skipped)
            print("Skipped", result, test, reason);
    }
}

int PrintSummary(const std::vector<CheckResult>& results, const std::vector<std::string>& damaged,
                 bool isStopped) {
    PrintReasons(results);
    size_t programs[3] = {}, passed = 0, failed = 0, skipped = 0;
    for (const CheckResult& result : results) {
        ++programs[static_cast<int>(result.verdict)];
        passed += static_cast<size_t>(result.tests.passed);
        failed += result.tests.failed.size();
        skipped += result.tests.skipped.size();
    }
    Print("\n%s: %zu passed, %zu failed, %zu skipped.\n", Count(results.size(), "check").c_str(), programs[0],
          programs[1], programs[2]);
    Print("%s: %zu passed, %zu failed, %zu skipped.\n", Count(passed + failed + skipped, "test").c_str(),
          passed, failed, skipped);
    const bool hasFailed = programs[1] != 0 || !damaged.empty() || isStopped;
    if (isStopped)
        Print("Stopped before all checks have run.\n");
    if (!damaged.empty())
        Print("The package is damaged: unpack it again before you trust these results.\n");
    if (hasFailed && !isStopped)
        Print("Send %s to the engineers of the module.\n", kZip);
    else if (!hasFailed)
        Print("Everything that was run has passed. %s has the details.\n", kZip);
    return hasFailed ? kFailed : kPassed;
}

bool PackLogs(const Folders& folders) {
    std::ofstream(folders.Logs() / "summary.txt", std::ios::binary) << summary;
    std::vector<fs::path> files;
    for (const auto& [folder, isWanted] :
         {std::pair(folders.Logs(), L".log.txt"), {folders.Programs(), L".bmp"}})
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            const std::wstring extension = entry.path().extension().wstring();
            if (!extension.empty() && std::wstring(isWanted).find(extension) != std::wstring::npos)
                files.push_back(entry.path());
        }
    std::sort(files.begin(), files.end());
    return WriteZip(folders.root / kZip, files);
}

int RunChecks(const Folders& folders, const std::vector<std::wstring>& options) {
    std::vector<Check> checks = ReadCheckList(folders.Data() / "checks.list");
    bool arePrintersRunning = false;
    std::vector<std::string> names;
    for (const std::wstring& option : options) {
        const std::string name = fs::path(option).u8string();
        const auto hasName = [&](const Check& check) { return check.name == name; };
        if (name == "--printers-run")
            arePrintersRunning = true;
        else if (std::any_of(checks.begin(), checks.end(), hasName))
            names.push_back(name);
        else
            throw std::runtime_error(
                "there is no check '" + name
                + "'. Usage: run-checks.cmd [CHECK]...; data\\checks.list has their names.");
    }
    if (!names.empty())
        checks.erase(std::remove_if(checks.begin(), checks.end(),
                                    [&](const Check& check) {
                                        return std::count(names.begin(), names.end(), check.name) == 0;
                                    }),
                     checks.end());
    const HANDLE lock = PrepareLogs(folders);
    SetEnvironment(folders);
    const fs::path module = folders.Programs() / "TELMAR_D.DLL";
    std::ofstream(folders.Logs() / "machine.txt", std::ios::binary) << DescribeMachine(module);
    Print("Checks of %s %s on %s\n", module.filename().u8string().c_str(), VersionOf(module).c_str(),
          SystemName().c_str());
    Print("Leave the mouse, the keyboard and the windows that open alone.\n");
    if (!IsEnglish())
        Print(
            "The language of this user is not English. Tests of texts expect English ones and will fail.\n");
    Print("\n");
    const std::vector<std::string> damaged = DamagedFiles(folders.root);
    for (const std::string& sentence : damaged)
        Print("Damaged package: %s.\n", sentence.c_str());

    CheckRunner runner(folders, stopEvent, arePrintersRunning);
    std::vector<CheckResult> results;
    for (const Check& check : checks) {
        Print("%-28s ", check.name.c_str());
        results.push_back(runner.Run(check));
        PrintResult(results.back());
        if (runner.IsStopped())
            break;
    }
    const int result = PrintSummary(results, damaged, runner.IsStopped());
    const bool isPacked = PackLogs(folders);
    std::error_code error;
    fs::remove_all(folders.Logs() / "temporary", error);
    CloseHandle(lock);
    if (!isPacked)
        throw std::runtime_error(std::string(kZip)
                                 + " could not be written. Its contents are in the folder logs.");
    return result;
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    const UINT codePage = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    stopEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    SetConsoleCtrlHandler(Stop, TRUE);
    int result = kNothingRun;
    try {
        result = RunChecks({PackageFolder()}, {arguments + 1, arguments + count});
    } catch (const std::exception& failure) {
        fprintf(stderr, "checks: %s\n", failure.what());
    }
    SetConsoleOutputCP(codePage); // of the window, which may stay
    return result;
}

// Starts programs in jobs of their own, which end all processes of a program together.
#include "checks/program.h"

#include <fstream>
#include <iterator>

namespace {

HANDLE OpenInheritable(const wchar_t* path, DWORD access, DWORD disposition) {
    SECURITY_ATTRIBUTES inheritable = {sizeof(inheritable), nullptr, TRUE};
    return CreateFileW(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inheritable, disposition,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

HANDLE MakeJob() {
    HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE; // also if this program is killed
    SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    return job;
}

} // namespace

Program::Program(const std::filesystem::path& file, const std::string& arguments,
                 const std::filesystem::path& folder, const std::filesystem::path& log)
    : job(MakeJob()) {
    HANDLE output = OpenInheritable(log.c_str(), FILE_APPEND_DATA, CREATE_ALWAYS);
    HANDLE input = OpenInheritable(L"NUL", GENERIC_READ, OPEN_EXISTING);
    if (output == INVALID_HANDLE_VALUE) {
        startError = GetLastError();
        CloseHandle(input);
        return;
    }
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input;
    start.hStdOutput = start.hStdError = output;
    std::wstring line = L"\"" + file.wstring() + L"\" " + std::filesystem::u8path(arguments).wstring();
    PROCESS_INFORMATION started = {};
    // A group of its own: Ctrl+C reaches the runner alone, which ends the program.
    if (CreateProcessW(file.c_str(), line.data(), nullptr, nullptr, TRUE,
                       CREATE_SUSPENDED | CREATE_NEW_PROCESS_GROUP, nullptr, folder.c_str(), &start,
                       &started)) {
        process = started.hProcess;
        if (AssignProcessToJobObject(job, process)) {
            ResumeThread(started.hThread);
        } else { // it could not be ended with what it starts
            startError = GetLastError();
            TerminateProcess(process, 1);
            CloseHandle(process);
            process = nullptr;
        }
        CloseHandle(started.hThread);
    } else {
        startError = GetLastError();
    }
    CloseHandle(input);
    CloseHandle(output);
}

Program::~Program() {
    TerminateJobObject(job, 1);
    if (process != nullptr) {
        WaitForSingleObject(process, 5000); // milliseconds; its log is complete then
        CloseHandle(process);
    }
    CloseHandle(job);
}

std::string ErrorText(DWORD error) {
    wchar_t text[300] = L"";
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        error, 0, text, static_cast<DWORD>(std::size(text)), nullptr);
    std::string words = std::filesystem::path(std::wstring(text, length)).u8string();
    words.erase(words.find_last_not_of(" .\r\n") + 1);
    return "error " + std::to_string(error) + (words.empty() ? "" : ": " + words);
}

std::string ReadFileBytes(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

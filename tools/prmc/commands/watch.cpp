// The command watch. Files are compared by time and size a few times a second, which works on any file
// system.
#include "common/files.h"
#include "prmc/commands/output.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <map>
#include <stdexcept>
#include <thread>
#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds kInterval{200};

// When the file was written and how large it is; zeros while it is missing, as some editors make it for a
// moment.
struct FileState {
    fs::file_time_type time = {};
    uintmax_t size = 0;

    bool operator!=(const FileState& other) const { return time != other.time || size != other.size; }
};

FileState StateOf(const std::string& path) {
    std::error_code isMissing;
    FileState state = {fs::last_write_time(FilePath(path), isMissing),
                       fs::file_size(FilePath(path), isMissing)};
    return isMissing ? FileState() : state;
}

// A line with the time, where it does not mix with the findings.
void Say(const std::string& what, const CheckOptions& options) {
    const std::time_t now = std::time(nullptr);
    char clock[] = "hh:mm:ss";
    std::strftime(clock, sizeof(clock), "%H:%M:%S", std::localtime(&now));
    const std::string line = std::string(clock) + " " + what + "\n";
    if (options.isJson)
        std::cerr << line;
    else
        Print(line);
}

// The exit status of a shell command; nonzero when it failed. Ctrl+C ends this program, too.
#ifdef _WIN32
int RunInShell(const std::string& command) {
    return _wsystem(FilePath(command).c_str());
}
#else
int RunInShell(const std::string& command) {
    constexpr int kInterrupted = 128 + SIGINT; // as a shell reports it
    const int status = std::system(command.c_str());
    if ((WIFSIGNALED(status) && WTERMSIG(status) == SIGINT) || WEXITSTATUS(status) == kInterrupted)
        std::raise(SIGINT); // Ctrl+C has ended only the command
    return status;
}
#endif

void RunCommand(const std::string& command, const CheckOptions& options) {
    if (RunInShell(command) != 0)
        Say("the command failed: " + command, options);
}

// Checks and builds once. Appends the files that were read, or tried; false when there are errors.
bool BuildOnce(const std::string& source, const std::string& target, const CheckOptions& options,
               std::vector<std::string>& files) {
    try {
        const ModelFile read = ReadForCheck(source, options);
        files = read.files;
        Report(read, options);
        if (read.findings.HasErrors()) {
            Say("errors; nothing is written", options);
            return false;
        }
        if (!target.empty())
            WriteModel(read, target);
        Say(target.empty() ? "no errors" : "written: " + target, options);
        return true;
    } catch (const std::runtime_error& error) {
        Say(error.what(), options);
        return false;
    }
}

} // namespace

void Watch(const std::string& source, const std::string& target, const std::string& command,
           const CheckOptions& options) {
    ExpectForm(source, true);
    std::map<std::string, FileState> states = {{source, {}}};
    const auto hasChanged = [](const auto& file) { return StateOf(file.first) != file.second; };
    for (;;) {
        for (auto& [file, state] : states) // before they are read, so that a save meanwhile counts
            state = StateOf(file);
        std::vector<std::string> files;
        const bool isBuilt = BuildOnce(source, target, options, files);
        for (const std::string& file : files)
            states.emplace(file, StateOf(file));
        if (isBuilt && !command.empty())
            RunCommand(command, options);
        while (std::none_of(states.begin(), states.end(), hasChanged))
            std::this_thread::sleep_for(kInterval);
    }
}

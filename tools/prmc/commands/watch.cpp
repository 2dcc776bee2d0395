// The command watch. Files are compared by time and size a few times a second, which works on any file
// system.
#include "prmc/commands/output.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>

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
    FileState state = {fs::last_write_time(path, isMissing), fs::file_size(path, isMissing)};
    return isMissing ? FileState() : state;
}

void Say(const std::string& what) {
    const std::time_t now = std::time(nullptr);
    char clock[] = "hh:mm:ss";
    std::strftime(clock, sizeof(clock), "%H:%M:%S", std::localtime(&now));
    Print(std::string(clock) + " " + what + "\n");
}

void RunCommand(const std::string& command) {
    constexpr int kInterrupted = 128 + SIGINT; // as a shell reports it
    const int status = std::system(command.c_str());
    if ((WIFSIGNALED(status) && WTERMSIG(status) == SIGINT) || WEXITSTATUS(status) == kInterrupted)
        std::raise(SIGINT); // Ctrl+C has ended only the command
    if (status != 0)
        Say("the command failed: " + command);
}

// Checks and builds once; the files that were read, or tried.
std::vector<std::string> BuildOnce(const std::string& source, const std::string& target,
                                   const std::string& command, const CheckOptions& options) {
    std::vector<std::string> files = {source};
    try {
        const ModelFile read = ReadForCheck(source, options);
        files = read.files;
        Report(read, options);
        if (read.findings.HasErrors()) {
            Say("errors; nothing is written");
            return files;
        }
        if (!target.empty())
            WriteModel(read, target);
        Say(target.empty() ? "no errors" : "written: " + target);
        if (!command.empty())
            RunCommand(command);
    } catch (const std::runtime_error& error) {
        Say(error.what());
    }
    return files;
}

} // namespace

void Watch(const std::string& source, const std::string& target, const std::string& command,
           const CheckOptions& options) {
    ExpectForm(source, true);
    std::map<std::string, FileState> files = {{source, {}}};
    const auto hasChanged = [](const auto& file) { return StateOf(file.first) != file.second; };
    for (;;) {
        for (auto& [file, state] : files) // before they are read, so that a save meanwhile counts
            state = StateOf(file);
        for (const std::string& file : BuildOnce(source, target, command, options))
            files.emplace(file, StateOf(file));
        do
            std::this_thread::sleep_for(kInterval);
        while (std::none_of(files.begin(), files.end(), hasChanged));
    }
}

// simprinter, a simulated printer on the network: command line, messages and exit codes.
// Exit codes: 0 stopped by SIGTERM or SIGINT, --help or --version; 1 failure; 2 wrong usage.
#include "common/files.h"
#include "simprinter/device_reader.h"
#include "simprinter/objects.h"
#include "simprinter/recording.h"
#include "simprinter/server.h"

#include <chrono>
#include <CLI/CLI.hpp>
#include <climits>
#include <exception>
#include <iostream>

namespace {

enum ExitCode { kDone = 0, kFailed = 1, kWrongUsage = 2 };

struct WrongUsage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct CommandLine {
    ServerOptions server;
    AgentOptions agent;
    std::string deviceFile, replayFile;
    std::vector<std::string> faults;
    unsigned seed = 1;
};

// False after --help and --version.
bool ReadCommandLine(int argc, char** argv, CommandLine& line) {
    CLI::App app{"A simulated printer on the network: answers SNMPv1 requests as a device would.",
                 "simprinter"};
    app.set_version_flag("--version", "simprinter " PROJECT_VERSION);
    app.add_option("--address", line.server.address, "IPv4 address to listen on")->capture_default_str();
    app.add_option("--port", line.server.port, "UDP port; 0 takes a free one")
        ->check(CLI::Range(0, 65535))
        ->capture_default_str();
    CLI::Option* device =
        app.add_option("--device", line.deviceFile, "what the printer has; without it a plain one")
            ->type_name("FILE.yaml");
    app.add_option("--replay", line.replayFile, "serve a recorded walk: 'snmpwalk -On' text or .snmprec")
        ->type_name("FILE")
        ->excludes(device);
    app.add_option("--community", line.agent.community, "requests with another one are not answered")
        ->capture_default_str();
    app.add_option("--largest-reply", line.agent.largestReply, "bytes; a larger reply becomes tooBig")
        ->check(CLI::Range(484, 65507))
        ->capture_default_str();
    app.add_option("--fault", line.faults, "NAME[=VALUE][@OID]; may be repeated; see below")
        ->allow_extra_args(false);
    app.add_option("--seed", line.seed, "selects the answers that are lost")
        ->check(CLI::Range(0, INT_MAX))
        ->capture_default_str();
    app.add_flag("--log", line.server.logs, "one line per request and answer on the standard error output");
    app.footer("Faults (with @OID only for requests below that object):\n" + FaultHelp());
    try {
        app.parse(argc, argv);
        return true;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0)
            throw WrongUsage(std::string(error.what()) + "\n'simprinter --help' lists the options.");
        app.exit(error);
        return false;
    }
}

std::vector<Fault> ReadFaults(const std::vector<std::string>& texts) {
    std::vector<Fault> faults;
    for (const std::string& text : texts) {
        try {
            faults.push_back(ParseFault(text));
        } catch (const std::runtime_error& error) {
            throw WrongUsage(error.what());
        }
    }
    return faults;
}

// Prints the findings to the standard error output. Throws when any of them is an error.
void Report(const std::string& path, Findings& findings) {
    findings.Sort();
    for (const Finding& finding : findings.list)
        std::cerr << path << ':' << FindingText(finding) << '\n';
    if (findings.HasErrors())
        throw std::runtime_error("'" + path + "' has errors: correct them and start again");
}

ObjectMap ReadObjects(const CommandLine& line) {
    Findings findings;
    if (!line.replayFile.empty()) {
        ObjectMap objects = ReadRecording(ReadFile(line.replayFile), findings);
        Report(line.replayFile, findings);
        return objects;
    }
    if (line.deviceFile.empty())
        return ObjectsOf(PlainDevice());
    const Device device = ReadDevice(ReadFile(line.deviceFile), findings);
    Report(line.deviceFile, findings);
    return ObjectsOf(device);
}

ExitCode Run(int argc, char** argv) {
    CommandLine line;
    if (!ReadCommandLine(argc, argv, line))
        return kDone;
    Agent agent{line.agent, {}, {ReadFaults(line.faults), std::mt19937(line.seed)}};
    agent.objects = ReadObjects(line);
    const auto start = std::chrono::steady_clock::now();
    const bool isRecorded = !line.replayFile.empty();
    Serve(
        line.server, agent,
        [&](uint16_t port) {
            std::cout << "simprinter: ready on " << line.server.address << ':' << port << std::endl;
        },
        [&](ObjectMap& objects) {
            using Hundredths = std::chrono::duration<int64_t, std::centi>;
            const auto up = std::chrono::steady_clock::now() - start;
            if (!isRecorded) // a recording's times do not change
                SetUpTime(objects, std::chrono::duration_cast<Hundredths>(up).count());
        });
    return kDone;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const WrongUsage& error) {
        std::cerr << "simprinter: " << error.what() << "\n";
        return kWrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "simprinter: " << error.what() << "\n";
        return kFailed;
    }
}

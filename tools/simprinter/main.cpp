// simprinter, a simulated printer on the network: command line, messages and exit codes.
// Exit codes: 0 ended by SIGTERM or SIGINT, or help was asked for; 1 trouble; 2 wrong use.
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

enum ExitCode { kDone = 0, kTrouble = 1, kWrongUse = 2 };

struct WrongUse : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct CommandLine {
    ServerOptions server;
    AgentOptions agent;
    std::string deviceFile, replayFile;
    std::vector<std::string> faults;
    unsigned seed = 1;
};

// False when help was asked for and given.
bool ReadCommandLine(int argc, char** argv, CommandLine& line) {
    CLI::App app{"A simulated printer on the network: answers SNMPv1 requests as a device would.",
                 "simprinter"};
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
    app.add_option("--community", line.agent.community, "requests of others stay unanswered")
        ->capture_default_str();
    app.add_option("--largest-reply", line.agent.largestReply, "octets; a larger one is answered with tooBig")
        ->check(CLI::Range(484, 65507))
        ->capture_default_str();
    app.add_option("--fault", line.faults, "NAME[=VALUE][@OID], any number of times; see below")
        ->allow_extra_args(false);
    app.add_option("--seed", line.seed, "which answers get lost")
        ->check(CLI::Range(0, INT_MAX))
        ->capture_default_str();
    app.add_flag("--log", line.server.logs, "one line per request and answer on the standard error output");
    app.footer("Faults (with @OID only for requests of objects below it):\n" + FaultHelp());
    try {
        app.parse(argc, argv);
        return true;
    } catch (const CLI::ParseError& fault) {
        if (fault.get_exit_code() != 0)
            throw WrongUse(std::string(fault.what()) + "\n'simprinter --help' lists the options.");
        app.exit(fault);
        return false;
    }
}

std::vector<Fault> ReadFaults(const std::vector<std::string>& texts) {
    std::vector<Fault> faults;
    for (const std::string& text : texts) {
        try {
            faults.push_back(ParseFault(text));
        } catch (const std::runtime_error& fault) {
            throw WrongUse(fault.what());
        }
    }
    return faults;
}

// What the findings say goes to the standard error output; any but notes end the program.
void Report(const std::string& path, Findings& findings) {
    findings.Sort();
    for (const Finding& finding : findings.list)
        std::cerr << path << ':' << FindingText(finding) << '\n';
    if (findings.HasErrors())
        throw std::runtime_error("'" + path + "' has faults: mend them and start again");
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
            if (!isRecorded) // whose times stand still
                SetUpTime(objects, std::chrono::duration_cast<Hundredths>(up).count());
        });
    return kDone;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const WrongUse& fault) {
        std::cerr << "simprinter: " << fault.what() << "\n";
        return kWrongUse;
    } catch (const std::exception& fault) {
        std::cerr << "simprinter: " << fault.what() << "\n";
        return kTrouble;
    }
}

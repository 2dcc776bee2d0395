// The program as a whole: its line when ready, exit codes, messages and log.
#include "running_printer.h"

#include "hosttools/files.h"

#include <csignal>
#include <gtest/gtest.h>

namespace {

TEST(Program, ReadyAndStopped) {
    for (const int signal : {SIGTERM, SIGINT}) {
        RunningPrinter printer("--address 127.0.0.3");
        EXPECT_EQ(printer.readyLine, "simprinter: ready on 127.0.0.3:" + std::to_string(printer.port) + '\n');
        EXPECT_GT(printer.port, 1023);
        EXPECT_EQ(printer.Stop(signal), 0);
    }
}

TEST(Program, ExitCodesAndMessages) {
    const TemporaryFolder folder;
    const std::string bad = folder.File("bad.yaml", "memroy: 5\nduplex: both\nname: a\n");
    const std::string walk = folder.File("walk.txt", ".1.3.1 = INTEGER: 1\n.1.3.2 = INTEGER: x\n");
    const RunningPrinter other;
    const struct {
        std::string arguments;
        int exitCode;
        std::string output;
    } cases[] = {
        {"--help", 0, "A simulated printer on the network: "},
        {"--prot 1", 2, "simprinter: "},
        {"--port 65536", 2, "simprinter: "},
        {"more", 2, "simprinter: "},
        {"--fault none", 2, "simprinter: fault 'none': there is no such fault"},
        {"--device " + bad + " --replay " + walk, 2, "simprinter: --device excludes --replay"},
        {"--device " + folder.path + "/none", 1,
         "simprinter: cannot read '" + folder.path + "/none': No such file"},
        {"--replay " + folder.path, 1, "simprinter: cannot read '" + folder.path + "': Is a directory"},
        {"--device " + bad, 1, bad + ":1:1: a device has no field 'memroy'; did you mean 'memory'?"},
        {"--device " + bad + " 2>&1 | tail -2", 0,
         bad + ":2:9: 'duplex' takes yes or no, not 'both'\nsimprinter: '" + bad + "' has faults: "},
        {"--replay " + walk, 1,
         walk + ":2: this is no value of its type: 'INTEGER: x'\nsimprinter: '" + walk},
        {"--address printer", 1, "simprinter: 'printer' is no IPv4 address such as 127.0.0.1"},
        {"--address 192.0.2.1 --port 0", 1,
         "simprinter: cannot listen on 192.0.2.1:0: Cannot assign requested address. "
         "--address takes an address of this machine"},
        {"--port " + std::to_string(other.port), 1,
         "simprinter: cannot listen on 127.0.0.1:" + std::to_string(other.port)
             + ": Address already in use. Another program has that port: stop it, or choose a port with --port"},
    };
    for (const auto& one : cases) {
        const CommandResult result = RunCommand(SIMPRINTER_PROGRAM " " + one.arguments);
        EXPECT_EQ(result.exitCode, one.exitCode) << one.arguments;
        EXPECT_EQ(result.output.substr(0, one.output.size()), one.output) << one.arguments;
    }
}

TEST(Program, LogHasALineForEachRequest) {
    const TemporaryFolder folder;
    const std::string file = folder.path + "/log";
    {
        const RunningPrinter printer("--log --fault counter --device "
                                     + folder.File("device.yaml", "memory: 640\n") + " 2>" + file);
        const RawClient client(printer);
        Octets foreign = StorageRequest();
        foreign[7] = '\n';
        for (const Octets& request : {StorageRequest(), foreign, Octets{1, 2, 3}})
            client.Send(request);
        EXPECT_EQ(client.Receive(300).size(), 1u);
    }
    std::string log = ReadFile(file);
    for (size_t at; (at = log.find("127.0.0.1:")) != std::string::npos;) // the client's port is any
        log.erase(at, log.find(' ', at) + 1 - at);
    EXPECT_EQ(log,
              "#17 GetRequest .1.3.6.1.2.1.25.2.3.1.5.1 -> .1.3.6.1.2.1.25.2.3.1.5.1 INTEGER 640 [counter]\n"
              "#17 GetRequest .1.3.6.1.2.1.25.2.3.1.5.1 -> community '\\x0Aovask' is not ours: dropped\n"
              "3 octets that are no SNMPv1 request: dropped\n");
}

} // namespace

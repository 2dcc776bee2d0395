// The program as a whole: exit codes, messages and log.
#include "running_printer.h"

#include "common/files.h"

#include <csignal>
#include <gtest/gtest.h>

namespace {

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
        {"--fault none", 2, "simprinter: fault 'none': there is no such fault"},
        {"--device " + bad + " --replay " + walk, 2, "simprinter: --device excludes --replay"},
        {"--replay " + folder.path, 1, "simprinter: cannot read '" + folder.path + "': Is a directory"},
        {"--device " + bad + " 2>&1 | tail -2", 0,
         bad + ":2:9: 'duplex' takes yes or no, not 'both'\nsimprinter: '" + bad + "' has faults: "},
        {"--replay " + walk, 1,
         walk + ":2: this is no value of its type: 'INTEGER: x'\nsimprinter: '" + walk},
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
    RunningPrinter printer("--log 2>" + file);
    const RawClient client(printer);
    client.Send(StorageRequest());
    client.Send({1, 2, 3});
    EXPECT_EQ(client.Receive(300).size(), 1u);
    EXPECT_EQ(printer.Stop(SIGINT), 0);
    std::string log = ReadFile(file);
    for (size_t at; (at = log.find("127.0.0.1:")) != std::string::npos;) // the client's port is any
        log.erase(at, log.find(' ', at) + 1 - at);
    EXPECT_EQ(log, "#17 GetRequest .1.3.6.1.2.1.25.2.3.1.5.1 -> .1.3.6.1.2.1.25.2.3.1.5.1 INTEGER 512\n"
                   "3 octets that are no SNMPv1 request: dropped\n");
}

} // namespace

// The program: exit codes, messages and log.
#include "running_printer.h"

#include "common/files.h"

#include <csignal>
#include <gtest/gtest.h>
#include <regex>

namespace {

TEST(Program, ExitCodesAndMessages) {
    const TemporaryFolder folder;
    const std::string bad = folder.File("bad.yaml", "memroy: 5\nduplex: both\nname: a\n");
    const std::string walk = folder.File("walk.txt", ".1.3.1 = INTEGER: 1\n.1.3.2 = INTEGER: x\n");
    const std::string large = folder.File("large.txt", std::string((size_t{8} << 20) + 1, '\n'));
    const RunningPrinter other;
    const std::tuple<std::string, int, std::string> cases[] = {
        {"--help", 0, "A simulated printer on the network: "},
        {"--version", 0, "simprinter " PROJECT_VERSION "\n"},
        {"--prot 1", 2, "simprinter: "},
        {"--port 1161 record 127.0.0.1 -o x", 2, "simprinter: --port is in front of 'record', where it has no effect"},
        {"record --help | grep -c 'OID\\|control line'", 1, "0\n"}, // as of the simulated printer
        {"--fault dealy=5", 2, "simprinter: fault 'dealy=5': unknown fault; possible: silence, loss, delay, "},
        {"--fault delay", 2, "simprinter: fault 'delay': write delay=MS"},
        {"--fault loss=101", 2, "simprinter: fault 'loss=101': PERCENT must be a number from 0 to 100"},
        {"--fault counter=1", 2, "simprinter: fault 'counter=1': counter takes no value"},
        {"--fault silence@system", 2, "simprinter: fault 'silence@system': after '@' write an object identifier"},
        {"--replay ''", 2, "simprinter: the value after '--replay' is empty: write one, or leave the option out\n"},
        {"record --community= -o x 127.0.0.1", 2, "simprinter: the value after '--community=' is empty"},
        {"record '[::1]:1161' -o x", 1,
         "simprinter: '[::1]:1161' is not an address or a name: write ::1 --port 1161\n"},
        {"--device " + bad + " --replay " + walk, 2, "simprinter: --device excludes --replay"},
        {"--replay " + folder.path, 1, "simprinter: cannot read '" + folder.path + "': Is a directory"},
        {"--device " + bad + " 2>&1 | tail -2", 0,
         bad + ":2:9: 'duplex' must be yes or no, not 'both'\nsimprinter: '" + bad + "' has errors: "},
        {"--strict --replay " + walk, 1,
         walk + ":2:10: expected INTEGER, a whole number from -2147483648 to 2147483647, not 'x'\nsimprinter: '"
             + walk},
        {"--replay " + large, 1,
         "simprinter: cannot read '" + large + "': it has more than 8388608 bytes, the most that"},
        {"--address 240.0.0.1 --port 0", 1,
         "simprinter: cannot listen on 240.0.0.1:0: Cannot assign requested address. It must be an address of this machine"},
        {"--port " + other.Port(), 1,
         "simprinter: cannot listen on 127.0.0.1:" + other.Port()
             + ": Address already in use. Another program uses that port: stop it, or choose another one with --port"},
    };
    for (const auto& [arguments, exitCode, output] : cases) {
        const CommandResult result = RunCommand("timeout 10 " SIMPRINTER_PROGRAM " " + arguments);
        EXPECT_EQ(result.exitCode, exitCode) << arguments;
        EXPECT_EQ(result.output.substr(0, output.size()), output) << arguments;
    }
}

// scripts/with-printers, on port 161.
TEST(Program, CommandRunsOnlyWhilePrintersAnswer) {
    const TemporaryFolder folder;
    const std::string list = folder.path + "/with_printers_test.list";
    const std::string with =
                          "LUMORA_HOST_TOOLS=$(dirname " SIMPRINTER_PROGRAM ") timeout 20 " SCRIPTS "/with-printers ",
                      run = with + list;
    const char* const good = "127.0.165.1 simprinter\n";
    const std::tuple<std::string, std::string, int, std::string> cases[] = {
        {good, with, 2, "usage: with-printers LIST COMMAND [ARGUMENT]...\n"},
        {good, run, 2, "usage: with-printers LIST COMMAND [ARGUMENT]...\n"},
        {good, run + " echo runs", 0, "runs\n"},
        {good,
         "out=$(" + with + "gone.list echo 2>&1); [ \"$out\" != 'with-printers: cannot read the list gone.list' ]", 1,
         ""}, // and nothing else
        {good, run + ' ' + run.substr(run.find("timeout")) + " echo runs", 1,
         "with-printers: the printers of a list with_printers_test.list are running already"},
        {"127.0.165.1 simprinter --bad", run + " echo runs", 1, "simprinter: "}, // after the log of a good run
        {"127.0.165.2 snmpd tests/devcomm/queries/printers/snmpd.conf\n", run + " echo runs", 0, "runs\n"},
    };
    for (const auto& [lines, command, exitCode, output] : cases) {
        folder.File("with_printers_test.list", lines);
        const CommandResult result = RunCommand(command);
        EXPECT_EQ(result.exitCode, exitCode) << command;
        EXPECT_NE(result.output.find(output), std::string::npos) << result.output;
        EXPECT_EQ(result.output.find("runs\n") == std::string::npos, exitCode != 0) << result.output;
    }
}

TEST(Program, LogHasALineForEachDatagram) {
    const TemporaryFolder folder;
    const std::string file = folder.path + "/log";
    RunningPrinter printer("--log 2>" + file);
    printer.Send(StorageRequest());
    printer.Send({1, 2, 3});
    EXPECT_EQ(printer.Receive(300).size(), 1u);
    EXPECT_EQ(printer.Stop(SIGINT), 0);
    const std::string from = "127.0.0.1:[0-9]+ ", name = " (\\.[0-9]+){12} ";
    EXPECT_TRUE(std::regex_match(ReadFile(file),
                                 std::regex(from + "SNMPv1 #17 GetRequest" + name + "->" + name + "INTEGER 512\n" + from
                                            + "3 bytes, not an SNMP message: dropped; .*\n")))
        << ReadFile(file);
}

} // namespace

// SNMPv2c, IPv6 and lists of printers, with net-snmp's tools as clients.
#include "running_printer.h"

#include "simprinter/agent/agent.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

namespace {

constexpr const char* kV2c = "-v2c -c tovask -r0 -t2";
constexpr const char* kModest = "--device " DEVICES "/modest.yaml";

// A walk of the smallest replies must drop many repetitions.
TEST(Serving, WalksOfBothVersionsAreTheSame) {
    const RunningPrinter printer(std::string(kModest) + " --largest-reply 484");
    const std::string objects = ".1.3.6.1.2.1.43", expected = printer.Ask("snmpwalk", objects).output;
    EXPECT_GT(std::count(expected.begin(), expected.end(), '\n'), 150);
    EXPECT_EQ(printer.Ask("snmpwalk", objects, kV2c).output, expected);
    for (const char* repetitions : {"-Cr1 ", "-Cr7 ", "-Cr500 "})
        EXPECT_EQ(printer.Ask("snmpbulkwalk", objects, repetitions + std::string(kV2c)).output, expected);
}

TEST(Serving, RepliesOfSnmpV2cFollowItsRules) {
    const TemporaryFolder folder;
    const std::string text(300, 'x');
    const RunningPrinter printer(
        "--largest-reply 484 --replay "
        + folder.File("two", "1.3.1.1.1|2|5\n1.3.1.1.2|2|6\n1.3.2.0|4|" + text + "\n1.3.3.0|4|" + text + '\n'));
    const std::string end = ".2.0 = No more variables left in this MIB View (It is past the end of the MIB tree)\n";
    const std::tuple<const char*, const char*, std::string> cases[] = {
        {"snmpget", ".1.3.1.1.2 .1.3.1.1.9 .1.3.1.2.1 .1.3.2 .1.3.2.1",
         ".1.3.1.1.2 = INTEGER: 6\n.1.3.1.1.9 = No Such Instance currently exists at this OID\n"
         ".1.3.1.2.1 = No Such Object available on this agent at this OID\n"
         ".1.3.2 = No Such Instance currently exists at this OID\n"
         ".1.3.2.1 = No Such Instance currently exists at this OID\n"},
        {"snmpgetnext", ".1.3.1.1.1 .2.0", ".1.3.1.1.2 = INTEGER: 6\n" + end},
        {"snmpget", ".1.3.2.0 .1.3.3.0",
         "Error in packet\nReason: (tooBig) Response message would have been too large.\n"},
        {"snmpset", ".1.3.1.1.1 i 7",
         "Error in packet.\nReason: notWritable (That object does not support modification)\n"
         "Failed object: .1.3.1.1.1\n\n"},
        // The first once, the other two twice; and as much as fits of more.
        {"snmpbulkget -Cn1 -Cr2", ".2.0 .1.3.1 .2.0",
         end + ".1.3.1.1.1 = INTEGER: 5\n" + end + ".1.3.1.1.2 = INTEGER: 6\n" + end},
        {"snmpbulkget -Cn0 -Cr9", ".1.3.1.1.2", ".1.3.2.0 = STRING: \"" + text + "\"\n"},
        {"snmpbulkget -Cn0 -Cr0", ".1.3.1.1.2", ""},
    };
    for (const auto& [tool, objects, output] : cases)
        EXPECT_EQ(printer.Ask(tool, objects, kV2c).output, output) << tool << ' ' << objects;
}

TEST(Serving, VersionsCanBeSwitchedOff) {
    const TemporaryFolder folder;
    const std::string log = folder.path + "/log";
    const RunningPrinter printer("--versions 2c --log 2>" + log);
    const std::string name = ".1.3.6.1.2.1.1.7.0";
    EXPECT_EQ(printer.Ask("snmpget", name, kV2c).output, name + " = INTEGER: 72\n");
    EXPECT_EQ(printer.Ask("snmpget", name, "-v1 -c tovask -r0 -t0.3").exitCode, 1);
    EXPECT_EQ(printer.Ask("snmpget", name, "-v3 -l noAuthNoPriv -u x -r0 -t0.3").exitCode, 1);
    const CommandResult dropped = RunCommand("grep -o 'SNMPv1: .*\\|an SNMPv3.*' " + log);
    EXPECT_EQ(dropped.output, "SNMPv1: dropped; this printer answers requests of SNMPv2c\n"
                              "an SNMPv3 request: dropped; this printer answers requests of SNMPv2c\n");
}

// RFC 3584, 4.2.2.1.
TEST(Serving, OnlySnmpV2cHasCounter64) {
    const ObjectMap objects = {
        {{1, 3, 1, 0}, Counter64Value(UINT64_MAX)}, {{1, 3, 2, 0}, Counter64Value(1)}, {{1, 3, 3, 0}, NumberValue(3)}};
    Agent agent{{}, std::make_shared<const ObjectMap>(objects), {}};
    const auto ask = [&](size_t version, PduType type) {
        const Message request = {&kVersions[version], "tovask", type, 1, 0, 0, {{{1, 3, 1, 0}, {}}}};
        const Outcome outcome = HandleDatagram(agent, BuildMessage(request));
        return outcome.log.substr(outcome.log.find("->"));
    };
    EXPECT_EQ(ask(0, PduType::kGet), "-> noSuchName at 1");
    EXPECT_EQ(ask(0, PduType::kGetNext), "-> .1.3.3.0 INTEGER 3");
    EXPECT_EQ(ask(1, PduType::kGet), "-> .1.3.1.0 Counter64 18446744073709551615");
    EXPECT_EQ(ask(1, PduType::kGetNext), "-> .1.3.2.0 Counter64 1");
}

TEST(Serving, OnlySnmpV1RepeatsVariablesThatAreTooBig) {
    const ObjectMap objects = {{{1, 3, 1, 0}, TextValue(std::string(100, 'x'))}};
    Agent agent{{"tovask", 60}, std::make_shared<const ObjectMap>(objects), {}};
    const Message get = {&kVersions[0], "tovask", PduType::kGet, 1, 0, 0, {{{1, 3, 1, 0}, {}}}};
    const Message empty = {&kVersions[1], "tovask", PduType::kResponse, 1, kTooBig, 0, {}};
    const Bytes request = BuildMessage(get);
    EXPECT_EQ(HandleDatagram(agent, request).datagrams.at(0).bytes.size(), request.size());
    Message other = get;
    other.version = &kVersions[1];
    EXPECT_EQ(HandleDatagram(agent, BuildMessage(other)).datagrams.at(0).bytes, BuildMessage(empty));
}

TEST(Serving, Ipv6IsServed) {
    if (RunCommand("grep -q '^0\\{31\\}1 ' /proc/net/if_inet6").exitCode != 0)
        GTEST_SKIP() << "this machine has no IPv6 address ::1";
    const RunningPrinter printer("--address ::1 --fault wrong-source@.1.3.6.1.2.1.2");
    EXPECT_EQ(printer.host, "[::1]");
    EXPECT_EQ(printer.Ask("snmpget", ".1.3.6.1.2.1.1.7.0").output, ".1.3.6.1.2.1.1.7.0 = INTEGER: 72\n");
}

TEST(Serving, OneProcessServesAList) {
    const TemporaryFolder folder;
    const std::string list =
        folder.File("list", "# comment\n\n127.0.0.1  simprinter " + std::string(kModest)
                                + "\n127.0.0.9 snmpd x.conf\n127.0.0.2-127.0.0.4 simprinter --community 'a b'\n");
    RunningPrinter printer("--list " + list);
    const std::string location = ".1.3.6.1.2.1.1.6.0";
    EXPECT_EQ(printer.Ask("snmpget", location).output, location + " = STRING: \"Corridor, second floor\"\n");
    for (const char* address : {"127.0.0.2:", "127.0.0.3:", "127.0.0.4:"}) {
        const std::string ready = printer.Line(), start = std::string("simprinter: ready on ") + address;
        ASSERT_EQ(ready.substr(0, start.size()), start);
        printer.host = std::string(address, 9);
        printer.address.sin_port = htons(static_cast<uint16_t>(std::atoi(ready.c_str() + start.size())));
        EXPECT_EQ(printer.Ask("snmpget", location, "-v2c -c 'a b' -r0 -t2").output, location + " = \"\"\n");
    }
    EXPECT_EQ(printer.Line(), "simprinter: ready with 4 printers\n");
}

TEST(Serving, ErrorsOfAListHaveTheirLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "' has no printers: write lines 'ADDRESS simprinter OPTIONS'"},
        {"\n127.0.0.1 simprintr", ":2:11: unknown agent 'simprintr'; write 'ADDRESS simprinter OPTIONS'"},
        {"127.0.0.1 simprinter --port 4", ":1:22: '--port' is not expected here"},
        {"127.0.0.1 simprinter --fault delay", ":1:22: fault 'delay': write delay=MS"},
        {"127.0.0.1 simprinter --versions 3", ":1:22: --versions: '3' is no version; possible: 1, 2c"},
        {"127.0.0.1 simprinter --device /none", ":1:22: cannot read '/none'"},
        {"printer simprinter", ":1:1: 'printer' is not an address such as 127.0.0.1 or ::1"},
        {"127.0.0.9-127.0.0.1 simprinter", ":1:1: '127.0.0.9-127.0.0.1' is not a range"},
        {"127.0.0.0-127.0.9.0 simprinter", ":1:1: '127.0.0.0-127.0.9.0' has more than 1000 addresses"},
        {"127.0.0.2 simprinter\n127.0.0.1-127.0.0.3 simprinter",
         ":2:1: 127.0.0.2 occurs in line 1 already: remove one"},
        {"::1 simprinter\n 0:0::1 simprinter", ":2:2: 0:0::1 occurs in line 1 already: remove one"},
        {"::1 simprinter --fault wrong-address", ":1:16: wrong-address needs an IPv4 printer"},
        {"\xEF\xBB\xBF"
         "127.0.0.1 simprinter --port 4\r\nx y\r\n",
         ":1:22: '--port' is not expected here\nLIST:2:3: unknown agent 'y'"},
        {"\xFF\xFE"
         "1",
         ": this file is UTF-16; save it as UTF-8"},
        {"240.0.0.1 simprinter\n240.0.0.2 simprinter",
         ":1:1: cannot listen on 240.0.0.1:0: Cannot assign requested address. It must be an address of this machine\n"
         "LIST:2:1: cannot listen on 240.0.0.2:0: "},
    };
    const TemporaryFolder folder;
    for (const auto& [lines, message] : cases) {
        const CommandResult result =
            RunCommand("timeout 10 " SIMPRINTER_PROGRAM " --port 0 --list " + folder.File("list", lines));
        EXPECT_EQ(result.exitCode, 1) << lines;
        const std::string output = std::regex_replace(result.output, std::regex("\n[^\n]*/list:"), "\nLIST:");
        EXPECT_NE(output.find("/list" + std::string(message)), std::string::npos) << output;
    }
}

} // namespace

// What net-snmp's tools read from a running printer. Expected values are worked out from the description and
// the MIBs.
#include "running_printer.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sstream>

namespace {

constexpr const char* kDescription = R"(
name: lab
model: QUORVANE lumora R880
serial: S-1
memory: 640
hardDisk: 80000
duplex: yes
options: [QD-440, QE-550, FAX]
punching: 2-3
trays:
  - {tray: TRAY1, size: A4, orientation: landscape, capacity: 500, level: 123}
  - {tray: TRAY3, size: LETTER, orientation: portrait, type: THICK1SIDE2, level: 0, name: "Letters"}
  - {tray: LCT, level: some}
supplies:
  - {supply: cyan, capacity: 1000, level: 333}
  - {supply: black, level: unknown}
  - {supply: waste, level: 1}
overlays:
  - {name: a.ovl, title: First, kind: 1, storage: HDD}
  - {name: b.ovl, kind: 2, storage: memory}
profiles:
  - {name: p.icc, title: Paper, class: 3, storage: flash}
)";

class SnmpTools : public testing::Test {
protected:
    TemporaryFolder folder;
    RunningPrinter printer{"--device " + folder.File("device.yaml", kDescription)};
};

TEST_F(SnmpTools, ValuesOfADescribedDevice) {
    const char* const lines[] = {
        ".1.3.6.1.2.1.1.1.0 = STRING: \"QUORVANE lumora R880, serial number S-1\"",
        ".1.3.6.1.2.1.1.4.0 = \"\"",
        ".1.3.6.1.2.1.1.5.0 = STRING: \"lab\"",
        ".1.3.6.1.2.1.25.2.3.1.2.1 = OID: .1.3.6.1.2.1.25.2.1.2", // memory
        ".1.3.6.1.2.1.25.2.3.1.4.1 = INTEGER: 1048576",
        ".1.3.6.1.2.1.25.2.3.1.5.1 = INTEGER: 640",
        ".1.3.6.1.2.1.25.2.3.1.2.2 = OID: .1.3.6.1.2.1.25.2.1.4", // fixed disk
        ".1.3.6.1.2.1.25.2.3.1.5.2 = INTEGER: 80000",
        ".1.3.6.1.2.1.25.3.2.1.2.1 = OID: .1.3.6.1.2.1.25.3.1.5", // printer
        ".1.3.6.1.2.1.25.3.5.1.1.1 = INTEGER: 3",                 // idle
        ".1.3.6.1.2.1.25.3.5.1.2.1 = Hex-STRING: 00 04",          // inputTrayEmpty
        ".1.3.6.1.2.1.43.8.2.1.2.1.1 = INTEGER: 3",               // removable tray
        ".1.3.6.1.2.1.43.8.2.1.4.1.1 = INTEGER: 210000",          // 210 mm along the feed
        ".1.3.6.1.2.1.43.8.2.1.5.1.1 = INTEGER: 297000",
        ".1.3.6.1.2.1.43.8.2.1.9.1.1 = INTEGER: 500",
        ".1.3.6.1.2.1.43.8.2.1.10.1.1 = INTEGER: 123",
        ".1.3.6.1.2.1.43.8.2.1.11.1.1 = INTEGER: 0",
        ".1.3.6.1.2.1.43.8.2.1.13.1.1 = STRING: \"Tray 1\"",
        ".1.3.6.1.2.1.43.8.2.1.4.1.3 = INTEGER: 279400", // 11 in
        ".1.3.6.1.2.1.43.8.2.1.5.1.3 = INTEGER: 215900", // 8.5 in
        ".1.3.6.1.2.1.43.8.2.1.11.1.3 = INTEGER: 9",
        ".1.3.6.1.2.1.43.8.2.1.12.1.3 = STRING: \"LETTER THICK1SIDE2\"",
        ".1.3.6.1.2.1.43.8.2.1.13.1.3 = STRING: \"Letters\"",
        ".1.3.6.1.2.1.43.8.2.1.21.1.3 = STRING: \"cardstock\"",
        ".1.3.6.1.2.1.43.8.2.1.10.1.6 = INTEGER: -3",
        ".1.3.6.1.2.1.43.9.2.1.7.1.3 = STRING: \"Finisher tray 3\"",
        ".1.3.6.1.2.1.43.9.2.1.2.1.7 = INTEGER: 6", // mail box
        ".1.3.6.1.2.1.43.9.2.1.7.1.7 = STRING: \"Mail bin 4\"",
        ".1.3.6.1.2.1.43.11.1.1.5.1.1 = INTEGER: 3", // toner
        ".1.3.6.1.2.1.43.11.1.1.8.1.1 = INTEGER: 1000",
        ".1.3.6.1.2.1.43.11.1.1.9.1.1 = INTEGER: 333",
        ".1.3.6.1.2.1.43.11.1.1.8.1.4 = INTEGER: 100",
        ".1.3.6.1.2.1.43.11.1.1.9.1.4 = INTEGER: -2",
        ".1.3.6.1.2.1.43.11.1.1.4.1.8 = INTEGER: 4", // receptacle
        ".1.3.6.1.2.1.43.11.1.1.9.1.8 = INTEGER: 1",
        ".1.3.6.1.2.1.43.12.1.1.4.1.4 = STRING: \"black\"",
        ".1.3.6.1.2.1.43.13.4.1.2.1.2 = INTEGER: 7", // impressionsPerHour
        ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.2.1.2 = INTEGER: 2",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.3.1.1 = STRING: \"a.ovl\"",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.4.1.1 = STRING: \"First\"",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.4.1.2 = \"\"",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.5.1.2 = INTEGER: 3",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.2.1.1 = INTEGER: 5",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.3.1.1 = STRING: \"Paper\"",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.4.1.1 = STRING: \"p.icc\"",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.5.1.1 = INTEGER: 3",
        ".1.3.6.1.4.1.47913.1.1.1.1.9.2.1.2.3 = INTEGER: 1000", // third option: fax
        ".1.3.6.1.4.1.47913.1.1.1.1.9.2.1.3.1 = STRING: \"QD-440\"",
        ".1.3.6.1.4.1.47913.1.1.1.1.9.3.1.3.1 = INTEGER: 32", // 2 and 3 holes
        ".1.3.6.1.4.1.47913.1.1.1.1.9.4.1.2.2 = INTEGER: 3",  // hard disk
        ".1.3.6.1.4.1.47913.1.1.1.1.9.5.1.3.3 = INTEGER: 1551",
        ".1.3.6.1.4.1.47913.1.1.1.1.9.5.1.4.3 = INTEGER: 2",
        ".1.3.6.1.4.1.47913.1.1.1.1.9.5.1.5.3 = INTEGER: 225",
        ".1.3.6.1.4.1.47913.1.1.1.1.9.5.1.7.3 = INTEGER: 1",
    };
    // Several variables in a request, as many as one reply can hold.
    for (size_t i = 0; i < std::size(lines);) {
        std::string names, expected;
        for (const size_t end = std::min(i + 15, std::size(lines)); i < end; ++i) {
            const std::string line = lines[i];
            names += line.substr(0, line.find(' ')) + ' ';
            expected += line + (line.find("Hex-STRING") == std::string::npos ? "\n" : " \n");
        }
        EXPECT_EQ(printer.Ask("snmpget", names).output, expected);
    }
}

TEST_F(SnmpTools, ObjectsThatAreNotThere) {
    for (const char* name :
         {".1.3.6.1.2.1.43.8.2.1.2.1.2", ".1.3.6.1.2.1.43.8.2.1.2.1.5", ".1.3.6.1.2.1.43.11.1.1.9.1.2",
          ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.3.1.3", ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.4.1.2",
          ".1.3.6.1.2.1.1.1", ".1.3.6.1.2.1.1.1.0.0"}) {
        const CommandResult result = printer.Ask("snmpget", name);
        EXPECT_EQ(result.exitCode, 2) << name << result.output;
        EXPECT_NE(result.output.find("(noSuchName)"), std::string::npos) << result.output;
    }
    const RunningPrinter plain;
    for (const char* name : {".1.3.6.1.2.1.25.2.3.1.5.2", ".1.3.6.1.2.1.43.13.4.1.2.1.2"})
        EXPECT_EQ(plain.Ask("snmpget", name).exitCode, 2) << name << " without hard disk and duplex unit";
}

TEST_F(SnmpTools, NextObjects) {
    const struct {
        const char* names;
        const char* output;
    } cases[] = {
        {".1.3", ".1.3.6.1.2.1.1.1.0 = STRING: \"QUORVANE lumora R880, serial number S-1\"\n"},
        {".1.3.6.1.2.1.25.2.3.1.5 .1.3.6.1.2.1.25.2.3.1.5.1",
         ".1.3.6.1.2.1.25.2.3.1.5.1 = INTEGER: 640\n.1.3.6.1.2.1.25.2.3.1.5.2 = INTEGER: 80000\n"},
        {".1.3.6.1.2.1.43.8.2.1.2.1.1.7", ".1.3.6.1.2.1.43.8.2.1.2.1.3 = INTEGER: 3\n"},
        {".1.3.6.1.2.1.43.13.4.1.2.1.1", ".1.3.6.1.2.1.43.13.4.1.2.1.2 = INTEGER: 7\n"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(printer.Ask("snmpgetnext", one.names).output, one.output);
    EXPECT_NE(printer.Ask("snmpgetnext", ".1.3.6.1.4.1.47914").output.find("(noSuchName)"),
              std::string::npos);
}

TEST_F(SnmpTools, WholeWalkIsInOrder) {
    const CommandResult walk = printer.Ask("snmpwalk", ".1");
    EXPECT_EQ(walk.exitCode, 0);
    std::istringstream lines(walk.output);
    Oid before;
    size_t objects = 0;
    for (std::string line; std::getline(lines, line) && line != "End of MIB"; ++objects) {
        const std::optional<Oid> name = OidFromText(line.substr(0, line.find(' ')));
        ASSERT_TRUE(name) << line;
        EXPECT_LT(before, *name);
        before = *name;
    }
    EXPECT_GT(objects, 200u);
    const CommandResult inputs = printer.Ask("snmpwalk", ".1.3.6.1.2.1.43.8.2.1.2");
    EXPECT_EQ(inputs.output, ".1.3.6.1.2.1.43.8.2.1.2.1.1 = INTEGER: 3\n"
                             ".1.3.6.1.2.1.43.8.2.1.2.1.3 = INTEGER: 3\n"
                             ".1.3.6.1.2.1.43.8.2.1.2.1.6 = INTEGER: 4\n");
}

TEST_F(SnmpTools, ErrorsOfSnmpVersion1) {
    const struct {
        const char* tool;
        const char* objects;
        const char* error;
    } cases[] = {
        {"snmpset", ".1.3.6.1.2.1.1.5.0 s other", "(noSuchName)"},
        {"snmpset", ".1.3.6.1.2.1.1.99.0 s other", "(noSuchName)"},
        // The second of three is not there: without it the others are answered.
        {"snmpget", ".1.3.6.1.2.1.1.5.0 .1.3.6.1.2.1.1.99.0 .1.3.6.1.2.1.1.7.0",
         "Failed object: .1.3.6.1.2.1.1.99.0\n\n.1.3.6.1.2.1.1.5.0 = STRING: \"lab\"\n.1.3.6.1.2.1.1.7.0 = "},
    };
    for (const auto& one : cases) {
        const CommandResult result = printer.Ask(one.tool, one.objects);
        EXPECT_NE(result.output.find(one.error), std::string::npos) << result.output;
    }
    const std::string longText(300, 'x');
    const RunningPrinter small(
        "--largest-reply 484 --replay "
        + folder.File("long", "1.3.1.0|4|" + longText + "\n1.3.2.0|4|" + longText + "\n"));
    EXPECT_EQ(small.Ask("snmpget", ".1.3.1.0").exitCode, 0);
    EXPECT_NE(small.Ask("snmpget", ".1.3.1.0 .1.3.2.0").output.find("(tooBig)"), std::string::npos);
}

TEST_F(SnmpTools, OthersGetNoAnswer) {
    for (const char* options : {"-v1 -c public -r0 -t0.3", "-v1 -c tovas -r0 -t0.3",
                                "-v1 -c tovaskk -r0 -t0.3", "-v2c -c tovask -r0 -t0.3"}) {
        const CommandResult result = printer.Ask("snmpget", ".1.3.6.1.2.1.1.5.0", options);
        EXPECT_NE(result.output.find("Timeout"), std::string::npos) << options << ": " << result.output;
    }
    const RunningPrinter open("--community public");
    EXPECT_EQ(open.Ask("snmpget", ".1.3.6.1.2.1.1.5.0", "-v1 -c public -r0 -t2").exitCode, 0);
}

TEST_F(SnmpTools, TimeGoesOn) {
    const auto ticks = [&] {
        const std::string output = printer.Ask("snmpget", ".1.3.6.1.2.1.1.3.0").output;
        return std::stoi(output.substr(output.find('(') + 1));
    };
    const int first = ticks();
    EXPECT_EQ(RunCommand("sleep 0.2").exitCode, 0);
    const int second = ticks();
    EXPECT_GE(second, first + 20);
    EXPECT_LT(second, first + 6000);
}

} // namespace

// net-snmp's tools as clients of a running printer. Expected values are derived from the description and the
// MIBs.
#include "running_printer.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr const char* kDescription = R"(
{name: lab, model: QUORVANE lumora R880, serial: S-1, memory: 640, hardDisk: 80000, duplex: yes, punching: 2-3,
options: [QD-440, QE-550, FAX],
trays: [{tray: TRAY1, size: A4, orientation: landscape, capacity: 500, level: 123},
        {tray: TRAY3, size: LETTER, orientation: portrait, type: THICK1SIDE2, level: 0, name: "Letters"},
        {tray: LCT, level: some}],
supplies: [{supply: cyan, capacity: 1000, level: 333}, {supply: black, level: unknown}, {supply: waste, level: 1}],
overlays: [{name: a.ovl, title: First, kind: 1, storage: HDD}, {name: b.ovl, kind: 2, storage: memory}],
profiles: [{name: p.icc, title: Paper, class: 3, storage: flash}]}
)";

class SnmpTools : public testing::Test {
protected:
    TemporaryFolder folder;
    RunningPrinter printer{"--device " + folder.File("device.yaml", kDescription)};
};

TEST_F(SnmpTools, ObjectsHaveTheDescribedValues) {
    const char* const lines[] = {
        ".1.3.6.1.2.1.1.1.0 = STRING: \"QUORVANE lumora R880, serial number S-1\"",
        ".1.3.6.1.2.1.25.2.3.1.4.1 = INTEGER: 1048576",
        ".1.3.6.1.2.1.25.2.3.1.5.1 = INTEGER: 640",
        ".1.3.6.1.2.1.25.2.3.1.2.2 = OID: .1.3.6.1.2.1.25.2.1.4", // fixed disk
        ".1.3.6.1.2.1.25.3.2.1.2.1 = OID: .1.3.6.1.2.1.25.3.1.5", // printer
        ".1.3.6.1.2.1.25.3.5.1.1.1 = INTEGER: 3",                 // idle
        ".1.3.6.1.2.1.25.3.5.1.2.1 = Hex-STRING: 00 04 ",         // inputTrayEmpty
        ".1.3.6.1.2.1.43.8.2.1.2.1.1 = INTEGER: 3",               // removable tray
        ".1.3.6.1.2.1.43.8.2.1.4.1.1 = INTEGER: 210000",          // 210 mm along the feed
        ".1.3.6.1.2.1.43.8.2.1.4.1.3 = INTEGER: 279400",          // 11 in
        ".1.3.6.1.2.1.43.8.2.1.21.1.3 = STRING: \"cardstock\"",
        ".1.3.6.1.2.1.43.8.2.1.10.1.6 = INTEGER: -3",
        ".1.3.6.1.2.1.43.9.2.1.2.1.7 = INTEGER: 6",  // mail box
        ".1.3.6.1.2.1.43.11.1.1.5.1.1 = INTEGER: 3", // toner
        ".1.3.6.1.2.1.43.11.1.1.9.1.4 = INTEGER: -2",
        ".1.3.6.1.2.1.43.11.1.1.4.1.8 = INTEGER: 4", // receptacle
        ".1.3.6.1.2.1.43.13.4.1.2.1.2 = INTEGER: 7", // impressionsPerHour
        ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.5.1.2 = INTEGER: 3",
        ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.2.1.1 = INTEGER: 5",
        ".1.3.6.1.4.1.47913.1.1.1.1.9.2.1.2.3 = INTEGER: 1000", // third option: fax
        ".1.3.6.1.4.1.47913.1.1.1.1.9.3.1.3.1 = INTEGER: 32",   // 2 and 3 holes
        ".1.3.6.1.4.1.47913.1.1.1.1.9.5.1.3.3 = INTEGER: 1551",
    };
    std::string names, wanted;
    for (const std::string line : lines) {
        names += line.substr(0, line.find(' ') + 1);
        wanted += line + '\n';
    }
    EXPECT_EQ(printer.Ask("snmpget", names).output, wanted);
}

TEST_F(SnmpTools, MissingObjectsGetNoSuchName) {
    for (const char* name : {".1.3.6.1.2.1.43.8.2.1.2.1.2", ".1.3.6.1.2.1.43.8.2.1.2.1.5",
                             ".1.3.6.1.2.1.43.11.1.1.9.1.2", ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.3.1.3",
                             ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.4.1.2", ".1.3.6.1.2.1.1.1", ".1.3.6.1.2.1.1.1.0.0"})
        EXPECT_NE(printer.Ask("snmpget", name).output.find("(noSuchName)"), std::string::npos) << name;
    const RunningPrinter plain; // without hard disk and duplex unit
    for (const char* name : {".1.3.6.1.2.1.25.2.3.1.5.2", ".1.3.6.1.2.1.43.13.4.1.2.1.2"})
        EXPECT_EQ(plain.Ask("snmpget", name).exitCode, 2) << name;
}

// snmpwalk fails when the names do not increase.
TEST_F(SnmpTools, WalksReachEveryObject) {
    const CommandResult walk = printer.Ask("snmpwalk", ".1");
    EXPECT_EQ(walk.exitCode, 0) << walk.output;
    EXPECT_GT(std::count(walk.output.begin(), walk.output.end(), '\n'), 200);
}

TEST_F(SnmpTools, FailedRequestsGetErrors) {
    for (const char* name : {".1.3.6.1.2.1.1.5.0", ".1.3.6.1.2.1.1.99.0"})
        EXPECT_NE(printer.Ask("snmpset", name + std::string(" s x")).output.find("(noSuchName)"), std::string::npos);
    // The second of three does not exist; the tool asks again without it.
    const CommandResult three = printer.Ask("snmpget", ".1.3.6.1.2.1.1.5.0 .1.3.6.1.2.1.1.99.0 .1.3.6.1.2.1.1.7.0");
    EXPECT_NE(three.output.find("Failed object: .1.3.6.1.2.1.1.99.0\n\n.1.3.6.1.2.1.1.5.0 = "), std::string::npos);
    const std::string longText(300, 'x');
    const RunningPrinter small("--community public --largest-reply 484 --replay "
                               + folder.File("long", "1.3.1.0|4|" + longText + "\n1.3.2.0|4|" + longText + "\n"));
    const std::string options = "-v1 -c public -r0 -t2";
    EXPECT_EQ(small.Ask("snmpget", ".1.3.1.0", options).exitCode, 0);
    EXPECT_NE(small.Ask("snmpget", ".1.3.1.0 .1.3.2.0", options).output.find("(tooBig)"), std::string::npos);
}

TEST_F(SnmpTools, UptimeAdvances) {
    const std::string first = printer.Ask("snmpget", ".1.3.6.1.2.1.1.3.0").output;
    EXPECT_EQ(RunCommand("sleep 0.2").exitCode, 0);
    EXPECT_NE(printer.Ask("snmpget", ".1.3.6.1.2.1.1.3.0").output, first);
}

} // namespace

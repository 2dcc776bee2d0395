// Recordings in every form that snmpwalk prints, with names, enumerations and units from small MIB files.
#include "running_printer.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>

namespace {

// Modules with the names of the standard ones and some of their objects.
constexpr const char* kMibs = R"(
SNMPv2-SMI DEFINITIONS ::= BEGIN
org OBJECT IDENTIFIER ::= { iso 3 }
dod OBJECT IDENTIFIER ::= { org 6 }
internet OBJECT IDENTIFIER ::= { dod 1 }
mgmt OBJECT IDENTIFIER ::= { internet 2 }
mib-2 OBJECT IDENTIFIER ::= { mgmt 1 }
private OBJECT IDENTIFIER ::= { internet 4 }
enterprises OBJECT IDENTIFIER ::= { private 1 }
zeroDotZero OBJECT IDENTIFIER ::= { 0 0 }
END
SNMPv2-TC DEFINITIONS ::= BEGIN
DisplayString ::= TEXTUAL-CONVENTION DISPLAY-HINT "255a" STATUS current DESCRIPTION "" SYNTAX OCTET STRING
PhysAddress ::= TEXTUAL-CONVENTION DISPLAY-HINT "1x:" STATUS current DESCRIPTION "" SYNTAX OCTET STRING
DateAndTime ::= TEXTUAL-CONVENTION DISPLAY-HINT "2d-1d-1d,1d:1d:1d.1d,1a1d:1d" STATUS current DESCRIPTION ""
    SYNTAX OCTET STRING
END
SNMPv2-MIB DEFINITIONS ::= BEGIN
IMPORTS mib-2 FROM SNMPv2-SMI DisplayString FROM SNMPv2-TC;
system OBJECT IDENTIFIER ::= { mib-2 1 }
sysDescr OBJECT-TYPE SYNTAX DisplayString ACCESS read-only STATUS mandatory ::= { system 1 }
sysObjectID OBJECT-TYPE SYNTAX OBJECT IDENTIFIER ACCESS read-only STATUS mandatory ::= { system 2 }
sysUpTime OBJECT-TYPE SYNTAX TimeTicks ACCESS read-only STATUS mandatory ::= { system 3 }
sysContact OBJECT-TYPE SYNTAX DisplayString ACCESS read-only STATUS mandatory ::= { system 4 }
END
DISMAN-EVENT-MIB DEFINITIONS ::= BEGIN
IMPORTS sysUpTime FROM SNMPv2-MIB;
sysUpTimeInstance OBJECT IDENTIFIER ::= { sysUpTime 0 }
END
HOST-RESOURCES-MIB DEFINITIONS ::= BEGIN
IMPORTS mib-2 FROM SNMPv2-SMI PhysAddress, DateAndTime FROM SNMPv2-TC;
ifPhysAddress OBJECT-TYPE SYNTAX PhysAddress ACCESS read-only STATUS mandatory ::= { mib-2 2 2 1 6 }
ifSpecific OBJECT-TYPE SYNTAX OBJECT IDENTIFIER ACCESS read-only STATUS mandatory ::= { mib-2 2 2 1 22 }
hrSystemDate OBJECT-TYPE SYNTAX DateAndTime ACCESS read-only STATUS mandatory ::= { mib-2 25 1 2 }
hrDevicePrinter OBJECT IDENTIFIER ::= { mib-2 25 3 1 5 }
hrDeviceType OBJECT-TYPE SYNTAX OBJECT IDENTIFIER ACCESS read-only STATUS mandatory ::= { mib-2 25 3 2 1 2 }
hrPrinterStatus OBJECT-TYPE SYNTAX INTEGER { other(1), unknown(2), idle(3), printing(4), warmup(5) }
    ACCESS read-only STATUS mandatory ::= { mib-2 25 3 5 1 1 }
hrPrinterDetectedErrorState OBJECT-TYPE SYNTAX OCTET STRING ACCESS read-only STATUS mandatory ::= { mib-2 25 3 5 1 2 }
END
Printer-MIB DEFINITIONS ::= BEGIN
IMPORTS mib-2 FROM SNMPv2-SMI;
prtMarkerLifeCount OBJECT-TYPE SYNTAX Counter UNITS "impressions" ACCESS read-only STATUS mandatory
    ::= { mib-2 43 10 2 1 4 }
prtMarkerSuppliesMaxCapacity OBJECT-TYPE SYNTAX INTEGER ACCESS read-only STATUS mandatory ::= { mib-2 43 11 1 1 8 }
prtMarkerSuppliesLevel OBJECT-TYPE SYNTAX INTEGER UNITS "grams" ACCESS read-only STATUS mandatory
    ::= { mib-2 43 11 1 1 9 }
END
)";

constexpr const char* kObjects = R"(1.3.6.1.2.1.1.1.0|4e|A printer\nof "two" lines
1.3.6.1.2.1.1.2.0|6|1.3.6.1.4.1.47913.1
1.3.6.1.2.1.1.3.0|67|8640000
1.3.6.1.2.1.1.4.0|4|
1.3.6.1.2.1.2.2.1.6.1|4x|001b2c3d4e5f
1.3.6.1.2.1.2.2.1.22.1|6|0.0
1.3.6.1.2.1.25.1.2.0|4x|07ea05010c1e00002b0100
1.3.6.1.2.1.25.3.2.1.2.1|6|1.3.6.1.2.1.25.3.1.5
1.3.6.1.2.1.25.3.5.1.1.1|2|3
1.3.6.1.2.1.25.3.5.1.2.1|4x|4004
1.3.6.1.2.1.43.10.2.1.4.1.1|65|4294967295
1.3.6.1.2.1.43.11.1.1.8.1.1|66|900
1.3.6.1.2.1.43.11.1.1.9.1.1|2|-3
1.3.6.1.4.1.47913.9.1|2|12
1.3.6.1.4.1.47913.9.2|4|text of the maker
1.3.6.1.4.1.47913.9.3|4x|00112233445566778899aabbccddeeff0011
)";

class WalkForms : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string mibs = folder.File("MIBS.txt", kMibs);
    bool hasCache =
        std::filesystem::create_directory(folder.path + "/cert_indexes"); // snmpwalk reports that it creates it

    std::string Walk(const RunningPrinter& printer, const std::string& form) const {
        return RunCommand("SNMPCONFPATH=" + folder.path + " SNMP_PERSISTENT_DIR=" + folder.path + " snmpwalk -M "
                          + folder.path + " -m " + mibs + " -v2c -c tovask " + form + " 127.0.0.1:" + printer.Port()
                          + " .1")
            .output;
    }
};

// With types the replay has the same values, too. Without them the one that is not the MIB's is lost.
TEST_F(WalkForms, EachReplaysToTheSameWalk) {
    const RunningPrinter printer("--replay " + folder.File("objects.snmprec", kObjects));
    const std::string exact = printer.Ask("snmpwalk", ".1").output;
    EXPECT_EQ(Walk(printer, "-OS").substr(0, 42), "SNMPv2-MIB::sysDescr.0 = STRING: A printer");
    for (const char* form : {"-OS", "-On", "-Ot", "-Oe", "-Of", "-Os", "-Ou", "-OX", "-OU", "-Ob", "-OT", "-Oq", "-OQ",
                             "-Oqn", "-Oqs", "-OQet", "-Oqf"}) {
        const std::string walk = Walk(printer, form);
        const RunningPrinter replay("--replay " + folder.File("walk.txt", walk) + " 2>" + folder.path + "/warnings");
        const bool hasTypes = std::string(form).find_first_of("qQ") == std::string::npos;
        const std::string expected =
            hasTypes ? walk : std::regex_replace(walk, std::regex(R"(Wrong Type \([^)]*\): )"), "");
        EXPECT_EQ(Walk(replay, form), expected) << form;
        EXPECT_EQ(hasTypes ? replay.Ask("snmpwalk", ".1").output : exact, exact) << form;
    }
}

} // namespace

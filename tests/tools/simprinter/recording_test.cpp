// Recordings in both formats: values, errors with their lines, and a walk of a replayed walk.
#include "running_printer.h"

#include "simprinter/recording.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

// Values in the text of each format, without the name, and as they are read.
const std::tuple<const char*, const char*, Value> kValues[] = {
    {"2|-7", "INTEGER: -7", NumberValue(-7)},
    {"2|2147483647", "INTEGER: 2147483647", NumberValue(2147483647)},
    {"2|3", "INTEGER: idle(3)", NumberValue(3)},
    {"2|30", "INTEGER: 30 seconds", NumberValue(30)},
    {"4|a|b", "STRING: \"a|b\"", TextValue("a|b")},
    {"4|", "\"\"", TextValue("")},
    {"4|2024-5-1", "STRING: 2024-5-1", TextValue("2024-5-1")},
    {"4x|73617920226869225c", "STRING: \"say \\\"hi\\\"\\\\\"", TextValue("say \"hi\"\\")},
    {"4x|6f6e650a2e31203d2074776f", "STRING: \"one\n.1 = two\"", TextValue("one\n.1 = two")},
    {"4x|61220a2e31203d2062", "STRING: \"a\\\"\n.1 = b\"", TextValue("a\"\n.1 = b")},
    {"4x|00FFa0", "Hex-STRING: 00 FF \nA0 ", TextValue(std::string("\0\xFF\xA0", 3))},
    {"4x|8040", "BITS: 80 40 first(0) ninth(9)", TextValue("\x80\x40")},
    {"4|wrong", "Wrong Type (should be INTEGER): STRING: \"wrong\"", TextValue("wrong")},
    {"5|", "NULL", Value()},
    {"6|1.3.6.1.4.1.47913", "OID: .1.3.6.1.4.1.47913", OidValue({1, 3, 6, 1, 4, 1, 47913})},
    {"6|0.0", "OID: .0.0", OidValue({0, 0})},
    {"64|10.0.200.255", "IpAddress: 10.0.200.255", TextValue(std::string("\x0A\0\xC8\xFF", 4), kIpAddress)},
    {"65|4294967295", "Counter32: 4294967295", NumberValue(4294967295, kCounter)},
    {"66|12", "Gauge32: 12", NumberValue(12, kGauge)},
    {"67|8640000", "Timeticks: (8640000) 1 day, 0:00:00.00", NumberValue(8640000, kTimeTicks)},
    {"68x|9f78043fc00000", "Opaque: Float: 1.500000", TextValue({"\x9F\x78\4\x3F\xC0\0\0", 7}, kOpaque)},
    {"68x|040101", "OPAQUE: 04 01 01 ", TextValue("\4\1\1", kOpaque)},
    {"71|9", "9", NumberValue(9, kUnsigned)},
};

TEST(Recording, BothFormatsGiveTheSameValues) {
    std::string snmprec = "# a comment\n\n", walk, crlf;
    ObjectMap expected;
    for (size_t i = std::size(kValues); i-- > 0;) { // in reverse: the objects are sorted
        const std::string name = "1.3.6.1." + std::to_string(i) + ".0";
        const auto& [recorded, walked, value] = kValues[i];
        snmprec += name + '|' + recorded + '\n';
        walk += '.' + name + " = " + walked + '\n';
        expected[{1, 3, 6, 1, static_cast<uint32_t>(i), 0}] = value;
    }
    for (const char c : snmprec)
        crlf += c == '\n' ? "\r\n" : std::string(1, c);
    for (const std::string& text : {snmprec, crlf, walk, walk + "End of MIB\n"}) {
        Findings findings;
        const ObjectMap objects = ReadRecording(text, findings);
        EXPECT_EQ(Listed(findings), "");
        ASSERT_EQ(objects.size(), expected.size());
        for (const auto& [name, value] : expected)
            EXPECT_EQ(objects.at(name), value) << OidText(name) << " of:\n" << text;
    }
}

TEST(Recording, EveryFindingHasItsLine) {
    const std::string good = "1.3.1.0|2|1\n", goodWalk = ".1.3.1.0 = INTEGER: 1\n";
    const std::pair<std::string, const char*> cases[] = {
        {goodWalk + ".1.3.1.0 = No more variables left in this MIB View (It is past the end of the MIB tree)\n", ""},
        {goodWalk + ".1.3.1.0 = INTEGER: 2\n", "2: warning: .1.3.1.0 occurs twice: the first value is used\n"},
        {goodWalk + ".1.3.2 = Counter64: 1\n.1.3.3 = Counter64: 3\n",
         "2: warning: SNMPv1 has no Counter64: this object and all others of the type are left out, 2 in total\n"},
        {"1: INTEGER: 3\n" + goodWalk, "1: expected '.1.3.6... = TYPE: VALUE', not '1: INTEGER: 3'\n"},
        {good + "1.3.2.0|3|1\n", "2: unknown tag '3'; possible: 2, 4, 4x, 5, 6, 64, 64x, 65, 66, 67, 68, 68x, 71\n"},
        {good + "# text\n1.3.2.0|2|2147483648\n", "3: '2147483648' is not a value of its type\n"},
        {good + "1.3.2.0|64|10.0.0.256\n", "2: '10.0.0.256' is not a value of its type\n"},
        {good + "1.3.2.0|4x|123\n", "2: '123' is not a value of its type\n"},
        {good + "1.40.2|2|1\n", "2: '1.40.2' is not a valid object identifier\n"},
        {goodWalk + ".1.3.2.0 = STRING: \"open\n.1.3.3.0 = INTEGER: 5\n",
         "2: the quoted text that starts here has no end\n"},
    };
    for (const auto& [text, wanted] : cases) {
        Findings findings;
        EXPECT_EQ(ReadRecording(text, findings).size(), 1u) << text;
        EXPECT_EQ(Listed(findings), wanted) << text;
    }
    Findings findings;
    EXPECT_TRUE(ReadRecording("SNMPv2-MIB::sysDescr.0 = STRING: x\n", findings).empty());
    EXPECT_TRUE(findings.HasErrors());
}

// The first printer serves an .snmprec file to net-snmp's snmpwalk; a second one serves snmpwalk's output.
TEST(Recording, WalkOfAReplayedWalkIsTheSame) {
    std::string snmprec;
    for (size_t i = 0; i < std::size(kValues); ++i)
        snmprec += "1.3.6.1.9." + std::to_string(i) + ".0|" + std::get<0>(kValues[i]) + '\n';
    const TemporaryFolder folder;
    const RunningPrinter first("--replay " + folder.File("one.snmprec", snmprec));
    const CommandResult walk = first.Ask("snmpwalk", ".1");
    EXPECT_EQ(walk.exitCode, 0);
    const RunningPrinter second("--replay " + folder.File("two.txt", walk.output));
    EXPECT_EQ(second.Ask("snmpwalk", ".1").output, walk.output);
}

} // namespace

// Recordings in both formats: values, names, encodings, warnings with their lines, and a walk of a replayed walk.
#include "running_printer.h"

#include "simprinter/recordings/formats.h"
#include "simprinter/recordings/recording.h"

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
    {"65x|ffffffff", "Counter32: 4294967295 pages", NumberValue(4294967295, kCounter)},
    {"70|18446744073709551615", "Counter64: 18446744073709551615", Counter64Value(UINT64_MAX)},
    {"2x|fffffff9", "INTEGER: -7 sheets", NumberValue(-7)},
    {"4e|a\\x00\\n\\\\", "Hex-STRING: 61 00 0A 5C                            [a..\\]",
     TextValue(std::string("a\0\n\\", 4))},
    {"2:numeric|rate=1,initial=5,offset=-2,max=4", "INTEGER: 3", NumberValue(3)},
    {"66:numeric|min=10,scale=5,function=cos", "Gauge32: 15", NumberValue(15, kGauge)},
    {"4:delay|wait=5,value=slow", "STRING: slow", TextValue("slow")},
    {"64:writecache|hexvalue=0a000001", "IpAddress: 10.0.0.1", TextValue({"\x0A\0\0\1", 4}, kIpAddress)},
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

// What is left of a recording, in order, and the findings.
std::string Read(const std::string& text, std::string& listed) {
    Findings findings;
    std::string kept;
    for (const auto& [name, value] : ReadRecording(text, findings))
        kept += SnmprecLine(name, value);
    listed = Listed(findings);
    return kept;
}

TEST(Recording, BadLinesAreWarningsAndLeftOut) {
    const std::string good = "1.3.1.0|2|1\n", walk = ".1.3.1.0 = INTEGER: 1\n";
    const auto integer = [](const std::string& place, const std::string& text) {
        return place + ": warning: expected INTEGER, a whole number from -2147483648 to 2147483647, not '" + text
               + "'\n";
    };
    const std::string mail =
        "this is a saved mail with encoded text: save its attachment, or copy the text from the mail "
        "program\n";
    const std::pair<std::string, std::string> cases[] = {
        {walk + ".1.3.1.0 = No more variables left in this MIB View (It is past the end of the MIB tree)\n", ""},
        {"\n$ snmpwalk -v1 -On 10.0.0.1 .1\n" + walk + "\nEnd of MIB\nC:\\>\n", ""},
        {"bob@host:~$ ls\n" + walk + "bob@host:~$ exit\n[bob@host ~]# exit\nC:\\>exit\n", ""},
        {walk + ".1.3.1.0 = INTEGER: 2\n", "2: warning: .1.3.1.0 occurs twice: the first value is used\n"},
        {"1: INTEGER: 3\nx\n" + walk,
         "1: warning: this line and all others before the first object are ignored, 2 in total\n"},
        {walk + "Timeout: No Response from 10.0.0.1\n",
         "2: warning: the walk failed here, so that objects may be missing: 'Timeout: No Response from 10.0.0.1'\n"},
        {walk + "X-MIB::xName.1 = INTEGER: 5\n",
         "2: warning: the name 'X-MIB::xName.1' is unknown or not valid: record with 'snmpwalk -On'\n"},
        {walk + ".1.3.2 = INTEGER: x\n", integer("2:10", "x")},
        {walk + ".1.3.2 = Counter32: -1\n",
         "2:10: warning: expected Counter32, a whole number from 0 to 4294967295, not '-1'\n"},
        {walk + ".1.3.2 = OID: X-MIB::x\n",
         "2:10: warning: the name 'X-MIB::x' is unknown or not valid: record with 'snmpwalk -On'\n"},
        {walk + "hrPrinterStatus.1 = INTEGER: sleeping\n",
         "2:21: warning: expected a number or one of other, unknown, idle, printing, warmup, not 'sleeping'\n"},
        {".1.3.1.0 = 1\nhrPrinterStatus.1 = sleeping\n",
         "2:21: warning: expected a number or one of other, unknown, idle, printing, warmup, not 'sleeping'\n"},
        {walk + ".1.3.2 = INTEGER: 5\ndoor open\n", "3: warning: expected 'NAME = TYPE: VALUE', not 'door open'\n"},
        {good + "1.3.2.0|3|1\n",
         "2:9: warning: unknown tag '3'; possible: 2, 4, 5, 6, 64, 65, 66, 67, 68, 70, 71, each also with x or e\n"},
        {good + "# text\n1.3.2.0|2|2147483648\n", integer("3:11", "2147483648")},
        {good + "1.3.2.0|64|10.0.0.256\n",
         "2:12: warning: expected IpAddress, four numbers from 0 to 255 with dots between, not '10.0.0.256'\n"},
        {good + "1.3.2.0|4x|123\n", "2:12: warning: expected OCTET STRING, pairs of hexadecimal digits, not '123'\n"},
        {good + "1.3.2.0|4e|a\\q\n",
         "2:12: warning: expected OCTET STRING with escapes such as \\n, \\\\ and \\x1B, not 'a\\q'\n"},
        {good + "1.3.2.0|2:sql|x\n",
         "2:15: warning: the variation 'sql' gives no first value: expected value=... or, of "
         "'numeric', initial=...\n"},
        {good + "1.40.2|2|1\n", "2:1: warning: '1.40.2' is not a valid object identifier\n"},
        {walk + std::string(128, 'y') + '\n' + std::string(127, 'z') + "\x9B\n",
         "2: warning: expected 'NAME = TYPE: VALUE', not '" + std::string(128, 'y')
             + "'\n3: warning: expected 'NAME = TYPE: VALUE', not '" + std::string(127, 'z') + "...'\n"},
        {good + "1.3.2.0|\x1B\xC2\x9B\xE4\u00E4|1\n", "2:9: warning: unknown tag '\\x1B\\xC2\\x9B\\xE4\u00E4'; "},
        {walk + ".1.3.2 = STRING: \u201CA\u201D\n.1.3.3 = Wrong Type (should be INTEGER): STRING: &quot;A&quot;\n",
         "2: warning: another program has changed the quotes around this text and others, 2 in total: they are part of "
         "the values now; get the recording as a file\n"},
        {"Content-Transfer-Encoding: quoted-printable\n" + good,
         "1: warning: expected OID|TAG|VALUE, not 'Content-Transfer-Encoding: quoted-printable'\n1: warning: " + mail},
        {good + "Total 5\n", "2: warning: expected OID|TAG|VALUE, not 'Total 5'\n"},
    };
    for (const auto& [text, wanted] : cases) {
        std::string listed, kept = Read(text, listed);
        EXPECT_EQ(kept.substr(0, good.size()), good) << text;
        EXPECT_EQ(listed.substr(0, wanted.size()), wanted) << text;
        EXPECT_EQ(listed.empty(), wanted.empty()) << text << listed;
    }
    std::string many = good, listed;
    for (int i = 0; i < 60; ++i)
        many += "x\n";
    Read(many, listed);
    EXPECT_NE(listed.find("\n61: warning: up to this line, there are 10 more such warnings\n"), std::string::npos);
    const std::string none =
        "no recorded object: expected 'NAME = TYPE: VALUE' as snmpwalk prints it, or '1.3.6...|TAG|VALUE'";
    const std::pair<const char*, std::string> files[] = {
        {"\x1F\x8B\b", "1: this is a compressed file: unpack it first\n"},
        {"From: Bob\n> .1.3.1 =3D STRING: \"A\"=20\n", "2: " + mail},
        {"From: Bob\nContent-transfer-encoding: Base64\r\n\r\nLjEuMw==\n", "2: " + mail},
        {"\nnothing\n", "2: " + none + ", not 'nothing'\n"},
        {"\n", "1: " + none + "; the file is empty\n"},
        {"X-MIB::x.1 = INTEGER: 5\n",
         "1: warning: the name 'X-MIB::x.1' is unknown or not valid: record with 'snmpwalk -On'\n"
         "1: no object is left: none has a value that can be read\n"},
        {"12: .1.3.2 = INTEGER: 5\n",
         "1:5: " + none + "; one seems to begin here: remove what is in front of it, '12: '\n"},
    };
    for (const auto& [text, wanted] : files) {
        EXPECT_EQ(Read(text, listed), "") << text;
        EXPECT_EQ(listed, wanted);
    }
}

// A quote that is missing does not swallow the objects after it, and remarks are not taken for a text.
TEST(Recording, TextsEndWhereTheyShould) {
    const std::string further = ": warning: the text that starts here is read up to line ",
                      unclear = ", as nothing shows where it ends\n";
    const std::string five = "1.3.2|2|5\n", next = ".1.3.2 = INTEGER: 5\n";
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {".1.3.1 = STRING: \"open\n.1.3.2 = INTEGER: 5\n", "1.3.2|2|5\n",
         "1: warning: the quoted text that starts here has no end\n"},
        {".1.3.1 = STRING: \"open\n.1.3.2 = STRING: \"b\"\n", "1.3.2|4|b\n",
         "1: warning: the quoted text that starts here has no end\n"},
        {".1.3.1 = STRING: \"open\n" + next + "say \"hi\" to Bob\n", five,
         "1: warning: the quoted text that starts here has no end\n"
         "3: warning: expected 'NAME = TYPE: VALUE', not 'say \"hi\" to Bob'\n"},
        {".1.3.1 = STRING: \"z\"\n\n" + next, "1.3.1|4|z\n" + five, ""},
        {".1.3.1 = STRING: \"z\" \t\r\n\n--\nBob\n", "1.3.1|4|z\n",
         "3: warning: expected 'NAME = TYPE: VALUE', not '--'\n4: warning: expected 'NAME = TYPE: VALUE', not 'Bob'\n"},
        {".1.3.1 = STRING: \"y\nz\"  <-- here\n" + next, "1.3.1|4x|790a7a\n" + five,
         "2: warning: '  <-- here' behind the closing quote is ignored\n"},
        {".1.3.1 = Hex-STRING: 00 01 \n02 \nBob\n", "1.3.1|4x|000102\n",
         "3: warning: expected 'NAME = TYPE: VALUE', not 'Bob'\n"},
        {".1.3.1 = STRING: one\ntwo\n\n$ \n", "1.3.1|4x|6f6e650a74776f\n", "1" + further + "2" + unclear},
        {".1.3.1 = STRING: one\n\nBob\n", "1.3.1|4|one\n", "3: warning: expected 'NAME = TYPE: VALUE', not 'Bob'\n"},
        {".1.3.1 = STRING: one\n\n" + next, "1.3.1|4|one\n" + five, ""}, // each line is followed by a blank one
        {".1.3.1 = STRING: one\n\n" + next + ".1.3.3 = NULL\n", "1.3.1|4x|6f6e650a\n" + five + "1.3.3|5|\n",
         "1" + further + "2" + unclear},
        {".1.3.1 = 9\nBob\n" + next, "1.3.1|71|9\n" + five, "2: warning: expected 'NAME = TYPE: VALUE', not 'Bob'\n"},
        {"hrDeviceIndex.1 = 1\nBob\n", "1.3.6.1.2.1.25.3.2.1.1.1|2|1\n",
         "2: warning: expected 'NAME = TYPE: VALUE', not 'Bob'\n"},
    };
    for (const auto& [text, kept, wanted] : cases) {
        std::string listed;
        EXPECT_EQ(Read(text, listed), kept) << text;
        EXPECT_EQ(listed, wanted) << text;
    }
}

TEST(Recording, NamesAreResolved) {
    const std::pair<const char*, const char*> cases[] = {
        {"Printer-MIB::prtMarkerSuppliesLevel.1.4 = INTEGER: 7", "1.3.6.1.2.1.43.11.1.1.9.1.4|2|7\n"},
        {"HOST-RESOURCES-MIB::hrPrinterStatus[1] = INTEGER: warmup", "1.3.6.1.2.1.25.3.5.1.1.1|2|5\n"},
        {"Printer-MIB::prtAlertCode.1.9 = INTEGER: markerTonerEmpty", "1.3.6.1.2.1.43.18.1.1.7.1.9|2|1101\n"},
        {"IP-MIB::ipAdEntIfIndex[10.0.0.1] = INTEGER: 2", "1.3.6.1.2.1.4.20.1.2.10.0.0.1|2|2\n"},
        {"PRINTER-PORT-MONITOR-MIB::ppmPrinterName.1 = STRING: a", "1.3.6.1.4.1.2699.1.2.1.2.1.1.2.1|4|a\n"},
        {"SNMPv2-SMI::enterprises.9.\"ab\".'c'.1 = INTEGER: 1", "1.3.6.1.4.1.9.2.97.98.99.1|2|1\n"},
        {"iso.3.6.1.9.1 = OID: ccitt.0", "1.3.6.1.9.1|6|0.0\n"},
        {"Printer-MIB::prtMarkerMarkTech.1.1 = INTEGER: impactBand", "1.3.6.1.2.1.43.10.2.1.2.1.1|2|10\n"},
        {"Printer-MIB::prtChannelType.1.1 = INTEGER: chIPP", "1.3.6.1.2.1.43.14.1.1.2.1.1|2|44\n"},
        {"SNMPv2-MIB::sysObjectID.0 = OID: NET-SNMP-MIB::netSnmpAgentOIDs.10",
         "1.3.6.1.2.1.1.2.0|6|1.3.6.1.4.1.8072.3.2.10\n"},
        {"SNMPv2-MIB::sysORID.1 = OID: SNMP-FRAMEWORK-MIB::snmpFrameworkMIBCompliance",
         "1.3.6.1.2.1.1.9.1.2.1|6|1.3.6.1.6.3.10.3.1.1\n"},
        {"IF-MIB::ifHCInOctets.1 9000000000", "1.3.6.1.2.1.31.1.1.1.6.1|70|9000000000\n"},
    };
    for (const auto& [line, kept] : cases) {
        std::string listed;
        EXPECT_EQ(Read(line, listed), kept) << line;
        EXPECT_EQ(listed, "") << line;
    }
}

TEST(Recording, GuessedTypesAreReportedOnce) {
    std::string listed;
    const std::string text = ".1.3.6.1.9.1 5\n.1.3.6.1.9.2 \"00 1A \"\n.1.3.6.1.9.3 five\n.1.3.6.1.9.4 0:0:00:01.05\n"
                             ".1.3.6.1.9.5 \"00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF \n00 \"\n"
                             ".1.3.6.1.9.6 \"41 00   [A.]\"\n.1.3.6.1.9.7 \"12 [b]\"\n";
    EXPECT_EQ(Read(text, listed), "1.3.6.1.9.1|2|5\n1.3.6.1.9.2|4x|001a\n1.3.6.1.9.3|4|five\n1.3.6.1.9.4|67|105\n"
                                  "1.3.6.1.9.5|4x|00112233445566778899aabbccddeeff00\n1.3.6.1.9.6|4x|4100\n"
                                  "1.3.6.1.9.7|4|12 [b]\n");
    EXPECT_EQ(listed,
              "1: warning: the types are not recorded: this object and all others that are not in a standard MIB are "
              "guessed, 3 in total\n");
}

TEST(Recording, FilesOfWindowsAreRead) {
    const std::string walk = ".1.3.1 = STRING: \"\xC3\xA9\"\r\n.1.3.2 = INTEGER: 5\r\n";
    std::string little = "\xFF\xFE", big = "\xFE\xFF", bare, listed;
    for (const char16_t unit : std::u16string(u".1.3.1 = STRING: \"\u00E9\"\r\n.1.3.2 = INTEGER: 5")) {
        const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 255);
        little += {low, high};
        big += {high, low};
        bare += {low, high};
    }
    for (const std::string& text : {"\xEF\xBB\xBF" + walk, little, big, bare}) {
        EXPECT_EQ(Read(text, listed), "1.3.1|4x|c3a9\n1.3.2|2|5\n");
        EXPECT_EQ(listed, "");
    }
    EXPECT_EQ(Read(std::string("\xFF\xFE\0\0.\0\0\0", 8), listed), "");
    EXPECT_EQ(listed, "1: this file is UTF-32; save it as UTF-8\n");
}

TEST(Recording, MailsTablesAndMixedLineEndsAreRead) {
    const std::string kept = "1.3.1|4x|790a7a\n1.3.2|2|5\n";
    const std::pair<std::string, std::string> cases[] = {
        {"> > .1.3.1 = STRING: \"y\n> > z\"\n> >\n> > .1.3.2 = INTEGER: 5\n> >\n", kept},
        {"\t.1.3.1\t=STRING: \"y\n\tz\"\n    .1.3.2   =  INTEGER: 5\n", kept},
        {".1.3.1=\"\"\n.1.3.2=INTEGER: 5\n", "1.3.1|4|\n1.3.2|2|5\n"},
        {".1.3.1 = STRING: \"y\r\nz\"\r\n.1.3.2 = INTEGER: 5\n", kept},
        {".1.3.1 = STRING: \"y\rz\"\r.1.3.2 = INTEGER: 5\r", kept},
        {".1.3.1 = STRING: \"y\r\nz\"\n.1.3.2 = INTEGER: 5\r\n", "1.3.1|4x|790d0a7a\n1.3.2|2|5\n"}, // a text's own CR
        {"1.3.1|4x|790a7a\n1.3.2|2|5\r\n", kept},
        {"\u00A0.1.3.1 =\u00A0STRING:\u00A0\"y\nz\"\n.1.3.2\u00A0= INTEGER: 5\n", kept},
        {"> \u00A0.1.3.1 = \"\"\n> .1.3.2 = STRING: \"a\u00A0b\"\n", "1.3.1|4|\n1.3.2|4|a b\n"},
        {".1.3.1 = STRING: \"a\u00A0b\"\n.1.3.2 = INTEGER: 5\n", "1.3.1|4x|61c2a062\n1.3.2|2|5\n"}, // its own
    };
    for (const auto& [text, wanted] : cases) {
        std::string listed;
        EXPECT_EQ(Read(text, listed), wanted) << text;
        EXPECT_EQ(listed, "") << text;
    }
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

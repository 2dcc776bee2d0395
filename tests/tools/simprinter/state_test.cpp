// A device that changes while it is served: control lines, levels that move, alerts and the states that follow.
#include "running_printer.h"

#include "simprinter/control.h"
#include "simprinter/device/objects.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace {

constexpr UpTime kNow{1500};

std::vector<Printer> StartedPrinters(const PrinterOptions& options = {}) {
    PrinterFiles files;
    std::vector<Printer> printers;
    printers.push_back(StartPrinter("127.0.0.1", options, files));
    printers.push_back(StartPrinter("127.0.0.2", options, files));
    return printers;
}

std::string Say(std::vector<Printer>& printers, const std::string& line) {
    const ControlReply reply = RunControlLine(printers, line, kNow);
    return (reply.isDone ? "" : "refused: ") + reply.text;
}

TEST(Control, LinesChangeTheSelectedPrinters) {
    std::vector<Printer> printers = StartedPrinters();
    const std::string before = Say(printers, "show");
    EXPECT_EQ(Say(printers, "127.0.0.2  set tray1 level   0"), "127.0.0.2: set tray1 level 0");
    EXPECT_EQ(Say(printers, "127.0.0.2  set TRAY1 capacity 250"), "127.0.0.2: set TRAY1 capacity 250");
    EXPECT_EQ(Say(printers, "set cyan level 12"), "all 2 printers: set cyan level 12");
    EXPECT_EQ(Say(printers, "127.0.0.2 set cover open"), "127.0.0.2: set cover open");
    EXPECT_EQ(Say(printers, "127.0.0.2 set online no"), "127.0.0.2: set online no");
    EXPECT_EQ(Say(printers, "127.0.0.2 set TRAY2 name Left tray"), "127.0.0.2: set TRAY2 name Left tray");
    EXPECT_EQ(Say(printers, "fault delay=5"), "all 2 printers: fault delay=5");
    EXPECT_EQ(Say(printers, "fault delay=7"), "all 2 printers: fault delay=7");
    EXPECT_EQ(Say(printers, " "), "");
    EXPECT_EQ(Say(printers, "127.0.0.1 set location \"Cellar   two\""), "127.0.0.1: set location Cellar   two");
    EXPECT_EQ(printers[0].device.location, "Cellar   two");
    for (const char* fault : {"loss=9@.1.3.6", "loss=9@.1.3", "loss=3"})
        Say(printers, "fault " + std::string(fault));
    EXPECT_EQ(Say(printers, "127.0.0.2 clear loss@.1.3"), "127.0.0.2: clear loss@.1.3");
    const std::string left = Say(printers, "127.0.0.2 show");
    EXPECT_EQ(left.substr(left.find("faults")), "faults: delay=7, loss=9@.1.3.6, loss=3");
    EXPECT_EQ(Say(printers, "clear loss"), "all 2 printers: clear loss");
    EXPECT_EQ(printers[0].device.trays[0].level, 500);
    EXPECT_EQ(printers[1].device.trays[0].level, 0);
    EXPECT_EQ(printers[1].device.trays[1].name, "Left tray");
    EXPECT_EQ(printers[0].device.supplies[0].level, 12);
    EXPECT_EQ(
        Say(printers, "127.0.0.2 show"),
        "127.0.0.2: QUORVANE lumora R880, offline, cover open\n"
        "  trays: TRAY1 0 of 250, TRAY2 500 of 500, MANUAL 150 of 150\n"
        "  supplies: cyan 12 of 100, magenta 100 of 100, yellow 100 of 100, black 100 of 100, drum 120000 of 120000,"
        " transfer 150000 of 150000, fuser 300000 of 300000, waste some\n"
        "  alerts: Tray 1 is empty, Front door is open, Printer is offline\n"
        "  faults: delay=7");
    EXPECT_EQ(Say(printers, "clear"), "all 2 printers: as at the start");
    EXPECT_EQ(Say(printers, "show"), before);
    EXPECT_NE(Say(printers, "help").find("\n  set [TRAY|SUPPLY] FIELD VALUE"), std::string::npos);
}

TEST(Control, WrongLinesChangeNothing) {
    const TemporaryFolder folder;
    PrinterOptions recorded;
    recorded.replayFile = folder.File("walk", "1.3.1.0|2|5\n");
    PrinterFiles files;
    std::vector<Printer> printers = StartedPrinters();
    printers.push_back(StartPrinter("::1", recorded, files));
    const std::string before = Say(printers, "show");
    const std::pair<const char*, const char*> cases[] = {
        {"sett cover open", "unknown command 'sett'; possible: set, fault, clear, show, stop, help"},
        {"127.0.0.3 show", "no printer has the address '127.0.0.3'; possible: 127.0.0.1, 127.0.0.2, ::1"},
        {"set", "write set [TRAY|SUPPLY] FIELD VALUE"},
        {"show all", "write show"},
        {"127.0.0.2", "write a command after the address; possible: set, fault, clear, show, stop, help"},
        {"127.0.0.1 stop", "all printers are of one program: write stop without an address"},
        {"127.0.0.1 set TRAY1", "127.0.0.1: write a field and its value; possible: name, size, "},
        {"set location Cell\xFF", "this line is not UTF-8 from byte 18 on"},
        {"clear all", "fault 'all': unknown fault; possible: silence, "},
        {"clear loss", "there is no fault 'loss' to clear; "},
        {"clear loss=30@.1.3", "fault 'loss=30@.1.3': write clear loss@.1.3, without the value"},
        {"set location \"Cellar two", "a double quote is not closed"},
        {"fault delay=500 loss=20", "fault 'delay=500 loss=20': write one fault only, without blanks"},
        {"fault wrong-address", "::1: wrong-address needs an IPv4 printer: "},
        {"127.0.0.1 set TRAY5 level 0",
         "127.0.0.1: this printer has no 'TRAY5' to be set; did you mean 'TRAY1'?; possible: "},
        {"127.0.0.1 set TRAY1 levle 0",
         "127.0.0.1: 'levle' can't be set; did you mean 'level'?; possible: name, size, "},
        {"127.0.0.1 set TRAY1 level", "127.0.0.1: the value of 'level' is missing"},
        {"127.0.0.1 set TRAY1 level much", "127.0.0.1: 'level' can't be 'much'; possible: unknown, some, or a number"},
        {"127.0.0.1 set TRAY1 level 501", "127.0.0.1: 'level' is 501, but the capacity is 500: write at most that"},
        {"127.0.0.1 set TRAY1 capacity 499", "127.0.0.1: 'capacity' is 499, but the level is 500: set a lower level"},
        {"127.0.0.1 set cover ajar", "127.0.0.1: 'cover' can't be 'ajar'; possible: open, closed"},
        {"127.0.0.1 set trays []", "127.0.0.1: this printer has no 'trays' to be set"},
        {"::1 set cover open", "::1 serves a recording, which can't be set; faults work"},
        {"set cover open", "::1 serves a recording"}, // which the line is for, too
        {"fault loss=300", "fault 'loss=300': PERCENT must be a number from 0 to 100"},
    };
    for (const auto& [line, message] : cases) {
        EXPECT_EQ(Say(printers, line).substr(0, 9 + std::string(message).size()), "refused: " + std::string(message));
        EXPECT_EQ(Say(printers, "show"), before) << line;
    }
    EXPECT_EQ(Say(printers, "::1 fault counter"), "::1: fault counter");
}

TEST(Control, LinesOfTheStandardInputAreRun) {
    const TemporaryFolder folder;
    const std::string pipe = folder.path + "/pipe", name = ".1.3.6.1.2.1.43.8.2.1.10.1.1";
    ASSERT_EQ(RunCommand("mkfifo " + pipe).exitCode, 0);
    RunningPrinter printer("<>" + pipe + " 2>&1");
    std::ofstream(pipe) << "set TRAY1 le" << std::flush << "vel 7\nbogus\n" << std::flush;
    EXPECT_EQ(printer.Line(), "127.0.0.1: set TRAY1 level 7\n");
    EXPECT_EQ(printer.Line().substr(0, 35), "simprinter: unknown command 'bogus'");
    EXPECT_EQ(printer.Ask("snmpget", name).output, name + " = INTEGER: 7\n");
    std::ofstream(pipe) << "stop\n" << std::flush;
    EXPECT_EQ(printer.Line(), "stopped\n");
    EXPECT_EQ(printer.Stop(0), 0);

    const RunningPrinter busy("</dev/zero"); // always has something to read, and still stops

    const RunningPrinter ended("< " + folder.File("lines", "set TRAY1 level 8")); // the end of the input ends nothing
    EXPECT_EQ(ended.Line(), "127.0.0.1: set TRAY1 level 8\n");
    EXPECT_EQ(ended.Ask("snmpget", name).output, name + " = INTEGER: 8\n");
    const std::string ticks = "cut -d' ' -f14,15 /proc/" + std::to_string(ended.process) + "/stat"; // of the processor
    const std::string before = RunCommand(ticks).output;
    EXPECT_EQ(RunCommand("sleep 0.3; " + ticks).output, before) << "it does not wait";
}

TEST(Variation, LevelsFallAndAreReplaced) {
    PrinterOptions options;
    options.varySeconds = 100;
    std::vector<Printer> printers = StartedPrinters(options);
    std::vector<std::set<int>> levels(3);
    std::set<int> waste;
    int refilled = 0;
    int used = 0; // the second at which the first tray was used up
    for (int second = 0; second <= 1200; ++second) {
        const Device before = printers[0].device;
        for (Printer& printer : printers)
            AdvancePrinter(printer, UpTime(second * 1000));
        for (size_t i = 0; i < levels.size(); ++i) {
            const Tray& tray = printers[0].device.trays[i];
            EXPECT_TRUE(tray.level <= before.trays[i].level || before.trays[i].level == 0) << tray.level;
            EXPECT_EQ(tray.level, printers[1].device.trays[i].level) << "the same seed";
            levels[i].insert(tray.level);
            used = used == 0 && tray.level == 0 ? second : used;
            refilled += tray.level > before.trays[i].level ? 1 : 0;
        }
        waste.insert(printers[0].device.supplies[7].level);
    }
    EXPECT_EQ(used, 100);
    for (const std::set<int>& seen : levels) {
        EXPECT_EQ(*seen.begin(), 0);
        EXPECT_GT(seen.size(), 70u);
    }
    EXPECT_GE(refilled, 3 * 4); // at least every 240 seconds
    EXPECT_EQ(waste, (std::set<int>{kLevelSome, 0, 1}));
    EXPECT_GT(printers[0].alerts.last, 10);

    Say(printers, "set TRAY1 level 250"); // goes on from there; special levels stay
    Say(printers, "set TRAY2 level some");
    AdvancePrinter(printers[0], UpTime(1300000));
    EXPECT_EQ(printers[0].device.trays[0].level, 250);
    AdvancePrinter(printers[0], UpTime(1330000)); // 30 seconds of 100 to 200
    EXPECT_GE(printers[0].device.trays[0].level, 100);
    EXPECT_LE(printers[0].device.trays[0].level, 175);
    EXPECT_EQ(printers[0].device.trays[1].level, kLevelSome);

    const auto levelLater = [&](unsigned seed) {
        options.seed = seed;
        Printer printer = StartedPrinters(options)[0];
        AdvancePrinter(printer, UpTime(50000));
        return printer.device.trays[0].level;
    };
    EXPECT_EQ(levelLater(1), levelLater(1));
    EXPECT_NE(levelLater(1), levelLater(2));
}

// The columns of RFC 3805 that a client shows, with a MIB of its own.
TEST(Alerts, TableFollowsTheDevice) {
    const TemporaryFolder folder, other; // the tool opens every file next to the MIB
    std::string mib = "ALERTS DEFINITIONS ::= BEGIN\n", members;
    const char* const columns[] = {"index", "severity", "training", "group", "row", "location", "code", "text", "time"};
    const std::string object = " MAX-ACCESS read-only STATUS current DESCRIPTION \"\" ";
    for (size_t i = 0; i < std::size(columns); ++i) {
        const std::string syntax = i == 7 ? " OCTET STRING" : " INTEGER";
        mib += columns[i] + (" OBJECT-TYPE SYNTAX" + syntax) + object + "::= { entry " + std::to_string(i + 1) + " }\n";
        members += (i == 0 ? "" : ", ") + std::string(columns[i]) + syntax;
    }
    mib += "table OBJECT-TYPE SYNTAX SEQUENCE OF Entry" + object
           + "::= { iso 3 6 1 2 1 43 18 1 }\nentry OBJECT-TYPE SYNTAX Entry" + object
           + "INDEX { device, index } ::= { table 1 }\nEntry ::= SEQUENCE { " + members + " }\nEND\n";
    folder.File("ALERTS.txt", mib);
    const std::string pipe = other.path + "/pipe";
    ASSERT_EQ(RunCommand("mkfifo " + pipe).exitCode, 0);
    const RunningPrinter printer("<>" + pipe + " --device "
                                 + other.File("device.yaml",
                                              "trays: [{tray: TRAY1, level: 9}, {tray: TRAY3, level: 0}]\n"
                                              "supplies: [{supply: waste, level: 1}]"));
    const auto control = [&](const std::string& line) {
        std::ofstream(pipe) << line << '\n' << std::flush;
        EXPECT_EQ(printer.Line(), "127.0.0.1: " + (line == "clear" ? "as at the start" : line) + '\n');
    };
    const auto table = [&] { // without the header and the time
        const std::string output =
            printer.Ask("snmptable", "ALERTS::table", "-M " + folder.path + " -m ALERTS -OS -v2c -c tovask -CH -Cf ,")
                .output;
        return RunCommand("printf %s '" + output + "' | sed 's/,[^,]*$//; s/\"//g; /^[^0-9]/d; /^$/d'").output;
    };
    const auto states = [&](const std::string& names) { // values alone
        return printer.Ask("snmpget", names, "-v1 -c tovask -r0 -t2 -Oqv").output;
    };
    const std::string kStates = ".1.3.6.1.2.1.25.3.2.1.5.1 .1.3.6.1.2.1.25.3.5.1.1.1 .1.3.6.1.2.1.43.10.2.1.15.1.1"
                                " .1.3.6.1.2.1.43.8.2.1.11.1.1 .1.3.6.1.2.1.43.8.2.1.11.1.3 .1.3.6.1.2.1.43.6.1.1.3.1.1"
                                " .1.3.6.1.2.1.43.5.1.1.18.1 .1.3.6.1.2.1.43.5.1.1.19.1 .1.3.6.1.2.1.43.16.5.1.2.1.1";
    EXPECT_EQ(table(), "1,4,3,8,3,-2,808,Tray 3 is empty\n2,4,3,8,1,-2,807,Tray 1 is nearly empty\n"
                       "3,4,4,11,8,-2,1107,Waste toner box is nearly full\n");
    // warning and idle; marker with a warning, tray with one, tray unavailable; cover closed; no critical event
    EXPECT_EQ(states(kStates), "3\n3\n8\n8\n9\n4\n0\n3\n\"Tray 3 is empty\"\n");

    control("set cover open");
    control("set TRAY3 level 500");
    control("set waste level 0");
    control("set online no");
    EXPECT_EQ(table(), "2,4,3,8,1,-2,807,Tray 1 is nearly empty\n4,3,3,6,1,-2,3,Front door is open\n"
                       "5,3,4,11,8,-2,1109,Waste toner box is full\n6,3,3,5,1,-2,22,Printer is offline\n");
    // down and other; offline 32, unavailable on request 1, with critical 16 or non-critical 8; cover open
    EXPECT_EQ(states(kStates), "5\n1\n49\n40\n32\n3\n3\n6\n\"Front door is open\"\n");
    EXPECT_NE(states(".1.3.6.1.2.1.43.18.1.1.9.1.6"), "0:0:00:00.00\n") << "the time of a later alert";

    control("set TRAY1 level 500");
    control("clear");
    EXPECT_EQ(table(), "7,4,3,8,3,-2,808,Tray 3 is empty\n8,4,3,8,1,-2,807,Tray 1 is nearly empty\n"
                       "9,4,4,11,8,-2,1107,Waste toner box is nearly full\n");
}

} // namespace

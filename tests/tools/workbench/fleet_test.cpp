// `workbench query` in words, for one printer and for a list: what is said of supplies, trays and devices of another
// model, the readers of lists, the order and forms of the output, and a run over all simulated printers.
#include "tools/workbench/workbench_run.h"
#include "workbench/commands/commands.h"
#include "workbench/fleet/fleet_forms.h"
#include "workbench/fleet/fleet_run.h"
#include "workbench/lib/files.h"
#include "workbench/lib/printer_alerts.h"
#include "workbench/lib/printer_identity.h"
#include "workbench/lib/running_jobs.h"
#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/supply_words.h"
#include "workbench/lib/text.h"

#include <thread>
#include <winsock2.h>

#include <ws2tcpip.h> // after winsock2.h

namespace {

MrkSupRequestItem Supply(const char* key, int32_t state, int32_t value) {
    MrkSupRequestItem supply = {};
    CopyText(supply.name, key);
    supply.state = state;
    supply.value = value;
    return supply;
}

TEST(WorkbenchFleet, SupplyLevelsAreWords) {
    const std::tuple<int32_t, int32_t, const char*> kCases[] = {
        {TELMAR_STATE_PERCENT, 71, "71 %"},
        {TELMAR_STATE_PERCENT, 10, "10 %"},
        {TELMAR_STATE_PERCENT, 9, "9 %, low"},
        {TELMAR_STATE_PERCENT, 0, "0 %, empty"},
        {TELMAR_STATE_LEVEL, TELMAR_LEVEL_NEARLY_FULL, "nearly full"},
        {TELMAR_STATE_LEVEL, TELMAR_LEVEL_FULL, "full"},
        {TELMAR_STATE_LEVEL, TELMAR_LEVEL_EMPTY, "empty"},
        {TELMAR_STATE_LEVEL, TELMAR_LEVEL_NEARLY_EMPTY, "nearly empty"},
        {TELMAR_STATE_LEVEL, TELMAR_LEVEL_IN_ORDER, "in order"},
        {TELMAR_STATE_LEVEL, TELMAR_LEVEL_UNKNOWN, "unknown"},
        {TELMAR_STATE_UNKNOWN, 0, "not reported"},
    };
    for (const auto& [state, value, words] : kCases)
        EXPECT_EQ(SupplyLevel(Supply("Consumable2", state, value)), words);
}

TEST(WorkbenchFleet, QueryAndStatusAreInWords) {
    const std::string modest = RunWorkbench(L"query 127.0.162.2").output;
    for (const char* line : {"Hard disk      Not installed", "Duplex unit    Not installed", "Memory         640 MB",
                             "Waste toner box  nearly full", "Yellow toner     0 %, empty", "Overlays: none"})
        EXPECT_NE(modest.find(line), std::string::npos) << line << modest;
    EXPECT_EQ(modest.find("Warning"), std::string::npos) << "of a printer of the model";
    EXPECT_NE(
        RunWorkbench(L"query 127.0.162.1").output.find("sRGB                srgb.icc      built in   RGB profile"),
        std::string::npos);
    const Json trays = RunForJson(L"status 127.0.162.2")["trays"];
    EXPECT_EQ(Pick(trays, "levelText"), Json({"35 sheets", "empty", nullptr, nullptr, nullptr, "empty"}));
    EXPECT_EQ(trays[5]["typeName"], "Transparency");
}

TEST(WorkbenchFleet, DeviceOfAnotherModelIsNamed) {
    const Json mono = RunForJson(L"query 127.0.163.1");
    EXPECT_EQ(mono["printer"]["callsItself"], "Halden M410");
    EXPECT_NE(mono["printer"]["warning"].dump().find("'Halden M410', not QUORVANE lumora R880"), std::string::npos);
    EXPECT_EQ(mono["supplies"][1]["printerCallsIt"], "Black Toner");
    EXPECT_EQ(mono["supplies"][2]["level"], "not reported");
    EXPECT_EQ(RunForJson(L"query 127.0.162.1")["printer"]["warning"], nullptr);

    EXPECT_TRUE(IsOtherSupply("Consumable2", "BLACK toner"));
    EXPECT_TRUE(IsOtherSupply("Consumable5", "Imaging drum"));
    EXPECT_FALSE(IsOtherSupply("Consumable5", "Black drum")) << "it names the supply, too";
    EXPECT_FALSE(IsOtherSupply("Consumable2", "TN-400 cartridge"));

    EXPECT_TRUE(ModelIn({"", "R8800 and QUORVANE lumora R880; 512 MB"}).isModel);
    EXPECT_TRUE(ModelIn({"no QUORVANE lumora R8800", "QUORVANE lumora R880"}).isModel);
    EXPECT_FALSE(ModelIn({"QUORVANE lumora R8800"}).isModel);
    const std::string diagnosis = RunWorkbench(L"diagnose 127.0.163.7").output;
    EXPECT_NE(diagnosis.find("calls itself 'QUORVANE lumora R8800"), std::string::npos) << diagnosis;
}

TEST(WorkbenchFleet, AlertsAreReported) {
    using Words = std::vector<std::string>;
    EXPECT_EQ(StoppingConditions({"\x08", 1}), Words{"door open"});
    EXPECT_EQ(StoppingConditions({"\xA6\x20", 2}), (Words{"paper jam", "offline", "a supply is missing"}));
    EXPECT_EQ(RunForJson(L"query 127.0.163.2")["alerts"],
              Json::parse(R"([{"alert": "Front door is open", "severity": "critical"}])"));
    EXPECT_NE(RunWorkbench(L"query 127.0.163.2").output.find("Alerts read by the workbench (1)"), std::string::npos);
}

// A table of this many alerts, of which only the last one is critical.
PrinterAlerts ReadAlertsOf(uint32_t count) {
    const auto next = [count](const std::vector<std::string>& oids, bool& isAnswered) {
        ObjectValues values(oids.size());
        for (size_t i = 0; i < oids.size(); ++i) {
            ObjectId oid = OidOf(oids[i]);
            if (oid.size() == 11) // the column itself
                oid.insert(oid.end(), {1, 0});
            if (++oid.back() > count)
                oid[10] += 1; // the next column
            values[i].oid = oid;
            values[i].number = oid.back() == count ? 3 : 4;
        }
        isAnswered = true;
        return values;
    };
    ObjectValue errorState;
    errorState.isAnswered = true;
    return ReadAlerts(next, errorState);
}

TEST(WorkbenchFleet, AlertBehindManyWarningsIsRead) {
    const PrinterAlerts many = ReadAlertsOf(20);
    EXPECT_TRUE(many.areAnswered);
    EXPECT_EQ(many.alerts.size(), 20u);
    EXPECT_NE(CriticalAlerts(many), "");
    EXPECT_FALSE(ReadAlertsOf(201).areAnswered) << "there may be more";
}

// Of 127.0.162.5, which does not answer for its overlays.
TEST(WorkbenchFleet, QueryKeepsWhatWasRead) {
    const Result result = RunWorkbench(L"query 127.0.162.5 --json");
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    const Json answers = Json::parse(result.output);
    EXPECT_EQ(answers["overlays"], nullptr);
    EXPECT_EQ(answers["supplies"][1]["level"], "83 %");
    EXPECT_NE(answers["failure"].dump().find("too slowly, or not every request"), std::string::npos);
    EXPECT_NE(answers["failure"].dump().find("Not read: overlays."), std::string::npos);
    const Result unanswered = RunWorkbench(L"query 127.0.163.9");
    EXPECT_EQ(unanswered.exitCode, 1);
    for (const char* words : {"Not read: alerts, Duplex unit, Magenta toner.", "Duplex unit    No answer",
                              "Magenta toner    no answer", "Alerts        not answered"})
        EXPECT_NE(unanswered.output.find(words), std::string::npos) << words << unanswered.output;
    const Json lossy = Json::parse(RunWorkbench(L"query 127.0.163.10 --json").output);
    EXPECT_NE(lossy["failure"].dump().find("Not read: "), std::string::npos);
    EXPECT_EQ(lossy["options"].size(), 13) << "although overlays and profiles are not answered";
    ExpectFailure(L"query 127.0.163.8", 1, "device 3 of its host");
    ExpectFailure(L"query [fe80::1%1]", 2, "IPv6");
    ExpectFailure(L"query no..host", 1, "no device with this name.*spelling");
    ExpectFailure(L"query 127.0.162.010", 2, "without leading zeros");
    EXPECT_EQ(OneLine("a\x1B[31m\x07\xC2\x9B"
                      "b\x7F\u00E4"),
              "a [31m  b \u00E4");
}

TEST(WorkbenchFleet, ListFaultsAreReportedTogether) {
    const std::vector<ListedPrinter> printers =
        ParsePrinterList("# printers\n\n 10.0.0.1\tThird floor # left\r\nprn-2.example.com\n10.0.0.2 B#2", "fleet.txt");
    ASSERT_EQ(printers.size(), 3);
    EXPECT_EQ(printers[0].address + "|" + printers[0].name, "10.0.0.1|Third floor");
    EXPECT_EQ(printers[1].address + "|" + printers[1].name, "prn-2.example.com|");
    EXPECT_EQ(printers[2].name, "B#2") << "not a comment";
    EXPECT_EQ(ParsePrinterList("10.0.0.2 a\r10.0.0.1 b\x1B[31m\a\r", "f").at(1).name, "b [31m");
    try {
        ParsePrinterList("10.0.0.1\n  10.0.0.300\nfe80::1\n\u00FC;a\nprn;2 x\n10.0.0.1\n10.0.0.0/24\n10.0.0.010\n"
                         "10.0.0.1-9\n-x\na\u00A0b\nhttp://prn/\n0x7f.1",
                         "f");
        FAIL() << "accepted";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.exitCode, kExitUsage);
        const std::string faults = failure.what();
        for (const char* fault :
             {"f:2:3: '10.0.0.300' is no IPv4 address: expected four numbers from 0 to 255",
              "f:3:1: 'fe80::1' is an IPv6", "f:4:2: ", "f:5:4: a host name can't have ';'; a blank separates",
              "f:6:1: 10.0.0.1 is already in line 1", "f:7:1: '10.0.0.0/24' is a range",
              "f:8:1: '10.0.0.010' is no IPv4 address", "f:9:1: '10.0.0.1-9' is a range",
              "f:10:1: a host name can't begin", "f:11:2: a host name can't have a no-break space",
              "f:12:1: 'http://prn/' is the address of a web page", "f:13:1: '0x7f.1' is no IPv4 address"})
            EXPECT_NE(faults.find(fault), std::string::npos) << fault << "\n" << faults;
        EXPECT_EQ(std::count(faults.begin(), faults.end(), '\n'), 11) << faults;
    }
    std::string many;
    for (int i = 0; i < 4099; ++i)
        many += "p" + std::to_string(i) + "\n";
    const std::pair<std::string, const char*> kFiles[] = {
        {"10.0.0.1\n10.0.0.2 B\u00FCro\n10.0.0.3 B\u00FCr\xFCo\n", "f:3:13: not UTF-8: save the file as UTF-8"},
        {{"1\0.\0", 4}, "f: this file is UTF-16; save it as UTF-8"},
        {{"\0\1", 2}, "f: this file is not a text"},
        {many, "f:4097:1: more than 4096 printers: expected fewer; split the list"},
        {"# none\n", "f: has no printer; expected an IPv4 address, such as 192.0.2.10, or a host name in each line"},
    };
    for (const auto& [text, fault] : kFiles)
        try {
            ParsePrinterList(text, "f");
            FAIL() << "accepted";
        } catch (const Failure& failure) {
            EXPECT_STREQ(failure.what(), fault);
        }
}

TEST(WorkbenchFleet, RangeHasItsHosts) {
    const std::tuple<const char*, size_t, const char*, const char*> kCases[] = {
        {"192.168.7.0/24", 254, "192.168.7.1", "192.168.7.254"},
        {"10.1.2.77/30", 2, "10.1.2.77", "10.1.2.78"}, // of the network 10.1.2.76
        {"10.1.255.0/20", 4094, "10.1.240.1", "10.1.255.254"},
        {"10.0.0.4/31", 2, "10.0.0.4", "10.0.0.5"},
        {"255.255.255.255/32", 1, "255.255.255.255", "255.255.255.255"},
    };
    for (const auto& [range, count, first, last] : kCases) {
        const std::vector<ListedPrinter> printers = AddressesOfRange(range);
        EXPECT_EQ(printers.size(), count) << range;
        EXPECT_EQ(printers.front().address, first);
        EXPECT_EQ(printers.back().address, last);
    }
    for (const char* range : {"10.0.0.0/19", "10.0.0.0/33", "10.0.0/24", "10.0.0.256/24", "10.0.0.0/", "1.2.3.4.5/24"})
        EXPECT_THROW(AddressesOfRange(range), Failure) << range;
}

TEST(WorkbenchFleet, MostUrgentNeedDecides) {
    const Supplies good = {Supply("Consumable2", TELMAR_STATE_PERCENT, 40),
                           Supply("Consumable3", TELMAR_STATE_PERCENT, 50)};
    const Supplies low = {Supply("Consumable2", TELMAR_STATE_PERCENT, 3), Supply("Consumable9", TELMAR_STATE_FIXED, 0)};
    const Supplies empty = {Supply("Consumable4", TELMAR_STATE_PERCENT, 0),
                            Supply("Consumable2", TELMAR_STATE_PERCENT, 3)};
    const std::string again = "ask again; workbench diagnose says why";
    const Supplies full = {Supply("Consumable11", TELMAR_STATE_LEVEL, TELMAR_LEVEL_FULL)};
    const struct {
        Supplies supplies;
        std::vector<TrayFill> trays;
        std::string words; // attention, trays, lowest supply, what was not read, what to do
        PrinterAlerts alerts = {true, {{false, "Tray A is low"}}};
    } kCases[] = {
        {good, {{"A", 500, 50}, {"B", 500, -3}, {"C", -2, 3}}, "fine||Cyan toner 40 %||"},
        {good, {{"A", 500, 49}}, "low|A low|Cyan toner 40 %||order paper for A"},
        {good, {{"A", 500, 0}, {"B", 500, 1}}, "empty|A empty, B low|Cyan toner 40 %||load A"},
        {low, {}, "low||Cyan toner 3 %, low||order Cyan toner"},
        {empty, {}, "empty||Yellow toner 0 %, empty||replace Yellow toner"},
        {full, {}, "empty||Waste toner box full||replace Waste toner box"},
        {{}, {}, "fine||||"},
        {good, {{"A", 500, {}}}, "incomplete||Cyan toner 40 %|A|" + again},
        {full, {{"A", 500, {}}}, "empty||Waste toner box full|A|replace Waste toner box"},
        {{Supply("Consumable4", TELMAR_STATE_UNKNOWN, 0)}, {}, "incomplete|||Yellow toner|" + again},
        {good, {}, "incomplete||Cyan toner 40 %|alerts|" + again, {false, {}}},
        {good, {}, "stopped||Cyan toner 40 %||see its display", {true, {{true, "jam"}}}},
        {good, {{"A", 500, 0}}, "stopped|A empty|Cyan toner 40 %||load A", {true, {{true, "jam"}}}},
    };
    for (const auto& row : kCases) {
        PrinterState state;
        Judge(row.supplies, {}, row.trays, row.alerts, state);
        EXPECT_EQ(AttentionWord(state.attention) + ("|" + state.trays) + "|" + state.lowestSupply + "|" + state.notRead
                      + "|" + state.advice,
                  row.words);
    }
    for (auto i = static_cast<int>(Outcome::kNoAddress); i <= static_cast<int>(Outcome::kOtherModel); ++i)
        EXPECT_STRNE(WordsOf(static_cast<Outcome>(i)).advice, "");
}

TEST(WorkbenchFleet, OutputIsSortedAndCsvIsQuoted) {
    FleetAnswers answers;
    for (const auto& [address, attention] : {std::pair("1", Attention::kFine),
                                             {"2", Attention::kLow},
                                             {"3", Attention::kNoAnswer},
                                             {"4", Attention::kLow},
                                             {"5", Attention::kEmpty},
                                             {"6", Attention::kOtherDevice}}) {
        answers.states.emplace_back();
        answers.states.back().address = address;
        answers.states.back().attention = attention;
    }
    answers.states[2].name = "M\u00FCller, \"left\"";
    SortByAttention(answers.states);
    std::string order;
    for (const PrinterState& state : answers.states)
        order += state.address;
    EXPECT_EQ(order, "365241");
    const std::string csv = FleetCsv(answers);
    EXPECT_EQ(csv.find("\uFEFFaddress,name,model,attention,"), 0) << "a byte order mark, then the columns";
    EXPECT_NE(csv.find("\r\n3,\"M\u00FCller, \"\"left\"\"\",,no answer,"), std::string::npos) << csv;
    EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
}

// The printers of printers.list, without the slow one.
TEST(WorkbenchFleet, ListShowsWhatNeedsAttentionFirst) {
    const Folder folder(L"workbench_fleet");
    const fs::path list = folder.path / "fleet.txt";
    WriteOutputFile(list,
                    "127.0.162.1 print shop\n127.0.162.2\n127.0.162.3\n127.0.162.5\n127.0.162.6\n127.0.162.7\n"
                    "127.0.162.8\n127.0.162.9\n127.0.162.10\n127.0.162.11\n127.0.162.12\n127.0.163.1\nno.sh.host\n"
                    "127.0.163.2\n127.0.163.3\n127.0.163.4\n127.0.163.5\n127.0.163.6\n127.0.163.7\n127.0.163.8\n"
                    "localhost\nno..host\n127.0.163.11\n",
                    "");
    const std::wstring query = L"query --list \"" + list.wstring() + L"\" ";
    const Result result = RunWorkbench(query + L"--json --threads 4");
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    const Json answers = Json::parse(result.output);
    EXPECT_EQ(answers["summary"]["answered"], 13);
    EXPECT_EQ(answers["summary"]["notAsked"], 0);
    // Without a network there is no name service. A name that is not well-formed is not sent to it.
    const SocketsStart sockets;
    addrinfo* found = nullptr;
    const bool hasNames = getaddrinfo("no.sh.host", nullptr, nullptr, &found) != WSATRY_AGAIN;
    std::string states;
    for (const Json& row : answers["printers"])
        states += row["address"].get<std::string>().substr(6) + ":" + row["state"].get<std::string>() + " ";
    EXPECT_EQ(states, "162.6:damaged answer 162.7:SNMP error 162.9:SNMP refused 162.10:no answer "
                      "162.11:other answers only host:"
                          + std::string(hasNames ? "unknown name" : "name service silent")
                          + " ost:SNMP refused st:unknown name 162.3:other model "
                            "162.8:not a printer 163.1:other model 163.7:other model 163.8:not device 1 of its host "
                            "162.2:Yellow toner is empty 163.2:Front door is open 163.3:Yellow toner is empty "
                            "163.4:Yellow toner is empty 163.5:model not answered "
                            "163.11:incomplete 162.1:fine 162.5:fine 162.12:fine 163.6:fine ");
    const auto printer = [&](const std::string& address) {
        for (const Json& row : answers["printers"])
            if (row["address"] == address)
                return row;
        return Json();
    };
    EXPECT_EQ(printer("127.0.163.1")["lowestSupply"], "Black Toner 40 %");
    EXPECT_EQ(printer("127.0.163.1")["trays"], "Large-capacity tray empty");
    EXPECT_EQ(printer("127.0.162.2")["trays"], "Tray 1 low, Tray 2 empty");
    EXPECT_EQ(printer("127.0.163.3")["trays"], "Tray 1 low, Tray 2 empty") << "as Counter32";
    EXPECT_EQ(printer("127.0.163.4")["notRead"], "Tray 1, Tray 2");
    EXPECT_EQ(printer("127.0.163.11")["notRead"], "Duplex unit, large-capacity tray, if it has one");
    EXPECT_EQ(printer("127.0.162.1")["name"], "print shop");
    EXPECT_EQ(RunWorkbench(query + L"--csv").output.find("\uFEFFaddress,name,"), 0);

    const Result scan = RunWorkbench(L"query --list 127.0.162.8/29 --json");
    EXPECT_EQ(Json::parse(scan.output)["summary"]["unusedAddresses"], 1) << "10";
    EXPECT_EQ(Json::parse(scan.output)["summary"]["refused"], 3) << "9, 13 and 14";
    const Result unreachable = RunWorkbench(L"query --list 255.255.255.255/32");
    EXPECT_NE(unreachable.output.find("No request could be sent"), std::string::npos) << unreachable.output;
    EXPECT_EQ(RunWorkbench(L"query --list 127.0.163.1/32").exitCode, 0) << "all have answered";
    EXPECT_EQ(RunWorkbench(L"query --list 127.0.163.11/32").exitCode, 1) << "not everything was answered";
    ExpectFailure(L"query --list 127.0.0.0/8", 2, "127.0.0.0/8.*from /20");
    ExpectFailure(L"query --list x --threads 0", 2, "--threads");
    ExpectFailure(L"query --list nowhere.txt", 2, "--list.*nowhere.txt.*range");
    ExpectFailure(L"query --list 127.0.162.1", 2, "is one address.*127.0.162.1/32");
    ExpectFailure(L"query --list \"" + folder.path.wstring() + L"\"", 2, "is a folder");
    ExpectFailure(query + L"--csv --json", 2, "--json");
}

// Ctrl+C while the second printer, which is slow, is being asked.
TEST(WorkbenchFleet, InterruptKeepsWhatHasCome) {
    const Folder folder(L"workbench_interrupt");
    const fs::path list = folder.path / "fleet.txt";
    WriteOutputFile(list, "127.0.162.4\n127.0.162.2\n", "");
    const FamilyFiles family = OpenFamilyFiles({});
    std::thread key([] {
        Sleep(2000); // milliseconds; the other one has answered
        EXPECT_TRUE(NoteInterrupt());
    });
    const CommandResult result = AskFleet(family, {list.u8string(), kDefaultThreads, false});
    key.join();
    EXPECT_FALSE(NoteInterrupt()) << "a second one must end the program";
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.document["summary"]["notAsked"].Integer(), 1);
    ASSERT_EQ(result.document["printers"].Elements().size(), 1);
    EXPECT_EQ(result.document["printers"].Elements()[0]["address"].Text(), "127.0.162.2");
    while (IsAnyJobRunning())
        Sleep(50);
}

} // namespace

// `workbench query` in words, for one printer and for a list: what is said of supplies, trays and devices of another
// model, the readers of lists, the order and forms of the output, and a run over all simulated printers.
#include "tools/workbench/workbench_run.h"
#include "workbench/commands/commands.h"
#include "workbench/fleet/fleet_forms.h"
#include "workbench/fleet/fleet_run.h"
#include "workbench/lib/files.h"
#include "workbench/lib/printer_identity.h"
#include "workbench/lib/running_jobs.h"
#include "workbench/lib/supply_words.h"

#include <thread>

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
}

TEST(WorkbenchFleet, ListFaultsAreReportedTogether) {
    const std::vector<ListedPrinter> printers =
        ParsePrinterList("# printers\n\n 10.0.0.1\tThird floor # left\r\nprn-2.example.com\n10.0.0.2 B#2", "fleet.txt");
    ASSERT_EQ(printers.size(), 3);
    EXPECT_EQ(printers[0].address + "|" + printers[0].name, "10.0.0.1|Third floor");
    EXPECT_EQ(printers[1].address + "|" + printers[1].name, "prn-2.example.com|");
    EXPECT_EQ(printers[2].name, "B#2") << "not a comment";
    try {
        ParsePrinterList("10.0.0.1\n  10.0.0.300\nfe80::1\n\u00FC;a\nprn;2 x\n10.0.0.1\n10.0.0.0/24\n", "f");
        FAIL() << "accepted";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.exitCode, kExitUsage);
        const std::string faults = failure.what();
        for (const char* fault :
             {"f:2:3: '10.0.0.300' is no IPv4 address: expected four numbers from 0 to 255",
              "f:3:1: 'fe80::1' is an IPv6", "f:4:2: ", "f:5:4: a host name can't have the character ';'",
              "f:6:1: 10.0.0.1 is already in line 1", "f:7:1: '10.0.0.0/24' is a range"})
            EXPECT_NE(faults.find(fault), std::string::npos) << fault << "\n" << faults;
        EXPECT_EQ(std::count(faults.begin(), faults.end(), '\n'), 5) << faults;
    }
    EXPECT_THROW(ParsePrinterList("# none\n", "f"), Failure);
    EXPECT_THROW(ParsePrinterList({"1\0.\0", 4}, "f"), Failure) << "UTF-16";
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
    const Supplies full = {Supply("Consumable11", TELMAR_STATE_LEVEL, TELMAR_LEVEL_FULL)};
    const struct {
        const Supplies& supplies;
        std::vector<TrayFill> trays;
        const char* words; // attention, trays, lowest supply, what to do
    } kCases[] = {
        {good, {{"A", 500, 50}, {"B", 500, -3}, {"C", -2, 3}}, "fine||Cyan toner 40 %|"},
        {good, {{"A", 500, 49}}, "low|A low|Cyan toner 40 %|order paper for A"},
        {good, {{"A", 500, 0}, {"B", 500, 1}}, "empty|A empty, B low|Cyan toner 40 %|load A"},
        {low, {}, "low||Cyan toner 3 %, low|order Cyan toner"},
        {empty, {}, "empty||Yellow toner 0 %, empty|replace Yellow toner"},
        {full, {}, "empty||Waste toner box full|replace Waste toner box"},
        {{}, {}, "fine|||"},
    };
    for (const auto& row : kCases) {
        PrinterState state;
        Judge(row.supplies, {}, row.trays, state);
        EXPECT_EQ(AttentionWord(state.attention) + ("|" + state.trays) + "|" + state.lowestSupply + "|" + state.advice,
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
    EXPECT_EQ(csv.find("address,name,model,attention,"), 0);
    EXPECT_NE(csv.find("\r\n3,\"M\u00FCller, \"\"left\"\"\",,no answer,"), std::string::npos) << csv;
    EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
}

// The printers of printers.list, without the slow one.
TEST(WorkbenchFleet, ListShowsWhatNeedsAttentionFirst) {
    const Folder folder(L"workbench_fleet");
    const fs::path list = folder.path / "fleet.txt";
    WriteOutputFile(list,
                    "127.0.162.1 print shop\n127.0.162.2\n127.0.162.3\n127.0.162.5\n127.0.162.6\n127.0.162.7\n"
                    "127.0.162.8\n127.0.162.9\n127.0.162.10\n127.0.162.11\n127.0.162.12\n127.0.163.1\nno.sh.host\n",
                    "");
    const std::wstring query = L"query --list \"" + list.wstring() + L"\" ";
    const Result result = RunWorkbench(query + L"--json --threads 4");
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    const Json answers = Json::parse(result.output);
    EXPECT_EQ(answers["summary"]["answered"], 6);
    EXPECT_EQ(answers["summary"]["notAsked"], 0);
    std::string states;
    for (const Json& row : answers["printers"])
        states += row["address"].get<std::string>().substr(6) + ":" + row["state"].get<std::string>() + " ";
    EXPECT_EQ(states, "162.6:damaged answer 162.7:SNMP error 162.9:SNMP refused 162.10:no answer "
                      "162.11:other answers only host:unknown name 162.3:other model 162.8:not a printer "
                      "163.1:other model 162.2:empty 162.1:fine 162.5:fine 162.12:fine ");
    EXPECT_EQ(answers["printers"][8]["lowestSupply"], "Black Toner 40 %");
    EXPECT_EQ(answers["printers"][8]["trays"], "Large-capacity tray empty");
    EXPECT_EQ(answers["printers"][9]["trays"], "Tray 1 low, Tray 2 empty");
    EXPECT_EQ(answers["printers"][10]["name"], "print shop");
    EXPECT_EQ(RunWorkbench(query + L"--csv").output.find("address,name,"), 0);

    const Result scan = RunWorkbench(L"query --list 127.0.162.8/29 --json");
    EXPECT_EQ(Json::parse(scan.output)["summary"]["unusedAddresses"], 4) << "9, 10, 13 and 14";
    EXPECT_EQ(RunWorkbench(L"query --list 127.0.163.1/32").exitCode, 0) << "all have answered";
    ExpectFailure(L"query --list 127.0.0.0/8", 2, "127.0.0.0/8.*from /20");
    ExpectFailure(L"query --list x --threads 0", 2, "--threads");
    ExpectFailure(L"query --list nowhere.txt", 1, "nowhere.txt.*--list");
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

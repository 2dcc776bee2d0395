// What the workbench finds out about faulty printers, and the traffic that it shows. The printers are those of
// faulty_printers.list.
#include "workbench/diagnosis/observations.h"
#include "workbench_run.h"

#include <future>
#include <regex>
#include <thread>
#include <winsock2.h>

namespace {

struct FaultCase {
    const char* printer;  // 127.0.164.N, or a whole address
    const char* findings; // words of the document, in its order
    bool isReached;       // by the driver
    const char* sentence; // regular expression of the first one
};

// clang-format off
constexpr FaultCase kFaultCases[] = {
    {"1",  "",                 true,  ""},
    {"2",  "silent",           false, "has answered none of \\d+ requests in \\d+ s.*tovask and public"},
    {"3",  "lateStart",        true,  "^The first 3 requests had no answer, all later ones had"},
    {"27", "lateStart",        true,  "^The first 1\\d requests had no answer, all later ones had"},
    {"28", "loss",             true,  "are lost: [4-7]\\d % \\(\\d+ of \\d+ requests"},
    {"4",  "silentObjects",    true,  "never to requests for \\.1\\.3\\.6\\.1\\.4.*47913.* 1 more.*: overlays\\."},
    {"5",  "silentObjects",    false, "never to requests for sysObjectID\\.0, .*: reaching the printer\\.$"},
    {"6",  "loss",             true,  "are lost: (1\\d|2\\d|3[0-5]) % \\(\\d+ of \\d+ requests"},
    {"7",  "slow",             true,  "take long: 2\\d\\d ms as a rule"},
    {"8",  "slow",             false, "take long: 3\\d\\d\\d ms as a rule"},
    {"9",  "slow",             true,  "Some answers take long: up to \\d+ ms \\(prtMarkerSupplies.* 7 more"},
    {"10", "duplicates",       true,  "arrive more than once: (\\d+) of \\1\\.$"},
    {"11", "stale",            false, "answers to requests that were not made"},
    {"12", "stale",            true,  "^\\d answers to requests .*\\(hrStorageSize\\.1 and hrStorageSize\\.2\\)"},
    {"13", "changedCommunity", true,  "another community than the requests: not-tovask instead of tovask \\(all"},
    {"14", "otherPort",        false, "another port than the one asked: UDP port \\d+ instead of 161 \\(all"},
    {"15", "otherPort",        true,  "another port .*\\(only hrStorageSize\\.1 and hrStorageSize\\.2\\)"},
    {"16", "otherAddress",     false, "another address .*: 127\\.255\\.255\\.254 instead of 127\\.0\\.164\\.16 \\(all"},
    {"17", "cut",              false, "incomplete: 2\\d of 5\\d bytes \\(all"},
    {"18", "cut",              false, "incomplete: 0 bytes \\(all"},
    {"19", "malformed",        false, "damaged: the community at byte 5 takes 129 bytes, but only \\d\\d are "},
    {"20", "malformed",        true,  "damaged: .*\\(only prtMediaPathMaxSpeedPrintUnit\\.1\\.2\\)"},
    {"21", "errorStatus",      true,  "genErr, SNMP error status 5 \\(all"},
    {"22", "errorStatus",      true,  "noSuchName, SNMP error status 2 \\(all"},
    {"23", "errorStatus",      true,  "authorizationError, SNMP error status 16 \\(only prtMarkerSupplies"},
    {"24", "numberType",       true,  "not sent as INTEGER, but as Counter32 \\(hrStorageSize\\.1"},
    {"25", "otherCommunity",   false, "answers the community public, but not tovask"},
    {"26", "otherVersion",     false, "answers SNMPv2c only, not SNMPv1"},
    {"99", "closed",           false, "is on, but refuses SNMP requests: UDP port 161 is closed"},
    {"30", "notAPrinter",      true,  "not a printer"},
    {"33", "notAPrinter",      false, "not a printer"},
    {"34", "unusableValues",   true,  "can't use what the printer reports about Memory\\.$"},
    {"37", "stopped",          true,  "has stopped: Front door is open\\.$"},
    {"31", "otherModel otherSupplies missingValues", true, "calls itself 'Halden M410', not 'QUORVANE lumora R880'"},
    {"32", "otherModel",       true,  "calls itself 'QUORVANE Lumora R880', not 'QUORVANE lumora R880'"},
    {"38", "otherDevice otherModel", true, "is device 3 of its host"},
    {"39", "unknownModel",     true,  "has not answered what model it is"},
    {"40", "wrongType",        true,  "type that the driver can't use: NULL"},
    {"41", "otherVersion otherCommunity stopped", false, "SNMPv2c only"},
    {"42", "unreadAlerts",     true,  "alerts were not read"},
    {"nowhere..invalid", "unknownHost", false, "no device with the name nowhere\\.\\.invalid"},
    {"::1", "ipv6Only",        false, "IPv6 addresses only: ::1"},
    {"[fe80::1%9]", "ipv6Only", false, "IPv6 addresses only"},
    {"255.255.255.255", "noRoute", false, "No request could be sent"},
};
// clang-format on

constexpr const char* kNotes =
    "|duplicates|changedCommunity|numberType|unknownModel|unreadAlerts"; // with these the driver is fine

std::wstring AddressOf(const std::string& printer) {
    const std::string address = printer.size() < 3 ? "127.0.164." + printer : printer;
    return {address.begin(), address.end()};
}

// A busy machine makes any printer slow.
std::string Findings(const Json& diagnosis, const FaultCase& fault) {
    std::string words;
    for (const Json& finding : diagnosis["findings"]) {
        const std::string word = finding["finding"];
        if (word != "slow" || std::string(fault.findings) == "slow")
            words += (words.empty() ? "" : " ") + word;
        EXPECT_NE(finding["driver"], "");
        EXPECT_NE(finding["action"], "");
    }
    return words;
}

void ExpectDiagnosis(const FaultCase& fault, const Result& result) {
    SCOPED_TRACE(fault.printer);
    const Json diagnosis = Json::parse(result.output, nullptr, false);
    ASSERT_TRUE(diagnosis.is_object()) << result.output << result.errors;
    EXPECT_EQ(Findings(diagnosis, fault), fault.findings);
    EXPECT_EQ(result.exitCode, std::regex_match(fault.findings, std::regex(kNotes)) ? 0 : 1);
    EXPECT_EQ(diagnosis["driver"].is_object() && diagnosis["driver"]["reached"], fault.isReached);
    if (!diagnosis["findings"].empty()) {
        const std::string sentence = diagnosis["findings"][0]["what"];
        EXPECT_TRUE(std::regex_search(sentence, std::regex(fault.sentence))) << sentence;
        const std::string effect = diagnosis["findings"][0]["driver"];
        EXPECT_EQ(std::regex_search(effect, std::regex("unreachable\\.|no address")), !fault.isReached) << effect;
    }
}

// Each takes some seconds, in which it mostly waits.
TEST(Diagnosis, FaultIsNamed) {
    constexpr size_t kAtOnce = 8;
    std::vector<std::future<Result>> runs;
    for (size_t i = 0; i < std::size(kFaultCases) + kAtOnce; ++i) {
        if (i >= kAtOnce)
            ExpectDiagnosis(kFaultCases[i - kAtOnce], runs[i - kAtOnce].get());
        if (i < std::size(kFaultCases))
            runs.push_back(std::async(std::launch::async, RunWorkbench,
                                      L"diagnose --json " + AddressOf(kFaultCases[i].printer), ProductFolder()));
    }
}

// Whether a text has all these parts in this order. A regular expression that skips as much would need more stack than
// a program has.
bool HasInOrder(const std::string& text, const std::vector<const char*>& parts) {
    size_t at = 0;
    for (const char* part : parts)
        if ((at = text.find(part, at)) == std::string::npos)
            return false;
    return true;
}

TEST(Diagnosis, PageGoesFromThePrinterToWhatToDo) {
    const Result inOrder = RunWorkbench(L"diagnose 127.0.164.1");
    EXPECT_EQ(inOrder.errors, "");
    EXPECT_TRUE(HasInOrder(inOrder.output, {"Printer\n", "\nNetwork\n", "\nDevice\n", "\nObjects ", "\nDriver\n",
                                            "\nOptions ", "\nSupplies ", "\nWhat to do\n"}))
        << inOrder.output;
    EXPECT_EQ(inOrder.output.find("Printer\n"), 0u);
    EXPECT_TRUE(std::regex_search(inOrder.output, std::regex("\n  hrStorageSize\\.2 +Hard disk +INTEGER 250000 +\\d")));
    EXPECT_TRUE(std::regex_search(inOrder.output, std::regex("\n  Cyan toner +83 %\n")));
    const Result faulty = RunWorkbench(L"diagnose 127.0.164.13");
    EXPECT_TRUE(HasInOrder(faulty.output, {"no fault has been found.\n\nNotes (1)\n  1. Answers have ",
                                           "\n     Driver: None: ", "\n     To do:  "}))
        << faulty.output;
}

// What was not answered, or does not exist, is not shown as a number or a text of the device.
TEST(Diagnosis, PageSaysWhatIsMissing) {
    const Json unanswered = Json::parse(RunWorkbench(L"diagnose --json 127.0.164.4").output)["driver"];
    EXPECT_EQ(unanswered["failedQueries"], Json({"overlays"}));
    EXPECT_EQ(unanswered["overlays"], nullptr);
    EXPECT_EQ(unanswered["profiles"], 0);
    const std::string hub = RunWorkbench(L"diagnose 127.0.164.33").output;
    EXPECT_TRUE(std::regex_search(hub, std::regex("\n  Serial number +none\n  System description +\\[31mHub   7\n")))
        << hub;
    const Json unsent = Json::parse(RunWorkbench(L"diagnose --json 255.255.255.255").output)["network"];
    EXPECT_EQ(unsent["requests"], 0);
}

// Answers that take 60 ms. How long the driver waits depends on the computer.
TEST(Diagnosis, SlownessIsAFindingOnlyIfTheDriverRepeats) {
    const Json diagnosis = Json::parse(RunWorkbench(L"diagnose --json 127.0.164.35").output);
    EXPECT_GE(diagnosis["network"]["medianMs"], 60);
    EXPECT_EQ(diagnosis["findings"].empty(), diagnosis["driver"]["repeatedRequests"] == 0) << diagnosis;
}

// Answers each request with the request itself. Wine binds no loopback address but 127.0.0.1.
struct Echo {
    Echo() {
        sockaddr_in own = {};
        own.sin_family = AF_INET;
        own.sin_port = htons(kSnmpPort);
        own.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(bind(handle, reinterpret_cast<const sockaddr*>(&own), sizeof(own)), 0);
        thread = std::thread([this] {
            char bytes[512];
            sockaddr_in from = {};
            int size = sizeof(from);
            for (int count = 0; count >= 0; size = sizeof(from)) {
                count = recvfrom(handle, bytes, sizeof(bytes), 0, reinterpret_cast<sockaddr*>(&from), &size);
                sendto(handle, bytes, count, 0, reinterpret_cast<const sockaddr*>(&from), size);
            }
        });
    }
    ~Echo() {
        closesocket(handle);
        thread.join();
    }
    const SocketsStart sockets;
    const SOCKET handle = socket(AF_INET, SOCK_DGRAM, 0);
    std::thread thread;
};

TEST(Diagnosis, EchoIsNoAnswer) {
    const Echo echo;
    ExpectDiagnosis({"127.0.0.1", "otherMessages", false, "no answers: \\d+, the first one GetRequest sysObjectID\\.0"},
                    RunWorkbench(L"diagnose --json 127.0.0.1"));
}

TEST(Diagnosis, ExchangeEndsAtItsLimit) {
    Exchange exchange(inet_addr("127.0.164.2"), 300, [](const char*) {});
    EXPECT_EQ(exchange.AskOne({DriverAccess(), OidOf(kAgentObject)}), nullptr);
    exchange.Listen(1000);
    EXPECT_NEAR(exchange.Now(), 400, 100);
}

Json TraceOf(const std::wstring& printer, int exitCode) {
    const Result result = RunWorkbench(L"query --trace --json " + printer);
    EXPECT_EQ(result.exitCode, exitCode) << result.errors;
    return Json::parse(result.output);
}

// The rows of the traffic for a question; what the driver made of them comes first.
Json TrafficFor(const Json& document, const char* question) {
    for (const Json& group : document["trace"])
        if (group["question"] == question)
            return {group["driver"], Pick(group["traffic"], "request"), Pick(group["traffic"], "answer")};
    return nullptr;
}

TEST(Diagnosis, TraceShowsTrafficByQuestion) {
    const Json document = TraceOf(L"127.0.164.1", 0);
    EXPECT_EQ(TrafficFor(document, "access"),
              Json({"reached", {"GetRequest sysObjectID.0"}, {"OBJECT IDENTIFIER .1.3.6.1.4.1.47913.1.1.1.1"}}));
    // The module asks again for each amount of memory that it knows: 1024 MB is the eighth.
    const Json memory = TrafficFor(document, "option OpMemory");
    EXPECT_EQ(memory[0], "1024 MB");
    EXPECT_EQ(memory[1], Json(std::vector<std::string>(8, "GetRequest hrStorageSize.1")));
    EXPECT_EQ(memory[2], Json(std::vector<std::string>(8, "INTEGER 1024")));
    EXPECT_EQ(TrafficFor(document, "supply Consumable2"),
              Json({"83 %",
                    {"GetRequest prtMarkerSuppliesMaxCapacity.1.1", "GetRequest prtMarkerSuppliesLevel.1.1"},
                    {"INTEGER 100", "INTEGER 83"}}));
    EXPECT_EQ(document["options"][1]["answer"], "EnaOpHDD"); // the answers of the query are there, too
    const std::string text = RunWorkbench(L"query --trace 127.0.164.1").output;
    EXPECT_TRUE(std::regex_search(text, std::regex("\n  Hard disk: Installed\n +\\d+\\.\\d\\d ms  GetRequest "
                                                   "hrStorageSize\\.2 -> INTEGER 250000 \\(\\d+\\.\\d\\d ms\\)\n")))
        << text;
}

TEST(Diagnosis, TraceShowsWhyAQueryFails) {
    const Json unresponsive = TraceOf(L"127.0.164.14", 1);
    EXPECT_EQ(Pick(unresponsive["trace"], "question"), Json({"access", "(workbench)"}));
    EXPECT_EQ(unresponsive["trace"][0]["driver"], "not reached");
    const Json request = unresponsive["trace"][0]["traffic"][0];
    EXPECT_EQ(request["answer"], "no answer");
    EXPECT_EQ(request["sends"], 5);
    EXPECT_EQ(request["sentAtMs"].size(), 5u);
    EXPECT_GT(request["sentAtMs"][4], request["sentAtMs"][3]);
    EXPECT_NE(unresponsive["failure"].get<std::string>().find("127.0.164.14 does not answer"), std::string::npos);
    const Json cut = TraceOf(L"127.0.164.17", 1)["trace"][0]["traffic"][0];
    EXPECT_TRUE(std::regex_match(cut["answer"].get<std::string>(), std::regex("cut: 2\\d of 5\\d bytes")));
    // The driver takes a switch for a printer: it is a request of the workbench that decides.
    const Json decided = TraceOf(L"127.0.164.30", 1);
    EXPECT_EQ(decided["trace"][0]["driver"], "reached");
    EXPECT_EQ(decided["trace"][1]["question"], "(workbench)");
    EXPECT_EQ(decided["trace"][1]["traffic"][1]["request"], "GetRequest prtInputType.1.1");
    EXPECT_EQ(decided["trace"][1]["traffic"][1]["answer"], "noSuchName");
    // What was read before and after a failed query keeps what the driver made of it.
    const Json partial = TraceOf(L"127.0.164.4", 1);
    EXPECT_EQ(TrafficFor(partial, "option OpMemory")[0], "512 MB");
    EXPECT_EQ(TrafficFor(partial, "overlays")[0], "the query has failed");
    EXPECT_EQ(TrafficFor(partial, "profiles")[0], "0 in all lists");
    // The time of an answer that takes 200 ms counts from the first request, not from a repeated one.
    const Json slow = Json::parse(RunWorkbench(L"query --trace --json 127.0.164.7").output);
    EXPECT_GT(slow["trace"][0]["traffic"][0]["sends"], 1);
    EXPECT_GE(slow["trace"][0]["traffic"][0]["tookMs"], 190);
    const Json stale = TraceOf(L"127.0.164.12", 0);
    for (const Json& group : stale["trace"])
        EXPECT_EQ(group["traffic"][0]["skipped"].size(),
                  group["question"] == "option OpMemory" || group["question"] == "option OpHDD" ? 2u : 0u);
}

// An answer for sysObjectID.0 with the number 5. Offsets: community 5, PDU 13, error-status 19, variable bindings 25
// and 27, object 29, value 39.
const std::string
    kAnswer("\x30\x28\x02\x01\x00\x04\x06tovask\xA2\x1B\x02\x02\x01\x01\x02\x01\x00\x02\x01\x00\x30\x0F\x30\x0D"
            "\x06\x08\x2B\x06\x01\x02\x01\x01\x02\x00\x02\x01\x05",
            42);

TEST(SnmpMessageText, DamageIsNamedWithItsPlace) {
    struct Change {
        size_t offset;
        int byte;
        const char* text;
    };
    // clang-format off
    constexpr Change kChanges[] = {
        {41, 0xFF, "INTEGER -1"},
        {39, 0x41, "Counter32 5"},
        {39, 0x99, "type 0x99"},
        {21, 5,    "genErr"},
        {4,  3,    "SNMPv3 message"},
        {0,  0x31, "damaged: a message is expected at byte 0, but there is an element of type 49"},
        {6,  0x7F, "damaged: the community at byte 5 takes 129 bytes, but only 37 are left"},
        {14, 0x1C, "damaged: the PDU at byte 13 takes 30 bytes, but only 29 are left"},
        {29, 0x04, "damaged: the object is expected at byte 29, but there is an element of type 4"},
        {28, 0x0A, "damaged: the value at byte 39 is missing"},
        {38, 0x80, "damaged: the object is not a valid object identifier"},
        {40, 0,    "damaged: the value is a number of 0 bytes"},
        {40, 0x85, "damaged: the value at byte 39 has no valid length"},
    };
    // clang-format on
    EXPECT_EQ(AnswerText(ReadSnmpMessage(kAnswer)), "INTEGER 5");
    for (const Change& change : kChanges) {
        std::string datagram = kAnswer;
        datagram[change.offset] = static_cast<char>(change.byte);
        EXPECT_EQ(AnswerText(ReadSnmpMessage(datagram)), change.text) << change.offset;
    }
    for (size_t size = 0; size < kAnswer.size(); ++size) {
        const SnmpMessage cut = ReadSnmpMessage(std::string_view(kAnswer).substr(0, size));
        EXPECT_EQ(cut.damage, Damage::kCut) << size;
        EXPECT_EQ(cut.hasRequestId, size >= 19) << size;
        EXPECT_EQ(cut.requestId, size >= 19 ? 257u : 0u) << size;
    }
}

} // namespace

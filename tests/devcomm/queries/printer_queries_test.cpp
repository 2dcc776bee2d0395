// The printer queries over a scripted device: sessions, refusals, comparisons, options and supplies. What is
// asked, in which order, and what the caller gets.
#include "base/records.h"
#include "base/text.h"
#include "devcomm/queries/object_reader.h"
#include "devcomm/queries/query_catalogue.h"
#include "devcomm/queries/scripted_device.h"
#include "support/raw_bytes.h"

#include <climits>
#include <gtest/gtest.h>
#include <sstream>
#include <tuple>

namespace {

using Texts = std::vector<std::string>;

constexpr DWORD kUntouched = 777; // a last error that no function sets
const std::string kSysObjectId = ".1.3.6.1.2.1.1.2.0";
const std::string kMemory = ".1.3.6.1.2.1.25.2.3.1.5.1";
const std::string kHardDisk = ".1.3.6.1.2.1.25.2.3.1.5.2";
const std::string kInTray = ".1.3.6.1.2.1.43.8.2.1.2.1.";
const std::string kDuplex = ".1.3.6.1.2.1.43.13.4.1.2.1.2";
const std::string kCapacity = ".1.3.6.1.2.1.43.11.1.1.8.1.";
const std::string kLevel = ".1.3.6.1.2.1.43.11.1.1.9.1.";
const Answer kNull = {ASN_NULL};

constexpr uint8_t kBefore = 0xEE; // fills the answers of items beforehand

// A caller's item with this key, and garbage after its terminator.
template <typename Item>
Item ItemOf(const std::string& key) {
    Item item;
    memset(&item, kBefore, sizeof(item));
    memcpy(&item, key.c_str(), key.size() < 32 ? key.size() + 1 : 32);
    return item;
}

// --- Sessions and refusals.

OptionRequestItem option;
MrkSupRequestItem supply;

// Whether there was a block.
bool Release(void* block) {
    MIB_FreeOverlayInfo(block);
    return block != nullptr;
}

// Each gives whether the answer is TRUE or a block. The model is not asked for: the check is off.
using Query = bool (*)(const char* agent);
const Query kAccess = [](const char* agent) { return MIB_IsAccessOK(agent) != FALSE; };
const Query kModel = [](const char* agent) { return MIB_IsModelOK(agent) != FALSE; };
const Query kAsking[] = {
    kAccess,
    [](const char* agent) { return MIB_OptionRequest(agent, 1, &option) != FALSE; },
    [](const char* agent) { return MIB_MrkSupRequest(agent, 1, &supply) != FALSE; },
    [](const char* agent) { return Release(MIB_OverlayRequest(agent, 0)); },
    [](const char* agent) { return Release(MIB_ProfileRequest(agent)); },
};

// A query that must fail, with this last error and the items as they were.
void ExpectRefusal(Query query, const char* agent, DWORD lastError) {
    option = ItemOf<OptionRequestItem>("OpHDD");
    supply = ItemOf<MrkSupRequestItem>("Consumable2");
    const auto optionBefore = option;
    const auto supplyBefore = supply;
    SetLastError(kUntouched);
    EXPECT_FALSE(query(agent));
    EXPECT_EQ(GetLastError(), lastError);
    EXPECT_EQ(memcmp(&option, &optionBefore, sizeof(option)), 0);
    EXPECT_EQ(memcmp(&supply, &supplyBefore, sizeof(supply)), 0);
}

TEST(PrinterQueries, EachQueryOpensAndClosesASession) {
    for (const Query query : kAsking) {
        ScriptedDevice device;
        device.answers[kSysObjectId] = kNull;
        option = ItemOf<OptionRequestItem>("OpHDD");
        supply = ItemOf<MrkSupRequestItem>("Consumable2");
        EXPECT_TRUE(query(query == kAccess ? kAgent : ""));
        EXPECT_EQ(device.sessions, Texts{query == kAccess ? "192.0.2.7 tovask 1000 1" : " tovask 2000 3"});
        EXPECT_EQ(device.closes, 1u);
        EXPECT_FALSE(device.asked.empty());
        device.openError = 11001;
        ExpectRefusal(query, kAgent, 11001);
        EXPECT_EQ(device.closes, 1u);
    }
    ScriptedDevice device;
    EXPECT_TRUE(kModel(kAgent) && kModel(""));
    EXPECT_TRUE(device.sessions.empty());
}

TEST(PrinterQueries, WithoutAnEntryPointEveryQueryFails) {
    for (size_t slot = 0; slot < 9; ++slot) {
        SCOPED_TRACE(slot);
        ScriptedDevice device;
        memset(reinterpret_cast<char*>(&snmpEntryPoints) + slot * sizeof(void*), 0, sizeof(void*));
        for (const char* agent : {kAgent, static_cast<const char*>(nullptr)}) {
            ExpectRefusal(kModel, agent, kUntouched);
            for (const Query query : kAsking)
                ExpectRefusal(query, agent, kUntouched);
        }
        EXPECT_TRUE(device.sessions.empty());
    }
}

TEST(PrinterQueries, BadArgumentsAreRefused) {
    ScriptedDevice device;
    ExpectRefusal(kModel, nullptr, 87);
    for (const Query query : kAsking)
        ExpectRefusal(query, nullptr, 87);
    ExpectRefusal(kAccess, "", 87);
    const Query withoutItems[] = {
        [](const char* agent) { return MIB_OptionRequest(agent, 0, nullptr) != FALSE; },
        [](const char* agent) { return MIB_MrkSupRequest(agent, 0, nullptr) != FALSE; },
    };
    for (const Query query : withoutItems)
        ExpectRefusal(query, kAgent, 87);
    EXPECT_TRUE(device.sessions.empty());
    // The storage is looked at once the session is open.
    ExpectRefusal([](const char* agent) { return Release(MIB_OverlayRequest(agent, 2)); }, kAgent, 87);
    ExpectRefusal([](const char* agent) { return Release(MIB_OverlayRequest(agent, -1)); }, kAgent, 87);
    EXPECT_EQ(device.closes, 2u);
    EXPECT_EQ(device.asked, Texts());
}

TEST(PrinterQueries, AnyAnswerIsAccess) {
    for (const Answer& answer : {Oid({1, 3, 6, 1}), kNull.With(2, 1), kNull.With(5, 0), Number(1).With(0, 3)}) {
        ScriptedDevice device;
        device.answers[kSysObjectId] = answer;
        EXPECT_EQ(MIB_IsAccessOK(kAgent), TRUE);
        EXPECT_EQ(device.asked, Texts{kSysObjectId});
    }
    ScriptedDevice device;
    device.failingRequest = 1;
    SetLastError(kUntouched);
    EXPECT_EQ(MIB_IsAccessOK(kAgent), FALSE);
    EXPECT_EQ(GetLastError(), kRequestError);
}

// --- Comparisons, by model checks of the test's own.

TEST(PrinterQueries, ObjectsMatchByTheirKindOfComparison) {
    const std::string x255(255, 'x');
    const Answer none = Failing(kRequestError);
    using Answers = std::vector<Answer>;
    const std::tuple<int32_t, const char*, Answers, Answers> cases[] = {
        // kind, expected text, answers that match, others
        // clang-format off
        {0, "5", {kNull, Number(6), kNull.With(0, 7)},
         {Number(5).With(2, 0), Number(5).With(0x100, 0), Number(5).With(0x10000, 0),
          Number(5).With(INT_MIN, 0), none}},
        {1, "640", {Number(640), Number(640, 0x41), Number(640, 0x42), Number(640, 0x43), Number(640, 0x47)},
         {Number(640, 0x45), Number(640, 0x46), Number(640, 0x05), Text("640"), Number(641), Number(0x10280),
          none, Number(640).With(0, 1), Number(640).With(0x10000, 0)}},
        {1, "  +640", {Number(640)}, {Number(0)}}, {1, " -5", {Number(-5)}, {Number(5)}},
        {1, "-2147483648", {Number(INT_MIN)}, {}},
        {2, "Ab", {Text("Ab"), Text("Ab", 0x03), Text("Ab", 0x30), Text("Ab", 0x40), Text("Ab", 0x44),
          Text({"Ab\0c", 4})},
         {Text("ab"), Text("A"), Text("Abc"), Text("Ab").With(0, 1), Text("Ab").With(1, 0), none}},
        {2, "", {Text(""), Text({"\0c", 2})}, {Number(0), kNull, Oid({1, 3}), Text(" ")}},
        {2, x255.c_str(), {Text(x255), Text(x255 + "y")}, {Text(x255.substr(1)), Text(x255.substr(1) + "y")}},
        {3, ".1.3.47913", {Oid({1, 3, 47913})}, {Oid({1, 3}), Oid({1, 3, 47913, 0}), Oid({1, 3, 4791}), none}},
        {3, "1.3", {Oid({1, 3})}, {Oid({1, 33}), Oid({1}), Text("1.3"), Oid({1, 3}).With(0, 1),
          Oid({1, 3}).With(1, 0)}},
        {3, "..1.3", {}, {Oid({1, 3}), Oid({0, 1, 3})}}, {3, "1.3.", {}, {Oid({1, 3}), Oid({1, 3, 0})}},
        {3, "1..3", {}, {Oid({1, 3}), Oid({1, 0, 3})}}, {3, "1.3x", {}, {Oid({1, 3})}},
        {3, "1.-3", {}, {Oid({1, 3}), Oid({1, static_cast<UINT>(-3)})}},
        {3, "1.4294967295", {Oid({1, UINT_MAX})}, {}}, {3, "1.18446744073709551617", {}, {Oid({1, 1})}},
        {3, "1.4294967297", {}, {Oid({1, 1})}},
        {4, "640", {}, {Number(640)}}, {-1, "640", {}, {Number(640)}}, {256, "", {}, {kNull}},
        // clang-format on
    };
    const auto expect = [](ModelCheckInfo& check, const Answers& answers, BOOL matches) {
        for (const Answer& answer : answers) {
            SCOPED_TRACE(testing::Message() << check.comparison << ", " << check.expected << ", type " << +answer.type);
            ScriptedDevice device;
            device.answers[kMemory] = device.answers[kHardDisk] = answer;
            for (const std::string& object : {kMemory, kHardDisk}) { // a reply in another list, and one in place
                CopyText(check.oid, object.c_str());
                EXPECT_EQ(CheckModel(check, kAgent), matches);
            }
            EXPECT_EQ(device.asked, Texts({kMemory, kHardDisk}));
            EXPECT_EQ(device.sessions, Texts(2, "192.0.2.7 tovask 2000 3"));
        }
    };
    for (const auto& [kind, expected, matching, others] : cases) {
        ModelCheckInfo check = {1, {}, kind, {}};
        CopyText(check.expected, expected);
        expect(check, matching, TRUE);
        expect(check, others, FALSE);
    }
}

// An OID and its suffix are cut to 255 characters.
TEST(PrinterQueries, ObjectNamesAreCutTo255Characters) {
    std::string start; // 250 characters
    for (int i = 0; i < 125; ++i)
        start += ".1";
    for (const char* suffix : {"", ".2345", ".23456", ".23456789.1"}) {
        ScriptedDevice device;
        const AgentSession session(kAgent, kQueryLimits);
        EXPECT_EQ(MatchObject(session.handle, start.c_str(), suffix, 0, ""), Match::kNo);
        EXPECT_EQ(device.asked, Texts{(start + suffix).substr(0, 255)});
        EXPECT_EQ(device.asked[0].size(), *suffix != 0 ? 255u : 250u);
    }
}

// --- Options.

// Asks for all keys at once; each item then is its key and the answer, padded with zeros.
void ExpectOptions(const Texts& keys, const Texts& values) {
    std::vector<OptionRequestItem> items;
    std::vector<RawBytes> expected;
    for (size_t i = 0; i < keys.size(); ++i) {
        items.push_back(ItemOf<OptionRequestItem>(keys[i]));
        RawBytes whole(64);
        memcpy(whole.bytes.data(), items[i].key, 32);
        expected.push_back(whole.Text(32, values[i]));
    }
    SetLastError(kUntouched);
    EXPECT_EQ(MIB_OptionRequest(kAgent, static_cast<DWORD>(items.size()), items.data()), TRUE);
    EXPECT_EQ(GetLastError(), kUntouched);
    for (size_t i = 0; i < keys.size(); ++i)
        EXPECT_EQ(Differences(&items[i], expected[i]), "") << keys[i] << ": got " << items[i].value;
}

TEST(PrinterQueries, AnOptionIsTheFirstItemWhoseObjectMatches) {
    using Answers = std::map<std::string, Answer>;
    const std::tuple<const char*, Answers, const char*, Texts> cases[] = {
        // key, answers of the device, value, objects asked
        // clang-format off
        {"OpMemory", {{kMemory, Number(640, 0x42)}}, "640MB", Texts(5, kMemory)},
        {"OpMemory", {}, "", Texts(8, kMemory)},
        {"OpMemory", {{kMemory, Number(2048)}}, "", Texts(8, kMemory)},
        {"OpMemory", {{kMemory, Failing(kRequestError)}}, "", Texts(1, kMemory)},
        {"OpHDD", {{kHardDisk, Number(0)}}, "EnaOpHDD", {kHardDisk}}, {"OpHDD", {}, "DisOpHDD", {kHardDisk}},
        {"OpHDD", {{kHardDisk, Failing(kRequestError)}}, "", {kHardDisk}},
        {"opinTRAY3", {{kInTray + "3", Text("x")}}, "EnaOpInTray3", {kInTray + "3"}},
        {"OpInTray5", {{kInTray + "3", Text("x")}}, "DisOpInTray5", {kInTray + "5"}},
        {"OpDuplex", {{kDuplex, Number(-1)}}, "EnaOpDuplex", {kDuplex}}, {"OpManualFeed", {}, "EnaOpManualFeed", {}},
        {"OpOutTray2", {}, "DisOpOutTray2", {}}, {"", {}, "", {}}, {"OpInTray", {}, "", {}}, {"OpInTray33", {}, "", {}},
        {"OpManualFeed6789012345678901234x", {}, "", {}}, // fills its 32 bytes
        // clang-format on
    };
    for (const auto& [key, answers, value, asked] : cases) {
        ScriptedDevice device;
        device.answers = answers;
        ExpectOptions({key}, {value});
        EXPECT_EQ(device.asked, asked) << key;
    }
    for (int i = 1; i <= 8; ++i) {
        const std::string tray = std::to_string(i % 5 + 1), memory = std::to_string(128 * i) + "MB";
        ScriptedDevice device;
        device.answers = {{kMemory, Number(128 * i)}, {kInTray + tray, Text("x")}};
        ExpectOptions({"OpMemory", "OpInTray" + tray}, {memory, "EnaOpInTray" + tray});
        EXPECT_EQ(device.asked.size(), static_cast<size_t>(i + 1));
    }
}

TEST(PrinterQueries, OptionsGoOnAfterOneWithoutAnswer) {
    ScriptedDevice device;
    device.answers = {{kMemory, Number(384)}, {kInTray + "1", Failing(kRequestError)}, {kDuplex, Number(1)}};
    ExpectOptions({"OpInTray1", "none", "OpMemory", "OpHDD", "OpDuplex", "OpInTray1"},
                  {"", "", "384MB", "DisOpHDD", "EnaOpDuplex", ""});
    EXPECT_EQ(device.asked, Texts({kInTray + "1", kMemory, kMemory, kMemory, kHardDisk, kDuplex, kInTray + "1"}));
    EXPECT_EQ(device.sessions.size(), 1u);
    EXPECT_EQ(MIB_OptionRequest(kAgent, 0, &option), TRUE);
    EXPECT_EQ(device.closes, 2u);
}

// --- Supplies.

// State, value and colour of each. The call leaves the last error alone.
std::string AskSupplies(const Texts& names, BOOL result = TRUE) {
    std::vector<MrkSupRequestItem> items;
    for (const std::string& name : names)
        items.push_back(ItemOf<MrkSupRequestItem>(name));
    SetLastError(kUntouched);
    EXPECT_EQ(MIB_MrkSupRequest(kAgent, static_cast<DWORD>(items.size()), items.data()), result);
    EXPECT_EQ(GetLastError(), kUntouched);
    std::ostringstream answers;
    for (const auto& item : items)
        answers << item.state << " " << item.value << " " << std::hex << item.color << std::dec << ";";
    return answers.str();
}

TEST(PrinterQueries, APercentageIsRoundedAndMustBeFrom0To100) {
    // Capacity, level and percentage; -1: none. 42949673 x 100 is 4 in 32 bits.
    const int32_t cases[][3] = {
        // clang-format off
        {1000, 333, 33}, {1000, 4, 0}, {1000, 5, 1}, {1000, 994, 99}, {1000, 995, 100},
        {1000, 1004, 100}, {1000, 1005, -1}, {1000, -4, 0}, {1000, -5, -1}, {10, -3, -1}, {3, 2, 67},
        {200, 1, 1}, {201, 1, 0}, {0, 1, 100}, {0, 0, 0}, {0, -3, 0}, {-2, 7, 100}, {-2, -2, 0},
        {INT_MAX, 1, 0}, {INT_MAX, INT_MAX, 100}, {INT_MIN, INT_MAX, 100}, {1, INT_MAX, -1},
        {INT_MAX, INT_MIN, -1}, {50, 42949673, -1},
        // clang-format on
    };
    for (const auto& [capacity, level, percentage] : cases) {
        ScriptedDevice device;
        device.answers = {{kCapacity + "1", Number(capacity)}, {kLevel + "1", Number(level, 0x42)}};
        const std::string wanted = percentage < 0 ? "0 0 0;" : "1 " + std::to_string(percentage) + " ffff00;";
        EXPECT_EQ(AskSupplies({"consumable2"}), wanted) << level << " of " << capacity;
        EXPECT_EQ(device.asked, Texts({kCapacity + "1", kLevel + "1"}));
    }
}

TEST(PrinterQueries, ALevelSaysHowFullTheWasteBoxIs) {
    const int32_t levels[][2] = {{0, 4}, {1, 3}, {2, 5}, {INT_MAX, 5}, {-3, 5}, {-1, 0}, {-2, 0}, {-4, 0}};
    for (const auto& [level, value] : levels) {
        ScriptedDevice device;
        device.answers = {{kCapacity + "8", Number(-2)}, {kLevel + "8", Number(level)}};
        EXPECT_EQ(AskSupplies({"Consumable11"}), "2 " + std::to_string(value) + " 0;") << level;
        EXPECT_EQ(device.asked, Texts({kCapacity + "8", kLevel + "8"}));
    }
}

// Both must answer with a number; whatever a supply answers, the next is asked.
TEST(PrinterQueries, ASupplyWithoutBothNumbersIsUnknown) {
    const Answer half = Number(50), whole = Number(100);
    const std::tuple<Answer, Answer, bool> cases[] = {
        // clang-format off
        {whole, half, true}, {Number(100, 0x41), Number(50, 0x43), true}, {Number(100, 0x46), half, false},
        {whole, Text("50"), false}, {Text("100"), half, false}, {whole.With(2, 0), half, false},
        {whole, half.With(0, 1), false}, {Failing(kRequestError), half, false}, {whole, Failing(kRequestError), false},
        // clang-format on
    };
    for (const auto& [capacity, level, isKnown] : cases)
        for (const bool isPercentage : {true, false}) {
            const std::string index = isPercentage ? "4" : "8";
            ScriptedDevice device;
            device.answers = {{kCapacity + index, capacity}, {kLevel + index, level}};
            device.answers.merge(std::map<std::string, Answer>{{kCapacity + "3", whole}, {kLevel + "3", half}});
            EXPECT_EQ(AskSupplies({isPercentage ? "Consumable5" : "Consumable11", "Consumable4"}),
                      std::string(!isKnown       ? "0 0 0;"
                                  : isPercentage ? "1 50 0;"
                                                 : "2 5 0;")
                          + "1 50 ffff;");
        }
}

// An unknown name ends the call; the items before keep their answers.
TEST(PrinterQueries, AnUnknownSupplyIsClearedAndEndsTheCall) {
    for (const char* unknown : {"", "Consumable", "Consumable13", "Consumable1 ", "Consumable1890123456789012345678"}) {
        ScriptedDevice device;
        EXPECT_EQ(AskSupplies({"Consumable1", "Consumable7", "CONSUMABLE12", unknown, "Consumable6"}, FALSE),
                  "0 0 0;3 0 0;3 0 0;0 0 0;-286331154 -286331154 eeeeeeee;")
            << unknown;
        EXPECT_EQ(device.asked, Texts());
        EXPECT_EQ(device.closes, 1u);
    }
}

// A text that is no OID for the entry points makes no request and no match.
TEST(PrinterQueries, TextsThatDoNotConvertMakeNoRequest) {
    ScriptedDevice device;
    device.textsConvert = false;
    EXPECT_EQ(MIB_IsAccessOK(kAgent), FALSE);
    ExpectOptions({"OpMemory", "OpHDD"}, {"", "DisOpHDD"});
    EXPECT_EQ(device.asked, Texts());
}

} // namespace

// Queries through the built DLL on the network, with printers that answer on loopback while the program runs
// (agents.list): net-snmp's agent and the simulated printer, without and with faults.
#include "product.h"
#include "support/wine.h"
#include "telmar_d.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace {

constexpr const char* kNetSnmp = "127.0.161.1";

constexpr DWORD kNoAnswer = 4102;
constexpr DWORD kMalformed = 11;
constexpr DWORD kOtherRequests = 3;

using Words = std::vector<std::string>;

Words EntriesOf(const TelmarStoredResourceList& list) {
    Words entries;
    for (const auto* entry = list.entries; entry != list.entries + list.count; ++entry)
        entries.push_back(std::string(entry->first) + " | " + entry->second + " | " + entry->storage);
    return entries;
}

// The module's export of this name, with its type.
#define EXPORT(name) module.Export<decltype(name)>(#name)

struct Query : testing::Test {
    // As in the processes that load the module, Windows Sockets stays loaded: wine's opens no socket after it
    // has been unloaded.
    static void SetUpTestSuite() { ASSERT_NE(LoadLibraryW(L"ws2_32.dll"), nullptr); }

    Words Options(const char* agent, const std::vector<const char*>& keys) const {
        Words values;
        std::vector<TelmarOptionRequestItem> items(keys.size());
        for (size_t i = 0; i < keys.size(); ++i)
            strcpy(items[i].key, keys[i]);
        EXPECT_EQ(EXPORT(MIB_OptionRequest)(agent, static_cast<DWORD>(items.size()), items.data()), TRUE);
        for (const auto& item : items)
            values.emplace_back(item.value);
        return values;
    }

    // State, value and colour of each supply, as one text.
    Words Supplies(const char* agent, const std::vector<const char*>& names) const {
        Words values;
        std::vector<TelmarMrkSupRequestItem> items(names.size());
        for (size_t i = 0; i < names.size(); ++i)
            strcpy(items[i].name, names[i]);
        EXPECT_EQ(EXPORT(MIB_MrkSupRequest)(agent, static_cast<DWORD>(items.size()), items.data()), TRUE);
        for (const auto& item : items) {
            char text[64];
            snprintf(text, sizeof(text), "%d %d %06x", int{item.state}, int{item.value}, unsigned{item.color});
            values.emplace_back(text);
        }
        return values;
    }

    Words Overlays(const char* agent, int storage) const {
        TelmarOverlayInfo* block = EXPORT(MIB_OverlayRequest)(agent, storage);
        const Words overlays = block != nullptr ? EntriesOf(block->list) : Words{"none"};
        EXPORT(MIB_FreeOverlayInfo)(block);
        return overlays;
    }

    LoadedModule module;
};

TEST_F(Query, NetSnmpAgent) {
    if (IsPacked())
        GTEST_SKIP() << "net-snmp's agent is not in the package";
    EXPECT_TRUE(EXPORT(MIB_IsAccessOK)(kNetSnmp));
    EXPECT_EQ(Options(kNetSnmp, {"OpMemory", "OpHDD", "opinTRAY3", "OpInTray2", "OpDuplex", "OpManualFeed",
                                 "OpOutTray2", "NoSuchOption"}),
              Words({"640MB", "DisOpHDD", "EnaOpInTray3", "DisOpInTray2", "DisOpDuplex", "EnaOpManualFeed",
                     "DisOpOutTray2", ""}));
    // 333 of 1000; something of nothing; a level that is no number; a capacity that is negative as 32 bits;
    // nearly full
    EXPECT_EQ(
        Supplies(kNetSnmp, {"Consumable2", "Consumable3", "Consumable4", "Consumable5", "consumable11", "Consumable7",
                            "Consumable1"}),
        Words({"1 33 ffff00", "1 100 ff00ff", "0 0 000000", "1 100 000000", "2 3 000000", "3 0 000000", "0 0 000000"}));
    EXPECT_EQ(Overlays(kNetSnmp, 0), Words({"second two | first two | OvlForm_HDD"}));
    EXPECT_EQ(Overlays(kNetSnmp, 1),
              Words({"second one | first one | OvlForm_HDD", "second three | first three | OvlForm_HDD"}));

    TelmarProfileInfo* profiles = EXPORT(MIB_ProfileRequest)(kNetSnmp);
    ASSERT_NE(profiles, nullptr);
    EXPECT_EQ(EntriesOf(profiles->lists[0]), Words({"first RGB | second RGB | internalROM"}));
    for (const int list : {1, 2})
        EXPECT_EQ(EntriesOf(profiles->lists[list]), Words({"first out | second out | Prof_Flash"}));
    EXPECT_NE(profiles->lists[1].entries, profiles->lists[2].entries) << "each list has an entry of its own";
    EXPORT(MIB_FreeProfileInfo)(profiles);
}

// A query without a usable answer fails, with the reason as the last error; nothing crashes or hangs. Other
// faults change nothing.
TEST_F(Query, Faults) {
    const std::tuple<const char*, bool, const char*, DWORD> cases[] = {
        // agent, whether it is reached, option, last error of a profile request; 0: it succeeds
        {"127.0.161.10", false, "", kNoAnswer},      // unresponsive
        {"127.0.161.11", true, "EnaOpInTray1", 0},   // answers the third attempt
        {"127.0.161.12", true, "EnaOpInTray1", 0},   // three answers to other requests first
        {"127.0.161.13", false, "", kOtherRequests}, // five of them
        {"127.0.161.14", true, "EnaOpInTray1", 0},   // another community
        {"127.0.161.15", false, "", kNoAnswer},      // from another port
        {"127.0.161.16", false, "", kMalformed},     // cut
        {"127.0.161.17", false, "", kMalformed},     // a length that leads beyond the end
        {"127.0.161.18", true, "DisOpInTray1", 0},   // error-status
        {"127.0.161.19", true, "EnaOpInTray1", 0},   // Counter where INTEGER is due
        {"127.0.161.20", true, "EnaOpInTray1", 0},   // everything twice
    };
    for (const auto& [agent, isReached, tray, lastError] : cases) {
        SCOPED_TRACE(agent);
        EXPECT_EQ(EXPORT(MIB_IsAccessOK)(agent) != FALSE, isReached);
        EXPECT_EQ(Options(agent, {"OpInTray1", "OpManualFeed"}), Words({tray, "EnaOpManualFeed"}));
        TelmarProfileInfo* profiles = EXPORT(MIB_ProfileRequest)(agent);
        EXPECT_TRUE(lastError == 0 ? profiles != nullptr : profiles == nullptr && GetLastError() == lastError);
        EXPORT(MIB_FreeProfileInfo)(profiles);
    }
    EXPECT_EQ(Options("127.0.161.19", {"OpMemory"}), Words({"512MB"})) << "of any type of number";
    EXPECT_EQ(Supplies("127.0.161.10", {"Consumable2", "Consumable7"}), Words({"0 0 000000", "3 0 000000"}));
}

} // namespace

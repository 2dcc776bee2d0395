// Queries through the exports, over the network, of agents that answer on loopback while the program runs
// (agents.list): net-snmp's own and the simulated printer, sound and with faults. The callers' records are
// laid out byte by byte, as another compiler's callers would.
#include "product.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

constexpr const char* kNetSnmp = "127.0.161.1";

constexpr DWORD kNoAnswer = 4102;
constexpr DWORD kMalformed = 11;
constexpr DWORD kOtherRequests = 3;

struct OptionItem {
    char key[32];
    char value[32];
};
static_assert(sizeof(OptionItem) == 64);

struct SupplyItem {
    char name[32];
    int32_t state;
    int32_t value;
    uint32_t color;
};
static_assert(sizeof(SupplyItem) == 44);

struct Entry {
    char first[128];
    char second[128];
    char storage[32];
};
static_assert(sizeof(Entry) == 288);

// A list of a result block: count, padding, pointer.
struct List {
    int32_t count;
    int32_t padding;
    const Entry* entries;
};
static_assert(sizeof(List) == 16);

std::string Text(const Entry& entry) {
    return std::string(entry.first) + " | " + entry.second + " | " + entry.storage;
}

std::vector<std::string> Texts(const List& list) {
    std::vector<std::string> texts;
    for (int32_t i = 0; i < list.count; ++i)
        texts.push_back(Text(list.entries[i]));
    return texts;
}

struct Query : testing::Test {
    // As in the processes that load the module, Windows Sockets stays: wine's opens no socket once it was
    // unloaded.
    static void SetUpTestSuite() { ASSERT_NE(LoadLibraryW(L"ws2_32.dll"), nullptr); }

    bool IsReached(const char* agent) const {
        return module.Export<int WINAPI(const char*)>("MIB_IsAccessOK")(agent) != 0;
    }

    std::vector<std::string> Options(const char* agent, const std::vector<const char*>& keys) const {
        std::vector<OptionItem> items(keys.size());
        for (size_t i = 0; i < keys.size(); ++i) {
            strcpy(items[i].key, keys[i]);
            memset(items[i].value, 'x', sizeof(items[i].value));
        }
        using Function = int WINAPI(const char*, DWORD, OptionItem*);
        EXPECT_EQ(module.Export<Function>("MIB_OptionRequest")(agent, static_cast<DWORD>(items.size()), items.data()),
                  TRUE);
        std::vector<std::string> answers;
        for (const OptionItem& item : items)
            answers.emplace_back(item.value, strnlen(item.value, sizeof(item.value)));
        return answers;
    }

    // State, value and colour of each supply, as one text.
    std::vector<std::string> Supplies(const char* agent, const std::vector<const char*>& names) const {
        std::vector<SupplyItem> items(names.size());
        for (size_t i = 0; i < names.size(); ++i) {
            strcpy(items[i].name, names[i]);
            items[i].state = items[i].value = -1;
        }
        using Function = int WINAPI(const char*, DWORD, SupplyItem*);
        EXPECT_EQ(module.Export<Function>("MIB_MrkSupRequest")(agent, static_cast<DWORD>(items.size()), items.data()),
                  TRUE);
        std::vector<std::string> answers;
        for (const SupplyItem& item : items) {
            char text[64];
            snprintf(text, sizeof(text), "%d %d %06x", static_cast<int>(item.state), static_cast<int>(item.value),
                     static_cast<unsigned>(item.color));
            answers.emplace_back(text);
        }
        return answers;
    }

    const List* Overlays(const char* agent, int storage) const {
        return module.Export<const List * WINAPI(const char*, int)>("MIB_OverlayRequest")(agent, storage);
    }

    const List* Profiles(const char* agent) const {
        return module.Export<const List * WINAPI(const char*)>("MIB_ProfileRequest")(agent);
    }

    void Free(const List* block) const { module.Export<void WINAPI(const void*)>("MIB_FreeProfileInfo")(block); }

    LoadedModule module;
};

using Words = std::vector<std::string>;

TEST_F(Query, AnAgentThatNobodyHereWrote) {
    EXPECT_TRUE(IsReached(kNetSnmp));
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

    const List* overlays = Overlays(kNetSnmp, 1);
    ASSERT_NE(overlays, nullptr);
    EXPECT_EQ(Texts(*overlays),
              Words({"second one | first one | OvlForm_HDD", "second three | first three | OvlForm_HDD"}));
    Free(overlays);
    overlays = Overlays(kNetSnmp, 0);
    ASSERT_NE(overlays, nullptr);
    EXPECT_EQ(Texts(*overlays), Words({"second two | first two | OvlForm_HDD"}));
    Free(overlays);

    const List* profiles = Profiles(kNetSnmp);
    ASSERT_NE(profiles, nullptr);
    EXPECT_EQ(Texts(profiles[0]), Words({"first RGB | second RGB | internalROM"}));
    EXPECT_EQ(Texts(profiles[1]), Words({"first out | second out | Prof_Flash"}));
    EXPECT_EQ(Texts(profiles[2]), Texts(profiles[1]));
    EXPECT_NE(profiles[1].entries, profiles[2].entries) << "each list has an entry of its own";
    Free(profiles);
}

// A query that gets no usable answer says so, and by its last error why; nothing crashes or hangs. A fault
// that can be lived with changes nothing.
TEST_F(Query, Faults) {
    const struct {
        const char* agent;
        bool reached;
        const char* tray;
        DWORD lastError; // of a profile request; 0: it succeeds
    } cases[] = {
        {"127.0.161.10", false, "", kNoAnswer},      // silent
        {"127.0.161.11", true, "EnaOpInTray1", 0},   // heard at the third sending
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
    for (const auto& c : cases) {
        SCOPED_TRACE(c.agent);
        EXPECT_EQ(IsReached(c.agent), c.reached);
        EXPECT_EQ(Options(c.agent, {"OpInTray1", "OpManualFeed"}), Words({c.tray, "EnaOpManualFeed"}));
        const List* profiles = Profiles(c.agent);
        const DWORD lastError = GetLastError();
        EXPECT_EQ(profiles != nullptr, c.lastError == 0);
        if (c.lastError != 0) {
            EXPECT_EQ(lastError, c.lastError);
        }
        Free(profiles);
    }
    EXPECT_EQ(Options("127.0.161.19", {"OpMemory"}), Words({"512MB"})) << "kept as the number that it is";
    EXPECT_EQ(Supplies("127.0.161.10", {"Consumable2", "Consumable7"}), Words({"0 0 000000", "3 0 000000"}));
}

} // namespace

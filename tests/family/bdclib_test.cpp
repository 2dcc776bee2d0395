// The functions of the built TELMAR_B.DLL, called as the module calls them and as it does not, against the
// devices of printers.list. Expected is what the devices' descriptions say.
#include "bdclib/exports.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

constexpr const char* kOdd = "127.0.163.1";
constexpr const char* kForeign = "127.0.163.2";
constexpr uint8_t kGuard = 0xA5;

BdcDeviceRecord Record(const std::string& agent, uint32_t communication = 0) {
    BdcDeviceRecord record = {};
    record.flags[0] = record.flags[1] = 1;
    agent.copy(record.agent, sizeof(record.agent));
    record.communication = communication;
    std::string("tovask").copy(record.community, sizeof(record.community));
    return record;
}

// A list, fetched into room for so many items with a guard behind it.
template <typename Item>
struct Fetched {
    int32_t status = 0;
    uint32_t count = 0;
    std::vector<Item> items; // all that there is room for
    bool isGuardIntact = false;
};

template <typename Item, typename Call>
Fetched<Item> Fetch(const Call& call, const BdcDeviceRecord& device, uint32_t room) {
    std::vector<uint8_t> block((room + 1) * sizeof(Item), kGuard);
    Fetched<Item> fetched;
    fetched.count = room;
    uint32_t state = 1;
    fetched.status = call(&device, &fetched.count, &state, reinterpret_cast<Item*>(block.data()));
    fetched.items.resize(room);
    memcpy(fetched.items.data(), block.data(), room * sizeof(Item));
    fetched.isGuardIntact =
        std::all_of(block.end() - sizeof(Item), block.end(), [](uint8_t octet) { return octet == kGuard; });
    return fetched;
}

// The items that there are, each as a text.
template <typename Item, typename Show>
std::string Shown(const Fetched<Item>& fetched, const Show& show) {
    std::string text;
    for (uint32_t i = 0; i < fetched.count; ++i)
        text += (i == 0 ? "" : ", ") + show(fetched.items.at(i));
    return text;
}

#define FUNCTION(name) Function<decltype(&(name))>(#name)

struct Library : testing::Test {
    // Wine's Windows Sockets open no socket once they were unloaded; where the module is loaded they stay.
    static void SetUpTestSuite() { ASSERT_NE(LoadLibraryW(L"ws2_32.dll"), nullptr); }

    Library() : handle(LoadLibraryW(L"TELMAR_B.DLL")) {}
    ~Library() override { FreeLibrary(handle); }

    template <typename Pointer>
    Pointer Function(const char* name) const {
        return reinterpret_cast<Pointer>(reinterpret_cast<void (*)()>(GetProcAddress(handle, name)));
    }

    // Counts, fetches all with room for one more, then fewer than there are.
    template <typename Item, typename Show, typename Call>
    void ExpectList(const Call& call, uint32_t expectedCount, const Show& show,
                    const std::string& expected) const {
        const BdcDeviceRecord device = Record(kOdd, 1);
        uint32_t count = 0;
        uint32_t state = 1;
        EXPECT_EQ(call(&device, &count, &state, nullptr), kBdcDone);
        EXPECT_EQ(count, expectedCount) << expected;

        const auto all = Fetch<Item>(call, device, expectedCount + 1);
        EXPECT_EQ(all.status, kBdcDone);
        EXPECT_EQ(all.count, expectedCount);
        EXPECT_EQ(Shown(all, show), expected);
        EXPECT_TRUE(all.isGuardIntact);

        const auto fewer = Fetch<Item>(call, device, expectedCount - 1);
        EXPECT_EQ(fewer.count, expectedCount - 1) << expected;
        EXPECT_TRUE(fewer.isGuardIntact) << expected;
    }

    auto InputTrays() const {
        return [call = FUNCTION(BdcGetDevInputTrayInfoEx)](const BdcDeviceRecord* device, uint32_t* count,
                                                           uint32_t* state, BdcInputTrayItem* items) {
            return call(device, count, 2, state, items);
        };
    }

    const HMODULE handle;
};

// The fields that the module reads, one list after the other.
TEST_F(Library, AnswersListsWithinTheirBuffers) {
    ExpectList<BdcOptionItem>(
        FUNCTION(BdcGetDevOptionInfo), 4,
        [](const BdcOptionItem& o) { return std::to_string(o.type) + " " + o.model; },
        "6 QE-550, 6 QE-550, 1000 Bdc_Function_Fax, 5 QB-220");
    ExpectList<BdcMemoryItem>(
        FUNCTION(BdcGetDevMemoryCapacity), 2, [](const BdcMemoryItem& m) { return std::to_string(m.kind); },
        "1, 3");
    ExpectList<BdcFinisherItem>(
        FUNCTION(BdcGetDevFinisherInfo), 1, [](const BdcFinisherItem& f) { return std::to_string(f.flags); },
        "32");
    const auto notedText = [](const auto& item) { return std::string(&item.notRead[4], &item.notRead[12]); };
    ExpectList<BdcFirmwareItem>(FUNCTION(BdcGetDevFirmwareVersion), 2, notedText,
                                std::string("PCL 6\0\0\0, PostScri", 18));
    ExpectList<BdcOutputTrayItem>(FUNCTION(BdcGetDevOutputTrayInfo), 10, notedText,
                                  "Mail bin, Mail bin, Mail bin, Mail bin, Mail bin, Mail bin, Mail bin, "
                                  "Mail bin, Finisher, Finisher");
    // Tray, size, orientation, type, colour, second side, level, weight, holes. Some: 0xFFFD; beyond what 16
    // bits hold: the most; the trays beyond the third have a number of the library's own.
    ExpectList<BdcInputTrayItem>(
        InputTrays(), 4,
        [](const BdcInputTrayItem& t) {
            std::string text;
            for (const int64_t value : {int64_t{t.tray}, int64_t{t.mediaSize}, int64_t{t.orientation},
                                        int64_t{t.mediaType}, int64_t{t.color}, int64_t{t.secondSide},
                                        int64_t{t.level}, int64_t{t.weight}, int64_t{t.hole}})
                text += (text.empty() ? "" : " ") + std::to_string(value);
            return text;
        },
        "2 261 2 1 15 0 65533 -1 -1, 7 259 3 1 0 0 40 -1 -1, 5 260 3 1 0 1 32767 -1 -1, "
        "6 2826 2 40 0 0 0 -1 -1");
}

// A device of another maker: its printer is its third device.
TEST_F(Library, FindsThePrinterAmongOthers) {
    uint32_t state = 1;
    BdcCommInfo communication = {};
    EXPECT_EQ(FUNCTION(BdcGetDevCommInfo)(kForeign, &state, &communication), kBdcDone);
    EXPECT_EQ(communication.communication, 3);
    for (const uint32_t printer : {3u, 2u}) { // the second is not there
        const BdcDeviceRecord device = Record(kForeign, printer);
        BdcNameInfo name = {};
        EXPECT_EQ(FUNCTION(BdcGetDevName)(&device, &state, &name), printer == 3 ? kBdcDone : kBdcNothing);
        EXPECT_STREQ(name.longName, printer == 3 ? "Another maker's printer" : "");
        uint32_t count = 7;
        EXPECT_EQ(FUNCTION(BdcGetDevOutputTrayInfo)(&device, &count, &state, nullptr),
                  printer == 3 ? kBdcDone : kBdcNothing);
        EXPECT_EQ(count, printer == 3 ? 1 : 0);
    }
}

TEST_F(Library, RefusesWhatItCanNotAnswer) {
    const BdcDeviceRecord device = Record(kOdd), nobody = Record("");
    uint32_t state = 1, count = 1;
    BdcNameInfo name = {};
    BdcCommInfo communication = {};
    EXPECT_EQ(FUNCTION(BdcGetDevCommInfo)(nullptr, &state, &communication), kBdcBadArgument);
    EXPECT_EQ(FUNCTION(BdcGetDevCommInfo)("", &state, &communication), kBdcBadArgument);
    EXPECT_EQ(FUNCTION(BdcGetDevName)(nullptr, &state, &name), kBdcBadArgument);
    EXPECT_EQ(FUNCTION(BdcGetDevName)(&nobody, &state, &name), kBdcBadArgument);
    EXPECT_EQ(FUNCTION(BdcGetDevMediaPathInfo)(&device, &state, nullptr), kBdcBadArgument);
    EXPECT_EQ(FUNCTION(BdcGetDevFinisherInfo)(&nobody, &count, &state, nullptr), kBdcBadArgument);
    EXPECT_EQ(FUNCTION(BdcGetDevMemoryCapacity)(&device, nullptr, &state, nullptr), kBdcBadArgument);
    EXPECT_EQ(FUNCTION(BdcGetDevInputTrayInfoEx)(&device, &count, 1, &state, nullptr), kBdcBadArgument);
}

} // namespace

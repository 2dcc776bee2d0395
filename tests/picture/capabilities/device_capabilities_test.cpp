// Device capabilities: which paper sources are reported for which installed options, and stapling; every
// answer is checked together with the bytes behind it.
#include "base/records.h"
#include "support/prm_image.h"

namespace {

constexpr DWORD kUntouched = 0xDEADBEEF;
using Answer = std::pair<BOOL, DWORD>;

// The caller's records. Features are described as "Feature:selected:Item,Item ...". Four paper sources,
// unless a test puts others.
struct Caller {
    explicit Caller(const std::string& described) {
        const std::vector<std::string> descriptions = Split(described, ' ');
        features.resize(descriptions.size() + 1);
        itemTables.resize(descriptions.size());
        for (size_t i = 0; i < descriptions.size(); ++i) {
            const std::vector<std::string> parts = Split(descriptions[i], ':');
            const std::vector<std::string> items = Split(parts[2], ',');
            itemTables[i].resize(items.size() + 1);
            for (size_t j = 0; j < items.size(); ++j)
                items[j].copy(itemTables[i][j].head.key, 31);
            parts[0].copy(features[i].feature.head.key, 31);
            features[i].items = itemTables[i].data();
            settings.push_back(std::stoi(parts[1]));
        }
        PutSlot(0, "InTray1", 257, L"Tray 1");
        PutSlot(1, "InTray2", 258, L"Tray 2");
        PutSlot(2, "InTray3", 0x10000 + 259, L"123456789_123456789_123456789_");
        PutSlot(3, "InTrayManual", 4, L"Manual \u00E4");
    }
    Caller(const Caller&) = delete;

    void PutSlot(size_t i, const std::string& key, uint32_t bin, const wchar_t* display) {
        const RawBytes slot = RawBytes(256).Text(4, key).U32(36, bin).Wide(48, display);
        memcpy(&slots[i], slot.bytes.data(), sizeof(slots[i]));
    }

    // The result and the number reported. The device record lies unaligned, as its layout allows.
    Answer Ask(unsigned capability, void* output = nullptr, bool wantsAnswer = true) const {
        std::vector<uint8_t> device(1 + 818);
        const InputSlotRecord* first = slots;
        memcpy(device.data() + 1 + 582, &first, sizeof(first));
        DWORD answer = kUntouched;
        const BOOL result = DDProc_DeviceCapabilities(
            reinterpret_cast<const DeviceTable*>(device.data() + 1), features.data(), nullptr, settings.data(),
            static_cast<WORD>(capability), output, wantsAnswer ? &answer : nullptr);
        return {result, answer};
    }

    std::vector<std::vector<ItemRecord>> itemTables;
    std::vector<FeatureRecord> features;
    std::vector<FeatureSettings> settings;
    InputSlotRecord slots[5] = {};
};

TEST(Capabilities, BinsFollowTheInstalledOptions) {
    const std::vector<uint16_t> all = {257, 258, 259, 4}, no2 = {257, 259, 4};
    const std::pair<const char*, std::vector<uint16_t>> cases[] = {
        {"", all},
        {"Paper:0:A4 OpInTray2:1:DisOpInTray2,EnaOpInTray2", all},
        {"Paper:1:A4,A3 OpInTray2:0:DisOpInTray2,EnaOpInTray2", no2},
        {"OpInTray1:0:a OpInTray2:0:b OpInTray3:0:c OpInTrayManual:0:d", {}},
        {"opintray1:0:enaOPintray5 OPINTRAY2:0:DISOPINTRAY2", no2},
        {"OpInTray1:0:EnaOpInTray OpInTray2:0:EnaOpInTra", no2}, // eleven characters decide
        {"OpInTray:0:Dis OpInTray22:0:Dis InTray1:0:Dis", all},  // no option's key
        {"OpInTray2:0:Dis OpInTray2:0:EnaOpInTray2", no2},       // the first of two counts
        {"OpInTray2:1:EnaOpInTray2", no2},                       // names no item
        {"OpInTray2:-1:EnaOpInTray2", no2},
    };
    for (const auto& [features, wanted] : cases) {
        const Caller caller(features);
        std::vector<uint16_t> bins(wanted.size() + 2, 0xEEEE), expected = wanted;
        expected.resize(bins.size(), 0xEEEE);
        for (const Answer& answer : {caller.Ask(6, bins.data()), caller.Ask(6), caller.Ask(12)})
            EXPECT_EQ(answer, Answer(TRUE, wanted.size())) << features;
        EXPECT_EQ(bins, expected) << features;
    }
}

TEST(Capabilities, BinNamesAreFieldsOf24Characters) {
    const Caller caller("OpInTray2:0:DisOpInTray2");
    RawBytes names = RawBytes(192).U8(0, 0xEE, 192);
    EXPECT_EQ(caller.Ask(12, names.bytes.data()), Answer(TRUE, 3));
    RawBytes expected =
        RawBytes(192).Wide(0, L"Tray 1").Wide(48, L"123456789_123456789_123").Wide(96, L"Manual \u00E4");
    EXPECT_EQ(Differences(names.bytes.data(), expected.U8(144, 0xEE, 48)), "");
}

// "Op" and a full key make 33 characters, more than a feature's key can hold: no feature matches.
TEST(Capabilities, LongestKeyIsNotCut) {
    const std::string key = "InTray_3456789_123456789_123456";
    ASSERT_EQ(key.size(), 31u);
    Caller caller(("Op" + key).substr(0, 31) + ":0:DisOpInTray");
    caller.PutSlot(0, key, 300, L"Long");
    EXPECT_EQ(caller.Ask(6), Answer(TRUE, 4));
}

TEST(Capabilities, Stapling) {
    const std::pair<const char*, DWORD> cases[] = {
        {"Paper:0:A4", 0},
        {"Paper:0:A4 OpOutTrayUnit:1:DisOpOutTrayUnit,OpOutTrayUnit3", 1},
        {"Paper:1:A4,A3 OpOutTrayUnit:0:DisOpOutTrayUnit,OpOutTrayUnit3", 0},
        {"opouttrayUNIT:0:disopouttrayunit", 0},
        {"OpOutTrayUnit:0:DisOpOutTrayUnit2", 1}, // not that item in full
        {"OpOutTrayUnit:0:OpOutTrayUnit1 OpOutTrayUnit:0:DisOpOutTrayUnit", 1},
        {"OpOutTrayUnit:1:OpOutTrayUnit1", 0}, // names no item
    };
    for (const auto& [features, expected] : cases) {
        DWORD output = kUntouched;
        EXPECT_EQ(Caller(features).Ask(30, &output), Answer(TRUE, expected)) << features;
        EXPECT_EQ(output, kUntouched) << features;
    }
}

TEST(Capabilities, EveryOtherIndexIsDeclined) {
    const Caller caller("Paper:0:A4");
    for (unsigned index = 0; index <= 0xFFFF; ++index) {
        if (index == 6 || index == 12 || index == 30)
            continue;
        DWORD output = kUntouched;
        ASSERT_EQ(caller.Ask(index, &output), index == 7 ? Answer(TRUE, 1) : Answer(FALSE, kUntouched)) << index;
        ASSERT_EQ(output, kUntouched) << index;
    }
}

TEST(Capabilities, RecordsThatAreEmptyOrMissing) {
    Caller caller("OpInTray2:0:DisOpInTray2 OpOutTrayUnit:0:OpOutTrayUnit1");
    uint16_t bins[4] = {};
    EXPECT_EQ(caller.Ask(6, bins, false).first, TRUE) << "the answer is not wanted";
    EXPECT_EQ(bins[2], 4);
    for (const unsigned capability : {7u, 12u, 30u, 28u})
        EXPECT_EQ(caller.Ask(capability, nullptr, false).first, capability != 28) << capability;
    for (FeatureRecord& feature : caller.features)
        feature.items = nullptr;
    EXPECT_EQ(caller.Ask(6), Answer(TRUE, 3)) << "an option without items is not installed";
    EXPECT_EQ(caller.Ask(30), Answer(TRUE, 0));
    caller.slots[0].head.key[0] = 0;
    EXPECT_EQ(caller.Ask(6), Answer(TRUE, 0)) << "no paper source";
    EXPECT_EQ(caller.Ask(12), Answer(TRUE, 0));
}

} // namespace

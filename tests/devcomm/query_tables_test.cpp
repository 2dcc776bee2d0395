// The static tables of the printer queries, octet by octet at their published offsets.
#include "devcomm/printer_queries.h"
#include "support/raw_bytes.h"

#include <gtest/gtest.h>

namespace {

using Record = const uint8_t*;

Record PointerAt(const void* record, size_t offset) {
    return NumberAt<Record>(record, offset);
}

TEST(QueryTables, ModelCheckIsOff) {
    EXPECT_EQ(Differences(MIB_ModelCheckInfo(), RawBytes(520)), "");
}

TEST(QueryTables, Options) {
    const std::string size = ".1.3.6.1.2.1.25.2.3.1.5";
    const std::string input = ".1.3.6.1.2.1.43.8.2.1.2";
    const std::string path = ".1.3.6.1.2.1.43.13.4.1.2";
    struct Value {
        std::string name, oid, suffix;
        uint32_t kind = 0;
        std::string expected = {};
    };
    struct Row {
        std::string key;
        std::vector<Value> values;
    };
    const auto found = [](const std::string& key, const std::string& oid, const std::string& suffix) {
        return Row{key, {{"Ena" + key, oid, suffix}, {"Dis" + key, "", ""}}};
    };
    Row memory = {"OpMemory", {}};
    for (int megabytes = 128; megabytes <= 1024; megabytes += 128) {
        const std::string number = std::to_string(megabytes);
        memory.values.push_back({number + "MB", size, ".1", 1, number});
    }
    std::vector<Row> rows = {
        memory, found("OpHDD", size, ".2"), {"OpManualFeed", {{"EnaOpManualFeed", "", ""}}}};
    for (const std::string n : {"1", "2", "3", "4", "5"})
        rows.push_back(found("OpInTray" + n, input, ".1." + n));
    for (const std::string n : {"1", "2", "3", "4"})
        rows.push_back({"OpOutTray" + n, {{"DisOpOutTray" + n, "", ""}}});
    rows.push_back(found("OpDuplex", path, ".1.2"));
    EXPECT_EQ(Differences(MIB_OptionReqInfo(), RawBytes(8).U32(0, 13)), "");
    Record option = PointerAt(MIB_OptionReqInfo(), 8);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.key);
        const auto count = static_cast<uint32_t>(row.values.size());
        RawBytes values(0);
        for (const Value& value : row.values)
            values.Append(RawBytes(580)
                              .Text(0, value.name)
                              .Text(32, value.oid)
                              .Text(288, value.suffix)
                              .U32(320, value.kind)
                              .Text(324, value.expected));
        EXPECT_EQ(Differences(option, RawBytes(40).Text(0, row.key).U32(32, count)), "");
        EXPECT_EQ(Differences(PointerAt(option, 40), values), "");
        option += 48;
    }
}

TEST(QueryTables, Supplies) {
    const struct {
        const char* name;
        uint32_t kind, callerFlag, levelFlag;
        const char* suffix;
        uint32_t color;
    } rows[] = {
        {"Consumable1", 0, 0, 0, "", 0},
        {"Consumable2", 1, 1, 0, ".1.1", 0x00FFFF00},
        {"Consumable3", 1, 1, 0, ".1.2", 0x00FF00FF},
        {"Consumable4", 1, 1, 0, ".1.3", 0x0000FFFF},
        {"Consumable5", 1, 1, 0, ".1.4", 0},
        {"Consumable6", 3, 0, 0, "", 0},
        {"Consumable7", 3, 1, 0, "", 0},
        {"Consumable8", 3, 1, 0, "", 0},
        {"Consumable9", 3, 1, 0, "", 0},
        {"Consumable10", 3, 1, 0, "", 0},
        {"Consumable11", 2, 0, 1, ".1.8", 0},
        {"Consumable12", 3, 0, 0, "", 0},
        {"", 999, 0, 0, "", 0},
    };
    RawBytes items(0);
    for (const auto& row : rows)
        items.Append(RawBytes(80)
                         .Text(0, row.name)
                         .U32(32, row.kind)
                         .U32(36, row.callerFlag)
                         .U32(40, row.levelFlag)
                         .Text(44, row.suffix)
                         .U32(76, row.color));
    EXPECT_EQ(Differences(MIB_MrkSupReqInfo(), RawBytes(520)
                                                   .Text(0, ".1.3.6.1.2.1.43.11.1.1.8")
                                                   .Text(256, ".1.3.6.1.2.1.43.11.1.1.9")
                                                   .U32(512, 13)),
              "");
    EXPECT_EQ(Differences(GET_MrkSupItemList(), items), "");
    EXPECT_EQ(PointerAt(MIB_MrkSupReqInfo(), 520), reinterpret_cast<Record>(GET_MrkSupItemList()));
}

struct Selector {
    const char* oid;
    std::vector<int32_t> values;
};

struct Storage {
    const char* name;
    uint32_t code;
};

// The texts, counts and what is pointed to; the pointers themselves are taken from the table.
void ExpectStoredResources(Record table, const std::vector<const char*>& oids,
                           const std::vector<Storage>& storages, const char* defaultStorage,
                           const std::vector<Selector>& selectors) {
    RawBytes names(0);
    for (const Storage& storage : storages)
        names.Append(RawBytes(36).Text(0, storage.name).U32(32, storage.code));
    EXPECT_EQ(Differences(PointerAt(table, 776), names), "");

    RawBytes beforeStorages(776), behindStorages(32);
    for (size_t i = 0; i < oids.size(); ++i)
        beforeStorages.Text(i * 256, oids[i]);
    beforeStorages.U32(768, static_cast<uint32_t>(storages.size()));
    EXPECT_EQ(Differences(table, beforeStorages), "");
    EXPECT_EQ(Differences(table + 784, behindStorages.Text(0, defaultStorage)), "");

    for (size_t i = 0; i < selectors.size(); ++i) {
        Record selector = table + 816 + i * 272;
        RawBytes values(0);
        for (const int32_t value : selectors[i].values)
            values.Append(RawBytes(4).U32(0, static_cast<uint32_t>(value)));
        const auto count = static_cast<uint32_t>(selectors[i].values.size());
        EXPECT_EQ(Differences(selector, RawBytes(264).Text(0, selectors[i].oid).U32(256, count)), "");
        EXPECT_EQ(Differences(PointerAt(selector, 264), values), "");
    }
}

TEST(QueryTables, OverlaysAndProfiles) {
    const char* overlaySelector = ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.2.1";
    ExpectStoredResources(reinterpret_cast<Record>(MIB_OvlReqInfo()),
                          {".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.3.1",
                           ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.4.1",
                           ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.5.1"},
                          {{"OvlForm_Memory", 3}, {"OvlForm_HDD", 4}, {"OvlForm_Flash", 5}}, "OvlForm_HDD",
                          {{overlaySelector, {1}}, {overlaySelector, {2}}});

    const char* profileSelector = ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.5.1";
    ExpectStoredResources(
        reinterpret_cast<Record>(MIB_CMProfReqInfo()),
        {".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.3.1", ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.4.1",
         ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.2.1"},
        {{"Prof_Memory", 3}, {"Prof_HDD", 4}, {"Prof_Flash", 5}, {"internalROM", 1}, {"internalHD", 2}},
        "Prof_HDD", {{profileSelector, {1, 2}}, {profileSelector, {3}}, {profileSelector, {3}}});
}

} // namespace

// The static tables of the printer queries, octet by octet at their published offsets.
#include "support/raw_bytes.h"
#include "telmar_d.h"

#include <gtest/gtest.h>

namespace {

using Record = const uint8_t*;

Record PointerAt(const void* record, size_t offset) {
    return NumberAt<Record>(record, offset);
}

TEST(QueryTables, ModelCheckIsOff) {
    EXPECT_EQ(Differences(MIB_ModelCheckInfo(), RawBytes(520)), "");
}

// What the queries make of them is tested with these.
TEST(QueryTables, Options) {
    EXPECT_EQ(Differences(MIB_OptionReqInfo(), RawBytes(8).U32(0, 13)), "");
    std::string keys;
    for (size_t i = 0; i < 13; ++i)
        keys += std::string(" ") + reinterpret_cast<const char*>(PointerAt(MIB_OptionReqInfo(), 8) + 48 * i);
    EXPECT_EQ(keys, " OpMemory OpHDD OpManualFeed OpInTray1 OpInTray2 OpInTray3 OpInTray4 OpInTray5 "
                    "OpOutTray1 OpOutTray2 OpOutTray3 OpOutTray4 OpDuplex");
}

TEST(QueryTables, Supplies) {
    // clang-format off
    const struct {
        const char* name;
        uint32_t kind, callerFlag, levelFlag;
        const char* suffix;
        uint32_t color;
    } rows[] = {
        {"Consumable1", 0, 0, 0, "", 0}, {"Consumable2", 1, 1, 0, ".1.1", 0x00FFFF00},
        {"Consumable3", 1, 1, 0, ".1.2", 0x00FF00FF}, {"Consumable4", 1, 1, 0, ".1.3", 0x0000FFFF},
        {"Consumable5", 1, 1, 0, ".1.4", 0}, {"Consumable6", 3, 0, 0, "", 0}, {"Consumable7", 3, 1, 0, "", 0},
        {"Consumable8", 3, 1, 0, "", 0}, {"Consumable9", 3, 1, 0, "", 0}, {"Consumable10", 3, 1, 0, "", 0},
        {"Consumable11", 2, 0, 1, ".1.8", 0}, {"Consumable12", 3, 0, 0, "", 0}, {"", 999, 0, 0, "", 0},
    };
    RawBytes items(0);
    for (const auto& row : rows)
        items.Append(RawBytes(80).Text(0, row.name).U32(32, row.kind).U32(36, row.callerFlag)
                         .U32(40, row.levelFlag).Text(44, row.suffix).U32(76, row.color));
    const char* capacities = ".1.3.6.1.2.1.43.11.1.1.8";
    EXPECT_EQ(Differences(MIB_MrkSupReqInfo(), RawBytes(520).Text(0, capacities)
                              .Text(256, ".1.3.6.1.2.1.43.11.1.1.9").U32(512, 13)), "");
    // clang-format on
    EXPECT_EQ(Differences(GET_MrkSupItemList(), items), "");
    EXPECT_EQ(PointerAt(MIB_MrkSupReqInfo(), 520), reinterpret_cast<Record>(GET_MrkSupItemList()));
}

// The queries look at neither an overlay's storage nor the default of profiles: others do.
TEST(QueryTables, WhatNoQueryReads) {
    const auto* overlays = reinterpret_cast<Record>(MIB_OvlReqInfo());
    const char* storage = ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.5.1";
    EXPECT_EQ(Differences(overlays + 512, RawBytes(260).Text(0, storage).U32(256, 3)), "");
    RawBytes names = RawBytes(108).Text(0, "OvlForm_Memory").Text(36, "OvlForm_HDD").Text(72, "OvlForm_Flash");
    EXPECT_EQ(Differences(PointerAt(overlays, 776), names.U32(32, 3).U32(68, 4).U32(104, 5)), "");
    const auto* profiles = reinterpret_cast<Record>(MIB_CMProfReqInfo());
    EXPECT_EQ(Differences(profiles + 784, RawBytes(32).Text(0, "Prof_HDD")), "");
}

} // namespace

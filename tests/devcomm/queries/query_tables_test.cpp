// The constant tables of the printer queries, byte by byte at their published offsets.
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

TEST(QueryTables, Options) {
    EXPECT_EQ(Differences(MIB_OptionReqInfo(), RawBytes(8).U32(0, 13)), "");
    std::string keys;
    for (size_t i = 0; i < 13; ++i)
        keys += std::string(" ") + reinterpret_cast<const char*>(PointerAt(MIB_OptionReqInfo(), 8) + 48 * i);
    EXPECT_EQ(keys, " OpMemory OpHDD OpManualFeed OpInTray1 OpInTray2 OpInTray3 OpInTray4 OpInTray5 "
                    "OpOutTray1 OpOutTray2 OpOutTray3 OpOutTray4 OpDuplex");
}

// Which objects each supply asks for, and what it reports, is tested with the queries.
TEST(QueryTables, Supplies) {
    EXPECT_EQ(Differences(
                  MIB_MrkSupReqInfo(),
                  RawBytes(520).Text(0, ".1.3.6.1.2.1.43.11.1.1.8").Text(256, ".1.3.6.1.2.1.43.11.1.1.9").U32(512, 13)),
              "");
    const auto* items = reinterpret_cast<Record>(GET_MrkSupItemList());
    EXPECT_EQ(PointerAt(MIB_MrkSupReqInfo(), 520), items);
    RawBytes yellow = RawBytes(80).Text(0, "Consumable4").U32(32, 1).U32(36, 1).Text(44, ".1.3").U32(76, 0xFFFF);
    EXPECT_EQ(Differences(items + 3 * 80, yellow), "");
    EXPECT_EQ(Differences(items + 10 * 80, RawBytes(80).Text(0, "Consumable11").U32(32, 2).U32(40, 1).Text(44, ".1.8")),
              "");
    EXPECT_EQ(Differences(items + 12 * 80, RawBytes(80).U32(32, 999)), "");
    std::string kindsAndFlags;
    for (int i = 0; i < 12; ++i)
        kindsAndFlags += std::to_string(items[80 * i + 32]) + std::to_string(items[80 * i + 36]) + " ";
    EXPECT_EQ(kindsAndFlags, "00 11 11 11 11 30 31 31 31 31 20 30 ");
}

// No query reads an overlay's storage or the default storage of profiles; callers do.
TEST(QueryTables, FieldsThatNoQueryReads) {
    const auto* overlays = reinterpret_cast<Record>(MIB_OvlReqInfo());
    const char* storage = ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.5.1";
    EXPECT_EQ(Differences(overlays + 512, RawBytes(260).Text(0, storage).U32(256, 3)), "");
    RawBytes names = RawBytes(108).Text(0, "OvlForm_Memory").Text(36, "OvlForm_HDD").Text(72, "OvlForm_Flash");
    EXPECT_EQ(Differences(PointerAt(overlays, 776), names.U32(32, 3).U32(68, 4).U32(104, 5)), "");
    const auto* profiles = reinterpret_cast<Record>(MIB_CMProfReqInfo());
    EXPECT_EQ(Differences(profiles + 784, RawBytes(32).Text(0, "Prof_HDD")), "");
}

} // namespace

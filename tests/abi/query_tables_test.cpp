// The tables of the printer queries as callers of the built DLL get them, by published offset, and how the
// queries refuse what is no question.
#include "product.h"
#include "support/raw_bytes.h"

#include <gtest/gtest.h>

namespace {

using Record = const uint8_t*;

struct QueryExports : testing::Test {
    Record Table(const char* name) const { return module.Export<Record WINAPI()>(name)(); }

    LoadedModule module;
};

Record PointerAt(Record record, size_t offset) {
    return NumberAt<Record>(record, offset);
}

uint32_t CountAt(Record record, size_t offset) {
    return NumberAt<uint32_t>(record, offset);
}

std::string TextAt(Record record, size_t offset) {
    return reinterpret_cast<const char*>(record + offset);
}

// The loader has relocated the pointers in constant data: each leads to the last record of its table.
TEST_F(QueryExports, TablesLeadToTheirLastRecords) {
    EXPECT_EQ(CountAt(Table("MIB_ModelCheckInfo"), 0), 0u);

    const Record options = Table("MIB_OptionReqInfo");
    ASSERT_EQ(CountAt(options, 0), 13u);
    const Record duplex = PointerAt(options, 8) + 12 * 48;
    EXPECT_EQ(TextAt(duplex, 0), "OpDuplex");
    ASSERT_EQ(CountAt(duplex, 32), 2u);
    EXPECT_EQ(TextAt(PointerAt(duplex, 40), 580), "DisOpDuplex");

    const Record supplies = Table("MIB_MrkSupReqInfo");
    EXPECT_EQ(TextAt(supplies, 256), ".1.3.6.1.2.1.43.11.1.1.9");
    ASSERT_EQ(CountAt(supplies, 512), 13u);
    EXPECT_EQ(PointerAt(supplies, 520), Table("GET_MrkSupItemList"));
    EXPECT_EQ(TextAt(PointerAt(supplies, 520), 11 * 80), "Consumable12");
    EXPECT_EQ(CountAt(PointerAt(supplies, 520), 12 * 80 + 32), 999u);

    const Record overlays = Table("MIB_OvlReqInfo");
    ASSERT_EQ(CountAt(overlays, 768), 3u);
    EXPECT_EQ(TextAt(PointerAt(overlays, 776), 2 * 36), "OvlForm_Flash");
    ASSERT_EQ(CountAt(overlays, 1088 + 256), 1u);
    EXPECT_EQ(CountAt(PointerAt(overlays, 1088 + 264), 0), 2u);

    const Record profiles = Table("MIB_CMProfReqInfo");
    ASSERT_EQ(CountAt(profiles, 768), 5u);
    EXPECT_EQ(TextAt(PointerAt(profiles, 776), 4 * 36), "internalHD");
    ASSERT_EQ(CountAt(profiles, 1360 + 256), 1u);
    EXPECT_EQ(CountAt(PointerAt(profiles, 1360 + 264), 0), 3u);
}

TEST_F(QueryExports, NullArgumentsAreRefused) {
    using Agent = BOOL WINAPI(const char*);
    using Items = BOOL WINAPI(const char*, DWORD, void*);
    RawBytes item(64);
    const auto expectRefused = [](const char* name, bool isAnswered) {
        EXPECT_FALSE(isAnswered) << name;
        EXPECT_EQ(GetLastError(), 87u) << name;
        SetLastError(0);
    };
    SetLastError(0);
    for (const char* name : {"MIB_IsAccessOK", "MIB_IsModelOK"})
        expectRefused(name, module.Export<Agent>(name)(nullptr) != FALSE);
    expectRefused("empty agent", module.Export<Agent>("MIB_IsAccessOK")("") != FALSE);
    expectRefused("overlays", module.Export<void * WINAPI(const char*, int)>("MIB_OverlayRequest")(nullptr, 0)
                                  != nullptr);
    expectRefused("profiles",
                  module.Export<void * WINAPI(const char*)>("MIB_ProfileRequest")(nullptr) != nullptr);
    for (const char* name : {"MIB_OptionRequest", "MIB_MrkSupRequest"}) {
        expectRefused(name, module.Export<Items>(name)(nullptr, 1, item.bytes.data()) != FALSE);
        expectRefused(name, module.Export<Items>(name)("127.0.0.1", 1, nullptr) != FALSE);
    }
    EXPECT_EQ(module.Export<Agent>("MIB_IsModelOK")("127.0.0.1"), TRUE);
}

} // namespace

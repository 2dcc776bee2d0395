// Calls through the exports with records laid out byte by byte, as another compiler's callers would.
#include "product.h"
#include "support/raw_bytes.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace {

struct Calls : testing::Test {
    LoadedModule module;
};

TEST_F(Calls, FreeFunctionsReleaseALocalBlockAndAcceptNull) {
    for (const char* name : {"MIB_FreeOverlayInfo", "MIB_FreeProfileInfo"}) {
        const auto free = module.Export<void WINAPI(void*)>(name);
        free(nullptr);
        void* block = LocalAlloc(LMEM_FIXED, 1000);
        ASSERT_TRUE(HeapValidate(GetProcessHeap(), 0, block));
        free(block);
        EXPECT_FALSE(HeapValidate(GetProcessHeap(), 0, block)) << name;
    }
}

TEST_F(Calls, FeatureNamesAreNullWhateverIsPassed) {
    int anything = 0;
    for (const char* name : {"DDProc_FeatureNameItemTable", "DDProc_FeatureNameValuePtr"})
        for (void* argument : {static_cast<void*>(nullptr), static_cast<void*>(&anything)})
            EXPECT_EQ(module.Export<void * WINAPI(void*)>(name)(argument), nullptr) << name;
}

TEST_F(Calls, ExportWithoutAnswerYetGivesZero) {
    EXPECT_EQ(module.Export<INT_PTR WINAPI()>("DDProc_DlgProc")(), 0);
}

// Three paper sources of which "InTray2" has an option feature; stapling by the output tray unit.
struct Capabilities : Calls {
    Capabilities() {
        PutPointer(device, 582, slots);
        PutPointer(features, 144, trayItems);
        PutPointer(features, 152 + 144, unitItems);
    }

    static void PutPointer(RawBytes& record, size_t offset, const RawBytes& target) {
        const BYTE* address = target.bytes.data();
        memcpy(&record.bytes.at(offset + sizeof(address) - 1) - (sizeof(address) - 1), &address,
               sizeof(address));
    }

    BOOL Ask(WORD capability, void* output) {
        using Function = BOOL WINAPI(const void*, const void*, void*, const int32_t*, WORD, void*, DWORD*);
        return module.Export<Function>("DDProc_DeviceCapabilities")(
            device.bytes.data(), features.bytes.data(), nullptr, settings, capability, output, &answer);
    }

    RawBytes slots = RawBytes(4 * 256)
                         .Text(4, "InTray1")
                         .U32(36, 257)
                         .Wide(48, L"Upper tray")
                         .Text(256 + 4, "InTray2")
                         .U32(256 + 36, 258)
                         .Wide(256 + 48, L"Lower tray")
                         .Text(512 + 4, "InTrayManual")
                         .U32(512 + 36, 0x10004)
                         .Wide(512 + 48, L"Manual feed, one by one");
    RawBytes trayItems = RawBytes(3 * 144).Text(4, "EnaOpInTray2").Text(144 + 4, "DisOpInTray2");
    RawBytes unitItems = RawBytes(3 * 144).Text(4, "DisOpOutTrayUnit").Text(144 + 4, "OpOutTrayUnit3");
    RawBytes features = RawBytes(3 * 152).Text(4, "OpInTray2").Text(152 + 4, "OpOutTrayUnit");
    RawBytes device = RawBytes(818);
    int32_t settings[2] = {1, 1}; // no second tray, a finisher
    DWORD answer = 0xABABABAB;
};

TEST_F(Capabilities, ArgumentsArriveInTheirOrder) {
    WORD bins[3] = {0xCDCD, 0xCDCD, 0xCDCD};
    EXPECT_EQ(Ask(6, bins), TRUE);
    EXPECT_EQ(answer, 2u);
    EXPECT_EQ(bins[0], 257u);
    EXPECT_EQ(bins[1], 4u);
    EXPECT_EQ(bins[2], 0xCDCDu);

    wchar_t names[3][24] = {};
    settings[0] = 0;
    EXPECT_EQ(Ask(12, names), TRUE);
    EXPECT_EQ(answer, 3u);
    EXPECT_STREQ(names[0], L"Upper tray");
    EXPECT_STREQ(names[1], L"Lower tray");
    EXPECT_STREQ(names[2], L"Manual feed, one by one"); // just fills its field

    EXPECT_EQ(Ask(30, nullptr), TRUE);
    EXPECT_EQ(answer, 1u);
    settings[1] = 0;
    EXPECT_EQ(Ask(30, nullptr), TRUE);
    EXPECT_EQ(answer, 0u);
}

TEST_F(Capabilities, OtherQuestionsAreDeclined) {
    for (const WORD capability : std::initializer_list<WORD>{0, 1, 28, 29, 31, 0xFFFF})
        EXPECT_EQ(Ask(capability, nullptr), FALSE) << capability;
    EXPECT_EQ(answer, 0xABABABABu);
}

} // namespace

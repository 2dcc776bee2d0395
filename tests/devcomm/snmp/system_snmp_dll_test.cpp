// The module with the system's SNMP libraries: stand-ins for them (snmp_stub.cpp) are in the system directory
// while this program runs. Only under wine, whose prefix is the build's own, with both loaded as native libraries:
// ctest sets WINEDLLOVERRIDES for it.
#include "product.h"
#include "support/wine.h"
#include "workbench/lib/traffic_trace.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace fs = std::filesystem;

namespace {

constexpr wchar_t kMgmt[] = L"MGMTAPI.DLL";
constexpr wchar_t kSnmp[] = L"SNMPAPI.DLL";

fs::path SystemDirectory() {
    wchar_t path[MAX_PATH] = {};
    GetSystemDirectoryW(path, MAX_PATH);
    return path;
}

// A built file in the system directory, which replaces one of this name until the end.
struct SystemFile {
    SystemFile(const wchar_t* name, const wchar_t* builtFile) : path(SystemDirectory() / name), kept(path) {
        kept += L".kept";
        if (!fs::exists(kept) && fs::exists(path)) // it exists after an interrupted run
            fs::rename(path, kept);
        fs::copy_file(ProductFolder() / builtFile, path, fs::copy_options::overwrite_existing);
    }
    ~SystemFile() {
        std::error_code error;
        fs::remove(path, error);
        EXPECT_FALSE(error) << error.message();
        if (fs::exists(kept))
            fs::rename(kept, path, error);
        EXPECT_FALSE(error) << error.message();
    }
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    fs::path path;
    fs::path kept;
};

struct SystemSnmp : testing::Test {
    void SetUp() override {
        if (!IsWine() || IsPacked())
            GTEST_SKIP() << "replaces the SNMP libraries of the system";
    }
};

template <typename Function>
Function* EntryPoint(const wchar_t* library, const char* name) {
    FARPROC found = GetProcAddress(GetModuleHandleW(library), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(found));
}

// Both stay loaded from attach to detach. The answer is in another list than the request's, in memory that is not
// cleared.
TEST_F(SystemSnmp, QueriesGoThroughThemAlone) {
    const SystemFile mgmt(kMgmt, L"stub_mgmtapi.dll"), snmp(kSnmp, L"stub_snmpapi.dll");
    std::optional<LoadedModule> module(std::in_place);
    ASSERT_NE(EntryPoint<int()>(kMgmt, "StubBlocks"), nullptr) << "start it with WINEDLLOVERRIDES=mgmtapi,snmpapi=n";
    EXPECT_TRUE(fs::equivalent(LoadedPath(kMgmt), mgmt.path));
    EXPECT_TRUE(fs::equivalent(LoadedPath(kSnmp), snmp.path));
    EXPECT_NE(module->Export<int WINAPI(const char*)>("MIB_IsAccessOK")("192.0.2.7"), 0);
    EXPECT_STREQ(EntryPoint<const char*()>(kMgmt, "StubCalls")(), "SnmpMgrOpen 192.0.2.7 tovask 1000 1\n"
                                                                  "SnmpMgrStrToOid .1.3.6.1.2.1.1.2.0\n"
                                                                  "SnmpMgrRequest A0 1.3.6.1.2.1.1.2.0, value 05\n"
                                                                  "SnmpMgrClose\n");

    struct {
        char key[32];
        char value[32];
    } item = {"OpMemory", "none"};
    EXPECT_NE(module->Export<int WINAPI(const char*, DWORD, void*)>("MIB_OptionRequest")("192.0.2.7", 1, &item), 0);
    EXPECT_STREQ(item.value, "640MB");
    const std::string calls = EntryPoint<const char*()>(kMgmt, "StubCalls")();
    const std::string once = "SnmpMgrStrToOid .1.3.6.1.2.1.25.2.3.1.5.1\n"
                             "SnmpMgrRequest A0 1.3.6.1.2.1.25.2.3.1.5.1, value 05\n";
    EXPECT_EQ(calls.substr(calls.find("SnmpMgrClose\n") + 13),
              "SnmpMgrOpen 192.0.2.7 tovask 2000 3\n" + once + once + once + once + once + "SnmpMgrClose\n");
    EXPECT_EQ(EntryPoint<int()>(kMgmt, "StubBlocks")() + EntryPoint<int()>(kSnmp, "StubBlocks")(), 0)
        << "every block went back to the libraries";
    module.reset();
    EXPECT_EQ(LoadedPath(kMgmt), fs::path());
    EXPECT_EQ(LoadedPath(kSnmp), fs::path());
}

// The answers of the stand-ins do not contain the value that was asked for, only a number of 640.
TEST_F(SystemSnmp, TraceRecordsRequestsUntilItsEnd) {
    const SystemFile mgmt(kMgmt, L"stub_mgmtapi.dll"), snmp(kSnmp, L"stub_snmpapi.dll");
    const LoadedModule module;
    auto* const isAccessOk = module.Export<int WINAPI(const char*)>("MIB_IsAccessOK");
    {
        const TrafficTrace trace(module.handle);
        EXPECT_NE(isAccessOk("192.0.2.7"), 0);
        const std::vector<TracedMessage> messages = trace.Messages();
        ASSERT_EQ(messages.size(), 2u);
        EXPECT_TRUE(messages[0].isSent && !messages[1].isSent);
        EXPECT_EQ(messages[0].message.object, (ObjectId{1, 3, 6, 1, 2, 1, 1, 2, 0}));
        EXPECT_EQ(messages[1].message.valueType, 2); // INTEGER
        EXPECT_EQ(messages[1].message.number, 640);
    }
    EXPECT_NE(isAccessOk("192.0.2.7"), 0); // a recording function would use the trace that no longer exists
}

} // namespace

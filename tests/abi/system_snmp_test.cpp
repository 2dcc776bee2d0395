// The module with the system's SNMP libraries: stand-ins of them (snmp_stub.cpp) lie in the system directory
// while this program runs. Under wine only, whose prefix is the build's own, and with both loaded as native
// libraries: ctest sets WINEDLLOVERRIDES for it.
#include "product.h"

#include <gtest/gtest.h>
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

// A file of the system directory, missing at first; at the end what lay there before lies there again.
struct SystemFile {
    explicit SystemFile(const wchar_t* name) : path(SystemDirectory() / name), kept(path) {
        kept += L".kept";
        if (!fs::exists(kept) && fs::exists(path)) // it may be there after a run that was broken off
            fs::rename(path, kept);
        fs::remove(path);
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

    void Put(const wchar_t* builtFile) const {
        fs::copy_file(ProductFolder() / builtFile, path, fs::copy_options::overwrite_existing);
    }

    fs::path path;
    fs::path kept;
};

bool IsWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

struct SystemSnmp : testing::Test {
    static void SetUpTestSuite() {
        const SystemFile file(kMgmt);
        file.Put(L"stub_mgmtapi.dll");
        HMODULE library = LoadLibraryW(file.path.c_str());
        ASSERT_NE(library, nullptr) << "start it with WINEDLLOVERRIDES=mgmtapi,snmpapi=n";
        ASSERT_NE(GetProcAddress(library, "StubCalls"), nullptr);
        FreeLibrary(library);
    }

    static void ExpectLoaded(const wchar_t* name, bool loaded) {
        const fs::path path = LoadedPath(name);
        EXPECT_EQ(!path.empty(), loaded) << path;
        if (loaded) {
            EXPECT_TRUE(fs::equivalent(path, SystemDirectory() / name)) << path;
        }
    }

    // The module's load with what now lies in the system directory.
    static void ExpectBetweenAttachAndDetach(bool withMgmt, bool withSnmp) {
        for (int round = 0; round < 2; ++round) {
            const LoadedModule module;
            ExpectLoaded(kMgmt, withMgmt);
            ExpectLoaded(kSnmp, withSnmp);
            int anything = 0; // the other exports answer as always
            EXPECT_EQ(module.Export<void * WINAPI(void*)>("DDProc_FeatureNameItemTable")(&anything), nullptr);
        }
        ExpectLoaded(kMgmt, false);
        ExpectLoaded(kSnmp, false);
    }

    SystemFile mgmt{kMgmt};
    SystemFile snmp{kSnmp};
};

template <typename Function>
Function* EntryPoint(const wchar_t* library, const char* name) {
    FARPROC found = GetProcAddress(GetModuleHandleW(library), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(found));
}

TEST_F(SystemSnmp, BothAreHeldFromAttachToDetach) {
    mgmt.Put(L"stub_mgmtapi.dll");
    snmp.Put(L"stub_snmpapi.dll");
    ExpectBetweenAttachAndDetach(true, true);
}

TEST_F(SystemSnmp, TheOneThatIsThereIsHeldUntilDetach) {
    ExpectBetweenAttachAndDetach(false, false);
    mgmt.Put(L"stub_mgmtapi.dll");
    ExpectBetweenAttachAndDetach(true, false);
    fs::remove(mgmt.path);
    snmp.Put(L"stub_snmpapi.dll");
    ExpectBetweenAttachAndDetach(false, true);
}

TEST_F(SystemSnmp, WithAnEntryPointMissingBothAreFreedAtOnce) {
    mgmt.Put(L"stub_mgmtapi_lacking.dll");
    snmp.Put(L"stub_snmpapi.dll");
    ExpectBetweenAttachAndDetach(false, false);
    mgmt.Put(L"stub_mgmtapi.dll");
    snmp.Put(L"stub_snmpapi_lacking.dll");
    ExpectBetweenAttachAndDetach(false, false);
}

// With an answer that lies in another list than the request's, and in memory that is not filled.
TEST_F(SystemSnmp, QueriesGoThroughThemAlone) {
    mgmt.Put(L"stub_mgmtapi.dll");
    snmp.Put(L"stub_snmpapi.dll");
    const LoadedModule module;
    EXPECT_NE(module.Export<int WINAPI(const char*)>("MIB_IsAccessOK")("192.0.2.7"), 0);
    EXPECT_STREQ(EntryPoint<const char*()>(kMgmt, "StubCalls")(),
                 "SnmpMgrOpen 192.0.2.7 tovask 1000 1\n"
                 "SnmpMgrStrToOid .1.3.6.1.2.1.1.2.0\n"
                 "SnmpMgrRequest A0 1.3.6.1.2.1.1.2.0, value 05\n"
                 "SnmpMgrClose\n");

    struct {
        char key[32];
        char value[32];
    } item = {"OpMemory", "none"};
    EXPECT_NE(
        module.Export<int WINAPI(const char*, DWORD, void*)>("MIB_OptionRequest")("192.0.2.7", 1, &item), 0);
    EXPECT_STREQ(item.value, "640MB");
    const std::string calls = EntryPoint<const char*()>(kMgmt, "StubCalls")();
    const std::string once = "SnmpMgrStrToOid .1.3.6.1.2.1.25.2.3.1.5.1\n"
                             "SnmpMgrRequest A0 1.3.6.1.2.1.25.2.3.1.5.1, value 05\n";
    EXPECT_EQ(calls.substr(calls.find("SnmpMgrClose\n") + 13),
              "SnmpMgrOpen 192.0.2.7 tovask 2000 3\n" + once + once + once + once + once + "SnmpMgrClose\n");
    EXPECT_EQ(EntryPoint<int()>(kMgmt, "StubBlocks")() + EntryPoint<int()>(kSnmp, "StubBlocks")(), 0)
        << "every block went back to the libraries";
}

// No query asks anything, nor says why; the tables are there as always.
TEST_F(SystemSnmp, WithAnEntryPointMissingEveryQueryFails) {
    mgmt.Put(L"stub_mgmtapi_lacking.dll");
    snmp.Put(L"stub_snmpapi.dll");
    const LoadedModule module;
    for (const char* query : {"MIB_IsAccessOK", "MIB_IsModelOK", "MIB_OptionRequest", "MIB_MrkSupRequest",
                              "MIB_OverlayRequest", "MIB_ProfileRequest"}) {
        char items[128] = {};
        SetLastError(777);
        EXPECT_EQ(module.Export<INT_PTR WINAPI(const char*, INT_PTR, void*)>(query)("192.0.2.7", 0, items),
                  0);
        EXPECT_EQ(GetLastError(), 777u) << query;
    }
    for (const char* table : {"MIB_ModelCheckInfo", "MIB_OptionReqInfo", "MIB_MrkSupReqInfo",
                              "MIB_OvlReqInfo", "MIB_CMProfReqInfo", "GET_MrkSupItemList"})
        EXPECT_NE(module.Export<const void * WINAPI()>(table)(), nullptr) << table;
}

} // namespace

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (IsWine())
        return RUN_ALL_TESTS();
    printf("Not run: it would replace libraries of the system.\n");
    return 0;
}

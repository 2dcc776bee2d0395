// The module with the system's SNMP libraries: stand-ins of them (snmp_stub.cpp) lie in the system directory
// while this program runs. Under wine only, whose prefix is the build's own, and with both loaded as native
// libraries: ctest sets WINEDLLOVERRIDES for it.
#include "product.h"

#include <gtest/gtest.h>

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

} // namespace

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (IsWine())
        return RUN_ALL_TESTS();
    printf("Not run: it would replace libraries of the system.\n");
    return 0;
}

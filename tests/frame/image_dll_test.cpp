// The image of the built DLL: export directory, exports that share an entry point, imports, version
// information, and nothing of the machine that built it. Read where the system has loaded it.
#include "support/product.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

// By ordinal; the others are unassigned.
// clang-format off
const std::map<DWORD, std::string> kExports = {
    {1, "DrawPrinterView"}, {2, "DDProc_IsCommunicateDevice"}, {3, "DDProc_IsEnableBdcLib"},
    {11, "MIB_ModelCheckInfo"}, {12, "MIB_OptionReqInfo"}, {13, "MIB_MrkSupReqInfo"}, {14, "MIB_OvlReqInfo"},
    {15, "MIB_CMProfReqInfo"}, {21, "MIB_IsAccessOK"}, {22, "MIB_IsModelOK"}, {23, "MIB_OptionRequest"},
    {24, "MIB_MrkSupRequest"}, {25, "MIB_OverlayRequest"}, {26, "MIB_FreeOverlayInfo"}, {27, "MIB_ProfileRequest"},
    {28, "MIB_FreeProfileInfo"}, {29, "GET_MrkSupItemList"}, {30, "DrawLogoImage"}, {31, "DrawLogoVersionTab"},
    {32, "DDProc_DeviceCapabilities"}, {33, "DDProc_DlgProc"}, {34, "DDProc_FeatureNameItemTable"},
    {35, "DDProc_FeatureNameValuePtr"}, {36, "DDProc_GetPrinterIPAddress"}, {37, "DDProc_OptionRequest"},
    {38, "DDProc_InputTrayStatus"},
};
// clang-format on

const std::set<std::set<DWORD>> kSharedEntryPoints = {{26, 28}, {34, 35}};

// System libraries that the module may import.
const std::set<std::string> kSystemLibraries = {"advapi32.dll", "comctl32.dll", "gdi32.dll",
                                                "kernel32.dll", "msvcrt.dll",   "user32.dll",
                                                "version.dll",  "winspool.drv", "ws2_32.dll"};

struct Image : testing::Test {
    template <typename Part>
    const Part* At(DWORD offset) const {
        return reinterpret_cast<const Part*>(reinterpret_cast<const BYTE*>(module.handle) + offset);
    }

    const IMAGE_NT_HEADERS64& Headers() const {
        return *At<IMAGE_NT_HEADERS64>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }

    template <typename Directory>
    const Directory* DirectoryAt(size_t index) const {
        return At<Directory>(Headers().OptionalHeader.DataDirectory[index].VirtualAddress);
    }

    LoadedModule module;
};

TEST_F(Image, ExportsThePublishedNamesAtTheirOrdinalsOnly) {
    const auto& exports = *DirectoryAt<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
    EXPECT_STREQ(At<char>(exports.Name), "TELMAR_D.dll");
    EXPECT_EQ(exports.Base, 1u);
    EXPECT_EQ(exports.NumberOfFunctions, 38u);
    ASSERT_EQ(exports.NumberOfNames, kExports.size());

    std::map<DWORD, std::string> names;
    for (DWORD i = 0; i < exports.NumberOfNames; ++i)
        names[exports.Base + At<WORD>(exports.AddressOfNameOrdinals)[i]] =
            At<char>(At<DWORD>(exports.AddressOfNames)[i]);
    EXPECT_EQ(names, kExports);

    std::map<DWORD, std::set<DWORD>> sharers; // by address
    for (DWORD ordinal = 1; ordinal <= exports.NumberOfFunctions; ++ordinal)
        if (const DWORD address = At<DWORD>(exports.AddressOfFunctions)[ordinal - 1]; address != 0)
            sharers[address].insert(ordinal);
    std::set<std::set<DWORD>> shared;
    size_t assigned = 0;
    for (const auto& [address, ordinals] : sharers) {
        assigned += ordinals.size();
        if (ordinals.size() > 1)
            shared.insert(ordinals);
    }
    EXPECT_EQ(shared, kSharedEntryPoints);
    EXPECT_EQ(assigned, kExports.size()) << "ordinals without a name have no address";
}

TEST_F(Image, FreeFunctionsReleaseALocalBlockAndAcceptNull) {
    for (const char* name : {"MIB_FreeOverlayInfo", "MIB_FreeProfileInfo"}) {
        const auto free = module.Export<void WINAPI(void*)>(name);
        free(nullptr);
        void* block = LocalAlloc(LMEM_FIXED, 1000);
        ASSERT_TRUE(HeapValidate(GetProcessHeap(), 0, block));
        free(block);
        EXPECT_FALSE(HeapValidate(GetProcessHeap(), 0, block)) << name;
    }
}

TEST_F(Image, FeatureNamesAreNullForAnyArgument) {
    int anything = 0;
    for (const char* name : {"DDProc_FeatureNameItemTable", "DDProc_FeatureNameValuePtr"})
        for (void* argument : {static_cast<void*>(nullptr), static_cast<void*>(&anything)})
            EXPECT_EQ(module.Export<void * WINAPI(void*)>(name)(argument), nullptr) << name;
}

TEST_F(Image, ImportsSystemLibrariesOnly) {
    const auto* import = DirectoryAt<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
    ASSERT_NE(import->Name, 0u);
    for (; import->Name != 0; ++import) {
        std::string name = At<char>(import->Name);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return static_cast<char>(tolower(c)); });
        EXPECT_EQ(kSystemLibraries.count(name), 1u) << name;
    }
}

TEST_F(Image, VersionIsThatOfTheProjectForAPrinterDriver) {
    const std::wstring path = LoadedPath(L"TELMAR_D.DLL").wstring();
    std::vector<BYTE> info(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(info.size()), info.data()));
    void* found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(info.data(), L"\\", &found, &size));
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(fixed.dwFileType, static_cast<DWORD>(VFT_DRV));
    EXPECT_EQ(fixed.dwFileSubtype, static_cast<DWORD>(VFT2_DRV_VERSIONED_PRINTER));
    for (const DWORD high : {fixed.dwFileVersionMS, fixed.dwProductVersionMS})
        EXPECT_EQ(high, static_cast<DWORD>(PROJECT_VERSION_MAJOR << 16 | PROJECT_VERSION_MINOR));
    for (const DWORD low : {fixed.dwFileVersionLS, fixed.dwProductVersionLS})
        EXPECT_EQ(low, static_cast<DWORD>(PROJECT_VERSION_PATCH << 16));
}

TEST_F(Image, HasNoTraceOfTimeAndPlaceOfTheBuild) {
    EXPECT_EQ(Headers().FileHeader.TimeDateStamp, 0u);
    EXPECT_EQ(DirectoryAt<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT)->TimeDateStamp, 0u);

    std::ifstream stream(ProductFolder() / L"TELMAR_D.DLL", std::ios::binary);
    const std::string file((std::istreambuf_iterator<char>(stream)), {});
    ASSERT_EQ(file.compare(0, 2, "MZ"), 0);
    for (const std::string folder : {SOURCE_FOLDER, BUILD_FOLDER}) {
        std::string wide; // as UTF-16; the folder's name is ASCII or not found this way
        for (const char c : folder)
            wide.append({c, '\0'});
        EXPECT_EQ(file.find(folder), std::string::npos) << folder;
        EXPECT_EQ(file.find(wide), std::string::npos) << folder << " in UTF-16";
    }
}

} // namespace

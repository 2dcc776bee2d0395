// The image of the built DLL: export directory, exports that share an entry point, imports, version
// information, what protects it, its size, and nothing of the time and the folders of its build. Read where the
// system has loaded it.
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
const std::set<std::string> kSystemLibraries = {"advapi32.dll", "comctl32.dll", "gdi32.dll",    "kernel32.dll",
                                                "msvcrt.dll",   "user32.dll",   "winspool.drv", "ws2_32.dll"};

// Kinds of debug entries and a flag, which mingw-w64 does not name.
constexpr DWORD kReproducible = 16, kExtendedCharacteristics = 20;
constexpr DWORD kShadowStackCompatible = 1;

constexpr uintmax_t kSizeBudget = 1'600'000; // bytes of the file; the bitmaps take 1.3 million

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

    // The address relative to the image of something that the image points to.
    DWORD Relative(uint64_t address) const {
        return static_cast<DWORD>(address - reinterpret_cast<uintptr_t>(module.handle));
    }

    const IMAGE_DEBUG_DIRECTORY* DebugEntry(DWORD type) const {
        const IMAGE_DATA_DIRECTORY& entries = Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_DEBUG];
        const auto* const first = At<IMAGE_DEBUG_DIRECTORY>(entries.VirtualAddress);
        const auto* const end = first + entries.Size / sizeof *first;
        const auto* const found = std::find_if(first, end, [&](const auto& entry) { return entry.Type == type; });
        return found == end ? nullptr : found;
    }

    // The section at an address relative to the image, or nullptr.
    const IMAGE_SECTION_HEADER* SectionAt(DWORD offset) const {
        const IMAGE_SECTION_HEADER* const first = IMAGE_FIRST_SECTION(&Headers());
        const auto* const end = first + Headers().FileHeader.NumberOfSections;
        const auto* const found = std::find_if(first, end, [&](const auto& section) {
            return offset - section.VirtualAddress < section.Misc.VirtualSize;
        });
        return found == end ? nullptr : found;
    }
    DWORD AccessAt(DWORD offset) const {
        const IMAGE_SECTION_HEADER* const section = SectionAt(offset);
        return section == nullptr
                   ? 0
                   : section->Characteristics & (IMAGE_SCN_MEM_READ | IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE);
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
    EXPECT_EQ(Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT].Size, 0u);
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

TEST_F(Image, VersionTextsNameTheFileAndTheProduct) {
    const std::wstring path = LoadedPath(L"TELMAR_D.DLL").wstring();
    std::vector<BYTE> info(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(info.size()), info.data()));
    const std::wstring version = std::to_wstring(PROJECT_VERSION_MAJOR) + L'.' + std::to_wstring(PROJECT_VERSION_MINOR)
                                 + L'.' + std::to_wstring(PROJECT_VERSION_PATCH);
    const std::map<std::wstring, std::wstring> texts = {
        {L"FileVersion", version},      {L"ProductVersion", version},
        {L"InternalName", L"TELMAR_D"}, {L"OriginalFilename", L"TELMAR_D.DLL"},
        {L"CompanyName", L"QUORVANE"},  {L"ProductName", L"QUORVANE lumora R880 printer driver"},
    };
    for (const auto& [name, text] : texts) {
        void* found = nullptr;
        UINT length = 0;
        ASSERT_TRUE(VerQueryValueW(info.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &found, &length));
        EXPECT_EQ(static_cast<const wchar_t*>(found), text);
    }
}

TEST_F(Image, AllowsWhatTheSystemDoesAgainstExploits) {
    const WORD flags = Headers().OptionalHeader.DllCharacteristics;
    for (const auto& [flag, name] :
         std::map<WORD, std::string>{{IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE, "ASLR"},
                                     {IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA, "high-entropy ASLR"},
                                     {IMAGE_DLLCHARACTERISTICS_NX_COMPAT, "NX"},
                                     {IMAGE_DLLCHARACTERISTICS_GUARD_CF, "control flow guard"}})
        EXPECT_NE(flags & flag, 0) << name;
    EXPECT_EQ(Headers().FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED, 0);
    EXPECT_NE(Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size, 0u);

    const IMAGE_DEBUG_DIRECTORY* const extended = DebugEntry(kExtendedCharacteristics);
    ASSERT_NE(extended, nullptr);
    EXPECT_NE(*At<DWORD>(extended->AddressOfRawData) & kShadowStackCompatible, 0u) << "CET";
}

TEST_F(Image, GuardsIndirectCalls) {
    const IMAGE_DATA_DIRECTORY& directory = Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_LOAD_CONFIG];
    const auto* const configuration = At<BYTE>(directory.VirtualAddress); // fields by offset: mingw-w64 lacks them
    ASSERT_GE(*reinterpret_cast<const DWORD*>(configuration), 148u) << "of bytes";
    const auto* const fields = reinterpret_cast<const uint64_t*>(configuration + 112);
    const DWORD check = Relative(fields[0]), dispatch = Relative(fields[1]), table = Relative(fields[2]);
    const std::set<DWORD> targets(At<DWORD>(table), At<DWORD>(table) + fields[3]);
    const DWORD guardFlags = *reinterpret_cast<const DWORD*>(configuration + 144);
    EXPECT_EQ(guardFlags & 0x500, 0x500u) << "instrumented, with a table of functions";
    EXPECT_EQ(guardFlags >> 28, 0u) << "bytes for each function beyond its address";
    for (const auto& [ordinal, name] : kExports)
        EXPECT_EQ(targets.count(Relative(reinterpret_cast<uintptr_t>(module.Export<void()>(name.c_str())))), 1u)
            << name;
    for (const DWORD target : targets)
        EXPECT_EQ(AccessAt(target), static_cast<DWORD>(IMAGE_SCN_MEM_READ | IMAGE_SCN_MEM_EXECUTE)) << target;
    for (const DWORD pointer : {check, dispatch})
        EXPECT_EQ(AccessAt(pointer), static_cast<DWORD>(IMAGE_SCN_MEM_READ)) << pointer;

    const IMAGE_SECTION_HEADER* const code = SectionAt(Headers().OptionalHeader.BaseOfCode);
    ASSERT_NE(code, nullptr);
    size_t guarded = 0; // call [rip + distance]
    for (DWORD at = code->VirtualAddress; at + 6 <= code->VirtualAddress + code->Misc.VirtualSize; ++at) {
        DWORD distance = 0;
        memcpy(&distance, At<BYTE>(at + 2), sizeof distance);
        guarded += *At<BYTE>(at) == 0xFF && *At<BYTE>(at + 1) == 0x15 && at + 6 + distance == dispatch;
    }
    EXPECT_GT(guarded, 20u) << "calls through the guard";
}

TEST_F(Image, OnlyItsDataIsWritableAndNothingIsShared) {
    const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(&Headers());
    for (WORD i = 0; i < Headers().FileHeader.NumberOfSections; ++i, ++section) {
        const std::string name(reinterpret_cast<const char*>(section->Name),
                               strnlen(reinterpret_cast<const char*>(section->Name), sizeof section->Name));
        EXPECT_EQ((section->Characteristics & IMAGE_SCN_MEM_WRITE) != 0, name == ".data") << name;
        EXPECT_EQ((section->Characteristics & IMAGE_SCN_MEM_EXECUTE) != 0, name == ".text") << name;
        EXPECT_EQ(section->Characteristics & IMAGE_SCN_MEM_SHARED, 0u) << name << ", between processes";
    }
    const IMAGE_DATA_DIRECTORY& imported = Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
    EXPECT_EQ(AccessAt(imported.VirtualAddress), static_cast<DWORD>(IMAGE_SCN_MEM_READ)) << "imported addresses";
}

// Of a manifest the system would take versions of libraries for the whole process that loads the module.
TEST_F(Image, HasBitmapsAndAVersionAndNothingElseAsResources) {
    std::set<uintptr_t> types;
    EnumResourceTypesW(
        module.handle,
        [](HMODULE, wchar_t* type, LONG_PTR to) -> BOOL {
            reinterpret_cast<std::set<uintptr_t>*>(to)->insert(reinterpret_cast<uintptr_t>(type));
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&types));
    EXPECT_EQ(types,
              (std::set<uintptr_t>{reinterpret_cast<uintptr_t>(RT_BITMAP), reinterpret_cast<uintptr_t>(RT_VERSION)}));
}

TEST_F(Image, IsNoLargerThanItsBudget) {
    EXPECT_LE(std::filesystem::file_size(ProductFolder() / L"TELMAR_D.DLL"), kSizeBudget);
}

TEST_F(Image, HasNoTraceOfTimeAndPlaceOfTheBuild) {
    const IMAGE_DEBUG_DIRECTORY* const reproducible = DebugEntry(kReproducible);
    ASSERT_NE(reproducible, nullptr) << "times in the image are not hashes of its contents";
    EXPECT_EQ(Headers().FileHeader.TimeDateStamp, reproducible->TimeDateStamp);

    for (const auto& [name, start] : {std::pair("TELMAR_D.DLL", "MZ"), std::pair("TELMAR_D.pdb", "Microsoft C/C++")}) {
        std::ifstream stream(ProductFolder() / name, std::ios::binary);
        const std::string file((std::istreambuf_iterator<char>(stream)), {});
        ASSERT_EQ(file.rfind(start, 0), 0u) << name;
        for (const std::string folder : {SOURCE_FOLDER, BUILD_FOLDER}) {
            std::string wide; // as UTF-16; the folder's name is ASCII or not found this way
            for (const char c : folder)
                wide.append({c, '\0'});
            EXPECT_EQ(file.find(folder), std::string::npos) << folder << " in " << name;
            EXPECT_EQ(file.find(wide), std::string::npos) << folder << " in " << name << ", in UTF-16";
        }
    }
}

} // namespace

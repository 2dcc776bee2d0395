// Host only: DllMain and the process-wide handles.
#include "base/module_handles.h"
#include "frame/entry.h"
#include "win32_control.h"

#include <gtest/gtest.h>
#include <tuple>
#include <vector>

namespace {

const auto kInstance = reinterpret_cast<HINSTANCE>(uintptr_t{0x10000});

TEST(Frame, ResourceModuleIsLoadedFromTheModulesFolder) {
    const std::tuple<const wchar_t*, const wchar_t*, bool> cases[] = {
        // module, sibling, whether it is loaded:
        // only the library in the module's folder is loaded, never one by its bare name
        {L"C:\\driver\\TELMAR_D.DLL", L"C:\\driver\\TELMAR_S.DLL", true},
        {L"C:\\Dr\u00FCcker\\\u4E2D\\TELMAR_D.DLL", L"C:\\Dr\u00FCcker\\\u4E2D\\TELMAR_S.DLL", true},
        {L"C:\\TELMAR_D.DLL", L"C:\\TELMAR_S.DLL", true},
        {L"C:\\a\\TELMAR_D.DLL", L"C:\\TELMAR_S.DLL", false},
        {L"C:\\a\\TELMAR_D.DLL", L"TELMAR_S.DLL", false},
    };
    for (const auto& [module, sibling, loads] : cases) {
        win32::Reset();
        win32::SetModuleFileName(module);
        win32::RegisterLibrary(sibling);
        EXPECT_EQ(DllMain(kInstance, DLL_PROCESS_ATTACH, nullptr), TRUE);
        EXPECT_EQ(ModuleInstance(), kInstance);
        EXPECT_EQ(ResourceModule() != nullptr, loads);
        const HMODULE loaded = ResourceModule();
        constexpr DWORD kOtherReasons[] = {DLL_THREAD_ATTACH, DLL_THREAD_DETACH, 17};
        for (const DWORD reason : kOtherReasons) {
            EXPECT_EQ(DllMain(nullptr, reason, nullptr), TRUE);
            EXPECT_EQ(ResourceModule(), loaded);
            EXPECT_EQ(ModuleInstance(), kInstance);
            EXPECT_EQ(win32::Count().libraryReferences, loads ? 1 : 0);
        }
        EXPECT_EQ(DllMain(kInstance, DLL_PROCESS_DETACH, nullptr), TRUE);
        EXPECT_EQ(ResourceModule(), nullptr);
        EXPECT_EQ(win32::Count().libraryReferences, 0);
        EXPECT_EQ(win32::Count().globalBlocks, 0);
    }
}

TEST(Frame, CutModulePathLoadsNoSibling) {
    // The path is cut within the name of a folder, whose parent has another TELMAR_S.DLL.
    std::vector<wchar_t> module(400, L'a');
    module[0] = module[100] = L'\\';
    module.back() = 0;
    std::vector<wchar_t> parentSibling(module.begin(), module.begin() + 101);
    parentSibling.insert(parentSibling.end(), std::begin(L"TELMAR_S.DLL"), std::end(L"TELMAR_S.DLL"));
    win32::RegisterLibrary(parentSibling.data());
    win32::SetModuleFileName(module.data());
    EXPECT_EQ(DllMain(kInstance, DLL_PROCESS_ATTACH, nullptr), TRUE);
    EXPECT_EQ(ResourceModule(), nullptr);
    EXPECT_EQ(DllMain(kInstance, DLL_PROCESS_DETACH, nullptr), TRUE);
}

TEST(Frame, SiblingPathThatDoesNotFitIsRefused) {
    // After a folder of 247 characters there is just room for "TELMAR_S.DLL" and its terminator.
    for (const size_t folder : {246u, 247u, 248u}) {
        std::vector<wchar_t> module(folder, L'a');
        module[0] = module[folder - 1] = L'\\';
        for (const wchar_t c : L"T.DLL")
            module.push_back(c);
        win32::SetModuleFileName(module.data());
        wchar_t path[kPathCapacity];
        EXPECT_EQ(SiblingPath(kInstance, L"TELMAR_S.DLL", path), folder < 248) << folder;
        EXPECT_EQ(path[0], folder < 248 ? L'\\' : L'\0') << folder;
    }
}

} // namespace

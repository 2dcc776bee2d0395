// Loads the built module and counts what the process has.
#include "support/product.h"

#include "support/wine.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

fs::path PathOf(HMODULE module) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(module, path, MAX_PATH);
    return path;
}

} // namespace

fs::path ProductFolder() {
    return PathOf(nullptr).parent_path();
}

fs::path LoadedPath(const wchar_t* name) {
    HMODULE module = GetModuleHandleW(name);
    return module != nullptr ? PathOf(module) : fs::path();
}

LoadedModule::LoadedModule(const fs::path& folder) : handle(LoadLibraryW((folder / L"TELMAR_D.DLL").c_str())) {
    EXPECT_NE(handle, nullptr) << "last error " << GetLastError();
}

TemporaryFolder::TemporaryFolder(const std::wstring& name, const std::vector<std::string>& files)
    : path(fs::temp_directory_path() / (name + std::to_wstring(GetCurrentProcessId()))) {
    fs::remove_all(path); // of an interrupted run
    fs::create_directory(path);
    for (const std::string& file : files) // without '=' the source is the name
        fs::copy_file(ProductFolder() / file.substr(file.find('=') + 1), path / file.substr(0, file.find('=')));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    for (int tries = 0; fs::remove_all(path, error), error && tries < 50; ++tries)
        Sleep(100); // a virus scanner may still look at its files
    EXPECT_FALSE(error) << error.message();
}

Holdings CountHoldings() {
    Holdings held = {};
    PROCESS_HEAP_ENTRY entry = {};
    HeapLock(GetProcessHeap()); // other threads of the system use it, too
    while (HeapWalk(GetProcessHeap(), &entry))
        held.heapBlocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    const DWORD end = GetLastError();
    HeapUnlock(GetProcessHeap());
    EXPECT_EQ(end, static_cast<DWORD>(ERROR_NO_MORE_ITEMS));
    DWORD count = 0;
    if (!IsWine() && GetProcessHandleCount(GetCurrentProcess(), &count)) {
        held.handles = count;
        return held;
    }
    constexpr uintptr_t kMaxHandles = 0x400; // wine does not count them, but knows which are valid
    DWORD flags = 0;
    for (uintptr_t i = 1; i < kMaxHandles; ++i)
        held.handles += GetHandleInformation(reinterpret_cast<HANDLE>(4 * i), &flags) != FALSE;
    return held;
}

testing::AssertionResult HasNoMoreThan(const Holdings& before, size_t others) {
    const Holdings now = CountHoldings();
    const size_t accepted = IsWine() ? 0 : others;
    if (now.heapBlocks <= before.heapBlocks + accepted && now.handles <= before.handles + accepted)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << static_cast<int>(now.heapBlocks - before.heapBlocks) << " more blocks, "
                                       << static_cast<int>(now.handles - before.handles) << " more handles";
}

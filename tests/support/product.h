// The built module as its callers see it: a file that is loaded, asked for exports and freed. Independent of
// the module's sources. Used by all tests of the DLL.
#ifndef SUPPORT_PRODUCT_H
#define SUPPORT_PRODUCT_H

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

// Folder of the running test program, where the build puts the product.
std::filesystem::path ProductFolder();

// Full path of a loaded library; empty when no library of this name is loaded.
std::filesystem::path LoadedPath(const wchar_t* name);

// The module, loaded from a folder and freed at the end.
struct LoadedModule {
    explicit LoadedModule(const std::filesystem::path& folder = ProductFolder());
    ~LoadedModule() { FreeLibrary(handle); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    template <typename Function>
    Function* Export(const char* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(GetProcAddress(handle, name)));
    }

    HMODULE handle;
};

// A folder of the test's own with copies of built files, each given as "NAME" or "NAME=SOURCE". It is removed at the
// end; programs that run at the same time have folders of their own.
struct TemporaryFolder {
    explicit TemporaryFolder(const std::wstring& name, const std::vector<std::string>& files = {});
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path path;
};

// What the process has at present.
struct Holdings {
    size_t heapBlocks;
    size_t handles;
};
Holdings CountHoldings();

// Fails when the process has more than before. On Windows other threads, such as those that load libraries, also have
// blocks and handles: there up to `others` more of each are accepted.
testing::AssertionResult HasNoMoreThan(const Holdings& before, size_t others);

#endif

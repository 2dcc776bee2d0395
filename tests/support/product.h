// The built module as its callers meet it: a file that is loaded, asked for exports and freed. Knows nothing
// of its sources. Used by every test of this folder.
#ifndef SUPPORT_PRODUCT_H
#define SUPPORT_PRODUCT_H

#include <filesystem>
#include <windows.h>

// Folder of the running test program, where the build puts the product.
std::filesystem::path ProductFolder();

// Full path of a library that is loaded in this process; empty when none of this name is.
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

// A folder of the test's own, removed at the end.
struct TemporaryFolder {
    explicit TemporaryFolder(const std::wstring& name);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // Puts a copy of the built file here under this name, and answers its path.
    std::filesystem::path Add(const wchar_t* builtFile, const wchar_t* name) const;

    std::filesystem::path path;
};

// What the process holds now.
struct Holdings {
    size_t heapBlocks;
    size_t handles;
};
Holdings CountHoldings();

#endif

// Module loading from the libraries that a test has registered; owns them, their reference counts and the one
// module file name. A library's handle is the address of its record.
#include "services.h"
#include "unicode.h"
#include "win32_control.h"

#include <algorithm>
#include <list>
#include <string>
#include <vector>

namespace {

struct Library {
    std::string path;
    std::vector<win32::Export> exports;
    int references;
};

std::list<Library> libraries;
std::vector<std::string> libraryCalls; // in the words of LibraryCalls()
std::vector<wchar_t> moduleFileName;   // with its terminator; empty: not set

Library* FromHandle(HMODULE handle) {
    for (Library& library : libraries)
        if (reinterpret_cast<HMODULE>(&library) == handle && library.references > 0)
            return &library;
    return nullptr;
}

} // namespace

HMODULE WINAPI LoadLibraryW(LPCWSTR path) {
    const std::string wanted = win32::ToUtf8(path);
    libraryCalls.push_back("load " + wanted);
    for (Library& library : libraries)
        if (library.path == wanted) {
            ++library.references;
            return reinterpret_cast<HMODULE>(&library);
        }
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

FARPROC WINAPI GetProcAddress(HMODULE handle, LPCSTR name) {
    libraryCalls.push_back(std::string("find ") + name);
    if (const Library* library = FromHandle(handle))
        for (const win32::Export& function : library->exports)
            if (std::string(function.name) == name)
                return function.function;
    SetLastError(ERROR_PROC_NOT_FOUND);
    return nullptr;
}

BOOL WINAPI FreeLibrary(HMODULE handle) {
    Library* library = FromHandle(handle);
    if (library == nullptr)
        return win32::Fail(ERROR_INVALID_HANDLE);
    libraryCalls.push_back("free " + library->path);
    --library->references;
    win32::Released();
    return TRUE;
}

DWORD WINAPI GetModuleFileNameW(HMODULE, LPWSTR path, DWORD capacity) {
    if (moduleFileName.empty() || capacity == 0)
        return win32::Fail(moduleFileName.empty() ? ERROR_MOD_NOT_FOUND : ERROR_INSUFFICIENT_BUFFER);
    const bool fits = moduleFileName.size() <= capacity;
    const auto length = static_cast<DWORD>(fits ? moduleFileName.size() - 1 : capacity - 1);
    std::copy_n(moduleFileName.begin(), length, path);
    path[length] = 0;
    SetLastError(fits ? 0 : ERROR_INSUFFICIENT_BUFFER);
    return fits ? length : capacity;
}

namespace win32 {

void ResetModules() {
    libraries.clear();
    libraryCalls.clear();
    moduleFileName.clear();
}

int LiveLibraryReferences() {
    int references = 0;
    for (const Library& library : libraries)
        references += library.references;
    return references;
}

void RegisterLibrary(const wchar_t* path, const std::vector<Export>& exports) {
    libraries.push_back({ToUtf8(path), exports, 0});
}

std::vector<std::string> LibraryCalls() {
    return libraryCalls;
}

void SetModuleFileName(const wchar_t* path) {
    moduleFileName = Copy(path);
}

} // namespace win32

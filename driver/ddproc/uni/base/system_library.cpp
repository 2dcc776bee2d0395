// Loads libraries of the system by their full path; the version of the system.
#include "base/system_library.h"

#include "base/module_handles.h"
#include "base/text.h"

#include <cstring>

HMODULE LoadSystemLibrary(const wchar_t* fileName) {
    wchar_t path[kPathCapacity];
    const size_t nameLength = TextLength(fileName);
    size_t length = GetSystemDirectoryW(path, kPathCapacity);
    if (length == 0 || length + 1 + nameLength >= kPathCapacity)
        return nullptr; // a cut path could lead to another file
    path[length++] = L'\\';
    memcpy(path + length, fileName, (nameLength + 1) * sizeof(wchar_t));
    return LoadLibraryW(path);
}

OSVERSIONINFOW SystemVersion() {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof(version);
    GetVersionExW(&version);
    return version;
}

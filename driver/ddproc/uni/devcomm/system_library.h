// Libraries of the system that are loaded at run time, by their full path in the system directory.
#ifndef DEVCOMM_SYSTEM_LIBRARY_H
#define DEVCOMM_SYSTEM_LIBRARY_H

#include <windows.h>

// The caller frees it. Null with the last error of the failed load.
HMODULE LoadSystemLibrary(const wchar_t* fileName);

// An entry point of a library under its type; null when the library lacks it.
template <typename Function>
Function* FindEntryPoint(HMODULE library, const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
}

// Version of the running system; all 0 when it can't be asked.
OSVERSIONINFOW SystemVersion();

#endif

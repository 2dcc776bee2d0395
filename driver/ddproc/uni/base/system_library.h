// Libraries of the system that are loaded at run time, by their full path in the system directory.
#ifndef BASE_SYSTEM_LIBRARY_H
#define BASE_SYSTEM_LIBRARY_H

#include <windows.h>

// The caller frees it. Null with the last error of the failed load.
HMODULE LoadSystemLibrary(const wchar_t* fileName);

// Version of the running system; all 0 when it can't be asked.
OSVERSIONINFOW SystemVersion();

#endif

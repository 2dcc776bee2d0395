// Loads libraries of the system by their full path, so that no other file of that name is found.
#ifndef BASE_SYSTEM_LIBRARY_H
#define BASE_SYSTEM_LIBRARY_H

#include <windows.h>

// The caller frees it. Null with the last error of the failed load.
HMODULE LoadSystemLibrary(const wchar_t* fileName);

// Version of the running system; all 0 when it is unknown.
OSVERSIONINFOW SystemVersion();

#endif

// Entry points that are found at run time, under their types. For every subsystem.
#ifndef BASE_ENTRY_POINT_H
#define BASE_ENTRY_POINT_H

#include <windows.h>

// An entry point that is kept without its type; null stays null.
template <typename Function>
Function* AsFunction(FARPROC entryPoint) {
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(entryPoint));
}

// Null when the library lacks it.
template <typename Function>
Function* FindEntryPoint(HMODULE library, const char* name) {
    return AsFunction<Function>(GetProcAddress(library, name));
}

#endif

// Typed access to entry points that are found at run time.
#ifndef BASE_ENTRY_POINT_H
#define BASE_ENTRY_POINT_H

#include <windows.h>

// An entry point that is stored without its type. Null stays null.
template <typename Function>
Function* AsFunction(FARPROC entryPoint) {
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(entryPoint));
}

// Null when the library lacks the entry point.
template <typename Function>
Function* FindEntryPoint(HMODULE library, const char* name) {
    return AsFunction<Function>(GetProcAddress(library, name));
}

#endif

// The module's process-wide handles, and paths of files in its folder. The handles are written at process
// attach and detach, and only read in between.
#ifndef BASE_MODULE_HANDLES_H
#define BASE_MODULE_HANDLES_H

#include <windows.h>

// The module's own instance handle, set first thing at process attach.
HINSTANCE ModuleInstance();
void SetModuleInstance(HINSTANCE instance);

// TELMAR_S.DLL with the model's dialog templates; null when it is missing or the module is detached.
HMODULE ResourceModule();
void SetResourceModule(HMODULE module);

constexpr size_t kPathCapacity = 260;

// Full path of a file in the module's folder. False, with an empty path, when the module's own path is
// unknown or the result would not fit: a bare name or a cut path could lead to another file.
bool SiblingPath(HINSTANCE instance, const wchar_t* fileName, wchar_t (&path)[kPathCapacity]);

#endif

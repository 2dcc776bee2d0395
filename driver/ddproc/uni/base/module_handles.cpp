// The module's process-wide handles, and paths of files in its folder.
#include "base/module_handles.h"

#include "base/text.h"

#include <cstring>

namespace {

HINSTANCE moduleInstance;
HMODULE resourceModule;

} // namespace

HINSTANCE ModuleInstance() {
    return moduleInstance;
}

void SetModuleInstance(HINSTANCE instance) {
    moduleInstance = instance;
}

HMODULE ResourceModule() {
    return resourceModule;
}

void SetResourceModule(HMODULE module) {
    resourceModule = module;
}

bool SiblingPath(HINSTANCE instance, const wchar_t* fileName, wchar_t (&path)[kPathCapacity]) {
    memset(path, 0, sizeof(path));
    wchar_t modulePath[kPathCapacity];
    size_t directory = GetModuleFileNameW(instance, modulePath, kPathCapacity);
    if (directory >= kPathCapacity)
        return false; // the path is cut
    while (directory > 0 && modulePath[directory - 1] != L'\\' && modulePath[directory - 1] != L'/')
        --directory;
    const size_t nameLength = TextLength(fileName);
    if (directory == 0 || directory + nameLength >= kPathCapacity)
        return false;
    memcpy(path, modulePath, directory * sizeof(wchar_t));
    memcpy(path + directory, fileName, nameLength * sizeof(wchar_t));
    return true;
}

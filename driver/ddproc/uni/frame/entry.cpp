// Start-up and shut-down order of the module.
#include "frame/entry.h"

#include "base/module_handles.h"
#include "devcomm/snmp/snmp_entry_points.h"
#include "frame/device_data.h"

namespace {

void LoadResourceModule() {
    wchar_t path[kPathCapacity];
    if (SiblingPath(ModuleInstance(), L"TELMAR_S.DLL", path))
        SetResourceModule(LoadLibraryW(path));
}

void FreeResourceModule() {
    if (ResourceModule() != nullptr)
        FreeLibrary(ResourceModule());
    SetResourceModule(nullptr);
}

void Attach(HINSTANCE instance) {
    SetModuleInstance(instance);
    SnmpApiBind();
    LoadResourceModule();
    InitDeviceData(instance);
}

void Detach() {
    SnmpApiRelease();
    FreeResourceModule();
    FreeDeviceData();
}

} // namespace

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH)
        Attach(instance);
    else if (reason == DLL_PROCESS_DETACH)
        Detach();
    return TRUE;
}

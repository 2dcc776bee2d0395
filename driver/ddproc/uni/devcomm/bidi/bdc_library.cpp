// Loads the bidirectional library and finds its entry points.
#include "devcomm/bidi/bdc_library.h"

#include "base/module_handles.h"
#include "devcomm/bidi/locked_block.h"

#include <iterator>

namespace {

constexpr const wchar_t* kLibraryName = L"TELMAR_B.DLL";

constexpr const char* kNames[] = {
    "BdcGetLibVersion",
    "BdcGetDevIpAddress",
    "BdcGetDevCommInfo",
    "BdcGetDevName",
    "BdcGetDevMemoryCapacity",
    "BdcGetDevFirmwareVersion",
    "BdcGetDevOptionInfo",
    "BdcGetDevInputTrayInfo",
    "BdcGetDevInputTrayInfoEx",
    "BdcGetDevOutputTrayInfo",
    "BdcGetDevMediaPathInfo",
    "BdcGetDevFinisherInfo",
    "BdcGetDevStatus",
    "BdcBeginDevEventNotify",
    "BdcEndDevEventNotify",
    "BdcBeginNotifyPrint",
    "BdcGetDevJobHistoryList",
    "BdcEndNotifyPrint",
    "BdcBeginNotifyJobCompletion",
    "BdcGetReceiveAddress",
    "BdcEndNotifyJobCompletion",
};
static_assert(std::size(kNames) == kBdcFunctionCount);

// Libraries that the bidirectional library needs.
constexpr const wchar_t* kSystemLibraries[] = {L"KERNEL32.DLL", L"WS2_32.DLL", L"WSOCK32.DLL"};

bool CanLoad(const wchar_t* name) {
    const HMODULE library = LoadLibraryW(name);
    return library != nullptr && FreeLibrary(library);
}

} // namespace

int32_t BdcLoadLibrary(BdcFunctionTable* table, const wchar_t* path) {
    if (table == nullptr)
        return sizeof(BdcFunctionTable);
    *table = {};
    table->library = LoadLibraryW(path);
    if (table->library == nullptr)
        return 0;
    for (uint32_t i = 0; i < kBdcFunctionCount; ++i) {
        table->entryPoints[i] = GetProcAddress(table->library, kNames[i]);
        if (table->entryPoints[i] == nullptr) {
            BdcFreeLibrary(*table);
            return 0;
        }
    }
    return 1;
}

void BdcFreeLibrary(BdcFunctionTable& table) {
    if (table.library != nullptr)
        FreeLibrary(table.library);
    table = {};
}

bool BdcLoadFromAnywhere(BdcFunctionTable& table) {
    wchar_t path[kPathCapacity];
    return BdcLoadLibrary(&table, kLibraryName) != 0
           || (SiblingPath(ModuleInstance(), kLibraryName, path) && BdcLoadLibrary(&table, path) != 0);
}

bool BdcIsLibraryUsable() {
    auto* table = AllocateLocked<BdcFunctionTable>();
    if (table == nullptr)
        return false;
    bool usable = BdcLoadFromAnywhere(*table);
    for (size_t i = 0; i < std::size(kSystemLibraries) && usable; ++i)
        usable = CanLoad(kSystemLibraries[i]);
    BdcFreeLibrary(*table);
    FreeLocked(table);
    return usable;
}

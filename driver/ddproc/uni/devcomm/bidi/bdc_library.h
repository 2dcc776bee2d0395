// The driver family's bidirectional library, TELMAR_B.DLL: its entry points, loading and freeing. It is
// loaded only during an export call.
#ifndef DEVCOMM_BIDI_BDC_LIBRARY_H
#define DEVCOMM_BIDI_BDC_LIBRARY_H

#include <cstddef>
#include <cstdint>
#include <windows.h>

// The entry points, in the order of their slots. A library that lacks one does not count as loaded.
enum BdcFunction : uint32_t {
    kBdcGetLibVersion,
    kBdcGetDevIpAddress,
    kBdcGetDevCommInfo,
    kBdcGetDevName,
    kBdcGetDevMemoryCapacity,
    kBdcGetDevFirmwareVersion,
    kBdcGetDevOptionInfo,
    kBdcGetDevInputTrayInfo,
    kBdcGetDevInputTrayInfoEx,
    kBdcGetDevOutputTrayInfo,
    kBdcGetDevMediaPathInfo,
    kBdcGetDevFinisherInfo,
    kBdcGetDevStatus,
    kBdcBeginDevEventNotify,
    kBdcEndDevEventNotify,
    kBdcBeginNotifyPrint,
    kBdcGetDevJobHistoryList,
    kBdcEndNotifyPrint,
    kBdcBeginNotifyJobCompletion,
    kBdcGetReceiveAddress,
    kBdcEndNotifyJobCompletion,
    kBdcFunctionCount,
};

struct BdcFunctionTable {
    HMODULE library; // null: not loaded
    FARPROC entryPoints[kBdcFunctionCount];
    FARPROC reserved[9];
};
static_assert(sizeof(BdcFunctionTable) == 248 && offsetof(BdcFunctionTable, entryPoints) == 8);

// 1 when the library of this path, or of this bare name in the system's search order, has been loaded into
// the table, 0 and the table cleared otherwise. Without a table its size.
int32_t BdcLoadLibrary(BdcFunctionTable* table, const wchar_t* path);
void BdcFreeLibrary(BdcFunctionTable& table);

// Loads it by its bare name, otherwise from the folder of the module. A library that lacks an entry point is
// freed.
bool BdcLoadFromAnywhere(BdcFunctionTable& table);

// Whether it and the system's libraries that it needs can be loaded. Nothing stays loaded.
bool BdcIsLibraryUsable();

#endif

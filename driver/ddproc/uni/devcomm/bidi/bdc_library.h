// The driver family's bidirectional library, TELMAR_B.DLL: its entry points, and how it is found, loaded and
// freed. It stays loaded no longer than the export call that asks for it.
#ifndef DEVCOMM_BIDI_BDC_LIBRARY_H
#define DEVCOMM_BIDI_BDC_LIBRARY_H

#include <cstddef>
#include <cstdint>
#include <windows.h>

// The entry points, in the order of their slots. All must be there for the library to count as loaded.
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

// Loads it by its bare name, or else from the module's own folder.
bool BdcLoadFromAnywhere(BdcFunctionTable& table);

// Whether it can be loaded, and the libraries of the system that it stands on too. Nothing stays loaded.
BOOL BdcIsLibraryUsable();

#endif

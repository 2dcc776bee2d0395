// Shared by the source files: a reset function for each service, and the record of calls.
#ifndef WIN32_SERVICES_H
#define WIN32_SERVICES_H

#include <string>
#include <windows.h>

namespace win32 {

void ResetCalls();
void ResetCodePages();
void ResetFiles();
void ResetHeaps();
void ResetModules();
void ResetSockets();
void ResetRegistry();
void ResetSpooler();
void ResetSystem();

// Current numbers for Count().
int LiveFiles();
int LiveLibraryReferences();
int LiveSockets();
int LiveSocketUses();
int LivePrinters();
int LiveRegistryKeys();

// Records a call. The error with which it has to fail, 0 when it may go on; sets no last error.
DWORD RecordCall(const std::string& call);

// Sets the last error if a test wants releases to.
void Released();

// Sets the last error. Returns false, which callers return as FALSE or 0.
inline bool Fail(DWORD error) {
    SetLastError(error);
    return false;
}

} // namespace win32

#endif

// A port monitor for the system's spooler, as the tests install it. A port whose name begins with "IP_" has
// the rest of the name as its address; it is reported without a terminator. Of any other port it says that it
// knows no address.
#include <cstring>
#include <cwchar>
#include <windows.h>
#include <winspool.h>
// What it declares needs the header above.
#include <winsplp.h>

namespace {

// The handle of an open transceiver is a copy of the port's name.
BOOL WINAPI OpenTransceiver(LPCWSTR port, ACCESS_MASK /*granted*/, PHANDLE handle) {
    *handle = _wcsdup(port);
    return TRUE;
}

DWORD WINAPI Answer(HANDLE handle, LPCWSTR command, PBYTE /*input*/, DWORD /*inputSize*/, PBYTE output, DWORD capacity,
                    PDWORD needed) {
    const auto* port = static_cast<const wchar_t*>(handle);
    if (wcscmp(command, L"IPAddress") != 0 || wcsncmp(port, L"IP_", 3) != 0)
        return ERROR_INVALID_PARAMETER;
    const wchar_t* address = port + 3;
    *needed = static_cast<DWORD>(wcslen(address) * sizeof(wchar_t));
    if (capacity < *needed)
        return ERROR_INSUFFICIENT_BUFFER;
    memcpy(output, address, *needed);
    return ERROR_SUCCESS;
}

BOOL WINAPI CloseTransceiver(HANDLE handle) {
    free(handle);
    return TRUE;
}

} // namespace

extern "C" LPMONITOREX WINAPI InitializePrintMonitor(LPWSTR /*registryRoot*/) {
    static MONITOREX monitor = {};
    monitor.dwMonitorSize = sizeof(monitor.Monitor);
    monitor.Monitor.pfnXcvOpenPort = OpenTransceiver;
    monitor.Monitor.pfnXcvDataPort = Answer;
    monitor.Monitor.pfnXcvClosePort = CloseTransceiver;
    return &monitor;
}

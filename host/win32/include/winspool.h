// The host's replacement for the system's header of this name: the spooler calls that the module makes, on
// queues and port transceivers that a test has registered. Every call but ClosePrinter is recorded and can be
// made to fail.
#ifndef WIN32_WINSPOOL_H
#define WIN32_WINSPOOL_H

#include <windows.h>

#define ERROR_INVALID_PRINTER_NAME 1801

#define SERVER_ACCESS_ADMINISTER 0x00000001u

struct PRINTER_DEFAULTSW {
    LPWSTR pDatatype;
    struct DEVMODEW* pDevMode;
    DWORD DesiredAccess;
};

struct PRINTER_INFO_2W {
    LPWSTR pServerName;
    LPWSTR pPrinterName;
    LPWSTR pShareName;
    LPWSTR pPortName;
    LPWSTR pDriverName;
    LPWSTR pComment;
    LPWSTR pLocation;
    struct DEVMODEW* pDevMode;
    LPWSTR pSepFile;
    LPWSTR pPrintProcessor;
    LPWSTR pDatatype;
    LPWSTR pParameters;
    LPVOID pSecurityDescriptor;
    DWORD Attributes;
    DWORD Priority;
    DWORD DefaultPriority;
    DWORD StartTime;
    DWORD UntilTime;
    DWORD Status;
    DWORD cJobs;
    DWORD AveragePPM;
};
static_assert(sizeof(PRINTER_INFO_2W) == 136);

extern "C" {

// A null name is the local print server's.
BOOL WINAPI OpenPrinterW(LPWSTR name, HANDLE* printer, PRINTER_DEFAULTSW* defaults);
BOOL WINAPI GetPrinterW(HANDLE printer, DWORD level, BYTE* info, DWORD capacity, DWORD* needed); // level 2
BOOL WINAPI ClosePrinter(HANDLE printer);

// Reports the size of the reply even in a call that has been made to fail.
BOOL WINAPI XcvDataW(HANDLE transceiver, LPCWSTR command, BYTE* input, DWORD inputSize, BYTE* output,
                     DWORD capacity, DWORD* needed, DWORD* status);
}

#endif

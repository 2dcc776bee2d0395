// The network address of the printer behind a print queue: from the caller's settings record, from the
// queue's port monitor, or from the registry keys of port monitors.
#ifndef DEVCOMM_ADDRESS_PRINTER_ADDRESS_H
#define DEVCOMM_ADDRESS_PRINTER_ADDRESS_H

#include <cstddef>
#include <cstdint>
#include <windows.h>

// The caller's settings record, as far as it is read here; the rest belongs to the user-interface module.
#pragma pack(push, 1)
struct AddressSettings {
    uint8_t notRead[562];
    uint8_t hasAddress; // non-zero: `address` holds, and the queue is not asked
    uint8_t unused;
    wchar_t address[1]; // as long as it takes, NUL-terminated
};
#pragma pack(pop)
static_assert(offsetof(AddressSettings, hasAddress) == 562 && offsetof(AddressSettings, address) == 564);

extern "C" {

// Answers the address as 8-bit text in the system's ANSI code page. `bufferSize` and `*neededSize` count
// octets, the terminating NUL included; `neededSize` may be null. The printer's name is as OpenPrinterW takes
// it.
//
// From the record (`hasAddress`): TRUE when the address has been stored. FALSE for an empty address or one
// that can't be converted; FALSE with `*neededSize` when the buffer is smaller. The last error stays.
//
// From the queue's port: TRUE with `*neededSize` when the address has been stored, and also, with last error
// 122 (ERROR_INSUFFICIENT_BUFFER), when the buffer is null or smaller. FALSE when the printer can't be
// opened, its port can't be read or no address is known for the port; the last error is then as the system
// left it.
//
// FALSE, and nothing else, when `settings` is null. What is not mentioned stays untouched.
BOOL WINAPI DDProc_GetPrinterIPAddress(const wchar_t* printerName, const AddressSettings* settings,
                                       char* buffer, DWORD bufferSize, DWORD* neededSize);
}

#endif

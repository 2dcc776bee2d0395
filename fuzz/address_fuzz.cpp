// Fuzz target: any bytes as what a print server says of a queue's port: the reply of its transceiver, its value in the
// registry and the size of the queue's block. The first byte is the buffer's size, the second selects the source, the
// third is the block's size or the status of the reply.
#include "require.h"

#include "telmar_d.h"
#include "win32_control.h"

#include <algorithm>
#include <memory>
#include <winspool.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    if (count < 3)
        return 0;
    const std::vector<BYTE> text(octets + 3, octets + count);
    win32::SetAnsiCodePage((octets[1] & 4) != 0 ? 65001 : 1252);
    win32::RegisterQueue({L"Lumora", L"IP_1", (octets[1] & 1) != 0 ? DWORD{0} : octets[2]});
    if ((octets[1] & 2) != 0)
        win32::RegisterTransceiver(L",XcvPort IP_1", text, octets[2] & 1);
    win32::RegisterLibrary(L"C:\\Windows\\system32\\WINSPOOL.DRV", {{"XcvDataW", XcvDataW}});
    win32::SetRegistryValue(L"System\\CurrentControlSet\\Control\\Print\\Monitors\\LPR Port\\Ports\\IP_1",
                            L"Server Name", text);
    const TelmarAddressSettings ofQueue = {};
    const DWORD size = octets[0];
    const std::unique_ptr<char[]> buffer(new char[size]); // nothing may be written behind it
    std::fill_n(buffer.get(), size, '#');
    DWORD needed = 0;
    const BOOL answered = DDProc_GetPrinterIPAddress(L"Lumora", &ofQueue, buffer.get(), size, &needed);
    const char* end = std::find(buffer.get(), buffer.get() + size, '\0');
    const bool isStored = end != buffer.get() + size;
    Require(!isStored || answered, "a text without success");
    Require(!answered || isStored || needed == 0 || needed > size, "no text, although it fits");
    Require(!isStored || needed == static_cast<DWORD>(end - buffer.get()) + 1, "another size than that of the text");
    const win32::Counts counts = win32::Count();
    Require(counts.printers == 0 && counts.registryKeys == 0 && counts.globalBlocks == 0
                && counts.libraryReferences == 0,
            "something is left over");
    win32::Reset();
    return 0;
}

// Control of the host's replacement for Windows by tests: injected failures, scripted services, counts of
// what is open. Used by host tests and fuzz targets only; not safe for several threads at once.
#ifndef WIN32_WIN32_CONTROL_H
#define WIN32_WIN32_CONTROL_H

#include <windows.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace win32 {

// Resets everything: no faults, no libraries, no module file name, all counts 0. Call it while nothing is
// open.
void Reset();

// What is open now, and what has been requested since the reset. A block released to the wrong heap shows as
// a negative number.
struct Counts {
    int globalBlocks;
    int localBlocks;
    int files;
    int libraryReferences;
    int sockets;
    int socketUses; // WSAStartup without its WSACleanup
    int printers;   // open ones, transceivers included
    int registryKeys;
    unsigned allocations;  // of both heaps, failed ones included
    size_t allocatedBytes; // sum of all that succeeded
};
Counts Count();

// Makes allocations fail, of either heap: from this one on (1: the next), that many. 0: none.
void FailAllocations(unsigned first, unsigned howMany = 1);

struct FileFaults {
    unsigned failingRead = 0; // the read of this number from now fails (1: the next one); 0: none
    DWORD mostPerRead = 0;    // bytes that one read delivers at most; 0: no limit
    bool sizeFails = false;
    bool seekFails = false;
    DWORD missing = 0; // bytes by which a file is shorter than its size, as when it has been cut meanwhile
};
void SetFileFaults(const FileFaults& ordered);

// One function of a library, with any signature.
struct Export {
    template <typename Result, typename... Arguments>
    Export(const char* exportName, Result (*exportFunction)(Arguments...))
        : name(exportName),
          function(reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(exportFunction))) {}

    const char* name;
    FARPROC function;
};

// Makes LoadLibraryW of exactly this path succeed until the reset.
void RegisterLibrary(const wchar_t* path, const std::vector<Export>& exports = {});

// The calls for libraries since the reset, in order: "load PATH", "find NAME", "free PATH".
std::vector<std::string> LibraryCalls();

// The result of GetModuleFileNameW for every module. Without it the call fails.
void SetModuleFileName(const wchar_t* path);

// Version of the system: platform family and major number.
void SetVersion(DWORD id, DWORD major);

// Without a separator at its end. The default is "C:\\Windows\\system32".
void SetSystemDirectory(const wchar_t* path);

// The calls of the spooler, the registry and the code page conversion since the reset, each as one line: the
// function and its arguments, such as "XcvDataW IPAddress 512".
const std::vector<std::string>& Calls();

// Makes a recorded call fail with this error: the n-th from now on (1: the next). 0: none.
void FailCall(unsigned number, DWORD error);

// From now on, calls that close or free something (a printer, a registry key, a library, a heap block) also
// set the last error, as a system may.
void LetReleasesSetLastError(DWORD error);

// A print queue. A null port: none is reported.
struct Queue {
    const wchar_t* name;
    const wchar_t* port;
    // Size of the level 2 block in bytes, if not as large as its contents; the port's name is last.
    DWORD infoSize = 0;
};
void RegisterQueue(const Queue& queue);

// The transceiver that OpenPrinterW opens by this name (null: the local print server) with administer rights,
// and its reply to every command. `status` is that of the call that fetches the reply.
void RegisterTransceiver(const wchar_t* name, const std::vector<BYTE>& reply, DWORD status = 0);

// A key under HKEY_LOCAL_MACHINE, and a value in it. Names are compared with case.
void AddRegistryKey(const wchar_t* path);
void SetRegistryValue(const wchar_t* path, const wchar_t* name, const std::vector<BYTE>& data);

// The default is 1252.
void SetAnsiCodePage(UINT codePage);

using Datagram = std::vector<uint8_t>;

// A scripted network between Windows Sockets and an agent. Errors are those of Windows
// Sockets; 0: the call succeeds.
struct Wire {
    int startupError = 0;
    WORD versionGranted = 0x0101;
    int socketError = 0;
    int connectError = 0;
    int optionError = 0;
    unsigned failingSend = 0; // the send of this number fails (1: the first); 0: none
    std::map<std::string, std::vector<uint32_t>> hosts; // addresses by name, in network order
    unsigned pollsUntilSeen = 0;                        // that many polls after a send see nothing yet
    // What comes back for a datagram; without it nothing does.
    std::function<std::vector<Datagram>(const Datagram& sent)> answer;
};

// Until the reset sockets reach only this wire. It carries UDP over IPv4; other arguments fail.
void SetWire(const Wire& scripted);

// The datagrams and calls on the wire.
struct WireRecord {
    std::vector<Datagram> sent;
    unsigned polls;
    unsigned receives;
    uint32_t address; // of the last connection, network order
    uint16_t port;
    DWORD receiveLimit; // ms, as set; 0: none
};
WireRecord ReadWire();

// Without a wire: connections to one UDP port of the host go to another.
void RedirectPort(uint16_t port, uint16_t to);

} // namespace win32

#endif

// The network address of a printer: see the header. One function for each step: the record, the queue's port,
// the port monitor's transceiver, the registry. Each closes what it has opened.
#include "base/records.h"

#include "base/entry_point.h"
#include "base/scope_guard.h"
#include "base/system_library.h"
#include "base/text.h"

#include <cstring>
#include <iterator>
#include <winspool.h>

namespace {

// Where the address goes, and what the thread's last error was before the call.
struct Caller {
    char* buffer;
    DWORD bufferSize;
    DWORD* neededSize;
    DWORD lastError;
};

// UTF-16 text that may lack its terminator.
struct WideText {
    const wchar_t* at;
    size_t length; // characters before the terminator or the end of what has been read
};

// Port monitors that keep a port's address in the registry, in the order in which they are tried.
constexpr wchar_t kMonitorsKey[] = L"System\\CurrentControlSet\\Control\\Print\\Monitors\\";
// clang-format off
constexpr struct PortMonitor {
    const wchar_t* portsKey; // under the monitors' key; the port's name follows
    const wchar_t* value;
} kPortMonitors[] = {
    {L"Standard TCP/IP Port\\Ports\\",    L"IPAddress"},
    {L"Tarn Port\\Ports\\",               L"IPAddress"},
    {L"Vesper Port\\Ports\\",             L"IPAddress"},
    {L"LPR Port\\Ports\\",                L"Server Name"},
    {L"Vesper Port+\\Ports\\",            L"IPAddress"},
    {L"Digital Network Port\\Ports\\",    L"TCP/IP Address"},
    {L"HP Standard TCP/IP Port\\Ports\\", L"IPAddress"},
};
// clang-format on

constexpr size_t kKeyPathCapacity = 1024; // characters, the terminator included
using KeyPath = wchar_t[kKeyPathCapacity];
using RegistryValue = wchar_t[256];

// The text that begins here, in a block that ends there. One that begins elsewhere ends at its terminator.
WideText TextWithin(const void* begin, const void* end) {
    const auto* text = static_cast<const wchar_t*>(begin);
    const size_t most =
        (reinterpret_cast<uintptr_t>(end) - reinterpret_cast<uintptr_t>(begin)) / sizeof(wchar_t);
    size_t length = 0;
    while (length < most && text[length] != 0)
        ++length;
    return {text, length};
}

// Octets that the text takes in the ANSI code page, its NUL included; 0: it can't be converted.
DWORD ConvertedSize(const WideText& text) {
    if (text.length == 0)
        return 1; // the system declines to convert nothing
    const int octets = WideCharToMultiByte(GetACP(), 0, text.at, static_cast<int>(text.length), nullptr, 0,
                                           nullptr, nullptr);
    return octets > 0 ? static_cast<DWORD>(octets) + 1 : 0;
}

// Converts into the buffer, which has room for `size`: what ConvertedSize has answered. Octets stored, the
// NUL included; 0: the conversion failed.
DWORD Convert(const WideText& text, char* buffer, DWORD size) {
    int octets = 0;
    if (text.length != 0) {
        octets = WideCharToMultiByte(GetACP(), 0, text.at, static_cast<int>(text.length), buffer,
                                     static_cast<int>(size - 1), nullptr, nullptr);
        if (octets <= 0)
            return 0;
    }
    buffer[octets] = 0;
    return static_cast<DWORD>(octets) + 1;
}

bool HasRoom(const Caller& caller, DWORD size) {
    return caller.buffer != nullptr && size <= caller.bufferSize;
}

void StoreSize(const Caller& caller, DWORD size) {
    if (caller.neededSize != nullptr)
        *caller.neededSize = size;
}

// On the port's roads a call that has no room for the address succeeds, and says so this way.
void StoreSizeOnly(const Caller& caller, DWORD size) {
    StoreSize(caller, size);
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
}

bool AnswerFromRecord(const AddressSettings& settings, const Caller& caller) {
    const wchar_t* address = settings.address;
    const WideText text = {address, TextLength(address)};
    const DWORD size = text.length != 0 ? ConvertedSize(text) : 0;
    if (size == 0)
        return false;
    if (size > caller.bufferSize) {
        StoreSize(caller, size);
        return false;
    }
    return caller.buffer != nullptr && Convert(text, caller.buffer, size) != 0;
}

// The name by which OpenPrinterW opens the port's transceiver, to be released by GlobalFree; null: no memory.
wchar_t* MakeTransceiverName(const WideText& portName) {
    constexpr wchar_t kPrefix[] = L",XcvPort ";
    const size_t portOctets = portName.length * sizeof(wchar_t);
    auto* name = static_cast<wchar_t*>(GlobalAlloc(GPTR, sizeof(kPrefix) + portOctets));
    if (name == nullptr)
        return nullptr;
    memcpy(name, kPrefix, sizeof(kPrefix));
    memcpy(name + std::size(kPrefix) - 1, portName.at, portOctets); // the block is zero behind it
    return name;
}

// False when the text can't be converted.
bool AnswerWithReply(const WideText& reply, const Caller& caller) {
    const DWORD size = ConvertedSize(reply);
    if (size == 0)
        return false;
    if (!HasRoom(caller, size)) {
        StoreSizeOnly(caller, size);
        return true;
    }
    const DWORD stored = Convert(reply, caller.buffer, size);
    if (stored == 0)
        return false;
    StoreSize(caller, stored);
    return true;
}

// A null name opens the local print server. False when there is no usable reply.
bool AnswerFromTransceiver(wchar_t* name, const Caller& caller) {
    PRINTER_DEFAULTSW wanted = {nullptr, nullptr, SERVER_ACCESS_ADMINISTER};
    HANDLE printer = nullptr;
    if (!OpenPrinterW(name, &printer, &wanted))
        return false;
    const ScopeGuard closePrinter{[printer] { ClosePrinter(printer); }};
    const HMODULE library = LoadSystemLibrary(L"WINSPOOL.DRV");
    if (library == nullptr)
        return false;
    const ScopeGuard freeLibrary{[library] { FreeLibrary(library); }};
    const auto xcvData = FindEntryPoint<decltype(XcvDataW)>(library, "XcvDataW");
    if (xcvData == nullptr)
        return false;

    constexpr wchar_t kCommand[] = L"IPAddress";
    DWORD size = 0;
    DWORD status = 0;
    xcvData(printer, kCommand, nullptr, 0, nullptr, 0, &size, &status);
    if (size == 0)
        return false;
    auto* reply = static_cast<BYTE*>(GlobalAlloc(GPTR, size));
    if (reply == nullptr)
        return false;
    const ScopeGuard freeReply{[reply] { GlobalFree(reply); }};
    DWORD replySize = 0;
    status = 0;
    // The call itself succeeds when the port monitor refuses the command; the status then says so.
    if (!xcvData(printer, kCommand, nullptr, 0, reply, size, &replySize, &status) || status != 0)
        return false;
    return AnswerWithReply(TextWithin(reply, reply + size), caller);
}

// Appends what still fits; the path stays terminated.
void AppendPortName(KeyPath& path, const WideText& portName) {
    size_t length = TextLength(path);
    for (size_t i = 0; i < portName.length && length < kKeyPathCapacity - 1; ++i)
        path[length++] = portName.at[i];
    path[length] = 0;
}

// What the registry holds for the port under this monitor, of whatever type; false: nothing that could be
// read. The text refers to `value`.
bool ReadPortValue(const PortMonitor& monitor, const WideText& portName, RegistryValue& value,
                   WideText& text) {
    KeyPath path;
    CopyText(path, kMonitorsKey);
    AppendText(path, monitor.portsKey);
    AppendPortName(path, portName);
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    const ScopeGuard closeKey{[key] { RegCloseKey(key); }};
    auto* octets = reinterpret_cast<BYTE*>(value);
    DWORD size = sizeof(value);
    if (RegQueryValueExW(key, monitor.value, nullptr, nullptr, octets, &size) != ERROR_SUCCESS)
        return false;
    text = TextWithin(octets, octets + size);
    return true;
}

// False when no monitor knows the port. Once one does, the call succeeds: a value that can't be converted is
// one that takes 0 octets.
bool AnswerFromRegistry(const WideText& portName, const Caller& caller) {
    RegistryValue value;
    WideText text = {};
    bool found = false;
    for (size_t i = 0; i < std::size(kPortMonitors) && !found; ++i)
        found = ReadPortValue(kPortMonitors[i], portName, value, text);
    if (!found)
        return false;
    const DWORD size = ConvertedSize(text);
    if (size == 0 || !HasRoom(caller, size))
        StoreSizeOnly(caller, size);
    else
        StoreSize(caller, Convert(text, caller.buffer, size));
    return true;
}

// The NT family has transceivers; from version 5 on they are opened by the port's name.
bool AnswerFromPort(const WideText& portName, const Caller& caller) {
    constexpr DWORD kFirstWithPortNames = 5;
    const OSVERSIONINFOW version = SystemVersion();
    if (version.dwPlatformId != VER_PLATFORM_WIN32_NT)
        return AnswerFromRegistry(portName, caller);
    wchar_t* name = nullptr;
    if (version.dwMajorVersion >= kFirstWithPortNames) {
        name = MakeTransceiverName(portName);
        if (name == nullptr) {
            SetLastError(caller.lastError);
            return false;
        }
    }
    const ScopeGuard freeName{[name] {
        if (name != nullptr)
            GlobalFree(name);
    }};
    return AnswerFromTransceiver(name, caller) || AnswerFromRegistry(portName, caller);
}

// False when the printer can't be opened, or its port not be read.
bool AnswerFromQueue(const wchar_t* printerName, const Caller& caller) {
    constexpr DWORD kLevel = 2;
    HANDLE printer = nullptr;
    if (!OpenPrinterW(const_cast<wchar_t*>(printerName), &printer, nullptr)) // which only reads it
        return false;
    const ScopeGuard closePrinter{[printer] { ClosePrinter(printer); }};
    DWORD size = 0;
    if (!GetPrinterW(printer, kLevel, nullptr, 0, &size) && GetLastError() != ERROR_INSUFFICIENT_BUFFER)
        return false;
    if (size < sizeof(PRINTER_INFO_2W))
        return false;
    auto* block = static_cast<BYTE*>(GlobalAlloc(GPTR, size));
    if (block == nullptr)
        return false;
    const ScopeGuard freeBlock{[block] { GlobalFree(block); }};
    DWORD sizeThen = 0;
    if (!GetPrinterW(printer, kLevel, block, size, &sizeThen))
        return false;
    const wchar_t* port = reinterpret_cast<const PRINTER_INFO_2W*>(block)->pPortName;
    return port != nullptr && AnswerFromPort(TextWithin(port, block + size), caller);
}

} // namespace

BOOL WINAPI DDProc_GetPrinterIPAddress(const wchar_t* printerName, const AddressSettings* settings,
                                       char* buffer, DWORD bufferSize, DWORD* neededSize) {
    if (settings == nullptr)
        return FALSE;
    const Caller caller = {buffer, bufferSize, neededSize, GetLastError()};
    bool answered;
    if (settings->hasAddress != 0) {
        answered = AnswerFromRecord(*settings, caller);
        SetLastError(caller.lastError); // whatever the conversion has left
    } else {
        answered = AnswerFromQueue(printerName, caller);
    }
    return answered ? TRUE : FALSE;
}

// DDProc_GetPrinterIPAddress. The sources of the address are the caller's record, the transceiver of the
// queue's port monitor, and the registry keys of port monitors. A source finds a text; Deliver passes it to
// the caller. All of it is untrusted: a text ends at its terminator or at the end of its block.
#include "base/records.h"

#include "base/entry_point.h"
#include "base/scope_guard.h"
#include "base/system_library.h"
#include "base/text.h"

#include <cstring>
#include <iterator>
#include <winspool.h>

namespace {

// Where the address goes, and the last error before the call.
struct Caller {
    char* buffer;
    DWORD bufferSize;
    DWORD* neededSize;
    DWORD lastError;
};

// UTF-16 text that may lack its terminator.
struct WideText {
    const wchar_t* at;
    size_t length; // characters before the terminator or the end of the block
};

// Port monitors that have the address of a port in the registry, in the order in which they are tried.
constexpr wchar_t kMonitorsKey[] = L"System\\CurrentControlSet\\Control\\Print\\Monitors\\";
// clang-format off
constexpr struct PortMonitor {
    const wchar_t* portsKey; // below the key of the monitors; the port's name follows
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

constexpr size_t kKeyPathCapacity = 1024; // characters, with the terminator
using KeyPath = wchar_t[kKeyPathCapacity];

// The address of a port, as its source has it.
struct PortAddress {
    PortAddress() = default;
    ~PortAddress() {
        const KeepLastError keep;
        if (reply != nullptr)
            GlobalFree(reply);
    }
    PortAddress(const PortAddress&) = delete;
    PortAddress& operator=(const PortAddress&) = delete;

    WideText text = {};    // within one of these two
    BYTE* reply = nullptr; // of the transceiver, on the global heap
    wchar_t registryValue[256];
};

// The text from here to its terminator or the end of the block. A text outside the block ends at its
// terminator.
WideText TextWithin(const void* begin, const void* end) {
    const auto* text = static_cast<const wchar_t*>(begin);
    const size_t capacity =
        (reinterpret_cast<uintptr_t>(end) - reinterpret_cast<uintptr_t>(begin)) / sizeof(wchar_t);
    size_t length = 0;
    while (length < capacity && text[length] != 0)
        ++length;
    return {text, length};
}

// Bytes of the text in the ANSI code page, with its NUL; 0 when it can't be converted.
DWORD ConvertedSize(const WideText& text) {
    if (text.length == 0)
        return 1; // the system does not convert an empty text
    const int size = WideCharToMultiByte(GetACP(), 0, text.at, static_cast<int>(text.length), nullptr, 0,
                                         nullptr, nullptr);
    return size > 0 ? static_cast<DWORD>(size) + 1 : 0;
}

// Converts into the buffer, which has room for `size` bytes, the result of ConvertedSize. Returns the bytes
// stored, with the NUL; 0 when the conversion failed.
DWORD Convert(const WideText& text, char* buffer, DWORD size) {
    int stored = 0;
    if (text.length != 0) {
        stored = WideCharToMultiByte(GetACP(), 0, text.at, static_cast<int>(text.length), buffer,
                                     static_cast<int>(size - 1), nullptr, nullptr);
        if (stored <= 0)
            return 0;
    }
    buffer[stored] = 0;
    return static_cast<DWORD>(stored) + 1;
}

void StoreSize(const Caller& caller, DWORD size) {
    if (caller.neededSize != nullptr)
        *caller.neededSize = size;
}

enum class Delivery {
    kStored,
    kNoRoom,           // the buffer is null or too small
    kNotConvertible,   // the text has no form in the code page
    kConversionFailed, // although its size was known
};

// Stores the text in the caller's buffer. `size` is what it needs or has taken, in bytes; 0 without a
// conversion.
Delivery Deliver(const WideText& text, const Caller& caller, DWORD& size) {
    size = ConvertedSize(text);
    if (size == 0)
        return Delivery::kNotConvertible;
    if (caller.buffer == nullptr || size > caller.bufferSize)
        return Delivery::kNoRoom;
    size = Convert(text, caller.buffer, size);
    return size != 0 ? Delivery::kStored : Delivery::kConversionFailed;
}

bool AnswerFromRecord(const AddressSettings& settings, const Caller& caller) {
    const wchar_t* address = settings.address;
    const WideText text = {address, TextLength(address)};
    DWORD size = 0;
    if (text.length == 0)
        return false;
    const Delivery delivery = Deliver(text, caller, size);
    if (delivery == Delivery::kNoRoom && size > caller.bufferSize)
        StoreSize(caller, size);
    return delivery == Delivery::kStored;
}

// The name by which OpenPrinterW opens the transceiver of the port. Released by GlobalFree; null without
// memory.
wchar_t* MakeTransceiverName(const WideText& portName) {
    constexpr wchar_t kPrefix[] = L",XcvPort ";
    const size_t portBytes = portName.length * sizeof(wchar_t);
    auto* name = static_cast<wchar_t*>(GlobalAlloc(GPTR, sizeof(kPrefix) + portBytes));
    if (name == nullptr)
        return nullptr;
    memcpy(name, kPrefix, sizeof(kPrefix));
    memcpy(name + std::size(kPrefix) - 1, portName.at, portBytes); // the rest of the block is 0
    return name;
}

// Asks the transceiver of this name; null is that of the local print server. False when there is no valid
// reply.
bool FindInTransceiver(wchar_t* name, PortAddress& address) {
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
    address.reply = static_cast<BYTE*>(GlobalAlloc(GPTR, size));
    if (address.reply == nullptr)
        return false;
    DWORD replySize = 0;
    status = 0;
    // The call succeeds also when the port monitor refuses the command; then the status is not 0.
    if (!xcvData(printer, kCommand, nullptr, 0, address.reply, size, &replySize, &status) || status != 0)
        return false;
    address.text = TextWithin(address.reply, address.reply + size);
    return true;
}

// Appends what fits; the path stays terminated.
void AppendPortName(KeyPath& path, const WideText& portName) {
    size_t length = TextLength(path);
    for (size_t i = 0; i < portName.length && length < kKeyPathCapacity - 1; ++i)
        path[length++] = portName.at[i];
    path[length] = 0;
}

// Reads the value that this monitor has for the port, of any type. False when it can't be read.
bool ReadPortValue(const PortMonitor& monitor, const WideText& portName, PortAddress& address) {
    KeyPath path;
    CopyText(path, kMonitorsKey);
    AppendText(path, monitor.portsKey);
    AppendPortName(path, portName);
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    const ScopeGuard closeKey{[key] { RegCloseKey(key); }};
    auto* value = reinterpret_cast<BYTE*>(address.registryValue);
    DWORD size = sizeof(address.registryValue);
    if (RegQueryValueExW(key, monitor.value, nullptr, nullptr, value, &size) != ERROR_SUCCESS)
        return false;
    address.text = TextWithin(value, value + size);
    return true;
}

// False when no monitor has the port.
bool FindInRegistry(const WideText& portName, PortAddress& address) {
    for (const PortMonitor& monitor : kPortMonitors)
        if (ReadPortValue(monitor, portName, address))
            return true;
    return false;
}

// Finishes a call with the address of a port. Without room, or a form in the code page, it succeeds with a
// last error.
bool AnswerWithPortAddress(Delivery delivery, DWORD size, const Caller& caller) {
    StoreSize(caller, size);
    if (delivery == Delivery::kNoRoom || delivery == Delivery::kNotConvertible)
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return true;
}

// The transceiver exists on the NT family; from version 5 on it is opened by the port's name. A reply that
// can't be converted counts as none. The registry is the last source: there such a value counts as one that
// needs 0 bytes.
bool AnswerFromPort(const WideText& portName, const Caller& caller) {
    constexpr DWORD kFirstWithPortNames = 5;
    const OSVERSIONINFOW version = SystemVersion();
    PortAddress address;
    DWORD size = 0;
    if (version.dwPlatformId == VER_PLATFORM_WIN32_NT) {
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
        if (FindInTransceiver(name, address)) {
            const Delivery delivery = Deliver(address.text, caller, size);
            if (delivery == Delivery::kStored || delivery == Delivery::kNoRoom)
                return AnswerWithPortAddress(delivery, size, caller);
        }
    }
    if (!FindInRegistry(portName, address))
        return false;
    const Delivery delivery = Deliver(address.text, caller, size);
    return AnswerWithPortAddress(delivery, size, caller);
}

// False when the printer can't be opened or its port can't be read.
bool AnswerFromQueue(const wchar_t* printerName, const Caller& caller) {
    constexpr DWORD kLevel = 2;
    HANDLE printer = nullptr;
    if (!OpenPrinterW(const_cast<wchar_t*>(printerName), &printer, nullptr)) // the name is only read
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
        SetLastError(caller.lastError); // not that of the conversion
    } else {
        answered = AnswerFromQueue(printerName, caller);
    }
    return answered ? TRUE : FALSE;
}

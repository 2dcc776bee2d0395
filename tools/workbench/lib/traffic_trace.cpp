// Replaces functions that a library calls by functions that record.
#include "workbench/lib/traffic_trace.h"

#include "workbench/lib/stopwatch.h"

#include <algorithm>
#include <iterator>
#include <snmp.h>
#include <winsock2.h>

namespace {

TrafficTrace* activeTrace = nullptr; // set while its patches are in place

// The functions of Windows Sockets, set with the first trace. Called by name they would lead to themselves
// where the workbench's own calls are recorded.
decltype(&send) systemSend = nullptr;
decltype(&recv) systemReceive = nullptr;
decltype(&sendto) systemSendTo = nullptr;
decltype(&recvfrom) systemReceiveFrom = nullptr;

template <bool kIsOwn>
int WSAAPI SendTraced(SOCKET socket, const char* bytes, int count, int flags) {
    const int sent = systemSend(socket, bytes, count, flags);
    activeTrace->Add(true, kIsOwn, bytes, sent);
    return sent;
}

template <bool kIsOwn>
int WSAAPI ReceiveTraced(SOCKET socket, char* bytes, int capacity, int flags) {
    const int received = systemReceive(socket, bytes, capacity, flags);
    activeTrace->Add(false, kIsOwn, bytes, received);
    return received;
}

template <bool kIsOwn>
int WSAAPI SendToTraced(SOCKET socket, const char* bytes, int count, int flags, const sockaddr* to,
                        int size) {
    const int sent = systemSendTo(socket, bytes, count, flags, to, size);
    activeTrace->Add(true, kIsOwn, bytes, sent);
    return sent;
}

template <bool kIsOwn>
int WSAAPI ReceiveFromTraced(SOCKET socket, char* bytes, int capacity, int flags, sockaddr* from, int* size) {
    const int received = systemReceiveFrom(socket, bytes, capacity, flags, from, size);
    activeTrace->Add(false, kIsOwn, bytes, received);
    return received;
}

// --- The system's SNMP libraries

using SystemRequest = INT(WINAPI*)(void* session, BYTE requestType, SnmpVarBindList* list,
                                   AsnInteger32* errorStatus, AsnInteger32* errorIndex);
SystemRequest systemRequest = nullptr;

ObjectId ObjectOf(const AsnObjectIdentifier& name) {
    return {name.ids, name.ids + name.idLength};
}

void SetValue(SnmpMessage& message, const AsnAny& value) {
    message.valueType = value.asnType;
    if (value.asnType == ASN_OBJECTIDENTIFIER)
        message.objectValue = ObjectOf(value.asnValue.object);
    else if (value.asnType == ASN_INTEGER)
        message.number = value.asnValue.number;
    else if (value.asnType == ASN_OCTETSTRING || value.asnType == ASN_IPADDRESS
             || value.asnType == ASN_OPAQUE)
        message.bytes.assign(reinterpret_cast<const char*>(value.asnValue.string.stream),
                             value.asnValue.string.length);
    else
        message.number = value.asnValue.unsigned32; // unused by types that are no numbers
}

INT WINAPI RequestTraced(void* session, BYTE requestType, SnmpVarBindList* list, AsnInteger32* errorStatus,
                         AsnInteger32* errorIndex) {
    SnmpMessage message;
    message.version = 0;
    message.pduType = requestType;
    message.object = ObjectOf(list->list[0].name);
    activeTrace->Add(true, message);
    const INT result = systemRequest(session, requestType, list, errorStatus, errorIndex);
    const DWORD error = GetLastError();
    if (result != 0) {
        message.pduType = SNMP_PDU_RESPONSE;
        message.errorStatus = *errorStatus;
        message.errorIndex = *errorIndex;
        SetValue(message, list->list[0].value);
        activeTrace->Add(false, message);
    }
    SetLastError(error);
    return result;
}

// --- Finding and replacing

struct Replacement {
    const char* name;
    void* inModule;    // for the calls of the module
    void* inWorkbench; // for those of the workbench
};
const Replacement kReplacements[] = {
    {"send", reinterpret_cast<void*>(SendTraced<false>), reinterpret_cast<void*>(SendTraced<true>)},
    {"recv", reinterpret_cast<void*>(ReceiveTraced<false>), reinterpret_cast<void*>(ReceiveTraced<true>)},
    {"sendto", reinterpret_cast<void*>(SendToTraced<false>), reinterpret_cast<void*>(SendToTraced<true>)},
    {"recvfrom", reinterpret_cast<void*>(ReceiveFromTraced<false>),
     reinterpret_cast<void*>(ReceiveFromTraced<true>)},
};

template <typename Function>
void SetSystemFunction(Function& function, HMODULE sockets, const char* name) {
    function = reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(sockets, name)));
}

const IMAGE_NT_HEADERS* HeadersOf(HMODULE library) {
    const char* const base = reinterpret_cast<char*>(library);
    return reinterpret_cast<const IMAGE_NT_HEADERS*>(
        base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
}

// Where the library's import table has this function; null when it does not import it.
void** FindImport(HMODULE library, const void* function) {
    char* const base = reinterpret_cast<char*>(library);
    const auto& place = HeadersOf(library)->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (place.Size == 0)
        return nullptr;
    auto* imported = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + place.VirtualAddress);
    for (; imported->FirstThunk != 0; ++imported)
        for (auto* slot = reinterpret_cast<void**>(base + imported->FirstThunk); *slot != nullptr; ++slot)
            if (*slot == function)
                return slot;
    return nullptr;
}

// Where the library's own data has a pointer to this function, which it has looked up; null: nowhere.
void** FindPointer(HMODULE library, const void* function) {
    const IMAGE_NT_HEADERS* headers = HeadersOf(library);
    const auto* section = reinterpret_cast<const IMAGE_SECTION_HEADER*>(
        reinterpret_cast<const char*>(&headers->OptionalHeader) + headers->FileHeader.SizeOfOptionalHeader);
    for (WORD i = 0; i < headers->FileHeader.NumberOfSections; ++i, ++section) {
        if ((section->Characteristics & IMAGE_SCN_MEM_WRITE) == 0)
            continue;
        auto** slot = reinterpret_cast<void**>(reinterpret_cast<char*>(library) + section->VirtualAddress);
        for (size_t left = section->Misc.VirtualSize / sizeof(*slot); left > 0; --left, ++slot)
            if (*slot == function)
                return slot;
    }
    return nullptr;
}

// The import table is read-only after loading.
bool Replace(void** slot, void* function) {
    DWORD protection = 0;
    if (!VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &protection))
        return false;
    *slot = function;
    return VirtualProtect(slot, sizeof(*slot), protection, &protection) != FALSE;
}

} // namespace

size_t RepeatsIn(const std::vector<TracedMessage>& messages) {
    const TracedMessage* last = nullptr;
    size_t repeats = 0;
    for (const TracedMessage& message : messages) {
        const bool isRequest = message.isSent && message.isDatagram;
        repeats += isRequest && last != nullptr && last->bytes == message.bytes ? 1 : 0;
        last = isRequest ? &message : nullptr;
    }
    return repeats;
}

bool UsesSystemSnmp() {
    return GetModuleHandleW(L"MGMTAPI.DLL") != nullptr && GetModuleHandleW(L"SNMPAPI.DLL") != nullptr;
}

TrafficTrace::TrafficTrace(HMODULE library, TraceOf what) : start(CounterNow()) {
    activeTrace = this;
    const HMODULE sockets = GetModuleHandleW(L"WS2_32.DLL");
    SetSystemFunction(systemSend, sockets, "send");
    SetSystemFunction(systemReceive, sockets, "recv");
    SetSystemFunction(systemSendTo, sockets, "sendto");
    SetSystemFunction(systemReceiveFrom, sockets, "recvfrom");
    for (const Replacement& replacement : kReplacements) {
        void* const function = reinterpret_cast<void*>(GetProcAddress(sockets, replacement.name));
        Patch(FindImport(library, function), replacement.inModule);
        if (what == TraceOf::kModuleAndWorkbench)
            Patch(FindImport(GetModuleHandleW(nullptr), function), replacement.inWorkbench);
    }
    if (UsesSystemSnmp()) {
        const FARPROC request = GetProcAddress(GetModuleHandleW(L"MGMTAPI.DLL"), "SnmpMgrRequest");
        systemRequest = reinterpret_cast<SystemRequest>(reinterpret_cast<void (*)()>(request));
        Patch(FindPointer(library, reinterpret_cast<void*>(request)), reinterpret_cast<void*>(RequestTraced));
    }
}

void TrafficTrace::Patch(void** slot, void* function) {
    void* const before = slot != nullptr ? *slot : nullptr;
    if (slot != nullptr && Replace(slot, function))
        replaced.push_back({slot, before});
}

TrafficTrace::~TrafficTrace() {
    for (const Replaced& each : replaced)
        Replace(each.slot, each.before);
    activeTrace = nullptr;
}

std::vector<TracedMessage> TrafficTrace::Messages() const {
    const std::lock_guard lock(access);
    return messages;
}

std::vector<TracedMessage> TrafficTrace::TakeOfThisThread() {
    const std::lock_guard lock(access);
    const auto first =
        std::stable_partition(messages.begin(), messages.end(), [](const TracedMessage& message) {
            return message.thread != GetCurrentThreadId();
        });
    std::vector<TracedMessage> taken(std::make_move_iterator(first), std::make_move_iterator(messages.end()));
    messages.erase(first, messages.end());
    return taken;
}

void TrafficTrace::Add(bool isSent, bool isOwn, const char* bytes, int count) {
    if (count < 0)
        return;
    const std::lock_guard lock(access);
    messages.push_back({MillisecondsSince(start),
                        isSent,
                        isOwn,
                        true,
                        {bytes, static_cast<size_t>(count)},
                        {},
                        GetCurrentThreadId()});
}

void TrafficTrace::Add(bool isSent, SnmpMessage message) {
    const std::lock_guard lock(access);
    messages.push_back(
        {MillisecondsSince(start), isSent, false, false, {}, std::move(message), GetCurrentThreadId()});
}

// A stand-in for the system's SNMP libraries, built as either of them by its list of exports. It answers every
// request with an INTEGER of 640 in a list of its own, and keeps a log for the test. Its blocks are not cleared,
// and only its own functions can free them.
#include <cstdio>
#include <cstring>
#include <mgmtapi.h> // checks the signatures
#include <windows.h>

namespace {

constexpr size_t kPrefix = 16; // in front of each block: its own heap's view ends here
constexpr int kUnfilled = 0xEE;

char calls[4096];
int blocks; // allocated and not freed
int session;

template <typename... Arguments>
void Log(const char* format, Arguments... arguments) {
    const size_t length = strlen(calls);
    snprintf(calls + length, sizeof(calls) - length, format, arguments...);
}

void* Allocate(size_t octets) {
    auto* block = static_cast<char*>(HeapAlloc(GetProcessHeap(), 0, kPrefix + octets));
    memset(block, kUnfilled, kPrefix + octets);
    ++blocks;
    return block + kPrefix;
}

void Free(void* block) {
    if (block != nullptr && HeapFree(GetProcessHeap(), 0, static_cast<char*>(block) - kPrefix))
        --blocks;
}

} // namespace

extern "C" {

// The calls since the library was loaded, one a line.
const char* StubCalls() {
    return calls;
}

int StubBlocks() {
    return blocks;
}

void* WINAPI SnmpUtilMemAlloc(UINT octets) {
    return Allocate(octets);
}

void WINAPI SnmpUtilMemFree(void* block) {
    Free(block);
}

void WINAPI SnmpUtilOidFree(AsnObjectIdentifier* oid) {
    Free(oid->ids);
    *oid = {};
}

void WINAPI SnmpUtilVarBindFree(SnmpVarBind* varBind) {
    Free(varBind->name.ids);
    *varBind = {};
}

void WINAPI SnmpUtilVarBindListFree(SnmpVarBindList* list) {
    for (UINT i = 0; i < list->len; ++i)
        Free(list->list[i].name.ids);
    Free(list->list);
    *list = {};
}

void* WINAPI SnmpMgrOpen(char* agent, char* community, INT timeOut, INT retries) {
    Log("SnmpMgrOpen %s %s %d %d\n", agent, community, timeOut, retries);
    return &session;
}

BOOL WINAPI SnmpMgrClose(void* handle) {
    Log("SnmpMgrClose%s\n", handle == &session ? "" : " of another session");
    return TRUE;
}

INT WINAPI SnmpMgrRequest(void* handle, BYTE requestType, SnmpVarBindList* list, AsnInteger32* errorStatus,
                          AsnInteger32* errorIndex) {
    Log("SnmpMgrRequest%s %02X", handle == &session ? "" : " of another session", requestType);
    for (UINT i = 0; i < list->list->name.idLength; ++i)
        Log("%c%u", i == 0 ? ' ' : '.', list->list->name.ids[i]);
    Log(", value %02X\n", list->list->value.asnType);
    auto* answer = static_cast<SnmpVarBind*>(Allocate(list->len * sizeof(SnmpVarBind)));
    memcpy(answer, list->list, list->len * sizeof(SnmpVarBind));
    Free(list->list);
    list->list = answer;
    answer->value.asnType = ASN_INTEGER;
    answer->value.asnValue.number = 640;
    *errorStatus = *errorIndex = 0;
    return TRUE;
}

// Of digits and single dots only.
BOOL WINAPI SnmpMgrStrToOid(char* text, AsnObjectIdentifier* oid) {
    Log("SnmpMgrStrToOid %s\n", text);
    *oid = {0, static_cast<UINT*>(Allocate(128 * sizeof(UINT)))};
    for (text += *text == '.'; *text != 0 && oid->idLength < 128; text += *text == '.')
        oid->ids[oid->idLength++] = strtoul(text, &text, 10);
    return TRUE;
}
}

// The nine entry points that the module uses for SNMP: those of the system's SNMP Management API, or those of
// the built-in client. Bound at process attach, released at process detach. Queries use the table and do not
// know which set is bound.
#ifndef DEVCOMM_SNMP_SNMP_ENTRY_POINTS_H
#define DEVCOMM_SNMP_SNMP_ENTRY_POINTS_H

#include <cstdint>
#include <snmp.h>
#include <windows.h>

using SnmpSession = void*; // opaque; only for the set that has opened it

// Process-wide, written only at process attach and detach. Memory is freed by the set that has allocated it.
struct SnmpEntryPoints {
    // SNMPAPI.DLL
    void*(WINAPI* snmpUtilMemAlloc)(UINT size); // not necessarily zero-filled; null: no memory
    void(WINAPI* snmpUtilMemFree)(void* block);
    void(WINAPI* snmpUtilOidFree)(AsnObjectIdentifier* oid);
    void(WINAPI* snmpUtilVarBindFree)(SnmpVarBind* varBind);
    void(WINAPI* snmpUtilVarBindListFree)(SnmpVarBindList* list);
    // MGMTAPI.DLL
    SnmpSession(WINAPI* snmpMgrOpen)(const char* agent, const char* community, INT timeOut, INT retries);
    BOOL(WINAPI* snmpMgrClose)(SnmpSession session);
    INT(WINAPI* snmpMgrRequest)
    (SnmpSession session, BYTE requestType, SnmpVarBindList* list, AsnInteger32* errorStatus,
     AsnInteger32* errorIndex);
    BOOL(WINAPI* snmpMgrStrToOid)(const char* text, AsnObjectIdentifier* oid);

    HMODULE mgmtApi; // each null when it did not load
    HMODULE snmpApi;
    uint32_t bindCount; // 1: bound
};
extern SnmpEntryPoints snmpEntryPoints;

// Fills the table: with the functions of the system when both its libraries load, otherwise with those of the
// built-in client. True when it is filled, now or earlier. False, with the whole table empty, when the
// libraries load but lack an entry point: their other functions are gone with them.
bool SnmpApiBind();

// Empties the table and frees the system's libraries.
void SnmpApiRelease();

// Whether all nine are bound. Otherwise queries send nothing.
bool SnmpApiIsBound();

#endif

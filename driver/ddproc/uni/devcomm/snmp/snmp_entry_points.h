// The nine entry points through which the module speaks SNMP: those of the system's SNMP Management API, or
// the built-in client's. Bound and released by the start-up order; every query goes through the table and
// can't tell which set is in use.
#ifndef DEVCOMM_SNMP_SNMP_ENTRY_POINTS_H
#define DEVCOMM_SNMP_SNMP_ENTRY_POINTS_H

#include <cstdint>
#include <snmp.h>
#include <windows.h>

using SnmpSession = void*; // opaque: belongs to the set that opened it

// Process-wide, written only while the process attaches or detaches. What one set's functions hand out is
// freed by the same set's.
struct SnmpEntryPoints {
    // SNMPAPI.DLL
    void*(WINAPI* snmpUtilMemAlloc)(UINT octets); // not necessarily zero-filled; null: no memory
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

// Fills the table: with the system's functions where both its libraries load, otherwise with the built-in
// client's. TRUE when it is filled, now or earlier; FALSE, and the table empty, when the system's libraries
// load but lack an entry point.
BOOL SnmpApiBind();

// Empties the table and frees the system's libraries.
void SnmpApiRelease();

// Whether all nine are there. Without that no query asks anything.
bool SnmpApiIsBound();

#endif

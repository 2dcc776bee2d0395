// The table of SNMP entry points: see the header.
#include "devcomm/snmp/snmp_entry_points.h"

#include "base/entry_point.h"
#include "base/system_library.h"
#include "devcomm/snmp/snmp_client.h"
#include "devcomm/snmp/snmp_values.h"

SnmpEntryPoints snmpEntryPoints;

namespace {

// The first version of the NT family whose own text conversion is used.
constexpr DWORD kMajorWithStrToOid = 5;

template <typename Function>
bool Take(HMODULE library, const char* name, Function*& slot) {
    slot = FindEntryPoint<Function>(library, name);
    return slot != nullptr;
}

void TakeClient(SnmpEntryPoints& table) {
    table.snmpUtilMemAlloc = ClientMemAlloc;
    table.snmpUtilMemFree = ClientMemFree;
    table.snmpUtilOidFree = ClientOidFree;
    table.snmpUtilVarBindFree = ClientVarBindFree;
    table.snmpUtilVarBindListFree = ClientVarBindListFree;
    table.snmpMgrOpen = ClientOpen;
    table.snmpMgrClose = ClientClose;
    table.snmpMgrRequest = ClientRequest;
    table.snmpMgrStrToOid = ClientStrToOid;
}

bool TakeSystem(SnmpEntryPoints& table, DWORD majorVersion) {
    table.snmpMgrStrToOid = ClientStrToOid;
    return Take(table.snmpApi, "SnmpUtilMemAlloc", table.snmpUtilMemAlloc)
           && Take(table.snmpApi, "SnmpUtilMemFree", table.snmpUtilMemFree)
           && Take(table.snmpApi, "SnmpUtilOidFree", table.snmpUtilOidFree)
           && Take(table.snmpApi, "SnmpUtilVarBindFree", table.snmpUtilVarBindFree)
           && Take(table.snmpApi, "SnmpUtilVarBindListFree", table.snmpUtilVarBindListFree)
           && Take(table.mgmtApi, "SnmpMgrOpen", table.snmpMgrOpen)
           && Take(table.mgmtApi, "SnmpMgrClose", table.snmpMgrClose)
           && Take(table.mgmtApi, "SnmpMgrRequest", table.snmpMgrRequest)
           && (majorVersion < kMajorWithStrToOid
               || Take(table.mgmtApi, "SnmpMgrStrToOid", table.snmpMgrStrToOid));
}

} // namespace

BOOL SnmpApiBind() {
    SnmpEntryPoints& table = snmpEntryPoints;
    if (table.bindCount != 0)
        return TRUE;
    const OSVERSIONINFOW version = SystemVersion();
    if (version.dwPlatformId == VER_PLATFORM_WIN32_NT) {
        table.mgmtApi = LoadSystemLibrary(L"MGMTAPI.DLL");
        table.snmpApi = LoadSystemLibrary(L"SNMPAPI.DLL");
    }
    if (table.mgmtApi == nullptr || table.snmpApi == nullptr) {
        TakeClient(table); // a library that did load stays until the release
    } else if (!TakeSystem(table, version.dwMajorVersion)) {
        SnmpApiRelease();
        return FALSE;
    }
    table.bindCount = 1;
    return TRUE;
}

void SnmpApiRelease() {
    if (snmpEntryPoints.mgmtApi != nullptr)
        FreeLibrary(snmpEntryPoints.mgmtApi);
    if (snmpEntryPoints.snmpApi != nullptr)
        FreeLibrary(snmpEntryPoints.snmpApi);
    snmpEntryPoints = {};
}

bool SnmpApiIsBound() {
    const SnmpEntryPoints& table = snmpEntryPoints;
    return table.snmpUtilMemAlloc != nullptr && table.snmpUtilMemFree != nullptr
           && table.snmpUtilOidFree != nullptr && table.snmpUtilVarBindFree != nullptr
           && table.snmpUtilVarBindListFree != nullptr && table.snmpMgrOpen != nullptr
           && table.snmpMgrClose != nullptr && table.snmpMgrRequest != nullptr
           && table.snmpMgrStrToOid != nullptr;
}

// The table of SNMP entry points: see the header.
#include "devcomm/snmp_entry_points.h"

SnmpEntryPoints snmpEntryPoints;

bool SnmpApiIsBound() {
    const SnmpEntryPoints& table = snmpEntryPoints;
    return table.snmpUtilMemAlloc != nullptr && table.snmpUtilMemFree != nullptr
           && table.snmpUtilOidFree != nullptr && table.snmpUtilVarBindFree != nullptr
           && table.snmpUtilVarBindListFree != nullptr && table.snmpMgrOpen != nullptr
           && table.snmpMgrClose != nullptr && table.snmpMgrRequest != nullptr
           && table.snmpMgrStrToOid != nullptr;
}

// Binds and releases the SNMP entry points.
#include "devcomm/snmp/snmp_entry_points.h"

#include "base/entry_point.h"
#include "base/system_library.h"
#include "devcomm/snmp/snmp_client.h"
#include "devcomm/snmp/snmp_values.h"

#include <type_traits>

SnmpEntryPoints snmpEntryPoints;

namespace {

// One entry point of the table: where the system has it, and its slot.
struct EntryPoint {
    const char* name;
    HMODULE SnmpEntryPoints::*library;
    DWORD firstVersion; // major version from which the system's is used; before it the built-in one
    void (*bindClient)(SnmpEntryPoints& table);
    bool (*bindSystem)(SnmpEntryPoints& table, HMODULE library, const char* name);
    bool (*isBound)(const SnmpEntryPoints& table);
};

template <auto kSlot, auto kClient>
constexpr EntryPoint Slot(const char* name, HMODULE SnmpEntryPoints::*library, DWORD firstVersion) {
    using Function = std::remove_pointer_t<std::remove_reference_t<decltype(SnmpEntryPoints{}.*kSlot)>>;
    return {name,
            library,
            firstVersion,
            [](SnmpEntryPoints& table) { table.*kSlot = kClient; },
            [](SnmpEntryPoints& table, HMODULE from, const char* entryPoint) {
                table.*kSlot = FindEntryPoint<Function>(from, entryPoint);
                return table.*kSlot != nullptr;
            },
            [](const SnmpEntryPoints& table) { return table.*kSlot != nullptr; }};
}

// clang-format off
#define SLOT(slot) &SnmpEntryPoints::slot
constexpr EntryPoint kEntryPoints[] = {
    // slot                        built-in                    name                       library        from version
    Slot<SLOT(snmpUtilMemAlloc),        ClientMemAlloc>       ("SnmpUtilMemAlloc",        SLOT(snmpApi), 0),
    Slot<SLOT(snmpUtilMemFree),         ClientMemFree>        ("SnmpUtilMemFree",         SLOT(snmpApi), 0),
    Slot<SLOT(snmpUtilOidFree),         ClientOidFree>        ("SnmpUtilOidFree",         SLOT(snmpApi), 0),
    Slot<SLOT(snmpUtilVarBindFree),     ClientVarBindFree>    ("SnmpUtilVarBindFree",     SLOT(snmpApi), 0),
    Slot<SLOT(snmpUtilVarBindListFree), ClientVarBindListFree>("SnmpUtilVarBindListFree", SLOT(snmpApi), 0),
    Slot<SLOT(snmpMgrOpen),             ClientOpen>           ("SnmpMgrOpen",             SLOT(mgmtApi), 0),
    Slot<SLOT(snmpMgrClose),            ClientClose>          ("SnmpMgrClose",            SLOT(mgmtApi), 0),
    Slot<SLOT(snmpMgrRequest),          ClientRequest>        ("SnmpMgrRequest",          SLOT(mgmtApi), 0),
    Slot<SLOT(snmpMgrStrToOid),         ClientStrToOid>       ("SnmpMgrStrToOid",         SLOT(mgmtApi), 5),
};
#undef SLOT
// clang-format on

void BindClient(SnmpEntryPoints& table) {
    for (const EntryPoint& entryPoint : kEntryPoints)
        entryPoint.bindClient(table);
}

// False when a library lacks an entry point.
bool BindSystem(SnmpEntryPoints& table, DWORD majorVersion) {
    for (const EntryPoint& entryPoint : kEntryPoints) {
        if (majorVersion < entryPoint.firstVersion)
            entryPoint.bindClient(table);
        else if (!entryPoint.bindSystem(table, table.*entryPoint.library, entryPoint.name))
            return false;
    }
    return true;
}

} // namespace

bool SnmpApiBind() {
    SnmpEntryPoints& table = snmpEntryPoints;
    if (table.bindCount != 0)
        return true;
    const OSVERSIONINFOW version = SystemVersion();
    if (version.dwPlatformId == VER_PLATFORM_WIN32_NT) {
        table.mgmtApi = LoadSystemLibrary(L"MGMTAPI.DLL");
        table.snmpApi = LoadSystemLibrary(L"SNMPAPI.DLL");
    }
    if (table.mgmtApi == nullptr || table.snmpApi == nullptr) {
        BindClient(table); // a library that did load stays until the release
    } else if (!BindSystem(table, version.dwMajorVersion)) {
        SnmpApiRelease();
        return false;
    }
    table.bindCount = 1;
    return true;
}

void SnmpApiRelease() {
    if (snmpEntryPoints.mgmtApi != nullptr)
        FreeLibrary(snmpEntryPoints.mgmtApi);
    if (snmpEntryPoints.snmpApi != nullptr)
        FreeLibrary(snmpEntryPoints.snmpApi);
    snmpEntryPoints = {};
}

bool SnmpApiIsBound() {
    for (const EntryPoint& entryPoint : kEntryPoints)
        if (!entryPoint.isBound(snmpEntryPoints))
            return false;
    return true;
}

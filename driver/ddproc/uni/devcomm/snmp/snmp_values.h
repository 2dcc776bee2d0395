// The values and names that the built-in client hands out, and their memory: fixed blocks of the local heap,
// in the system's SNMP types. The members of the entry point table that need no network are here.
#ifndef DEVCOMM_SNMP_SNMP_VALUES_H
#define DEVCOMM_SNMP_SNMP_VALUES_H

#include "devcomm/snmp/ber_reader.h"
#include "devcomm/snmp/snmp_errors.h"

#include <snmp.h>
#include <windows.h>

// How a value lies in an AsnAny.
enum class SnmpForm {
    kUnknown, // a type that no reply may have
    kNumber,  // asnValue.number
    kOctets,  // asnValue.string, in a block of its own
    kArcs,    // asnValue.object, in a block of its own
    kEmpty,   // asnValue.string, without octets or block
};
SnmpForm SnmpFormOf(uint8_t typeCode);

// Decodes the contents of a value of this type. FALSE, and `value` untouched, when they are malformed or the
// type is unknown (last error kSnmpBadReply), or without memory (last error as the heap left it). What
// `value` held before is not freed.
BOOL SnmpDecodeValue(uint8_t typeCode, BerReader contents, AsnAny& value);

// Members of SnmpEntryPoints (devcomm/snmp/snmp_entry_points.h). Freeing leaves its argument cleared, so that
// freeing it once more does nothing; of a value only octets that have the allocated flag are freed.
void* WINAPI ClientMemAlloc(UINT octets); // zero-filled
void WINAPI ClientMemFree(void* block);   // accepts null
void WINAPI ClientOidFree(AsnObjectIdentifier* oid);
void WINAPI ClientVarBindFree(SnmpVarBind* varBind);
void WINAPI ClientVarBindListFree(SnmpVarBindList* list);

// Dotted decimal text as an OID, whose arcs the caller frees by ClientOidFree. A leading '.' is ignored; an
// arc without digits, also the one behind a final '.', is 0. FALSE, the OID empty and the last error as it
// was: another character than digits and '.', an arc of more than 15 digits or 32 bits, fewer than 2 or more
// than 128 arcs, a first of 3 or more, a second of 40 or more, no memory.
BOOL WINAPI ClientStrToOid(const char* text, AsnObjectIdentifier* oid);

#endif

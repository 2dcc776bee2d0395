// Values and names in the system's SNMP types, as the built-in client returns them, and their memory: blocks
// of the local heap. These members of the entry point table need no network.
#ifndef DEVCOMM_SNMP_SNMP_VALUES_H
#define DEVCOMM_SNMP_SNMP_VALUES_H

#include "devcomm/snmp/ber_reader.h"

#include <snmp.h>
#include <windows.h>

// How a value is stored in an AsnAny.
enum class SnmpForm {
    kUnknown, // not a type of replies
    kNumber,  // asnValue.number
    kOctets,  // asnValue.string, in a block of its own
    kOid,     // asnValue.object, in a block of its own
    kEmpty,   // asnValue.string, without bytes or a block
};
SnmpForm SnmpFormOf(uint8_t typeCode);

// Decodes the contents of a value of this type. False, with `value` unchanged, when they are malformed or the
// type is unknown (last error kSnmpBadReply), or without memory (last error as the heap left it). What
// `value` held before is not freed.
bool SnmpDecodeValue(uint8_t typeCode, BerReader contents, AsnAny& value);

// Members of SnmpEntryPoints (devcomm/snmp/snmp_entry_points.h). Freeing leaves its argument cleared, so that
// freeing it once more does nothing; of a value only bytes that have the allocated flag are freed.
void* WINAPI ClientMemAlloc(UINT octets); // zero-filled
void WINAPI ClientMemFree(void* block);   // accepts null
void WINAPI ClientOidFree(AsnObjectIdentifier* oid);
void WINAPI ClientVarBindFree(SnmpVarBind* varBind);
void WINAPI ClientVarBindListFree(SnmpVarBindList* list);

// Dotted decimal text as an OID, whose sub-identifiers the caller frees by ClientOidFree. A leading '.' is
// ignored; a sub-identifier without digits, also the one after a final '.', is 0. FALSE, the OID empty and
// the last error as it was: another character than digits and '.', a sub-identifier of more than 15 digits
// or 32 bits, fewer than 2 or more than 128 sub-identifiers, a first of 3 or more, a second of 40 or more, no
// memory.
BOOL WINAPI ClientStrToOid(const char* text, AsnObjectIdentifier* oid);

#endif

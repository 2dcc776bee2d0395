// The host's replacement for the system's header of this name: the value types of its SNMP Management API and
// the type codes that the module reads, packed to 4 bytes as the system declares them.
#ifndef WIN32_SNMP_H
#define WIN32_SNMP_H

#include <windows.h>

#pragma pack(push, 4)
struct AsnOctetString {
    BYTE* stream;
    UINT length;
    BOOL dynamic;
};

struct AsnObjectIdentifier {
    UINT idLength;
    UINT* ids;
};

using AsnInteger32 = LONG;

struct AsnAny {
    BYTE asnType;
    union {
        AsnInteger32 number;
        AsnOctetString string;
        AsnObjectIdentifier object;
    } asnValue;
};

struct SnmpVarBind {
    AsnObjectIdentifier name;
    AsnAny value;
};

struct SnmpVarBindList {
    SnmpVarBind* list;
    UINT len;
};
#pragma pack(pop)

#define SNMP_PDU_GET      0xA0
#define SNMP_PDU_RESPONSE 0xA2

#define ASN_INTEGER          0x02
#define ASN_BITS             0x03
#define ASN_OCTETSTRING      0x04
#define ASN_NULL             0x05
#define ASN_OBJECTIDENTIFIER 0x06
#define ASN_SEQUENCE         0x30
#define ASN_IPADDRESS        0x40
#define ASN_COUNTER32        0x41
#define ASN_GAUGE32          0x42
#define ASN_TIMETICKS        0x43
#define ASN_OPAQUE           0x44
#define ASN_UINTEGER32       0x47

#endif

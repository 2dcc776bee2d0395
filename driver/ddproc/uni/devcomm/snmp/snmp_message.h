// The two messages of an SNMPv1 GetRequest (RFC 1157): the request, and the reply in a datagram. Independent
// of sockets.
#ifndef DEVCOMM_SNMP_SNMP_MESSAGE_H
#define DEVCOMM_SNMP_SNMP_MESSAGE_H

#include "devcomm/snmp/ber_reader.h"
#include "devcomm/snmp/ber_writer.h"

#include <snmp.h>

// Builds a request for the objects of the list, with NULL values. A varbind whose value is not NULL is sent
// with its name only, one whose name can't be encoded without a name. The caller frees the message by
// BerFree. `octets` is null without memory.
BerBuffer SnmpBuildRequest(uint8_t pduTag, const char* community, uint32_t requestId,
                           const SnmpVarBindList& list);

// A reply, as far as its request-id; the cursors point into the datagram.
struct SnmpReply {
    BerReader community;
    int32_t requestId;
    BerReader rest; // of the PDU, after the request-id
};

// Reads up to the request-id. False when that much is malformed.
bool SnmpReadReply(const uint8_t* datagram, size_t count, SnmpReply& reply);

struct SnmpResult {
    uint8_t valueType;
    BerReader value; // contents, in the datagram
};

// Reads on to the value of the first varbind, whatever its name. Stores error-status and error-index as soon
// as they are read; either may be null. False when the reply is malformed.
bool SnmpReadResult(SnmpReply& reply, AsnInteger32* errorStatus, AsnInteger32* errorIndex,
                    SnmpResult& result);

#endif

// The built-in SNMPv1 manager: sessions over UDP and their requests, as members of SnmpEntryPoints. They
// stand in where the system's SNMP libraries don't load. The members that need no network are in
// devcomm/snmp/snmp_values.h.
#ifndef DEVCOMM_SNMP_SNMP_CLIENT_H
#define DEVCOMM_SNMP_SNMP_CLIENT_H

#include "devcomm/snmp/snmp_entry_points.h"
#include "devcomm/snmp/snmp_errors.h"

// Opens a session with an agent, a dotted IPv4 address or a host name, on UDP port 161. The community is not
// copied: it must stay until the session is closed. Time-out (ms) and retries are only kept: a request has
// counts of its own. Null, everything released, with the last error kSnmpNoMemory, WSAStartup's result,
// kSnmpWrongSocketsVersion or that of Windows Sockets (socket, agent's address, connection).
SnmpSession WINAPI ClientOpen(const char* agent, const char* community, INT timeOut, INT retries);

// Releases the session; TRUE, also for null. The last error, that of a request, stays.
BOOL WINAPI ClientClose(SnmpSession session);

// Asks for the objects of the list, which holds one varbind at least, and stores the first value of the reply
// as the value of the list's first varbind. Non-zero when a reply came and could be read, whatever its
// error-status; the last error is then kSnmpOtherCommunity when it came from another community. Otherwise 0,
// the list as it was, and the last error kSnmpNoAnswer (to 5 sends), kSnmpOtherRequests (5 replies),
// kSnmpBadReply, kSnmpTransferFailed or the heap's. Either out may be null; they are stored as soon as they
// are read, even where what follows in the reply is malformed.
INT WINAPI ClientRequest(SnmpSession session, BYTE requestType, SnmpVarBindList* list,
                         AsnInteger32* errorStatus, AsnInteger32* errorIndex);

#endif

// The built-in SNMPv1 manager: sessions over UDP and their requests, as members of SnmpEntryPoints, for
// systems whose SNMP libraries do not load. The members that need no network are in
// devcomm/snmp/snmp_values.h.
#ifndef DEVCOMM_SNMP_SNMP_CLIENT_H
#define DEVCOMM_SNMP_SNMP_CLIENT_H

#include "devcomm/snmp/snmp_entry_points.h"

// Opens a session with an agent, a dotted IPv4 address or a host name, on UDP port 161. The community is not
// copied: it must outlive the session. Time-out (ms) and retries are stored but not used: a request has
// limits of its own. Null, everything released, with the last error kSnmpNoMemory, WSAStartup's result,
// kSnmpWrongSocketsVersion or that of Windows Sockets (socket, agent's address, connection).
SnmpSession WINAPI ClientOpen(const char* agent, const char* community, INT timeOut, INT retries);

// Closes the session; TRUE, also for null. The last error, that of a request, is unchanged.
BOOL WINAPI ClientClose(SnmpSession session);

// Requests the objects of the list, which has at least one varbind, and stores the first value of the reply
// in the first varbind. Non-zero when a valid reply was received, whatever its error-status; the last error
// is kSnmpOtherCommunity when the reply has another community. Otherwise 0, with the list unchanged and the
// last error kSnmpNoAnswer (after 5 sends), kSnmpOtherRequests (5 replies), kSnmpBadReply,
// kSnmpTransferFailed or that of the heap. `errorStatus` and `errorIndex` may be null; they are stored as
// soon as they are read, also when the rest of the reply is malformed.
INT WINAPI ClientRequest(SnmpSession session, BYTE requestType, SnmpVarBindList* list,
                         AsnInteger32* errorStatus, AsnInteger32* errorIndex);

#endif

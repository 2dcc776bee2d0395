// Last errors that the built-in SNMP client sets. For the system these numbers have other meanings.
#ifndef DEVCOMM_SNMP_SNMP_ERRORS_H
#define DEVCOMM_SNMP_SNMP_ERRORS_H

#include <windows.h>

// Of opening a session.
constexpr DWORD kSnmpNoMemory = 1;
constexpr DWORD kSnmpWrongSocketsVersion = 30; // Windows Sockets 1.1 is not granted

// Of a request.
constexpr DWORD kSnmpOtherRequests = 3;  // only replies to other requests were received
constexpr DWORD kSnmpOtherCommunity = 5; // not a failure: the reply has another community
constexpr DWORD kSnmpBadReply = 11;      // the reply is malformed or has a value of an unknown type
constexpr DWORD kSnmpNoAnswer = 4102;
constexpr DWORD kSnmpTransferFailed = 0xFFFFFFFF; // sending or receiving

#endif

// Last errors that the built-in SNMP client leaves. To the system these numbers mean something else.
#ifndef DEVCOMM_SNMP_SNMP_ERRORS_H
#define DEVCOMM_SNMP_SNMP_ERRORS_H

#include <windows.h>

// Of opening a session.
constexpr DWORD kSnmpNoMemory = 1;
constexpr DWORD kSnmpWrongSocketsVersion = 30; // Windows Sockets 1.1 is not granted

// Of a request.
constexpr DWORD kSnmpOtherRequests = 3;  // only replies to other requests came
constexpr DWORD kSnmpOtherCommunity = 5; // no failure: the reply came from another community
constexpr DWORD kSnmpBadReply = 11;      // the reply is malformed or holds a value of an unknown type
constexpr DWORD kSnmpNoAnswer = 4102;
constexpr DWORD kSnmpTransferFailed = 0xFFFFFFFF; // sending or receiving

#endif

// Reading one object of a printer through the SNMP entry points: a session, a request of one varbind, and
// what the reply says. Every query is made of these. Callers have made sure that the entry points are bound,
// as CanQuery does.
#ifndef DEVCOMM_QUERIES_OBJECT_READER_H
#define DEVCOMM_QUERIES_OBJECT_READER_H

#include "base/records.h"
#include "devcomm/model.h"
#include "devcomm/snmp/snmp_entry_points.h"

// False, with last error 87.
inline bool RefuseArgument() {
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

// Whether a query may ask at all: the entry points are bound, and its arguments are there. Without the latter
// the last error is 87; without the former it stays as it was.
inline bool CanQuery(bool argumentsAreGiven) {
    return SnmpApiIsBound() && (argumentsAreGiven || RefuseArgument());
}

// How long the system's libraries wait for an agent.
struct SessionLimits {
    INT timeOut; // ms
    INT retries;
};
constexpr SessionLimits kReachLimits = {1000, 1};
constexpr SessionLimits kQueryLimits = {2000, 3};

// A session with an agent for the time of a scope. Opening and closing leave the last error as it was; only a
// failed opening tells why. The community must stay as long as the session does.
struct AgentSession {
    AgentSession(const char* agent, SessionLimits limits, const char* community = kCommunity);
    ~AgentSession();
    AgentSession(const AgentSession&) = delete;
    AgentSession& operator=(const AgentSession&) = delete;

    SnmpSession handle; // null: not opened
};

// Where an object lies below its table's OID: ".N", ".1.N". Holds two arcs; what does not fit is cut.
using ObjectSuffix = char[24];
void AppendArc(ObjectSuffix& suffix, uint32_t arc);

// What is asked where only an answer matters: sysObjectID, which every agent has.
constexpr const char* kReachObject = ".1.3.6.1.2.1.1.2.0";

// Whether the agent answers a request of the object, with whatever.
bool AskForObject(SnmpSession session, const char* oid);

enum class Match { kFailed, kNo, kYes };

// Compares an object (OID + suffix) with the expected text in one of the ways of query_tables.h. Failed: the
// request got no answer that could be read.
Match MatchObject(SnmpSession session, const char* oid, const char* suffix, int32_t comparison,
                  const char* expected);

// What an object holds as a number. Absent, and -1: it is not there or of another type.
struct ObjectNumber {
    bool isPresent;
    int32_t value;
};

// False, and absent, when the request failed.
bool ReadNumber(SnmpSession session, const char* oid, const char* suffix, ObjectNumber& number);

// What an object holds as a text, up to its first NUL and cut to fit; empty when it is not there or of
// another type.
using ObjectText = char[128];
bool ReadText(SnmpSession session, const char* oid, const char* suffix, ObjectText& text);

#endif

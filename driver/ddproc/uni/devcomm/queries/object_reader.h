// Reads single objects of a printer through the SNMP entry points: sessions, requests of one varbind, and the
// values of replies. All queries are made of these. The entry points must be bound, which OpenQuery checks.
#ifndef DEVCOMM_QUERIES_OBJECT_READER_H
#define DEVCOMM_QUERIES_OBJECT_READER_H

#include "base/records.h"
#include "devcomm/model.h"
#include "devcomm/snmp/snmp_entry_points.h"

// Returns false and sets the last error 87.
inline bool RefuseArgument() {
    SetLastError(ERROR_INVALID_PARAMETER);
    return false;
}

// Whether a query can start: the entry points are bound and its arguments given. Sets the last error 87 when
// only the arguments are missing.
inline bool CanQuery(bool argumentsAreGiven) {
    return SnmpApiIsBound() && (argumentsAreGiven || RefuseArgument());
}

// How long the libraries of the system wait for an agent.
struct SessionLimits {
    INT timeOut; // ms
    INT retries;
};
constexpr SessionLimits kReachLimits = {1000, 1};
constexpr SessionLimits kQueryLimits = {2000, 3};

// A session with an agent, closed at the end of its scope. The last error is unchanged, unless opening fails.
// The community must outlive the session.
struct AgentSession {
    AgentSession() = default;
    AgentSession(const char* agent, SessionLimits limits, const char* community = kCommunity);
    ~AgentSession();
    AgentSession(const AgentSession&) = delete;
    AgentSession& operator=(const AgentSession&) = delete;

    SnmpSession handle = nullptr; // null: not opened
};

// Starts a query: checks the entry points and the arguments, then opens the session. The session is not open
// when one of these fails.
inline AgentSession OpenQuery(const char* agent, bool argumentsAreGiven,
                              SessionLimits limits = kQueryLimits) {
    return CanQuery(argumentsAreGiven) ? AgentSession(agent, limits) : AgentSession();
}

// The end of an object's OID, after the OID of its table: ".N" or ".1.N". Longer ones are cut.
using ObjectSuffix = char[24];
void AppendSubIdentifier(ObjectSuffix& suffix, uint32_t id);

// The object requested where only an answer matters: sysObjectID, which every agent has.
constexpr const char* kReachObject = ".1.3.6.1.2.1.1.2.0";

// Whether the agent answers a request for the object at all.
bool AskForObject(SnmpSession session, const char* oid);

enum class Match { kFailed, kNo, kYes };

// Compares an object (OID + suffix) with the expected text; `comparison` is TELMAR_COMPARE_... Failed: there
// was no valid answer.
Match MatchObject(SnmpSession session, const char* oid, const char* suffix, int32_t comparison,
                  const char* expected);

// The value of an object as a number; absent, and -1, when the object does not exist or has another type.
struct ObjectNumber {
    bool isPresent;
    int32_t value;
};

// False, with the number absent, when the request failed.
bool ReadNumber(SnmpSession session, const char* oid, const char* suffix, ObjectNumber& number);

// The value of an object as a text, up to its first NUL and cut to fit; empty when the object does not exist
// or has another type.
using ObjectText = char[128];
bool ReadText(SnmpSession session, const char* oid, const char* suffix, ObjectText& text);

#endif

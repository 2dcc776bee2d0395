// A device that answers through the nine SNMP entry points, without a network: for each object as a test has scripted
// it, in the memory of the built-in client. It records what it was asked and checks that every request is a
// GetRequest of one varbind without a value.
#ifndef DEVCOMM_QUERIES_SCRIPTED_DEVICE_H
#define DEVCOMM_QUERIES_SCRIPTED_DEVICE_H

#include "devcomm/snmp/snmp_entry_points.h"

#include <map>
#include <string>
#include <vector>

constexpr const char* kAgent = "192.0.2.7"; // its address

// A reply, or none: the request then fails with this last error.
struct Answer {
    BYTE type = ASN_NULL;
    int32_t number = 0;
    std::string octets = {};
    std::vector<UINT> ids = {};
    AsnInteger32 errorStatus = 0;
    AsnInteger32 errorIndex = 0;
    DWORD failure = 0;

    Answer With(AsnInteger32 status, AsnInteger32 index) const;
};
Answer Number(int32_t number, BYTE type = ASN_INTEGER);
Answer Text(const std::string& octets, BYTE type = ASN_OCTETSTRING);
Answer Oid(const std::vector<UINT>& ids);
Answer Failing(DWORD lastError);

// Fills the entry points within a scope. At its end nothing may be open or allocated.
struct ScriptedDevice {
    ScriptedDevice();
    ~ScriptedDevice();
    ScriptedDevice(const ScriptedDevice&) = delete;
    ScriptedDevice& operator=(const ScriptedDevice&) = delete;

    // The script. An object without an answer is answered with noSuchName.
    std::map<std::string, Answer> answers;
    DWORD openError = 0;       // not 0: no session opens
    bool textsConvert = true;  // to OIDs
    size_t failingRequest = 0; // the one of this number (1: the first) fails with kRequestError; 0: none

    // What happened so far.
    std::vector<std::string> sessions; // opens: "agent community time-out retries"
    unsigned closes = 0;
    std::vector<std::string> asked; // OID texts in order
};

constexpr DWORD kRequestError = 1460;

#endif

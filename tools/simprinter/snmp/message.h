// SNMPv1 and SNMPv2c messages and their encoding. net-snmp's encoding is used, independent of the driver's,
// so that errors in the driver's show up.
#ifndef SIMPRINTER_MESSAGE_H
#define SIMPRINTER_MESSAGE_H

#include "simprinter/snmp/snmp_values.h"

using Bytes = std::vector<uint8_t>;

enum class PduType : int {
    kGet = 0xA0,
    kGetNext = 0xA1,
    kResponse = 0xA2,
    kSet = 0xA3,
    kGetBulk = 0xA5,
};

enum ErrorStatus : long {
    kNoError = 0,
    kTooBig = 1,
    kNoSuchName = 2,
    kGenErr = 5,
    kNotWritable = 17,
};

// Where the versions differ.
struct Version {
    const char* word; // on the command line
    const char* name;
    long number;        // in a message
    bool hasExceptions; // a missing object is an exception in its place, not an error of the whole reply
    bool hasCounter64;
    bool hasGetBulk;
    bool tooBigHasVariables; // those of the request
    long setRefusal;         // error-status: no object can be set
};
// clang-format off
inline constexpr Version kVersions[] = {
    // word  name      number exceptions Counter64 GetBulk tooBig variables  refusal
    {"1",  "SNMPv1",  0,     false,     false,    false,  true,             kNoSuchName},
    {"2c", "SNMPv2c", 1,     true,      true,     true,   false,            kNotWritable},
};
// clang-format on

struct VarBind {
    Oid name;
    Value value;
};

struct Message {
    const Version* version = &kVersions[0];
    std::string community;
    PduType type = PduType::kResponse;
    long requestId = 0;
    long errorStatus = kNoError; // of a GetBulkRequest the non-repeaters
    long errorIndex = 0;         // of a GetBulkRequest the greatest number of repetitions
    std::vector<VarBind> varBinds;
};

// Nothing when the datagram is no request of a known version; `problem` then says what it is: "an SNMPv3
// request".
std::optional<Message> ParseRequest(const Bytes& datagram, std::string& problem);

// A reply of a known version; nothing for any other datagram.
std::optional<Message> ParseReply(const Bytes& datagram);

// Empty when a value can't be encoded.
Bytes BuildMessage(const Message& message);

// "GetRequest"
const char* PduName(int type);

#endif

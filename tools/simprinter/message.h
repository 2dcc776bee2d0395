// SNMPv1 messages and their encoding. net-snmp's encoding is used, independent of the driver's, so that
// errors in the driver's show up.
#ifndef SIMPRINTER_MESSAGE_H
#define SIMPRINTER_MESSAGE_H

#include "simprinter/snmp_values.h"

using Bytes = std::vector<uint8_t>;

enum class PduType : int { kGet = 0xA0, kGetNext = 0xA1, kResponse = 0xA2, kSet = 0xA3 };

enum ErrorStatus : long {
    kNoError = 0,
    kTooBig = 1,
    kNoSuchName = 2,
    kGenErr = 5,
};

struct VarBind {
    Oid name;
    Value value;
};

struct Message {
    std::string community;
    PduType type = PduType::kResponse;
    long requestId = 0;
    long errorStatus = kNoError;
    long errorIndex = 0;
    std::vector<VarBind> varBinds;
};

// Nothing when the datagram is not a valid SNMPv1 request.
std::optional<Message> ParseRequest(const Bytes& datagram);

// Empty when a value can't be encoded.
Bytes BuildMessage(const Message& message);

#endif

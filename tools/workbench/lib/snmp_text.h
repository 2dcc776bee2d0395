// SNMP messages in words, for people who look into the traffic with a printer. Reads requests and answers of
// any version, also damaged ones, as far as they go.
#ifndef WORKBENCH_LIB_SNMP_TEXT_H
#define WORKBENCH_LIB_SNMP_TEXT_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using ObjectId = std::vector<uint32_t>; // sub-identifiers

enum class Damage : uint8_t {
    kNone,
    kCut,       // the datagram ends before the message does
    kMalformed, // a part of the message does not fit into the whole, or is missing
};

// What has been read of a message: everything up to the damage. Of several objects only the first.
struct SnmpMessage {
    Damage damage = Damage::kNone;
    std::string damageText; // what is wrong, and at which byte
    int32_t version = -1;   // as in the message: 0 is SNMPv1, 1 SNMPv2c; nothing is read of others
    std::string community;
    uint8_t pduType = 0; // 0: not read
    bool hasRequestId = false;
    uint32_t requestId = 0;
    int32_t errorStatus = 0;
    int32_t errorIndex = 0;
    ObjectId object; // empty: none
    size_t moreObjects = 0;
    uint8_t valueType = 0; // 0: not read
    int64_t number = 0;    // of a numeric type
    std::string bytes;     // of a type that consists of bytes
    ObjectId objectValue;
};

constexpr int64_t kTicksPerSecond = 100; // of TimeTicks

SnmpMessage ReadSnmpMessage(std::string_view datagram);

bool IsNumberType(uint8_t valueType);
bool IsTextType(uint8_t valueType);

// Whether the answer has a value. Otherwise the object does not exist, or the agent reports another error.
bool HasValue(const SnmpMessage& message);

// "SNMPv1".
std::string VersionText(int32_t version);

// "noSuchName"; "error-status 77".
std::string ErrorStatusText(int32_t errorStatus);

// "INTEGER", "Counter32"; "type 0x80" of an unknown one.
std::string TypeText(uint8_t valueType);

// ".1.3.6.1" and back. Empty when the text is not an object identifier.
std::string OidText(const ObjectId& oid);
ObjectId OidOf(std::string_view text);

// The standard name with the index, such as hrStorageSize.2, or else the OID.
std::string ObjectName(const ObjectId& oid);

// The value with its type, on one line: INTEGER 4 (sheetFeedAutoNonRemovableTray).
std::string ValueText(const SnmpMessage& message);

// "2 d 03:04:05", of hundredths of a second.
std::string DurationText(int64_t ticks);

// "GetRequest sysObjectID.0", "GetRequest sysDescr.0 and 2 more".
std::string RequestText(const SnmpMessage& message);

// The value, or the error, or the damage.
std::string AnswerText(const SnmpMessage& message);

#endif

// Object identifiers, values, and the sorted map of objects that the agent serves. They own their contents.
#ifndef SIMPRINTER_SNMP_VALUES_H
#define SIMPRINTER_SNMP_VALUES_H

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Sub-identifiers. Comparison gives SNMP's order of objects.
using Oid = std::vector<uint32_t>;

constexpr size_t kMaxSubIds = 128;

// The types of values by their tag in a message. SNMPv1 has neither Counter64 nor the exceptions, which take
// the place of a value that does not exist.
enum Tag : uint8_t {
    kInteger = 0x02,
    kOctetString = 0x04,
    kNull = 0x05,
    kObjectId = 0x06,
    kIpAddress = 0x40,
    kCounter = 0x41,
    kGauge = 0x42,
    kTimeTicks = 0x43,
    kOpaque = 0x44,
    kCounter64 = 0x46,
    kUnsigned = 0x47,
    kNoSuchObject = 0x80,
    kNoSuchInstance = 0x81,
    kEndOfMibView = 0x82,
};

// A value; the tag decides whether it is a number, bytes (four for an address), an object identifier or
// nothing (NULL, the exceptions). Numbers have 32 bits, those of a Counter64 have 64 and no sign.
struct Value {
    Tag tag = kNull;
    int64_t number = 0; // the bits of a Counter64
    std::string bytes;
    Oid oid;

    bool operator==(const Value& other) const {
        return tag == other.tag && number == other.number && bytes == other.bytes && oid == other.oid;
    }
};

inline bool IsNumber(Tag tag) {
    return tag == kInteger || tag == kCounter || tag == kGauge || tag == kTimeTicks || tag == kUnsigned
           || tag == kCounter64;
}
inline bool IsException(Tag tag) {
    return tag == kNoSuchObject || tag == kNoSuchInstance || tag == kEndOfMibView;
}

inline Value NumberValue(int64_t number, Tag tag = kInteger) {
    return {tag, number, {}, {}};
}
inline Value Counter64Value(uint64_t number) {
    return NumberValue(static_cast<int64_t>(number), kCounter64);
}
inline Value TextValue(std::string bytes, Tag tag = kOctetString) {
    return {tag, 0, std::move(bytes), {}};
}
inline Value OidValue(Oid oid) {
    return {kObjectId, 0, {}, std::move(oid)};
}

// A number in an Opaque: the byte 9F, the kind, the size, then the number.
inline Value OpaqueNumberValue(char kind, uint64_t bits, size_t size) {
    std::string bytes = {'\x9F', kind, static_cast<char>(size)};
    for (size_t i = size; i-- > 0;)
        bytes.push_back(static_cast<char>(static_cast<uint8_t>(bits >> (8 * i))));
    return TextValue(std::move(bytes), kOpaque);
}
constexpr char kOpaqueFloat = '\x78', kOpaqueDouble = '\x79';

using ObjectMap = std::map<Oid, Value>;

// Parses "1.3.6.1" or ".1.3.6.1": 2 to 128 sub-identifiers of 32 bits that a message can encode.
std::optional<Oid> OidFromText(std::string_view text);

// With a leading dot.
std::string OidText(const Oid& oid);

bool StartsWith(const Oid& oid, const Oid& prefix);

#endif

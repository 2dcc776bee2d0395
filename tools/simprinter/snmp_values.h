// Object identifiers, values and the sorted map of objects that an agent serves. Every part of simprinter
// passes these around; they own their contents.
#ifndef SIMPRINTER_SNMP_VALUES_H
#define SIMPRINTER_SNMP_VALUES_H

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Compares as SNMP orders objects: arc by arc.
using Oid = std::vector<uint32_t>;

constexpr size_t kMaxArcs = 128;

// The octets that stand for a value's type in a message.
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
    kUnsigned = 0x47,
};

// What a value holds, by its tag: a number of 32 bits, octets (four of an address), arcs or, being NULL,
// nothing.
struct Value {
    Tag tag = kNull;
    int64_t number = 0;
    std::string octets;
    Oid oid;

    bool operator==(const Value& other) const {
        return tag == other.tag && number == other.number && octets == other.octets && oid == other.oid;
    }
};

inline bool HoldsNumber(Tag tag) {
    return tag == kInteger || tag == kCounter || tag == kGauge || tag == kTimeTicks || tag == kUnsigned;
}

inline Value NumberValue(int64_t number, Tag tag = kInteger) {
    return {tag, number, {}, {}};
}
inline Value TextValue(std::string octets, Tag tag = kOctetString) {
    return {tag, 0, std::move(octets), {}};
}
inline Value OidValue(Oid oid) {
    return {kObjectId, 0, {}, std::move(oid)};
}

using ObjectMap = std::map<Oid, Value>;

// Reads "1.3.6.1" or ".1.3.6.1": 2 to 128 arcs of 32 bits that SNMP can carry.
std::optional<Oid> OidFromText(std::string_view text);

// With a leading dot.
std::string OidText(const Oid& oid);

bool StartsWith(const Oid& oid, const Oid& prefix);

#endif

// What reading and building of BER elements (ITU-T X.690) have in common.
#ifndef DEVCOMM_SNMP_BER_H
#define DEVCOMM_SNMP_BER_H

#include <cstdint>

constexpr uint8_t kBerIntegerTag = 0x02;
constexpr uint8_t kBerOidTag = 0x06;

// Flag of a length in the long form, whose low bits count the length octets behind it.
constexpr uint8_t kBerLongForm = 0x80;

// An arc is written in groups of bits, one an octet, with this flag on all but the last.
constexpr uint32_t kBerGroupBits = 7;
constexpr uint8_t kBerMoreGroups = 0x80;

// The first two arcs share an octet: the first times this, plus the second.
constexpr uint32_t kBerArcsPerFirst = 40;

// Whether an OBJECT IDENTIFIER may begin with these arcs.
constexpr bool AreFirstArcs(uint32_t first, uint32_t second) {
    return first < 3 && second < kBerArcsPerFirst;
}

#endif

// Constants for reading and building BER elements (ITU-T X.690).
#ifndef DEVCOMM_SNMP_BER_H
#define DEVCOMM_SNMP_BER_H

#include <cstdint>

constexpr uint8_t kBerIntegerTag = 0x02;
constexpr uint8_t kBerOidTag = 0x06;

// Flag of a length in the long form; its low bits are the number of length bytes that follow.
constexpr uint8_t kBerLongForm = 0x80;

// A sub-identifier is written in groups of bits, one per byte. All but the last group have the flag.
constexpr uint32_t kBerGroupBits = 7;
constexpr uint8_t kBerMoreGroups = 0x80;

// The first two sub-identifiers share a byte: the first times this, plus the second.
constexpr uint32_t kBerSubIdentifiersPerFirst = 40;

// Whether an OBJECT IDENTIFIER may begin with these sub-identifiers.
constexpr bool AreFirstSubIdentifiers(uint32_t first, uint32_t second) {
    return first < 3 && second < kBerSubIdentifiersPerFirst;
}

#endif

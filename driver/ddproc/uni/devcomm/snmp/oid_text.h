// The numbers in the dotted text of an object identifier.
#ifndef DEVCOMM_SNMP_OID_TEXT_H
#define DEVCOMM_SNMP_OID_TEXT_H

#include "base/text.h"

#include <cstdint>

// Takes the digits at the start of the text as a sub-identifier; 0 without digits. Any number that exceeds 32
// bits is returned as one above UINT32_MAX, but not necessarily as itself.
constexpr uint64_t TakeSubIdentifier(const char*& text) {
    uint64_t id = 0;
    for (; IsDigit(*text); ++text)
        if (id <= UINT32_MAX)
            id = id * 10 + static_cast<uint64_t>(*text - '0');
    return id;
}

#endif

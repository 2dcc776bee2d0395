// Builds BER elements. Lengths up to 127 have the short form, others the long form with two, three or four
// length bytes.
#include "devcomm/snmp/ber_writer.h"

#include "devcomm/snmp/ber.h"

#include <cstring>
#include <windows.h>

namespace {

constexpr uint32_t kMaxShortLength = 0x7F;
constexpr uint32_t kGroup = 0x7F;

uint32_t LengthOctets(uint32_t contents) {
    return contents <= kMaxShortLength ? 0 : contents <= 0xFFFF ? 2 : contents <= 0xFFFFFF ? 3 : 4;
}

uint32_t HeaderSize(uint32_t contents) {
    return 2 + LengthOctets(contents);
}

// Of an existing element.
uint32_t HeaderSize(const BerBuffer& element) {
    return element.octets[1] <= kMaxShortLength ? 2 : 2u + (element.octets[1] & ~kBerLongForm);
}

void WriteLength(uint8_t* element, uint32_t contents) {
    const uint32_t lengthOctets = LengthOctets(contents);
    element[1] = static_cast<uint8_t>(lengthOctets == 0 ? contents : kBerLongForm | lengthOctets);
    for (uint32_t i = lengthOctets; i > 0; --i, contents >>= 8)
        element[1 + i] = static_cast<uint8_t>(contents);
}

uint8_t* FreeEnd(const BerBuffer& element) {
    return element.octets + element.count;
}

// Adds the bytes after the element to its contents.
void Grow(BerBuffer& element, uint32_t added) {
    const uint32_t header = HeaderSize(element);
    const uint32_t contents = element.count - header + added;
    const uint32_t newHeader = HeaderSize(contents);
    if (newHeader != header)
        memmove(element.octets + newHeader, element.octets + header, contents);
    WriteLength(element.octets, contents);
    element.count = newHeader + contents;
}

// Contents of an OBJECT IDENTIFIER; 0 when they can't be written.
uint32_t WriteSubIdentifiers(const uint32_t* ids, uint32_t count, uint8_t (&to)[kBerMaxOid]) {
    if (count < 2 || !AreFirstSubIdentifiers(ids[0], ids[1]))
        return 0;
    uint32_t written = 0;
    to[written++] = static_cast<uint8_t>(ids[0] * kBerSubIdentifiersPerFirst + ids[1]);
    for (uint32_t i = 2; i < count; ++i) {
        uint32_t groups = 1;
        while (groups < 5 && ids[i] >> (groups * kBerGroupBits) != 0)
            ++groups;
        if (groups > kBerMaxOid - written)
            return 0;
        while (groups-- > 0)
            to[written++] = static_cast<uint8_t>((ids[i] >> (groups * kBerGroupBits) & kGroup)
                                                 | (groups > 0 ? kBerMoreGroups : 0));
    }
    return written;
}

} // namespace

BerBuffer BerCreate(uint8_t tag, uint32_t capacity) {
    BerBuffer element = {static_cast<uint8_t*>(LocalAlloc(LMEM_FIXED, capacity)), 2, 1};
    if (element.octets == nullptr)
        return {};
    element.octets[0] = tag;
    element.octets[1] = 0;
    return element;
}

void BerFree(BerBuffer& element) {
    if (element.owned != 0)
        LocalFree(element.octets);
    element = {};
}

BerBuffer BerBegin(const BerBuffer& outer, uint8_t tag) {
    const BerBuffer element = {FreeEnd(outer), 2, 0};
    element.octets[0] = tag;
    element.octets[1] = 0;
    return element;
}

void BerAppend(BerBuffer& outer, const BerBuffer& inner) {
    Grow(outer, inner.count);
}

void BerAppendOctets(BerBuffer& outer, uint8_t tag, const void* octets, uint32_t count) {
    uint8_t* element = FreeEnd(outer);
    element[0] = tag;
    WriteLength(element, count);
    if (count > 0)
        memcpy(element + HeaderSize(count), octets, count);
    Grow(outer, HeaderSize(count) + count);
}

void BerAppendInteger(BerBuffer& outer, int32_t value) {
    uint8_t octets[kBerMaxInteger];
    for (uint32_t i = 0; i < kBerMaxInteger; ++i)
        octets[i] = static_cast<uint8_t>(static_cast<uint32_t>(value) >> (8 * (kBerMaxInteger - 1 - i)));
    // Leading bytes that only repeat the sign are omitted.
    uint32_t skipped = 0;
    while (skipped < kBerMaxInteger - 1 && octets[skipped] == ((octets[skipped + 1] & 0x80) != 0 ? 0xFF : 0))
        ++skipped;
    BerAppendOctets(outer, kBerIntegerTag, octets + skipped, kBerMaxInteger - skipped);
}

bool BerAppendOid(BerBuffer& outer, const uint32_t* ids, uint32_t count) {
    uint8_t contents[kBerMaxOid];
    const uint32_t length = WriteSubIdentifiers(ids, count, contents);
    if (length > 0)
        BerAppendOctets(outer, kBerOidTag, contents, length);
    return length > 0;
}

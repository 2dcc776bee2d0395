// Builds BER elements (ITU-T X.690). An enclosing element starts empty; inner elements are appended in order,
// and its length is updated each time. A message is one block: an inner element is built at the free end of
// the enclosing one. Independent of messages and sockets.
#ifndef DEVCOMM_SNMP_BER_WRITER_H
#define DEVCOMM_SNMP_BER_WRITER_H

#include <cstdint>

// One element under construction: tag, length, and the contents so far.
struct BerBuffer {
    uint8_t* octets;
    uint32_t count;
    uint32_t
        owned; // 1: a block of the local heap, which BerFree releases; 0: within the block of another element
};

// Bytes of the longest tag and length.
constexpr uint32_t kBerMaxHeader = 6;

// Content bytes of the longest INTEGER and of the longest OBJECT IDENTIFIER that is written.
constexpr uint32_t kBerMaxInteger = 4;
constexpr uint32_t kBerMaxOid = 128;

// An empty element in a block of its own, which must have room for everything that will be appended, each
// element with kBerMaxHeader. `octets` is null without memory.
BerBuffer BerCreate(uint8_t tag, uint32_t capacity);
void BerFree(BerBuffer& element);

// An empty element at the free end of `outer`, to be filled and then appended to it.
BerBuffer BerBegin(const BerBuffer& outer, uint8_t tag);
void BerAppend(BerBuffer& outer, const BerBuffer& inner);

// Append an element with these contents; the last two have the tags INTEGER and OBJECT IDENTIFIER.
void BerAppendOctets(BerBuffer& outer, uint8_t tag, const void* octets, uint32_t count);
void BerAppendInteger(BerBuffer& outer, int32_t value);

// False, and nothing appended, unless there are two sub-identifiers or more, the first below 3, the second
// below 40, and the contents fit kBerMaxOid.
bool BerAppendOid(BerBuffer& outer, const uint32_t* ids, uint32_t count);

#endif

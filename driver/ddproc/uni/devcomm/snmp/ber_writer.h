// Building of BER elements (ITU-T X.690) inside out: an enclosing element starts empty, each inner element is
// appended in order, and its length is recomputed on each append. The whole of a message lies in one block;
// an inner element is built at the free end of its enclosing one. Knows nothing of messages or sockets.
#ifndef DEVCOMM_SNMP_BER_WRITER_H
#define DEVCOMM_SNMP_BER_WRITER_H

#include <cstdint>

// One element under construction: tag, length, and the contents so far.
struct BerBuffer {
    uint8_t* octets;
    uint32_t count;
    uint32_t owned; // 1: a block of the local heap that BerFree releases; 0: lies in another element's block
};

// Octets of the longest tag and length.
constexpr uint32_t kBerMostHeader = 6;

// Content octets of the longest INTEGER and of the longest OBJECT IDENTIFIER that is written.
constexpr uint32_t kBerMostInteger = 4;
constexpr uint32_t kBerMostOid = 128;

// An empty element in a block of its own, which must have room for everything that will be appended, each
// element with kBerMostHeader. Null octets without memory.
BerBuffer BerCreate(uint8_t tag, uint32_t capacity);
void BerFree(BerBuffer& element);

// An empty element at the free end of `outer`, to be filled and then appended to it.
BerBuffer BerBegin(const BerBuffer& outer, uint8_t tag);
void BerAppend(BerBuffer& outer, const BerBuffer& inner);

// Appends an element with these contents. Tags of INTEGER and OBJECT IDENTIFIER go without saying.
void BerAppendOctets(BerBuffer& outer, uint8_t tag, const void* octets, uint32_t count);
void BerAppendInteger(BerBuffer& outer, int32_t value);

// False, and nothing appended, unless there are two arcs or more, the first below 3, the second below 40, and
// the contents fit kBerMostOid.
bool BerAppendOid(BerBuffer& outer, const uint32_t* arcs, uint32_t count);

#endif

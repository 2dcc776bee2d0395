// Reads BER elements (ITU-T X.690) from untrusted input. Independent of messages and sockets. Owns nothing:
// all results point into the caller's bytes.
#ifndef DEVCOMM_SNMP_BER_READER_H
#define DEVCOMM_SNMP_BER_READER_H

#include <cstddef>
#include <cstdint>

// A cursor over bytes. `failed` is sticky, and contents opened from a failed cursor have failed, too: read
// straight on, and test once at the end. A failed cursor has no bytes left.
struct BerReader {
    const uint8_t* at;
    const uint8_t* end;
    bool failed;
};

// Takes the next `count` bytes. Null, with the cursor failed, when fewer are left.
const uint8_t* BerTake(BerReader& reader, size_t count);

// Takes the next element with any tag, and opens its contents. Lengths have the short form, or the long form
// with 1 to 4 length bytes. The cursor fails, and the tag is 0, when the element does not end within it.
uint8_t BerOpenAny(BerReader& reader, BerReader& contents);

// Takes the next element, which must have this tag, and opens its contents.
BerReader BerOpen(BerReader& reader, uint8_t tag);

// The same, for an element that must not be empty.
BerReader BerOpenFilled(BerReader& reader, uint8_t tag);

// The contents of an element as a signed 32-bit number, most significant byte first, sign-extended from the
// first byte when shorter than four. Five bytes are valid when the first is 0: an unsigned number from 2^31
// on. Fails without bytes and for longer contents.
int32_t BerInteger(BerReader& contents);

// Takes the next element, which must be an INTEGER.
int32_t BerReadInteger(BerReader& reader);

// The sub-identifiers of the contents of an OBJECT IDENTIFIER; their count. The first octet gives two:
// divided by 40, and the remainder. Fails on no octets, an incomplete sub-identifier, a sub-identifier of
// more than 32 bits and more than `capacity` sub-identifiers.
uint32_t BerReadSubIdentifiers(BerReader& contents, uint32_t* ids, uint32_t capacity);

#endif

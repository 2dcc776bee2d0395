// Reads BER elements.
#include "devcomm/snmp/ber_reader.h"

#include "devcomm/snmp/ber.h"

namespace {

constexpr uint8_t kMaxLengthOctets = 4;

size_t Left(const BerReader& reader) {
    return static_cast<size_t>(reader.end - reader.at);
}

void Fail(BerReader& reader) {
    reader.failed = true;
    reader.at = reader.end;
}

uint8_t TakeOctet(BerReader& reader) {
    const uint8_t* octet = BerTake(reader, 1);
    return octet != nullptr ? *octet : 0;
}

size_t TakeLength(BerReader& reader) {
    const uint8_t first = TakeOctet(reader);
    if (first < kBerLongForm)
        return first;
    const uint8_t count = first - kBerLongForm;
    if (count == 0 || count > kMaxLengthOctets) // the indefinite form, or one that is too long
        Fail(reader);
    size_t length = 0;
    for (uint8_t i = 0; i < count && !reader.failed; ++i)
        length = length << 8 | TakeOctet(reader);
    return length;
}

} // namespace

const uint8_t* BerTake(BerReader& reader, size_t count) {
    if (reader.failed || count > Left(reader)) {
        Fail(reader);
        return nullptr;
    }
    const uint8_t* taken = reader.at;
    reader.at += count;
    return taken;
}

uint8_t BerOpenAny(BerReader& reader, BerReader& contents) {
    const uint8_t tag = TakeOctet(reader);
    const size_t length = TakeLength(reader);
    const uint8_t* start = BerTake(reader, length);
    contents = {start, start != nullptr ? start + length : nullptr, reader.failed};
    return reader.failed ? 0 : tag;
}

BerReader BerOpen(BerReader& reader, uint8_t tag) {
    BerReader contents;
    if (BerOpenAny(reader, contents) != tag) {
        Fail(reader);
        Fail(contents);
    }
    return contents;
}

BerReader BerOpenFilled(BerReader& reader, uint8_t tag) {
    BerReader contents = BerOpen(reader, tag);
    if (Left(contents) == 0) {
        Fail(reader);
        Fail(contents);
    }
    return contents;
}

int32_t BerInteger(BerReader& contents) {
    if (Left(contents) == sizeof(int32_t) + 1 && *contents.at == 0)
        ++contents.at;
    const size_t count = Left(contents);
    if (count == 0 || count > sizeof(int32_t)) {
        Fail(contents);
        return 0;
    }
    uint32_t value = (*contents.at & 0x80) != 0 ? UINT32_MAX : 0;
    while (contents.at != contents.end)
        value = value << 8 | *contents.at++;
    return static_cast<int32_t>(value);
}

int32_t BerReadInteger(BerReader& reader) {
    BerReader contents = BerOpen(reader, kBerIntegerTag);
    const int32_t value = BerInteger(contents);
    if (contents.failed)
        Fail(reader);
    return value;
}

uint32_t BerReadSubIdentifiers(BerReader& contents, uint32_t* ids, uint32_t capacity) {
    if (Left(contents) == 0 || capacity < 2) {
        Fail(contents);
        return 0;
    }
    const uint8_t first = *contents.at++;
    uint32_t count = 0;
    ids[count++] = first / kBerSubIdentifiersPerFirst;
    ids[count++] = first % kBerSubIdentifiersPerFirst;
    while (contents.at != contents.end) {
        uint64_t id = 0;
        uint8_t octet;
        do {
            octet = TakeOctet(contents); // fails when the sub-identifier is incomplete
            id = id << kBerGroupBits | (octet & ~kBerMoreGroups);
        } while ((octet & kBerMoreGroups) != 0 && id <= UINT32_MAX);
        if (contents.failed || id > UINT32_MAX || count == capacity) {
            Fail(contents);
            return 0;
        }
        ids[count++] = static_cast<uint32_t>(id);
    }
    return count;
}

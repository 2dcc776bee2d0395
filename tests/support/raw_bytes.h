// Records by raw byte offset, independent of the project's structs: expected records are built, actual ones
// compared. Numbers are little-endian.
#ifndef SUPPORT_RAW_BYTES_H
#define SUPPORT_RAW_BYTES_H

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

// A block of zeros with values at offsets.
struct RawBytes {
    explicit RawBytes(size_t size) : bytes(size) {}

    RawBytes& U8(size_t offset, unsigned value, size_t repeat = 1);
    RawBytes& U16(size_t offset, unsigned value);
    RawBytes& U32(size_t offset, uint32_t value);
    RawBytes& Pointer(size_t offset, const void* target);
    RawBytes& Text(size_t offset, const std::string& text); // without terminator
    RawBytes& Wide(size_t offset, const wchar_t* text);     // without terminator
    RawBytes& Append(const RawBytes& more);

    std::vector<uint8_t> bytes;
};

template <typename Number>
Number NumberAt(const void* record, size_t offset) {
    Number number;
    memcpy(&number, static_cast<const uint8_t*>(record) + offset, sizeof(number));
    return number;
}

// A text of ASCII characters, terminated.
inline std::vector<wchar_t> Widened(const std::string& ascii) {
    std::vector<wchar_t> wide(ascii.begin(), ascii.end());
    wide.push_back(0);
    return wide;
}

// The first few bytes that differ, by offset; empty when none does.
std::string Differences(const void* actual, const RawBytes& expected);

#endif

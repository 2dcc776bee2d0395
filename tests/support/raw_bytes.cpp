// Builds records by raw byte offset and compares them.
#include "support/raw_bytes.h"

#include <sstream>

RawBytes& RawBytes::U8(size_t offset, unsigned value, size_t repeat) {
    for (size_t i = 0; i < repeat; ++i)
        bytes.at(offset + i) = static_cast<uint8_t>(value);
    return *this;
}

RawBytes& RawBytes::U16(size_t offset, unsigned value) {
    return U8(offset, value & 0xFF).U8(offset + 1, value >> 8 & 0xFF);
}

RawBytes& RawBytes::U32(size_t offset, uint32_t value) {
    return U16(offset, value & 0xFFFF).U16(offset + 2, value >> 16);
}

RawBytes& RawBytes::Pointer(size_t offset, const void* target) {
    const uint64_t address = reinterpret_cast<uintptr_t>(target);
    return U32(offset, static_cast<uint32_t>(address)).U32(offset + 4, static_cast<uint32_t>(address >> 32));
}

RawBytes& RawBytes::Text(size_t offset, const std::string& text) {
    for (const char c : text)
        U8(offset++, static_cast<uint8_t>(c));
    return *this;
}

RawBytes& RawBytes::Wide(size_t offset, const wchar_t* text) {
    for (; *text != 0; ++text, offset += 2)
        U16(offset, static_cast<uint16_t>(*text));
    return *this;
}

RawBytes& RawBytes::Append(const RawBytes& more) {
    bytes.insert(bytes.end(), more.bytes.begin(), more.bytes.end());
    return *this;
}

std::string Differences(const void* actual, const RawBytes& expected) {
    if (actual == nullptr)
        return "there is no block";
    std::ostringstream text;
    int left = 8; // differences to report
    for (size_t i = 0; i < expected.bytes.size() && left > 0; ++i) {
        const unsigned got = NumberAt<uint8_t>(actual, i), want = expected.bytes[i];
        if (got != want && left-- > 0)
            text << "byte " << i << ": got " << got << ", want " << want << "; ";
    }
    return text.str();
}

// BER messages byte by byte, independent of the module's writer: hexadecimal text, elements, and an SNMPv1 reply
// with one varbind.
#ifndef SUPPORT_OCTETS_H
#define SUPPORT_OCTETS_H

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using Octets = std::vector<uint8_t>;

// Pairs of hexadecimal digits with spaces between.
inline Octets Hex(const char* text) {
    std::istringstream digits(text);
    digits >> std::hex;
    return Octets(std::istream_iterator<unsigned>(digits), {});
}

inline Octets Characters(const std::string& text) {
    return Octets(text.begin(), text.end());
}

inline Octets Join(std::initializer_list<Octets> parts) {
    Octets whole;
    for (const Octets& part : parts)
        whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

// The long form of a length has two bytes, or three where two are not enough.
inline Octets Element(uint8_t tag, std::initializer_list<Octets> parts) {
    const Octets contents = Join(parts);
    const size_t length = contents.size();
    Octets header = length < 128 ? Octets{tag} : length < 0x10000 ? Octets{tag, 0x82} : Octets{tag, 0x83};
    for (int shift = length < 128 ? 0 : length < 0x10000 ? 8 : 16; shift >= 0; shift -= 8)
        header.push_back(static_cast<uint8_t>(length >> shift));
    return Join({header, contents});
}

// Whole elements, so that each may be replaced. Unchanged it is a valid reply to the first request of a session.
struct ReplyParts {
    Octets Message() const {
        const Octets varBinds = Element(0x30, {Element(0x30, {name, value})});
        return Element(0x30, {version, community, Element(0xA2, {requestId, status, index, varBinds})});
    }

    Octets version = Hex("02 01 00"), community = Element(0x04, {Characters("tovask")});
    Octets requestId = Hex("02 02 01 01"), status = Hex("02 01 00"), index = Hex("02 01 00");
    Octets name = Hex("06 03 2B 06 01"), value = Hex("02 01 2A");
};

// A heap block of exactly these bytes, so that a sanitizer finds reads beyond them.
struct ExactBlock {
    explicit ExactBlock(const Octets& octets) : count(octets.size()), block(new uint8_t[count]) {
        std::copy(octets.begin(), octets.end(), block.get());
    }
    const uint8_t* Start() const { return block.get(); }
    const uint8_t* End() const { return block.get() + count; }

    size_t count;
    std::unique_ptr<uint8_t[]> block;
};

#endif

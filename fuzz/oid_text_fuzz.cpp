// Fuzz target: any text at all as an object identifier. What is accepted is held against a conversion of its
// own, arc text by arc text, against its own text printed again and, as far as they can be written, against
// its BER octets. Run by libFuzzer and, over a fixed set of inputs, by the regression test.
#include "require.h"

#include "devcomm/snmp/ber_reader.h"
#include "devcomm/snmp/ber_writer.h"
#include "devcomm/snmp/snmp_values.h"
#include "win32_control.h"

#include <string>
#include <vector>

namespace {

using Arcs = std::vector<UINT>;

constexpr size_t kMaxArcs = 128;
constexpr size_t kMaxDigits = 15;

// The arcs of a text by opening and closing arc texts; none when it is not an OID's.
Arcs ExpectedArcs(const std::string& text) {
    Arcs arcs;
    bool isOpen = false;
    std::string digits;
    for (size_t i = 0; i <= text.size(); ++i) {
        const char c = i < text.size() ? text[i] : '\0';
        if (c >= '0' && c <= '9') {
            isOpen = true;
            digits += c;
            continue;
        }
        if ((c != '.' && c != '\0') || digits.size() > kMaxDigits)
            return {};
        if (isOpen) {
            const unsigned long long arc = strtoull(digits.c_str(), nullptr, 10);
            if (arc > UINT32_MAX || arcs.size() == kMaxArcs)
                return {};
            arcs.push_back(static_cast<UINT>(arc));
        }
        isOpen = c == '.';
        digits.clear();
    }
    return arcs.size() >= 2 && arcs[0] < 3 && arcs[1] < 40 ? arcs : Arcs();
}

Arcs Convert(const std::string& text) {
    AsnObjectIdentifier oid;
    const bool converted = ClientStrToOid(text.c_str(), &oid) != FALSE;
    Require(converted == (oid.ids != nullptr) && converted == (oid.idLength > 0), "half an OID");
    const Arcs arcs(oid.ids, oid.ids + oid.idLength);
    ClientOidFree(&oid);
    return arcs;
}

void CheckOctets(const Arcs& arcs) {
    BerBuffer message = BerCreate(ASN_SEQUENCE, 2 * kBerMostHeader + kBerMostOid);
    const bool written = BerAppendOid(message, arcs.data(), static_cast<uint32_t>(arcs.size()));
    Require(written || arcs.size() > kBerMostOid / 5, "a short OID can't be written");
    if (written) {
        BerReader reader = {message.octets, message.octets + message.count, false};
        BerReader contents = BerOpen(reader, ASN_SEQUENCE);
        BerReader oid = BerOpen(contents, ASN_OBJECTIDENTIFIER);
        Arcs read(arcs.size());
        Require(BerReadArcs(oid, read.data(), static_cast<uint32_t>(read.size())) == arcs.size()
                    && read == arcs,
                "written and read arcs differ");
    }
    BerFree(message);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    win32::Reset();
    std::string text(octets, octets + count);
    text.resize(text.find('\0') != std::string::npos ? text.find('\0') : text.size());
    const Arcs arcs = Convert(text);
    Require(arcs == ExpectedArcs(text), "other arcs than the text's");
    if (!arcs.empty()) {
        std::string printed;
        for (const UINT arc : arcs)
            printed += '.' + std::to_string(arc);
        Require(Convert(printed) == arcs, "other arcs from the printed text");
        CheckOctets(arcs);
    }
    Require(win32::Count().localBlocks == 0, "something is left over");
    return 0;
}

// Fuzz target: any text as an object identifier. The result is compared with a conversion of the target's own, with
// that of its text printed again and, if it can be written, with its BER element. Run by libFuzzer and, over a fixed
// set of inputs, by the regression test.
#include "require.h"

#include "devcomm/snmp/ber_reader.h"
#include "devcomm/snmp/ber_writer.h"
#include "devcomm/snmp/snmp_values.h"
#include "win32_control.h"

#include <sstream>
#include <string>
#include <vector>

namespace {

using SubIdentifiers = std::vector<UINT>;

constexpr size_t kMaxSubIdentifiers = 128;
constexpr size_t kMaxDigits = 15;

// The sub-identifiers of a text; none when it is no OID. An empty one is 0, but the first may be left out.
SubIdentifiers ExpectedSubIdentifiers(const std::string& text) {
    SubIdentifiers ids;
    std::istringstream pieces(text + '.');
    for (std::string digits; std::getline(pieces, digits, '.');) {
        if (digits.empty() && pieces.tellg() == 1)
            continue;
        const unsigned long long id = strtoull(digits.c_str(), nullptr, 10);
        if (digits.find_first_not_of("0123456789") != std::string::npos || digits.size() > kMaxDigits || id > UINT32_MAX
            || ids.size() == kMaxSubIdentifiers)
            return {};
        ids.push_back(static_cast<UINT>(id));
    }
    return ids.size() >= 2 && ids[0] < 3 && ids[1] < 40 ? ids : SubIdentifiers();
}

SubIdentifiers Convert(const std::string& text) {
    AsnObjectIdentifier oid;
    const bool converted = ClientStrToOid(text.c_str(), &oid) != FALSE;
    Require(converted == (oid.ids != nullptr) && converted == (oid.idLength > 0), "half an OID");
    const SubIdentifiers ids(oid.ids, oid.ids + oid.idLength);
    ClientOidFree(&oid);
    return ids;
}

void CheckOctets(const SubIdentifiers& ids) {
    BerBuffer message = BerCreate(ASN_SEQUENCE, 2 * kBerMaxHeader + kBerMaxOid);
    const bool written = BerAppendOid(message, ids.data(), static_cast<uint32_t>(ids.size()));
    Require(written || ids.size() > kBerMaxOid / 5, "a short OID can't be written");
    if (written) {
        BerReader reader = {message.octets, message.octets + message.count, false};
        BerReader contents = BerOpen(reader, ASN_SEQUENCE);
        BerReader oid = BerOpen(contents, ASN_OBJECTIDENTIFIER);
        SubIdentifiers read(ids.size());
        Require(BerReadSubIdentifiers(oid, read.data(), static_cast<uint32_t>(read.size())) == ids.size()
                    && read == ids,
                "written and read sub-identifiers differ");
    }
    BerFree(message);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    win32::Reset();
    std::string text(octets, octets + count);
    text.resize(text.find('\0') != std::string::npos ? text.find('\0') : text.size());
    const SubIdentifiers ids = Convert(text);
    Require(ids == ExpectedSubIdentifiers(text), "other sub-identifiers than the text's");
    if (!ids.empty()) {
        std::string printed;
        for (const UINT id : ids)
            printed += '.' + std::to_string(id);
        Require(Convert(printed) == ids, "other sub-identifiers from the printed text");
        CheckOctets(ids);
    }
    Require(win32::Count().localBlocks == 0, "something is left over");
    return 0;
}

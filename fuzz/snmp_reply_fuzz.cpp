// Fuzz target: any bytes as the datagrams that come back for a request. Each goes through the reader
// by itself, then all of them through one request of the built-in client. The input has them one after the
// other, each after two bytes with its length; the last may be cut. Run by libFuzzer and, over a fixed set
// of inputs, by the regression test.
#include "require.h"

#include "devcomm/snmp/snmp_client.h"
#include "devcomm/snmp/snmp_message.h"
#include "devcomm/snmp/snmp_values.h"
#include "win32_control.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace {

using win32::Datagram;

constexpr int32_t kFirstId = 257;
constexpr size_t kReceiveCapacity = 4096;
constexpr AsnInteger32 kNothing = 0x5A5A5A5A;

std::vector<Datagram> Split(const uint8_t* octets, size_t count) {
    std::vector<Datagram> datagrams;
    for (const uint8_t* end = octets + count; end - octets > 2;) {
        const auto length = std::min<ptrdiff_t>(octets[0] << 8 | octets[1], end - octets - 2);
        datagrams.emplace_back(octets + 2, octets + 2 + length);
        octets += 2 + length;
    }
    return datagrams;
}

// A block that ends where the datagram ends.
struct Block {
    explicit Block(const Datagram& datagram) : start(new uint8_t[datagram.size()]) {
        std::copy(datagram.begin(), datagram.end(), start.get());
    }
    bool Holds(const BerReader& reader, size_t count) const {
        return reader.at >= start.get() && reader.at <= reader.end && reader.end <= start.get() + count;
    }

    std::unique_ptr<uint8_t[]> start;
};

void CheckValue(const AsnAny& value, size_t most) {
    switch (SnmpFormOf(value.asnType)) {
    case SnmpForm::kNumber:
        break;
    case SnmpForm::kOctets:
        Require(value.asnValue.string.dynamic == TRUE && value.asnValue.string.length < most, "more octets than came");
        break;
    case SnmpForm::kOid:
        Require(value.asnValue.object.idLength >= 2 && value.asnValue.object.idLength <= most,
                "more sub-identifiers than came");
        break;
    case SnmpForm::kEmpty:
        Require(value.asnValue.string.length == 0, "a NULL with octets");
        break;
    case SnmpForm::kUnknown:
        Require(false, "a value of a type that no reply may have");
    }
}

enum class Outcome { kMalformed, kOtherRequest, kRead };

// What the reader makes of one datagram.
Outcome ReadOne(const Datagram& datagram) {
    const Block block(datagram);
    SnmpReply reply;
    if (!SnmpReadReply(block.start.get(), datagram.size(), reply))
        return Outcome::kMalformed;
    Require(block.Holds(reply.community, datagram.size()) && block.Holds(reply.rest, datagram.size()),
            "a cursor beyond the datagram");
    const bool isOther = reply.requestId != kFirstId;
    SnmpResult result;
    SnmpVarBind varBind = {};
    const bool valid = SnmpReadResult(reply, nullptr, nullptr, result);
    Require(!valid || block.Holds(result.value, datagram.size()), "a value beyond the datagram");
    const bool decoded = valid && SnmpDecodeValue(result.valueType, result.value, varBind.value) != FALSE;
    if (decoded)
        CheckValue(varBind.value, datagram.size());
    ClientVarBindFree(&varBind);
    return isOther ? Outcome::kOtherRequest : decoded ? Outcome::kRead : Outcome::kMalformed;
}

// The request's last error by what the reader makes of each datagram, in turn; 0: it succeeds.
DWORD ExpectedError(const std::vector<Datagram>& datagrams) {
    for (size_t i = 0; i < 5; ++i) {
        if (i == datagrams.size() || datagrams[i].size() > kReceiveCapacity)
            return 0xFFFFFFFF;
        const Outcome outcome = ReadOne(datagrams[i]);
        if (outcome != Outcome::kOtherRequest)
            return outcome == Outcome::kRead ? 0 : 11;
    }
    return 3;
}

void CheckRequest(const std::vector<Datagram>& datagrams) {
    win32::Wire wire;
    wire.answer = [&datagrams, answered = false](const Datagram&) mutable {
        const bool first = !answered;
        answered = true;
        return first ? datagrams : std::vector<Datagram>();
    };
    win32::SetWire(wire);
    SnmpVarBind varBind;
    memset(&varBind, 0xEE, sizeof(varBind));
    varBind.name = {};
    varBind.value.asnType = ASN_NULL;
    const SnmpVarBind before = varBind;
    SnmpVarBindList list = {&varBind, 1};
    AsnInteger32 status = kNothing, index = kNothing;
    const SnmpSession session = ClientOpen("192.0.2.7", "tovask", 2000, 3);
    SetLastError(0);
    const bool succeeded = ClientRequest(session, SNMP_PDU_GET, &list, &status, &index) != 0;
    const DWORD lastError = GetLastError();
    const DWORD expected = ExpectedError(datagrams);
    Require(succeeded == (expected == 0), "the request and the reader don't agree");
    if (succeeded) {
        Require(lastError == 0 || lastError == 5, "the last error of a success");
        CheckValue(varBind.value, kReceiveCapacity);
    } else {
        Require(lastError == expected, "another last error");
        // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): what lies between the fields stays, too
        Require(memcmp(&varBind, &before, sizeof(varBind)) == 0, "a failed request has stored a value");
    }
    ClientVarBindFree(&varBind);
    ClientClose(session);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    win32::Reset();
    const std::vector<Datagram> datagrams = Split(octets, count);
    for (const Datagram& datagram : datagrams)
        ReadOne(datagram);
    if (!datagrams.empty() && !datagrams[0].empty()) // else nothing is seen waiting, which only takes time
        CheckRequest(datagrams);
    const win32::Counts counts = win32::Count();
    Require(counts.localBlocks == 0 && counts.sockets == 0 && counts.socketUses == 0, "something is left over");
    win32::Reset(); // with nothing kept no search for leaks is due, which takes most of the time
    return 0;
}

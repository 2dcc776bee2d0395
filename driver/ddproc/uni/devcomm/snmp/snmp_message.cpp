// Builds requests and reads replies.
#include "devcomm/snmp/snmp_message.h"

#include "base/text.h"

#include <windows.h>

namespace {

constexpr int32_t kVersion1 = 0;

// Room for all but the community and the varbinds, and for one varbind: headers and contents of each element.
constexpr uint64_t kFixedRoom = 8 * kBerMaxHeader + 4 * kBerMaxInteger;
constexpr uint64_t kVarBindRoom = 3 * kBerMaxHeader + kBerMaxOid;

BerBuffer CreateMessage(size_t communityLength, UINT varBinds) {
    const uint64_t capacity = kFixedRoom + communityLength + kVarBindRoom * varBinds;
    return capacity <= INT32_MAX ? BerCreate(ASN_SEQUENCE, static_cast<uint32_t>(capacity)) : BerBuffer{};
}

} // namespace

BerBuffer SnmpBuildRequest(uint8_t pduTag, const char* community, uint32_t requestId,
                           const SnmpVarBindList& list) {
    const size_t communityLength = TextLength(community);
    BerBuffer message = CreateMessage(communityLength, list.len);
    if (message.octets == nullptr)
        return message;
    BerAppendInteger(message, kVersion1);
    BerAppendOctets(message, ASN_OCTETSTRING, community, static_cast<uint32_t>(communityLength));
    BerBuffer pdu = BerBegin(message, pduTag);
    BerAppendInteger(pdu, static_cast<int32_t>(requestId));
    BerAppendInteger(pdu, 0); // error-status
    BerAppendInteger(pdu, 0); // error-index
    BerBuffer varBinds = BerBegin(pdu, ASN_SEQUENCE);
    for (UINT i = 0; i < list.len; ++i) {
        BerBuffer varBind = BerBegin(varBinds, ASN_SEQUENCE);
        BerAppendOid(varBind, list.list[i].name.ids, list.list[i].name.idLength);
        if (list.list[i].value.asnType == ASN_NULL)
            BerAppendOctets(varBind, ASN_NULL, nullptr, 0);
        BerAppend(varBinds, varBind);
    }
    BerAppend(pdu, varBinds);
    BerAppend(message, pdu);
    return message;
}

bool SnmpReadReply(const uint8_t* datagram, size_t count, SnmpReply& reply) {
    BerReader reader = {datagram, datagram + count, false};
    BerReader message = BerOpenFilled(reader, ASN_SEQUENCE);
    BerOpen(message, ASN_INTEGER); // the version, whatever it is
    reply.community = BerOpen(message, ASN_OCTETSTRING);
    reply.rest = BerOpenFilled(message, SNMP_PDU_RESPONSE);
    reply.requestId = BerReadInteger(reply.rest);
    return !reply.rest.failed;
}

bool SnmpReadResult(SnmpReply& reply, AsnInteger32* errorStatus, AsnInteger32* errorIndex,
                    SnmpResult& result) {
    AsnInteger32* const outs[] = {errorStatus, errorIndex};
    for (AsnInteger32* out : outs) {
        const int32_t value = BerReadInteger(reply.rest);
        if (out != nullptr && !reply.rest.failed)
            *out = value;
    }
    BerReader varBinds = BerOpenFilled(reply.rest, ASN_SEQUENCE);
    BerReader varBind = BerOpenFilled(varBinds, ASN_SEQUENCE);
    BerOpen(varBind, ASN_OBJECTIDENTIFIER); // the name, whatever it is
    result.valueType = BerOpenAny(varBind, result.value);
    return !result.value.failed;
}

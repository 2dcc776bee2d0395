// Encodes and decodes SNMPv1 messages with net-snmp's functions.
#include "simprinter/message.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
// net-snmp's headers require this order.
// clang-format off
#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>
// clang-format on

static_assert(kMaxSubIds == MAX_OID_LEN);

namespace {

struct PduRelease {
    void operator()(netsnmp_pdu* pdu) const { snmp_free_pdu(pdu); }
};
using PduPointer = std::unique_ptr<netsnmp_pdu, PduRelease>;

// Turns off net-snmp's messages about bad datagrams; the agent's log reports them.
void QuietLibrary() {
    static const auto* handler = netsnmp_register_loghandler(NETSNMP_LOGHANDLER_NONE, LOG_DEBUG);
    static_cast<void>(handler);
}

bool IsRequest(int command) {
    return command == SNMP_MSG_GET || command == SNMP_MSG_GETNEXT || command == SNMP_MSG_SET;
}

bool ReadOid(const oid* subIds, size_t count, Oid& to) {
    to.assign(subIds, subIds + count);
    return std::equal(to.begin(), to.end(), subIds); // false for one of more than 32 bits
}

// The value of a SetRequest, which an error returns; other requests have NULL. Types that SNMPv1 does not
// have become NULL.
Value ReadValue(const netsnmp_variable_list& from) {
    const auto tag = static_cast<Tag>(from.type);
    switch (tag) {
    case kInteger:
    case kCounter:
    case kGauge:
    case kTimeTicks:
    case kUnsigned:
        return NumberValue(*from.val.integer, tag);
    case kCounter64:
        return Counter64Value(uint64_t{from.val.counter64->high} << 32
                              | (from.val.counter64->low & UINT32_MAX));
    case kOctetString:
    case kIpAddress:
    case kOpaque:
        return TextValue({reinterpret_cast<const char*>(from.val.string), from.val_len}, tag);
    case kObjectId:
        return OidValue(Oid(from.val.objid, from.val.objid + from.val_len / sizeof(oid)));
    default:
        return {};
    }
}

int AddVarBind(netsnmp_pdu& pdu, const VarBind& varBind) {
    const std::vector<oid> name(varBind.name.begin(), varBind.name.end());
    const std::vector<oid> subIds(varBind.value.oid.begin(), varBind.value.oid.end());
    const long number = static_cast<long>(varBind.value.number);
    const void* contents = varBind.value.bytes.data();
    size_t length = varBind.value.bytes.size();
    counter64 halves = {static_cast<uint64_t>(number) >> 32, static_cast<uint64_t>(number) & UINT32_MAX};
    if (varBind.value.tag == kCounter64) {
        contents = &halves;
        length = sizeof halves;
    } else if (IsNumber(varBind.value.tag)) {
        contents = &number;
        length = sizeof number;
    } else if (varBind.value.tag == kObjectId) {
        contents = subIds.data();
        length = subIds.size() * sizeof(oid);
    }
    return snmp_pdu_add_variable(&pdu, name.data(), name.size(), varBind.value.tag, contents, length)
           != nullptr;
}

} // namespace

std::optional<Message> ParseRequest(const Bytes& datagram) {
    QuietLibrary();
    Bytes bytes = datagram; // net-snmp's functions want them writable
    bytes.push_back(0);     // and may read one byte beyond the end
    size_t left = datagram.size();
    u_char community[SNMP_MAX_MSG_SIZE];
    size_t communityLength = sizeof community;
    long version = -1;
    u_char* at = snmp_comstr_parse(bytes.data(), &left, community, &communityLength, &version);
    if (!at || version != SNMP_VERSION_1 || left == 0 || !IsRequest(*at))
        return std::nullopt;
    const PduPointer pdu(snmp_pdu_create(*at));
    if (!pdu || snmp_pdu_parse(pdu.get(), at, &left) != 0)
        return std::nullopt;
    Message message;
    message.community.assign(reinterpret_cast<const char*>(community), communityLength);
    message.type = static_cast<PduType>(pdu->command);
    message.requestId = pdu->reqid;
    for (const netsnmp_variable_list* from = pdu->variables; from; from = from->next_variable) {
        VarBind varBind;
        if (!ReadOid(from->name, from->name_length, varBind.name))
            return std::nullopt;
        varBind.value = ReadValue(*from);
        message.varBinds.push_back(std::move(varBind));
    }
    return message;
}

Bytes BuildMessage(const Message& message) {
    const PduPointer pdu(snmp_pdu_create(static_cast<int>(message.type)));
    if (!pdu)
        return {};
    pdu->reqid = message.requestId;
    pdu->errstat = message.errorStatus;
    pdu->errindex = message.errorIndex;
    for (const VarBind& varBind : message.varBinds) {
        if (!AddVarBind(*pdu, varBind))
            return {};
    }
    // Built from back to front in a block that grows as needed.
    u_char* block = nullptr;
    size_t size = 0, used = 0;
    const long version = SNMP_VERSION_1;
    const auto* community = reinterpret_cast<const u_char*>(message.community.data());
    const bool built =
        snmp_pdu_realloc_rbuild(&block, &size, &used, pdu.get()) != 0
        && asn_realloc_rbuild_string(&block, &size, &used, 1, ASN_OCTET_STR, community,
                                     message.community.size())
        && asn_realloc_rbuild_int(&block, &size, &used, 1, ASN_INTEGER, &version, sizeof version)
        && asn_realloc_rbuild_sequence(&block, &size, &used, 1, ASN_SEQUENCE | ASN_CONSTRUCTOR, used);
    Bytes bytes;
    if (built)
        bytes.assign(block + size - used, block + size);
    std::free(block);
    return bytes;
}

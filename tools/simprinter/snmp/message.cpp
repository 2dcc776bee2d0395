// Encodes and decodes SNMP messages with net-snmp's functions.
#include "simprinter/snmp/message.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
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

struct PduRow {
    int type;
    const char* name;
    bool isRequest;
};
constexpr PduRow kPdus[] = {
    {SNMP_MSG_GET, "GetRequest", true},
    {SNMP_MSG_GETNEXT, "GetNextRequest", true},
    {SNMP_MSG_GETBULK, "GetBulkRequest", true},
    {SNMP_MSG_SET, "SetRequest", true},
    {SNMP_MSG_RESPONSE, "response", false},
    {SNMP_MSG_TRAP, "trap", false},
    {SNMP_MSG_TRAP2, "trap", false},
    {SNMP_MSG_INFORM, "inform", false},
    {SNMP_MSG_REPORT, "report", false},
};

const PduRow* FindPdu(int type) {
    const auto* const row =
        std::find_if(std::begin(kPdus), std::end(kPdus), [&](const PduRow& pdu) { return pdu.type == type; });
    return row == std::end(kPdus) ? nullptr : row;
}

const Version* FindVersion(long number) {
    const auto* const row = std::find_if(std::begin(kVersions), std::end(kVersions),
                                         [&](const Version& version) { return version.number == number; });
    return row == std::end(kVersions) ? nullptr : row;
}

constexpr long kNoVersion = -1; // not read

// The version of a message of which net-snmp reads nothing: an INTEGER of one byte after the header.
long VersionOf(const Bytes& datagram) {
    if (datagram.size() < 2 || datagram[0] != 0x30)
        return kNoVersion;
    const size_t header = datagram[1] < 0x80 ? 2 : 2 + (datagram[1] & 0x7Fu);
    if (datagram.size() < header + 3 || datagram[header] != 0x02 || datagram[header + 1] != 1)
        return kNoVersion;
    return datagram[header + 2];
}

// A message of a version that is not known, or damaged before its PDU.
std::string NoPduProblem(long version) {
    if (version == kNoVersion)
        return "not an SNMP message";
    if (version == SNMP_VERSION_3)
        return "an SNMPv3 request";
    const Version* const known = FindVersion(version);
    return known ? std::string("a damaged ") + known->name + " message"
                 : "a message with the unknown SNMP version number " + std::to_string(version);
}

bool ReadOid(const oid* subIds, size_t count, Oid& to) {
    to.assign(subIds, subIds + count);
    return std::equal(to.begin(), to.end(), subIds); // false for one of more than 32 bits
}

template <typename Bits, typename Number>
Value OpaqueValue(char kind, Number number) {
    static_assert(sizeof(Bits) == sizeof(Number));
    Bits bits;
    std::memcpy(&bits, &number, sizeof bits);
    return OpaqueNumberValue(kind, bits, sizeof bits);
}

// The value of a SetRequest, which an error returns; other requests have NULL. Unknown types become NULL.
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
    case kNoSuchObject:
    case kNoSuchInstance:
    case kEndOfMibView:
        return {tag, 0, {}, {}};
    default:
        return from.type == ASN_OPAQUE_FLOAT    ? OpaqueValue<uint32_t>(kOpaqueFloat, *from.val.floatVal)
               : from.type == ASN_OPAQUE_DOUBLE ? OpaqueValue<uint64_t>(kOpaqueDouble, *from.val.doubleVal)
                                                : Value();
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

// Nothing when the datagram is not such a message of a known version; `problem` then says what it is.
std::optional<Message> ParseMessage(const Bytes& datagram, bool isRequest, std::string& problem) {
    QuietLibrary();
    Bytes bytes = datagram; // net-snmp's functions want them writable
    bytes.push_back(0);     // and may read one byte beyond the end
    size_t left = datagram.size();
    u_char community[SNMP_MAX_MSG_SIZE];
    size_t communityLength = sizeof community;
    long number = kNoVersion;
    u_char* at = snmp_comstr_parse(bytes.data(), &left, community, &communityLength, &number);
    const Version* const version = FindVersion(number);
    problem = NoPduProblem(at ? number : VersionOf(datagram));
    if (!at || !version || left == 0)
        return std::nullopt;
    const PduRow* const kind = FindPdu(*at);
    if (!kind || kind->isRequest != isRequest || (kind->type == SNMP_MSG_GETBULK && !version->hasGetBulk)) {
        problem =
            "an " + (std::string(version->name) + ' ' + (kind ? kind->name : "message of an unknown type"));
        return std::nullopt;
    }
    const PduPointer pdu(snmp_pdu_create(*at));
    problem = std::string("a damaged ") + version->name + ' ' + kind->name;
    if (!pdu || snmp_pdu_parse(pdu.get(), at, &left) != 0 || pdu->reqid != static_cast<int32_t>(pdu->reqid))
        return std::nullopt; // net-snmp reads numbers of more than 32 bits, too
    Message message;
    message.version = version;
    message.community.assign(reinterpret_cast<const char*>(community), communityLength);
    message.type = static_cast<PduType>(pdu->command);
    message.requestId = pdu->reqid;
    if (message.type == PduType::kGetBulk || !isRequest) {
        message.errorStatus = pdu->errstat;
        message.errorIndex = pdu->errindex;
    }
    for (const netsnmp_variable_list* from = pdu->variables; from; from = from->next_variable) {
        VarBind varBind;
        if (!ReadOid(from->name, from->name_length, varBind.name))
            return std::nullopt;
        varBind.value = ReadValue(*from);
        message.varBinds.push_back(std::move(varBind));
    }
    return message;
}

} // namespace

std::optional<Message> ParseRequest(const Bytes& datagram, std::string& problem) {
    return ParseMessage(datagram, true, problem);
}

std::optional<Message> ParseReply(const Bytes& datagram) {
    std::string problem;
    std::optional<Message> reply = ParseMessage(datagram, false, problem);
    return reply && reply->type == PduType::kResponse ? reply : std::nullopt;
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
    const long version = message.version->number;
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

const char* PduName(int type) {
    const PduRow* const row = FindPdu(type);
    return row ? row->name : "?";
}

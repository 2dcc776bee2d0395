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

// Whether the object identifier at `at` has a sub-identifier of more than 32 bits. net-snmp's functions do
// not notice it where a long has 32.
bool HasWideSubId(u_char* at, size_t left) {
    u_char type;
    const u_char* const contents = asn_parse_header(at, &left, &type);
    uint64_t subId = 0;
    for (size_t i = 0; contents && i < left; ++i) {
        subId = subId << 7 | (contents[i] & 0x7Fu);
        if (subId > UINT32_MAX)
            return true;
        if ((contents[i] & 0x80u) == 0)
            subId = 0;
    }
    return false;
}

Oid ToOid(const oid* subIds, size_t count) {
    return Oid(subIds, subIds + count);
}

template <typename Bits, typename Number>
Value OpaqueValue(char kind, Number number) {
    static_assert(sizeof(Bits) == sizeof(Number));
    Bits bits;
    std::memcpy(&bits, &number, sizeof bits);
    return OpaqueNumberValue(kind, bits, sizeof bits);
}

// Reads the value of a SetRequest, which an error returns; other requests have NULL. `at` is its header,
// which has been read: `type`, then `length` bytes of contents; `left` bytes follow. Types that no answer has
// become NULL. False when the value is damaged, or of an unknown type.
bool ReadValue(u_char* at, size_t left, u_char type, size_t length, Value& value) {
    const auto tag = static_cast<Tag>(type);
    switch (type) {
    case ASN_INTEGER: {
        long number = 0;
        const bool isRead = asn_parse_int(at, &left, &type, &number, sizeof number) != nullptr;
        value = NumberValue(number, tag);
        return isRead;
    }
    case ASN_COUNTER:
    case ASN_GAUGE:
    case ASN_TIMETICKS:
    case ASN_UINTEGER: {
        u_long number = 0;
        const bool isRead = asn_parse_unsigned_int(at, &left, &type, &number, sizeof number) != nullptr;
        value = NumberValue(static_cast<int64_t>(number), tag);
        return isRead;
    }
    case ASN_COUNTER64: {
        counter64 halves = {};
        const bool isRead = asn_parse_unsigned_int64(at, &left, &type, &halves, sizeof halves) != nullptr;
        value = Counter64Value(uint64_t{halves.high} << 32 | (halves.low & UINT32_MAX));
        return isRead;
    }
    case ASN_OPAQUE_FLOAT: {
        float number = 0;
        const bool isRead = asn_parse_float(at, &left, &type, &number, sizeof number) != nullptr;
        value = OpaqueValue<uint32_t>(kOpaqueFloat, number);
        return isRead;
    }
    case ASN_OPAQUE_DOUBLE: {
        double number = 0;
        const bool isRead = asn_parse_double(at, &left, &type, &number, sizeof number) != nullptr;
        value = OpaqueValue<uint64_t>(kOpaqueDouble, number);
        return isRead;
    }
    case ASN_IPADDRESS:
    case ASN_OCTET_STR:
    case ASN_OPAQUE: {
        std::string bytes(length + 1, '\0');
        const bool isRead =
            asn_parse_string(at, &left, &type, reinterpret_cast<u_char*>(bytes.data()), &length)
            && (tag != kIpAddress || length == 4);
        bytes.resize(length);
        value = TextValue(std::move(bytes), tag);
        return isRead;
    }
    case ASN_OBJECT_ID: {
        oid subIds[MAX_OID_LEN];
        size_t count = std::size(subIds);
        if (HasWideSubId(at, left) || !asn_parse_objid(at, &left, &type, subIds, &count))
            return false;
        value = OidValue(ToOid(subIds, count));
        return true;
    }
    case SNMP_NOSUCHOBJECT:
    case SNMP_NOSUCHINSTANCE:
    case SNMP_ENDOFMIBVIEW:
        value = {tag, 0, {}, {}};
        return true;
    case ASN_NULL:
    case ASN_NSAP:
    case ASN_BIT_STR:
    case ASN_OPAQUE_COUNTER64:
    case ASN_OPAQUE_U64:
    case ASN_OPAQUE_I64:
        value = {};
        return true;
    default:
        return false;
    }
}

// Reads what is in front of the PDU, which the result points at; nullptr when that is damaged.
u_char* ReadHeader(u_char* at, size_t& left, long& version, std::string& community) {
    u_char type, bytes[SNMP_MAX_MSG_SIZE];
    size_t length = sizeof bytes;
    at = asn_parse_sequence(at, &left, &type, ASN_SEQUENCE | ASN_CONSTRUCTOR, "message");
    if (at)
        at = asn_parse_int(at, &left, &type, &version, sizeof version);
    if (at)
        at = asn_parse_string(at, &left, &type, bytes, &length);
    if (at)
        community.assign(reinterpret_cast<const char*>(bytes), length);
    return at;
}

// Reads the PDU of a request or a response; false when it is damaged.
bool ReadPdu(u_char* at, size_t left, Message& message) {
    u_char type;
    at = asn_parse_header(at, &left, &type);
    message.type = static_cast<PduType>(type);
    for (long* number : {&message.requestId, &message.errorStatus, &message.errorIndex}) {
        if (at)
            at = asn_parse_int(at, &left, &type, number, sizeof *number);
    }
    if (at)
        at = asn_parse_sequence(at, &left, &type, ASN_SEQUENCE | ASN_CONSTRUCTOR, "variables");
    // Numbers of more than 32 bits are read, too, where a long has them.
    if (!at || message.requestId != static_cast<int32_t>(message.requestId))
        return false;
    while (left > 0) {
        oid name[MAX_OID_LEN];
        size_t count = std::size(name), length;
        u_char* value;
        size_t inner = left;
        u_char* const first =
            asn_parse_sequence(at, &inner, &type, ASN_SEQUENCE | ASN_CONSTRUCTOR, "variable");
        if (!first || HasWideSubId(first, inner))
            return false;
        at = snmp_parse_var_op(at, name, &count, &type, &length, &value, &left);
        VarBind varBind;
        if (!at || !ReadValue(value, static_cast<size_t>(at - value), type, length, varBind.value))
            return false;
        varBind.name = ToOid(name, count);
        message.varBinds.push_back(std::move(varBind));
    }
    return true;
}

// Nothing when the datagram is not such a message of a known version; `problem` then says what it is.
std::optional<Message> ParseMessage(const Bytes& datagram, bool isRequest, std::string& problem) {
    Bytes bytes = datagram; // net-snmp's functions want them writable
    bytes.push_back(0);     // and may read one byte beyond the end
    size_t left = datagram.size();
    long number = kNoVersion;
    Message message;
    u_char* const pdu = ReadHeader(bytes.data(), left, number, message.community);
    message.version = FindVersion(number);
    problem = NoPduProblem(pdu ? number : VersionOf(datagram));
    if (!pdu || !message.version || left == 0)
        return std::nullopt;
    const PduRow* const kind = FindPdu(*pdu);
    if (!kind || kind->isRequest != isRequest
        || (kind->type == SNMP_MSG_GETBULK && !message.version->hasGetBulk)) {
        problem =
            "an "
            + (std::string(message.version->name) + ' ' + (kind ? kind->name : "message of an unknown type"));
        return std::nullopt;
    }
    problem = std::string("a damaged ") + message.version->name + ' ' + kind->name;
    if (!ReadPdu(pdu, left, message))
        return std::nullopt;
    if (isRequest && message.type != PduType::kGetBulk)
        message.errorStatus = message.errorIndex = kNoError;
    return message;
}

// A message grows from back to front in a block that grows as needed; the functions return 0 on failure.
struct Block {
    u_char* bytes = nullptr;
    size_t size = 0, used = 0;

    Block() = default;
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() { std::free(bytes); }

    bool AddNumber(long number) {
        return asn_realloc_rbuild_int(&bytes, &size, &used, 1, ASN_INTEGER, &number, sizeof number) != 0;
    }
    // The header of all that is there.
    bool AddHeader(int type) {
        return asn_realloc_rbuild_sequence(&bytes, &size, &used, 1, static_cast<u_char>(type), used) != 0;
    }
};

bool AddVarBind(Block& block, const VarBind& varBind) {
    const std::vector<oid> name(varBind.name.begin(), varBind.name.end());
    std::vector<oid> subIds(varBind.value.oid.begin(), varBind.value.oid.end());
    std::string bytes = varBind.value.bytes;
    long number = static_cast<long>(varBind.value.number);
    const auto bits = static_cast<uint64_t>(varBind.value.number);
    counter64 halves = {static_cast<u_long>(bits >> 32), static_cast<u_long>(bits & UINT32_MAX)};
    void* contents = bytes.data();
    size_t length = bytes.size(), count = name.size();
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
    return snmp_realloc_rbuild_var_op(&block.bytes, &block.size, &block.used, 1, name.data(), &count,
                                      varBind.value.tag, static_cast<u_char*>(contents), length)
           != 0;
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
    Block block;
    const bool areAdded = std::all_of(message.varBinds.rbegin(), message.varBinds.rend(),
                                      [&](const VarBind& varBind) { return AddVarBind(block, varBind); });
    const auto* community = reinterpret_cast<const u_char*>(message.community.data());
    const bool isBuilt =
        areAdded && block.AddHeader(ASN_SEQUENCE | ASN_CONSTRUCTOR) && block.AddNumber(message.errorIndex)
        && block.AddNumber(message.errorStatus) && block.AddNumber(message.requestId)
        && block.AddHeader(static_cast<int>(message.type))
        && asn_realloc_rbuild_string(&block.bytes, &block.size, &block.used, 1, ASN_OCTET_STR, community,
                                     message.community.size())
        && block.AddNumber(message.version->number) && block.AddHeader(ASN_SEQUENCE | ASN_CONSTRUCTOR);
    if (!isBuilt)
        return {};
    return Bytes(block.bytes + block.size - block.used, block.bytes + block.size);
}

const char* PduName(int type) {
    const PduRow* const row = FindPdu(type);
    return row ? row->name : "?";
}

// Reads single objects of a printer.
#include "devcomm/queries/object_reader.h"

#include "base/scope_guard.h"
#include "base/text.h"
#include "devcomm/snmp/oid_text.h"

#include <cstring>

namespace {

constexpr uint8_t kNumberTypes[] = {ASN_INTEGER, ASN_UINTEGER32, ASN_COUNTER32, ASN_GAUGE32, ASN_TIMETICKS};
constexpr uint8_t kTextTypes[] = {ASN_OCTETSTRING, ASN_BITS, ASN_SEQUENCE, ASN_IPADDRESS, ASN_OPAQUE};

enum class Outcome {
    kNotAsked, // the text is not an OID
    kFailed,
    kAnswered,
};

// The reply to a request of one object. Owns the varbind list, whose memory comes from the entry points and
// need not be zero.
struct ObjectReply {
    ObjectReply() = default;
    ~ObjectReply() {
        const KeepLastError keep;
        if (list.list != nullptr)
            snmpEntryPoints.snmpUtilVarBindListFree(&list);
    }
    ObjectReply(const ObjectReply&) = delete;
    ObjectReply& operator=(const ObjectReply&) = delete;

    SnmpVarBindList list = {};
    AsnInteger32 errorStatus = 0;
    AsnInteger32 errorIndex = 0;
};

// Converts the OID of a table with a suffix. The text is cut to its field.
bool ToOid(const char* oid, const char* suffix, AsnObjectIdentifier& converted) {
    char text[256];
    CopyText(text, oid);
    AppendText(text, suffix);
    return snmpEntryPoints.snmpMgrStrToOid(text, &converted) != FALSE;
}

// Makes a list of one varbind with a copy of this name and no value. False without memory; the list must be
// freed in that case, too.
bool MakeList(const AsnObjectIdentifier& name, SnmpVarBindList& list) {
    auto* varBind = static_cast<SnmpVarBind*>(snmpEntryPoints.snmpUtilMemAlloc(sizeof(SnmpVarBind)));
    if (varBind == nullptr)
        return false;
    *varBind = {};
    varBind->value.asnType = ASN_NULL;
    list = {varBind, 1};
    const size_t size = name.idLength * sizeof(*name.ids);
    varBind->name.ids = static_cast<UINT*>(snmpEntryPoints.snmpUtilMemAlloc(static_cast<UINT>(size)));
    if (varBind->name.ids == nullptr)
        return false;
    memcpy(varBind->name.ids, name.ids, size);
    varBind->name.idLength = name.idLength;
    return true;
}

Outcome Ask(SnmpSession session, const char* oid, const char* suffix, ObjectReply& reply) {
    AsnObjectIdentifier name = {};
    if (!ToOid(oid, suffix, name))
        return Outcome::kNotAsked;
    const bool made = MakeList(name, reply.list);
    {
        const KeepLastError keep;
        snmpEntryPoints.snmpUtilOidFree(&name);
    }
    if (!made
        || snmpEntryPoints.snmpMgrRequest(session, SNMP_PDU_GET, &reply.list, &reply.errorStatus,
                                          &reply.errorIndex)
               == 0)
        return Outcome::kFailed;
    return Outcome::kAnswered;
}

template <size_t N>
bool IsOneOf(const uint8_t (&types)[N], uint8_t type) {
    for (const uint8_t each : types)
        if (each == type)
            return true;
    return false;
}

// The value of the object; null when the reply has none or reports an error. The list may have a new array.
const AsnAny* ValueOf(const ObjectReply& reply) {
    const bool isThere =
        reply.errorStatus == 0 && reply.errorIndex == 0 && reply.list.list != nullptr && reply.list.len > 0;
    return isThere ? &reply.list.list[0].value : nullptr;
}

bool NumberOf(const AsnAny* value, int32_t& number) {
    if (value == nullptr || !IsOneOf(kNumberTypes, value->asnType))
        return false;
    number = value->asnValue.number;
    return true;
}

// The bytes as text, up to the first NUL and cut to fit.
template <size_t Capacity>
bool TextOf(const AsnAny* value, char (&text)[Capacity]) {
    if (value == nullptr || !IsOneOf(kTextTypes, value->asnType))
        return false;
    const AsnOctetString& octets = value->asnValue.string;
    size_t length = 0;
    if (octets.stream != nullptr)
        for (; length < octets.length && length < Capacity - 1 && octets.stream[length] != 0; ++length)
            text[length] = static_cast<char>(octets.stream[length]);
    text[length] = 0;
    return true;
}

bool IsSameOid(const AsnObjectIdentifier& oid, const char* text) {
    if (oid.ids == nullptr)
        return false;
    text += *text == '.' ? 1 : 0;
    for (UINT i = 0; i < oid.idLength; ++i) {
        if (i > 0 && *text++ != '.')
            return false;
        if (!IsDigit(*text) || TakeSubIdentifier(text) != oid.ids[i])
            return false;
    }
    return *text == 0;
}

bool Matches(const ObjectReply& reply, int32_t comparison, const char* expected) {
    const AsnAny* value = ValueOf(reply);
    int32_t number = 0;
    char text[256];
    switch (comparison) {
    case TELMAR_COMPARE_EXISTS:
        return reply.errorStatus == 0;
    case TELMAR_COMPARE_NUMBER:
        return NumberOf(value, number) && static_cast<uint32_t>(number) == ParseDecimal(expected);
    case TELMAR_COMPARE_TEXT:
        return TextOf(value, text) && strcmp(text, expected) == 0;
    case TELMAR_COMPARE_OID:
        return value != nullptr && value->asnType == ASN_OBJECTIDENTIFIER
               && IsSameOid(value->asnValue.object, expected);
    default:
        return false;
    }
}

} // namespace

AgentSession::AgentSession(const char* agent, SessionLimits limits, const char* community) {
    const DWORD before = GetLastError();
    handle = snmpEntryPoints.snmpMgrOpen(agent, community, limits.timeOut, limits.retries);
    if (handle != nullptr)
        SetLastError(before);
}

AgentSession::~AgentSession() {
    const KeepLastError keep;
    if (handle != nullptr)
        snmpEntryPoints.snmpMgrClose(handle);
}

void AppendSubIdentifier(ObjectSuffix& suffix, uint32_t id) {
    char text[12]; // filled from its end
    size_t first = sizeof(text) - 1;
    text[first] = 0;
    do
        text[--first] = static_cast<char>('0' + id % 10);
    while ((id /= 10) != 0);
    text[--first] = '.';
    const char* const from = text + first;
    AppendText(suffix, from);
}

bool AskForObject(SnmpSession session, const char* oid) {
    ObjectReply reply;
    return Ask(session, oid, "", reply) == Outcome::kAnswered;
}

Match MatchObject(SnmpSession session, const char* oid, const char* suffix, int32_t comparison,
                  const char* expected) {
    ObjectReply reply;
    const Outcome outcome = Ask(session, oid, suffix, reply);
    if (outcome == Outcome::kFailed)
        return Match::kFailed;
    return outcome == Outcome::kAnswered && Matches(reply, comparison, expected) ? Match::kYes : Match::kNo;
}

bool ReadNumber(SnmpSession session, const char* oid, const char* suffix, ObjectNumber& number) {
    number = {false, -1};
    ObjectReply reply;
    if (Ask(session, oid, suffix, reply) != Outcome::kAnswered)
        return false;
    number.isPresent = NumberOf(ValueOf(reply), number.value);
    return true;
}

bool ReadText(SnmpSession session, const char* oid, const char* suffix, ObjectText& text) {
    text[0] = 0;
    ObjectReply reply;
    if (Ask(session, oid, suffix, reply) != Outcome::kAnswered)
        return false;
    TextOf(ValueOf(reply), text);
    return true;
}

// Reading one object of a printer: see the header.
#include "devcomm/object_reader.h"

#include "devcomm/scope_guard.h"
#include "paramdata/text.h"

#include <cstring>

namespace {

constexpr const char* kCommunity = "tovask";
constexpr uint8_t kNumberTypes[] = {ASN_INTEGER, ASN_UINTEGER32, ASN_COUNTER32, ASN_GAUGE32, ASN_TIMETICKS};
constexpr uint8_t kTextTypes[] = {ASN_OCTETSTRING, ASN_BITS, ASN_SEQUENCE, ASN_IPADDRESS, ASN_OPAQUE};

enum class Outcome {
    kNotAsked, // the text is none of an OID
    kFailed,
    kAnswered,
};

// A request of one object and its reply. Owns the varbind list; all its memory is that of the entry points,
// which need not zero it.
struct ObjectRequest {
    ObjectRequest(SnmpSession session, const char* oid, const char* suffix);
    ~ObjectRequest();
    ObjectRequest(const ObjectRequest&) = delete;
    ObjectRequest& operator=(const ObjectRequest&) = delete;

    SnmpVarBindList list = {};
    AsnInteger32 errorStatus = 0;
    AsnInteger32 errorIndex = 0;
    Outcome outcome;
};

// Arcs of the table's OID with the suffix behind; the text is cut to its field.
bool ToOid(const char* oid, const char* suffix, AsnObjectIdentifier& converted) {
    QueryText text;
    CopyText(text, oid);
    AppendText(text, suffix);
    return snmpEntryPoints.snmpMgrStrToOid(text, &converted) != FALSE;
}

// A list of one varbind with a copy of this name and no value. False without memory; what the list then holds
// is to be freed all the same.
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

ObjectRequest::ObjectRequest(SnmpSession session, const char* oid, const char* suffix) {
    AsnObjectIdentifier name = {};
    outcome = Outcome::kNotAsked;
    if (!ToOid(oid, suffix, name))
        return;
    const bool made = MakeList(name, list);
    {
        const KeepLastError keep;
        snmpEntryPoints.snmpUtilOidFree(&name);
    }
    outcome =
        made && snmpEntryPoints.snmpMgrRequest(session, SNMP_PDU_GET, &list, &errorStatus, &errorIndex) != 0
            ? Outcome::kAnswered
            : Outcome::kFailed;
}

ObjectRequest::~ObjectRequest() {
    const KeepLastError keep;
    if (list.list != nullptr)
        snmpEntryPoints.snmpUtilVarBindListFree(&list);
}

template <size_t N>
bool IsOneOf(const uint8_t (&types)[N], uint8_t type) {
    for (const uint8_t each : types)
        if (each == type)
            return true;
    return false;
}

// The object's value; null when the reply tells an error or has none. The list may have another array by now.
const AsnAny* ValueOf(const ObjectRequest& request) {
    const bool isThere = request.outcome == Outcome::kAnswered && request.errorStatus == 0
                         && request.errorIndex == 0 && request.list.list != nullptr && request.list.len > 0;
    return isThere ? &request.list.list[0].value : nullptr;
}

bool NumberOf(const AsnAny* value, int32_t& number) {
    if (value == nullptr || !IsOneOf(kNumberTypes, value->asnType))
        return false;
    number = value->asnValue.number;
    return true;
}

// The octets as text: at most so many as fit, up to the first NUL.
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

// Leading blanks and a sign allowed; what follows the digits is ignored, and digits beyond 32 bits are lost.
int32_t ParseNumber(const char* text) {
    while (*text == ' ' || *text == '\t')
        ++text;
    const bool isNegative = *text == '-';
    text += *text == '-' || *text == '+' ? 1 : 0;
    uint32_t number = 0;
    for (; IsDigit(*text); ++text)
        number = number * 10 + static_cast<uint32_t>(*text - '0');
    return static_cast<int32_t>(isNegative ? 0 - number : number);
}

bool IsSameOid(const AsnObjectIdentifier& oid, const char* text) {
    if (oid.ids == nullptr)
        return false;
    text += *text == '.' ? 1 : 0;
    for (UINT i = 0; i < oid.idLength; ++i) {
        if (i > 0 && *text++ != '.')
            return false;
        if (!IsDigit(*text))
            return false;
        uint64_t arc = 0;
        for (; IsDigit(*text) && arc <= UINT32_MAX; ++text)
            arc = arc * 10 + static_cast<uint64_t>(*text - '0');
        if (arc != oid.ids[i])
            return false;
    }
    return *text == 0;
}

bool Matches(const ObjectRequest& request, int32_t comparison, const char* expected) {
    const AsnAny* value = ValueOf(request);
    int32_t number = 0;
    char text[256];
    switch (comparison) {
    case kCompareExists:
        return request.errorStatus == 0;
    case kCompareNumber:
        return NumberOf(value, number) && number == ParseNumber(expected);
    case kCompareText:
        return TextOf(value, text) && strcmp(text, expected) == 0;
    case kCompareOid:
        return value != nullptr && value->asnType == ASN_OBJECTIDENTIFIER
               && IsSameOid(value->asnValue.object, expected);
    default:
        return false;
    }
}

} // namespace

AgentSession::AgentSession(const char* agent, Patience patience)
    : handle(snmpEntryPoints.snmpMgrOpen(agent, kCommunity, patience.timeOut, patience.retries)) {}

AgentSession::~AgentSession() {
    const KeepLastError keep;
    if (handle != nullptr)
        snmpEntryPoints.snmpMgrClose(handle);
}

bool AskForObject(SnmpSession session, const char* oid) {
    return ObjectRequest(session, oid, "").outcome == Outcome::kAnswered;
}

Match MatchObject(SnmpSession session, const char* oid, const char* suffix, int32_t comparison,
                  const char* expected) {
    const ObjectRequest request(session, oid, suffix);
    if (request.outcome == Outcome::kFailed)
        return Match::kFailed;
    return request.outcome == Outcome::kAnswered && Matches(request, comparison, expected) ? Match::kYes
                                                                                           : Match::kNo;
}

bool ReadNumber(SnmpSession session, const char* oid, const char* suffix, ObjectNumber& number) {
    const ObjectRequest request(session, oid, suffix);
    number.value = -1;
    number.isPresent = NumberOf(ValueOf(request), number.value);
    return request.outcome == Outcome::kAnswered;
}

bool ReadText(SnmpSession session, const char* oid, const char* suffix, ObjectText& text) {
    const ObjectRequest request(session, oid, suffix);
    if (!TextOf(ValueOf(request), text))
        text[0] = 0;
    return request.outcome == Outcome::kAnswered;
}

// Values and names of the built-in client, and their memory: see the header.
#include "devcomm/snmp/snmp_values.h"

#include "base/scope_guard.h"
#include "base/text.h"
#include "devcomm/snmp/ber.h"

#include <cstring>

namespace {

// clang-format off
constexpr struct {
    uint8_t typeCode;
    SnmpForm form;
} kForms[] = {
    {ASN_INTEGER,          SnmpForm::kNumber},
    {ASN_COUNTER32,        SnmpForm::kNumber},
    {ASN_GAUGE32,          SnmpForm::kNumber},
    {ASN_TIMETICKS,        SnmpForm::kNumber},
    {ASN_OCTETSTRING,      SnmpForm::kOctets},
    {ASN_SEQUENCE,         SnmpForm::kOctets},
    {ASN_IPADDRESS,        SnmpForm::kOctets},
    {ASN_OPAQUE,           SnmpForm::kOctets},
    {ASN_OBJECTIDENTIFIER, SnmpForm::kArcs},
    {ASN_NULL,             SnmpForm::kEmpty},
};
// clang-format on

constexpr UINT kMaxArcs = 128;
constexpr int kMaxArcDigits = 15;

bool CopyOctets(const BerReader& contents, AsnOctetString& to) {
    const auto length = static_cast<UINT>(contents.end - contents.at);
    auto* octets = static_cast<BYTE*>(ClientMemAlloc(length));
    if (octets == nullptr)
        return false;
    memcpy(octets, contents.at, length);
    to = {octets, length, TRUE};
    return true;
}

bool CopyArcs(const UINT* arcs, UINT count, AsnObjectIdentifier& to) {
    auto* copy = static_cast<UINT*>(ClientMemAlloc(static_cast<UINT>(count * sizeof(UINT))));
    if (copy == nullptr)
        return false;
    memcpy(copy, arcs, count * sizeof(UINT));
    to = {count, copy};
    return true;
}

// The arc texts up to the end of the text; their count, or 0 when the text is none of an OID.
UINT ParseArcs(const char* text, UINT (&arcs)[kMaxArcs]) {
    UINT count = 0;
    for (text += *text == '.' ? 1 : 0;; ++text) {
        uint64_t arc = 0;
        for (int digits = 0; IsDigit(*text); ++text) {
            if (++digits > kMaxArcDigits)
                return 0;
            arc = arc * 10 + static_cast<uint64_t>(*text - '0');
        }
        if ((*text != '.' && *text != 0) || arc > UINT32_MAX || count == kMaxArcs)
            return 0;
        arcs[count++] = static_cast<UINT>(arc);
        if (*text == 0)
            return count;
    }
}

} // namespace

SnmpForm SnmpFormOf(uint8_t typeCode) {
    for (const auto& row : kForms)
        if (row.typeCode == typeCode)
            return row.form;
    return SnmpForm::kUnknown;
}

BOOL SnmpDecodeValue(uint8_t typeCode, BerReader contents, AsnAny& value) {
    AsnAny decoded = {};
    decoded.asnType = typeCode;
    bool enoughMemory = true;
    switch (SnmpFormOf(typeCode)) {
    case SnmpForm::kNumber:
        decoded.asnValue.number = BerInteger(contents);
        break;
    case SnmpForm::kOctets:
        enoughMemory = contents.failed || CopyOctets(contents, decoded.asnValue.string);
        break;
    case SnmpForm::kArcs: {
        UINT arcs[kMaxArcs];
        const UINT count = BerReadArcs(contents, arcs, kMaxArcs);
        enoughMemory = contents.failed || CopyArcs(arcs, count, decoded.asnValue.object);
        break;
    }
    case SnmpForm::kEmpty:
        decoded.asnValue.string = {nullptr, 0, TRUE};
        break;
    case SnmpForm::kUnknown:
        contents.failed = true;
        break;
    }
    if (contents.failed)
        SetLastError(kSnmpBadReply);
    if (contents.failed || !enoughMemory)
        return FALSE;
    value = decoded;
    return TRUE;
}

void* WINAPI ClientMemAlloc(UINT octets) {
    return LocalAlloc(LPTR, octets);
}

void WINAPI ClientMemFree(void* block) {
    if (block != nullptr)
        LocalFree(block);
}

void WINAPI ClientOidFree(AsnObjectIdentifier* oid) {
    ClientMemFree(oid->ids);
    *oid = {};
}

void WINAPI ClientVarBindFree(SnmpVarBind* varBind) {
    AsnAny& value = varBind->value;
    const SnmpForm form = SnmpFormOf(value.asnType);
    ClientOidFree(&varBind->name);
    if (form == SnmpForm::kOctets) {
        if (value.asnValue.string.dynamic != FALSE)
            ClientMemFree(value.asnValue.string.stream);
        value.asnValue.string = {};
    } else if (form == SnmpForm::kArcs) {
        ClientOidFree(&value.asnValue.object);
    }
    value.asnType = ASN_NULL;
}

void WINAPI ClientVarBindListFree(SnmpVarBindList* list) {
    if (list->list == nullptr)
        return;
    for (UINT i = 0; i < list->len; ++i)
        ClientVarBindFree(&list->list[i]);
    ClientMemFree(list->list);
    *list = {};
}

BOOL WINAPI ClientStrToOid(const char* text, AsnObjectIdentifier* oid) {
    *oid = {};
    const KeepLastError keep;
    UINT arcs[kMaxArcs];
    const UINT count = ParseArcs(text, arcs);
    return count >= 2 && AreFirstArcs(arcs[0], arcs[1]) && CopyArcs(arcs, count, *oid);
}

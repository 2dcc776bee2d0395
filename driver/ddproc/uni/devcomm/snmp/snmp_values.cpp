// Decodes values and names for the built-in client, and manages their memory.
#include "devcomm/snmp/snmp_values.h"

#include "base/scope_guard.h"
#include "devcomm/snmp/ber.h"
#include "devcomm/snmp/oid_text.h"
#include "devcomm/snmp/snmp_errors.h"

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
    {ASN_OBJECTIDENTIFIER, SnmpForm::kOid},
    {ASN_NULL,             SnmpForm::kEmpty},
};
// clang-format on

constexpr UINT kMaxSubIdentifiers = 128;
constexpr int kMaxSubIdentifierDigits = 15;

bool CopyOctets(const BerReader& contents, AsnOctetString& to) {
    const auto length = static_cast<UINT>(contents.end - contents.at);
    auto* octets = static_cast<BYTE*>(ClientMemAlloc(length));
    if (octets == nullptr)
        return false;
    memcpy(octets, contents.at, length);
    to = {octets, length, TRUE};
    return true;
}

bool CopySubIdentifiers(const UINT* ids, UINT count, AsnObjectIdentifier& to) {
    auto* copy = static_cast<UINT*>(ClientMemAlloc(static_cast<UINT>(count * sizeof(UINT))));
    if (copy == nullptr)
        return false;
    memcpy(copy, ids, count * sizeof(UINT));
    to = {count, copy};
    return true;
}

// Parses the sub-identifiers of a dotted text. Returns their count, 0 when the text is not an OID.
UINT ParseSubIdentifiers(const char* text, UINT (&ids)[kMaxSubIdentifiers]) {
    UINT count = 0;
    for (text += *text == '.' ? 1 : 0;; ++text) {
        const char* const digits = text;
        const uint64_t id = TakeSubIdentifier(text);
        if ((*text != '.' && *text != 0) || text - digits > kMaxSubIdentifierDigits || id > UINT32_MAX
            || count == kMaxSubIdentifiers)
            return 0;
        ids[count++] = static_cast<UINT>(id);
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

bool SnmpDecodeValue(uint8_t typeCode, BerReader contents, AsnAny& value) {
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
    case SnmpForm::kOid: {
        UINT ids[kMaxSubIdentifiers];
        const UINT count = BerReadSubIdentifiers(contents, ids, kMaxSubIdentifiers);
        enoughMemory = contents.failed || CopySubIdentifiers(ids, count, decoded.asnValue.object);
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
        return false;
    value = decoded;
    return true;
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
    } else if (form == SnmpForm::kOid) {
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
    UINT ids[kMaxSubIdentifiers];
    const UINT count = ParseSubIdentifiers(text, ids);
    return count >= 2 && AreFirstSubIdentifiers(ids[0], ids[1]) && CopySubIdentifiers(ids, count, *oid);
}

// Fuzz target: any bytes as the values that a printer returns to the module's queries, each with its type and length.
// When they are used up, requests fail.
#include "require.h"

#include "devcomm/snmp/snmp_entry_points.h"
#include "devcomm/snmp/snmp_values.h"
#include "telmar_d.h"
#include "win32_control.h"

#include <algorithm>

namespace {

const uint8_t* input; // what is left of it
const uint8_t* inputEnd;

// The first byte is the type, or else an error-status; the second is the length.
INT WINAPI Request(SnmpSession, BYTE, SnmpVarBindList* list, AsnInteger32* errorStatus, AsnInteger32*) {
    if (inputEnd - input < 2)
        return 0;
    AsnAny& value = list->list[0].value;
    value.asnType = *input++;
    const UINT length = *input++;
    const UINT count = std::min(length, static_cast<UINT>(inputEnd - input));
    switch (SnmpFormOf(value.asnType)) {
    case SnmpForm::kNumber:
        std::copy_n(input, std::min(count, 4u), reinterpret_cast<uint8_t*>(&value.asnValue.number));
        break;
    case SnmpForm::kOctets:
        value.asnValue.string = {static_cast<BYTE*>(ClientMemAlloc(count)), count, TRUE};
        std::copy_n(input, count, value.asnValue.string.stream);
        break;
    default:
        *errorStatus = value.asnType;
        value.asnType = ASN_NULL;
    }
    input += count;
    return 1;
}

void CheckLists(const TelmarStoredResourceList* lists, size_t count) {
    for (size_t i = 0; lists != nullptr && i < count; ++i)
        for (int32_t entry = 0; entry < lists[i].count; ++entry) {
            const TelmarStoredResourceEntry& texts = lists[i].entries[entry];
            Require(texts.first[127] == 0 && texts.second[127] == 0 && texts.storage[31] == 0,
                    "a text fills its field");
        }
    MIB_FreeOverlayInfo(const_cast<TelmarStoredResourceList*>(lists));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    const auto open = [](const char*, const char*, INT, INT) -> SnmpSession { return &input; };
    const auto close = [](SnmpSession) -> BOOL { return TRUE; };
    snmpEntryPoints = {ClientMemAlloc,        ClientMemFree, ClientOidFree, ClientVarBindFree,
                       ClientVarBindListFree, open,          close,         Request,
                       ClientStrToOid,        nullptr,       nullptr,       1};
    constexpr char kAgent[] = "192.0.2.7";
    inputEnd = octets + count;
    input = octets + std::min<size_t>(count, 1);
    if (count == 0 || octets[0] == 0) {
        CheckLists(reinterpret_cast<TelmarStoredResourceList*>(MIB_OverlayRequest(kAgent, 0)), 1);
    } else if (octets[0] == 1) {
        CheckLists(reinterpret_cast<TelmarStoredResourceList*>(MIB_ProfileRequest(kAgent)), TELMAR_PROFILE_SELECTORS);
    } else {
        TelmarOptionRequestItem options[] = {{"OpMemory", ""}, {"OpHDD", ""}, {"OpInTray1", ""}, {"OpDuplex", ""}};
        TelmarMrkSupRequestItem supplies[] = {{"Consumable2", 0, 0, 0}, {"Consumable5", 0, 0, 0}};
        MIB_OptionRequest(kAgent, 4, options);
        MIB_MrkSupRequest(kAgent, 2, supplies);
        for (const TelmarMrkSupRequestItem& supply : supplies)
            Require(supply.value >= 0 && supply.value <= 100, "no percentage");
    }
    Require(win32::Count().localBlocks == 0, "something is left over");
    return 0;
}

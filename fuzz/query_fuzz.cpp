// Fuzz target: any bytes as the values that a printer returns to the queries of the module, and of the stand-in for the
// bidirectional library, each with its type and length. When they are used up, requests fail.
#include "require.h"

#include "bdclib/device_reader.h"
#include "devcomm/snmp/snmp_entry_points.h"
#include "devcomm/snmp/snmp_values.h"
#include "telmar_d.h"
#include "win32_control.h"

#include <algorithm>
#include <vector>

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

// All lists of the bidirectional library, into blocks of just their size.
void ReadDevice(const char* agent) {
    BdcDeviceRecord device = {};
    CopyText(device.agent, agent);
    const DeviceSession session(device);
    uint32_t number = 0, paths = 0;
    bool hasDuplex = false;
    ObjectText name;
    ReadPrinterNumber(session.connection.handle, number);
    ReadModelName(session, name);
    ReadMediaPaths(session, paths, hasDuplex);
    for (const DeviceList* list :
         {&kFirmwareList, &kMemoryList, &kOptionList, &kInputTrayList, &kOutputTrayList, &kFinisherList}) {
        constexpr uint32_t kCapacity = 3;
        const std::vector<uint8_t> items(kCapacity * list->itemSize);
        uint32_t count = 0;
        ReadList(session, *list, const_cast<uint8_t*>(items.data()), kCapacity, count);
        Require(count <= kCapacity, "more items than there is room for");
    }
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
    } else if (octets[0] == 2) {
        ReadDevice(kAgent);
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

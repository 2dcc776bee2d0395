// The exports that query a printer through the bidirectional library. Nothing is kept between calls.
#include "base/records.h"

#include "base/scope_guard.h"
#include "base/text.h"
#include "devcomm/bidi/bdc_tables.h"

#include <cstring>

namespace {

// Queries everything about a device of this model. Freed by BdcCloseDevice. Null when there is none; the last
// error is 87 when an argument is null.
BdcDeviceContext* AskDevice(const char* agent, const void* items) {
    if (agent == nullptr || items == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    BdcDeviceContext* device = BdcOpenDevice(agent);
    if (device == nullptr)
        return nullptr;
    BdcFillDevice(*device);
    if (BdcIsModel(*device))
        return device;
    const KeepLastError keep;
    BdcCloseDevice(device);
    return nullptr;
}

// The first item with this tray number; null when there is none.
const BdcInputTrayItem* FindTray(const BdcDeviceContext& device, int32_t number) {
    for (const BdcInputTrayItem& tray : BdcItemsOf<BdcInputTrayItem>(device.inputTrays))
        if (tray.tray == number)
            return &tray;
    return nullptr;
}

void AnswerTray(const BdcDeviceContext& device, InputTrayStatusItem& item) {
    const int32_t number = BdcTrayNumber(item.tray);
    const BdcInputTrayItem* tray = number != 0 ? FindTray(device, number) : nullptr;
    const BdcTrayKeys keys = tray != nullptr ? BdcKeysOf(*tray) : kUnknownTrayKeys;
    InputTrayStatusItem answer = {};
    memcpy(answer.tray, item.tray, sizeof(answer.tray));
    CopyText(answer.mediaSize, keys.mediaSize);
    CopyText(answer.orientation, keys.orientation);
    CopyText(answer.mediaType, keys.mediaType);
    CopyText(answer.weight, keys.weight);
    CopyText(answer.color, keys.color);
    CopyText(answer.hole, keys.hole);
    answer.level = tray != nullptr ? tray->level : 0;
    item = answer;
}

} // namespace

BOOL WINAPI DDProc_IsEnableBdcLib() {
    return BdcIsLibraryUsable();
}

BOOL WINAPI DDProc_IsCommunicateDevice(const char* agent, int32_t* modelAnswer) {
    if (modelAnswer != nullptr)
        *modelAnswer = 0;
    BdcDeviceContext* device = agent != nullptr ? BdcOpenDevice(agent) : nullptr;
    if (device == nullptr)
        return FALSE;
    const ScopeGuard closeDevice{[device] { BdcCloseDevice(device); }};
    if (!BdcAskVersion(*device) || !BdcAskCommunication(*device) || !BdcAskName(*device))
        return FALSE;
    if (modelAnswer != nullptr)
        *modelAnswer = BdcIsModel(*device) ? 1 : 0;
    return TRUE;
}

BOOL WINAPI DDProc_OptionRequest(const char* agent, DWORD count, OptionRequestItem* items) {
    BdcDeviceContext* device = AskDevice(agent, items);
    if (device == nullptr)
        return FALSE;
    const ScopeGuard closeDevice{[device] { BdcCloseDevice(device); }};
    const BdcDeviceBits bits = BdcDeriveBits(*device);
    for (DWORD i = 0; i < count; ++i) {
        memset(items[i].value, 0, sizeof(items[i].value));
        const char* value = BdcApplyRules(items[i].key, bits);
        if (value != nullptr)
            CopyText(items[i].value, value);
    }
    return TRUE;
}

BOOL WINAPI DDProc_InputTrayStatus(const char* agent, DWORD count, InputTrayStatusItem* items) {
    BdcDeviceContext* device = AskDevice(agent, items);
    if (device == nullptr)
        return FALSE;
    const ScopeGuard closeDevice{[device] { BdcCloseDevice(device); }};
    for (DWORD i = 0; i < count; ++i)
        AnswerTray(*device, items[i]);
    return TRUE;
}

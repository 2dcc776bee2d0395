// The MIB_ queries for access, model, options and supplies.
#include "base/records.h"

#include "base/keyed_list.h"
#include "base/scope_guard.h"
#include "base/text.h"
#include "devcomm/queries/object_reader.h"
#include "devcomm/queries/query_catalogue.h"

#include <cstring>

namespace {

constexpr int32_t kSomeLeft = -3; // a level: some is left, but not how much
constexpr int32_t kWholePercentage = 100;

const OptionRecord* FindOption(const QueryKey& key) {
    for (int32_t i = 0; i < kOptionReqInfo.count; ++i)
        if (SameText(kOptionReqInfo.options[i].key, key))
            return &kOptionReqInfo.options[i];
    return nullptr;
}

// Name of the first value that applies; null when none does or the device does not answer.
const char* AskOption(SnmpSession session, const OptionRecord& option) {
    for (int32_t i = 0; i < option.valueCount; ++i) {
        const OptionValueRecord& value = option.values[i];
        if (value.oid[0] == 0)
            return value.name;
        if (value.suffix[0] == 0)
            return nullptr;
        const Match match = MatchObject(session, value.oid, value.suffix, value.comparison, value.expected);
        if (match == Match::kYes)
            return value.name;
        if (match == Match::kFailed)
            return nullptr;
    }
    return nullptr;
}

// level x 100 / capacity, rounded to the nearest, half away from zero. False outside 0 to 100.
bool Percentage(int32_t level, int32_t capacity, int32_t& percentage) {
    if (capacity <= 0) {
        percentage = level > 0 ? kWholePercentage : 0;
        return true;
    }
    const int64_t part = int64_t{level} * kWholePercentage;
    const int64_t rounded = (part + (part < 0 ? -(capacity / 2) : capacity / 2)) / capacity;
    percentage = static_cast<int32_t>(rounded);
    return rounded >= 0 && rounded <= kWholePercentage;
}

int32_t LevelOf(int32_t level, bool fillsUp) {
    if (level == 0)
        return fillsUp ? TELMAR_LEVEL_FULL : TELMAR_LEVEL_EMPTY;
    if (level == 1)
        return fillsUp ? TELMAR_LEVEL_NEARLY_FULL : TELMAR_LEVEL_NEARLY_EMPTY;
    return level > 1 || level == kSomeLeft ? TELMAR_LEVEL_IN_ORDER : TELMAR_LEVEL_UNKNOWN;
}

bool ReadSupply(SnmpSession session, const MrkSupItem& supply, int32_t& capacity, int32_t& level) {
    ObjectNumber read[2];
    if (!ReadNumber(session, kMrkSupReqInfo.capacityOid, supply.suffix, read[0])
        || !ReadNumber(session, kMrkSupReqInfo.levelOid, supply.suffix, read[1]))
        return false;
    capacity = read[0].value;
    level = read[1].value;
    return read[0].isPresent && read[1].isPresent;
}

// Answers an item whose fields are 0. They stay 0 when the supply can't be evaluated. Capacity and level are
// both requested, also when the capacity is absent.
void AskSupply(SnmpSession session, const MrkSupItem& supply, MrkSupRequestItem& item) {
    int32_t capacity = 0;
    int32_t level = 0;
    int32_t percentage = 0;
    if (supply.kind == TELMAR_SUPPLY_FIXED)
        item.state = TELMAR_STATE_FIXED;
    if (supply.kind == TELMAR_SUPPLY_FIXED || supply.kind == TELMAR_SUPPLY_NONE
        || !ReadSupply(session, supply, capacity, level))
        return;
    if (supply.kind == TELMAR_SUPPLY_PERCENTAGE && Percentage(level, capacity, percentage)) {
        item.state = TELMAR_STATE_PERCENT;
        item.value = percentage;
        item.color = supply.color;
    } else if (supply.kind == TELMAR_SUPPLY_LEVEL) {
        item.state = TELMAR_STATE_LEVEL;
        item.value = LevelOf(level, supply.levelFlag != 0);
    }
}

} // namespace

const ModelCheckInfo* WINAPI MIB_ModelCheckInfo() {
    return &kModelCheckInfo;
}

const OptionReqInfo* WINAPI MIB_OptionReqInfo() {
    return &kOptionReqInfo;
}

const MrkSupReqInfo* WINAPI MIB_MrkSupReqInfo() {
    return &kMrkSupReqInfo;
}

const MrkSupItem* WINAPI GET_MrkSupItemList() {
    return kMrkSupReqInfo.items;
}

const OverlayReqInfo* WINAPI MIB_OvlReqInfo() {
    return &kOverlayReqInfo;
}

const ProfileReqInfo* WINAPI MIB_CMProfReqInfo() {
    return &kProfileReqInfo;
}

BOOL WINAPI MIB_IsAccessOK(const char* agent) {
    const AgentSession session = OpenQuery(agent, agent != nullptr && agent[0] != 0, kReachLimits);
    return session.handle != nullptr && AskForObject(session.handle, kReachObject);
}

bool CheckModel(const ModelCheckInfo& check, const char* agent) {
    if (!CanQuery(agent != nullptr))
        return false;
    if (check.enabled == 0)
        return true;
    const AgentSession session(agent, kQueryLimits);
    return session.handle != nullptr
           && MatchObject(session.handle, check.oid, "", check.comparison, check.expected) == Match::kYes;
}

BOOL WINAPI MIB_IsModelOK(const char* agent) {
    return CheckModel(kModelCheckInfo, agent);
}

BOOL WINAPI MIB_OptionRequest(const char* agent, DWORD count, OptionRequestItem* items) {
    const AgentSession session = OpenQuery(agent, agent != nullptr && items != nullptr);
    if (session.handle == nullptr)
        return FALSE;
    const KeepLastError keep; // of the session; single items do not change it
    for (DWORD i = 0; i < count; ++i) {
        memset(items[i].value, 0, sizeof(items[i].value));
        const OptionRecord* option = FindOption(items[i].key);
        const char* value = option != nullptr ? AskOption(session.handle, *option) : nullptr;
        if (value != nullptr)
            CopyText(items[i].value, value);
    }
    return TRUE;
}

BOOL WINAPI MIB_MrkSupRequest(const char* agent, DWORD count, MrkSupRequestItem* items) {
    const AgentSession session = OpenQuery(agent, agent != nullptr && items != nullptr);
    if (session.handle == nullptr)
        return FALSE;
    const KeepLastError keep; // of the session; single items do not change it
    for (DWORD i = 0; i < count; ++i) {
        items[i].state = TELMAR_STATE_UNKNOWN;
        items[i].value = 0;
        items[i].color = 0;
        const MrkSupItem* supply = FindByKey(kMrkSupReqInfo.items, items[i].name);
        if (supply == nullptr)
            return FALSE;
        AskSupply(session.handle, *supply, items[i]);
    }
    return TRUE;
}

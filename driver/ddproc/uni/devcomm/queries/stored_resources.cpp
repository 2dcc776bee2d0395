// The MIB_ queries for stored overlays and colour profiles: walks over the printer's tables, and the result
// blocks.
#include "base/records.h"
#include "base/scope_guard.h"
#include "base/text.h"
#include "devcomm/queries/object_reader.h"
#include "devcomm/queries/query_catalogue.h"

#include <cstring>

namespace {

constexpr uint32_t kMaxEntries = 32767;
constexpr uint32_t kFirstCapacity = 16;

// An entry of a walk, with a bit for each list that it belongs to.
struct FoundEntry {
    StoredResourceEntry entry;
    uint32_t lists;
};

// The entries in walk order, in a block of the local heap that doubles when it is full.
struct FoundEntries {
    FoundEntries() = default;
    ~FoundEntries() {
        const KeepLastError keep;
        LocalFree(entries);
    }
    FoundEntries(const FoundEntries&) = delete;
    FoundEntries& operator=(const FoundEntries&) = delete;

    FoundEntry* entries = nullptr;
    uint32_t count = 0;
    uint32_t capacity = 0;
};

bool Append(FoundEntries& found, const FoundEntry& entry) {
    if (found.count == found.capacity) {
        const uint32_t capacity = found.capacity != 0 ? found.capacity * 2 : kFirstCapacity;
        auto* larger = static_cast<FoundEntry*>(LocalAlloc(LMEM_FIXED, capacity * sizeof(FoundEntry)));
        if (larger == nullptr)
            return false;
        if (found.count != 0)
            memcpy(larger, found.entries, found.count * sizeof(FoundEntry));
        LocalFree(found.entries);
        found.entries = larger;
        found.capacity = capacity;
    }
    found.entries[found.count++] = entry;
    return true;
}

enum class Step { kFailed, kEnd, kSkip, kKeep };

// Reads the printer's entries from 1 on until a step ends the walk. False when a step failed.
template <typename ReadEntry>
bool Walk(FoundEntries& found, const ReadEntry& readEntry) {
    for (uint32_t number = 1; number <= kMaxEntries; ++number) {
        ObjectSuffix suffix = {};
        AppendSubIdentifier(suffix, number);
        FoundEntry entry = {};
        const Step step = readEntry(suffix, entry);
        if (step == Step::kEnd)
            return true;
        if (step == Step::kFailed || (step == Step::kKeep && !Append(found, entry)))
            return false;
    }
    return true;
}

// Requests the object once for each value of the selector, until one matches. False when a request failed.
bool AskSelector(SnmpSession session, const SelectorRecord& selector, const char* suffix, bool& isSelected) {
    isSelected = false;
    for (int32_t i = 0; i < selector.valueCount && !isSelected; ++i) {
        ObjectNumber number;
        if (!ReadNumber(session, selector.oid, suffix, number))
            return false;
        isSelected = number.isPresent && number.value == selector.values[i];
    }
    return true;
}

const StorageNameRecord* FindStorage(const ProfileReqInfo& table, int32_t code) {
    for (int32_t i = 0; i < table.storageCount; ++i)
        if (table.storages[i].code == code)
            return &table.storages[i];
    return nullptr;
}

// An overlay. The walk ends at an empty first text; the second text is the first of the entry.
Step ReadOverlay(SnmpSession session, const SelectorRecord& selector, const char* suffix, FoundEntry& found) {
    const OverlayReqInfo& table = kOverlayReqInfo;
    bool isSelected = false;
    if (!ReadText(session, table.firstOid, suffix, found.entry.second))
        return Step::kFailed;
    if (found.entry.second[0] == 0)
        return Step::kEnd;
    if (!AskSelector(session, selector, suffix, isSelected))
        return Step::kFailed;
    if (!isSelected)
        return Step::kSkip;
    if (!ReadText(session, table.secondOid, suffix, found.entry.first))
        return Step::kFailed;
    CopyText(found.entry.storage, table.defaultStorage);
    found.lists = 1;
    return Step::kKeep;
}

// A colour profile. The walk ends at an empty second text; the first text is the first of the entry.
Step ReadProfile(SnmpSession session, const char* suffix, FoundEntry& found) {
    const ProfileReqInfo& table = kProfileReqInfo;
    if (!ReadText(session, table.secondOid, suffix, found.entry.second))
        return Step::kFailed;
    if (found.entry.second[0] == 0)
        return Step::kEnd;
    for (uint32_t i = 0; i < TELMAR_PROFILE_SELECTORS; ++i) {
        bool isSelected = false;
        if (!AskSelector(session, table.selectors[i], suffix, isSelected))
            return Step::kFailed;
        found.lists |= isSelected ? 1u << i : 0;
    }
    if (found.lists == 0)
        return Step::kSkip;
    if (!ReadText(session, table.firstOid, suffix, found.entry.first))
        return Step::kFailed;
    if (table.storageCodeOid[0] == 0)
        return Step::kSkip;
    ObjectNumber code;
    if (!ReadNumber(session, table.storageCodeOid, suffix, code))
        return Step::kFailed;
    const StorageNameRecord* storage = FindStorage(table, code.value);
    if (storage == nullptr)
        return Step::kSkip;
    CopyText(found.entry.storage, storage->name);
    return Step::kKeep;
}

// One block of the local heap with the lists, then their entries. Null without memory.
StoredResourceList* BuildBlock(const FoundEntries& found, uint32_t listCount) {
    size_t total = 0;
    for (uint32_t i = 0; i < found.count; ++i)
        for (uint32_t list = 0; list < listCount; ++list)
            total += found.entries[i].lists >> list & 1;
    auto* lists = static_cast<StoredResourceList*>(
        LocalAlloc(LPTR, listCount * sizeof(StoredResourceList) + total * sizeof(StoredResourceEntry)));
    if (lists == nullptr)
        return nullptr;
    auto* next = reinterpret_cast<StoredResourceEntry*>(lists + listCount);
    for (uint32_t list = 0; list < listCount; ++list) {
        lists[list].entries = next;
        for (uint32_t i = 0; i < found.count; ++i)
            if ((found.entries[i].lists >> list & 1) != 0)
                *next++ = found.entries[i].entry;
        lists[list].count = static_cast<int32_t>(next - lists[list].entries);
    }
    return lists;
}

} // namespace

OverlayInfo* WINAPI MIB_OverlayRequest(const char* agent, int32_t storage) {
    const AgentSession session = OpenQuery(agent, agent != nullptr);
    if (session.handle == nullptr)
        return nullptr;
    if (storage != 0 && storage != 1) {
        RefuseArgument();
        return nullptr;
    }
    const SelectorRecord& selector = kOverlayReqInfo.selectors[storage];
    FoundEntries found;
    const bool done = Walk(found, [&](const char* suffix, FoundEntry& entry) {
        return ReadOverlay(session.handle, selector, suffix, entry);
    });
    return done ? reinterpret_cast<OverlayInfo*>(BuildBlock(found, 1)) : nullptr;
}

ProfileInfo* WINAPI MIB_ProfileRequest(const char* agent) {
    const AgentSession session = OpenQuery(agent, agent != nullptr);
    if (session.handle == nullptr)
        return nullptr;
    FoundEntries found;
    const bool done = Walk(found, [&](const char* suffix, FoundEntry& entry) {
        return ReadProfile(session.handle, suffix, entry);
    });
    return done ? reinterpret_cast<ProfileInfo*>(BuildBlock(found, TELMAR_PROFILE_SELECTORS)) : nullptr;
}

void WINAPI MIB_FreeOverlayInfo(void* block) {
    if (block != nullptr)
        LocalFree(block);
}

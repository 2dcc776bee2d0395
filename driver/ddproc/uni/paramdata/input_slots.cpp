// Input slots: the compiled-in table, its update from the file and the look-up of tray selection items.
#include "paramdata/input_slots.h"

#include "base/text.h"
#include "paramdata/prm_readers.h"

namespace {

constexpr size_t kSourceCount = sizeof(kPaperSources) / sizeof(kPaperSources[0]);
struct InputSlots {
    TraySourceRecord records[kSourceCount + 1]; // the last one ends the list
};

constexpr InputSlots CompiledIn() {
    InputSlots slots = {};
    TraySourceRecord* slot = slots.records;
    for (const PaperSourceRow& source : kPaperSources) {
        CopyText(slot->key, source.key);
        slot->bin = source.bin;
        for (size_t column = 0; column < kTraySelectionCount; ++column)
            CopyText(slot->selectionKeys[column], source.selectionKeys[column]);
        ++slot;
    }
    return slots;
}

InputSlots slots = CompiledIn();

} // namespace

TraySourceRecord (&inputSlots)[12] = slots.records;

void UpdateInputSlots(const PrmFile& file) {
    PrmItems items;
    if (!PrmFindItems(file, "ALL_InTray", items))
        return;
    for (uint32_t i = 0; i < items.count; ++i) {
        PrmMediaItem item = {};
        PrmReadRecord(file, PrmItemOffset(file, items, i), item);
        PrmText key = {};
        PrmReadString(file, item.head.key, key);
        for (TraySourceRecord* slot = inputSlots; slot->key[0] != 0; ++slot) {
            if (!SameText(slot->key, key))
                continue;
            CopyText(slot->text, item.text);
            slot->bin = static_cast<uint16_t>(item.value);
            break;
        }
    }
}

bool TraySelectionValue(const char* feature, const char* itemKey, uint32_t& value) {
    if (itemKey[0] == 0)
        return false; // it would match every source that the feature does not offer
    for (size_t column = 0; column < kTraySelectionCount; ++column) {
        if (!SameText(kTraySelectionFeatures[column], feature))
            continue;
        for (const TraySourceRecord* slot = inputSlots; slot->key[0] != 0; ++slot) {
            if (SameText(slot->selectionKeys[column], itemKey)) {
                value = slot->bin;
                return true;
            }
        }
        return false;
    }
    return false;
}

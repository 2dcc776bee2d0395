// The paper sources of the model: their compiled-in table, its update from the parameter data file, and the
// search by the items of the features that select a source.
#include "paramdata/input_slots.h"

#include "base/keyed_list.h"
#include "paramdata/prm_readers.h"

namespace {

struct InputSlots {
    TraySourceRecord records[kPaperSourceCount + 1]; // the last one ends the list
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

TraySourceRecord (&inputSlots)[kPaperSourceCount + 1] = slots.records;

void UpdateInputSlots(const PrmFile& file) {
    PrmItems items;
    if (!PrmFindItems(file, "ALL_InTray", items))
        return;
    for (uint32_t i = 0; i < items.count; ++i) {
        PrmMediaItem buffer;
        PrmText keyBuffer;
        const PrmMediaItem& item = PrmRecordAt(file, PrmItemOffset(file, items, i), buffer);
        if (TraySourceRecord* slot =
                FindByKey<TraySourceRecord>(inputSlots, PrmKeyAt(file, item.head, keyBuffer))) {
            CopyText(slot->text, item.text);
            slot->bin = static_cast<uint16_t>(item.value);
        }
    }
}

bool TraySelectionValue(const char* feature, const char* itemKey, uint32_t& value) {
    if (itemKey[0] == 0)
        return false; // it would match a source that the feature does not offer
    for (size_t column = 0; column < kTraySelectionCount; ++column) {
        if (!SameText(kTraySelectionFeatures[column], feature))
            continue;
        for (const TraySourceRecord& slot : Listed<TraySourceRecord>(inputSlots)) {
            if (SameText(slot.selectionKeys[column], itemKey)) {
                value = slot.bin;
                return true;
            }
        }
        return false;
    }
    return false;
}

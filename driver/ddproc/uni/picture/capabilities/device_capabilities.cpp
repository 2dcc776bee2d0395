// DDProc_DeviceCapabilities: answers the system's capability requests from the caller's tables. Nothing is
// kept between calls.
#include "base/keyed_list.h"
#include "picture/capabilities/feature_table.h"

#include <cstring>

namespace {

using BinName = wchar_t[TELMAR_BIN_NAME_LENGTH];

// A paper source is usable when its option is installed, and always when there is no option feature for it.
bool IsUsable(const InputSlotRecord& slot, const FeatureRecord* features, const FeatureSettings* settings) {
    constexpr char kInstalled[] = "EnaOpInTray";
    char optionKey[2 + sizeof(slot.head.key) + 1] = "Op";
    memcpy(optionKey + 2, slot.head.key, TextLength(slot.head.key));
    const int32_t option = FindFeature(features, optionKey);
    if (option < 0)
        return true;
    const ItemRecord* item = SelectedItem(features, settings, option);
    return item != nullptr && SameCharacters(item->head.key, kInstalled, sizeof(kInstalled) - 1);
}

// Stores the name as a field of 24 characters, padded with zeros.
void StoreBinName(const InputSlotRecord& slot, void* to) {
    BinName name = {};
    CopyText(name, slot.display);
    memcpy(to, name, sizeof(name));
}

void StoreBinNumber(const InputSlotRecord& slot, void* to) {
    const auto bin = static_cast<uint16_t>(slot.head.value);
    memcpy(to, &bin, sizeof(bin));
}

// Counts the usable paper sources and, when there is an output, stores them there, packed in table order.
DWORD ListUsableSlots(const InputSlotRecord* slots, const FeatureRecord* features,
                      const FeatureSettings* settings, void* output, size_t elementSize,
                      void (*store)(const InputSlotRecord& slot, void* to)) {
    DWORD count = 0;
    for (const InputSlotRecord& slot : Listed(slots)) {
        if (!IsUsable(slot, features, settings))
            continue;
        if (output != nullptr)
            store(slot, static_cast<uint8_t*>(output) + count * elementSize);
        ++count;
    }
    return count;
}

bool CanStaple(const FeatureRecord* features, const FeatureSettings* settings) {
    const int32_t unit = FindFeature(features, "OpOutTrayUnit");
    if (unit < 0)
        return false;
    const ItemRecord* item = SelectedItem(features, settings, unit);
    return item != nullptr && !SameText(item->head.key, "DisOpOutTrayUnit");
}

} // namespace

BOOL WINAPI DDProc_DeviceCapabilities(const DeviceTable* device, const FeatureRecord* features,
                                      const void* /*reserved*/, const FeatureSettings* settings,
                                      WORD capability, void* output, DWORD* answer) {
    const InputSlotRecord* slots = device != nullptr ? device->inputTrays : nullptr;
    DWORD value = 0;
    switch (capability) {
    case DC_BINS:
        value = ListUsableSlots(slots, features, settings, output, sizeof(uint16_t), StoreBinNumber);
        break;
    case DC_BINNAMES:
        value = ListUsableSlots(slots, features, settings, output, sizeof(BinName), StoreBinName);
        break;
    case DC_DUPLEX:
        value = 1;
        break;
    case DC_STAPLE:
        value = CanStaple(features, settings) ? 1 : 0;
        break;
    default:
        return FALSE;
    }
    if (answer != nullptr)
        *answer = value;
    return TRUE;
}

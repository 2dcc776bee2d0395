// The model's device table: how it is built and released, and how its lists are walked. The layouts are in
// the public header. Every list is one block of the global heap that the table owns; it ends at the first
// empty key.
#ifndef PARAMDATA_DEVICE_TABLE_H
#define PARAMDATA_DEVICE_TABLE_H

#include "base/keyed_list.h"
#include "base/records.h"
#include "paramdata/feature_switches.h"
#include "paramdata/input_slots.h"

static_assert(kFeatureSwitchCount == TELMAR_SWITCH_COUNT && kTraySelectionCount == TELMAR_TRAY_SELECTION_COUNT
              && kMaxTraySettings == TELMAR_TRAY_COUNT && kMaxBinNameChars + 1 == TELMAR_BIN_NAME_LENGTH);

constexpr uint16_t kItemIcon = 32515; // the system's warning icon

// A switch's value; 0 without a table.
inline uint32_t SwitchValue(const DeviceTable* table, FeatureSwitch position) {
    return table != nullptr ? table->switches[position] : 0;
}

struct PrmFile;

// The model's, built once while the process attaches and only read afterwards. Null without a parameter data
// file or without memory; readers must take that into account.
extern DeviceTable* deviceTable;

// Builds the model's device table from an open parameter data file. Entries that the file lacks leave their
// fields 0 and their lists null. Also updates the compiled-in input slots from the file. The caller frees the
// table. Null when there is no memory for the table itself.
DeviceTable* BuildDeviceTable(PrmFile& file);

// Releases the table and every list that it refers to. Null is accepted.
void FreeDeviceTable(DeviceTable* table);

#endif

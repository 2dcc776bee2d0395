// The paper sources of the model. Compiled in; their bin numbers and texts are updated from the parameter
// data file while the device table is built.
#ifndef PARAMDATA_INPUT_SLOTS_H
#define PARAMDATA_INPUT_SLOTS_H

#include "paramdata/paper_sources.h"

struct PrmFile;

#pragma pack(push, 1)
struct TraySourceRecord {
    char key[32];
    uint16_t bin;
    char text[128];
    uint16_t reserved;
    char selectionKeys[kTraySelectionCount][32]; // empty: the feature does not offer this source
};
static_assert(sizeof(TraySourceRecord) == 388 && offsetof(TraySourceRecord, bin) == 32
              && offsetof(TraySourceRecord, text) == 34 && offsetof(TraySourceRecord, reserved) == 162
              && offsetof(TraySourceRecord, selectionKeys) == 164);
#pragma pack(pop)

// Ends at an empty key. The first row is the automatic choice.
extern TraySourceRecord (&inputSlots)[kPaperSourceCount + 1];

// Whether this bin number is the automatic choice, not a tray.
inline bool IsAutomaticBin(uint32_t bin) {
    return bin == inputSlots[0].bin;
}

// Takes bin numbers and texts from the entry "ALL_InTray" of the file.
void UpdateInputSlots(const PrmFile& file);

// The bin number of the paper source that the feature's item selects. False, with `value` unchanged, when the
// feature or the item is unknown and when the item key is empty.
bool TraySelectionValue(const char* feature, const char* itemKey, uint32_t& value);

#endif

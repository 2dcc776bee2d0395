// Input slots: the compiled-in table, its update from the file and the look-up of tray selection items.
#include "paramdata/input_slots.h"

#include "base/text.h"
#include "paramdata/prm_readers.h"

// clang-format off
TraySourceRecord inputSlots[] = {
    // key           bin    text  0   front cover     back cover      separator page  interleave       inserter front/back   per-page source
    {"InTrayAuto",       7, "", 0, {}},
    {"SAMEASBODY",   32767, "", 0, {"FCover_Auto",   "BCover_Auto",   "SPage_Auto",   "",              "",         "",         "PPSTraySameAsBody"}},
    {"InTray1",        257, "", 0, {"FCover_Tray1",  "BCover_Tray1",  "SPage_Tray1",  "OHPInt_Tray1",  "",         "",         "PPSTray1"}},
    {"InTray2",        258, "", 0, {"FCover_Tray2",  "BCover_Tray2",  "SPage_Tray2",  "OHPInt_Tray2",  "",         "",         "PPSTray2"}},
    {"InTray3",        259, "", 0, {"FCover_Tray3",  "BCover_Tray3",  "SPage_Tray3",  "OHPInt_Tray3",  "",         "",         "PPSTray3"}},
    {"InTray4",        260, "", 0, {"FCover_Tray4",  "BCover_Tray4",  "SPage_Tray4",  "OHPInt_Tray4",  "",         "",         "PPSTray4"}},
    {"InTray5",        261, "", 0, {"FCover_Tray5",  "BCover_Tray5",  "SPage_Tray5",  "OHPInt_Tray5",  "",         "",         "PPSTray5"}},
    {"InTrayManual",     4, "", 0, {"FCover_Manual", "BCover_Manual", "SPage_Manual", "OHPInt_Manual", "",         "",         "PPSMANUAL"}},
    {"PITray1",       1001, "", 0, {"",              "",              "",             "",              "PIFTray1", "PIBTray1", "PPSPITray1"}},
    {"PITray2",       1002, "", 0, {"",              "",              "",             "",              "PIFTray2", "PIBTray2", "PPSPITray2"}},
    {"InTrayLCT",     1000, "", 0, {"FCover_LCT",    "BCover_LCT",    "",             "OHPInt_LCT",    "",         "",         "PPSLCT"}},
    {}, // end
};
// clang-format on

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

// The item lists of the printing features: built from the parameter data file into the device table, in
// stages, and released.
#ifndef PARAMDATA_FEATURE_LISTS_H
#define PARAMDATA_FEATURE_LISTS_H

#include "paramdata/device_table.h"
#include "paramdata/prm_readers.h"

// Each stage builds its lists in the order of the table in feature_lists.cpp.
enum class ListStage {
    Paper,     // paper sizes, output paper sizes, media types, paper sources
    Output,    // output trays, media weights, media colours, resolutions
    Finishing, // combinations to per-page staples
    Location,  // output methods, overlay and profile locations
    Page,      // tab paper sizes, collate, transparency interleave, paper arrangement
};
void BuildLists(PrmFile& file, DeviceTable& table, ListStage stage);

// Builds the tray selection list of one feature into the table's field that the bit selects: 1 "FCoverTray",
// 2 "BCoverTray", 4 "SeparatePageTray", 8 "OHPIntTray", 16 "PIFrontCover", 32 "PIBackCover",
// 64 "PerPageListPaperSrc". Any other bit and a null table build nothing.
void BuildTraySelectionList(PrmFile& file, DeviceTable* table, const char* feature, uint32_t featureBit);

// The number after the fifth character of a resolution's key; 0 for a shorter key.
uint16_t ResolutionNumber(const char* key);

// Releases every list of the table, also the tray rows.
void FreeLists(DeviceTable& table);

#endif

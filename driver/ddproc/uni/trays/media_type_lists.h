// Media type lists: what the paper in a tray can be, ready for the tray-setting dialogs, and the columns of
// their list view. Built while the process attaches, afterwards only read.
#ifndef TRAYS_MEDIA_TYPE_LISTS_H
#define TRAYS_MEDIA_TYPE_LISTS_H

#include "paramdata/control_texts.h"
#include "paramdata/device_table.h"

// Positions of the lists.
enum MediaTypeList { kMediaSize, kMediaOrientation, kMediaType, kMediaWeight, kMediaColor, kMediaHole };
constexpr size_t kMediaTypeListCount = 6;

// Each list ends at the first empty key. The value -1 stands for "unknown".
struct MediaTypeLists {
    ItemRecord* lists[kMediaTypeListCount];
};
static_assert(sizeof(MediaTypeLists) == 48);

// The model's. Null without a parameter data file or without memory.
extern MediaTypeLists* mediaTypeLists;

// One column of the list view.
struct MediaTypeColumn {
    wchar_t title[48];
    char key[32]; // of its text in the file
};
extern MediaTypeColumn mediaTypeColumns[8]; // ends at an empty key

// Takes the columns' titles from the tray dialogs' texts, up to an empty key.
void ApplyColumnTitles(const ControlTextRecord* texts);

// Builds the lists from the device table and the texts of the file. Null when either is missing or there is
// no memory. The caller frees them.
MediaTypeLists* BuildMediaTypeLists(const PrmFile* file, const DeviceTable* table);
void FreeMediaTypeLists(MediaTypeLists* lists); // null is accepted

// Whether the dialog shows a column: not 0 when it does. A null table shows none.
uint32_t MediaWeightShown(const DeviceTable* table);
uint32_t MediaColorShown(const DeviceTable* table);
uint32_t MediaHoleShown(const DeviceTable* table);

#endif

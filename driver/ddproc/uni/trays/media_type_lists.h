// The media type lists: the values that the attributes of the paper in a tray can have, for the tray-setting
// dialogs, and the columns of their list view. Built at process attach, only read afterwards.
#ifndef TRAYS_MEDIA_TYPE_LISTS_H
#define TRAYS_MEDIA_TYPE_LISTS_H

#include "paramdata/control_texts.h"
#include "paramdata/device_table.h"
#include "paramdata/media_list_keys.h"

// Each list ends at the first empty key. The value -1 stands for "unknown".
struct MediaTypeLists {
    ItemRecord* lists[kMediaTypeListCount];
};
static_assert(sizeof(MediaTypeLists) == 48);

// Those of the model. Null without a parameter data file and without memory.
extern MediaTypeLists* mediaTypeLists;

// One column of the list view: that of the trays, then one per attribute.
struct MediaTypeColumn {
    wchar_t title[48];
    char key[32]; // of its text in the file
};
extern MediaTypeColumn mediaTypeColumns[8]; // ends at an empty key

// Takes the columns' titles from the texts of the tray-setting dialogs.
void ApplyColumnTitles(const ControlTextRecord* texts);

// Builds the lists from the device table and the texts of the file. The caller frees them. Null when either
// is null and without memory.
MediaTypeLists* BuildMediaTypeLists(const PrmFile* file, const DeviceTable* table);
void FreeMediaTypeLists(MediaTypeLists* lists); // null is accepted

#endif

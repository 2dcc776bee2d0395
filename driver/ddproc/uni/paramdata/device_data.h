// What the module knows about its model, built once while the process attaches and only read afterwards.
#ifndef PARAMDATA_DEVICE_DATA_H
#define PARAMDATA_DEVICE_DATA_H

#include <windows.h>

struct DeviceTable;
struct MediaTypeLists;

// Null without a parameter data file or without memory; readers must take that into account.
extern DeviceTable* deviceTable;
extern MediaTypeLists* mediaTypeLists;

// Reads TELMAR_D.PRM beside the module into the two above, the default settings, the control texts and the
// colour tables. What the file lacks stays as compiled in, but for the graphics RGB sources, which are then
// none.
void InitDeviceData(HINSTANCE module);

// Releases the device table and the media type lists.
void FreeDeviceData();

#endif

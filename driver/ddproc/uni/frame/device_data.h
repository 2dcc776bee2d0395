// What the module knows about its model, built once while the process attaches and only read afterwards.
#ifndef FRAME_DEVICE_DATA_H
#define FRAME_DEVICE_DATA_H

#include <windows.h>

// Reads TELMAR_D.PRM beside the module into the device table, the media type lists, the default settings, the
// control texts and the colour tables. What the file lacks stays as compiled in, but for the graphics RGB
// sources, which are then none.
void InitDeviceData(HINSTANCE module);

// Releases the device table and the media type lists.
void FreeDeviceData();

#endif

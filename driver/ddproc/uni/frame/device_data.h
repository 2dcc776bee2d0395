// The tables of the model: built at process attach, released at process detach, only read in between.
#ifndef FRAME_DEVICE_DATA_H
#define FRAME_DEVICE_DATA_H

#include <windows.h>

// Reads TELMAR_D.PRM, from the folder of the module, into the device table, the media type lists, the default
// settings, the control texts and the colour tables. What the file lacks keeps its compiled-in contents,
// except the RGB sources of graphics, which are then empty.
void InitDeviceData(HINSTANCE module);

// Releases the device table and the media type lists.
void FreeDeviceData();

#endif

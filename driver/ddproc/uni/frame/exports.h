// The exports that the frame itself answers. The export table is res/telmar_d.def.
#ifndef FRAME_EXPORTS_H
#define FRAME_EXPORTS_H

#include "picture/feature_table.h"

#include <windows.h>

extern "C" {

// Null, whatever the caller passes. Exported under both names, also as DDProc_FeatureNameValuePtr.
void* WINAPI DDProc_FeatureNameItemTable();

// AnswerDeviceCapability (picture/device_capabilities.h) for the generic modules.
BOOL WINAPI DDProc_DeviceCapabilities(const DeviceTable* device, const FeatureRecord* features,
                                      const void* reserved, const FeatureSettings* settings, WORD capability,
                                      void* output, DWORD* answer);
}

#endif

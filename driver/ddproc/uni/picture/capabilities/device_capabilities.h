// Device capabilities: the questions whose answer depends on what is installed on this model.
#ifndef PICTURE_CAPABILITIES_DEVICE_CAPABILITIES_H
#define PICTURE_CAPABILITIES_DEVICE_CAPABILITIES_H

#include "picture/capabilities/feature_table.h"

#include <windows.h>

constexpr size_t kBinNameCharacters = 24; // UTF-16, terminated or not

// Answers DC_BINS, DC_BINNAMES, DC_DUPLEX and DC_STAPLE from the caller's tables. FALSE for every other
// capability, with answer and output untouched. A null output asks for the count only; otherwise it takes one
// 16-bit bin number (DC_BINS) or one field of kBinNameCharacters (DC_BINNAMES) per usable paper source.
extern "C" BOOL WINAPI DDProc_DeviceCapabilities(const DeviceTable* device, const FeatureRecord* features,
                                                 const void* reserved, const FeatureSettings* settings,
                                                 WORD capability, void* output, DWORD* answer);

#endif

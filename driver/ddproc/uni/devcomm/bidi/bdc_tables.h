// Translates codes and names of the bidirectional library to the driver's keys.
#ifndef DEVCOMM_BIDI_BDC_TABLES_H
#define DEVCOMM_BIDI_BDC_TABLES_H

#include "devcomm/bidi/bdc_device.h"
#include "devcomm/bidi/bdc_keys.h"

// What is installed.
struct BdcDeviceBits {
    uint32_t words[kBitWords];
};
BdcDeviceBits BdcDeriveBits(const BdcDeviceContext& context);

// The item key of the first rule of this option that applies; null when there is none. Case is ignored.
const char* BdcApplyRules(const char (&option)[32], const BdcDeviceBits& bits);

// The number of the tray with this key; 0 when the device has no such tray. Case is ignored.
int32_t BdcTrayNumber(const char (&key)[32]);

// Keys for the paper in a tray; empty for a code without a key.
struct BdcTrayKeys {
    const char* mediaSize;
    const char* orientation;
    const char* mediaType;
    const char* weight;
    const char* color;
    const char* hole;
};
BdcTrayKeys BdcKeysOf(const BdcInputTrayItem& tray);

// For a tray that is not reported.
extern const BdcTrayKeys kUnknownTrayKeys;

#endif

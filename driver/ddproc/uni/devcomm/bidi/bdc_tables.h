// What the codes and names of the bidirectional library mean in the driver's vocabulary.
#ifndef DEVCOMM_BIDI_BDC_TABLES_H
#define DEVCOMM_BIDI_BDC_TABLES_H

#include "devcomm/bidi/bdc_device.h"

// What is installed, one word of bits for each kind of mask in a rule.
enum BdcBits : uint32_t { kModelBits, kOptionBits, kFinisherBits, kMemoryBits, kMediaPathBits, kBitWords };
struct BdcDeviceBits {
    uint32_t words[kBitWords];
};
BdcDeviceBits BdcDeriveBits(const BdcDeviceContext& context);

// Item key of the first rule of this option (letter case ignored) that holds; null when there is none.
const char* BdcApplyRules(const char (&option)[32], const BdcDeviceBits& bits);

// Number of the tray with this key (letter case ignored); 0 when it is not one of the device's.
int32_t BdcTrayNumber(const char (&key)[32]);

// Keys of what lies in a tray; empty for a code without a key.
struct BdcTrayKeys {
    const char* mediaSize;
    const char* orientation;
    const char* mediaType;
    const char* weight;
    const char* color;
    const char* hole;
};
BdcTrayKeys BdcKeysOf(const BdcInputTrayItem& tray);

// Of a tray of which nothing is known.
extern const BdcTrayKeys kUnknownTrayKeys;

#endif

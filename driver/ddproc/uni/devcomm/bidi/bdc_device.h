// A device as the bidirectional library reports it: the records passed to the library and returned by it, and
// a context that holds all of them during one export call.
#ifndef DEVCOMM_BIDI_BDC_DEVICE_H
#define DEVCOMM_BIDI_BDC_DEVICE_H

#include "base/rows.h"
#include "devcomm/bidi/bdc_library.h"

// Statuses of the library. All negative ones are failures; those named here are the ones that the project's
// stand-in returns.
enum BdcStatus : int32_t {
    kBdcNotSupported = -3, // by the stand-in
    kBdcBadArgument = -2,  // a null argument, an empty address, an unknown selector
    kBdcNoAnswer = -1,     // unreachable or unresponsive; the last error has the reason
    kBdcDone = 0,
    kBdcNothing = 1, // the device answers but has no items
};

// Whether a call that has no items to return has succeeded: the version, and the count of a list.
constexpr bool BdcSucceeded(int32_t status) {
    return status >= 0;
}

// Whether a call has filled the caller's buffer.
constexpr bool BdcHasFilled(int32_t status) {
    return BdcSucceeded(status) && status != kBdcNothing;
}

// Selects the input trays with the paper in them.
constexpr uint32_t kBdcTraySelector = 2;

#pragma pack(push, 1)

struct BdcDeviceRecord {
    uint32_t flags[2]; // 1 each
    char agent[64];
    uint32_t communication; // 0, then the value of the communication information
    uint8_t zero[256];
    char secondText[64]; // always empty
    char community[32];
};
static_assert(sizeof(BdcDeviceRecord) == 428 && offsetof(BdcDeviceRecord, agent) == 8
              && offsetof(BdcDeviceRecord, communication) == 72
              && offsetof(BdcDeviceRecord, secondText) == 332 && offsetof(BdcDeviceRecord, community) == 396);

// Records that the library fills. What this module does not read has no name.

struct BdcLibVersion {
    uint32_t numbers[4];
};
static_assert(sizeof(BdcLibVersion) == 16);

struct BdcCommInfo {
    uint8_t notRead1[72];
    uint32_t communication;
    uint8_t notRead2[260];
};
static_assert(sizeof(BdcCommInfo) == 336 && offsetof(BdcCommInfo, communication) == 72);

struct BdcNameInfo {
    uint8_t notRead[4];
    char longName[256]; // both may fill their fields without a terminator
    char shortName[64];
};
static_assert(sizeof(BdcNameInfo) == 324 && offsetof(BdcNameInfo, longName) == 4
              && offsetof(BdcNameInfo, shortName) == 260);

struct BdcFirmwareItem {
    uint8_t notRead[132];
};
static_assert(sizeof(BdcFirmwareItem) == 132);

struct BdcMemoryItem {
    uint8_t notRead[8];
    uint32_t kind;
};
static_assert(sizeof(BdcMemoryItem) == 12 && offsetof(BdcMemoryItem, kind) == 8);

struct BdcOptionItem {
    uint8_t notRead[4];
    uint32_t type;
    char model[64];
};
static_assert(sizeof(BdcOptionItem) == 72 && offsetof(BdcOptionItem, type) == 4
              && offsetof(BdcOptionItem, model) == 8);

struct BdcInputTrayItem {
    uint8_t notRead1[4];
    int32_t tray;
    uint8_t notRead2[4];
    uint16_t mediaSize;
    uint8_t notRead3[2];
    int32_t mediaType;
    uint16_t level;
    uint8_t notRead4[66];
    int32_t orientation;
    int32_t weight;
    int32_t color;
    int32_t hole;
    int32_t secondSide;
};
static_assert(sizeof(BdcInputTrayItem) == 108 && offsetof(BdcInputTrayItem, tray) == 4
              && offsetof(BdcInputTrayItem, mediaSize) == 12 && offsetof(BdcInputTrayItem, mediaType) == 16
              && offsetof(BdcInputTrayItem, level) == 20 && offsetof(BdcInputTrayItem, orientation) == 88
              && offsetof(BdcInputTrayItem, weight) == 92 && offsetof(BdcInputTrayItem, color) == 96
              && offsetof(BdcInputTrayItem, hole) == 100 && offsetof(BdcInputTrayItem, secondSide) == 104);

struct BdcOutputTrayItem {
    uint8_t notRead[144];
};
static_assert(sizeof(BdcOutputTrayItem) == 144);

struct BdcMediaPathInfo {
    uint8_t notRead[4];
    uint32_t path;
};
static_assert(sizeof(BdcMediaPathInfo) == 8 && offsetof(BdcMediaPathInfo, path) == 4);

struct BdcFinisherItem {
    uint8_t notRead[136];
    uint32_t flags;
};
static_assert(sizeof(BdcFinisherItem) == 140 && offsetof(BdcFinisherItem, flags) == 136);

#pragma pack(pop)

// Items in a block of their own; none when the library has not returned them.
struct BdcList {
    void* items;
    uint32_t count;
};

// The items of a list by type: BdcItemsOf<BdcOptionItem>(context.options).
template <typename Item>
Rows<Item> BdcItemsOf(const BdcList& list) {
    return {static_cast<const Item*>(list.items), list.count};
}

// Model names that count as this model.
template <size_t kLength>
struct BdcNameList {
    uint32_t count;
    char names[10][kLength];
};

struct BdcDeviceContext {
    BdcFunctionTable functions;
    BdcNameList<256> longNames;
    BdcNameList<64> shortNames;
    uint32_t firstState; // goes into each call
    uint32_t flags[2];
    const char* agent; // the texts as passed
    const char* secondText;
    const char* community;
    BdcDeviceRecord device;
    BdcLibVersion version;
    BdcCommInfo communication;
    BdcNameInfo name;
    BdcList firmware;
    BdcList memory;
    BdcList options;
    BdcList inputTrays;
    BdcList outputTrays;
    BdcList mediaPath; // one item
    BdcList finishers;
    uint32_t lastState; // from the last successful call
};

// A context for the agent, with the library loaded; null without memory or the library. BdcCloseDevice frees
// both, and all lists; it accepts null.
BdcDeviceContext* BdcOpenDevice(const char* agent);
void BdcCloseDevice(BdcDeviceContext* context);

// One query each. False when it failed; what the library has written is then discarded.
bool BdcAskVersion(BdcDeviceContext& context);
bool BdcAskCommunication(BdcDeviceContext& context);
bool BdcAskName(BdcDeviceContext& context);

// Queries everything. What fails stays empty.
void BdcFillDevice(BdcDeviceContext& context);

// Whether both model names are exactly this model's.
bool BdcIsModel(const BdcDeviceContext& context);

#endif

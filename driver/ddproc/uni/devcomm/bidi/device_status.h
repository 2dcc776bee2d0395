// The exports that ask a device through the driver family's bidirectional library: whether it can be used,
// whether a device answers, its options, its input trays. Each loads the library and frees it before it
// returns; nothing is kept between calls or shared by them. An agent is a dotted IPv4 address or a host name
// of at most 63 octets.
#ifndef DEVCOMM_BIDI_DEVICE_STATUS_H
#define DEVCOMM_BIDI_DEVICE_STATUS_H

#include "devcomm/queries/query_tables.h"

#include <windows.h>

#pragma pack(push, 1)
// The caller's question and the module's answer about one input tray.
struct InputTrayStatusItem {
    QueryKey tray; // such as "InTray1"
    QueryKey mediaSize;
    QueryKey orientation;
    QueryKey mediaType;
    QueryKey weight;
    QueryKey color;
    QueryKey hole;
    int32_t level; // as the device tells it, 0 to 65535
};
#pragma pack(pop)
static_assert(sizeof(InputTrayStatusItem) == 228 && offsetof(InputTrayStatusItem, mediaSize) == 32
              && offsetof(InputTrayStatusItem, orientation) == 64
              && offsetof(InputTrayStatusItem, mediaType) == 96
              && offsetof(InputTrayStatusItem, weight) == 128 && offsetof(InputTrayStatusItem, color) == 160
              && offsetof(InputTrayStatusItem, hole) == 192 && offsetof(InputTrayStatusItem, level) == 224);

extern "C" {

// Whether the library, with all its entry points, and the system's libraries under it can be loaded.
BOOL WINAPI DDProc_IsEnableBdcLib();

// Whether the device answers through the library; `modelAnswer`, which may be null, gets 1 for a device of
// just this model, else 0.
BOOL WINAPI DDProc_IsCommunicateDevice(const char* agent, int32_t* modelAnswer);

// Answers each item by the key of the installed option's item, empty when the option is none that the library
// tells of. FALSE, and the items untouched: a null argument (last error 87), no library, no memory, or a
// device that is not this model.
BOOL WINAPI DDProc_OptionRequest(const char* agent, DWORD count, OptionRequestItem* items);

// Answers each item by the keys of what lies in the tray, empty where the driver has no word for it, and its
// level. A tray that is none of the device's, or not reported, gets the keys of the unknown and level 0.
// FALSE as for the options.
BOOL WINAPI DDProc_InputTrayStatus(const char* agent, DWORD count, InputTrayStatusItem* items);
}

#endif

// TELMAR_B.DLL, a stand-in for the driver family's bidirectional library: asks networked devices by SNMP and
// answers in the records of devcomm/bidi/bdc_device.h. What those records do not name stays 0, but for the
// numbers and texts that bdclib/device_reader.cpp puts there.
//
// Every function returns a status. A device is asked anew by each call; nothing is kept in between. `state`
// is accepted and left as it is. Buffers are the caller's: one item, or as many as `*count` says, and of a
// call that does not return kBdcDone nothing is to be used.
#ifndef BDCLIB_EXPORTS_H
#define BDCLIB_EXPORTS_H

#include "devcomm/bidi/bdc_device.h"

constexpr int32_t kBdcDone = 0;
// kBdcNothing: the device answers, but has none of it
constexpr int32_t kBdcNoAnswer = -1;     // it can't be reached or has fallen silent: the last error tells why
constexpr int32_t kBdcBadArgument = -2;  // a null argument, an empty address, an unknown selector
constexpr int32_t kBdcNotSupported = -3; // by this stand-in

extern "C" {

// The project's version: major, minor, patch, 0.
int32_t WINAPI BdcGetLibVersion(uint32_t* state, BdcLibVersion* version);

// Whether there is a device at the address. The communication field is the number of the printer among the
// host's devices (hrDeviceIndex), 1 when none is listed as a printer: the Printer MIB's tables are indexed by
// it, and the other functions take it from the device record (0: 1).
int32_t WINAPI BdcGetDevCommInfo(const char* agent, uint32_t* state, BdcCommInfo* info);

// Both names are the device's model name: its own word for it, or else the description of the printer among
// the host's devices.
int32_t WINAPI BdcGetDevName(const BdcDeviceRecord* device, uint32_t* state, BdcNameInfo* info);

// Path 1 with a duplex unit, else 0.
int32_t WINAPI BdcGetDevMediaPathInfo(const BdcDeviceRecord* device, uint32_t* state, BdcMediaPathInfo* info);

// Lists. Without items, `*count` becomes the number of items that there are; with them, at most `*count` are
// filled and it becomes the number of those.
int32_t WINAPI BdcGetDevFirmwareVersion(const BdcDeviceRecord* device, uint32_t* count, uint32_t* state,
                                        BdcFirmwareItem* items);
int32_t WINAPI BdcGetDevMemoryCapacity(const BdcDeviceRecord* device, uint32_t* count, uint32_t* state,
                                       BdcMemoryItem* items);
int32_t WINAPI BdcGetDevOptionInfo(const BdcDeviceRecord* device, uint32_t* count, uint32_t* state,
                                   BdcOptionItem* items);
int32_t WINAPI BdcGetDevOutputTrayInfo(const BdcDeviceRecord* device, uint32_t* count, uint32_t* state,
                                       BdcOutputTrayItem* items);
int32_t WINAPI BdcGetDevFinisherInfo(const BdcDeviceRecord* device, uint32_t* count, uint32_t* state,
                                     BdcFinisherItem* items);

// The selector must be 2. A level that is no number of sheets is the Printer MIB's (-1 no limit, -2 unknown,
// -3 some) in 16 bits: 65535, 65534, 65533; levels beyond 32767 are cut to that.
int32_t WINAPI BdcGetDevInputTrayInfoEx(const BdcDeviceRecord* device, uint32_t* count, uint32_t selector,
                                        uint32_t* state, BdcInputTrayItem* items);

// Exported under the names of all other functions (telmar_b.def): kBdcNotSupported, whatever the arguments.
int32_t WINAPI BdcNotOffered();
}

#endif

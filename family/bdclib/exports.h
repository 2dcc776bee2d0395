// TELMAR_B.DLL, a stand-in for the driver family's bidirectional library: queries networked devices by SNMP
// and fills the records of devcomm/bidi/bdc_device.h. Bytes without a name there are 0, except numbers and
// texts that bdclib/device_reader.cpp sets.
//
// Every function returns a BdcStatus. Each call queries the device; nothing is kept between calls. `state` is
// accepted and not changed. Buffers are the caller's: one item, or `*count` items. Their contents are valid
// only for kBdcDone.
#ifndef BDCLIB_EXPORTS_H
#define BDCLIB_EXPORTS_H

#include "devcomm/bidi/bdc_device.h"

extern "C" {

// The project's version: major, minor, patch, 0.
int32_t WINAPI BdcGetLibVersion(uint32_t* state, BdcLibVersion* version);

// Whether there is a device at the address. The communication field is the number of the printer among the
// host's devices (hrDeviceIndex), 1 when none is listed as a printer: the Printer MIB's tables are indexed by
// it, and the other functions take it from the device record (0: 1).
int32_t WINAPI BdcGetDevCommInfo(const char* agent, uint32_t* state, BdcCommInfo* info);

// Both names are the model name of the device, or the description of the printer among the host's devices.
int32_t WINAPI BdcGetDevName(const BdcDeviceRecord* device, uint32_t* state, BdcNameInfo* info);

// Path 1 with a duplex unit, else 0.
int32_t WINAPI BdcGetDevMediaPathInfo(const BdcDeviceRecord* device, uint32_t* state, BdcMediaPathInfo* info);

// Lists. With null items, `*count` is set to the number of items. Otherwise at most `*count` items are
// filled, and it is set to their number.
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

// The selector must be 2. A level that is not a number of sheets is that of the Printer MIB (-1 no limit, -2
// unknown, -3 some) in 16 bits: 65535, 65534, 65533; levels above 32767 are limited to that.
int32_t WINAPI BdcGetDevInputTrayInfoEx(const BdcDeviceRecord* device, uint32_t* count, uint32_t selector,
                                        uint32_t* state, BdcInputTrayItem* items);

// Exported under the names of all other functions (telmar_b.def): kBdcNotSupported, whatever the arguments.
int32_t WINAPI BdcNotOffered();
}

#endif

// Reads a device by SNMP: a session with the device of a record, and the lists of the library as tables of
// the device's objects.
#ifndef BDCLIB_DEVICE_READER_H
#define BDCLIB_DEVICE_READER_H

#include "base/text.h"
#include "devcomm/bidi/bdc_device.h"
#include "devcomm/queries/object_reader.h"

// The text of a record's field, terminated; the field may lack its terminator.
template <size_t kLength>
struct TerminatedText {
    explicit TerminatedText(const char (&field)[kLength]) { CopyText(text, field); }
    char text[kLength + 1];
};

// A session with the device, with the community of its record.
struct DeviceSession {
    explicit DeviceSession(const BdcDeviceRecord& device);

    const uint32_t printer; // number of the printer among the host's devices
    const TerminatedText<sizeof(BdcDeviceRecord::community)> community;
    const AgentSession connection;
};

// A row of the device's tables. `failed` (a request had no answer) is sticky: read all objects, then test it
// once.
struct DeviceRow {
    SnmpSession session;
    uint32_t number;
    ObjectSuffix ofDevice;  // .NUMBER
    ObjectSuffix ofPrinter; // .PRINTER.NUMBER, in the Printer MIB
    bool failed;
};

struct DeviceColumn {
    const char* oid;
    ObjectSuffix DeviceRow::*suffix;
};

// How a list of the library is stored in the device's tables.
struct DeviceList {
    DeviceColumn presence; // a number that every row has
    uint32_t maxRows;      // no more are requested
    bool hasGaps;          // otherwise the first missing row ends the list
    size_t itemSize;
    void (*read)(DeviceRow& row, void* item); // into an item that is all 0
};
extern const DeviceList kFirmwareList;
extern const DeviceList kMemoryList;
extern const DeviceList kOptionList;
extern const DeviceList kInputTrayList;
extern const DeviceList kOutputTrayList;
extern const DeviceList kFinisherList;

// Fills at most `capacity` items and counts them; without items counts all. False when a request failed.
bool ReadList(const DeviceSession& session, const DeviceList& list, void* items, uint32_t capacity,
              uint32_t& count);

// The following return false when a request failed.

// The number of the printer among the host's devices; 1 when no printer is listed.
bool ReadPrinterNumber(SnmpSession session, uint32_t& number);

// Empty when the device has none.
bool ReadModelName(const DeviceSession& session, ObjectText& name);

// The number of media paths, and whether one prints both sides.
bool ReadMediaPaths(const DeviceSession& session, uint32_t& count, bool& hasDuplex);

#endif

// Records a device: walks through its objects and writes them to an .snmprec file.
#ifndef SIMPRINTER_RECORD_H
#define SIMPRINTER_RECORD_H

#include "simprinter/snmp/message.h"

struct RecordOptions {
    std::string address; // or a host name
    uint16_t port = 161;
    std::string community = "tovask";
    const Version* version = nullptr; // null: SNMPv2c if it is answered, else SNMPv1
    double timeout = 2;               // seconds: the longest wait for one answer
    std::string file;
};

// Prints what happens and what could not be read. The file gets its name when the walk is complete, except
// for objects that the device does not give; before it has ".part" at the end, and keeps it when the walk is
// stopped or ends early. Returns whether the walk is complete. Throws std::runtime_error when the device does
// not answer or has no object, or the file can't be written.
bool RecordDevice(const RecordOptions& options);

// What to say when another recorder writes the file.
std::string InUseText(const std::string& part);

#endif

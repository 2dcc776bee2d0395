// Recorded walks of real devices: the text that net-snmp's tools print, and .snmprec files (OID|TAG|VALUE
// lines).
#ifndef SIMPRINTER_RECORDING_H
#define SIMPRINTER_RECORDING_H

#include "common/findings.h"
#include "simprinter/snmp/snmp_values.h"

constexpr size_t kMaxRecordingBytes = size_t{8} << 20; // of a file

// Detects encoding and format. A line that can't be read and a second value of an object are warnings and
// left out. It is an error when no object is left.
ObjectMap ReadRecording(const std::string& text, Findings& findings);

#endif

// Reads a device's description from YAML; docs/simulating_a_printer.md describes it.
#ifndef SIMPRINTER_DEVICE_READER_H
#define SIMPRINTER_DEVICE_READER_H

#include "common/findings.h"
#include "simprinter/device.h"

// What the description leaves out is as in the plain device. With a finding the device is not to be used.
Device ReadDevice(const std::string& text, Findings& findings);

#endif

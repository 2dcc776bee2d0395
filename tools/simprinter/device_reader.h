// Reads a device description from YAML; docs/simulating_a_printer.md has the format.
#ifndef SIMPRINTER_DEVICE_READER_H
#define SIMPRINTER_DEVICE_READER_H

#include "common/findings.h"
#include "simprinter/device.h"

// Omitted fields have the plain device's values. With any finding the device must not be used.
Device ReadDevice(const std::string& text, Findings& findings);

#endif

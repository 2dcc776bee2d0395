// Reads a device description from YAML, and sets its fields later; docs/simulating_a_printer.md has the
// format.
#ifndef SIMPRINTER_DEVICE_READER_H
#define SIMPRINTER_DEVICE_READER_H

#include "common/findings.h"
#include "simprinter/device/device.h"

// Omitted fields have the plain device's values. With any finding the device must not be used.
Device ReadDevice(const std::string& text, Findings& findings);

// Sets a field as the description gives it: "TRAY1 level 0", "cyan level 12", "cover open". Returns what is
// wrong and what is possible, the device being unchanged; nothing when it is set. Words are separated by one
// space; what follows the field is the value.
std::string SetInDevice(const std::string& words, Device& device);

#endif

// The objects that a device serves.
#ifndef SIMPRINTER_OBJECTS_H
#define SIMPRINTER_OBJECTS_H

#include "simprinter/device.h"
#include "simprinter/snmp_values.h"

ObjectMap ObjectsOf(const Device& device);

// Brings the times since start up to date. Hundredths of a second.
void SetUpTime(ObjectMap& objects, int64_t ticks);

// The parts that ObjectsOf puts together, a file each.
void AddHostObjects(ObjectMap& to, const Device& device);    // system group, Host Resources
void AddPrinterObjects(ObjectMap& to, const Device& device); // Printer MIB
void AddPrivateObjects(ObjectMap& to, const Device& device); // the maker's subtree

#endif

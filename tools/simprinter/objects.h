// The SNMP objects of a device.
#ifndef SIMPRINTER_OBJECTS_H
#define SIMPRINTER_OBJECTS_H

#include "simprinter/device.h"
#include "simprinter/snmp_values.h"

ObjectMap ObjectsOf(const Device& device);

// Updates the objects with the time since start, in hundredths of a second.
void SetUpTime(ObjectMap& objects, int64_t ticks);

// The parts of ObjectsOf, one file each.
void AddHostObjects(ObjectMap& to, const Device& device);    // system group, Host Resources
void AddPrinterObjects(ObjectMap& to, const Device& device); // Printer MIB
void AddPrivateObjects(ObjectMap& to, const Device& device); // the maker's subtree

#endif

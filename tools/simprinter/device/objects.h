// The SNMP objects of a device.
#ifndef SIMPRINTER_OBJECTS_H
#define SIMPRINTER_OBJECTS_H

#include "simprinter/device/alerts.h"
#include "simprinter/snmp/snmp_values.h"

ObjectMap ObjectsOf(const Device& device, const AlertTable& alerts);

// With the alerts of a device that has just started.
ObjectMap ObjectsOf(const Device& device);

// Updates the objects with the time since start, in hundredths of a second.
void SetUpTime(ObjectMap& objects, int64_t ticks);

// The parts of ObjectsOf, one file each.
void AddHostObjects(ObjectMap& to, const Device& device,
                    const DeviceStatus& status); // system, Host Resources
void AddPrinterObjects(ObjectMap& to, const Device& device, const AlertTable& alerts,
                       const DeviceStatus& status);          // Printer MIB
void AddPrivateObjects(ObjectMap& to, const Device& device); // the maker's subtree

#endif

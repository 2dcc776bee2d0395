// Builds all objects of a device.
#include "simprinter/device/objects.h"

ObjectMap ObjectsOf(const Device& device, const AlertTable& alerts) {
    ObjectMap objects;
    const DeviceStatus status = StatusOf(alerts, device);
    AddHostObjects(objects, device, status);
    AddPrinterObjects(objects, device, alerts, status);
    AddPrivateObjects(objects, device);
    return objects;
}

ObjectMap ObjectsOf(const Device& device) {
    AlertTable alerts;
    UpdateAlerts(alerts, device, 0);
    return ObjectsOf(device, alerts);
}

void SetUpTime(ObjectMap& objects, int64_t ticks) {
    const Oid kTimes[] = {{1, 3, 6, 1, 2, 1, 1, 3, 0}, {1, 3, 6, 1, 2, 1, 25, 1, 1, 0}};
    for (const Oid& name : kTimes)
        objects[name] = NumberValue(ticks & UINT32_MAX, kTimeTicks);
}

// Builds all objects of a device.
#include "simprinter/objects.h"

ObjectMap ObjectsOf(const Device& device) {
    ObjectMap objects;
    AddHostObjects(objects, device);
    AddPrinterObjects(objects, device);
    AddPrivateObjects(objects, device);
    return objects;
}

void SetUpTime(ObjectMap& objects, int64_t ticks) {
    const Oid kTimes[] = {{1, 3, 6, 1, 2, 1, 1, 3, 0}, {1, 3, 6, 1, 2, 1, 25, 1, 1, 0}};
    for (const Oid& name : kTimes)
        objects[name] = NumberValue(ticks & UINT32_MAX, kTimeTicks);
}

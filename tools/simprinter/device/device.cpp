// Default values of a device and its parts.
#include "simprinter/device/device.h"

Tray UsualTray(const TrayKind& kind) {
    Tray tray;
    tray.kind = &kind;
    tray.name = kind.text;
    tray.capacity = kind.capacity;
    tray.level = kind.capacity;
    return tray;
}

Supply UsualSupply(const SupplyKind& kind) {
    return {&kind, kind.text, kind.capacity, kind.supplyClass == kReceptacle ? kLevelSome : kind.capacity};
}

Device PlainDevice() {
    Device device;
    for (const TrayKind* kind : {&kTrayKinds[0], &kTrayKinds[1], &kTrayKinds[6]})
        device.trays.push_back(UsualTray(*kind));
    for (const SupplyKind& kind : kSupplyKinds) {
        if (kind.type != kStaples) // which only a finisher needs
            device.supplies.push_back(UsualSupply(kind));
    }
    return device;
}

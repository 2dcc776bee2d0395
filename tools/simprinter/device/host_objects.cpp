// The printer's system group (RFC 1213) and Host Resources MIB (RFC 2790).
#include "simprinter/device/object_table.h"
#include "simprinter/device/objects.h"

#include <algorithm>

namespace {

constexpr int kBytesInMb = 1024 * 1024;

// --- .1.3.6.1.2.1.1 system. sysUpTime is updated for each request.
constexpr Column<Device> kSystem[] = {
    {1, [](const Device& d) { return TextValue(d.model + ", serial number " + d.serial); }}, // sysDescr
    {2, [](const Device&) { return OidValueFrom("1.3.6.1.4.1.47913.1.1.1.1"); }},            // sysObjectID
    {3, [](const Device&) { return NumberValue(0, kTimeTicks); }},                           // sysUpTime
    {4, Text<&Device::contact>},                                                             // sysContact
    {5, Text<&Device::name>},                                                                // sysName
    {6, Text<&Device::location>},                                                            // sysLocation
    {7, Fixed<72>}, // sysServices: transport and application layers
};

// --- .1.3.6.1.2.1.25.2.3.1 hrStorageTable. Sizes are counted in MB.
struct Storage {
    int index;
    const char* type;
    const char* text;
    int size, used;
};
constexpr Column<Storage> kStorage[] = {
    {1, Number<&Storage::index>},
    {2, [](const Storage& s) { return OidValueFrom(s.type); }},
    {3, Text<&Storage::text>},
    {4, Fixed<kBytesInMb>}, // hrStorageAllocationUnits
    {5, Number<&Storage::size>},
    {6, Number<&Storage::used>},
    {7, [](const Storage&) { return NumberValue(0, kCounter); }}, // hrStorageAllocationFailures
};

std::vector<ConceptualRow<Storage>> Storages(const Device& device) {
    std::vector<ConceptualRow<Storage>> rows = {
        {{1}, {1, "1.3.6.1.2.1.25.2.1.2", "Memory", device.memory, device.memory / 4}}};
    if (device.hardDisk)
        rows.push_back(
            {{2}, {2, "1.3.6.1.2.1.25.2.1.4", "Hard disk", *device.hardDisk, *device.hardDisk / 10}});
    return rows;
}

// --- .1.3.6.1.2.1.25.3.2.1 hrDeviceTable
struct HostDevice {
    int index;
    const char* type;
    std::string text;
    int status; // hrDeviceStatus
};
constexpr Column<HostDevice> kDevice[] = {
    {1, Number<&HostDevice::index>},
    {2, [](const HostDevice& h) { return OidValueFrom(h.type); }},
    {3, Text<&HostDevice::text>},
    {4, [](const HostDevice&) { return OidValueFrom("0.0"); }}, // hrDeviceID
    {5, Number<&HostDevice::status>},
    {6, [](const HostDevice&) { return NumberValue(0, kCounter); }},
};

std::vector<ConceptualRow<HostDevice>> HostDevices(const Device& device, const DeviceStatus& status) {
    constexpr int kRunning = 2;
    std::vector<ConceptualRow<HostDevice>> rows = {
        {{1}, {1, "1.3.6.1.2.1.25.3.1.5", device.model, status.deviceStatus}}};
    if (device.hardDisk)
        rows.push_back({{2}, {2, "1.3.6.1.2.1.25.3.1.6", "Hard disk", kRunning}});
    return rows;
}

// --- .1.3.6.1.2.1.25.3.5.1 hrPrinterTable
constexpr Column<DeviceStatus> kPrinter[] = {
    {1, Number<&DeviceStatus::printerStatus>},
    {2, Text<&DeviceStatus::detectedErrors>},
};

} // namespace

void AddHostObjects(ObjectMap& to, const Device& device, const DeviceStatus& status) {
    AddScalars(to, "1.3.6.1.2.1.1", kSystem, device);
    AddTable(to, "1.3.6.1.2.1.25.2.3.1", kStorage, Storages(device));
    AddTable(to, "1.3.6.1.2.1.25.3.2.1", kDevice, HostDevices(device, status));
    AddTable(to, "1.3.6.1.2.1.25.3.5.1", kPrinter, {{{1}, status}});
    to[OidFromText("1.3.6.1.2.1.25.1.1.0").value()] = NumberValue(0, kTimeTicks); // hrSystemUptime
    to[OidFromText("1.3.6.1.2.1.25.2.2.0").value()] =
        NumberValue(std::min(int64_t{device.memory} * 1024, int64_t{INT32_MAX})); // hrMemorySize, KB
}

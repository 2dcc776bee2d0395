// Builds and releases the device table: the order of its parts, and the parts that are no lists or named
// values: ranges, machine information, country.
#include "paramdata/device_table.h"

#include "paramdata/feature_lists.h"
#include "paramdata/named_values.h"
#include "paramdata/prm_readers.h"
#include "paramdata/tray_rows.h"

#include <windows.h>

DeviceTable* deviceTable;

namespace {

struct Range {
    uint16_t a;
    uint16_t b;
};

// Ranges A and B of an entry's numeric block; zeros when the file lacks it.
Range ReadRange(const PrmFile& file, const char* entry) {
    uint32_t values[3] = {};
    PrmReadEntryRange(file, entry, values);
    return {static_cast<uint16_t>(values[0]), static_cast<uint16_t>(values[1])};
}

void BuildCopies(const PrmFile& file, DeviceTable& table) {
    const Range copies = ReadRange(file, "Copies");
    table.copiesA = copies.a;
    table.copiesB = copies.b;
}

void BuildUserPaperRanges(const PrmFile& file, DeviceTable& table) {
    const Range width = ReadRange(file, "UserPaper_Width");
    table.paperWidthA = width.a;
    table.paperWidthB = width.b;
    const Range length = ReadRange(file, "UserPaper_Length");
    table.paperLengthA = length.a;
    table.paperLengthB = length.b;
}

// Fills one machine from the file; without memory it has no details.
void FillMachine(PrmFile& file, const PrmMachine& from, MachineInfoRecord& to) {
    CopyText(to.name, from.name);
    const uint64_t count = uint64_t{from.detailCount} + 1;
    auto* details =
        static_cast<MachineDetailRecord*>(PrmAllocateRecords(file, count, sizeof(MachineDetailRecord)));
    if (details == nullptr)
        return;
    to.detailCount = static_cast<uint32_t>(count);
    to.details = details;
    for (uint32_t i = 0; i < from.detailCount; ++i) {
        PrmMachineDetail detail = {};
        PrmReadRecord(file, from.firstDetail + uint64_t{sizeof(detail)} * i, detail);
        CopyText(details[i].texts[0], detail.texts[0]);
        CopyText(details[i].texts[1], detail.texts[1]);
    }
}

void BuildMachineInfo(PrmFile& file, DeviceTable& table) {
    PrmItems items;
    if (!PrmFindItems(file, "MachineInfo", items))
        return;
    auto* machines = static_cast<MachineInfoRecord*>(
        PrmAllocateRecords(file, uint64_t{items.count} + 1, sizeof(MachineInfoRecord)));
    if (machines == nullptr)
        return;
    table.machineInfoCount = items.count + 1;
    table.machineInfo = machines;
    for (uint32_t i = 0; i < items.count; ++i) {
        PrmMachine machine = {};
        PrmReadRecord(file, PrmItemOffset(file, items, i), machine);
        FillMachine(file, machine, machines[i]);
    }
}

void FreeMachineInfo(const DeviceTable& table) {
    if (table.machineInfo == nullptr)
        return;
    for (uint32_t i = 0; i < table.machineInfoCount; ++i)
        if (table.machineInfo[i].details != nullptr)
            GlobalFree(table.machineInfo[i].details);
    GlobalFree(table.machineInfo);
}

void BuildCountry(const PrmFile& file, DeviceTable& table) {
    PrmItems items;
    if (!PrmFindEntryInfo(file, "Country", items))
        return;
    PrmCountry country = {};
    PrmReadRecord(file, PrmItemOffset(file, items, 0), country);
    table.country = country.value;
}

} // namespace

DeviceTable* BuildDeviceTable(PrmFile& file) {
    auto* table = static_cast<DeviceTable*>(GlobalAlloc(GPTR, sizeof(DeviceTable)));
    if (table == nullptr)
        return nullptr;
    BuildFeatureSwitches(file, *table);
    BuildCopies(file, *table);
    BuildUserPaperRanges(file, *table);
    BuildDeviceFacts(file, *table);
    BuildMachineInfo(file, *table);
    BuildFigureType(file, *table);
    BuildLists(file, *table, ListStage::Paper);
    UpdateInputSlots(file);
    BuildTrayRows(file, *table);
    BuildLists(file, *table, ListStage::Output);
    BuildCountry(file, *table);
    BuildLists(file, *table, ListStage::Finishing);
    BuildLists(file, *table, ListStage::Location);
    for (size_t i = 0; i < kTraySelectionCount; ++i)
        BuildTraySelectionList(file, table, kTraySelectionFeatures[i], 1u << i);
    BuildLists(file, *table, ListStage::Page);
    return table;
}

void FreeDeviceTable(DeviceTable* table) {
    if (table == nullptr)
        return;
    FreeLists(*table);
    FreeMachineInfo(*table);
    GlobalFree(table);
}

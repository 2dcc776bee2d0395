// Fuzz target: any bytes at all as a parameter data file. Opens them (a file in memory), builds the device
// table, holds what came out against what its readers rely on, frees it and looks for leftovers. Run by
// libFuzzer and, over a fixed set of inputs, by the regression test.
#include "paramdata/device_table.h"
#include "paramdata/prm_file.h"
#include "paramdata/text.h"
#include "platform_control.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace {

void Require(bool condition, const char* what) {
    if (condition)
        return;
    fprintf(stderr, "%s\n", what);
    abort();
}

template <typename Text>
void RequireTerminated(const Text& text) {
    Require(TextLength(text) < std::extent_v<Text>, "a text fills its field without terminator");
}

// Walks a list to its end, as every reader does; the sanitizer stops a walk that leaves the list's block.
template <typename Record, typename... Texts>
void CheckList(const Record* record, Texts Record::*... texts) {
    if (record == nullptr)
        return;
    for (; record->head.key[0] != 0; ++record) {
        RequireTerminated(record->head.key);
        (RequireTerminated(record->*texts), ...);
        Require(record->head.size == sizeof(Record), "a record carries another record's size");
        Require(record->head.icon == kItemIcon && record->head.iconFlag == 0, "a record has another icon");
    }
}

void CheckMachines(const DeviceTable& table) {
    Require((table.machineInfo == nullptr) == (table.machineInfoCount == 0), "a count without machines");
    for (uint32_t i = 0; i < table.machineInfoCount; ++i) {
        const MachineInfoRecord machine = table.machineInfo[i];
        RequireTerminated(machine.name);
        Require((machine.details == nullptr) == (machine.detailCount == 0), "a count without details");
        for (uint32_t j = 0; j < machine.detailCount; ++j)
            for (const auto& text : machine.details[j].texts)
                RequireTerminated(text);
    }
}

void CheckSwitches(const DeviceTable& table) {
    for (size_t i = 0; i < kFeatureSwitchCount; ++i)
        Require(table.switches[i] <= (kFeatureSwitches[i].enablingValue != nullptr ? 1 : kMostSwitchType),
                "a switch has a value that it can't have");
}

void CheckTable(const DeviceTable& table) {
    CheckSwitches(table);
    CheckMachines(table);
    CheckList(table.paperSizes, &PaperSizeRecord::display, &PaperSizeRecord::displayAgain,
              &PaperSizeRecord::secondDisplay, &PaperSizeRecord::secondDisplayAgain, &PaperSizeRecord::text,
              &PaperSizeRecord::shortName, &PaperSizeRecord::longText);
    CheckList(table.outputPaperSizes, &OutputPaperSizeRecord::display, &OutputPaperSizeRecord::displayAgain,
              &OutputPaperSizeRecord::secondDisplay, &OutputPaperSizeRecord::secondDisplayAgain);
    CheckList(table.inputTrays, &InputSlotRecord::display, &InputSlotRecord::text);
    CheckList(table.trayRows, &TrayRowRecord::display);
    CheckList(table.resolutions, &ResolutionRecord::display);
    CheckList(table.tabPaperSizes, &TabPaperRecord::display);
    CheckList(table.collates);
    for (const CollateRecord* collate = table.collates; collate != nullptr && collate->head.key[0] != 0;
         ++collate)
        for (const auto& text : collate->texts)
            RequireTerminated(text);
    for (const CompactItemRecord* list :
         {table.mediaTypes, table.mediaWeights, table.mediaColors, table.combinations, table.foldings,
          table.outputOrders, table.perPagePrintTypes, table.prePunchedMedia, table.perPageStaples})
        CheckList(list, &CompactItemRecord::display, &CompactItemRecord::text);
    for (const FinishingItemRecord* list : {table.holePunches, table.staples})
        CheckList(list, &FinishingItemRecord::display, &FinishingItemRecord::text);
    for (const TextItemRecord* list : {table.outputTrays, table.outputMethods, table.overlayLocations,
                                       table.profileLocations, table.interleaves, table.paperArrangements})
        CheckList(list, &TextItemRecord::display, &TextItemRecord::text);
    for (size_t i = 0; i < kTraySelectionCount; ++i)
        CheckList<ItemRecord>(table.traySelections[i], &ItemRecord::display);
}

// The compiled-in table, saved; puts it back and checks that only what the file may change has changed.
struct InputSlotsGuard {
    InputSlotsGuard() { memcpy(saved, inputSlots, sizeof(saved)); }
    ~InputSlotsGuard() {
        for (size_t i = 0; i < sizeof(saved) / sizeof(saved[0]); ++i) {
            RequireTerminated(inputSlots[i].text);
            inputSlots[i].bin = saved[i].bin;
            memcpy(inputSlots[i].text, saved[i].text, sizeof(saved[i].text));
        }
        Require(memcmp(saved, inputSlots, sizeof(saved)) == 0, "an input slot has another key");
        memcpy(inputSlots, saved, sizeof(saved));
    }
    InputSlotsGuard(const InputSlotsGuard&) = delete;
    InputSlotsGuard& operator=(const InputSlotsGuard&) = delete;

    TraySourceRecord saved[sizeof(inputSlots) / sizeof(inputSlots[0])];
};

// A file in memory that holds the bytes, and its path.
struct MemoryFile {
    MemoryFile(const uint8_t* bytes, size_t size) : descriptor(memfd_create("prm", MFD_CLOEXEC)) {
        Require(descriptor >= 0 && write(descriptor, bytes, size) == static_cast<ssize_t>(size),
                "no memory file");
        snprintf(path, sizeof(path), "/proc/self/fd/%d", descriptor);
    }
    ~MemoryFile() { close(descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int descriptor;
    char path[32];
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    constexpr size_t kMostPerByte = 20; // memory that a byte of the file may cost
    constexpr size_t kMostAnyway = 8192;

    platform::Reset();
    const InputSlotsGuard guard;
    const MemoryFile memory(bytes, size);
    PrmFile* file = PrmOpen(memory.path, 0);
    Require(file != nullptr, "a readable file was not opened");
    DeviceTable* table = BuildDeviceTable(*file);
    PrmClose(file);
    Require(table != nullptr, "no device table");
    CheckTable(*table);
    FreeDeviceTable(table);

    const platform::Counts counts = platform::Count();
    Require(counts.globalBlocks == 0 && counts.localBlocks == 0 && counts.files == 0,
            "something is left over");
    Require(counts.allocatedBytes <= kMostAnyway + kMostPerByte * size,
            "memory out of proportion to the file");
    return 0;
}

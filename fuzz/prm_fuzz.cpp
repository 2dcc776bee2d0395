// Fuzz target: any bytes at all as the parameter data file beside the module. Lets a process attach, holds
// what came out against what its readers rely on, lets the process detach and looks for leftovers. Run by
// libFuzzer and, over a fixed set of inputs, by the regression test.
#include "../tests/support/compiled_in.h"
#include "require.h"

#include "base/text.h"
#include "frame/entry.h"
#include "win32_control.h"

#include <cstring>
#include <filesystem>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

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
        Require(table.switches[i] <= (kFeatureSwitches[i].enablingValue != nullptr ? 1 : kMaxSwitchType),
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

void CheckMediaLists(const MediaTypeLists& lists) {
    for (const ItemRecord* list : lists.lists) {
        Require(list != nullptr, "a media type list is missing");
        CheckList(list, &ItemRecord::display);
    }
}

// The colour tables, as one row of records. Compiled in they are full, so those without a key are the ends.
void CheckColorTables(const CompiledInTables& kept) {
    constexpr ItemRecord kEnd = {};
    const auto* records = reinterpret_cast<const ItemRecord*>(&colorTables);
    const auto* compiledIn = reinterpret_cast<const ItemRecord*>(kept.colors.bytes);
    for (size_t i = 0; i < sizeof(colorTables) / sizeof(ItemRecord); ++i) {
        const ItemRecord& record = records[i];
        RequireTerminated(record.head.key);
        RequireTerminated(record.display);
        Require(compiledIn[i].head.key[0] != 0 || memcmp(&record, &kEnd, sizeof(kEnd)) == 0,
                "a colour table has no end record");
        Require(record.head.key[0] == 0
                    || (record.head.size == sizeof(ItemRecord) && record.head.icon == kItemIcon),
                "a colour item is incomplete");
    }
}

void CheckSettings() {
    RequireTerminated(defaultSettings.watermarkName);
    RequireTerminated(defaultSettings.watermarkText);
    RequireTerminated(defaultSettings.watermarkFont);
    for (const ProfileEntry* profile : {&defaultSettings.textRgbProfile, &defaultSettings.imageRgbProfile,
                                        &defaultSettings.graphicsRgbProfile})
        RequireTerminated(profile->qualifier);
    for (const TrayPaperDefault& tray : defaultSettings.trays)
        RequireTerminated(tray.key);
}

// The tables of which the file may change texts and numbers only: puts those back, and the rest must be as it
// was compiled in.
void CheckFixedParts(const CompiledInTables& kept) {
    for (TraySourceRecord& slot : inputSlots) {
        RequireTerminated(slot.text);
        const auto* original =
            reinterpret_cast<const TraySourceRecord*>(kept.slots.bytes) + (&slot - inputSlots);
        slot.bin = original->bin;
        memcpy(slot.text, original->text, sizeof(slot.text));
    }
    const auto checkTexts = [](auto& records, auto text) {
        for (auto& record : records) {
            RequireTerminated(record.*text);
            memset(record.*text, 0, sizeof(record.*text));
        }
    };
    checkTexts(propertyTexts, &ControlTextRecord::display);
    checkTexts(colorDialogTexts, &ControlTextRecord::display);
    checkTexts(trayDialogTexts, &ControlTextRecord::display);
    for (const MediaTypeColumn& column : mediaTypeColumns)
        RequireTerminated(column.title);
    Require(kept.slots.Unchanged() && kept.property.Unchanged() && kept.colorDialog.Unchanged()
                && kept.trayDialog.Unchanged(),
            "more than texts and numbers has changed");
}

// A folder for the module, made once: in it the parameter data file, which leads to a file in memory.
struct ModuleFolder {
    ModuleFolder() : descriptor(memfd_create("prm", MFD_CLOEXEC)) {
        std::string name = fs::temp_directory_path() / "module_XXXXXX";
        Require(descriptor >= 0 && mkdtemp(name.data()) != nullptr, "no folder");
        path = name;
        fs::create_symlink("/proc/self/fd/" + std::to_string(descriptor), path / "TELMAR_D.PRM");
        const std::string module = path / "TELMAR_D.DLL";
        modulePath.assign(module.begin(), module.end());
        modulePath.push_back(0);
    }
    ~ModuleFolder() {
        fs::remove_all(path);
        close(descriptor);
    }
    ModuleFolder(const ModuleFolder&) = delete;
    ModuleFolder& operator=(const ModuleFolder&) = delete;
    void Store(const uint8_t* bytes, size_t size) const {
        Require(ftruncate(descriptor, 0) == 0
                    && pwrite(descriptor, bytes, size, 0) == static_cast<ssize_t>(size),
                "the memory file can't be written");
    }

    int descriptor;
    fs::path path;
    std::vector<wchar_t> modulePath;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    // Per byte of the file: its image, 16 bytes of the device table's records, and the media type lists,
    // which take 144 bytes for records of 240.
    constexpr size_t kMaxPerByte = 1 + 16 + 10;
    constexpr size_t kMaxAnyway = 16384;

    static const ModuleFolder folder;
    folder.Store(octets, count);
    const CompiledInTables kept;
    win32::Reset();
    win32::SetModuleFileName(folder.modulePath.data());
    DllMain(nullptr, DLL_PROCESS_ATTACH, nullptr);
    Require(deviceTable != nullptr && mediaTypeLists != nullptr, "a readable file was not read");
    CheckTable(*deviceTable);
    CheckMediaLists(*mediaTypeLists);
    CheckColorTables(kept);
    CheckSettings();
    CheckFixedParts(kept);
    DllMain(nullptr, DLL_PROCESS_DETACH, nullptr);

    const win32::Counts counts = win32::Count();
    Require(counts.globalBlocks == 0 && counts.localBlocks == 0 && counts.files == 0,
            "something is left over");
    Require(counts.allocatedBytes <= kMaxAnyway + kMaxPerByte * count,
            "memory out of proportion to the file");
    return 0;
}

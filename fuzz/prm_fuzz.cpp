// Fuzz target: any bytes as the parameter data file. Attaches, checks what readers of the tables rely on,
// detaches and checks for leaks. Run by libFuzzer and, over a fixed set of inputs, by the regression test.
#include "../tests/support/compiled_in.h"
#include "require.h"

#include "base/keyed_list.h"
#include "frame/entry.h"
#include "win32_control.h"

#include <cstring>
#include <filesystem>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Texts end within their fields. Fields of other types have nothing to check.
template <typename Field>
void CheckField(const Field& field);

#define CHECK_FIELD(R, offset, type, name, dimensions) CheckField(record.name);
#define NO_GAP(R, from, to)
#define CHECK_TEXTS(R, TABLE)                                                                                          \
    void CheckTexts(const R& record) {                                                                                 \
        TABLE(R, CHECK_FIELD, NO_GAP)                                                                                  \
    }
CHECK_TEXTS(TelmarItemHead, TELMAR_ITEM_HEAD)
CHECK_TEXTS(TelmarItemRecord, TELMAR_ITEM_RECORD)
CHECK_TEXTS(TelmarTextItemRecord, TELMAR_TEXT_ITEM_RECORD)
CHECK_TEXTS(TelmarCompactItemRecord, TELMAR_COMPACT_ITEM_RECORD)
CHECK_TEXTS(TelmarFinishingItemRecord, TELMAR_FINISHING_ITEM_RECORD)
CHECK_TEXTS(TelmarInputSlotRecord, TELMAR_INPUT_SLOT_RECORD)
CHECK_TEXTS(TelmarTrayRowRecord, TELMAR_TRAY_ROW_RECORD)
CHECK_TEXTS(TelmarResolutionRecord, TELMAR_RESOLUTION_RECORD)
CHECK_TEXTS(TelmarTabPaperRecord, TELMAR_TAB_PAPER_RECORD)
CHECK_TEXTS(TelmarCollateRecord, TELMAR_COLLATE_RECORD)
CHECK_TEXTS(TelmarOutputPaperSizeRecord, TELMAR_OUTPUT_PAPER_SIZE_RECORD)
CHECK_TEXTS(TelmarPaperSizeRecord, TELMAR_PAPER_SIZE_RECORD)
CHECK_TEXTS(TelmarMachineDetailRecord, TELMAR_MACHINE_DETAIL_RECORD)

template <typename Field>
void CheckField(const Field& field) {
    using Element = std::remove_cv_t<std::remove_extent_t<Field>>;
    if constexpr (std::is_same_v<Element, char> || std::is_same_v<Element, wchar_t>)
        Require(TextLength(field) < std::extent_v<Field>, "a text fills its field without terminator");
    else if constexpr (std::is_array_v<Element>)
        for (const auto& element : field)
            CheckField(element);
    else if constexpr (std::is_same_v<Element, ItemHead>)
        CheckTexts(field);
}

// Walks a list to its end, as every reader does; the sanitizer ends a walk that leaves the list's block.
template <typename Record>
void CheckList(const Record* list) {
    for (const Record& record : Listed(list)) {
        CheckTexts(record);
        Require(record.head.size == sizeof(Record), "a record has the size of another record");
        Require(record.head.icon == kItemIcon && record.head.iconFlag == 0, "a record has another icon");
    }
}

void CheckMachines(const DeviceTable& table) {
    Require((table.machineInfo == nullptr) == (table.machineInfoCount == 0), "a count without machines");
    for (uint32_t i = 0; i < table.machineInfoCount; ++i) {
        const MachineInfoRecord machine = table.machineInfo[i];
        CheckField(machine.name);
        Require((machine.details == nullptr) == (machine.detailCount == 0), "a count without details");
        for (uint32_t j = 0; j < machine.detailCount; ++j)
            CheckTexts(machine.details[j]);
    }
}

void CheckSwitches(const DeviceTable& table) {
    for (size_t i = 0; i < kFeatureSwitchCount; ++i)
        Require(table.switches[i] <= (kFeatureSwitches[i].enablingValue != nullptr ? 1 : kMaxSwitchType),
                "a switch has a value that it can't have");
}

// A field of the device table: a list, an array of lists, or nothing to check. It may be unaligned.
template <typename Field>
void CheckLists(const void* at) {
    if constexpr (std::is_array_v<Field>) {
        using Element = std::remove_extent_t<Field>;
        for (size_t i = 0; i < std::extent_v<Field>; ++i)
            CheckLists<Element>(static_cast<const uint8_t*>(at) + i * sizeof(Element));
    } else if constexpr (std::is_pointer_v<Field> && !std::is_same_v<Field, MachineInfoRecord*>) {
        Field list;
        memcpy(&list, at, sizeof(list));
        CheckList<std::remove_pointer_t<Field>>(list);
    }
}

void CheckTable(const DeviceTable& table) {
    CheckSwitches(table);
    CheckMachines(table);
    const auto* start = reinterpret_cast<const uint8_t*>(&table);
#define CHECK_LIST(R, offset, type, name, dimensions) CheckLists<decltype(R::name)>(start + (offset));
    TELMAR_DEVICE_TABLE(TelmarDeviceTable, CHECK_LIST, NO_GAP)
}

void CheckMediaLists(const MediaTypeLists& lists) {
    for (const ItemRecord* list : lists.lists) {
        Require(list != nullptr, "a media type list is missing");
        CheckList(list);
    }
}

// The colour tables, as one row of records. Compiled in they are full, so those without a key are the ends.
void CheckColorTables(const CompiledInTables& kept) {
    constexpr ItemRecord kEnd = {};
    const auto* records = reinterpret_cast<const ItemRecord*>(&colorTables);
    const auto* compiledIn = reinterpret_cast<const ItemRecord*>(kept.colors.bytes);
    for (size_t i = 0; i < sizeof(colorTables) / sizeof(ItemRecord); ++i) {
        const ItemRecord& record = records[i];
        CheckField(record.head.key);
        CheckField(record.display);
        Require(compiledIn[i].head.key[0] != 0 || memcmp(&record, &kEnd, sizeof(kEnd)) == 0,
                "a colour table has no end record");
        Require(record.head.key[0] == 0 || (record.head.size == sizeof(ItemRecord) && record.head.icon == kItemIcon),
                "a colour item is incomplete");
    }
}

void CheckSettings() {
    CheckField(defaultSettings.watermarkName);
    CheckField(defaultSettings.watermarkText);
    CheckField(defaultSettings.watermarkFont);
    for (const ProfileEntry* profile :
         {&defaultSettings.textRgbProfile, &defaultSettings.imageRgbProfile, &defaultSettings.graphicsRgbProfile})
        CheckField(profile->qualifier);
    for (const TrayPaperDefault& tray : defaultSettings.trays)
        CheckField(tray.key);
}

// The tables of which the file may change texts and numbers only: puts those back, and the rest must be as it
// was compiled in.
void CheckFixedParts(const CompiledInTables& kept) {
    for (TraySourceRecord& slot : inputSlots) {
        CheckField(slot.text);
        const auto* original = reinterpret_cast<const TraySourceRecord*>(kept.slots.bytes) + (&slot - inputSlots);
        slot.bin = original->bin;
        memcpy(slot.text, original->text, sizeof(slot.text));
    }
    const auto checkTexts = [](auto& records, auto text) {
        for (auto& record : records) {
            CheckField(record.*text);
            memset(record.*text, 0, sizeof(record.*text));
        }
    };
    checkTexts(propertyTexts, &ControlTextRecord::display);
    checkTexts(colorDialogTexts, &ControlTextRecord::display);
    checkTexts(trayDialogTexts, &ControlTextRecord::display);
    for (const MediaTypeColumn& column : mediaTypeColumns)
        CheckField(column.title);
    Require(kept.slots.Unchanged() && kept.property.Unchanged() && kept.colorDialog.Unchanged()
                && kept.trayDialog.Unchanged(),
            "more than texts and numbers has changed");
}

// The parameter data file, in the folder of this name: a link to a file in memory. Its descriptor.
constexpr wchar_t kModulePath[] = L"fuzzed_module/TELMAR_D.DLL";
int LinkParameterFile() {
    const int descriptor = memfd_create("prm", MFD_CLOEXEC);
    fs::create_directory("fuzzed_module");
    fs::remove("fuzzed_module/TELMAR_D.PRM");
    fs::create_symlink("/proc/self/fd/" + std::to_string(descriptor), "fuzzed_module/TELMAR_D.PRM");
    return descriptor;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    // Per byte of the file: its image, 16 bytes of the device table's records, and the media type lists,
    // which take 144 bytes for records of 240.
    constexpr size_t kMaxPerByte = 1 + 16 + 10;
    constexpr size_t kMaxAnyway = 16384;

    static const int descriptor = LinkParameterFile();
    Require(ftruncate(descriptor, 0) == 0 && pwrite(descriptor, octets, count, 0) == static_cast<ssize_t>(count),
            "the file in memory can't be written");
    const CompiledInTables kept;
    win32::Reset();
    win32::SetModuleFileName(kModulePath);
    DllMain(nullptr, DLL_PROCESS_ATTACH, nullptr);
    Require(deviceTable != nullptr && mediaTypeLists != nullptr, "a readable file was not read");
    CheckTable(*deviceTable);
    CheckMediaLists(*mediaTypeLists);
    CheckColorTables(kept);
    CheckSettings();
    CheckFixedParts(kept);
    DllMain(nullptr, DLL_PROCESS_DETACH, nullptr);

    const win32::Counts counts = win32::Count();
    Require(counts.globalBlocks == 0 && counts.localBlocks == 0 && counts.files == 0, "something is left over");
    Require(counts.allocatedBytes <= kMaxAnyway + kMaxPerByte * count, "memory out of proportion to the file");
    return 0;
}

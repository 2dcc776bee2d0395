// Builds the item lists of the device table: one loop over the items of an entry, one Fill function for each
// pair of file record and list record, and a table of the lists.
#include "paramdata/feature_lists.h"

#include "base/text.h"

#include <cstring>
#include <windows.h>

namespace {

// The item that is being filled.
struct Item {
    const PrmFile& file;
    DeviceTable& table;
    const char* feature; // name of the entry
    uint32_t position;   // in the list
};

// Fills what all lists have: key, value, icon.
void FillHead(const PrmFile& file, const PrmItemHead& from, uint32_t value, ItemHead& to) {
    PrmReadString(file, from.key, to.key);
    to.value = value;
    to.icon = kItemIcon;
}

// Items with a text: output, finishing and media attributes.
template <typename FileRecord, typename Record>
void Fill(const Item& item, const FileRecord& from, Record& to) {
    FillHead(item.file, from.head, from.value, to.head);
    PrmReadWideString(item.file, from.head.display, to.display);
    CopyText(to.text, from.text);
}

// A paper source that is not enabled keeps an empty key, which ends the list for every reader.
void Fill(const Item& item, const PrmMediaItem& from, InputSlotRecord& to) {
    if (from.extra != 0) {
        FillHead(item.file, from.head, from.value, to.head);
        PrmReadWideString(item.file, from.head.display, to.display);
    }
    CopyText(to.text, from.text);
}

void Fill(const Item& item, const PrmMediaItem& from, CollateRecord& to) {
    FillHead(item.file, from.head, from.value, to.head);
    to.extra = from.extra;
    CopyText(to.texts[0], from.texts[0]);
    CopyText(to.texts[1], from.texts[1]);
}

void Fill(const Item& item, const PrmResolution& from, ResolutionRecord& to) {
    PrmText key;
    FillHead(item.file, from.head, item.position, to.head);
    PrmReadWideString(item.file, from.head.display, to.display);
    for (size_t i = 0; i < 3; ++i)
        to.values[i] = static_cast<uint16_t>(from.values[i]);
    to.number = ResolutionNumber(PrmKeyAt(item.file, from.head, key));
}

void Fill(const Item& item, const PrmTabPaper& from, TabPaperRecord& to) {
    FillHead(item.file, from.head, from.value, to.head);
    PrmReadWideString(item.file, from.head.display, to.display);
    memcpy(to.values, from.values, sizeof(to.values));
}

void Fill(const Item& item, const PrmItemDescriptor& from, ItemRecord& to) {
    FillHead(item.file, from.head, 0, to.head);
    PrmReadWideString(item.file, from.head.display, to.display);
    TraySelectionValue(item.feature, to.head.key, to.head.value);
}

// Fills the display names, which both kinds of paper size have twice.
template <typename FileRecord, typename Record>
void FillDisplayPairs(const PrmFile& file, const FileRecord& from, Record& to) {
    PrmReadWideString(file, from.head.display, to.display);
    CopyText(to.displayAgain, to.display);
    PrmReadWideString(file, from.secondDisplay, to.secondDisplay);
    CopyText(to.secondDisplayAgain, to.secondDisplay);
}

void Fill(const Item& item, const PrmOutputPaper& from, OutputPaperSizeRecord& to) {
    FillHead(item.file, from.head, from.value, to.head);
    FillDisplayPairs(item.file, from, to);
    memcpy(to.values, from.values, sizeof(to.values));
}

// Copies a block if its flag is not 0; otherwise the destination stays 0.
void CopyFlagged(uint32_t flag, void* to, const void* from, size_t size) {
    if (flag != 0)
        memcpy(to, from, size);
}

void StoreUserPaper(const PrmPaper& from, DeviceTable& table) {
    const uint32_t size[] = {from.width, from.furtherSizes[0], from.length, from.furtherSizes[1]};
    memcpy(table.userPaperSize, size, sizeof(size));
    CopyFlagged(from.hasMargins, table.userPaperMargins, from.margins, sizeof(from.margins));
    CopyFlagged(from.hasGeometry4, table.userPaperGeometry4, from.geometry4, sizeof(from.geometry4));
    CopyFlagged(from.hasGeometry5, table.userPaperGeometry5, from.geometry5, sizeof(from.geometry5));
}

void Fill(const Item& item, const PrmPaper& from, PaperSizeRecord& to) {
    FillHead(item.file, from.head, from.value, to.head);
    FillDisplayPairs(item.file, from, to);
    CopyText(to.text, from.text);
    to.width = from.width;
    to.length = from.length;
    to.hasGeometry1 = from.hasGeometry1;
    CopyFlagged(from.hasGeometry1, to.geometry1, from.geometry1, sizeof(from.geometry1));
    to.hasGeometry2 = from.hasGeometry2;
    CopyFlagged(from.hasGeometry2, to.geometry2, from.geometry2, sizeof(from.geometry2));
    CopyFlagged(from.hasMargins, to.margins, from.margins, sizeof(from.margins));
    CopyFlagged(from.hasGeometry4, to.geometry4, from.geometry4, sizeof(from.geometry4));
    CopyFlagged(from.hasGeometry5, to.geometry5, from.geometry5, sizeof(from.geometry5));
    to.hasMargins = from.hasMargins;
    to.hasGeometry4 = from.hasGeometry4;
    to.hasGeometry5 = from.hasGeometry5;
    memcpy(to.values, from.values, sizeof(to.values));
    CopyText(to.shortName, from.shortName);
    memcpy(to.longValues, from.longValues, sizeof(to.longValues));
    CopyText(to.longText, from.longText);
    to.complete = to.shortName[0] != 0 && to.longValues[0] != 0 && to.longValues[1] != 0
                  && to.longValues[2] != 0 && to.longText[0] != 0;
    if (SameText(to.head.key, "UserPaper"))
        StoreUserPaper(from, item.table);
}

// Reads the file record at the offset and fills the list record from it.
template <typename FileRecord, typename Record>
void ReadItem(const Item& item, uint32_t offset, void* record) {
    FileRecord buffer;
    Fill(item, PrmRecordAt(item.file, offset, buffer), *static_cast<Record*>(record));
}

// How a list is built.
struct ListDescription {
    const char* entry;
    size_t recordSize; // of a list record
    bool sizedEnd;     // the terminating record has a size, too
    size_t field;      // offset of the list's pointer in the device table
    void (*readItem)(const Item& item, uint32_t offset, void* record);
};

constexpr bool kSizedEnd = true;
constexpr bool kZeroEnd = false;

// clang-format off
#define LIST(entry, FileRecord, Record, end, field) \
    {entry, sizeof(Record), end, offsetof(DeviceTable, field), ReadItem<FileRecord, Record>}

constexpr struct {
    ListStage stage;
    ListDescription list;
} kLists[] = {
    // stage                     entry                   file record     list record            end        table field
    {ListStage::Paper,      LIST("PaperSize",            PrmPaper,       PaperSizeRecord,       kSizedEnd, paperSizes)},
    {ListStage::Paper,      LIST("OutPaperSize",         PrmOutputPaper, OutputPaperSizeRecord, kSizedEnd, outputPaperSizes)},
    {ListStage::Paper,      LIST("MediaType",            PrmMediaItem,   CompactItemRecord,     kSizedEnd, mediaTypes)},
    {ListStage::Paper,      LIST("InTray",               PrmMediaItem,   InputSlotRecord,       kSizedEnd, inputTrays)},
    {ListStage::Output,     LIST("OutputTray",           PrmTextItem,    TextItemRecord,        kZeroEnd,  outputTrays)},
    {ListStage::Output,     LIST("MediaWeight",          PrmTextItem,    CompactItemRecord,     kZeroEnd,  mediaWeights)},
    {ListStage::Output,     LIST("MediaColor",           PrmTextItem,    CompactItemRecord,     kZeroEnd,  mediaColors)},
    {ListStage::Output,     LIST("Resolution",           PrmResolution,  ResolutionRecord,      kSizedEnd, resolutions)},
    {ListStage::Finishing,  LIST("Combination",          PrmTextItem,    CompactItemRecord,     kZeroEnd,  combinations)},
    {ListStage::Finishing,  LIST("Folding",              PrmTextItem,    CompactItemRecord,     kZeroEnd,  foldings)},
    {ListStage::Finishing,  LIST("HolePunch",            PrmTextItem,    FinishingItemRecord,   kZeroEnd,  holePunches)},
    {ListStage::Finishing,  LIST("OutputOrder",          PrmTextItem,    CompactItemRecord,     kZeroEnd,  outputOrders)},
    {ListStage::Finishing,  LIST("PerPageListPrintType", PrmTextItem,    CompactItemRecord,     kZeroEnd,  perPagePrintTypes)},
    {ListStage::Finishing,  LIST("MediaPrePunched",      PrmTextItem,    CompactItemRecord,     kZeroEnd,  prePunchedMedia)},
    {ListStage::Finishing,  LIST("Staple",               PrmTextItem,    FinishingItemRecord,   kZeroEnd,  staples)},
    {ListStage::Finishing,  LIST("PerPageListStaple",    PrmTextItem,    CompactItemRecord,     kZeroEnd,  perPageStaples)},
    {ListStage::Location,   LIST("OutputMethod",         PrmTextItem,    TextItemRecord,        kZeroEnd,  outputMethods)},
    {ListStage::Location,   LIST("OvlForm_Location",     PrmTextItem,    TextItemRecord,        kZeroEnd,  overlayLocations)},
    {ListStage::Location,   LIST("Prof_Location",        PrmTextItem,    TextItemRecord,        kZeroEnd,  profileLocations)},
    {ListStage::Page,       LIST("TabPaperPaperSize",    PrmTabPaper,    TabPaperRecord,        kSizedEnd, tabPaperSizes)},
    {ListStage::Page,       LIST("Collate",              PrmMediaItem,   CollateRecord,         kSizedEnd, collates)},
    {ListStage::Page,       LIST("OHP_Interleave",       PrmTextItem,    TextItemRecord,        kZeroEnd,  interleaves)},
    {ListStage::Page,       LIST("PaperArrangement",     PrmTextItem,    TextItemRecord,        kZeroEnd,  paperArrangements)},
};

// The tray selection lists differ in their entry and their pointer in the device table.
constexpr ListDescription kTraySelection = LIST(nullptr, PrmItemDescriptor, ItemRecord, kZeroEnd, traySelections);
#undef LIST
// clang-format on

ItemHead& HeadOf(void* record) {
    return *static_cast<ItemHead*>(record);
}

void BuildList(PrmFile& file, DeviceTable& table, const ListDescription& list) {
    PrmItems items;
    if (!PrmFindItems(file, list.entry, items))
        return;
    auto* record =
        static_cast<uint8_t*>(PrmAllocateRecords(file, uint64_t{items.count} + 1, list.recordSize));
    memcpy(reinterpret_cast<uint8_t*>(&table) + list.field, &record, sizeof(record));
    if (record == nullptr)
        return;
    for (uint32_t i = 0; i < items.count; ++i, record += list.recordSize) {
        HeadOf(record).size = static_cast<uint32_t>(list.recordSize);
        list.readItem({file, table, list.entry, i}, PrmItemOffset(file, items, i), record);
    }
    if (list.sizedEnd)
        HeadOf(record).size = static_cast<uint32_t>(list.recordSize);
}

} // namespace

void BuildLists(PrmFile& file, DeviceTable& table, ListStage stage) {
    for (const auto& row : kLists)
        if (row.stage == stage)
            BuildList(file, table, row.list);
}

void BuildTraySelectionList(PrmFile& file, DeviceTable* table, const char* feature, uint32_t featureBit) {
    if (table == nullptr)
        return;
    for (size_t i = 0; i < kTraySelectionCount; ++i) {
        if (featureBit != 1u << i)
            continue;
        ListDescription list = kTraySelection;
        list.entry = feature;
        list.field += i * sizeof(void*);
        BuildList(file, *table, list);
    }
}

uint16_t ResolutionNumber(const char* key) {
    return TextLength(key) > kResolutionNumberAt
               ? static_cast<uint16_t>(PrmParseFirstNumber(key + kResolutionNumberAt))
               : uint16_t{0};
}

void FreeLists(DeviceTable& table) {
    const auto release = [&table](size_t field) {
        void* list;
        memcpy(&list, reinterpret_cast<uint8_t*>(&table) + field, sizeof(list));
        if (list != nullptr)
            GlobalFree(list);
    };
    for (const auto& row : kLists)
        release(row.list.field);
    for (size_t i = 0; i < kTraySelectionCount; ++i)
        release(kTraySelection.field + i * sizeof(void*));
    release(offsetof(DeviceTable, trayRows));
}

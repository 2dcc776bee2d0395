// Media type lists: see the header. A list is the records of one of the device table's lists and then the
// items that have a text in the file.
#include "trays/media_type_lists.h"

#include "base/text.h"
#include "paramdata/prm_readers.h"

#include <cstring>
#include <windows.h>

namespace {

// The entries that hold the texts, by position of the list.
constexpr const char* kEntries[kMediaTypeListCount] = {
    "MediaTypeList_Size",   "MediaTypeList_Orient", "MediaTypeList_Type",
    "MediaTypeList_Weight", "MediaTypeList_Color",  "MediaTypeList_Hole",
};

// Items that a list has when the file holds a text for them, in this order behind those of the device table.
constexpr uint32_t kUnknown = UINT32_MAX;
constexpr struct {
    MediaTypeList list;
    const char* key;
    uint32_t value;
} kTextItems[] = {
    // clang-format off
    {kMediaSize,        "MediaTypeList_Size_Unknown",   kUnknown},
    {kMediaOrientation, "MediaTypeList_Portrait",       1},
    {kMediaOrientation, "MediaTypeList_Landscape",      2},
    {kMediaOrientation, "MediaTypeList_Orient_Unknown", kUnknown},
    {kMediaType,        "MediaTypeList_Type_Unknown",   kUnknown},
    {kMediaWeight,      "MediaTypeList_Weight_Unknown", kUnknown},
    {kMediaColor,       "MediaTypeList_Color_Unknown",  kUnknown},
    {kMediaHole,        "MediaTypeList_Hole_Unknown",   kUnknown},
    // clang-format on
};

template <typename Record>
size_t CountRecords(const Record* records) {
    size_t count = 0;
    while (records != nullptr && records[count].head.key[0] != 0)
        ++count;
    return count;
}

ItemRecord* AllocateList(MediaTypeList list, size_t records) {
    size_t items = records + 1;
    for (const auto& item : kTextItems)
        items += item.list == list ? 1 : 0;
    return static_cast<ItemRecord*>(GlobalAlloc(GPTR, items * sizeof(ItemRecord)));
}

ItemRecord MakeItem(uint32_t value) {
    ItemRecord item = {};
    item.head.size = sizeof(ItemRecord);
    item.head.value = value;
    item.head.icon = kItemIcon;
    return item;
}

// Copies the device table's records; the position behind the last.
template <typename Record>
ItemRecord* CopyRecords(const Record* records, ItemRecord* to) {
    for (; records != nullptr && records->head.key[0] != 0; ++records, ++to) {
        *to = MakeItem(records->head.value);
        CopyText(to->head.key, records->head.key);
        CopyText(to->display, records->display);
    }
    return to;
}

void AddTextItems(const PrmFile& file, MediaTypeList list, ItemRecord* to) {
    for (const auto& item : kTextItems) {
        wchar_t text[sizeof(to->display) / sizeof(wchar_t)];
        if (item.list != list
            || !PrmGetItemText(file, kEntries[list], item.key, text, sizeof(text) / sizeof(text[0])))
            continue;
        *to = MakeItem(item.value);
        CopyText(to->head.key, item.key);
        CopyText(to->display, text);
        ++to;
    }
}

bool AllocateLists(const DeviceTable& table, MediaTypeLists& lists) {
    const size_t counts[kMediaTypeListCount] = {
        CountRecords(table.paperSizes),  0,
        CountRecords(table.mediaTypes),  CountRecords(table.mediaWeights),
        CountRecords(table.mediaColors), CountRecords(table.prePunchedMedia),
    };
    for (size_t i = 0; i < kMediaTypeListCount; ++i) {
        lists.lists[i] = AllocateList(static_cast<MediaTypeList>(i), counts[i]);
        if (lists.lists[i] == nullptr)
            return false;
    }
    return true;
}

void FillLists(const PrmFile& file, const DeviceTable& table, MediaTypeLists& lists) {
    ItemRecord* const ends[kMediaTypeListCount] = {
        CopyRecords(table.paperSizes, lists.lists[kMediaSize]),
        lists.lists[kMediaOrientation],
        CopyRecords(table.mediaTypes, lists.lists[kMediaType]),
        CopyRecords(table.mediaWeights, lists.lists[kMediaWeight]),
        CopyRecords(table.mediaColors, lists.lists[kMediaColor]),
        CopyRecords(table.prePunchedMedia, lists.lists[kMediaHole]),
    };
    for (size_t i = 0; i < kMediaTypeListCount; ++i)
        AddTextItems(file, static_cast<MediaTypeList>(i), ends[i]);
}

// The value of a switch, unless the dialog type hides what it stands for.
uint32_t ShownUnless(const DeviceTable* table, FeatureSwitch feature, bool hiddenOnType2) {
    const uint32_t type = SwitchValue(table, kSwitchDlgMediaType);
    return type == 3 || (type == 2 && hiddenOnType2) ? 0 : SwitchValue(table, feature);
}

} // namespace

MediaTypeLists* mediaTypeLists;
MediaTypeColumn mediaTypeColumns[] = {
    // clang-format off
    {L"Tray",        "MediaTypeList_Tray"},
    {L"Size",        "MediaTypeList_Size"},
    {L"Orientation", "MediaTypeList_Orient"},
    {L"Type",        "MediaTypeList_Type"},
    {L"Weight",      "MediaTypeList_Weight"},
    {L"Color",       "MediaTypeList_Color"},
    {L"Hole",        "MediaTypeList_Hole"},
    {}, // end
    // clang-format on
};

MediaTypeLists* BuildMediaTypeLists(const PrmFile* file, const DeviceTable* table) {
    if (file == nullptr || table == nullptr)
        return nullptr;
    auto* lists = static_cast<MediaTypeLists*>(GlobalAlloc(GPTR, sizeof(MediaTypeLists)));
    if (lists == nullptr)
        return nullptr;
    if (!AllocateLists(*table, *lists)) {
        FreeMediaTypeLists(lists);
        return nullptr;
    }
    FillLists(*file, *table, *lists);
    return lists;
}

void ApplyColumnTitles(const ControlTextRecord* texts) {
    for (const ControlTextRecord* row = texts; row->key[0] != 0; ++row) {
        if (row->identifiers[0] != -1 || row->display[0] == 0)
            continue;
        for (MediaTypeColumn* column = mediaTypeColumns; column->key[0] != 0; ++column) {
            if (strcmp(column->key, row->key) != 0)
                continue;
            CopyText(column->title, row->display);
            break;
        }
    }
}

void FreeMediaTypeLists(MediaTypeLists* lists) {
    if (lists == nullptr)
        return;
    for (ItemRecord* list : lists->lists)
        if (list != nullptr)
            GlobalFree(list);
    GlobalFree(lists);
}

uint32_t MediaWeightShown(const DeviceTable* table) {
    return ShownUnless(table, kSwitchMediaWeight, true);
}

uint32_t MediaColorShown(const DeviceTable* table) {
    return ShownUnless(table, kSwitchMediaColor, false);
}

uint32_t MediaHoleShown(const DeviceTable* table) {
    return ShownUnless(table, kSwitchMediaPrePunched, false);
}

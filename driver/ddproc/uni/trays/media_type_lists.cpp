// Builds the media type lists: the records of a list of the device table, then the items that have a text in
// the file. Also the columns of the list view and their titles.
#include "trays/media_type_lists.h"

#include "base/text.h"
#include "paramdata/prm_readers.h"

#include <cstring>
#include <windows.h>

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

namespace {

// Items that a list has if the file has a text for them, in this order after those of the device table.
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
    {kMediaPrePunched,        "MediaTypeList_Hole_Unknown",   kUnknown},
    // clang-format on
};

ItemRecord MakeItem(uint32_t value) {
    ItemRecord item = {};
    item.head.size = sizeof(ItemRecord);
    item.head.value = value;
    item.head.icon = kItemIcon;
    return item;
}

// Adds the items of the list that have a text in the entry of the list's column.
void AddTextItems(const PrmFile& file, MediaTypeList list, ItemRecord* to) {
    const char* entry = mediaTypeColumns[1 + list].key;
    for (const auto& item : kTextItems) {
        wchar_t text[sizeof(to->display) / sizeof(wchar_t)];
        if (item.list != list || !PrmGetItemText(file, entry, item.key, text, sizeof(text) / sizeof(text[0])))
            continue;
        *to = MakeItem(item.value);
        CopyText(to->head.key, item.key);
        CopyText(to->display, text);
        ++to;
    }
}

// Null without memory.
template <typename Record>
ItemRecord* BuildList(const PrmFile& file, MediaTypeList list, const Record* records) {
    const Rows<Record> listed = Listed(records);
    const size_t capacity = listed.count + sizeof(kTextItems) / sizeof(kTextItems[0]) + 1;
    auto* items = static_cast<ItemRecord*>(GlobalAlloc(GPTR, capacity * sizeof(ItemRecord)));
    if (items == nullptr)
        return nullptr;
    ItemRecord* to = items;
    for (const Record& record : listed) {
        *to = MakeItem(record.head.value);
        CopyText(to->head.key, record.head.key);
        CopyText(to->display, record.display);
        ++to;
    }
    AddTextItems(file, list, to);
    return items;
}

} // namespace

MediaTypeLists* BuildMediaTypeLists(const PrmFile* file, const DeviceTable* table) {
    if (file == nullptr || table == nullptr)
        return nullptr;
    auto* lists = static_cast<MediaTypeLists*>(GlobalAlloc(GPTR, sizeof(MediaTypeLists)));
    if (lists == nullptr)
        return nullptr;
    lists->lists[kMediaSize] = BuildList(*file, kMediaSize, table->paperSizes);
    lists->lists[kMediaOrientation] = BuildList<ItemRecord>(*file, kMediaOrientation, nullptr);
    lists->lists[kMediaType] = BuildList(*file, kMediaType, table->mediaTypes);
    lists->lists[kMediaWeight] = BuildList(*file, kMediaWeight, table->mediaWeights);
    lists->lists[kMediaColor] = BuildList(*file, kMediaColor, table->mediaColors);
    lists->lists[kMediaPrePunched] = BuildList(*file, kMediaPrePunched, table->prePunchedMedia);
    for (const ItemRecord* list : lists->lists) {
        if (list != nullptr)
            continue;
        FreeMediaTypeLists(lists);
        return nullptr;
    }
    return lists;
}

void FreeMediaTypeLists(MediaTypeLists* lists) {
    if (lists == nullptr)
        return;
    for (ItemRecord* list : lists->lists)
        if (list != nullptr)
            GlobalFree(list);
    GlobalFree(lists);
}

void ApplyColumnTitles(const ControlTextRecord* texts) {
    for (const ControlTextRecord& text : Listed(texts)) {
        if (text.identifiers[0] != -1 || text.display[0] == 0)
            continue;
        for (MediaTypeColumn* column = mediaTypeColumns; column->key[0] != 0; ++column) {
            if (strcmp(column->key, text.key) != 0) // case matters here
                continue;
            CopyText(column->title, text.display);
            break;
        }
    }
}

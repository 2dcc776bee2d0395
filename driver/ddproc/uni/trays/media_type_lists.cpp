// Builds the media type lists: the records of a list of the device table, then the items that have a text in
// the file. Also the columns of the list view and their titles.
#include "trays/media_type_lists.h"

#include "base/text.h"
#include "paramdata/prm_readers.h"

#include <cstring>
#include <windows.h>

MediaTypeLists* mediaTypeLists;

namespace {

// The columns' keys are the entries of the lists; the first column has an entry of its own.
constexpr MediaTypeColumn Column(const wchar_t* title, const char* key) {
    MediaTypeColumn column = {};
    CopyText(column.title, title);
    CopyText(column.key, key);
    return column;
}

ItemRecord MakeItem(uint32_t value) {
    ItemRecord item = {};
    item.head.size = sizeof(ItemRecord);
    item.head.value = value;
    item.head.icon = kItemIcon;
    return item;
}

// Adds the items of the list that have a text in the entry of the list's column.
void AddTextItems(const PrmFile& file, MediaTypeList list, ItemRecord* to) {
    for (const auto& item : kMediaTextItems) {
        wchar_t text[sizeof(to->display) / sizeof(wchar_t)];
        if (item.list != list
            || !PrmGetItemText(file, kMediaTypeListEntries[list], item.key, text,
                               sizeof(text) / sizeof(text[0])))
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
    const size_t capacity = listed.count + sizeof(kMediaTextItems) / sizeof(kMediaTextItems[0]) + 1;
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

MediaTypeColumn mediaTypeColumns[] = {
    // clang-format off
    Column(L"Tray",        "MediaTypeList_Tray"),
    Column(L"Size",        kMediaTypeListEntries[kMediaSize]),
    Column(L"Orientation", kMediaTypeListEntries[kMediaOrientation]),
    Column(L"Type",        kMediaTypeListEntries[kMediaType]),
    Column(L"Weight",      kMediaTypeListEntries[kMediaWeight]),
    Column(L"Color",       kMediaTypeListEntries[kMediaColor]),
    Column(L"Hole",        kMediaTypeListEntries[kMediaPrePunched]),
    {}, // end
    // clang-format on
};

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

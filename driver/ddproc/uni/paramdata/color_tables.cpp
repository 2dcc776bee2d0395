// The item tables of the colour settings: their compiled-in items, and how the file replaces them.
#include "paramdata/color_tables.h"

#include "base/text.h"
#include "paramdata/color_keys.h"
#include "paramdata/prm_readers.h"

#include <cstring>
#include <windows.h>

namespace {

constexpr ItemRecord Item(const char* key, uint32_t value, const wchar_t* display = L"") {
    ItemRecord item = {};
    item.head.size = sizeof(ItemRecord);
    CopyText(item.head.key, key);
    item.head.value = value;
    item.head.icon = kItemIcon;
    CopyText(item.display, display);
    return item;
}

// The first items, one for each row of the key table.
template <size_t Items>
constexpr ItemTable<Items> FromValues(const ColorKeyRow* values, ColorKeyColumn column) {
    ItemTable<Items> table = {};
    for (size_t i = 0; i < Items; ++i)
        table.items[i] = Item(values[i].keys[column], static_cast<uint32_t>(values[i].value));
    return table;
}

// An item for each key; its position is its value.
template <size_t Items>
constexpr ItemTable<Items> FromKeys(const char* const (&keys)[Items]) {
    ItemTable<Items> table = {};
    for (size_t i = 0; i < Items; ++i)
        table.items[i] = Item(keys[i], static_cast<uint32_t>(i));
    return table;
}

constexpr ObjectColorTables<3> CompiledIn(ColorKeyColumn column) {
    return {FromValues<2>(kProfileKeys, column),    FromValues<16>(kProfileKeys, column),
            FromValues<4>(kColorMatchKeys, column), FromValues<3>(kGrayKeys, column),
            FromValues<3>(kHalftoneKeys, column),   FromValues<1>(kDestinationKeys, column)};
}

constexpr ObjectColorTables<5> CompiledInGraphics() {
    return {FromValues<2>(kProfileKeys, kGraphicsKeys),
            FromValues<16>(kProfileKeys, kGraphicsKeys),
            FromValues<4>(kColorMatchKeys, kGraphicsKeys),
            FromValues<3>(kGrayKeys, kGraphicsKeys),
            {{Item("Graph_HalftoneText", 3, L"Same as Text Setting"),
              Item("Graph_HalftoneImage", 4, L"Same as Image Setting"),
              Item("Graph_UltraDetail", 0, L"UltraDetail"), Item("Graph_Detail", 1, L"Detail"),
              Item("Graph_Smooth", 2, L"Smooth")}},
            FromValues<1>(kDestinationKeys, kGraphicsKeys)};
}

constexpr ColorTables kCompiledIn = {
    FromKeys(kPageProfileKeys),    CompiledIn(kTextKeys),     CompiledIn(kImageKeys),
    CompiledInGraphics(),          FromKeys(kSimulationKeys), FromKeys(kPageDestinationKeys),
    FromKeys(kSimulationGrayKeys),
};

// What becomes of a table whose entry the file lacks.
enum class WithoutEntry { kKept, kCleared };

struct TableDescription {
    const char* entry;
    ItemRecord* items;
    uint32_t capacity;         // items, without the end record
    ItemRecord* shortItems;    // a second table with the first two items; null: none
    const ColorKeyRow* values; // null: the value of an item is its position
    ColorKeyColumn column;
    WithoutEntry withoutEntry;
    uint32_t destinationsOf; // kind of object whose destination list this is; 0: none
};
constexpr uint32_t kShortCapacity = 2;

template <size_t Items>
constexpr TableDescription Table(const char* entry, ItemTable<Items>& table,
                                 const ColorKeyRow* values = nullptr, ColorKeyColumn column = kTextKeys,
                                 ItemRecord* shortItems = nullptr,
                                 WithoutEntry withoutEntry = WithoutEntry::kKept) {
    return {entry, table.items, Items, shortItems, values, column, withoutEntry, 0};
}

constexpr TableDescription Destinations(const char* entry, ItemTable<1>& table, uint32_t kind) {
    return {entry, table.items, 1, nullptr, nullptr, kTextKeys, WithoutEntry::kKept, kind};
}

// In the order of filling.
// clang-format off
constexpr TableDescription kTables[] = {
    Table("RGBProf",             colorTables.rgbProfiles),
    Table("Text_RGBProf",        colorTables.text.rgbProfiles,      kProfileKeys,    kTextKeys,     colorTables.text.shortRgbProfiles.items),
    Table("Text_RGBColorMatch",  colorTables.text.colorMatches,     kColorMatchKeys, kTextKeys),
    Table("Text_RGBGray",        colorTables.text.grays,            kGrayKeys,       kTextKeys),
    Table("Text_Halftone",       colorTables.text.halftones,        kHalftoneKeys,   kTextKeys),
    Table("Img_RGBProf",         colorTables.image.rgbProfiles,     kProfileKeys,    kImageKeys,    colorTables.image.shortRgbProfiles.items),
    Table("Img_RGBColorMatch",   colorTables.image.colorMatches,    kColorMatchKeys, kImageKeys),
    Table("Img_RGBGray",         colorTables.image.grays,           kGrayKeys,       kImageKeys),
    Table("Img_Halftone",        colorTables.image.halftones,       kHalftoneKeys,   kImageKeys),
    Table("Graph_RGBProf",       colorTables.graphics.rgbProfiles,  kProfileKeys,    kGraphicsKeys, colorTables.graphics.shortRgbProfiles.items, WithoutEntry::kCleared),
    Table("Graph_RGBColorMatch", colorTables.graphics.colorMatches, kColorMatchKeys, kGraphicsKeys),
    Table("Graph_RGBGray",       colorTables.graphics.grays,        kGrayKeys,       kGraphicsKeys),
    Table("Graph_Halftone",      colorTables.graphics.halftones,    kHalftoneKeys,   kGraphicsKeys),
    Table("SimulationProf",      colorTables.simulations),
    Table("DestinationProf",     colorTables.destinations),
    Table("Simu_CMYKGray",       colorTables.simulationGrays),
    Destinations("Text_Destination",  colorTables.text.destinations,     kTextObjects),
    Destinations("Img_Destination",   colorTables.image.destinations,    kImageObjects),
    Destinations("Graph_Destination", colorTables.graphics.destinations, kGraphicsObjects),
};
// clang-format on

// The value of the first row with this key; 0 without one.
uint32_t ValueOf(const ColorKeyRow* values, ColorKeyColumn column, const char (&key)[32]) {
    for (; values->value != -1; ++values)
        if (SameText(values->keys[column], key))
            return static_cast<uint32_t>(values->value);
    return 0;
}

void Clear(const TableDescription& table) {
    memset(table.items, 0, (table.capacity + 1) * sizeof(ItemRecord));
    if (table.shortItems != nullptr)
        memset(table.shortItems, 0, (kShortCapacity + 1) * sizeof(ItemRecord));
}

// The descriptor of the item at this position.
PrmItemHead ReadHead(const PrmFile& file, const PrmItems& items, uint32_t position) {
    PrmItemDescriptor buffer;
    return PrmRecordAt(file, PrmItemOffset(file, items, position), buffer).head;
}

void Fill(const PrmFile& file, const PrmItems& items, const TableDescription& table) {
    Clear(table);
    for (uint32_t i = 0; i < items.count && i < table.capacity; ++i) {
        const PrmItemHead head = ReadHead(file, items, i);
        ItemRecord& item = table.items[i];
        item = Item("", i);
        PrmReadString(file, head.key, item.head.key);
        PrmReadWideString(file, head.display, item.display);
        if (table.values != nullptr)
            item.head.value = ValueOf(table.values, table.column, item.head.key);
        if (table.shortItems != nullptr && i < kShortCapacity)
            table.shortItems[i] = item;
    }
}

// Takes the items of the file up to the first whose key is not among the known ones.
void TakeKnownItems(const PrmFile& file, const PrmItems& items, const ItemRecord* known,
                    const TableDescription& table) {
    Clear(table);
    for (uint32_t i = 0; i < items.count && i < table.capacity; ++i) {
        const PrmItemHead head = ReadHead(file, items, i);
        PrmText key;
        const ItemRecord* item = FindByKey(known, PrmKeyAt(file, head, key));
        if (item == nullptr)
            return;
        table.items[i] = Item(item->head.key, item->head.value);
        if (head.display != 0)
            PrmReadWideString(file, head.display, table.items[i].display);
        else
            CopyText(table.items[i].display, item->display);
    }
}

bool RebuildDestinations(const PrmFile& file, const TableDescription& table) {
    PrmItems items;
    if (!PrmFindItems(file, table.entry, items))
        return false;
    const size_t size = (table.capacity + 1) * sizeof(ItemRecord);
    auto* known = static_cast<ItemRecord*>(GlobalAlloc(GPTR, size));
    if (known == nullptr)
        return false;
    memcpy(known, table.items, size);
    TakeKnownItems(file, items, known, table);
    GlobalFree(known);
    return true;
}

} // namespace

ColorTables colorTables = kCompiledIn;

const ItemRecord* FindColorItem(const char* entry, const char* key) {
    for (const TableDescription& table : kTables)
        if (SameText(table.entry, entry))
            return FindByKey<const ItemRecord>(table.items, key);
    return nullptr;
}

void FillColorTables(const PrmFile& file) {
    for (const TableDescription& table : kTables) {
        if (table.destinationsOf != 0)
            continue;
        PrmItems items;
        if (PrmFindItems(file, table.entry, items))
            Fill(file, items, table);
        else if (table.withoutEntry == WithoutEntry::kCleared)
            Clear(table);
    }
}

bool BuildDestinationList(const PrmFile& file, uint32_t kind) {
    for (const TableDescription& table : kTables)
        if (kind != 0 && table.destinationsOf == kind)
            return RebuildDestinations(file, table);
    return false;
}

NamedColorTable ColorTableAt(size_t position) {
    if (position >= sizeof(kTables) / sizeof(kTables[0]))
        return {};
    const TableDescription& table = kTables[position];
    return {table.entry, table.items, table.shortItems, table.destinationsOf != 0};
}

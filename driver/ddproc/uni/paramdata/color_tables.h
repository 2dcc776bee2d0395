// The item tables of the colour settings. The parameter data file replaces their compiled-in items at process
// attach; afterwards they are only read.
#ifndef PARAMDATA_COLOR_TABLES_H
#define PARAMDATA_COLOR_TABLES_H

#include "paramdata/color_keys.h"
#include "paramdata/device_table.h"

// The items of one setting and the end record, which is never overwritten.
template <size_t Items>
struct ItemTable {
    ItemRecord items[Items + 1];
};

// Tables of one kind of object (text, image, graphics).
template <size_t Halftones>
struct ObjectColorTables {
    ItemTable<2> shortRgbProfiles; // the first two of the full table
    ItemTable<16> rgbProfiles;
    ItemTable<4> colorMatches;
    ItemTable<3> grays;
    ItemTable<Halftones> halftones;
    ItemTable<1> destinations;
};

struct ColorTables {
    ItemTable<kMaxPageProfiles> rgbProfiles; // for the whole page
    ObjectColorTables<3> text;
    ObjectColorTables<3> image;
    ObjectColorTables<5> graphics;
    ItemTable<kMaxSimulations> simulations;
    ItemTable<kMaxPageDestinations> destinations; // for the whole page
    ItemTable<kMaxSimulationGrays> simulationGrays;
};
extern ColorTables colorTables;

// The item with this key in the entry's table; for the RGB source profiles, in the full table. Null when
// there is no such table or item.
const ItemRecord* FindColorItem(const char* entry, const char* key);

// Fills the tables from the file, except the destinations of text, image and graphics. A table whose entry
// the file lacks keeps its items; only the RGB source profiles of graphics are then cleared.
void FillColorTables(const PrmFile& file);

// A table by the entry that fills it, for programs that list all of them.
struct NamedColorTable {
    const char* entry; // null: there is no such table
    const ItemRecord* items;
    const ItemRecord* shortItems; // null: there is no short table
    bool isDestinationList;       // of text, image or graphics
};

// The table at this position, in the order of filling.
NamedColorTable ColorTableAt(size_t position);

// Kinds of object that have a destination list.
constexpr uint32_t kTextObjects = 1;
constexpr uint32_t kImageObjects = 2;
constexpr uint32_t kGraphicsObjects = 4;

// Rebuilds the destination list of one kind of object from the items of the file that the table already has.
// False, with the table unchanged, for any other kind, without the entry and without memory.
bool BuildDestinationList(const PrmFile& file, uint32_t kind);

#endif

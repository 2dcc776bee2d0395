// The item tables of the colour settings. Compiled in; the parameter data file replaces their items while the
// process attaches, afterwards they are only read.
#ifndef PARAMDATA_COLOR_TABLES_H
#define PARAMDATA_COLOR_TABLES_H

#include "paramdata/color_keys.h"
#include "paramdata/device_table.h"

// Items of one setting and the end record, which no contents of the file can overwrite.
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

// The item with this key in the table that the entry fills; of the RGB source profiles, the full table. Null
// when there is no such table or item.
const ItemRecord* FindColorItem(const char* entry, const char* key);

// Fills every table but the destinations of text, image and graphics from the file. A table whose entry the
// file lacks keeps its items; the graphics RGB source profiles are then cleared instead.
void FillColorTables(const PrmFile& file);

// Kinds of object that have a destination list.
constexpr uint32_t kTextObjects = 1;
constexpr uint32_t kImageObjects = 2;
constexpr uint32_t kGraphicsObjects = 4;

// Rebuilds the destination list of one kind of object: the file's items as far as the table knows their keys.
// False, and the table as it was, for any other kind, without the entry and without memory.
bool BuildDestinationList(const PrmFile& file, uint32_t kind);

#endif

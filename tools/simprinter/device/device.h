// A printer's configuration, and the tables of words that describe it. The default is a plain printer without
// options: two trays and the manual feed.
#ifndef SIMPRINTER_DEVICE_H
#define SIMPRINTER_DEVICE_H

#include <optional>
#include <string>
#include <vector>

// A word of the descriptions; the rows of every table begin with one.
struct Word {
    const char* word;
    int code; // its value in the printer's objects
};

// Special levels of the Printer MIB.
constexpr int kLevelUnknown = -2;
constexpr int kLevelSome = -3;
// clang-format off
constexpr Word kLevelWords[] = {
    {"unknown", kLevelUnknown},
    {"some",    kLevelSome},
};

// The edge of a sheet that is fed first.
constexpr int kShortEdgeFirst = 2, kLongEdgeFirst = 3;
constexpr Word kOrientations[] = {
    {"portrait",  kShortEdgeFirst},
    {"landscape", kLongEdgeFirst},
};

// Punch kit flags of a finisher by the numbers of holes.
constexpr Word kPunchings[] = {
    {"2",   0x10},
    {"2-3", 0x20},
    {"2-4", 0x40},
};

// The printer has one cover.
constexpr const char* kCoverName = "Front door";
constexpr Word kCoverWords[] = {
    {"open",   1},
    {"closed", 0},
};

constexpr Word kOverlayStorages[] = {
    {"memory", 3},
    {"HDD",    4},
    {"flash",  5},
};

constexpr Word kProfileStorages[] = {
    {"ROM",      1}, // preinstalled
    {"own-disk", 2},
    {"memory",   3},
    {"HDD",      4},
    {"flash",    5},
};

// Paper sizes: the printer's code; width and length in tenths of a millimetre.
struct PaperSize {
    Word name;
    int width, length;
};
constexpr PaperSize kPaperSizes[] = {
    {{"A3",         259},  2970, 4200},
    {{"A4",         260},  2100, 2970},
    {{"A5",         261},  1480, 2100},
    {{"A6",         262},  1050, 1480},
    {{"JISB4",      516},  2570, 3640},
    {{"JISB5",      517},  1820, 2570},
    {{"JISB6",      518},  1280, 1820},
    {{"B5",         773},  1760, 2500},
    {{"LETTER",     1551}, 2159, 2794},
    {{"LEGAL",      1547}, 2159, 3556},
    {{"LEDGER",     1541}, 2794, 4318},
    {{"12X18",      1540}, 3048, 4572},
    {{"EXECUTIVE",  1559}, 1842, 2667},
    {{"STATEMENT",  1560}, 1397, 2159},
    {{"FOLIO",      1549}, 2159, 3302},
    {{"8X13",       1556}, 2032, 3302},
    {{"8QX13",      1553}, 2096, 3302},
    {{"8EX13Q",     1554}, 2064, 3366},
    {{"220X330",    1285}, 2200, 3300},
    {{"8K",         2051}, 2700, 3900},
    {{"16K",        2052}, 1950, 2700},
    {{"C5",         1029}, 1620, 2290},
    {{"DL",         2826}, 1100, 2200},
    {{"MONARCH",    3073}, 984,  1905},
    {{"COM10",      3074}, 1048, 2413},
    {{"JPOST",      3587}, 1000, 1480},
    {{"4X6",        3602}, 1016, 1524},
    {{"A3W",        8451}, 3110, 4340},
    {{"A4W",        8452}, 2240, 3110},
    {{"A5W",        8453}, 1620, 2240},
    {{"JISB4W",     8708}, 2710, 3780},
    {{"JISB5W",     8709}, 1960, 2710},
    {{"LEDGERW",    9733}, 2934, 4458},
    {{"LETTERW",    9743}, 2299, 2934},
    {{"STATEMENTW", 9752}, 1537, 2299},
};

// Paper types: the printer's codes for type, colour and second side, the Printer MIB's type, a typical weight in grams
// per square metre. SIDE2: paper that is already printed on one side.
struct PaperType {
    Word name;
    int colorCode, secondSideCode;
    const char* mediaType;
    int weight;
};
constexpr PaperType kPaperTypes[] = {
    {{"PLAIN",           1},   0,  0, "stationery",   80},
    {{"PLAIN2",          1},   0,  1, "stationery",   80},
    {{"COLOR",           1},   15, 0, "stationery",   80},
    {{"SPECIAL",         177}, 0,  0, "other",        80},
    {{"LETTERHEAD",      162}, 0,  0, "letterhead",   90},
    {{"SINGLESIDED",     184}, 0,  0, "stationery",   80},
    {{"THICK1",          225}, 0,  0, "cardstock",    110},
    {{"THICK1SIDE2",     225}, 0,  1, "cardstock",    110},
    {{"THICK1PLUS",      234}, 0,  0, "cardstock",    140},
    {{"THICK1PLUSSIDE2", 234}, 0,  1, "cardstock",    140},
    {{"THICK2",          226}, 0,  0, "cardstock",    180},
    {{"THICK2SIDE2",     226}, 0,  1, "cardstock",    180},
    {{"THICK3",          227}, 0,  0, "cardstock",    230},
    {{"THICK3SIDE2",     227}, 0,  1, "cardstock",    230},
    {{"THICK4",          228}, 0,  0, "cardstock",    280},
    {{"THICK4SIDE2",     228}, 0,  1, "cardstock",    280},
    {{"TRANSPARENCY",    65},  0,  0, "transparency", kLevelUnknown},
    {{"ENVELOPE",        40},  0,  0, "envelope",     kLevelUnknown},
};

// Trays: their number among the printer's inputs, the Printer MIB's type of input, the default capacity in sheets.
struct TrayKind {
    Word name;
    const char* text;
    int inputType;
    int capacity;
};
constexpr int kRemovableTray = 3, kFixedTray = 4, kManualFeed = 5;
constexpr TrayKind kTrayKinds[] = {
    {{"TRAY1",  1}, "Tray 1",              kRemovableTray, 500},
    {{"TRAY2",  2}, "Tray 2",              kRemovableTray, 500},
    {{"TRAY3",  3}, "Tray 3",              kRemovableTray, 500},
    {{"TRAY4",  4}, "Tray 4",              kRemovableTray, 500},
    {{"TRAY5",  5}, "Tray 5",              kRemovableTray, 500},
    {{"LCT",    6}, "Large-capacity tray", kFixedTray,     2500},
    {{"MANUAL", 7}, "Manual feed",         kManualFeed,    150},
};

// Options: the type that the printer reports; the output bins that they add.
struct OptionKind {
    Word name;
    const char* text;
    bool isFinisher;
    int outputs;
    const char* outputText; // numbered from 1
    int outputCapacity;     // sheets each
};
constexpr OptionKind kOptionKinds[] = {
    {{"QA-110", 3},    "Large-capacity unit", false, 0, "",              0},
    {{"QB-220", 5},    "Finisher",            true,  2, "Finisher tray", 1000},
    {{"QC-330", 6},    "Punch kit",           false, 0, "",              0},
    {{"QD-440", 6},    "Finisher",            true,  3, "Finisher tray", 1000},
    {{"QE-550", 6},    "Mail bins",           false, 4, "Mail bin",      125},
    {{"QF-660", 6},    "Saddle kit",          false, 0, "",              0},
    {{"FAX",    1000}, "Fax unit",            false, 0, "",              0},
};

// Supplies: their number, the Printer MIB's class, type and unit, the default capacity. A colorant has the number of its
// supply.
struct SupplyKind {
    Word name;
    const char* text;
    int supplyClass, type, unit;
    int capacity;
    const char* colorant; // null: none
};
constexpr int kConsumed = 3, kReceptacle = 4;
constexpr int kToner = 3, kWasteToner = 4, kDrum = 9, kFuser = 15, kTransferUnit = 20, kStaples = 32;
constexpr int kImpressions = 7, kThings = 18, kPercent = 19;
constexpr SupplyKind kSupplyKinds[] = {
    {{"cyan",     1}, "Cyan toner",      kConsumed,   kToner,        kPercent,     100,    "cyan"},
    {{"magenta",  2}, "Magenta toner",   kConsumed,   kToner,        kPercent,     100,    "magenta"},
    {{"yellow",   3}, "Yellow toner",    kConsumed,   kToner,        kPercent,     100,    "yellow"},
    {{"black",    4}, "Black toner",     kConsumed,   kToner,        kPercent,     100,    "black"},
    {{"drum",     5}, "Drum unit",       kConsumed,   kDrum,         kImpressions, 120000, nullptr},
    {{"transfer", 6}, "Transfer belt",   kConsumed,   kTransferUnit, kImpressions, 150000, nullptr},
    {{"fuser",    7}, "Fusing unit",     kConsumed,   kFuser,        kImpressions, 300000, nullptr},
    {{"waste",    8}, "Waste toner box", kReceptacle, kWasteToner,   kImpressions, 40000,  nullptr},
    {{"staples",  9}, "Staples",         kConsumed,   kStaples,      kThings,      5000,   nullptr},
};
// clang-format on

struct Tray {
    const TrayKind* kind = nullptr;
    std::string name; // on the panel
    const PaperSize* size = &kPaperSizes[1];
    int orientation = kLongEdgeFirst;
    const PaperType* type = &kPaperTypes[0];
    int capacity = 0; // sheets
    int level = 0;    // sheets left, or a special level
};

struct Supply {
    const SupplyKind* kind = nullptr;
    std::string name;
    int capacity = 0;
    int level = 0; // what is left; of the waste box the room left: 0 full, 1 nearly full
};

struct Overlay {
    std::string name, title;
    int kind = 1;
    int storage = 4;
};

struct Profile {
    std::string name, title;
    int colorClass = 1;
    int storage = 4;
};

struct Device {
    std::string name = "lumora";
    std::string model = "QUORVANE lumora R880";
    std::string serial = "R880-000001";
    std::string location = {};
    std::string contact = {};
    int memory = 512;                 // MB
    std::optional<int> hardDisk = {}; // MB
    bool hasDuplex = false;
    int pages = 0;    // life count
    int punching = 0; // flags of the finishers
    int isCoverOpen = 0;
    bool isOnline = true;
    std::vector<const OptionKind*> options = {};
    std::vector<Tray> trays = {};
    std::vector<Supply> supplies = {};
    std::vector<Overlay> overlays = {};
    std::vector<Profile> profiles = {};
};

// A tray or a supply with its default values.
Tray UsualTray(const TrayKind& kind);
Supply UsualSupply(const SupplyKind& kind);

// Trays 1 and 2 and the manual feed; toners, drum, transfer belt, fuser and waste box, all full.
Device PlainDevice();

#endif

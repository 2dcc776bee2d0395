// The constant tables of the SNMP queries.
#include "devcomm/queries/query_catalogue.h"

#include "base/text.h"

#include <iterator>

// clang-format off
namespace {

#define STORAGE_SIZE     ".1.3.6.1.2.1.25.2.3.1.5"   // hrStorageSize
#define INPUT_TYPE       ".1.3.6.1.2.1.43.8.2.1.2"   // prtInputType
#define MEDIA_PATH_SPEED ".1.3.6.1.2.1.43.13.4.1.2"  // prtMediaPathMaxSpeedPrintUnit
#define OVERLAYS         ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1"
#define PROFILES         ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1"

// --- Options: the answers of each, in the order in which they are tried.

constexpr OptionValueRecord kMemory[] = {
    // answer           object            suffix  comparison             expected
    {"128MB",           STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "128"},
    {"256MB",           STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "256"},
    {"384MB",           STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "384"},
    {"512MB",           STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "512"},
    {"640MB",           STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "640"},
    {"768MB",           STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "768"},
    {"896MB",           STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "896"},
    {"1024MB",          STORAGE_SIZE,     ".1",   TELMAR_COMPARE_NUMBER, "1024"},
};
constexpr OptionValueRecord kHardDisk[] = {
    {"EnaOpHDD",        STORAGE_SIZE,     ".2",   TELMAR_COMPARE_EXISTS, ""},
    {"DisOpHDD",        "",               "",     TELMAR_COMPARE_EXISTS, ""},
};
constexpr OptionValueRecord kManualFeed[] = {
    {"EnaOpManualFeed", "",               "",     TELMAR_COMPARE_EXISTS, ""},
};
// Input trays 1 to 5 and output trays 1 to 4 differ only in their digit.
constexpr OptionValueRecord TrayValue(const char* name, char digit, bool isRequested) {
    const char text[] = {digit, 0};
    OptionValueRecord value = {};
    CopyText(value.name, name);
    AppendText(value.name, text);
    value.comparison = TELMAR_COMPARE_EXISTS;
    if (isRequested) {
        CopyText(value.oid, INPUT_TYPE);
        CopyText(value.suffix, ".1.");
        AppendText(value.suffix, text);
    }
    return value;
}
constexpr OptionValueRecord kInTrays[][2] = {
    {TrayValue("EnaOpInTray", '1', true), TrayValue("DisOpInTray", '1', false)},
    {TrayValue("EnaOpInTray", '2', true), TrayValue("DisOpInTray", '2', false)},
    {TrayValue("EnaOpInTray", '3', true), TrayValue("DisOpInTray", '3', false)},
    {TrayValue("EnaOpInTray", '4', true), TrayValue("DisOpInTray", '4', false)},
    {TrayValue("EnaOpInTray", '5', true), TrayValue("DisOpInTray", '5', false)},
};
constexpr OptionValueRecord kOutTrays[] = {
    TrayValue("DisOpOutTray", '1', false), TrayValue("DisOpOutTray", '2', false),
    TrayValue("DisOpOutTray", '3', false), TrayValue("DisOpOutTray", '4', false),
};
constexpr OptionValueRecord kDuplex[] = {
    {"EnaOpDuplex",     MEDIA_PATH_SPEED, ".1.2", TELMAR_COMPARE_EXISTS, ""},
    {"DisOpDuplex",     "",               "",     TELMAR_COMPARE_EXISTS, ""},
};

constexpr OptionRecord kOptions[] = {
    {"OpMemory",     std::size(kMemory),     0, kMemory},
    {"OpHDD",        std::size(kHardDisk),   0, kHardDisk},
    {"OpManualFeed", std::size(kManualFeed), 0, kManualFeed},
    {"OpInTray1",    2,                      0, kInTrays[0]},
    {"OpInTray2",    2,                      0, kInTrays[1]},
    {"OpInTray3",    2,                      0, kInTrays[2]},
    {"OpInTray4",    2,                      0, kInTrays[3]},
    {"OpInTray5",    2,                      0, kInTrays[4]},
    {"OpOutTray1",   1,                      0, &kOutTrays[0]},
    {"OpOutTray2",   1,                      0, &kOutTrays[1]},
    {"OpOutTray3",   1,                      0, &kOutTrays[2]},
    {"OpOutTray4",   1,                      0, &kOutTrays[3]},
    {"OpDuplex",     std::size(kDuplex),     0, kDuplex},
};

// --- Supplies

constexpr MrkSupItem kSupplies[] = {
    // name          kind                      flag  level  suffix  colour
    {"Consumable1",  TELMAR_SUPPLY_NONE,       0,    0,     "",     0},
    {"Consumable2",  TELMAR_SUPPLY_PERCENTAGE, 1,    0,     ".1.1", 0x00FFFF00}, // cyan toner
    {"Consumable3",  TELMAR_SUPPLY_PERCENTAGE, 1,    0,     ".1.2", 0x00FF00FF}, // magenta toner
    {"Consumable4",  TELMAR_SUPPLY_PERCENTAGE, 1,    0,     ".1.3", 0x0000FFFF}, // yellow toner
    {"Consumable5",  TELMAR_SUPPLY_PERCENTAGE, 1,    0,     ".1.4", 0x00000000}, // black toner
    {"Consumable6",  TELMAR_SUPPLY_FIXED,      0,    0,     "",     0},
    {"Consumable7",  TELMAR_SUPPLY_FIXED,      1,    0,     "",     0},
    {"Consumable8",  TELMAR_SUPPLY_FIXED,      1,    0,     "",     0},
    {"Consumable9",  TELMAR_SUPPLY_FIXED,      1,    0,     "",     0},
    {"Consumable10", TELMAR_SUPPLY_FIXED,      1,    0,     "",     0},
    {"Consumable11", TELMAR_SUPPLY_LEVEL,      0,    1,     ".1.8", 0},          // waste toner box
    {"Consumable12", TELMAR_SUPPLY_FIXED,      0,    0,     "",     0},
    {"",             TELMAR_SUPPLY_END,        0,    0,     "",     0},
};

// --- What the printer stores.

constexpr StorageNameRecord kOverlayStorages[] = {
    {"OvlForm_Memory", 3},
    {"OvlForm_HDD",    4},
    {"OvlForm_Flash",  5},
};
constexpr int32_t kOverlayValues0[] = {1};
constexpr int32_t kOverlayValues1[] = {2};

constexpr StorageNameRecord kProfileStorages[] = {
    {"Prof_Memory",    3},
    {"Prof_HDD",       4},
    {"Prof_Flash",     5},
    {"internalROM",    1},
    {"internalHD",     2},
};
constexpr int32_t kProfileValues0[] = {1, 2};
constexpr int32_t kProfileValues1[] = {3};
constexpr int32_t kProfileValues2[] = {3};

} // namespace

const ModelCheckInfo kModelCheckInfo = {}; // off

const OptionReqInfo kOptionReqInfo = {std::size(kOptions), 0, kOptions};

const MrkSupReqInfo kMrkSupReqInfo = {
    ".1.3.6.1.2.1.43.11.1.1.8", // prtMarkerSuppliesMaxCapacity
    ".1.3.6.1.2.1.43.11.1.1.9", // prtMarkerSuppliesLevel
    std::size(kSupplies), 0, kSupplies,
};

const OverlayReqInfo kOverlayReqInfo = {
    OVERLAYS ".3.1", OVERLAYS ".4.1", OVERLAYS ".5.1",
    std::size(kOverlayStorages), 0, kOverlayStorages, "OvlForm_HDD",
    {
        {OVERLAYS ".2.1", std::size(kOverlayValues0), 0, kOverlayValues0},
        {OVERLAYS ".2.1", std::size(kOverlayValues1), 0, kOverlayValues1},
    },
};

const ProfileReqInfo kProfileReqInfo = {
    PROFILES ".3.1", PROFILES ".4.1", PROFILES ".2.1",
    std::size(kProfileStorages), 0, kProfileStorages, "Prof_HDD",
    {
        {PROFILES ".5.1", std::size(kProfileValues0), 0, kProfileValues0},
        {PROFILES ".5.1", std::size(kProfileValues1), 0, kProfileValues1},
        {PROFILES ".5.1", std::size(kProfileValues2), 0, kProfileValues2},
    },
};
// clang-format on

// Descriptions of the colour settings dialogs: see the header.
#include "dialogs/color_descriptions.h"

#include "paramdata/color_tables.h"

// clang-format off

namespace {

// --- 128: text, image and graphics, each with its own lists --------------------------------------------------

using Kind = ColorControlKind;

constexpr ColorControl kFullControls[] = {
    // id   kind                field                        profile                             items                                    short items
    {1504, Kind::kRgbSource,    FIELD(imageRgbSource),       FIELD(imageRgbProfile),             colorTables.image.rgbProfiles.items,     colorTables.image.shortRgbProfiles.items,    0},
    {1354, Kind::kItems,        FIELD(image.colorMatch),     {},                                 colorTables.image.colorMatches.items,    nullptr,                                     0},
    {1335, Kind::kItems,        FIELD(image.gray),           {},                                 colorTables.image.grays.items,           nullptr,                                     0},
    {1599, Kind::kDestination,  FIELD(imageDestination),     FIELD(imageDestinationProfile),     colorTables.image.destinations.items,    nullptr,                                     0},
    {1332, Kind::kItems,        FIELD(image.halftone),       {},                                 colorTables.image.halftones.items,       nullptr,                                     0},
    {1509, Kind::kRgbSource,    FIELD(textRgbSource),        FIELD(textRgbProfile),              colorTables.text.rgbProfiles.items,      colorTables.text.shortRgbProfiles.items,     0},
    {1353, Kind::kItems,        FIELD(text.colorMatch),      {},                                 colorTables.text.colorMatches.items,     nullptr,                                     0},
    {1334, Kind::kItems,        FIELD(text.gray),            {},                                 colorTables.text.grays.items,            nullptr,                                     0},
    {1592, Kind::kDestination,  FIELD(textDestination),      FIELD(textDestinationProfile),      colorTables.text.destinations.items,     nullptr,                                     0},
    {1330, Kind::kItems,        FIELD(text.halftone),        {},                                 colorTables.text.halftones.items,        nullptr,                                     0},
    {1513, Kind::kRgbSource,    FIELD(graphicsRgbSource),    FIELD(graphicsRgbProfile),          colorTables.graphics.rgbProfiles.items,  colorTables.graphics.shortRgbProfiles.items, 0},
    {1516, Kind::kItems,        FIELD(graphics.colorMatch),  {},                                 colorTables.graphics.colorMatches.items, nullptr,                                     0},
    {1519, Kind::kItems,        FIELD(graphics.gray),        {},                                 colorTables.graphics.grays.items,        nullptr,                                     0},
    {1584, Kind::kDestination,  FIELD(graphicsDestination),  FIELD(graphicsDestinationProfile),  colorTables.graphics.destinations.items, nullptr,                                     0},
    {1522, Kind::kItems,        FIELD(graphics.halftone),    {},                                 colorTables.graphics.halftones.items,    nullptr,                                     0},
    {1524, Kind::kSimulation,   FIELD(simulation),           FIELD(simulationProfile),           colorTables.simulations.items,           nullptr,                                     0},
    {1526, Kind::kCheckBox,     FIELD(matchPaperColor),      {},                                 nullptr,                                 nullptr,                                     0},
    {1627, Kind::kItemsOrFirst, FIELD(simulationGray),       {},                                 colorTables.simulationGrays.items,       nullptr,                                     0},
};

constexpr DevmodeField kFullDefaults[] = {
    FIELD(imageRgbSource),      FIELD(imageRgbProfile),
    FIELD(image),
    FIELD(imageDestination),    FIELD(imageDestinationProfile),
    FIELD(textRgbSource),       FIELD(textRgbProfile),
    FIELD(text),
    FIELD(textDestination),     FIELD(textDestinationProfile),
    FIELD(graphicsRgbSource),   FIELD(graphicsRgbProfile),
    FIELD(graphics),
    FIELD(graphicsDestination), FIELD(graphicsDestinationProfile),
    FIELD(simulation),          FIELD(simulationProfile),
    FIELD(matchPaperColor),
    FIELD(simulationGray),
};

constexpr uint16_t kFullIcons[] = {
    1400, 1401, 1402, 1403, 1482, 1503, 1505, 1508, 1510, 1512, 1515, 1518, 1521, 1527, 1529, 1530, 1587, 1594, 1601, 1629,
};

constexpr HelpId kFullHelp[] = {
    {1501, 6640}, {1502, 6650}, {1504, 6650}, {1468, 6660}, {1354, 6660}, {1469, 6670}, {1335, 6670}, {1597, 6860},
    {1599, 6860}, {1471, 6675}, {1332, 6675}, {1506, 6680}, {1507, 6690}, {1509, 6690}, {1465, 6700}, {1353, 6700},
    {1466, 6710}, {1334, 6710}, {1589, 6865}, {1592, 6865}, {1467, 6720}, {1330, 6720}, {1473, 6730}, {1511, 6740},
    {1513, 6740}, {1514, 6750}, {1516, 6750}, {1517, 6760}, {1519, 6760}, {1582, 6870}, {1584, 6870}, {1520, 6770},
    {1522, 6770}, {1523, kNoHelp}, {1398, 6810}, {1524, 6810}, {1526, 6830}, {1625, 6855}, {1627, 6855},
    {1393, 6840}, {1528, 6850}, {1069, kNoHelp}, {1032, 9510}, {0, 0},
};

constexpr uint32_t kFullLocks[] = {
    1501, 1502, 1504, 1468, 1354, 1469, 1335, 1597, 1599, 1471, 1332, 1506, 1507, 1509, 1465, 1353, 1466, 1334, 1589, 1592,
    1467, 1330, 1473, 1511, 1513, 1514, 1516, 1517, 1519, 1582, 1584, 1520, 1522, 1523, 1398, 1524, 1526, 1625, 1627,
    1393, 1528, 1032, 0,
};

} // namespace

constexpr ColorDialog kFullColorDialog = {
    // id   help  profiles  controls       graphics follow  defaults       icons       help       locks
    128,    6631, true,     kFullControls, {},              kFullDefaults, kFullIcons, kFullHelp, kFullLocks,
};

// clang-format on

// Descriptions of the colour settings dialogs: see the header. All are written from the same words: controls,
// and what graphics follow; a dialog lists those that it has, in its order.
#include "dialogs/color/color_descriptions.h"

#include "paramdata/color_tables.h"

// clang-format off

namespace {

// --- Controls --------------------------------------------------------------------------------------------

using Kind = ColorControlKind;
constexpr const auto& kText = colorTables.text;
constexpr const auto& kImage = colorTables.image;
constexpr const auto& kGraphics = colorTables.graphics;

constexpr ColorControl
    //                     id    kind                   field                       profile                            items                              short items
    kImageRgb           = {1504, Kind::kRgbSource,      FIELD(imageRgbSource),      FIELD(imageRgbProfile),            kImage.rgbProfiles.items,          kImage.shortRgbProfiles.items},
    kImageRgbItem       = {1504, Kind::kRgbItems,       FIELD(imageRgbSource),      {},                                kImage.rgbProfiles.items,          kImage.shortRgbProfiles.items},
    kImageMatch         = {1354, Kind::kItems,          FIELD(image.colorMatch),    {},                                kImage.colorMatches.items,         nullptr},
    kImageGray          = {1335, Kind::kItems,          FIELD(image.gray),          {},                                kImage.grays.items,                nullptr},
    kImageDestination   = {1599, Kind::kDestination,    FIELD(imageDestination),    FIELD(imageDestinationProfile),    kImage.destinations.items,         nullptr},
    kImageHalftone      = {1332, Kind::kItems,          FIELD(image.halftone),      {},                                kImage.halftones.items,            nullptr},
    kTextRgb            = {1509, Kind::kRgbSource,      FIELD(textRgbSource),       FIELD(textRgbProfile),             kText.rgbProfiles.items,           kText.shortRgbProfiles.items},
    kTextRgbItem        = {1509, Kind::kRgbItems,       FIELD(textRgbSource),       {},                                kText.rgbProfiles.items,           kText.shortRgbProfiles.items},
    kTextMatch          = {1353, Kind::kItems,          FIELD(text.colorMatch),     {},                                kText.colorMatches.items,          nullptr},
    kTextGray           = {1334, Kind::kItems,          FIELD(text.gray),           {},                                kText.grays.items,                 nullptr},
    kTextDestination    = {1592, Kind::kDestination,    FIELD(textDestination),     FIELD(textDestinationProfile),     kText.destinations.items,          nullptr},
    kTextHalftone       = {1330, Kind::kItems,          FIELD(text.halftone),       {},                                kText.halftones.items,             nullptr},
    kGraphicsRgb        = {1513, Kind::kRgbSource,      FIELD(graphicsRgbSource),   FIELD(graphicsRgbProfile),         kGraphics.rgbProfiles.items,       kGraphics.shortRgbProfiles.items},
    kGraphicsMatch      = {1516, Kind::kItems,          FIELD(graphics.colorMatch), {},                                kGraphics.colorMatches.items,      nullptr},
    kGraphicsGray       = {1519, Kind::kItems,          FIELD(graphics.gray),       {},                                kGraphics.grays.items,             nullptr},
    kGraphicsDestination= {1584, Kind::kDestination,    FIELD(graphicsDestination), FIELD(graphicsDestinationProfile), kGraphics.destinations.items,      nullptr},
    kGraphicsHalftone   = {1522, Kind::kItems,          FIELD(graphics.halftone),   {},                                kGraphics.halftones.items,         nullptr},
    kGraphicsFollow     = {1477, Kind::kGraphicsChoice, FIELD(graphicsFollow),      {},                                nullptr,                           nullptr,                          1475},
    kSimulation         = {1524, Kind::kSimulation,     FIELD(simulation),          FIELD(simulationProfile),          colorTables.simulations.items,     nullptr},
    kPaperColor         = {1526, Kind::kCheckBox,       FIELD(matchPaperColor),     {},                                nullptr,                           nullptr},
    kSimulationGray     = {1627, Kind::kItemsOrFirst,   FIELD(simulationGray),      {},                                colorTables.simulationGrays.items, nullptr},
    kPageRgbItem        = {1634, Kind::kRgbItems,       FIELD(rgbSource),           {},                                colorTables.rgbProfiles.items,     nullptr},
    kPageDestination    = {1525, Kind::kDestination,    FIELD(destination),         FIELD(destinationProfile),         colorTables.destinations.items,    nullptr};

// What graphics take where they follow images or text.
constexpr GraphicsSource
    //              field                       image list text list profile                   items
    kFollowRgb   = {FIELD(graphicsRgbSource),   1504,      1509,     FIELD(graphicsRgbProfile), kGraphics.rgbProfiles.items},
    kFollowItem  = {FIELD(graphicsRgbSource),   1504,      1509,     {},                        nullptr},
    kFollowMatch = {FIELD(graphics.colorMatch), 1354,      1353,     {},                        nullptr},
    kFollowGray  = {FIELD(graphics.gray),       1335,      1334,     {},                        nullptr},
    kNoImageGray = {FIELD(graphics.gray),       0,         1334,     {},                        nullptr},
    kFollowHalf  = {FIELD(graphics.halftone),   1332,      1330,     {},                        nullptr};

// --- 128: text, image and graphics, each with its own lists ----------------------------------------------

constexpr ColorControl kFullControls[] = {
    kImageRgb, kImageMatch, kImageGray, kImageDestination, kImageHalftone,
    kTextRgb, kTextMatch, kTextGray, kTextDestination, kTextHalftone,
    kGraphicsRgb, kGraphicsMatch, kGraphicsGray, kGraphicsDestination, kGraphicsHalftone,
    kSimulation, kPaperColor, kSimulationGray,
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

// --- 124: no greys for images, no destinations; graphics follow ------------------------------------------

constexpr ColorControl kSimulationControls[] = {
    kImageRgb, kImageMatch, kImageHalftone,
    kTextRgb, kTextMatch, kTextGray, kTextHalftone,
    kGraphicsFollow,
    kSimulation, kPaperColor, kSimulationGray,
};
constexpr GraphicsSource kSimulationFollow[] = {kFollowRgb, kFollowMatch, kNoImageGray, kFollowHalf};
constexpr DevmodeField kSimulationDefaults[] = {
    FIELD(imageRgbSource),      FIELD(imageRgbProfile),
    FIELD(image),
    FIELD(textRgbSource),       FIELD(textRgbProfile),
    FIELD(text),
    FIELD(graphicsFollow),
    FIELD(simulation),          FIELD(simulationProfile),
    FIELD(matchPaperColor),
    FIELD(simulationGray),
};
constexpr HelpId kSimulationHelp[] = {
    {1501, 6640}, {1502, 6650}, {1504, 6650}, {1468, 6660}, {1354, 6660}, {1471, 6675}, {1332, 6675}, {1506, 6680},
    {1507, 6690}, {1509, 6690}, {1465, 6700}, {1353, 6700}, {1466, 6710}, {1334, 6710}, {1467, 6720}, {1330, 6720},
    {1473, 6730}, {1477, 6780}, {1475, 6790}, {1523, kNoHelp}, {1398, 6810}, {1524, 6810}, {1526, 6830}, {1625, 6855},
    {1627, 6855}, {1393, 6840}, {1528, 6850}, {1069, kNoHelp}, {1032, 9510}, {0, 0},
};
constexpr uint32_t kSimulationLocks[] = {
    1501, 1502, 1504, 1468, 1354, 1471, 1332, 1506, 1507, 1509, 1465, 1353, 1466, 1334, 1467, 1330, 1473, 1477, 1475,
    1523, 1398, 1524, 1526, 1625, 1627, 1528, 1393, 1032, 0,
};

// --- 122: as 124, with greys for images and one destination for the page ----------------------------------

constexpr ColorControl kDestinationControls[] = {
    kImageRgb, kImageMatch, kImageGray, kImageHalftone,
    kTextRgb, kTextMatch, kTextGray, kTextHalftone,
    kGraphicsFollow,
    kSimulation, kPaperColor, kSimulationGray,
    kPageDestination,
};
constexpr GraphicsSource kDestinationFollow[] = {kFollowRgb, kFollowMatch, kFollowGray, kFollowHalf};
constexpr DevmodeField kDestinationDefaults[] = {
    FIELD(imageRgbSource),      FIELD(imageRgbProfile),
    FIELD(image),
    FIELD(textRgbSource),       FIELD(textRgbProfile),
    FIELD(text),
    FIELD(graphicsFollow),
    FIELD(simulation),          FIELD(simulationProfile),
    FIELD(matchPaperColor),
    FIELD(simulationGray),
    FIELD(destination),         FIELD(destinationProfile),
};
constexpr HelpId kDestinationHelp[] = {
    {1501, 6640}, {1502, 6650}, {1504, 6650}, {1468, 6660}, {1354, 6660}, {1469, 6670}, {1335, 6670}, {1471, 6675},
    {1332, 6675}, {1506, 6680}, {1507, 6690}, {1509, 6690}, {1465, 6700}, {1353, 6700}, {1466, 6710}, {1334, 6710},
    {1467, 6720}, {1330, 6720}, {1473, 6730}, {1477, 6780}, {1475, 6790}, {1523, kNoHelp}, {1398, 6810}, {1524, 6810},
    {1526, 6830}, {1625, 6855}, {1627, 6855}, {1630, kNoHelp}, {1408, 6820}, {1525, 6820}, {1393, 6840}, {1528, 6850},
    {1069, kNoHelp}, {1032, 9510}, {0, 0},
};
constexpr uint32_t kDestinationLocks[] = {
    1501, 1502, 1504, 1468, 1354, 1469, 1335, 1471, 1332, 1506, 1509, 1465, 1353, 1466, 1334, 1467, 1330, 1473, 1477,
    1475, 1523, 1398, 1524, 1526, 1625, 1627, 1630, 1408, 1525, 1528, 1393, 1032, 0,
};

// --- 125: one RGB source for the page; graphics follow ---------------------------------------------------

constexpr ColorControl kSingleControls[] = {
    kPageRgbItem,
    kImageMatch, kImageHalftone,
    kTextMatch, kTextGray, kTextHalftone,
    kGraphicsFollow,
};
constexpr GraphicsSource kSingleFollow[] = {kFollowMatch, kNoImageGray, kFollowHalf};
constexpr DevmodeField kSingleDefaults[] = {FIELD(rgbSource), FIELD(image), FIELD(text), FIELD(graphicsFollow)};
constexpr HelpId kSingleHelp[] = {
    {1501, 6640}, {1468, 6660}, {1354, 6660}, {1471, 6675}, {1332, 6675}, {1506, 6680}, {1465, 6700}, {1353, 6700},
    {1466, 6710}, {1334, 6710}, {1467, 6720}, {1330, 6720}, {1473, 6730}, {1477, 6780}, {1475, 6790}, {1069, kNoHelp},
    {1032, 9510}, {0, 0},
};
constexpr uint32_t kSingleLocks[] = {
    1632, 1634, 1501, 1468, 1354, 1471, 1332, 1506, 1465, 1353, 1466, 1334, 1467, 1330, 1473, 1477, 1475, 1032, 0,
};

// --- 123: RGB sources of the model only; graphics follow -------------------------------------------------

constexpr ColorControl kBasicControls[] = {
    kImageRgbItem, kImageMatch, kImageGray, kImageHalftone,
    kTextRgbItem, kTextMatch, kTextGray, kTextHalftone,
    kGraphicsFollow,
};
constexpr GraphicsSource kBasicFollow[] = {kFollowItem, kFollowMatch, kFollowGray, kFollowHalf};
constexpr DevmodeField kBasicDefaults[] = {
    FIELD(imageRgbSource), FIELD(imageRgbProfile),
    FIELD(image),
    FIELD(textRgbSource),  FIELD(textRgbProfile),
    FIELD(text),
    FIELD(graphicsFollow),
};
constexpr HelpId kBasicHelp[] = {
    {1501, 6640}, {1502, 6650}, {1504, 6650}, {1468, 6660}, {1354, 6660}, {1469, 6670}, {1335, 6670}, {1471, 6675},
    {1332, 6675}, {1506, 6680}, {1507, 6690}, {1509, 6690}, {1465, 6700}, {1353, 6700}, {1466, 6710}, {1334, 6710},
    {1467, 6720}, {1330, 6720}, {1473, 6730}, {1477, 6780}, {1475, 6790}, {1069, kNoHelp}, {1032, 9510}, {0, 0},
};
constexpr uint32_t kBasicLocksA[] = {1504, 1354, 1335, 1332, 1509, 1353, 1334, 1330, 1477, 1475, 1032, 0};
constexpr uint32_t kBasicLocksB[] = {
    1501, 1502, 1504, 1468, 1354, 1469, 1335, 1471, 1332, 1506, 1507, 1509, 1465, 1353, 1466, 1334, 1467, 1330, 1473,
    1477, 1475, 1032, 0,
};

constexpr uint32_t kVariantA = 3; // of dialog 123

constexpr ColorDialog kDialogs[] = {
    // id variant    help  profiles  controls              graphics follow     defaults              help              locks
    {128, 0,         6631, true,     kFullControls,        {},                 kFullDefaults,        kFullHelp,        kFullLocks},
    {124, 0,         6630, true,     kSimulationControls,  kSimulationFollow,  kSimulationDefaults,  kSimulationHelp,  kSimulationLocks},
    {122, 0,         6610, true,     kDestinationControls, kDestinationFollow, kDestinationDefaults, kDestinationHelp, kDestinationLocks},
    {125, 0,         6620, false,    kSingleControls,      kSingleFollow,      kSingleDefaults,      kSingleHelp,      kSingleLocks},
    {123, kVariantA, 6621, false,    kBasicControls,       kBasicFollow,       kBasicDefaults,       kBasicHelp,       kBasicLocksA},
    {123, 0,         6600, false,    kBasicControls,       kBasicFollow,       kBasicDefaults,       kBasicHelp,       kBasicLocksB},
};

} // namespace

// clang-format on

const ColorDialog* FindColorDialog(uint32_t id, uint32_t type) {
    for (const ColorDialog& dialog : kDialogs)
        if (dialog.id == id && (dialog.variant == 0 || dialog.variant == type))
            return &dialog;
    return nullptr;
}

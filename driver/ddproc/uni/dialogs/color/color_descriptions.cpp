// Describes the colour settings dialogs as tables. The dialogs share controls and rules for graphics, which
// are defined first; each dialog then lists those that it has, in its order.
#include "dialogs/color/color_descriptions.h"

#include "base/dialog_ids.h"
#include "dialogs/color/layout_tables.h"
#include "paramdata/color_tables.h"

// clang-format off

namespace {

// --- Controls --------------------------------------------------------------------------------------------

using Kind = ColorControlKind;
constexpr const auto& kText = colorTables.text;
constexpr const auto& kImage = colorTables.image;
constexpr const auto& kGraphics = colorTables.graphics;

constexpr ColorControl
    //                     control                    kind                   field                       profile                            items                              short items
    kImageRgb           = {IDC_IMAGE_RGB_SOURCE,     Kind::kRgbSource,      FIELD(imageRgbSource),      FIELD(imageRgbProfile),            kImage.rgbProfiles.items,          kImage.shortRgbProfiles.items},
    kImageRgbItem       = {IDC_IMAGE_RGB_SOURCE,     Kind::kRgbItems,       FIELD(imageRgbSource),      {},                                kImage.rgbProfiles.items,          kImage.shortRgbProfiles.items},
    kImageMatch         = {IDC_IMAGE_COLOR_MATCH,    Kind::kItems,          FIELD(image.colorMatch),    {},                                kImage.colorMatches.items,         nullptr},
    kImageGray          = {IDC_IMAGE_GRAY,           Kind::kItems,          FIELD(image.gray),          {},                                kImage.grays.items,                nullptr},
    kImageDestination   = {IDC_IMAGE_DESTINATION,    Kind::kDestination,    FIELD(imageDestination),    FIELD(imageDestinationProfile),    kImage.destinations.items,         nullptr},
    kImageHalftone      = {IDC_IMAGE_HALFTONE,       Kind::kItems,          FIELD(image.halftone),      {},                                kImage.halftones.items,            nullptr},
    kTextRgb            = {IDC_TEXT_RGB_SOURCE,      Kind::kRgbSource,      FIELD(textRgbSource),       FIELD(textRgbProfile),             kText.rgbProfiles.items,           kText.shortRgbProfiles.items},
    kTextRgbItem        = {IDC_TEXT_RGB_SOURCE,      Kind::kRgbItems,       FIELD(textRgbSource),       {},                                kText.rgbProfiles.items,           kText.shortRgbProfiles.items},
    kTextMatch          = {IDC_TEXT_COLOR_MATCH,     Kind::kItems,          FIELD(text.colorMatch),     {},                                kText.colorMatches.items,          nullptr},
    kTextGray           = {IDC_TEXT_GRAY,            Kind::kItems,          FIELD(text.gray),           {},                                kText.grays.items,                 nullptr},
    kTextDestination    = {IDC_TEXT_DESTINATION,     Kind::kDestination,    FIELD(textDestination),     FIELD(textDestinationProfile),     kText.destinations.items,          nullptr},
    kTextHalftone       = {IDC_TEXT_HALFTONE,        Kind::kItems,          FIELD(text.halftone),       {},                                kText.halftones.items,             nullptr},
    kGraphicsRgb        = {IDC_GRAPHICS_RGB_SOURCE,  Kind::kRgbSource,      FIELD(graphicsRgbSource),   FIELD(graphicsRgbProfile),         kGraphics.rgbProfiles.items,       kGraphics.shortRgbProfiles.items},
    kGraphicsMatch      = {IDC_GRAPHICS_COLOR_MATCH, Kind::kItems,          FIELD(graphics.colorMatch), {},                                kGraphics.colorMatches.items,      nullptr},
    kGraphicsGray       = {IDC_GRAPHICS_GRAY,        Kind::kItems,          FIELD(graphics.gray),       {},                                kGraphics.grays.items,             nullptr},
    kGraphicsDestination= {IDC_GRAPHICS_DESTINATION, Kind::kDestination,    FIELD(graphicsDestination), FIELD(graphicsDestinationProfile), kGraphics.destinations.items,      nullptr},
    kGraphicsHalftone   = {IDC_GRAPHICS_HALFTONE,    Kind::kItems,          FIELD(graphics.halftone),   {},                                kGraphics.halftones.items,         nullptr},
    kGraphicsFollow     = {IDC_GRAPHICS_LIKE_IMAGES, Kind::kGraphicsChoice, FIELD(graphicsFollow),      {},                                nullptr,                           nullptr, IDC_GRAPHICS_LIKE_TEXT},
    kSimulation         = {IDC_SIMULATION,           Kind::kSimulation,     FIELD(simulation),          FIELD(simulationProfile),          colorTables.simulations.items,     nullptr},
    kPaperColor         = {IDC_MATCH_PAPER_COLOR,    Kind::kCheckBox,       FIELD(matchPaperColor),     {},                                nullptr,                           nullptr},
    kSimulationGray     = {IDC_SIMULATION_GRAY,      Kind::kItemsOrFirst,   FIELD(simulationGray),      {},                                colorTables.simulationGrays.items, nullptr},
    kPageRgbItem        = {IDC_PAGE_RGB_SOURCE,      Kind::kRgbItems,       FIELD(rgbSource),           {},                                colorTables.rgbProfiles.items,     nullptr},
    kPageDestination    = {IDC_PAGE_DESTINATION,     Kind::kDestination,    FIELD(destination),         FIELD(destinationProfile),         colorTables.destinations.items,    nullptr};

// Settings of graphics that follow images or text.
constexpr GraphicsSource
    //              field                       image list              text list              profile                    items
    kFollowRgb   = {FIELD(graphicsRgbSource),   IDC_IMAGE_RGB_SOURCE,   IDC_TEXT_RGB_SOURCE,   FIELD(graphicsRgbProfile), kGraphics.rgbProfiles.items},
    kFollowItem  = {FIELD(graphicsRgbSource),   IDC_IMAGE_RGB_SOURCE,   IDC_TEXT_RGB_SOURCE,   {},                        nullptr},
    kFollowMatch = {FIELD(graphics.colorMatch), IDC_IMAGE_COLOR_MATCH,  IDC_TEXT_COLOR_MATCH,  {},                        nullptr},
    kFollowGray  = {FIELD(graphics.gray),       IDC_IMAGE_GRAY,         IDC_TEXT_GRAY,         {},                        nullptr},
    kNoImageGray = {FIELD(graphics.gray),       0,                      IDC_TEXT_GRAY,         {},                        nullptr},
    kFollowHalf  = {FIELD(graphics.halftone),   IDC_IMAGE_HALFTONE,     IDC_TEXT_HALFTONE,     {},                        nullptr};

// --- IDD_COLOR_FULL: text, images and graphics, each with its own lists ----------------------------------

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
constexpr LayoutRow kFullLayout[] = {
    {IDC_IMAGE_GROUP}, {IDC_IMAGE_RGB_SOURCE}, {IDC_IMAGE_COLOR_MATCH}, {IDC_IMAGE_GRAY},
    {IDC_IMAGE_DESTINATION}, {IDC_IMAGE_HALFTONE},
    {IDC_TEXT_GROUP}, {IDC_TEXT_RGB_SOURCE}, {IDC_TEXT_COLOR_MATCH}, {IDC_TEXT_GRAY},
    {IDC_TEXT_DESTINATION}, {IDC_TEXT_HALFTONE},
    {IDC_GRAPHICS_GROUP}, {IDC_GRAPHICS_RGB_SOURCE}, {IDC_GRAPHICS_COLOR_MATCH}, {IDC_GRAPHICS_GRAY},
    {IDC_GRAPHICS_DESTINATION}, {IDC_GRAPHICS_HALFTONE},
    {IDC_SIMULATION_GROUP}, {IDC_SIMULATION}, {IDC_MATCH_PAPER_COLOR}, {IDC_SIMULATION_GRAY},
    {IDC_DOWNLOAD_MANAGER}, {IDC_MANAGE_PROFILES},
    {IDC_FOOTER_LINE, In::kHelp}, {IDC_DEFAULTS},
};
constexpr auto kFullHelp = HelpOf(kFullLayout);
constexpr auto kFullLocks = LocksOf(kFullLayout);

// --- IDD_COLOR_SIMULATION: no image greys, no destinations; graphics follow images or text ----------------

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
constexpr LayoutRow kSimulationLayout[] = {
    {IDC_IMAGE_GROUP}, {IDC_IMAGE_RGB_SOURCE}, {IDC_IMAGE_COLOR_MATCH}, {IDC_IMAGE_HALFTONE},
    {IDC_TEXT_GROUP}, {IDC_TEXT_RGB_SOURCE}, {IDC_TEXT_COLOR_MATCH}, {IDC_TEXT_GRAY}, {IDC_TEXT_HALFTONE},
    {IDC_GRAPHICS_GROUP}, {IDC_GRAPHICS_LIKE_IMAGES}, {IDC_GRAPHICS_LIKE_TEXT},
    {IDC_SIMULATION_GROUP}, {IDC_SIMULATION}, {IDC_MATCH_PAPER_COLOR}, {IDC_SIMULATION_GRAY},
    {IDC_DOWNLOAD_MANAGER, In::kHelp}, {IDC_MANAGE_PROFILES}, {IDC_DOWNLOAD_MANAGER, In::kLocks},
    {IDC_FOOTER_LINE, In::kHelp}, {IDC_DEFAULTS},
};
constexpr auto kSimulationHelp = HelpOf(kSimulationLayout);
constexpr auto kSimulationLocks = LocksOf(kSimulationLayout);

// --- IDD_COLOR_COMMON_DESTINATION: also image greys and one destination for the page ----------------------

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
// The label of the text's RGB source is not locked.
constexpr LayoutRow kDestinationLayout[] = {
    {IDC_IMAGE_GROUP}, {IDC_IMAGE_RGB_SOURCE}, {IDC_IMAGE_COLOR_MATCH}, {IDC_IMAGE_GRAY},
    {IDC_IMAGE_HALFTONE},
    {IDC_TEXT_GROUP}, {IDC_TEXT_RGB_SOURCE, In::kHelp}, {IDC_TEXT_RGB_SOURCE, In::kLocksWithoutLabel},
    {IDC_TEXT_COLOR_MATCH}, {IDC_TEXT_GRAY}, {IDC_TEXT_HALFTONE},
    {IDC_GRAPHICS_GROUP}, {IDC_GRAPHICS_LIKE_IMAGES}, {IDC_GRAPHICS_LIKE_TEXT},
    {IDC_SIMULATION_GROUP}, {IDC_SIMULATION}, {IDC_MATCH_PAPER_COLOR}, {IDC_SIMULATION_GRAY},
    {IDC_PAGE_DESTINATION_GROUP}, {IDC_PAGE_DESTINATION},
    {IDC_DOWNLOAD_MANAGER, In::kHelp}, {IDC_MANAGE_PROFILES}, {IDC_DOWNLOAD_MANAGER, In::kLocks},
    {IDC_FOOTER_LINE, In::kHelp}, {IDC_DEFAULTS},
};
constexpr auto kDestinationHelp = HelpOf(kDestinationLayout);
constexpr auto kDestinationLocks = LocksOf(kDestinationLayout);

// --- IDD_COLOR_SINGLE_SOURCE: one RGB source for the page; graphics follow images or text ------------------

constexpr ColorControl kSingleControls[] = {
    kPageRgbItem,
    kImageMatch, kImageHalftone,
    kTextMatch, kTextGray, kTextHalftone,
    kGraphicsFollow,
};
constexpr GraphicsSource kSingleFollow[] = {kFollowMatch, kNoImageGray, kFollowHalf};
constexpr DevmodeField kSingleDefaults[] = {FIELD(rgbSource), FIELD(image), FIELD(text), FIELD(graphicsFollow)};
// The RGB source is locked but has no help.
constexpr LayoutRow kSingleLayout[] = {
    {IDC_PAGE_RGB_SOURCE, In::kLocks},
    {IDC_IMAGE_GROUP}, {IDC_IMAGE_COLOR_MATCH}, {IDC_IMAGE_HALFTONE},
    {IDC_TEXT_GROUP}, {IDC_TEXT_COLOR_MATCH}, {IDC_TEXT_GRAY}, {IDC_TEXT_HALFTONE},
    {IDC_GRAPHICS_GROUP}, {IDC_GRAPHICS_LIKE_IMAGES}, {IDC_GRAPHICS_LIKE_TEXT},
    {IDC_FOOTER_LINE, In::kHelp}, {IDC_DEFAULTS},
};
constexpr auto kSingleHelp = HelpOf(kSingleLayout);
constexpr auto kSingleLocks = LocksOf(kSingleLayout);

// --- IDD_COLOR_BASIC: built-in RGB sources only; graphics follow images or text ----------------------------

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
constexpr LayoutRow kBasicLayout[] = {
    {IDC_IMAGE_GROUP}, {IDC_IMAGE_RGB_SOURCE}, {IDC_IMAGE_COLOR_MATCH}, {IDC_IMAGE_GRAY},
    {IDC_IMAGE_HALFTONE},
    {IDC_TEXT_GROUP}, {IDC_TEXT_RGB_SOURCE}, {IDC_TEXT_COLOR_MATCH}, {IDC_TEXT_GRAY}, {IDC_TEXT_HALFTONE},
    {IDC_GRAPHICS_GROUP}, {IDC_GRAPHICS_LIKE_IMAGES}, {IDC_GRAPHICS_LIKE_TEXT},
    {IDC_FOOTER_LINE, In::kHelp}, {IDC_DEFAULTS},
};
constexpr auto kBasicHelp = HelpOf(kBasicLayout);
constexpr auto kBasicLocksA = SettingLocksOf(kBasicControls);
constexpr auto kBasicLocksB = LocksOf(kBasicLayout);

// The variants of a dialog differ in the help topic and in what is locked.
constexpr ColorDialog kDialogs[] = {
    // dialog                       type help  profiles controls              graphics follow     defaults              help table             locks
    {IDD_COLOR_FULL,                0,   6631, true,    kFullControls,        {},                 kFullDefaults,        kFullHelp.rows,        kFullLocks.controls},
    {IDD_COLOR_SIMULATION,          0,   6630, true,    kSimulationControls,  kSimulationFollow,  kSimulationDefaults,  kSimulationHelp.rows,  kSimulationLocks.controls},
    {IDD_COLOR_COMMON_DESTINATION,  0,   6610, true,    kDestinationControls, kDestinationFollow, kDestinationDefaults, kDestinationHelp.rows, kDestinationLocks.controls},
    {IDD_COLOR_SINGLE_SOURCE,       0,   6620, false,   kSingleControls,      kSingleFollow,      kSingleDefaults,      kSingleHelp.rows,      kSingleLocks.controls},
    {IDD_COLOR_BASIC,               3,   6621, false,   kBasicControls,       kBasicFollow,       kBasicDefaults,       kBasicHelp.rows,       kBasicLocksA.controls},
    {IDD_COLOR_BASIC,               0,   6600, false,   kBasicControls,       kBasicFollow,       kBasicDefaults,       kBasicHelp.rows,       kBasicLocksB.controls},
};

} // namespace

// clang-format on

const ColorDialog* FindColorDialog(uint32_t id, const DeviceTable* table) {
    const uint32_t type = SwitchValue(table, kSwitchColorSetting);
    for (const ColorDialog& dialog : kDialogs)
        if (dialog.id == id && (dialog.type == 0 || dialog.type == type))
            return &dialog;
    return nullptr;
}

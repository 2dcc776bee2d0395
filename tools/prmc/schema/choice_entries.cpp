// Entries of the tray selections, the colour settings, the texts of the dialogs and the options.
#include "prmc/schema/entry_keys.h"
#include "prmc/schema/record_kinds.h"

namespace {

// name, kind, characters of a name, limits, default needed
// use
// absence
// example, keys, most items, special keys, facts and their meanings
// clang-format off

constexpr EntryRow kTraySelectionRows[] = {
    {kTraySelectionFeatures[0], &kPlainItem, 47, kNone, true,
     "Paper sources for front covers. The settings start from the bin number of the default.",
     "The list is empty, and the settings start from 0.",
     nullptr, kSelectionKeys<0>},
    {kTraySelectionFeatures[1], &kPlainItem, 47, kNone, true,
     "Paper sources for back covers. The settings start from the bin number of the default.",
     "The list is empty, and the settings start from 0.",
     nullptr, kSelectionKeys<1>},
    {kTraySelectionFeatures[2], &kPlainItem, 47, kNone, false,
     "Paper sources for separator pages. The default is not read.",
     "The list is empty. Nothing in this module reads it.",
     nullptr, kSelectionKeys<2>},
    {kTraySelectionFeatures[3], &kPlainItem, 47, kNone, true,
     "Paper sources for sheets between transparencies. The settings start from the bin number of the "
     "default.",
     "The list is empty, and the settings start from 0.",
     nullptr, kSelectionKeys<3>},
    {kTraySelectionFeatures[4], &kPlainItem, 47, kNone, true,
     "Trays of the post inserter for front covers. The settings start from the bin number of the default.",
     "The list is empty, and the settings start from 0.",
     nullptr, kSelectionKeys<4>},
    {kTraySelectionFeatures[5], &kPlainItem, 47, kNone, true,
     "Trays of the post inserter for back covers. The settings start from the bin number of the default.",
     "The list is empty, and the settings start from 0.",
     nullptr, kSelectionKeys<5>},
    {kTraySelectionFeatures[6], &kPlainItem, 47, kNone, false,
     "Paper sources of single pages. The default is not read.",
     "The list is empty. Nothing in this module reads it.",
     nullptr, kSelectionKeys<6>},
};

constexpr EntryRow kColorRows[] = {
    {"ColorSetting", &kPlainItem, 47, kNone, true,
     "Colour modes. The settings start from the default, whose number is the position of its key below. "
     "Nothing in this module reads the names.",
     "The settings start from Color_Auto.",
     nullptr, kColorModeKeys},
    {"Graphics", &kPlainItem, 47, kNone, true,
     "Whether graphics follow text or images in colour dialogs that have no settings of their own for "
     "graphics. The settings start from the default. Nothing in this module reads the names.",
     "Graphics follow images.",
     nullptr, kGraphicsFollowKeys},
    {"MatchPaperColor", &kPlainItem, 47, kNone, true,
     "Whether a simulation matches the colour of the paper. The settings start from the default. Nothing in "
     "this module reads the names.",
     "It does not.",
     nullptr, kMatchPaperKeys},
    {"RGBProf", &kPlainItem, 47, kNone, true,
     "RGB sources of the whole page. The colour dialog with one source for the page lists them. An item's "
     "number is its position; the default's is the position of its key below, so keep that order. A default "
     "with any other key counts as the first item.",
     "The list has DeviceRGB and sRGB without names, and the settings start from the first.",
     "{key: DeviceRGB, name: Device RGB}\n{key: sRGB, name: sRGB}", {}, kMaxPageProfiles, kPageProfileKeys},
    {"Text_RGBProf", &kPlainItem, 47, kNone, true,
     "RGB sources of text. The colour dialogs list them in the given order; only the first two where the "
     "printer's profiles are not offered. The settings start from the default.",
     "The list has all items below without names, and the settings start from Text_DeviceRGB.",
     nullptr, kColorKeys<kProfileKeys, kTextKeys>},
    {"Text_RGBColorMatch", &kPlainItem, 47, kNone, true,
     "Colour matching of text. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below without names, and the settings start from Text_Vivid.",
     nullptr, kColorKeys<kColorMatchKeys, kTextKeys>},
    {"Text_RGBGray", &kPlainItem, 47, kNone, true,
     "Blacks and greys of text. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below without names, and the settings start from Text_4Color.",
     nullptr, kColorKeys<kGrayKeys, kTextKeys>},
    {"Text_Halftone", &kPlainItem, 47, kNone, true,
     "Halftones of text. The colour dialogs list the items; the settings start from the default. The first "
     "key is a letter short.",
     "The list has all items below without names, and the settings start from the finest detail.",
     nullptr, kColorKeys<kHalftoneKeys, kTextKeys>},
    {"Img_RGBProf", &kPlainItem, 47, kNone, true,
     "RGB sources of images. The colour dialogs list them in the given order; only the first two where the "
     "printer's profiles are not offered. The settings start from the default.",
     "The list has all items below without names, and the settings start from Img_DeviceRGB.",
     nullptr, kColorKeys<kProfileKeys, kImageKeys>},
    {"Img_RGBColorMatch", &kPlainItem, 47, kNone, true,
     "Colour matching of images. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below without names, and the settings start from Img_Vivid.",
     nullptr, kColorKeys<kColorMatchKeys, kImageKeys>},
    {"Img_RGBGray", &kPlainItem, 47, kNone, true,
     "Blacks and greys of images. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below without names, and the settings start from Img_4Color.",
     nullptr, kColorKeys<kGrayKeys, kImageKeys>},
    {"Img_Halftone", &kPlainItem, 47, kNone, true,
     "Halftones of images. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below without names, and the settings start from the finest detail.",
     nullptr, kColorKeys<kHalftoneKeys, kImageKeys>},
    {"Graph_RGBProf", &kPlainItem, 47, kNone, true,
     "RGB sources of graphics. The colour dialogs list them in the given order; only the first two where the "
     "printer's profiles are not offered. The settings start from the default.",
     "The list is empty, and the settings start from Graph_DeviceRGB.",
     nullptr, kColorKeys<kProfileKeys, kGraphicsKeys>},
    {"Graph_RGBColorMatch", &kPlainItem, 47, kNone, true,
     "Colour matching of graphics. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below without names, and the settings start from Graph_Vivid.",
     nullptr, kColorKeys<kColorMatchKeys, kGraphicsKeys>},
    {"Graph_RGBGray", &kPlainItem, 47, kNone, true,
     "Blacks and greys of graphics. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below without names, and the settings start from Graph_4Color.",
     nullptr, kColorKeys<kGrayKeys, kGraphicsKeys>},
    {"Graph_Halftone", &kPlainItem, 47, kNone, true,
     "Halftones of graphics. The colour dialogs list the items; the settings start from the default.",
     "The list has all items below with English names, and the settings start from the finest detail.",
     nullptr, kColorKeys<kHalftoneKeys, kGraphicsKeys>},
    {"SimulationProf", &kPlainItem, 47, kNone, true,
     "Printing processes that can be simulated. The colour dialogs list them, then the printer's profiles. "
     "An item's number is its position; the default's is the position of its key below, so keep that order. "
     "A default with any other key counts as the first item. Give all six: a stored profile is found by its "
     "position after them.",
     "The list has the items below without names, and the settings start from Simu_None.",
     "{key: Simu_None, name: None}\n{key: Simu_SWOP, name: SWOP}\n{key: Simu_Euroscale, name: Euroscale}\n"
     "{key: Simu_CommercialPress, name: Commercial press}\n{key: Simu_TOYO, name: TOYO}\n"
     "{key: Simu_DIC, name: DIC}", {}, kMaxSimulations, kSimulationKeys},
    {"DestinationProf", &kPlainItem, 47, kNone, true,
     "Output profile of the whole page. The colour dialog with one output profile lists the item, then the "
     "printer's profiles. The settings start from the item.",
     "The list has Dest_Auto without a name.",
     "{key: Dest_Auto, name: Automatic}", {}, kMaxPageDestinations, kPageDestinationKeys},
    {"Simu_CMYKGray", &kPlainItem, 47, kNone, true,
     "Blacks and greys of a simulation. The colour dialogs list the items. An item's number is its position; "
     "the default's is the position of its key below, so keep that order. A default with any other key "
     "counts as the first item.",
     "The list has the items below without names, and the settings start from Simu_4Color.",
     "{key: Simu_4Color, name: Four-colour black}", {}, kMaxSimulationGrays, kSimulationGrayKeys},
    {"Text_Destination", &kDestination, 47, kNone, true,
     "Output profile of text. The full colour dialog lists the item, then the printer's profiles. The "
     "settings start from the item.",
     "The list has Text_DestAuto without a name.",
     nullptr, kColorKeys<kDestinationKeys, kTextKeys>},
    {"Img_Destination", &kDestination, 47, kNone, true,
     "Output profile of images. The full colour dialog lists the item, then the printer's profiles. The "
     "settings start from the item.",
     "The list has Img_DestAuto without a name.",
     nullptr, kColorKeys<kDestinationKeys, kImageKeys>},
    {"Graph_Destination", &kDestination, 47, kNone, true,
     "Output profile of graphics. The full colour dialog lists the item, then the printer's profiles. The "
     "settings start from the item.",
     "The list has Graph_DestAuto without a name.",
     nullptr, kColorKeys<kDestinationKeys, kGraphicsKeys>},
};

constexpr EntryRow kDialogTextRows[] = {
    {"Property_0", &kPlainItem, 47, kNone, false,
     "Texts of the property page that the dialogs share. The user-interface module gets them.",
     "The dialogs keep the texts of their templates, as they do for a key without an item.",
     nullptr, kPropertyKeys},
    {"Dlg_ColorSetting", &kPlainItem, 47, kNone, false,
     "Texts of the colour dialogs.",
     "The dialogs keep the texts of their templates, as they do for a key without an item.",
     nullptr, kColorDialogKeys},
    {"Dlg_PaperSourceTraySetting", &kPlainItem, 47, kNone, false,
     "Texts of the tray dialogs and titles of their columns.",
     "The dialogs keep the texts of their templates and English titles, as they do for a key without an "
     "item.",
     nullptr, kTrayDialogKeys},
    {kMediaTypeListEntries[kMediaSize], &kPlainItem, 47, kNone, false,
     "Item for an unknown size in the tray dialogs. It follows those of PaperSize.",
     "The list has no such item.",
     nullptr, kMediaTexts<kMediaSize>},
    {kMediaTypeListEntries[kMediaOrientation], &kPlainItem, 47, kNone, false,
     "Orientations in the tray dialogs. Each is listed if it has a name here.",
     "The tray dialogs offer no orientations.",
     nullptr, kMediaTexts<kMediaOrientation>},
    {kMediaTypeListEntries[kMediaType], &kPlainItem, 47, kNone, false,
     "Item for an unknown type in the tray dialogs. It follows those of MediaType.",
     "The list has no such item.",
     nullptr, kMediaTexts<kMediaType>},
    {kMediaTypeListEntries[kMediaWeight], &kPlainItem, 47, kNone, false,
     "Item for an unknown weight in the tray dialogs. It follows those of MediaWeight.",
     "The list has no such item.",
     nullptr, kMediaTexts<kMediaWeight>},
    {kMediaTypeListEntries[kMediaColor], &kPlainItem, 47, kNone, false,
     "Item for an unknown colour in the tray dialogs. It follows those of MediaColor.",
     "The list has no such item.",
     nullptr, kMediaTexts<kMediaColor>},
    {kMediaTypeListEntries[kMediaPrePunched], &kPlainItem, 47, kNone, false,
     "Item for paper of which it is unknown whether it is pre-punched, in the tray dialogs. It follows those "
     "of MediaPrePunched.",
     "The list has no such item.",
     nullptr, kMediaTexts<kMediaPrePunched>},
};

constexpr EntryRow kOptionRows[] = {
    {"OpMachine", &kPlainItem, 47, kNone, true,
     "Machines of the model. With two or more items the picture shows the name of the selected one. The "
     "bidirectional library reports the key below.",
     "The picture shows no name.",
     "{key: OpMachine1, name: lumora R880}", {}, 0, kMachineKeys},
    {"OpBody", &kPlainItem, 47, kNone, true,
     "Body of the printer. OpBodyPrinter moves the mark of output unit 3 in the picture.",
     "The mark is where it is with any other item.",
     "{key: OpBodyPrinter, name: Printer only}", {}, 0, kBodyKeys},
    {"OpInTray2", &kPlainItem, 47, kNone, true,
     "Whether tray 2 is installed. It is when the key of the selected item starts with EnaOpInTray. The keys "
     "below are those that SNMP queries report.",
     "Tray 2 is always there, if InTray has it.",
     "{key: EnaOpInTray2, name: Installed}", {}, 0, kTray2Keys},
    {"OpInTray3", &kPlainItem, 47, kNone, true,
     "Whether tray 3 is installed. It is when the key of the selected item starts with EnaOpInTray. The keys "
     "below are those that SNMP queries report.",
     "Tray 3 is always there, if InTray has it.",
     "{key: EnaOpInTray3, name: Installed}", {}, 0, kTray3Keys},
    {"OpInTray4", &kPlainItem, 47, kNone, true,
     "Whether tray 4 is installed. It is when the key of the selected item starts with EnaOpInTray. The keys "
     "below are those that SNMP queries report.",
     "Tray 4 is always there, if InTray has it.",
     "{key: EnaOpInTray4, name: Installed}", {}, 0, kTray4Keys},
    {"OpInTray5", &kPlainItem, 47, kNone, true,
     "Whether tray 5 is installed. It is when the key of the selected item starts with EnaOpInTray. The keys "
     "below are those that SNMP queries report.",
     "Tray 5 is always there, if InTray has it.",
     "{key: EnaOpInTray5, name: Installed}", {}, 0, kTray5Keys},
    {"OpInTrayLCT", &kPlainItem, 47, kNone, true,
     "Whether the large-capacity tray is installed. It is when the key of the selected item starts with "
     "EnaOpInTray. No query reports it.",
     "The tray is always there, if InTray has it.",
     "{key: EnaOpInTrayLCT, name: Installed}"},
    {"OpInTrayUnit", &kPlainItem, 47, kNone, true,
     "Paper input unit. The picture shows OpInTrayUnit1. The bidirectional library reports the keys below.",
     "The picture shows none.",
     "{key: OpInTrayUnit1, name: Large-capacity unit}", {}, 0, kInUnitKeys},
    {"OpOutTrayUnit", &kPlainItem, 47, kNone, true,
     "Output unit. The picture shows units 1 to 4 and marks their outputs; the driver reports to the system "
     "that the printer staples, unless DisOpOutTrayUnit is selected. The bidirectional library reports units "
     "1 and 2 and DisOpOutTrayUnit.",
     "The picture shows none, and the driver reports that the printer does not staple.",
     "{key: OpOutTrayUnit1, name: Finisher}", {}, 0, kOutUnitKeys},
    {"OpPunchKit", &kPlainItem, 47, kNone, true,
     "Punch kit. The bidirectional library reports the keys below; nothing else in this module reads the "
     "option.",
     "Nothing changes in this module.",
     "{key: OpPunchKit1, name: Punch kit with 2 holes}", {}, 0, kPunchKeys},
    {"OpMailBinKit", &kPlainItem, 47, kNone, true,
     "Mail bins. The picture shows EnaOpMailBinKit on output units 1 and 2. The bidirectional library "
     "reports the keys below.",
     "The picture shows none.",
     "{key: EnaOpMailBinKit, name: Mail bins}", {}, 0, kMailBinKeys},
    {"OpSaddleKit", &kPlainItem, 47, kNone, true,
     "Saddle kit. The picture shows EnaSaddleKit on output units 1 and 2 without mail bins. The "
     "bidirectional library reports the keys below.",
     "The picture shows none.",
     "{key: EnaSaddleKit, name: Saddle kit}", {}, 0, kSaddleKeys},
    {"OpFAXUnit", &kPlainItem, 47, kNone, true,
     "Fax unit. The bidirectional library reports the keys below; nothing else in this module reads the "
     "option.",
     "Nothing changes in this module.",
     "{key: EnaOpFAXKit, name: Installed}", {}, 0, kFaxKeys},
    {"OpHDD", &kPlainItem, 47, kNone, true,
     "Hard disk. A badge of the picture shows EnaOpHDD; queries by SNMP and the bidirectional library report "
     "the keys below.",
     "The badge says that there is none.",
     "{key: EnaOpHDD, name: Installed}", {}, 0, kDiskKeys},
};

// clang-format on

} // namespace

const Rows<EntryRow> kTraySelectionEntries = kTraySelectionRows;
const Rows<EntryRow> kColorEntries = kColorRows;
const Rows<EntryRow> kDialogTextEntries = kDialogTextRows;
const Rows<EntryRow> kOptionEntries = kOptionRows;

// Entries about the device, paper, trays, finishing and output.
#include "prmc/schema/entry_keys.h"
#include "prmc/schema/record_kinds.h"

namespace {

constexpr const char* kDeviceFactMeanings[] = {
    "Pages per minute.",
    "The speed in the unit of the next row.",
    "Unit of PrintRate.",
    "Whether there is a stapler.",
    "Whether it is a colour device. Otherwise the default watermark is grey.",
    "Versions of the two page description languages, the first two numbers of the text.",
    "How the machine encrypts.",
};
static_assert(Rows(kDeviceFactMeanings).count == Rows(kDeviceFacts).count);
constexpr const char* kFigureFactMeanings[] = {
    "MFP: custom sizes are also stored in thousandths of an inch. OTHER: in hundredths.",
};
static_assert(Rows(kFigureFactMeanings).count == Rows(kFigureFacts).count);

// name, kind, characters of a name, limits, default needed
// use
// absence
// example, keys, most items, special keys, facts and their meanings
// clang-format off

constexpr EntryRow kDeviceRows[] = {
    {"FeatureSetting", &kTable, 0, kNone, false,
     "Turns the features of the model on. The device table has a switch for each; the rows say which of them "
     "this module reads, all others are for the generic modules.",
     "All features are off, as is a feature without a row.",
     "BindingEdge: 4Bind\nPoster: Enable\nTrim: Disable"},
    {"Copies", &kRange, 0, kPlus16, false,
     "Number of copies. The limits are for the generic modules, through the device table; the settings start "
     "from the default.",
     "The limits are 0, and the settings start from one copy.",
     "{min: 1, max: 9999, default: 1}"},
    {"UserPaper_Width", &kRange, 0, kPlus16, false,
     "Width of custom paper, in tenths of a millimetre. The limits are for the generic modules, through the "
     "device table; the settings start from the default, of the paper and of the output. It is also stored "
     "in inches, in the unit that PaperSizeFigure selects.",
     "The limits are 0, and the settings start from 0.",
     "{min: 900, max: 3110, default: 2100}"},
    {"UserPaper_Length", &kRange, 0, kPlus16, false,
     "Length of custom paper, in tenths of a millimetre. The limits are for the generic modules, through the "
     "device table; the settings start from the default, of the paper and of the output. It is also stored "
     "in inches, in the unit that PaperSizeFigure selects.",
     "The limits are 0, and the settings start from 0.",
     "{min: 1397, max: 4572, default: 2970}"},
    {"BindShift_Front", &kRange, 0, kShift, false,
     "Shift of the image for binding, on front sides, in tenths of a millimetre. The settings start from the "
     "default, also stored in thousandths of an inch. Nothing in this module reads the limits. When front "
     "and back start from the same shift, the settings are marked so.",
     "The settings start from no shift.",
     "{min: -300, max: 300, default: 0}"},
    {"BindShift_Back", &kRange, 0, kShift, false,
     "Shift of the image for binding, on back sides, in tenths of a millimetre. The settings start from the "
     "default, also stored in thousandths of an inch. Nothing in this module reads the limits.",
     "The settings start from no shift.",
     "{min: -300, max: 300, default: 0}"},
    {"ImgShiftMFP_FrontH", &kRange, 0, kShiftM, false,
     "Shift of the image across front sides, in whole millimetres. The settings start from the default, "
     "stored in tenths of a millimetre and in thousandths of an inch. Nothing in this module reads the "
     "limits.",
     "The settings start from no shift.",
     "{min: -250, max: 250, default: 0}"},
    {"ImgShiftMFP_FrontV", &kRange, 0, kShiftM, false,
     "Shift of the image down front sides, in whole millimetres. The settings start from the default, stored "
     "in tenths of a millimetre and in thousandths of an inch. Nothing in this module reads the limits.",
     "The settings start from no shift.",
     "{min: -250, max: 250, default: 0}"},
    {"ImgShiftMFP_BackH", &kRange, 0, kShiftM, false,
     "Shift of the image across back sides, in whole millimetres. The settings start from the default, "
     "stored in tenths of a millimetre and in thousandths of an inch. Nothing in this module reads the "
     "limits.",
     "The settings start from no shift.",
     "{min: -250, max: 250, default: 0}"},
    {"ImgShiftMFP_BackV", &kRange, 0, kShiftM, false,
     "Shift of the image down back sides, in whole millimetres. The settings start from the default, stored "
     "in tenths of a millimetre and in thousandths of an inch. Nothing in this module reads the limits.",
     "The settings start from no shift.",
     "{min: -250, max: 250, default: 0}"},
    {"DivideFinish", &kRange, 0, kS16, false,
     "Number of copies in a set of a divided job. The settings start from the default. Nothing in this "
     "module reads the limits.",
     "The settings start from 0.",
     "{min: 1, max: 9999, default: 1}"},
    {"DevInfo", &kTable, 0, kNone, false,
     "Facts about the device. They are for the generic modules, through the device table; this module itself "
     "reads only ColorDevice.",
     "All facts are 0: no speed, no stapler, no colour. A fact without a row is 0, too.",
     "PrintRatePPM: 35\nColorDevice: \"TRUE\"\nPDLType: PCL6 PS3",
     {}, 0, {}, kDeviceFacts, kDeviceFactMeanings},
    {"MachineInfo", &kMachine, 0, kNone, false,
     "Names and details of the machines. They are for the generic modules, through the device table; nothing "
     "in this module reads them.",
     "There are no machines."},
    {"PaperSizeFigure", &kTable, 0, kNone, false,
     "How custom sizes are stored in inches. The device table has it, too.",
     "Custom sizes are stored in hundredths of an inch, as with OTHER.",
     "FigureType: MFP", {}, 0, {}, kFigureFacts, kFigureFactMeanings},
    {"Country", &kCountry, 0, kNone, false,
     "The country. It is for the generic modules, through the device table; nothing in this module reads it.",
     "The device table has 0."},
};

constexpr EntryRow kPaperRows[] = {
    {"PaperSize", &kPaper, 47, kU16, true,
     "Paper sizes. The settings start from the default: number, measures and margins; from Letter (value 1) "
     "or A4 (value 9), according to the user's region, where the list has it and the print queue stores no "
     "settings. The tray dialogs list the sizes. A printer reports what lies in its trays by the keys "
     "below, except UserPaper, which describes custom paper.",
     "The list is empty, the tray dialogs offer no sizes, and the settings start from A4 with margins of 4.3 "
     "mm.",
     nullptr, {}, 0, kPaperKeys},
    {"OutPaperSize", &kOutputPaper, 47, kU16, true,
     "Paper sizes of the output. The settings start from the default; value 357 takes the measures of the "
     "paper size. The list is for the generic modules.",
     "The list is empty, and the settings start from the size of the original (357), with the measures of "
     "A4."},
    {"MediaType", &kMediaItem, 31, kU16, true,
     "Paper types. The settings start from the default, also for each tray. The tray dialogs list the types. "
     "A printer reports what lies in its trays by the keys below.",
     "The list is empty, the tray dialogs offer no types, and the settings start from type 257.",
     nullptr, {}, 0, kMediaTypeKeys},
    {"InTray", &kPaperSource, 31, kU16, true,
     "Paper sources of the model. The driver reports bin numbers and names, cut to 23 characters, to the "
     "system. It leaves out sources that are not installed: those whose option, \"Op\" and the key of the "
     "source, says so. The tray dialogs have a row for each of the first ten that are not the automatic "
     "choice. The settings start from the default. The picture marks the sources with the keys below.",
     "The driver reports no bins, the tray dialogs have no rows, and the settings start from the automatic "
     "choice (7).",
     nullptr, {}, 0, kMarkedSources},
    {"ALL_InTray", &kMediaItem, 31, kU16, false,
     "Bin numbers and words of all paper sources that tray selections can name. The driver takes value and "
     "text of the sources with the keys below and ignores other items. The default and the names are not "
     "read.",
     "The sources keep the bin numbers that are compiled in.",
     "{key: InTray1, name: Tray 1, value: 257, text: TRAY1}", {}, 0, kSourceKeys, {}, {}, kPaperSources},
    {"MediaTypeList_Tray", &kPlainItem, 31, kNone, false,
     "Names of the trays in the device table. A key ends in the key of its tray in InTray; the rest may be "
     "any characters. They are for the generic modules: the tray dialogs show the names of InTray.",
     "The device table has no rows for the trays.",
     "{key: MediaTypeList_InTray1, name: Tray 1}"},
    {"OutputTray", &kTextItem, 47, kU16, true,
     "Output trays. The settings start from the default; the list is for the generic modules.",
     "The list is empty, and the settings start from 0.",
     "{key: OutTrayAuto, name: Default, value: 0, text: DEFAULT}"},
    {"MediaWeight", &kTextItem, 31, kU16, true,
     "Paper weights. The settings start from the default, also for each tray. The tray dialog lists the "
     "weights if the feature MediaWeight is on.",
     "The list is empty, and the settings start from 0.",
     "{key: MW_60_90, name: 60-90 g/m², value: 0, text: \"60\"}"},
    {"MediaColor", &kTextItem, 31, kU16, true,
     "Paper colours. The settings start from the default, also for each tray. The tray dialogs list the "
     "colours if the feature MediaColor is on.",
     "The list is empty, and the settings start from 0.",
     "{key: MC_White, name: White, value: 0, text: WHITE}"},
    {"MediaPrePunched", &kTextItem, 31, kU8, true,
     "Whether paper is pre-punched. The settings start from the default, also for each tray. The tray "
     "dialogs list the items if the feature MediaPrePunched is on.",
     "The list is empty, and the settings start from 0.",
     "{key: PP_Off, name: Not punched, value: 0, text: \"OFF\"}"},
    {"TabPaperPaperSize", &kTabPaper, 47, kU32, false,
     "Sizes of paper with tabs. The list is for the generic modules; nothing in this module reads it, nor "
     "the default.",
     "The list is empty. Nothing in this module reads it."},
    {"PaperOption1", &kOption, 47, kU8, true,
     "Paper option 1. The settings start from the default; the driver reads no other item.",
     "The settings start from 0.",
     "{key: PaperOpt1_Off, name: Standard, value: 0}"},
    {"PaperOption2", &kOption, 47, kU8, true,
     "Paper option 2. The settings start from the default; the driver reads no other item.",
     "The settings start from 0.",
     "{key: PaperOpt2_Off, name: Standard, value: 0}"},
};

constexpr EntryRow kFinishingRows[] = {
    {"Resolution", &kResolution, 31, kNone, true,
     "Resolutions. The settings start from the default: its position in the list, its values, and the number "
     "in its key, which starts after the fifth character, as in Reso_600dpi. The list is for the generic "
     "modules.",
     "The list is empty, and the settings start from 0."},
    {"Combination", &kTextItem, 31, kU8, true,
     "Pages on one sheet, and posters. The settings start from the default; the list is for the generic "
     "modules.",
     "The list is empty, and the settings start from 0.",
     "{key: Comb_2in1, name: 2 in 1, value: 1, text: \"2\"}"},
    {"Folding", &kTextItem, 31, kU8, true,
     "Ways of folding. The settings start from the default; the list is for the generic modules.",
     "The list is empty, and the settings start from 0.",
     "{key: Fold_Off, name: \"Off\", value: 0, text: NONE}"},
    {"HolePunch", &kTextItem, 31, kU8, true,
     "Ways of punching holes. The settings start from the default; the list is for the generic modules.",
     "The list is empty, and the settings start from 0.",
     "{key: Punch_2Hole, name: 2 holes, value: 1, text: \"2\"}"},
    {"OutputOrder", &kTextItem, 31, kU8, true,
     "Orders of the output. The settings start from the default; the list is for the generic modules.",
     "The list is empty, and the settings start from 0.",
     "{key: OutOrder_FaceDown, name: Face down, value: 0, text: FACEDOWN}"},
    {"Staple", &kTextItem, 31, kU8, true,
     "Ways of stapling. The settings start from the default; the list is for the generic modules.",
     "The list is empty, and the settings start from 0.",
     "{key: Staple_LeftCorner, name: Left corner, value: 1, text: LEFT}"},
    {"Collate", &kCollateItem, 47, kU8, true,
     "Ways of sorting copies. The settings start from the default; the list is for the generic modules.",
     "The list is empty, and the settings start from 0."},
    {"OHP_Interleave", &kTextItem, 47, kU32, false,
     "Sheets between transparencies. The list is for the generic modules; nothing in this module reads it, "
     "nor the default.",
     "The list is empty. Nothing in this module reads it.",
     "{key: OHPInt_Blank, name: Blank sheet, value: 1, text: BLANK}"},
    {"PaperArrangement", &kTextItem, 47, kU32, false,
     "Arrangements of the paper. The list is for the generic modules; nothing in this module reads it, nor "
     "the default.",
     "The list is empty. Nothing in this module reads it.",
     "{key: Arrange_Speed, name: Productivity first, value: 1, text: PRODUCTIVITY}"},
    {"PerPageListPrintType", &kTextItem, 31, kU32, false,
     "Print types of single pages. The list is for the generic modules; nothing in this module reads it, nor "
     "the default.",
     "The list is empty. Nothing in this module reads it.",
     "{key: PPT_1Sided, name: One-sided, value: 1, text: SIMPLEX}"},
    {"PerPageListStaple", &kTextItem, 31, kU32, false,
     "Ways of stapling single pages. The list is for the generic modules; nothing in this module reads it, "
     "nor the default.",
     "The list is empty. Nothing in this module reads it.",
     "{key: PPStaple_LeftCorner, name: Left corner, value: 1, text: LEFT}"},
};

constexpr EntryRow kOutputRows[] = {
    {"OutputMethod", &kTextItem, 47, kU32, false,
     "What becomes of the job: print, store and so on. The list is for the generic modules; nothing in this "
     "module reads it, nor the default.",
     "The list is empty. Nothing in this module reads it.",
     "{key: OutMethod_Print, name: Print, value: 0, text: PRINT}"},
    {"OvlForm_Location", &kTextItem, 47, kU32, true,
     "Where overlays may be stored. The settings start from the default; the list is for the generic "
     "modules. A printer reports where its overlays are by the keys below.",
     "The list is empty, and the settings start from 0.",
     "{key: OvlForm_Memory, name: Memory, value: 3, text: RAM}", {}, 0, kOverlayPlaces},
    {"Prof_Location", &kTextItem, 47, kU32, true,
     "Where colour profiles may be stored. The settings start from the default, for each of the profiles. "
     "The colour dialogs show the name after that of a profile with this location. A printer reports where "
     "its profiles are by the keys below.",
     "The list is empty, the colour dialogs show no locations, and the settings start from 0.",
     "{key: Prof_Memory, name: Memory, value: 3, text: RAM}", {}, 0, kProfilePlaces},
    {"ExcelJobCtrl", &kOption, 47, kU32, true,
     "How a spreadsheet becomes jobs. The default's value is in the device table, for the generic modules; "
     "the driver reads no other item.",
     "The device table has 1.",
     "{key: ExcelJob_Together, name: One job for the whole workbook, value: 1}"},
    {"Watermark", &kWatermark, 0, kNone, true,
     "Watermarks. The settings start from the default: its position in the list and all its fields; of "
     "WM_None the position alone. Nothing in this module reads the other items.",
     "The settings start from position 0 with no watermark.",
     nullptr, {}, 0, kNoWatermarkKeys},
};

// clang-format on

} // namespace

const Rows<EntryRow> kDeviceEntries = kDeviceRows;
const Rows<EntryRow> kPaperEntries = kPaperRows;
const Rows<EntryRow> kFinishingEntries = kFinishingRows;
const Rows<EntryRow> kOutputEntries = kOutputRows;

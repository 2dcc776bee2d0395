// The kinds of records with their fields. Offsets come from the record layouts.
#include "prmc/schema/record_kinds.h"

#include "paramdata/prm_layout.h"

namespace {

using T = FieldType;
using F = Form;

// name, meaning
// type, needed, offset, count, limits, link, width
// clang-format off
constexpr Field kKey = {"key", "Names the item inside the driver.",
                        T::kKey, true, offsetof(PrmItemHead, key)};
constexpr Field kName = {"name", "What the user reads. \"\" is an empty name.",
                         T::kName, true, offsetof(PrmItemHead, display)};

constexpr Field kPlainFields[] = {
    kKey,
    kName,
};
constexpr Field kDestFields[] = {
    kKey,
    {"name", "What the user reads. Without it the item keeps the text that it had, which is empty at first.",
     T::kName, false, offsetof(PrmItemHead, display)},
};
constexpr Field kTextFields[] = {
    kKey,
    kName,
    {"value", "The item's number in the settings and for the generic modules.",
     T::kNumbers, true, offsetof(PrmTextItem, value)},
    {"text", "The printer's word for the item, for the generic modules.",
     T::kText, false, offsetof(PrmTextItem, text), 128},
};
constexpr Field kMediaFields[] = {
    kKey,
    kName,
    {"value", "The item's number in the settings and for the generic modules.",
     T::kNumbers, true, offsetof(PrmMediaItem, value)},
    {"text", "The printer's word for the item, for the generic modules.",
     T::kText, false, offsetof(PrmMediaItem, text), 128},
};
constexpr Field kTrayFields[] = {
    kKey,
    kName,
    {"value",
     "The bin number that the system and the settings use. Numbers below 256 are the system's, the others "
     "the model's own. The number that ALL_InTray gives to InTrayAuto (7 without it) is the automatic choice, "
     "not a tray.",
     T::kNumbers, true, offsetof(PrmMediaItem, value)},
    {"enabled",
     "1 or true: the source is listed. 0 or false: it ends the list, so that those after it are hidden, "
     "too.",
     T::kNumbers, true, offsetof(PrmMediaItem, extra), 1, kFlag},
    {"text", "The printer's word for the source, for the generic modules.",
     T::kText, false, offsetof(PrmMediaItem, text), 128},
};
constexpr Field kCollateFields[] = {
    kKey,
    kName,
    {"value", "The item's number in the settings and for the generic modules.",
     T::kNumbers, true, offsetof(PrmMediaItem, value)},
    {"extra", "A number for the generic modules; lumora_r880.yaml has 1 where sets may be offset.",
     T::kNumbers, false, offsetof(PrmMediaItem, extra), 1, kU32},
    {"text", "The printer's word for the item, for the generic modules.",
     T::kText, false, offsetof(PrmMediaItem, texts[0]), 64},
    {"secondText", "A second word of the printer's.",
     T::kText, false, offsetof(PrmMediaItem, texts[1]), 64},
};
constexpr Field kOptionFields[] = {
    kKey,
    kName,
    {"value", "The item's number in the settings and for the generic modules.",
     T::kNumbers, true, offsetof(PrmTabPaper, value)},
};
constexpr Field kTabPaperFields[] = {
    kKey,
    kName,
    {"value", "Number of the paper size, as in PaperSize.",
     T::kNumbers, true, offsetof(PrmTabPaper, value)},
    {"values",
     "Three numbers for the generic modules; lumora_r880.yaml has width and length without the tab and the "
     "width of the tab, in tenths of a millimetre.",
     T::kNumbers, false, offsetof(PrmTabPaper, values), 3, kU32},
};
constexpr Field kResolutionFields[] = {
    kKey,
    kName,
    {"values",
     "Three numbers that the settings get with the resolution: dots per inch across and down, bits per "
     "dot.",
     T::kNumbers, true, offsetof(PrmResolution, values), 3, kU16},
};
constexpr Field kOutputPaperFields[] = {
    kKey,
    kName,
    {"secondName", "A longer text for the user, such as the measures.",
     T::kName, true, offsetof(PrmOutputPaper, secondDisplay)},
    {"value", "Number of the paper size, as in PaperSize. 357 is the size of the original.",
     T::kNumbers, true, offsetof(PrmOutputPaper, value)},
    {"width", "Width in tenths of a millimetre. The driver reads it of the default item.",
     T::kNumbers, true, offsetof(PrmOutputPaper, width), 1, kU16},
    {"length", "Length in tenths of a millimetre. The driver reads it of the default item.",
     T::kNumbers, true, offsetof(PrmOutputPaper, length), 1, kU16},
    {"values", "Two numbers for the generic modules, as in PaperSize.",
     T::kNumbers, false, offsetof(PrmOutputPaper, values), 2, kU32},
};
constexpr Field kPaperFields[] = {
    kKey,
    kName,
    {"secondName", "A longer text for the user, such as the measures.",
     T::kName, true, offsetof(PrmPaper, secondDisplay)},
    {"value",
     "The system's number of the paper size if it has one, which is below 256; otherwise a number of the "
     "model's own, 256 or more.",
     T::kNumbers, true, offsetof(PrmPaper, value)},
    {"width", "Width in tenths of a millimetre; of UserPaper the least.",
     T::kNumbers, true, offsetof(PrmPaper, width), 1, kU16},
    {"length", "Length in tenths of a millimetre; of UserPaper the least.",
     T::kNumbers, true, offsetof(PrmPaper, length), 1, kU16},
    {"further",
     "Two more sizes. The driver takes those of UserPaper: greatest width and length, in tenths of a "
     "millimetre.",
     T::kNumbers, false, offsetof(PrmPaper, furtherSizes), 2, kU32},
    {"geometry1", "Geometry set 1: meaning unknown, passed on to the generic modules when it is given.",
     T::kNumbers, false, offsetof(PrmPaper, geometry1), 18, kU32, offsetof(PrmPaper, hasGeometry1)},
    {"geometry2", "Geometry set 2: meaning unknown, passed on to the generic modules when it is given.",
     T::kNumbers, false, offsetof(PrmPaper, geometry2), 2, kU32, offsetof(PrmPaper, hasGeometry2)},
    {"margins",
     "Margins that can't be printed, in tenths of a millimetre. Passed on when they are given, zeros "
     "included; the default settings take 0 when they are not.",
     T::kNumbers, false, offsetof(PrmPaper, margins), 4, kU16, offsetof(PrmPaper, hasMargins)},
    {"geometry4", "Geometry set 4: meaning unknown, passed on to the generic modules when it is given.",
     T::kNumbers, false, offsetof(PrmPaper, geometry4), 30, kU32, offsetof(PrmPaper, hasGeometry4)},
    {"geometry5", "Geometry set 5: meaning unknown, passed on to the generic modules when it is given.",
     T::kNumbers, false, offsetof(PrmPaper, geometry5), 4, kU32, offsetof(PrmPaper, hasGeometry5)},
    {"text", "The printer's name of the size.",
     T::kText, false, offsetof(PrmPaper, text), 128},
    {"values",
     "Two numbers for the generic modules; lumora_r880.yaml has the printer's code of the size, and 1 for "
     "a size that trays detect.",
     T::kNumbers, false, offsetof(PrmPaper, values), 2, kU32},
    {"shortName",
     "A short name for the generic modules. The size counts as complete when shortName, longValues (none "
     "of them 0) and longText are given.",
     T::kText, false, offsetof(PrmPaper, shortName), 32},
    {"longValues",
     "Three numbers for the generic modules; lumora_r880.yaml has width, length and code of the size.",
     T::kNumbers, false, offsetof(PrmPaper, longValues), 3, kU32},
    {"longText", "A description for the generic modules.",
     T::kText, false, offsetof(PrmPaper, longText), 128},
};
constexpr Field kWatermarkFields[] = {
    kKey,
    {"name", "Name of the watermark, for the user.",
     T::kName, true, offsetof(PrmWatermark, name), 31},
    {"text", "The words that are printed.",
     T::kName, true, offsetof(PrmWatermark, text), 128},
    {"font", "Name of the font.",
     T::kName, true, offsetof(PrmWatermark, font), 31},
    {"values",
     "Two numbers for the generic modules; lumora_r880.yaml has type size in points and angle in degrees.",
     T::kNumbers, false, offsetof(PrmWatermark, values1), 2, kU16},
    {"color",
     "Red, green and blue. Without ColorDevice in DevInfo the default settings get grey (128, 128, 128) "
     "instead.",
     T::kNumbers, false, offsetof(PrmWatermark, color), 3, kU8, 0, 1},
    {"value2", "A number for the generic modules; lumora_r880.yaml has 1 for bold, 2 for italic, 3 for both.",
     T::kNumbers, false, offsetof(PrmWatermark, value2), 1, kU16},
    {"block",
     "Two numbers for the generic modules; lumora_r880.yaml has the distances right of and below the "
     "middle of the sheet, in tenths of a millimetre.",
     T::kNumbers, false, offsetof(PrmWatermark, block), 2, kS32},
    {"value3", "A number for the generic modules; lumora_r880.yaml has 1 for the first sheet only.",
     T::kNumbers, false, offsetof(PrmWatermark, value3), 1, kU16},
};
constexpr Field kTableFields[] = {
    {"rows", "The rows, each NAME: VALUE.",
     T::kPairs, true, offsetof(PrmTableHeader, rowCount), 32, {}, offsetof(PrmTableHeader, firstRow)},
};
constexpr Field kRangeFields[] = {
    {"min", "The least value.",
     T::kNumbers, true, offsetof(PrmRange, valueB)},
    {"max", "The greatest value.",
     T::kNumbers, true, offsetof(PrmRange, valueA)},
    {"default", "The value that the settings start from.",
     T::kNumbers, true, offsetof(PrmRange, defaultValue)},
};
constexpr Field kMachineFields[] = {
    {"name", "Name of the machine, for the generic modules.",
     T::kText, true, offsetof(PrmMachine, name), 16},
    {"details", "Texts by name, for the generic modules.",
     T::kPairs, false, offsetof(PrmMachine, detailCount), 16, {}, offsetof(PrmMachine, firstDetail)},
};
constexpr Field kCountryFields[] = {
    {"value", "The country's number.",
     T::kNumbers, true, offsetof(PrmCountry, value), 1, kU32},
};

constexpr size_t kNext = offsetof(PrmItemDescriptor, next);

} // namespace

// label, form, size, fields
// example, link to the next item
const Kind kPlainItem = {"plain item", F::kList, sizeof(PrmItemDescriptor), kPlainFields,
                         "{key: A_Key, name: Text that the user reads}", kNext};
const Kind kDestination = {"destination", F::kList, sizeof(PrmItemDescriptor), kDestFields,
                           "{key: A_Key, name: Automatic}", kNext};
const Kind kTextItem = {"item with text", F::kList, sizeof(PrmTextItem), kTextFields,
                        "{key: MC_White, name: White, value: 0, text: WHITE}"};
const Kind kMediaItem = {"media item", F::kList, sizeof(PrmMediaItem), kMediaFields,
                         "{key: Plain, name: Plain paper, value: 257, text: PLAIN}"};
const Kind kPaperSource = {"paper source", F::kList, sizeof(PrmMediaItem), kTrayFields,
                           "{key: InTray1, name: Tray 1, value: 257, enabled: 1, text: TRAY1}"};
const Kind kCollateItem = {"collate item", F::kList, sizeof(PrmMediaItem), kCollateFields,
                           "{key: Collate_On, name: Sort, value: 1, extra: 1, text: \"ON\", "
                           "secondText: SORT}"};
const Kind kOption = {"option", F::kList, sizeof(PrmTabPaper), kOptionFields,
                      "{key: PaperOpt1_Off, name: Standard, value: 0}"};
const Kind kTabPaper = {"tab paper", F::kList, sizeof(PrmTabPaper), kTabPaperFields,
                        "{key: TabPaper_A4, name: A4 with tab, value: 9, values: [2100, 2970, 127]}"};
const Kind kResolution = {"resolution", F::kList, sizeof(PrmResolution), kResolutionFields,
                          "{key: Reso_600dpi, name: 600 x 600 dpi, values: [600, 600, 8]}"};
const Kind kOutputPaper = {"output paper", F::kList, sizeof(PrmOutputPaper), kOutputPaperFields,
                           "{key: SAMEASPAPER, name: Same as original, secondName: \"\", value: 357, "
                           "width: 2100, length: 2970}"};
const Kind kPaper = {"paper", F::kList, sizeof(PrmPaper), kPaperFields,
                     "{key: A4, name: A4, secondName: 210 x 297 mm, value: 9, width: 2100, length: 2970, "
                     "margins: [43, 43, 43, 43]}"};
const Kind kWatermark = {"watermark", F::kList, sizeof(PrmWatermark), kWatermarkFields,
                         "{key: WM_Draft, name: Draft, text: DRAFT, font: Arial, values: [120, 45], "
                         "color: [160, 160, 160]}"};
const Kind kMachine = {"machine", F::kList, sizeof(PrmMachine), kMachineFields,
                       "{name: lumora R880, details: {Engine: 35 ppm colour}}"};
const Kind kTable = {"name/value table", F::kTable, sizeof(PrmTableHeader), kTableFields,
                     "PrintRate: 35"};
const Kind kRange = {"range", F::kRange, sizeof(PrmRange), kRangeFields,
                     "{min: 0, max: 300, default: 0}"};
const Kind kCountry = {"country", F::kSingle, sizeof(PrmCountry), kCountryFields,
                       "{value: 1}"};
// clang-format on

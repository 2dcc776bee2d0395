// The tables of the schema. Offsets come from the record layouts, keys from the driver's tables.
#include "prmc/schema.h"

#include "common/text.h"
#include "paramdata/color_keys.h"
#include "paramdata/control_text_keys.h"
#include "paramdata/media_list_keys.h"
#include "paramdata/paper_sources.h"
#include "paramdata/prm_layout.h"

namespace {

using T = FieldType;
using F = Form;

// --- Item keys. The driver ignores an item with an unknown key, or takes 0 for its value.

template <size_t Most>
struct KeyList {
    const char* keys[Most];
    size_t count;

    constexpr operator Rows<const char*>() const { return {keys, count}; }
};

// The keys that `keyOf` returns for the rows; empty ones are left out.
template <typename Row, size_t Count, typename KeyOf>
constexpr KeyList<Count> KeysIn(const Row (&rows)[Count], const KeyOf& keyOf) {
    KeyList<Count> list = {};
    for (const Row& row : rows)
        if (const char* key = keyOf(row); key[0] != 0)
            list.keys[list.count++] = key;
    return list;
}

// The keys of one tray selection, by its position in kTraySelectionFeatures.
template <size_t Selection>
constexpr auto kSelectionKeys = KeysIn(kPaperSources, [](const PaperSourceRow& source) {
    return source.selectionKeys[Selection];
});

template <const auto& Table, ColorKeyColumn Column>
constexpr auto kColorKeys = KeysIn(Table, [](const ColorKeyRow& row) { return row.keys[Column]; });

constexpr const char* KeyOfText(const ControlTextRow& row) {
    return row.key;
}
constexpr auto kPropertyKeys = KeysIn(kPropertyTexts, KeyOfText);
constexpr auto kColorDialogKeys = KeysIn(kColorDialogTexts, KeyOfText);
constexpr auto kTrayDialogKeys = KeysIn(kTrayDialogTexts, KeyOfText);

template <MediaTypeList List>
constexpr auto kMediaTexts = KeysIn(kMediaTextItems, [](const MediaTextItem& item) {
    return item.list == List ? item.key : "";
});

// --- The record kinds

// clang-format off
constexpr Limits kNone   = {};
constexpr Limits kFlag   = {0, 1};
constexpr Limits kU8     = {0, UINT8_MAX};
constexpr Limits kU16    = {0, UINT16_MAX};
constexpr Limits kU32    = {0, UINT32_MAX};
constexpr Limits kS16    = {INT16_MIN, INT16_MAX};
constexpr Limits kS32    = {INT32_MIN, INT32_MAX};
constexpr Limits kPlus16 = {0, INT16_MAX};
// Shifts in tenths of a millimetre and in millimetres. The settings also store them as thousandths of an inch
// in signed 16 bits.
constexpr Limits kShift  = {-8322, 8322};
constexpr Limits kShiftM = {-832, 832};

//   name         type         needed offset                           count limits flag or link, width

constexpr Field kPlainFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
};
constexpr Field kDestFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    false, offsetof(PrmItemHead, display)},
};
constexpr Field kTextFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmTextItem, value)},
    {"text",       T::kText,    false, offsetof(PrmTextItem, text),      128},
};
constexpr Field kMediaFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmMediaItem, value)},
    {"text",       T::kText,    false, offsetof(PrmMediaItem, text),     128},
};
constexpr Field kTrayFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmMediaItem, value)},
    {"enabled",    T::kNumbers, true,  offsetof(PrmMediaItem, extra),    1,  kFlag},
    {"text",       T::kText,    false, offsetof(PrmMediaItem, text),     128},
};
constexpr Field kCollateFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmMediaItem, value)},
    {"extra",      T::kNumbers, false, offsetof(PrmMediaItem, extra),    1,  kU32},
    {"text",       T::kText,    false, offsetof(PrmMediaItem, texts[0]), 64},
    {"secondText", T::kText,    false, offsetof(PrmMediaItem, texts[1]), 64},
};
constexpr Field kOptionFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmTabPaper, value)},
};
constexpr Field kTabPaperFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmTabPaper, value)},
    {"values",     T::kNumbers, false, offsetof(PrmTabPaper, values),    3,  kU32},
};
constexpr Field kResolutionFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"values",     T::kNumbers, true,  offsetof(PrmResolution, values),  3,  kU16},
};
constexpr Field kOutputPaperFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"secondName", T::kName,    true,  offsetof(PrmOutputPaper, secondDisplay)},
    {"value",      T::kNumbers, true,  offsetof(PrmOutputPaper, value)},
    {"width",      T::kNumbers, true,  offsetof(PrmOutputPaper, width),  1,  kU16},
    {"length",     T::kNumbers, true,  offsetof(PrmOutputPaper, length), 1,  kU16},
    {"values",     T::kNumbers, false, offsetof(PrmOutputPaper, values), 2,  kU32},
};
constexpr Field kPaperFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"secondName", T::kName,    true,  offsetof(PrmPaper, secondDisplay)},
    {"value",      T::kNumbers, true,  offsetof(PrmPaper, value)},
    {"width",      T::kNumbers, true,  offsetof(PrmPaper, width),        1,  kU16},
    {"length",     T::kNumbers, true,  offsetof(PrmPaper, length),       1,  kU16},
    {"further",    T::kNumbers, false, offsetof(PrmPaper, furtherSizes), 2,  kU32},
    // Geometry sets 1, 2, 4 and 5: meaning unknown, carried through.
    {"geometry1",  T::kNumbers, false, offsetof(PrmPaper, geometry1),         18, kU32, offsetof(PrmPaper, hasGeometry1)},
    {"geometry2",  T::kNumbers, false, offsetof(PrmPaper, geometry2),         2,  kU32, offsetof(PrmPaper, hasGeometry2)},
    {"margins",    T::kNumbers, false, offsetof(PrmPaper, margins),         4,  kU16, offsetof(PrmPaper, hasMargins)},
    {"geometry4",  T::kNumbers, false, offsetof(PrmPaper, geometry4),         30, kU32, offsetof(PrmPaper, hasGeometry4)},
    {"geometry5",  T::kNumbers, false, offsetof(PrmPaper, geometry5),         4,  kU32, offsetof(PrmPaper, hasGeometry5)},
    {"text",       T::kText,    false, offsetof(PrmPaper, text),         128},
    {"values",     T::kNumbers, false, offsetof(PrmPaper, values),       2,  kU32},
    {"shortName",  T::kText,    false, offsetof(PrmPaper, shortName),    32},
    {"longValues", T::kNumbers, false, offsetof(PrmPaper, longValues),   3,  kU32},
    {"longText",   T::kText,    false, offsetof(PrmPaper, longText),     128},
};
constexpr Field kWatermarkFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmWatermark, name),     31},
    {"text",       T::kName,    true,  offsetof(PrmWatermark, text),     128},
    {"font",       T::kName,    true,  offsetof(PrmWatermark, font),     31},
    {"values",     T::kNumbers, false, offsetof(PrmWatermark, values1),  2,  kU16},
    {"color",      T::kNumbers, false, offsetof(PrmWatermark, color),    3,  kU8,  0, 1},
    {"value2",     T::kNumbers, false, offsetof(PrmWatermark, value2),   1,  kU16},
    {"block",      T::kNumbers, false, offsetof(PrmWatermark, block),    2,  kS32},
    {"value3",     T::kNumbers, false, offsetof(PrmWatermark, value3),   1,  kU16},
};
constexpr Field kTableFields[] = {
    {"rows",       T::kPairs,   true,  offsetof(PrmTableHeader, rowCount), 32, {},
                                       offsetof(PrmTableHeader, firstRow)},
};
constexpr Field kRangeFields[] = {
    {"min",        T::kNumbers, true,  offsetof(PrmRange, valueB)},
    {"max",        T::kNumbers, true,  offsetof(PrmRange, valueA)},
    {"default",    T::kNumbers, true,  offsetof(PrmRange, defaultValue)},
};
constexpr Field kMachineFields[] = {
    {"name",       T::kText,    true,  offsetof(PrmMachine, name),       16},
    {"details",    T::kPairs,   false, offsetof(PrmMachine, detailCount), 16, {},
                                       offsetof(PrmMachine, firstDetail)},
};
constexpr Field kCountryFields[] = {
    {"value",      T::kNumbers, true,  offsetof(PrmCountry, value),      1,  kU32},
};

constexpr size_t kNext = offsetof(PrmItemDescriptor, next);
constexpr Kind kPlain      = {"plain item",       F::kList,   sizeof(PrmItemDescriptor), kPlainFields, kNext};
constexpr Kind kDest       = {"destination",      F::kList,   sizeof(PrmItemDescriptor), kDestFields, kNext};
constexpr Kind kText       = {"item with text",   F::kList,   sizeof(PrmTextItem),       kTextFields};
constexpr Kind kMedia      = {"media item",       F::kList,   sizeof(PrmMediaItem),      kMediaFields};
constexpr Kind kTray       = {"paper source",     F::kList,   sizeof(PrmMediaItem),      kTrayFields};
constexpr Kind kCollate    = {"collate item",     F::kList,   sizeof(PrmMediaItem),      kCollateFields};
constexpr Kind kOption     = {"option",           F::kList,   sizeof(PrmTabPaper),       kOptionFields};
constexpr Kind kTabPaper   = {"tab paper",        F::kList,   sizeof(PrmTabPaper),       kTabPaperFields};
constexpr Kind kResolution = {"resolution",       F::kList,   sizeof(PrmResolution),     kResolutionFields};
constexpr Kind kOutPaper   = {"output paper",     F::kList,   sizeof(PrmOutputPaper),    kOutputPaperFields};
constexpr Kind kPaper      = {"paper",            F::kList,   sizeof(PrmPaper),          kPaperFields};
constexpr Kind kWatermark  = {"watermark",        F::kList,   sizeof(PrmWatermark),      kWatermarkFields};
constexpr Kind kMachine    = {"machine",          F::kList,   sizeof(PrmMachine),        kMachineFields};
constexpr Kind kTable      = {"name/value table", F::kTable,  sizeof(PrmTableHeader),    kTableFields};
constexpr Kind kCountry    = {"country",          F::kSingle, sizeof(PrmCountry),        kCountryFields};
constexpr Kind kRange      = {"range",            F::kRange,  sizeof(PrmRange),          kRangeFields};

constexpr EntryRow kEntries[] = {
    // name                        kind          name limits   default, keys, max items, facts
    //                                           chars
    // Features, ranges and facts about the device.
    {"FeatureSetting",             &kTable,      0,   kNone,   false},
    {"Copies",                     &kRange,      0,   kPlus16, false},
    {"UserPaper_Width",            &kRange,      0,   kPlus16, false},
    {"UserPaper_Length",           &kRange,      0,   kPlus16, false},
    {"BindShift_Front",            &kRange,      0,   kShift,  false},
    {"BindShift_Back",             &kRange,      0,   kShift,  false},
    {"ImgShiftMFP_FrontH",         &kRange,      0,   kShiftM, false},
    {"ImgShiftMFP_FrontV",         &kRange,      0,   kShiftM, false},
    {"ImgShiftMFP_BackH",          &kRange,      0,   kShiftM, false},
    {"ImgShiftMFP_BackV",          &kRange,      0,   kShiftM, false},
    {"DivideFinish",               &kRange,      0,   kS16,    false},
    {"DevInfo",                    &kTable,      0,   kNone,   false, {}, 0, kDeviceFacts},
    {"MachineInfo",                &kMachine,    0,   kNone,   false},
    {"PaperSizeFigure",            &kTable,      0,   kNone,   false, {}, 0, kFigureFacts},
    {"Country",                    &kCountry,    0,   kNone,   false},
    // Paper and trays.
    {"PaperSize",                  &kPaper,      47,  kU16,    true},
    {"OutPaperSize",               &kOutPaper,   47,  kU16,    true},
    {"MediaType",                  &kMedia,      31,  kU16,    true},
    {"InTray",                     &kTray,       31,  kU16,    true},
    {"ALL_InTray",                 &kMedia,      31,  kU16,    false},
    {"MediaTypeList_Tray",         &kPlain,      31,  kNone,   false},
    {"OutputTray",                 &kText,       47,  kU16,    true},
    {"MediaWeight",                &kText,       31,  kU16,    true},
    {"MediaColor",                 &kText,       31,  kU16,    true},
    {"MediaPrePunched",            &kText,       31,  kU8,     true},
    {"TabPaperPaperSize",          &kTabPaper,   47,  kU32,    false},
    {"PaperOption1",               &kOption,     47,  kU8,     true},
    {"PaperOption2",               &kOption,     47,  kU8,     true},
    // Quality, layout and finishing.
    {"Resolution",                 &kResolution, 31,  kNone,   true},
    {"Combination",                &kText,       31,  kU8,     true},
    {"Folding",                    &kText,       31,  kU8,     true},
    {"HolePunch",                  &kText,       31,  kU8,     true},
    {"OutputOrder",                &kText,       31,  kU8,     true},
    {"Staple",                     &kText,       31,  kU8,     true},
    {"Collate",                    &kCollate,    47,  kU8,     true},
    {"OHP_Interleave",             &kText,       47,  kU32,    false},
    {"PaperArrangement",           &kText,       47,  kU32,    false},
    {"PerPageListPrintType",       &kText,       31,  kU32,    false},
    {"PerPageListStaple",          &kText,       31,  kU32,    false},
    // Output and storage.
    {"OutputMethod",               &kText,       47,  kU32,    false},
    {"OvlForm_Location",           &kText,       47,  kU32,    true},
    {"Prof_Location",              &kText,       47,  kU32,    true},
    {"ExcelJobCtrl",               &kOption,     47,  kU32,    true},
    {"Watermark",                  &kWatermark,  0,   kNone,   true},
    // Tray selections.
    {kTraySelectionFeatures[0],     &kPlain,      47,  kNone,   true,  kSelectionKeys<0>}, // front cover
    {kTraySelectionFeatures[1],     &kPlain,      47,  kNone,   true,  kSelectionKeys<1>}, // back cover
    {kTraySelectionFeatures[2],     &kPlain,      47,  kNone,   false, kSelectionKeys<2>}, // separator page
    {kTraySelectionFeatures[3],     &kPlain,      47,  kNone,   true,  kSelectionKeys<3>}, // interleave
    {kTraySelectionFeatures[4],     &kPlain,      47,  kNone,   true,  kSelectionKeys<4>}, // inserter front
    {kTraySelectionFeatures[5],     &kPlain,      47,  kNone,   true,  kSelectionKeys<5>}, // inserter back
    {kTraySelectionFeatures[6],     &kPlain,      47,  kNone,   false, kSelectionKeys<6>}, // per-page source
    // Colour settings.
    {"ColorSetting",               &kPlain,      47,  kNone,   true,  kColorModeKeys},
    {"Graphics",                   &kPlain,      47,  kNone,   true,  kGraphicsFollowKeys},
    {"MatchPaperColor",            &kPlain,      47,  kNone,   true,  kMatchPaperKeys},
    {"RGBProf",                    &kPlain,      47,  kNone,   true,  {}, kMaxPageProfiles},
    {"Text_RGBProf",               &kPlain,      47,  kNone,   true,  kColorKeys<kProfileKeys, kTextKeys>},
    {"Text_RGBColorMatch",         &kPlain,      47,  kNone,   true,  kColorKeys<kColorMatchKeys, kTextKeys>},
    {"Text_RGBGray",               &kPlain,      47,  kNone,   true,  kColorKeys<kGrayKeys, kTextKeys>},
    {"Text_Halftone",              &kPlain,      47,  kNone,   true,  kColorKeys<kHalftoneKeys, kTextKeys>},
    {"Img_RGBProf",                &kPlain,      47,  kNone,   true,  kColorKeys<kProfileKeys, kImageKeys>},
    {"Img_RGBColorMatch",          &kPlain,      47,  kNone,   true,  kColorKeys<kColorMatchKeys, kImageKeys>},
    {"Img_RGBGray",                &kPlain,      47,  kNone,   true,  kColorKeys<kGrayKeys, kImageKeys>},
    {"Img_Halftone",               &kPlain,      47,  kNone,   true,  kColorKeys<kHalftoneKeys, kImageKeys>},
    {"Graph_RGBProf",              &kPlain,      47,  kNone,   true,  kColorKeys<kProfileKeys, kGraphicsKeys>},
    {"Graph_RGBColorMatch",        &kPlain,      47,  kNone,   true,  kColorKeys<kColorMatchKeys, kGraphicsKeys>},
    {"Graph_RGBGray",              &kPlain,      47,  kNone,   true,  kColorKeys<kGrayKeys, kGraphicsKeys>},
    {"Graph_Halftone",             &kPlain,      47,  kNone,   true,  kColorKeys<kHalftoneKeys, kGraphicsKeys>},
    {"SimulationProf",             &kPlain,      47,  kNone,   true,  {}, kMaxSimulations},
    {"DestinationProf",            &kPlain,      47,  kNone,   true,  {}, kMaxPageDestinations},
    {"Simu_CMYKGray",              &kPlain,      47,  kNone,   true,  {}, kMaxSimulationGrays},
    {"Text_Destination",           &kDest,       47,  kNone,   true,  kColorKeys<kDestinationKeys, kTextKeys>},
    {"Img_Destination",            &kDest,       47,  kNone,   true,  kColorKeys<kDestinationKeys, kImageKeys>},
    {"Graph_Destination",          &kDest,       47,  kNone,   true,  kColorKeys<kDestinationKeys, kGraphicsKeys>},
    // Texts of the dialogs.
    {"Property_0",                 &kPlain,      47,  kNone,   false, kPropertyKeys},
    {"Dlg_ColorSetting",           &kPlain,      47,  kNone,   false, kColorDialogKeys},
    {"Dlg_PaperSourceTraySetting", &kPlain,      47,  kNone,   false, kTrayDialogKeys},
    {kMediaTypeListEntries[kMediaSize], &kPlain,      47,  kNone,   false, kMediaTexts<kMediaSize>},
    {kMediaTypeListEntries[kMediaOrientation], &kPlain,      47,  kNone,   false, kMediaTexts<kMediaOrientation>},
    {kMediaTypeListEntries[kMediaType], &kPlain,      47,  kNone,   false, kMediaTexts<kMediaType>},
    {kMediaTypeListEntries[kMediaWeight], &kPlain,      47,  kNone,   false, kMediaTexts<kMediaWeight>},
    {kMediaTypeListEntries[kMediaColor], &kPlain,      47,  kNone,   false, kMediaTexts<kMediaColor>},
    {kMediaTypeListEntries[kMediaPrePunched], &kPlain,      47,  kNone,   false, kMediaTexts<kMediaPrePunched>},
    // Installable options; "Op" and a tray's key: the tray as an option.
    {"OpMachine",                  &kPlain,      47,  kNone,   true},
    {"OpBody",                     &kPlain,      47,  kNone,   true},
    {"OpInTray2",                  &kPlain,      47,  kNone,   true},
    {"OpInTray3",                  &kPlain,      47,  kNone,   true},
    {"OpInTray4",                  &kPlain,      47,  kNone,   true},
    {"OpInTray5",                  &kPlain,      47,  kNone,   true},
    {"OpInTrayLCT",                &kPlain,      47,  kNone,   true},
    {"OpInTrayUnit",               &kPlain,      47,  kNone,   true},
    {"OpOutTrayUnit",              &kPlain,      47,  kNone,   true},
    {"OpPunchKit",                 &kPlain,      47,  kNone,   true},
    {"OpMailBinKit",               &kPlain,      47,  kNone,   true},
    {"OpSaddleKit",                &kPlain,      47,  kNone,   true},
    {"OpFAXUnit",                  &kPlain,      47,  kNone,   true},
    {"OpHDD",                      &kPlain,      47,  kNone,   true},
};
// clang-format on

} // namespace

Rows<EntryRow> KnownEntries() {
    return kEntries;
}

const EntryRow* FindEntryRow(std::string_view name) {
    for (const EntryRow& row : kEntries) {
        if (EqualNoCase(row.name, name))
            return &row;
    }
    return nullptr;
}

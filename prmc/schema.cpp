// The tables behind schema.h. Offsets come from the file's own record layouts.
#include "prmc/schema.h"

#include "paramdata/prm_layout.h"
#include "prmc/text.h"

namespace {

using T = FieldType;
using F = Form;

// clang-format off
//   name         type         needed offset                             count bits flag or link

constexpr Field kPlainFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
};
constexpr Field kTextFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmTextItem, value)},
    {"text",       T::kText,    false, offsetof(PrmTextItem, text),        128},
};
constexpr Field kMediaFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmMediaItem, value)},
    {"text",       T::kText,    false, offsetof(PrmMediaItem, text),       128},
};
constexpr Field kTrayFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmMediaItem, value)},
    {"enabled",    T::kNumbers, true,  offsetof(PrmMediaItem, extra),      1,  1},
    {"text",       T::kText,    false, offsetof(PrmMediaItem, text),       128},
};
constexpr Field kCollateFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmMediaItem, value)},
    {"extra",      T::kNumbers, false, offsetof(PrmMediaItem, extra),      1,  32},
    {"text",       T::kText,    false, offsetof(PrmMediaItem, texts[0]),   64},
    {"secondText", T::kText,    false, offsetof(PrmMediaItem, texts[1]),   64},
};
constexpr Field kTabPaperFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"value",      T::kNumbers, true,  offsetof(PrmTabPaper, value)},
    {"values",     T::kNumbers, false, offsetof(PrmTabPaper, values),      3,  32},
};
constexpr Field kResolutionFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"values",     T::kNumbers, true,  offsetof(PrmResolution, values),    3,  16},
};
constexpr Field kOutputPaperFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"secondName", T::kName,    true,  offsetof(PrmOutputPaper, secondDisplay)},
    {"value",      T::kNumbers, true,  offsetof(PrmOutputPaper, value)},
    {"width",      T::kNumbers, true,  offsetof(PrmOutputPaper, width),    1,  16},
    {"length",     T::kNumbers, true,  offsetof(PrmOutputPaper, length),   1,  16},
    {"values",     T::kNumbers, false, offsetof(PrmOutputPaper, values),   2,  32},
};
constexpr Field kPaperFields[] = {
    {"key",        T::kKey,     true,  offsetof(PrmItemHead, key)},
    {"name",       T::kName,    true,  offsetof(PrmItemHead, display)},
    {"secondName", T::kName,    true,  offsetof(PrmPaper, secondDisplay)},
    {"value",      T::kNumbers, true,  offsetof(PrmPaper, value)},
    {"width",      T::kNumbers, true,  offsetof(PrmPaper, width),          1,  16},
    {"length",     T::kNumbers, true,  offsetof(PrmPaper, length),         1,  16},
    {"further",    T::kNumbers, false, offsetof(PrmPaper, furtherSizes),   2,  32},
    {"set1",       T::kNumbers, false, offsetof(PrmPaper, set1),           18, 32, offsetof(PrmPaper, flag1)},
    {"set2",       T::kNumbers, false, offsetof(PrmPaper, set2),           2,  32, offsetof(PrmPaper, flag2)},
    {"margins",    T::kNumbers, false, offsetof(PrmPaper, set3),           4,  16, offsetof(PrmPaper, flag3)},
    {"set4",       T::kNumbers, false, offsetof(PrmPaper, set4),           30, 32, offsetof(PrmPaper, flag4)},
    {"set5",       T::kNumbers, false, offsetof(PrmPaper, set5),           4,  32, offsetof(PrmPaper, flag5)},
    {"text",       T::kText,    false, offsetof(PrmPaper, text),           128},
    {"values",     T::kNumbers, false, offsetof(PrmPaper, values),         2,  32},
    {"shortName",  T::kText,    false, offsetof(PrmPaper, shortName),      32},
    {"longValues", T::kNumbers, false, offsetof(PrmPaper, longValues),     3,  32},
    {"longText",   T::kText,    false, offsetof(PrmPaper, longText),       128},
};
constexpr Field kTableFields[] = {
    {"rows",       T::kPairs,   true,  offsetof(PrmTableHeader, rowCount), 32, 0,
                                       offsetof(PrmTableHeader, firstRow)},
};
constexpr Field kRangeFields[] = {
    {"min",        T::kNumbers, true,  offsetof(PrmRange, valueB),         1,  16},
    {"max",        T::kNumbers, true,  offsetof(PrmRange, valueA),         1,  16},
    {"default",    T::kNumbers, true,  offsetof(PrmRange, defaultValue),   1,  16},
};
constexpr Field kMachineFields[] = {
    {"name",       T::kText,    true,  offsetof(PrmMachine, name),         16},
    {"details",    T::kPairs,   false, offsetof(PrmMachine, detailCount),  16, 0,
                                       offsetof(PrmMachine, firstDetail)},
};
constexpr Field kCountryFields[] = {
    {"value",      T::kNumbers, true,  offsetof(PrmCountry, value),        1,  32},
};

constexpr size_t kNext = offsetof(PrmItemDescriptor, next);
constexpr Kind kPlain      = {"plain item",       F::kList,   sizeof(PrmItemDescriptor), kPlainFields, kNext};
constexpr Kind kText       = {"item with text",   F::kList,   sizeof(PrmTextItem),       kTextFields};
constexpr Kind kMedia      = {"media item",       F::kList,   sizeof(PrmMediaItem),      kMediaFields};
constexpr Kind kTray       = {"input tray",       F::kList,   sizeof(PrmMediaItem),      kTrayFields};
constexpr Kind kCollate    = {"collate item",     F::kList,   sizeof(PrmMediaItem),      kCollateFields};
constexpr Kind kTabPaper   = {"tab paper",        F::kList,   sizeof(PrmTabPaper),       kTabPaperFields};
constexpr Kind kResolution = {"resolution",       F::kList,   sizeof(PrmResolution),     kResolutionFields};
constexpr Kind kOutPaper   = {"output paper",     F::kList,   sizeof(PrmOutputPaper),    kOutputPaperFields};
constexpr Kind kPaper      = {"paper",            F::kList,   sizeof(PrmPaper),          kPaperFields};
constexpr Kind kMachine    = {"machine",          F::kList,   sizeof(PrmMachine),        kMachineFields};
constexpr Kind kTable      = {"name/value table", F::kTable,  sizeof(PrmTableHeader),    kTableFields};
constexpr Kind kCountry    = {"country",          F::kSingle, sizeof(PrmCountry),        kCountryFields};
constexpr Kind kRange      = {"range",            F::kRange,  sizeof(PrmRange),          kRangeFields};

constexpr const char* kDeviceFacts[] = {"PrintRatePPM", "PrintRate", "PrintRateUnit", "Staple", "ColorDevice",
                                        "PDLType", "MachineEncryption"};
constexpr const char* kFigureFacts[] = {"FigureType"};

constexpr EntryRow kEntries[] = {
    //  name                  kind           display  value  default  rows
    //                                       chars    bits   needed
    // What the model offers, and facts about the device.
    {"FeatureSetting",        &kTable,       0,       0,     false},
    {"Copies",                &kRange,       0,       0,     false},
    {"UserPaper_Width",       &kRange,       0,       0,     false},
    {"UserPaper_Length",      &kRange,       0,       0,     false},
    {"DevInfo",               &kTable,       0,       0,     false,   kDeviceFacts},
    {"MachineInfo",           &kMachine,     0,       0,     false},
    {"PaperSizeFigure",       &kTable,       0,       0,     false,   kFigureFacts},
    {"Country",               &kCountry,     0,       0,     false},
    // Paper and trays.
    {"PaperSize",             &kPaper,       47,      16,    true},
    {"OutPaperSize",          &kOutPaper,    47,      16,    true},
    {"MediaType",             &kMedia,       31,      16,    true},
    {"InTray",                &kTray,        31,      16,    true},
    {"ALL_InTray",            &kMedia,       31,      16,    false},
    {"MediaTypeList_Tray",    &kPlain,       31,      0,     false},
    {"OutputTray",            &kText,        47,      16,    true},
    {"MediaWeight",           &kText,        31,      16,    true},
    {"MediaColor",            &kText,        31,      16,    true},
    {"MediaPrePunched",       &kText,        31,      8,     true},
    {"TabPaperPaperSize",     &kTabPaper,    47,      32,    false},
    // Quality, layout and finishing.
    {"Resolution",            &kResolution,  31,      0,     true},
    {"Combination",           &kText,        31,      8,     true},
    {"Folding",               &kText,        31,      8,     true},
    {"HolePunch",             &kText,        31,      8,     true},
    {"OutputOrder",           &kText,        31,      8,     true},
    {"Staple",                &kText,        31,      8,     true},
    {"Collate",               &kCollate,     47,      8,     true},
    {"OHP_Interleave",        &kText,        47,      32,    false},
    {"PaperArrangement",      &kText,        47,      32,    false},
    {"PerPageListPrintType",  &kText,        31,      32,    false},
    {"PerPageListStaple",     &kText,        31,      32,    false},
    // Output and storage.
    {"OutputMethod",          &kText,        47,      32,    false},
    {"OvlForm_Location",      &kText,        47,      32,    true},
    {"Prof_Location",         &kText,        47,      32,    true},
    // Tray selections.
    {"FCoverTray",            &kPlain,       47,      0,     true},
    {"BCoverTray",            &kPlain,       47,      0,     true},
    {"SeparatePageTray",      &kPlain,       47,      0,     false},
    {"OHPIntTray",            &kPlain,       47,      0,     true},
    {"PIFrontCover",          &kPlain,       47,      0,     true},
    {"PIBackCover",           &kPlain,       47,      0,     true},
    {"PerPageListPaperSrc",   &kPlain,       47,      0,     false},
    // Installable options; "Op" and a tray's key: the option that the tray is.
    {"OpMachine",             &kPlain,       47,      0,     true},
    {"OpBody",                &kPlain,       47,      0,     true},
    {"OpInTray2",             &kPlain,       47,      0,     true},
    {"OpInTray3",             &kPlain,       47,      0,     true},
    {"OpInTray4",             &kPlain,       47,      0,     true},
    {"OpInTray5",             &kPlain,       47,      0,     true},
    {"OpInTrayLCT",           &kPlain,       47,      0,     true},
    {"OpInTrayUnit",          &kPlain,       47,      0,     true},
    {"OpOutTrayUnit",         &kPlain,       47,      0,     true},
    {"OpPunchKit",            &kPlain,       47,      0,     true},
    {"OpMailBinKit",          &kPlain,       47,      0,     true},
    {"OpSaddleKit",           &kPlain,       47,      0,     true},
    {"OpFAXUnit",             &kPlain,       47,      0,     true},
    {"OpHDD",                 &kPlain,       47,      0,     true},
};
// clang-format on

} // namespace

Table<EntryRow> KnownEntries() {
    return kEntries;
}

const EntryRow* FindEntryRow(std::string_view name) {
    for (const EntryRow& row : kEntries) {
        if (EqualNoCase(row.name, name))
            return &row;
    }
    return nullptr;
}

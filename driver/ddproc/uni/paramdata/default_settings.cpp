// The default settings: the compiled-in record, and the steps that take the defaults of the file.
#include "paramdata/default_settings.h"

#include "base/text.h"
#include "paramdata/color_defaults.h"
#include "paramdata/default_fields.h"
#include "paramdata/feature_lists.h"
#include "paramdata/font_table.h"
#include "paramdata/prm_readers.h"

#include <cstring>

namespace {

constexpr uint16_t kSameAsPaper = 357; // output paper

constexpr OemDevmode CompiledIn() {
    OemDevmode settings = {};
    settings.paper = 9; // A4
    settings.paperWidth = settings.outputWidth = 2100;
    settings.paperLength = settings.outputLength = 2970;
    for (uint16_t& margin : settings.paperMargins)
        margin = 43;
    settings.outputPaper = kSameAsPaper;
    settings.inputTray = 7; // automatic
    settings.mediaType = settings.detailMediaType = 257;
    settings.copies = 1;
    settings.graphicsFollow = 1;
    FillFontTable(settings);
    return settings;
}
constexpr OemDevmode kCompiledIn = CompiledIn();

void ApplyPaper(const PrmFile& file, OemDevmode& settings) {
    PrmPaper paper;
    if (!ReadDefault(file, "PaperSize", paper))
        return;
    settings.paper = static_cast<uint16_t>(paper.value);
    settings.paperWidth = static_cast<int16_t>(paper.width);
    settings.paperLength = static_cast<int16_t>(paper.length);
    for (size_t i = 0; i < 4; ++i)
        settings.paperMargins[i] = static_cast<uint16_t>(paper.margins[i]);
}

void ApplyOutputPaper(const PrmFile& file, OemDevmode& settings) {
    PrmOutputPaper paper;
    if (!ReadDefault(file, "OutPaperSize", paper))
        return;
    settings.outputPaper = static_cast<uint16_t>(paper.value);
    const bool samePaper = paper.value == kSameAsPaper;
    settings.outputWidth = samePaper ? settings.paperWidth : static_cast<int16_t>(paper.width);
    settings.outputLength = samePaper ? settings.paperLength : static_cast<int16_t>(paper.length);
}

// Entries whose default is the value of their default record. It has the same offset in all kinds of records.
static_assert(offsetof(PrmTextItem, value) == offsetof(PrmMediaItem, value)
              && offsetof(PrmTextItem, value) == offsetof(PrmTabPaper, value));
constexpr struct {
    const char* entry;
    DevmodeField field;
} kRecordDefaults[] = {
    // clang-format off
    {"MediaType",       FIELD(mediaType)},
    {"MediaType",       FIELD(detailMediaType)},
    {"MediaWeight",     FIELD(mediaWeight)},
    {"MediaColor",      FIELD(mediaColor)},
    {"MediaPrePunched", FIELD(mediaPrePunched)},
    {"InTray",          FIELD(inputTray)},
    {"Collate",         FIELD(collate)},
    {"PaperOption1",    FIELD(paperOption1)},
    {"PaperOption2",    FIELD(paperOption2)},
    {"Staple",          FIELD(staple)},
    {"HolePunch",       FIELD(holePunch)},
    {"Folding",         FIELD(folding)},
    {"Combination",     FIELD(combination)},
    {"OutputTray",      FIELD(outputTray)},
    {"OutputOrder",     FIELD(outputOrder)},
    // clang-format on
};

void ApplyRecordDefaults(const PrmFile& file, OemDevmode& settings) {
    for (const auto& row : kRecordDefaults) {
        PrmTabPaper record; // the shortest record with the value
        if (ReadDefault(file, row.entry, record))
            Store(settings, row.field, record.value);
    }
}

// Converts tenths of a millimetre to hundredths (k = 100) or thousandths (k = 1000) of an inch. Rounds values
// from 0 on; a negative value is truncated toward zero after 127 has been added.
int32_t Inches(int16_t metric, int32_t k) {
    return (metric * k + 127) / 254;
}

constexpr struct {
    const char* entry;
    int32_t unit;           // of the value in the file, in units of the field
    DevmodeField metric[2]; // the same value in both
    DevmodeField inches[2];
    bool byFigureType; // thousandths of an inch for figure type 1, else hundredths; false: thousandths
} kRangeDefaults[] = {
    // clang-format off
    {"Copies",             1,  {FIELD(copies)},                                    {},                                                          false},
    {"UserPaper_Width",    1,  {FIELD(userPaperWidth),  FIELD(userOutputWidth)},   {FIELD(userPaperWidthInches),  FIELD(userOutputWidthInches)},  true},
    {"UserPaper_Length",   1,  {FIELD(userPaperLength), FIELD(userOutputLength)},  {FIELD(userPaperLengthInches), FIELD(userOutputLengthInches)}, true},
    {"BindShift_Front",    1,  {FIELD(bindShiftFront)},                            {FIELD(bindShiftFrontInches)},                              false},
    {"BindShift_Back",     1,  {FIELD(bindShiftBack)},                             {FIELD(bindShiftBackInches)},                               false},
    {"ImgShiftMFP_FrontH", 10, {FIELD(imageShiftFrontH)},                          {FIELD(imageShiftFrontHInches)},                            false},
    {"ImgShiftMFP_FrontV", 10, {FIELD(imageShiftFrontV)},                          {FIELD(imageShiftFrontVInches)},                            false},
    {"ImgShiftMFP_BackH",  10, {FIELD(imageShiftBackH)},                           {FIELD(imageShiftBackHInches)},                             false},
    {"ImgShiftMFP_BackV",  10, {FIELD(imageShiftBackV)},                           {FIELD(imageShiftBackVInches)},                             false},
    {"DivideFinish",       1,  {FIELD(divideFinish)},                              {},                                                          false},
    // clang-format on
};

void ApplyRangeDefaults(const PrmFile& file, const DeviceTable& table, OemDevmode& settings) {
    for (const auto& row : kRangeDefaults) {
        uint32_t values[3];
        if (!PrmReadEntryRange(file, row.entry, values))
            continue;
        const auto metric = static_cast<int16_t>(static_cast<int16_t>(values[2]) * row.unit);
        const int32_t inches = Inches(metric, row.byFigureType && table.figureType != 1 ? 100 : 1000);
        for (const DevmodeField& field : row.metric)
            Store(settings, field, static_cast<uint32_t>(metric));
        for (const DevmodeField& field : row.inches)
            Store(settings, field, static_cast<uint32_t>(inches));
    }
}

constexpr struct {
    const char* entry;
    DevmodeField field;
} kTraySelectionDefaults[] = {
    // clang-format off
    {"FCoverTray",   FIELD(frontCoverTray)},
    {"BCoverTray",   FIELD(backCoverTray)},
    {"PIFrontCover", FIELD(inserterFrontTray)},
    {"PIBackCover",  FIELD(inserterBackTray)},
    {"OHPIntTray",   FIELD(interleaveTray)},
    // clang-format on
};

void ApplyTraySelections(const PrmFile& file, OemDevmode& settings) {
    for (const auto& row : kTraySelectionDefaults) {
        DefaultKey key;
        uint32_t bin = 0;
        if (ReadDefaultKey(file, row.entry, key) && TraySelectionValue(row.entry, key, bin))
            Store(settings, row.field, bin);
    }
}

// The item of the list that is the default of the entry; null when there is none.
const TextItemRecord* FindDefaultLocation(const PrmFile& file, const char* entry,
                                          const TextItemRecord* list) {
    DefaultKey key;
    if (!ReadDefaultKey(file, entry, key))
        return nullptr;
    return FindByKey(list, key);
}

template <size_t Capacity>
void CopyDisplay(const PrmFile& file, uint32_t offset, wchar_t (&to)[Capacity]) {
    memset(to, 0, sizeof(to));
    PrmReadWideString(file, offset, to);
}

void StoreWatermark(const PrmFile& file, const DeviceTable& table, const PrmWatermark& from,
                    OemDevmode& settings) {
    constexpr uint32_t kGray = 0x808080;
    CopyDisplay(file, from.name, settings.watermarkName);
    CopyDisplay(file, from.text, settings.watermarkText);
    CopyDisplay(file, from.font, settings.watermarkFont);
    settings.watermarkValues1[0] = static_cast<uint16_t>(from.values1[0]);
    settings.watermarkValues1[1] = static_cast<uint16_t>(from.values1[1]);
    settings.watermarkColor = table.colorDevice != 0 ? from.color : kGray;
    settings.watermarkValue2 = static_cast<uint16_t>(from.value2);
    memcpy(settings.watermarkBlock, from.block, sizeof(settings.watermarkBlock));
    settings.watermarkValue3 = static_cast<uint16_t>(from.value3);
}

// Calls found(record, key, position) for each item with the key of the default record until it returns false.
template <typename Record, typename Found>
void ForEachDefaultItem(const PrmFile& file, const char* entry, Found found) {
    PrmItems items;
    Record buffer;
    PrmText defaultBuffer, keyBuffer;
    if (!ReadDefault(file, entry, buffer) || !PrmFindItems(file, entry, items))
        return;
    const char* defaultKey = PrmKeyAt(file, buffer.head, defaultBuffer);
    for (uint32_t i = 0; i < items.count; ++i) {
        const Record& record = PrmRecordAt(file, PrmItemOffset(file, items, i), buffer);
        const char* key = PrmKeyAt(file, record.head, keyBuffer);
        if (SameText(key, defaultKey) && !found(record, key, i))
            return;
    }
}

void ApplyWatermark(const PrmFile& file, const DeviceTable& table, OemDevmode& settings) {
    ForEachDefaultItem<PrmWatermark>(file, "Watermark",
                                     [&](const PrmWatermark& watermark, const char* key, uint32_t position) {
                                         settings.watermark = static_cast<uint16_t>(position);
                                         if (!SameText(key, "WM_None"))
                                             StoreWatermark(file, table, watermark, settings);
                                         return true; // a later item with the same key overwrites it
                                     });
}

void ApplyResolution(const PrmFile& file, OemDevmode& settings) {
    ForEachDefaultItem<PrmResolution>(
        file, "Resolution", [&](const PrmResolution& resolution, const char* key, uint32_t position) {
            settings.resolution = static_cast<uint8_t>(position);
            for (size_t i = 0; i < 3; ++i)
                settings.resolutionValues[i] = static_cast<uint16_t>(resolution.values[i]);
            settings.resolutionNumber = ResolutionNumber(key);
            return false;
        });
}

void ApplyExcelJobCtrl(const PrmFile& file, DeviceTable& table) {
    PrmTabPaper option;
    table.excelJobCtrl = ReadDefault(file, "ExcelJobCtrl", option) ? option.value : 1;
}

void DeriveBinding(const DeviceTable& table, OemDevmode& settings) {
    const uint8_t edge = settings.bindingEdge;
    if (table.switches[kSwitchBindingEdge] == 0) {
        if (edge < 14 || edge > 17)
            settings.bindingEdge = 14;
    } else if (edge != 10 && edge != 11) {
        settings.bindingEdge = 10;
    }
    settings.sameBindShifts = settings.bindShiftFront == settings.bindShiftBack ? 1 : 0;
}

void DeriveTrayPaper(const DeviceTable& table, OemDevmode& settings) {
    size_t slot = 0;
    for (const InputSlotRecord& tray : Listed(table.inputTrays)) {
        if (IsAutomaticBin(tray.head.value))
            continue;
        if (slot == TELMAR_TRAY_COUNT)
            return;
        TrayPaperDefault& paper = settings.trays[slot++];
        CopyText(paper.key, tray.head.key);
        paper.bin = tray.head.value;
        paper.mediaType = settings.mediaType;
        paper.mediaWeight = settings.mediaWeight;
        paper.mediaColor = settings.mediaColor;
        paper.mediaPrePunched = settings.mediaPrePunched;
    }
}

void DeriveCoverPrint(const DeviceTable& table, OemDevmode& settings) {
    constexpr uint8_t kByDriver = 1;
    constexpr uint8_t kNotByDriver = 4;
    settings.frontCoverPrint = table.switches[kSwitchFCoverPrint] == 1 ? kByDriver : kNotByDriver;
    settings.backCoverPrint = settings.frontCoverPrint;
}

} // namespace

// Aligned for its UTF-16 fields: the packed type itself has no alignment.
alignas(8) OemDevmode defaultSettings = kCompiledIn;

void ApplyLocationDefault(const PrmFile& file, const char* entry, const TextItemRecord* list,
                          OemDevmode& settings) {
    const TextItemRecord* location = FindDefaultLocation(file, entry, list);
    if (location == nullptr)
        return;
    const uint32_t value = location->head.value;
    if (SameText(entry, "OvlForm_Location")) {
        settings.overlayLocation = value;
    } else if (SameText(entry, "Prof_Location")) {
        settings.imageRgbProfile.location = value;
        settings.textRgbProfile.location = value;
        settings.graphicsRgbProfile.location = value;
        settings.simulationProfile.location = value;
        settings.destinationProfile.location = value;
    }
}

void BuildDefaultSettings(const PrmFile& file, DeviceTable& table) {
    OemDevmode& settings = defaultSettings;
    ApplyPaper(file, settings);
    ApplyOutputPaper(file, settings);
    ApplyRecordDefaults(file, settings);
    ApplyRangeDefaults(file, table, settings);
    ApplyTraySelections(file, settings);
    ApplyLocationDefault(file, "OvlForm_Location", table.overlayLocations, settings);
    ApplyWatermark(file, table, settings);
    ApplyColorModeDefault(file, settings);
    ApplyObjectColorDefaults(file, settings);
    ApplyResolution(file, settings);
    ApplyRgbSourceDefaults(file, settings);
    ApplyLocationDefault(file, "Prof_Location", table.profileLocations, settings);
    ApplyProfileDefaults(file, settings);
    if (const TextItemRecord* location = FindDefaultLocation(file, "Prof_Location", table.profileLocations))
        settings.profileLocation = location->head.value;
    ApplySimulationDefaults(file, settings);
    FillFontTable(settings);
    ApplyExcelJobCtrl(file, table);
    DeriveBinding(table, settings);
    settings.userPaperWidthAgain = settings.userPaperWidth;
    settings.userPaperLengthAgain = settings.userPaperLength;
    settings.fontSubstitution = 0;
    DeriveTrayPaper(table, settings);
    DeriveCoverPrint(table, settings);
}

// `workbench defaults`: the built-in default of the private print settings, field by field, as the parameter
// data file has set it.
#include "commands.h"
#include "paramdata/default_settings.h"
#include "record_fields.h"

#include <iterator>
#include <type_traits>

namespace {

// One field of the settings.
struct SettingsField {
    const char* group;
    const char* name;
    size_t offset;
    size_t bytes;
    Document (*show)(const void* at);
};

// A value or a text that lies there, at any address.
template <typename Value>
Document ShowAt(const void* at) {
    Value value;
    memcpy(&value, at, sizeof(value));
    return ToDocument(value);
}

#define VALUE(group, field)                                                                                  \
    {                                                                                                        \
        group, #field, offsetof(OemDevmode, field), sizeof(OemDevmode::field),                               \
            ShowAt<decltype(OemDevmode::field)>                                                              \
    }
#define PROFILE(field)                                                                                       \
    VALUE("profiles", field.qualifier), VALUE("profiles", field.name), VALUE("profiles", field.location)
#define TRAY(slot)                                                                                           \
    VALUE("trays", trays[slot].key), VALUE("trays", trays[slot].bin), VALUE("trays", trays[slot].mediaType), \
        VALUE("trays", trays[slot].mediaWeight), VALUE("trays", trays[slot].mediaColor),                     \
        VALUE("trays", trays[slot].mediaPrePunched)

// Every field, in the order of the record within a group. The font table follows them.
constexpr SettingsField kFields[] = {
    VALUE("paper", paper),
    VALUE("paper", paperWidth),
    VALUE("paper", paperLength),
    VALUE("paper", paperMargins),
    VALUE("paper", userPaperWidth),
    VALUE("paper", userPaperLength),
    VALUE("paper", userPaperWidthInches),
    VALUE("paper", userPaperLengthInches),
    VALUE("paper", outputPaper),
    VALUE("paper", outputWidth),
    VALUE("paper", outputLength),
    VALUE("paper", userOutputWidth),
    VALUE("paper", userOutputLength),
    VALUE("paper", userOutputWidthInches),
    VALUE("paper", userOutputLengthInches),
    VALUE("paper", paperOption1),
    VALUE("paper", paperOption2),
    VALUE("paper", userPaperWidthAgain),
    VALUE("paper", userPaperLengthAgain),
    VALUE("media", inputTray),
    VALUE("media", mediaType),
    VALUE("media", detailMediaType),
    VALUE("media", mediaWeight),
    VALUE("media", mediaColor),
    VALUE("media", mediaPrePunched),
    TRAY(0),
    TRAY(1),
    TRAY(2),
    TRAY(3),
    TRAY(4),
    TRAY(5),
    TRAY(6),
    TRAY(7),
    TRAY(8),
    TRAY(9),
    VALUE("layout", copies),
    VALUE("layout", bindingEdge),
    VALUE("layout", sameBindShifts),
    VALUE("layout", bindShiftFront),
    VALUE("layout", bindShiftBack),
    VALUE("layout", bindShiftFrontInches),
    VALUE("layout", bindShiftBackInches),
    VALUE("layout", imageShiftFrontH),
    VALUE("layout", imageShiftFrontV),
    VALUE("layout", imageShiftFrontHInches),
    VALUE("layout", imageShiftFrontVInches),
    VALUE("layout", imageShiftBackH),
    VALUE("layout", imageShiftBackV),
    VALUE("layout", imageShiftBackHInches),
    VALUE("layout", imageShiftBackVInches),
    VALUE("layout", combination),
    VALUE("layout", overlayLocation),
    VALUE("finishing", collate),
    VALUE("finishing", staple),
    VALUE("finishing", holePunch),
    VALUE("finishing", outputTray),
    VALUE("finishing", outputOrder),
    VALUE("finishing", folding),
    VALUE("finishing", divideFinish),
    VALUE("covers", frontCoverPrint),
    VALUE("covers", frontCoverTray),
    VALUE("covers", backCoverPrint),
    VALUE("covers", backCoverTray),
    VALUE("covers", interleaveTray),
    VALUE("covers", inserterFrontTray),
    VALUE("covers", inserterBackTray),
    VALUE("watermark", watermark),
    VALUE("watermark", watermarkName),
    VALUE("watermark", watermarkText),
    VALUE("watermark", watermarkFont),
    VALUE("watermark", watermarkValues1),
    VALUE("watermark", watermarkColor),
    VALUE("watermark", watermarkValue2),
    VALUE("watermark", watermarkBlock),
    VALUE("watermark", watermarkValue3),
    VALUE("color", mono),
    VALUE("color", colorMode),
    VALUE("color", resolution),
    VALUE("color", resolutionValues),
    VALUE("color", resolutionNumber),
    VALUE("color", image.colorMatch),
    VALUE("color", image.halftone),
    VALUE("color", image.gray),
    VALUE("color", text.colorMatch),
    VALUE("color", text.halftone),
    VALUE("color", text.gray),
    VALUE("color", graphics.colorMatch),
    VALUE("color", graphics.halftone),
    VALUE("color", graphics.gray),
    VALUE("color", graphicsFollow),
    VALUE("color", simulation),
    VALUE("color", destination),
    VALUE("color", profileLocation),
    VALUE("color", rgbSource),
    VALUE("color", imageRgbSource),
    VALUE("color", textRgbSource),
    VALUE("color", graphicsRgbSource),
    VALUE("color", textDestination),
    VALUE("color", imageDestination),
    VALUE("color", graphicsDestination),
    VALUE("color", matchPaperColor),
    VALUE("color", simulationGray),
    PROFILE(simulationProfile),
    PROFILE(destinationProfile),
    PROFILE(textRgbProfile),
    PROFILE(imageRgbProfile),
    PROFILE(graphicsRgbProfile),
    PROFILE(textDestinationProfile),
    PROFILE(imageDestinationProfile),
    PROFILE(graphicsDestinationProfile),
    VALUE("fonts", fontSubstitution),
    VALUE("fonts", fontField),
    VALUE("fonts", fontFlag),
    VALUE("fonts", fontCount),
};

// The slots in use, with the offset of each of their parts.
Document FontTable(const OemDevmode& settings) {
    constexpr UINT kJapanese = 932; // code page of the names
    Document rows = Document::array();
    for (size_t i = 0; i < settings.fontCount; ++i)
        rows.push_back({
            {"nameOffset", offsetof(OemDevmode, trueTypeNames) + i * sizeof(settings.trueTypeNames[i])},
            {"trueTypeName", Utf8(settings.trueTypeNames[i], kJapanese)},
            {"printerFontOffset", offsetof(OemDevmode, printerFonts) + i * sizeof(settings.printerFonts[i])},
            {"printerFont", Utf8(settings.printerFonts[i])},
            {"codeOffset", offsetof(OemDevmode, fontCodes) + i},
            {"code", settings.fontCodes[i]},
            {"checksumOffset", offsetof(OemDevmode, fontChecksums) + i * sizeof(settings.fontChecksums[i])},
            {"checksum", uint32_t{settings.fontChecksums[i]}},
        });
    return rows;
}

Document Defaults(const FamilyFiles& family) {
    Document document;
    document["files"] = FamilyDocument(family);
    for (const SettingsField& field : kFields)
        document[field.group].push_back(
            {{"name", field.name},
             {"offset", field.offset},
             {"bytes", field.bytes},
             {"value", field.show(reinterpret_cast<const uint8_t*>(&defaultSettings) + field.offset)}});
    document["fontTable"] = FontTable(defaultSettings);
    return document;
}

} // namespace

Run SetUpDefaults(CLI::App& /*command*/) {
    return Defaults;
}

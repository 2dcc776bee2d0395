// Fields of the settings: see the header.
#include "workbench/lib/settings_fields.h"

#include "workbench/lib/record_fields.h"

#include <bitset>
#include <type_traits>

namespace {

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
    VALUE("trays", slot.key), VALUE("trays", slot.bin), VALUE("trays", slot.mediaType),                      \
        VALUE("trays", slot.mediaWeight), VALUE("trays", slot.mediaColor),                                   \
        VALUE("trays", slot.mediaPrePunched)

// Every field, in the order of the record within a group. The font table follows them.
constexpr SettingsField kSettingsFields[] = {
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
    VALUE("paper", unitFlags),
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
    TRAY(trays[0]),
    TRAY(trays[1]),
    TRAY(trays[2]),
    TRAY(trays[3]),
    TRAY(trays[4]),
    TRAY(trays[5]),
    TRAY(trays[6]),
    TRAY(trays[7]),
    TRAY(trays[8]),
    TRAY(trays[9]),
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

const uint8_t* At(const OemDevmode& settings, size_t offset) {
    return reinterpret_cast<const uint8_t*>(&settings) + offset;
}

void AddChange(Document& changes, const Document& name, size_t offset, const Document& before,
               const Document& after) {
    changes.Add({{"name", name}, {"offset", offset}, {"before", before}, {"after", after}});
}

} // namespace

Rows<SettingsField> SettingsFields() {
    return kSettingsFields;
}

Document ShowSetting(const SettingsField& field, const OemDevmode& settings) {
    return field.show(At(settings, field.offset));
}

Document SettingsChanges(const OemDevmode& before, const OemDevmode& after) {
    Document changes = Document::MakeList();
    std::bitset<sizeof(OemDevmode)> named;
    for (const SettingsField& field : kSettingsFields) {
        for (size_t i = 0; i < field.bytes; ++i)
            named.set(field.offset + i);
        if (memcmp(At(before, field.offset), At(after, field.offset), field.bytes) != 0)
            AddChange(changes, field.name, field.offset, ShowSetting(field, before),
                      ShowSetting(field, after));
    }
    for (size_t i = 0; i < sizeof(OemDevmode); ++i)
        if (!named[i] && *At(before, i) != *At(after, i))
            AddChange(changes, nullptr, i, *At(before, i), *At(after, i));
    return changes;
}

// The model's private print settings: the record that the user-interface module owns and stores, and that the
// dialogs edit in place. A stored format: no field moves. The gaps are other modules' fields, which this
// module leaves alone.
#ifndef PARAMDATA_OEM_DEVMODE_H
#define PARAMDATA_OEM_DEVMODE_H

#include <cstddef>
#include <cstdint>

#pragma pack(push, 1)

// One colour profile that the printer holds, or a chosen one.
struct ProfileEntry {
    wchar_t qualifier[41]; // may be empty; of a built-in RGB source: its display name
    wchar_t name[41];
    uint32_t location; // value of a "Prof_Location" item
};
static_assert(sizeof(ProfileEntry) == 168 && offsetof(ProfileEntry, name) == 82
              && offsetof(ProfileEntry, location) == 164);

// Paper that is taken to lie in a tray.
struct TrayPaperDefault {
    char key[32];
    uint32_t bin;
    uint16_t mediaType;
    uint16_t mediaWeight;
    uint16_t mediaColor;
    uint8_t mediaPrePunched;
};
static_assert(sizeof(TrayPaperDefault) == 43 && offsetof(TrayPaperDefault, bin) == 32
              && offsetof(TrayPaperDefault, mediaType) == 36 && offsetof(TrayPaperDefault, mediaWeight) == 38
              && offsetof(TrayPaperDefault, mediaColor) == 40
              && offsetof(TrayPaperDefault, mediaPrePunched) == 42);

// Colour treatment of one kind of object: item values.
struct ObjectColor {
    uint8_t colorMatch;
    uint8_t halftone;
    uint8_t gray;
    uint8_t reserved;
};
static_assert(sizeof(ObjectColor) == 4 && offsetof(ObjectColor, halftone) == 1
              && offsetof(ObjectColor, gray) == 2);

constexpr size_t kTrayPaperDefaultCount = 10;
constexpr size_t kFontSlotCount = 27;

struct OemDevmode {
    uint8_t reserved1[66];
    uint16_t paper;     // item value
    int16_t paperWidth; // tenths of a millimetre, as all metric lengths here
    int16_t paperLength;
    uint16_t paperMargins[4];
    uint8_t reserved2[1];
    int16_t userPaperWidth;
    int16_t userPaperLength;
    uint8_t reserved3[3];
    int32_t userPaperWidthInches; // hundredths of an inch, or thousandths for figure type 1
    int32_t userPaperLengthInches;
    uint16_t outputPaper;
    int16_t outputWidth;
    int16_t outputLength;
    uint8_t reserved4[1];
    int16_t userOutputWidth;
    int16_t userOutputLength;
    uint8_t reserved5[1];
    int32_t userOutputWidthInches;
    int32_t userOutputLengthInches;
    uint8_t unitFlags[4]; // 1: inches; the module's own choice of place
    uint16_t inputTray;   // bin number
    uint16_t mediaType;
    uint8_t reserved7[36];
    uint16_t detailMediaType; // the same, for the media details
    uint16_t mediaWeight;
    uint16_t mediaColor;
    uint8_t mediaPrePunched;
    TrayPaperDefault trays[kTrayPaperDefaultCount];
    uint8_t reserved8[1];
    int16_t copies;
    uint8_t collate;
    uint8_t reserved9[143];
    uint8_t paperOption1;
    uint8_t paperOption2;
    uint8_t reserved10[649];
    uint8_t bindingEdge;    // 10 or 11 when four edges can be bound, else 14 to 17
    uint8_t sameBindShifts; // 1: the two binding shifts are equal
    uint8_t reserved11[1];
    int16_t bindShiftFront;
    int16_t bindShiftBack;
    int16_t bindShiftFrontInches; // thousandths of an inch
    int16_t bindShiftBackInches;
    uint8_t reserved12[6];
    int16_t imageShiftFrontH;
    int16_t imageShiftFrontV;
    uint8_t reserved13[4];
    int16_t imageShiftFrontHInches; // thousandths of an inch
    int16_t imageShiftFrontVInches;
    uint8_t reserved14[6];
    int16_t imageShiftBackH;
    int16_t imageShiftBackV;
    uint8_t reserved15[4];
    int16_t imageShiftBackHInches;
    int16_t imageShiftBackVInches;
    uint8_t reserved16[15];
    uint8_t staple;
    uint8_t reserved17[1];
    uint8_t holePunch;
    uint16_t outputTray;
    uint8_t outputOrder;
    uint8_t reserved18[3];
    uint8_t folding;
    uint8_t reserved19[3];
    uint8_t combination;
    uint8_t reserved20[1];
    int16_t divideFinish;
    uint8_t reserved21[4];
    uint8_t frontCoverPrint; // 1: by the driver, else 4
    uint8_t reserved22[1];
    uint16_t frontCoverTray; // bin number, as all trays
    uint8_t reserved23[1];
    uint8_t backCoverPrint;
    uint16_t backCoverTray;
    uint8_t reserved24[2];
    uint16_t interleaveTray;
    uint8_t reserved25[1];
    uint16_t inserterFrontTray;
    uint8_t reserved26[1];
    uint16_t inserterBackTray;
    uint8_t reserved27[4];
    uint16_t watermark; // position in the list
    uint8_t reserved28[32];
    wchar_t watermarkName[32];
    wchar_t watermarkText[129];
    wchar_t watermarkFont[32];
    uint16_t watermarkValues1[2];
    uint32_t watermarkColor; // 0x00BBGGRR
    uint16_t watermarkValue2;
    uint8_t watermarkBlock[8];
    uint8_t reserved29[8];
    uint16_t watermarkValue3;
    uint8_t reserved30[140];
    uint32_t overlayLocation;
    uint8_t reserved31[2];
    uint8_t mono; // 1: the queue prints black only
    uint8_t colorMode;
    uint8_t reserved32[40];
    uint8_t resolution; // position in the list
    uint8_t reserved33[1];
    uint16_t resolutionValues[3];
    uint16_t resolutionNumber;
    uint8_t reserved34[7];
    ObjectColor image;
    ObjectColor text;
    ObjectColor graphics;
    uint8_t graphicsFollow; // what graphics take: 0 the text settings, 1 the image settings
    uint16_t simulation;    // built-in value, or 128: simulationProfile
    ProfileEntry simulationProfile;
    uint16_t destination; // 0 automatic, 128: destinationProfile
    ProfileEntry destinationProfile;
    uint8_t reserved35[2];
    uint32_t profileLocation;
    uint16_t rgbSource;
    int16_t imageRgbSource; // built-in value, or 256 + position of a profile of the printer
    int16_t textRgbSource;
    int16_t graphicsRgbSource;
    ProfileEntry textRgbProfile;
    ProfileEntry imageRgbProfile;
    ProfileEntry graphicsRgbProfile;
    uint16_t textDestination; // 0 automatic, 128: the profile below
    uint16_t imageDestination;
    uint16_t graphicsDestination;
    ProfileEntry textDestinationProfile;
    ProfileEntry imageDestinationProfile;
    ProfileEntry graphicsDestinationProfile;
    uint8_t matchPaperColor;
    uint8_t reserved36[1];
    uint16_t simulationGray;
    uint8_t reserved37[3];
    uint8_t fontSubstitution;
    char trueTypeNames[kFontSlotCount][32];
    uint8_t fontCodes[24]; // one for each of the first 24 slots
    uint16_t fontField;
    uint8_t fontFlag;
    char printerFonts[kFontSlotCount][32];
    uint8_t reserved38[1];
    uint16_t fontCount;
    uint32_t fontChecksums[kFontSlotCount];
    uint8_t reserved39[2291];
    int16_t userPaperWidthAgain;
    int16_t userPaperLengthAgain;
    uint8_t reserved40[105];
};
static_assert(
    sizeof(OemDevmode) == 7808 && offsetof(OemDevmode, paper) == 66 && offsetof(OemDevmode, paperWidth) == 68
    && offsetof(OemDevmode, paperLength) == 70 && offsetof(OemDevmode, paperMargins) == 72
    && offsetof(OemDevmode, userPaperWidth) == 81 && offsetof(OemDevmode, userPaperLength) == 83
    && offsetof(OemDevmode, userPaperWidthInches) == 88 && offsetof(OemDevmode, userPaperLengthInches) == 92
    && offsetof(OemDevmode, outputPaper) == 96 && offsetof(OemDevmode, outputWidth) == 98
    && offsetof(OemDevmode, outputLength) == 100 && offsetof(OemDevmode, userOutputWidth) == 103
    && offsetof(OemDevmode, userOutputLength) == 105 && offsetof(OemDevmode, userOutputWidthInches) == 108
    && offsetof(OemDevmode, userOutputLengthInches) == 112 && offsetof(OemDevmode, unitFlags) == 116
    && offsetof(OemDevmode, inputTray) == 120 && offsetof(OemDevmode, mediaType) == 122
    && offsetof(OemDevmode, detailMediaType) == 160 && offsetof(OemDevmode, mediaWeight) == 162
    && offsetof(OemDevmode, mediaColor) == 164 && offsetof(OemDevmode, mediaPrePunched) == 166
    && offsetof(OemDevmode, trays) == 167 && offsetof(OemDevmode, copies) == 598
    && offsetof(OemDevmode, collate) == 600 && offsetof(OemDevmode, paperOption1) == 744
    && offsetof(OemDevmode, paperOption2) == 745 && offsetof(OemDevmode, bindingEdge) == 1395
    && offsetof(OemDevmode, sameBindShifts) == 1396 && offsetof(OemDevmode, bindShiftFront) == 1398
    && offsetof(OemDevmode, bindShiftBack) == 1400 && offsetof(OemDevmode, bindShiftFrontInches) == 1402
    && offsetof(OemDevmode, bindShiftBackInches) == 1404 && offsetof(OemDevmode, imageShiftFrontH) == 1412
    && offsetof(OemDevmode, imageShiftFrontV) == 1414 && offsetof(OemDevmode, imageShiftFrontHInches) == 1420
    && offsetof(OemDevmode, imageShiftFrontVInches) == 1422 && offsetof(OemDevmode, imageShiftBackH) == 1430
    && offsetof(OemDevmode, imageShiftBackV) == 1432 && offsetof(OemDevmode, imageShiftBackHInches) == 1438
    && offsetof(OemDevmode, imageShiftBackVInches) == 1440 && offsetof(OemDevmode, staple) == 1457
    && offsetof(OemDevmode, holePunch) == 1459 && offsetof(OemDevmode, outputTray) == 1460
    && offsetof(OemDevmode, outputOrder) == 1462 && offsetof(OemDevmode, folding) == 1466
    && offsetof(OemDevmode, combination) == 1470 && offsetof(OemDevmode, divideFinish) == 1472
    && offsetof(OemDevmode, frontCoverPrint) == 1478 && offsetof(OemDevmode, frontCoverTray) == 1480
    && offsetof(OemDevmode, backCoverPrint) == 1483 && offsetof(OemDevmode, backCoverTray) == 1484
    && offsetof(OemDevmode, interleaveTray) == 1488 && offsetof(OemDevmode, inserterFrontTray) == 1491
    && offsetof(OemDevmode, inserterBackTray) == 1494 && offsetof(OemDevmode, watermark) == 1500
    && offsetof(OemDevmode, watermarkName) == 1534 && offsetof(OemDevmode, watermarkText) == 1598
    && offsetof(OemDevmode, watermarkFont) == 1856 && offsetof(OemDevmode, watermarkValues1) == 1920
    && offsetof(OemDevmode, watermarkColor) == 1924 && offsetof(OemDevmode, watermarkValue2) == 1928
    && offsetof(OemDevmode, watermarkBlock) == 1930 && offsetof(OemDevmode, watermarkValue3) == 1946
    && offsetof(OemDevmode, overlayLocation) == 2088 && offsetof(OemDevmode, mono) == 2094
    && offsetof(OemDevmode, colorMode) == 2095 && offsetof(OemDevmode, resolution) == 2136
    && offsetof(OemDevmode, resolutionValues) == 2138 && offsetof(OemDevmode, resolutionNumber) == 2144
    && offsetof(OemDevmode, image) == 2153 && offsetof(OemDevmode, text) == 2157
    && offsetof(OemDevmode, graphics) == 2161 && offsetof(OemDevmode, graphicsFollow) == 2165
    && offsetof(OemDevmode, simulation) == 2166 && offsetof(OemDevmode, simulationProfile) == 2168
    && offsetof(OemDevmode, destination) == 2336 && offsetof(OemDevmode, destinationProfile) == 2338
    && offsetof(OemDevmode, profileLocation) == 2508 && offsetof(OemDevmode, rgbSource) == 2512
    && offsetof(OemDevmode, imageRgbSource) == 2514 && offsetof(OemDevmode, textRgbSource) == 2516
    && offsetof(OemDevmode, graphicsRgbSource) == 2518 && offsetof(OemDevmode, textRgbProfile) == 2520
    && offsetof(OemDevmode, imageRgbProfile) == 2688 && offsetof(OemDevmode, graphicsRgbProfile) == 2856
    && offsetof(OemDevmode, textDestination) == 3024 && offsetof(OemDevmode, imageDestination) == 3026
    && offsetof(OemDevmode, graphicsDestination) == 3028
    && offsetof(OemDevmode, textDestinationProfile) == 3030
    && offsetof(OemDevmode, imageDestinationProfile) == 3198
    && offsetof(OemDevmode, graphicsDestinationProfile) == 3366
    && offsetof(OemDevmode, matchPaperColor) == 3534 && offsetof(OemDevmode, simulationGray) == 3536
    && offsetof(OemDevmode, fontSubstitution) == 3541 && offsetof(OemDevmode, trueTypeNames) == 3542
    && offsetof(OemDevmode, fontCodes) == 4406 && offsetof(OemDevmode, fontField) == 4430
    && offsetof(OemDevmode, fontFlag) == 4432 && offsetof(OemDevmode, printerFonts) == 4433
    && offsetof(OemDevmode, fontCount) == 5298 && offsetof(OemDevmode, fontChecksums) == 5300
    && offsetof(OemDevmode, userPaperWidthAgain) == 7699
    && offsetof(OemDevmode, userPaperLengthAgain) == 7701);

#pragma pack(pop)

#endif

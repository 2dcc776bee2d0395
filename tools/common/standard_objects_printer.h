// Rows of the table of standard objects: Printer MIB, finisher extensions and the port monitor. Languages and
// channels of single makers have no words here.
#ifndef COMMON_STANDARD_OBJECTS_PRINTER_H
#define COMMON_STANDARD_OBJECTS_PRINTER_H

#include "common/standard_objects_host.h"

namespace standard_objects {

constexpr const char* kPresentOnOff = "1:other 3:on off notPresent";
constexpr const char* kDimensionUnits = "3:tenThousandthsOfInches micrometers";
constexpr const char* kCapacityUnits =
    "1:other unknown tenThousandthsOfInches micrometers 8:sheets 16:feet meters items percent";
constexpr const char* kCounterUnits =
    "3:tenThousandthsOfInches micrometers characters lines impressions sheets dotRow 11:hours 16:feet "
    "meters";
constexpr const char* kSupplyUnits =
    "1:other unknown tenThousandthsOfInches micrometers 7:impressions sheets 11:hours "
    "thousandthsOfOunces tenthsOfGrams hundrethsOfFluidOunces tenthsOfMilliliters feet meters items "
    "percent";
constexpr const char* kSupplyClasses = "1:other 3:supplyThatIsConsumed receptacleThatIsFilled";
constexpr const char* kSupplyTypes =
    "1:other unknown toner wasteToner ink inkCartridge inkRibbon wasteInk opc developer fuserOil "
    "solidWax ribbonWax wasteWax fuser coronaWire fuserOilWick cleanerUnit fuserCleaningPad "
    "transferUnit tonerCartridge fuserOiler water wasteWater glueWaterAdditive wastePaper bindingSupply "
    "bandingSupply stitchingWire shrinkWrap paperWrap staples inserts covers";
constexpr const char* kInputTypes =
    "1:other unknown sheetFeedAutoRemovableTray sheetFeedAutoNonRemovableTray sheetFeedManual "
    "continuousRoll continuousFanFold";
constexpr const char* kCharacterSets = "1:other unknown csASCII csISOLatin1 106:csUTF8 1000:csUnicode";
constexpr const char* kAlertCodes =
    "1:other unknown coverOpen coverClosed interlockOpen interlockClosed configurationChange jam "
    "subunitMissing subunitLifeAlmostOver subunitLifeOver subunitAlmostEmpty subunitEmpty "
    "subunitAlmostFull subunitFull subunitNearLimit subunitAtLimit subunitOpened subunitClosed "
    "subunitTurnedOn subunitTurnedOff subunitOffline subunitPowerSaver subunitWarmingUp subunitAdded "
    "subunitRemoved subunitResourceAdded subunitResourceRemoved subunitRecoverableFailure "
    "subunitUnrecoverableFailure subunitRecoverableStorageError subunitUnrecoverableStorageError "
    "subunitMotorFailure subunitMemoryExhausted subunitUnderTemperature subunitOverTemperature "
    "subunitTimingFailure subunitThermistorFailure 501:doorOpen doorClosed powerUp powerDown "
    "printerNMSReset printerManualReset printerReadyToPrint 801:inputMediaTrayMissing "
    "inputMediaSizeChange inputMediaWeightChange inputMediaTypeChange inputMediaColorChange "
    "inputMediaFormPartsChange inputMediaSupplyLow inputMediaSupplyEmpty inputMediaChangeRequest "
    "inputManualInputRequest inputTrayPositionFailure inputTrayElevationFailure "
    "inputCannotFeedSizeSelected 901:outputMediaTrayMissing outputMediaTrayAlmostFull "
    "outputMediaTrayFull outputMailboxSelectFailure 1001:markerFuserUnderTemperature "
    "markerFuserOverTemperature markerFuserTimingFailure markerFuserThermistorFailure "
    "markerAdjustingPrintQuality 1101:markerTonerEmpty markerInkEmpty markerPrintRibbonEmpty "
    "markerTonerAlmostEmpty markerInkAlmostEmpty markerPrintRibbonAlmostEmpty "
    "markerWasteTonerReceptacleAlmostFull markerWasteInkReceptacleAlmostFull "
    "markerWasteTonerReceptacleFull markerWasteInkReceptacleFull markerOpcLifeAlmostOver "
    "markerOpcLifeOver markerDeveloperAlmostEmpty markerDeveloperEmpty markerTonerCartridgeMissing "
    "1301:mediaPathMediaTrayMissing mediaPathMediaTrayAlmostFull mediaPathMediaTrayFull "
    "mediaPathCannotDuplexMediaSelected 1501:interpreterMemoryIncrease interpreterMemoryDecrease "
    "interpreterCartridgeAdded interpreterCartridgeDeleted interpreterResourceAdded "
    "interpreterResourceDeleted interpreterResourceUnavailable 1509:interpreterComplexPageEncountered "
    "1801:alertRemovalOfBinaryChangeEntry";

// Printer-MIB 1.3.6.1.2.1.43.5.1.1
constexpr StandardObject kGeneral[] = {
    {"prtGeneralConfigChanges", 1, Syntax::kCounter32},
    {"prtGeneralCurrentLocalization", 2, Syntax::kInteger},
    {"prtGeneralReset", 3, Syntax::kInteger,
     "3:notResetting powerCycleReset resetToNVRAM resetToFactoryDefaults"},
    {"prtGeneralCurrentOperator", 4, Syntax::kText},
    {"prtGeneralServicePerson", 5, Syntax::kText},
    {"prtInputDefaultIndex", 6, Syntax::kInteger},
    {"prtOutputDefaultIndex", 7, Syntax::kInteger},
    {"prtMarkerDefaultIndex", 8, Syntax::kInteger},
    {"prtMediaPathDefaultIndex", 9, Syntax::kInteger},
    {"prtConsoleLocalization", 10, Syntax::kInteger},
    {"prtConsoleNumberOfDisplayLines", 11, Syntax::kInteger},
    {"prtConsoleNumberOfDisplayChars", 12, Syntax::kInteger},
    {"prtConsoleDisable", 13, Syntax::kInteger, "3:enabled disabled"},
    {"prtAuxiliarySheetStartupPage", 14, Syntax::kInteger, kPresentOnOff},
    {"prtAuxiliarySheetBannerPage", 15, Syntax::kInteger, kPresentOnOff},
    {"prtGeneralPrinterName", 16, Syntax::kText},
    {"prtGeneralSerialNumber", 17, Syntax::kText},
    {"prtAlertCriticalEvents", 18, Syntax::kCounter32},
    {"prtAlertAllEvents", 19, Syntax::kCounter32},
};

// Printer-MIB 1.3.6.1.2.1.43.5.2.1
constexpr StandardObject kStorageRef[] = {
    {"prtStorageRefSeqNumber", 1, Syntax::kInteger},
    {"prtStorageRefIndex", 2, Syntax::kInteger},
};

// Printer-MIB 1.3.6.1.2.1.43.5.3.1
constexpr StandardObject kDeviceRef[] = {
    {"prtDeviceRefSeqNumber", 1, Syntax::kInteger},
    {"prtDeviceRefIndex", 2, Syntax::kInteger},
};

// Printer-MIB 1.3.6.1.2.1.43.6.1.1
constexpr StandardObject kCover[] = {
    {"prtCoverIndex", 1, Syntax::kInteger},
    {"prtCoverDescription", 2, Syntax::kText},
    {"prtCoverStatus", 3, Syntax::kInteger,
     "1:other unknown coverOpen coverClosed interlockOpen interlockClosed"},
};

// Printer-MIB 1.3.6.1.2.1.43.7.1.1
constexpr StandardObject kLocalization[] = {
    {"prtLocalizationIndex", 1, Syntax::kInteger},
    {"prtLocalizationLanguage", 2, Syntax::kText},
    {"prtLocalizationCountry", 3, Syntax::kText},
    {"prtLocalizationCharacterSet", 4, Syntax::kInteger, kCharacterSets},
};

// Printer-MIB 1.3.6.1.2.1.43.8.2.1
constexpr StandardObject kInput[] = {
    {"prtInputIndex", 1, Syntax::kInteger},
    {"prtInputType", 2, Syntax::kInteger, kInputTypes},
    {"prtInputDimUnit", 3, Syntax::kInteger, kDimensionUnits},
    {"prtInputMediaDimFeedDirDeclared", 4, Syntax::kInteger},
    {"prtInputMediaDimXFeedDirDeclared", 5, Syntax::kInteger},
    {"prtInputMediaDimFeedDirChosen", 6, Syntax::kInteger},
    {"prtInputMediaDimXFeedDirChosen", 7, Syntax::kInteger},
    {"prtInputCapacityUnit", 8, Syntax::kInteger, kCapacityUnits},
    {"prtInputMaxCapacity", 9, Syntax::kInteger},
    {"prtInputCurrentLevel", 10, Syntax::kInteger},
    {"prtInputStatus", 11, Syntax::kInteger},
    {"prtInputMediaName", 12, Syntax::kText},
    {"prtInputName", 13, Syntax::kText},
    {"prtInputVendorName", 14, Syntax::kText},
    {"prtInputModel", 15, Syntax::kText},
    {"prtInputVersion", 16, Syntax::kText},
    {"prtInputSerialNumber", 17, Syntax::kText},
    {"prtInputDescription", 18, Syntax::kText},
    {"prtInputSecurity", 19, Syntax::kInteger, kPresentOnOff},
    {"prtInputMediaWeight", 20, Syntax::kInteger},
    {"prtInputMediaType", 21, Syntax::kText},
    {"prtInputMediaColor", 22, Syntax::kText},
    {"prtInputMediaFormParts", 23, Syntax::kInteger},
    {"prtInputMediaLoadTimeout", 24, Syntax::kInteger},
    {"prtInputNextIndex", 25, Syntax::kInteger},
};

// Printer-MIB 1.3.6.1.2.1.43.9.2.1
constexpr StandardObject kOutput[] = {
    {"prtOutputIndex", 1, Syntax::kInteger},
    {"prtOutputType", 2, Syntax::kInteger,
     "1:other unknown removableBin unRemovableBin continuousRollDevice mailBox continuousFanFold"},
    {"prtOutputCapacityUnit", 3, Syntax::kInteger, kCapacityUnits},
    {"prtOutputMaxCapacity", 4, Syntax::kInteger},
    {"prtOutputRemainingCapacity", 5, Syntax::kInteger},
    {"prtOutputStatus", 6, Syntax::kInteger},
    {"prtOutputName", 7, Syntax::kText},
    {"prtOutputVendorName", 8, Syntax::kText},
    {"prtOutputModel", 9, Syntax::kText},
    {"prtOutputVersion", 10, Syntax::kText},
    {"prtOutputSerialNumber", 11, Syntax::kText},
    {"prtOutputDescription", 12, Syntax::kText},
    {"prtOutputSecurity", 13, Syntax::kInteger, kPresentOnOff},
    {"prtOutputDimUnit", 14, Syntax::kInteger, kDimensionUnits},
    {"prtOutputMaxDimFeedDir", 15, Syntax::kInteger},
    {"prtOutputMaxDimXFeedDir", 16, Syntax::kInteger},
    {"prtOutputMinDimFeedDir", 17, Syntax::kInteger},
    {"prtOutputMinDimXFeedDir", 18, Syntax::kInteger},
    {"prtOutputStackingOrder", 19, Syntax::kInteger, "2:unknown firstToLast lastToFirst"},
    {"prtOutputPageDeliveryOrientation", 20, Syntax::kInteger, "3:faceUp faceDown"},
    {"prtOutputBursting", 21, Syntax::kInteger, kPresentOnOff},
    {"prtOutputDecollating", 22, Syntax::kInteger, kPresentOnOff},
    {"prtOutputPageCollated", 23, Syntax::kInteger, kPresentOnOff},
    {"prtOutputOffsetStacking", 24, Syntax::kInteger, kPresentOnOff},
};

// Printer-MIB 1.3.6.1.2.1.43.10.2.1
constexpr StandardObject kMarker[] = {
    {"prtMarkerIndex", 1, Syntax::kInteger},
    {"prtMarkerMarkTech", 2, Syntax::kInteger,
     "1:other unknown electrophotographicLED electrophotographicLaser electrophotographicOther "
     "impactMovingHeadDotMatrix9pin impactMovingHeadDotMatrix24pin impactMovingHeadDotMatrixOther "
     "impactMovingHeadFullyFormed impactBand impactOther inkjetAqueous inkjetSolid inkjetOther pen thermalTransfer thermalSensitive thermalDiffusion "
     "thermalOther"},
    {"prtMarkerCounterUnit", 3, Syntax::kInteger, kCounterUnits},
    {"prtMarkerLifeCount", 4, Syntax::kCounter32},
    {"prtMarkerPowerOnCount", 5, Syntax::kCounter32},
    {"prtMarkerProcessColorants", 6, Syntax::kInteger},
    {"prtMarkerSpotColorants", 7, Syntax::kInteger},
    {"prtMarkerAddressabilityUnit", 8, Syntax::kInteger, kDimensionUnits},
    {"prtMarkerAddressabilityFeedDir", 9, Syntax::kInteger},
    {"prtMarkerAddressabilityXFeedDir", 10, Syntax::kInteger},
    {"prtMarkerNorthMargin", 11, Syntax::kInteger},
    {"prtMarkerSouthMargin", 12, Syntax::kInteger},
    {"prtMarkerWestMargin", 13, Syntax::kInteger},
    {"prtMarkerEastMargin", 14, Syntax::kInteger},
    {"prtMarkerStatus", 15, Syntax::kInteger},
};

// Printer-MIB 1.3.6.1.2.1.43.11.1.1
constexpr StandardObject kSupplies[] = {
    {"prtMarkerSuppliesIndex", 1, Syntax::kInteger},
    {"prtMarkerSuppliesMarkerIndex", 2, Syntax::kInteger},
    {"prtMarkerSuppliesColorantIndex", 3, Syntax::kInteger},
    {"prtMarkerSuppliesClass", 4, Syntax::kInteger, kSupplyClasses},
    {"prtMarkerSuppliesType", 5, Syntax::kInteger, kSupplyTypes},
    {"prtMarkerSuppliesDescription", 6, Syntax::kText},
    {"prtMarkerSuppliesSupplyUnit", 7, Syntax::kInteger, kSupplyUnits},
    {"prtMarkerSuppliesMaxCapacity", 8, Syntax::kInteger},
    {"prtMarkerSuppliesLevel", 9, Syntax::kInteger},
};

// Printer-MIB 1.3.6.1.2.1.43.12.1.1
constexpr StandardObject kColorant[] = {
    {"prtMarkerColorantIndex", 1, Syntax::kInteger},
    {"prtMarkerColorantMarkerIndex", 2, Syntax::kInteger},
    {"prtMarkerColorantRole", 3, Syntax::kInteger, "1:other 3:process spot"},
    {"prtMarkerColorantValue", 4, Syntax::kText},
    {"prtMarkerColorantTonality", 5, Syntax::kInteger},
};

// Printer-MIB 1.3.6.1.2.1.43.13
constexpr StandardObject kMediaPathCount[] = {
    {"prtMediaPathNumOfMediaPaths", 1, Syntax::kGauge32},
};

// Printer-MIB 1.3.6.1.2.1.43.13.4.1
constexpr StandardObject kMediaPath[] = {
    {"prtMediaPathIndex", 1, Syntax::kInteger},
    {"prtMediaPathMaxSpeedPrintUnit", 2, Syntax::kInteger,
     "3:tenThousandthsOfInchesPerHour micrometersPerHour charactersPerHour linesPerHour "
     "impressionsPerHour sheetsPerHour dotRowPerHour 16:feetPerHour metersPerHour"},
    {"prtMediaPathMediaSizeUnit", 3, Syntax::kInteger, kDimensionUnits},
    {"prtMediaPathMaxSpeed", 4, Syntax::kInteger},
    {"prtMediaPathMaxMediaFeedDir", 5, Syntax::kInteger},
    {"prtMediaPathMaxMediaXFeedDir", 6, Syntax::kInteger},
    {"prtMediaPathMinMediaFeedDir", 7, Syntax::kInteger},
    {"prtMediaPathMinMediaXFeedDir", 8, Syntax::kInteger},
    {"prtMediaPathType", 9, Syntax::kInteger,
     "1:other unknown longEdgeBindingDuplex shortEdgeBindingDuplex simplex"},
    {"prtMediaPathDescription", 10, Syntax::kText},
    {"prtMediaPathStatus", 11, Syntax::kInteger},
};

// Printer-MIB 1.3.6.1.2.1.43.14.1.1
constexpr StandardObject kChannel[] = {
    {"prtChannelIndex", 1, Syntax::kInteger},
    {"prtChannelType", 2, Syntax::kInteger,
     "1:other 3:chSerialPort chParallelPort chIEEE1284Port chSCSIPort 8:chLPDServer 11:chPort9100 "
     "chAppSocket chFTP chTFTP 18:chFax chIEEE1394 34:chUSB chIRDA 37:chPortTCP chBidirPortTCP "
     "42:chPortHTTP 44:chIPP chSMTP"},
    {"prtChannelProtocolVersion", 3, Syntax::kText},
    {"prtChannelCurrentJobCntlLangIndex", 4, Syntax::kInteger},
    {"prtChannelDefaultPageDescLangIndex", 5, Syntax::kInteger},
    {"prtChannelState", 6, Syntax::kInteger, "1:other 3:printDataAccepted noDataAccepted"},
    {"prtChannelIfIndex", 7, Syntax::kInteger},
    {"prtChannelStatus", 8, Syntax::kInteger},
    {"prtChannelInformation", 9, Syntax::kText},
};

// Printer-MIB 1.3.6.1.2.1.43.15.1.1
constexpr StandardObject kInterpreter[] = {
    {"prtInterpreterIndex", 1, Syntax::kInteger},
    {"prtInterpreterLangFamily", 2, Syntax::kInteger,
     "1:other unknown langPCL 5:langPJL langPS 30:langSimpleText 37:langAutomatic 40:langTIFF "
     "langDiagnostic 47:langPCLXL 51:langLinePrinter 54:langPDF 61:langJPEG"},
    {"prtInterpreterLangLevel", 3, Syntax::kText},
    {"prtInterpreterLangVersion", 4, Syntax::kText},
    {"prtInterpreterDescription", 5, Syntax::kText},
    {"prtInterpreterVersion", 6, Syntax::kText},
    {"prtInterpreterDefaultOrientation", 7, Syntax::kInteger, "1:other 3:portrait landscape"},
    {"prtInterpreterFeedAddressability", 8, Syntax::kInteger},
    {"prtInterpreterXFeedAddressability", 9, Syntax::kInteger},
    {"prtInterpreterDefaultCharSetIn", 10, Syntax::kInteger, kCharacterSets},
    {"prtInterpreterDefaultCharSetOut", 11, Syntax::kInteger, kCharacterSets},
    {"prtInterpreterTwoWay", 12, Syntax::kInteger, "3:yes no"},
};

// Printer-MIB 1.3.6.1.2.1.43.16.5.1
constexpr StandardObject kDisplay[] = {
    {"prtConsoleDisplayBufferIndex", 1, Syntax::kInteger},
    {"prtConsoleDisplayBufferText", 2, Syntax::kText},
};

// Printer-MIB 1.3.6.1.2.1.43.17.6.1
constexpr StandardObject kLight[] = {
    {"prtConsoleLightIndex", 1, Syntax::kInteger},
    {"prtConsoleOnTime", 2, Syntax::kInteger},
    {"prtConsoleOffTime", 3, Syntax::kInteger},
    {"prtConsoleColor", 4, Syntax::kInteger,
     "1:other unknown white red green blue cyan magenta yellow orange"},
    {"prtConsoleDescription", 5, Syntax::kText},
};

// Printer-MIB 1.3.6.1.2.1.43.18.1.1
constexpr StandardObject kAlert[] = {
    {"prtAlertIndex", 1, Syntax::kInteger},
    {"prtAlertSeverityLevel", 2, Syntax::kInteger, "1:other 3:critical warning warningBinaryChangeEvent"},
    {"prtAlertTrainingLevel", 3, Syntax::kInteger,
     "1:other unknown untrained trained fieldService management noInterventionRequired"},
    {"prtAlertGroup", 4, Syntax::kInteger,
     "1:other 3:hostResourcesMIBStorageTable hostResourcesMIBDeviceTable generalPrinter cover "
     "localization input output marker markerSupplies markerColorant mediaPath channel interpreter "
     "consoleDisplayBuffer consoleLights alert 30:finDevice finSupply finSupplyMediaInput "
     "finAttribute"},
    {"prtAlertGroupIndex", 5, Syntax::kInteger},
    {"prtAlertLocation", 6, Syntax::kInteger},
    {"prtAlertCode", 7, Syntax::kInteger, kAlertCodes},
    {"prtAlertDescription", 8, Syntax::kText},
    {"prtAlertTime", 9, Syntax::kTimeTicks},
};

// Finisher-MIB 1.3.6.1.2.1.43.30.1.1
constexpr StandardObject kFinisher[] = {
    {"finDeviceIndex", 1, Syntax::kInteger},
    {"finDeviceType", 2, Syntax::kInteger,
     "1:other unknown stitcher folder binder trimmer dieCutter puncher perforater slitter "
     "separationCutter imprinter wrapper bander makeEnvelope stacker sheetRotator inserter"},
    {"finDevicePresentOnOff", 3, Syntax::kInteger, kPresentOnOff},
    {"finDeviceCapacityUnit", 4, Syntax::kInteger, kCapacityUnits},
    {"finDeviceMaxCapacity", 5, Syntax::kInteger},
    {"finDeviceCurrentCapacity", 6, Syntax::kInteger},
    {"finDeviceAssociatedMediaPaths", 7, Syntax::kText},
    {"finDeviceAssociatedOutputs", 8, Syntax::kText},
    {"finDeviceStatus", 9, Syntax::kInteger},
    {"finDeviceDescription", 10, Syntax::kText},
};

// Finisher-MIB 1.3.6.1.2.1.43.31.1.1
constexpr StandardObject kFinisherSupply[] = {
    {"finSupplyIndex", 1, Syntax::kInteger},
    {"finSupplyDeviceIndex", 2, Syntax::kInteger},
    {"finSupplyClass", 3, Syntax::kInteger, kSupplyClasses},
    {"finSupplyType", 4, Syntax::kInteger, kSupplyTypes},
    {"finSupplyDescription", 5, Syntax::kText},
    {"finSupplyUnit", 6, Syntax::kInteger, kSupplyUnits},
    {"finSupplyMaxCapacity", 7, Syntax::kInteger},
    {"finSupplyCurrentLevel", 8, Syntax::kInteger},
    {"finSupplyColorName", 9, Syntax::kText},
};

// Finisher-MIB 1.3.6.1.2.1.43.32.1.1
constexpr StandardObject kFinisherInput[] = {
    {"finSupplyMediaInputIndex", 1, Syntax::kInteger},
    {"finSupplyMediaInputDeviceIndex", 2, Syntax::kInteger},
    {"finSupplyMediaInputSupplyIndex", 3, Syntax::kInteger},
    {"finSupplyMediaInputType", 4, Syntax::kInteger, kInputTypes},
    {"finSupplyMediaInputDimUnit", 5, Syntax::kInteger, kDimensionUnits},
    {"finSupplyMediaInputMediaDimFeedDir", 6, Syntax::kInteger},
    {"finSupplyMediaInputMediaDimXFeedDir", 7, Syntax::kInteger},
    {"finSupplyMediaInputStatus", 8, Syntax::kInteger},
    {"finSupplyMediaInputMediaName", 9, Syntax::kText},
    {"finSupplyMediaInputName", 10, Syntax::kText},
    {"finSupplyMediaInputDescription", 11, Syntax::kText},
    {"finSupplyMediaInputSecurity", 12, Syntax::kInteger, kPresentOnOff},
    {"finSupplyMediaInputMediaWeight", 13, Syntax::kInteger},
    {"finSupplyMediaInputMediaThickness", 14, Syntax::kInteger},
    {"finSupplyMediaInputMediaType", 15, Syntax::kText},
};

// Finisher-MIB 1.3.6.1.2.1.43.33.1.1
constexpr StandardObject kFinisherAttribute[] = {
    {"finDeviceAttributeTypeIndex", 1, Syntax::kInteger},
    {"finDeviceAttributeInstanceIndex", 2, Syntax::kInteger},
    {"finDeviceAttributeValueAsInteger", 3, Syntax::kInteger},
    {"finDeviceAttributeValueAsOctets", 4, Syntax::kText},
};

// PRINTER-PORT-MONITOR-MIB 1.3.6.1.4.1.2699.1.2.1.1
constexpr StandardObject kMonitor[] = {
    {"ppmGeneralNaturalLanguage", 1, Syntax::kText},
    {"ppmGeneralNumberOfPrinters", 2, Syntax::kGauge32},
    {"ppmGeneralNumberOfPorts", 3, Syntax::kGauge32},
};

// PRINTER-PORT-MONITOR-MIB 1.3.6.1.4.1.2699.1.2.1.2.1.1
constexpr StandardObject kMonitoredPrinter[] = {
    {"ppmPrinterIndex", 1, Syntax::kInteger},
    {"ppmPrinterName", 2, Syntax::kText},
    {"ppmPrinterIEEE1284DeviceId", 3, Syntax::kText},
    {"ppmPrinterNumberOfPorts", 4, Syntax::kGauge32},
    {"ppmPrinterPreferredPortIndex", 5, Syntax::kInteger},
    {"ppmPrinterHrDeviceIndex", 6, Syntax::kInteger},
    {"ppmPrinterSnmpCommunityName", 7, Syntax::kText},
    {"ppmPrinterSnmpQueryEnabled", 8, Syntax::kInteger, kTruth},
};

// PRINTER-PORT-MONITOR-MIB 1.3.6.1.4.1.2699.1.2.1.3.1.1
constexpr StandardObject kMonitoredPort[] = {
    {"ppmPortIndex", 1, Syntax::kInteger},
    {"ppmPortEnabled", 2, Syntax::kInteger, kTruth},
    {"ppmPortName", 3, Syntax::kText},
    {"ppmPortServiceNameOrURI", 4, Syntax::kText},
    {"ppmPortProtocolType", 5, Syntax::kInteger},
    {"ppmPortProtocolTargetPort", 6, Syntax::kInteger},
    {"ppmPortProtocolAltSourceEnabled", 7, Syntax::kInteger, kTruth},
    {"ppmPortPrtChannelIndex", 8, Syntax::kInteger},
    {"ppmPortLprByteCountEnabled", 9, Syntax::kInteger, kTruth},
};

} // namespace standard_objects

#endif

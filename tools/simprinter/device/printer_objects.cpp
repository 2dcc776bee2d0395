// The printer's Printer MIB (RFC 1759 and additions of RFC 3805): host device 1.
#include "simprinter/device/object_table.h"
#include "simprinter/device/objects.h"

#include <algorithm>

namespace {

constexpr int kMicrometers = 4, kSheets = 8;  // units
constexpr int64_t kMicrometersInLength = 100; // the device's lengths are tenths of a millimetre

// --- .1.3.6.1.2.1.43.5.1.1 prtGeneralTable
constexpr Column<Device> kGeneral[] = {
    {1, [](const Device&) { return NumberValue(0, kCounter); }}, // prtGeneralConfigChanges
    {2, Fixed<1>},                                               // prtGeneralCurrentLocalization
    {3, Fixed<3>},                                               // prtGeneralReset: notResetting
    {4, Text<&Device::contact>},                                 // prtGeneralCurrentOperator
    {5, [](const Device&) { return TextValue(""); }},            // prtGeneralServicePerson
    {6, [](const Device& d) { return NumberValue(d.trays.empty() ? -1 : d.trays[0].kind->name.code); }},
    {7, Fixed<1>},               // prtOutputDefaultIndex
    {8, Fixed<1>},               // prtMarkerDefaultIndex
    {9, Fixed<1>},               // prtMediaPathDefaultIndex
    {10, Fixed<1>},              // prtConsoleLocalization
    {11, Fixed<1>},              // prtConsoleNumberOfDisplayLines
    {12, Fixed<40>},             // prtConsoleNumberOfDisplayChars
    {13, Fixed<3>},              // prtConsoleDisable: enabled
    {16, Text<&Device::name>},   // prtGeneralPrinterName
    {17, Text<&Device::serial>}, // prtGeneralSerialNumber
};
constexpr Column<DeviceStatus> kGeneralEvents[] = {
    {18,
     [](const DeviceStatus& s) { return NumberValue(s.criticalEvents, kCounter); }}, // prtAlertCriticalEvents
    {19, [](const DeviceStatus& s) { return NumberValue(s.allEvents, kCounter); }},  // prtAlertAllEvents
};

// --- .1.3.6.1.2.1.43.6.1.1 prtCoverTable
constexpr Column<Device> kCover[] = {
    {2, [](const Device&) { return TextValue(kCoverName); }},                     // prtCoverDescription
    {3, [](const Device& d) { return NumberValue(d.isCoverOpen != 0 ? 3 : 4); }}, // prtCoverStatus
};

// --- .1.3.6.1.2.1.43.7.1.1 prtLocalizationTable
constexpr Column<Device> kLocalization[] = {
    {2, [](const Device&) { return TextValue("en"); }},
    {3, [](const Device&) { return TextValue(""); }},
    {4, Fixed<106>}, // prtLocalizationCharacterSet: UTF-8
};

// --- .1.3.6.1.2.1.43.8.2.1 prtInputTable
struct Input : Tray {
    int status; // prtInputStatus
};
// With the long edge first, the length along the feed is the sheet's width.
Value FeedLength(const Input& tray) {
    const int length = tray.orientation == kLongEdgeFirst ? tray.size->width : tray.size->length;
    return NumberValue(length * kMicrometersInLength);
}
Value CrossLength(const Input& tray) {
    const int length = tray.orientation == kLongEdgeFirst ? tray.size->length : tray.size->width;
    return NumberValue(length * kMicrometersInLength);
}
std::string PaperText(const Tray& tray) {
    return std::string(tray.size->name.word) + ' ' + tray.type->name.word;
}
constexpr Column<Input> kInput[] = {
    {2, [](const Input& t) { return NumberValue(t.kind->inputType); }},
    {3, Fixed<kMicrometers>},     // prtInputDimUnit
    {4, FeedLength},              // prtInputMediaDimFeedDirDeclared
    {5, CrossLength},             // prtInputMediaDimXFeedDirDeclared
    {6, FeedLength},              // prtInputMediaDimFeedDirChosen
    {7, CrossLength},             // prtInputMediaDimXFeedDirChosen
    {8, Fixed<kSheets>},          // prtInputCapacityUnit
    {9, Number<&Tray::capacity>}, // prtInputMaxCapacity
    {10, Number<&Tray::level>},   // prtInputCurrentLevel
    {11, Number<&Input::status>},
    {12, [](const Input& t) { return TextValue(PaperText(t)); }},      // prtInputMediaName
    {13, Text<&Tray::name>},                                           // prtInputName
    {18, [](const Input& t) { return TextValue(t.kind->text); }},      // prtInputDescription
    {19, Fixed<5>},                                                    // prtInputSecurity: notPresent
    {20, [](const Input& t) { return NumberValue(t.type->weight); }},  // prtInputMediaWeight
    {21, [](const Input& t) { return TextValue(t.type->mediaType); }}, // prtInputMediaType
    // prtInputMediaColor
    {22, [](const Input& t) { return TextValue(t.type->colorCode ? "other" : "white"); }},
};

std::vector<ConceptualRow<Input>> Inputs(const Device& device, const AlertTable& alerts) {
    std::vector<ConceptualRow<Input>> rows;
    for (const Tray& tray : device.trays) {
        rows.push_back(
            {{1, static_cast<uint32_t>(tray.kind->name.code)}, {tray, InputStatus(alerts, device, tray)}});
    }
    return rows;
}

// --- .1.3.6.1.2.1.43.9.2.1 prtOutputTable
struct Output {
    int type;
    int capacity;
    std::string name;
    std::string text;
};
constexpr int kFixedBin = 4, kMailBox = 6;
constexpr Column<Output> kOutput[] = {
    {2, Number<&Output::type>},
    {3, Fixed<kSheets>},            // prtOutputCapacityUnit
    {4, Number<&Output::capacity>}, // prtOutputMaxCapacity
    {5, Fixed<kLevelSome>},         // prtOutputRemainingCapacity
    {6, Fixed<0>},                  // prtOutputStatus: available and idle
    {7, Text<&Output::name>},
    {12, Text<&Output::text>},
    {19, Fixed<3>}, // prtOutputStackingOrder: firstToLast
    {20, Fixed<4>}, // prtOutputPageDeliveryOrientation: faceDown
};

// A finisher replaces the printer's own output tray.
std::vector<ConceptualRow<Output>> Outputs(const Device& device) {
    std::vector<Output> outputs;
    if (std::none_of(device.options.begin(), device.options.end(),
                     [](const auto* o) { return o->isFinisher; }))
        outputs.push_back({kFixedBin, 250, "Output tray", "Output tray"});
    for (const OptionKind* option : device.options) {
        for (int i = 1; i <= option->outputs; ++i) {
            outputs.push_back({option->isFinisher ? kFixedBin : kMailBox, option->outputCapacity,
                               std::string(option->outputText) + ' ' + std::to_string(i),
                               std::string(option->text) + ' ' + option->name.word});
        }
    }
    std::vector<ConceptualRow<Output>> rows;
    rows.reserve(outputs.size());
    for (const Output& output : outputs)
        rows.push_back({{1, static_cast<uint32_t>(rows.size() + 1)}, output});
    return rows;
}

// --- .1.3.6.1.2.1.43.10.2.1 prtMarkerTable
constexpr Column<Device> kMarker[] = {
    {2, Fixed<4>},                                                       // prtMarkerMarkTech: laser
    {3, Fixed<7>},                                                       // prtMarkerCounterUnit: impressions
    {4, [](const Device& d) { return NumberValue(d.pages, kCounter); }}, // prtMarkerLifeCount
    {5, [](const Device&) { return NumberValue(0, kCounter); }},         // prtMarkerPowerOnCount
    {6, Fixed<4>},                                                       // prtMarkerProcessColorants
    {7, Fixed<0>},                                                       // prtMarkerSpotColorants
    {8, Fixed<3>},    // prtMarkerAddressabilityUnit: tenThousandthsOfInches
    {9, Fixed<600>},  // prtMarkerAddressabilityFeedDir
    {10, Fixed<600>}, // prtMarkerAddressabilityXFeedDir
};
constexpr Column<DeviceStatus> kMarkerStatus[] = {
    {15, Number<&DeviceStatus::markerStatus>},
};

// --- .1.3.6.1.2.1.43.11.1.1 prtMarkerSuppliesTable
constexpr Column<Supply> kSupplies[] = {
    {2, Fixed<1>},                                                                              // marker
    {3, [](const Supply& s) { return NumberValue(s.kind->colorant ? s.kind->name.code : 0); }}, // colorant
    {4, [](const Supply& s) { return NumberValue(s.kind->supplyClass); }},
    {5, [](const Supply& s) { return NumberValue(s.kind->type); }},
    {6, Text<&Supply::name>},
    {7, [](const Supply& s) { return NumberValue(s.kind->unit); }},
    {8, Number<&Supply::capacity>},
    {9, Number<&Supply::level>},
};

// --- .1.3.6.1.2.1.43.12.1.1 prtMarkerColorantTable
constexpr Column<Supply> kColorant[] = {
    {2, Fixed<1>}, // marker
    {3, Fixed<3>}, // prtMarkerColorantRole: process
    {4, [](const Supply& s) { return TextValue(s.kind->colorant); }},
    {5, Fixed<256>}, // prtMarkerColorantTonality
};

std::vector<ConceptualRow<Supply>> Supplies(const Device& device, bool colorantsOnly) {
    std::vector<ConceptualRow<Supply>> rows;
    for (const Supply& supply : device.supplies) {
        if (supply.kind->colorant || !colorantsOnly)
            rows.push_back({{1, static_cast<uint32_t>(supply.kind->name.code)}, supply});
    }
    return rows;
}

// --- .1.3.6.1.2.1.43.13.4.1 prtMediaPathTable
struct MediaPath {
    int type;
    const char* text;
};
constexpr Column<MediaPath> kMediaPath[] = {
    {2, Fixed<7>},            // prtMediaPathMaxSpeedPrintUnit: impressionsPerHour
    {3, Fixed<kMicrometers>}, // prtMediaPathMediaSizeUnit
    {4, Fixed<2100>},         // prtMediaPathMaxSpeed: 35 a minute
    {5, Fixed<457200>},       // greatest length
    {6, Fixed<311000>},       // greatest width
    {7, Fixed<139700>},       // least length
    {8, Fixed<90000>},        // least width
    {9, Number<&MediaPath::type>},
    {10, Text<&MediaPath::text>},
    {11, Fixed<0>}, // prtMediaPathStatus: available and idle
};

std::vector<ConceptualRow<MediaPath>> MediaPaths(const Device& device) {
    constexpr int kSimplex = 5, kLongEdgeDuplex = 3;
    std::vector<ConceptualRow<MediaPath>> rows = {{{1, 1}, {kSimplex, "One-sided"}}};
    if (device.hasDuplex)
        rows.push_back({{1, 2}, {kLongEdgeDuplex, "Two-sided"}});
    return rows;
}

// --- .1.3.6.1.2.1.43.15.1.1 prtInterpreterTable
struct Interpreter {
    int family;
    const char* level;
    const char* text;
};
constexpr Column<Interpreter> kInterpreter[] = {
    {2, Number<&Interpreter::family>},
    {3, Text<&Interpreter::level>},
    {5, Text<&Interpreter::text>},
};

// --- .1.3.6.1.2.1.43.16.5.1 prtConsoleDisplayBufferTable
constexpr Column<DeviceStatus> kConsole[] = {
    {2, Text<&DeviceStatus::display>},
};

// --- .1.3.6.1.2.1.43.18.1.1 prtAlertTable
constexpr Column<Alert> kAlert[] = {
    {1, Number<&Alert::index>},
    {2, [](const Alert& a) { return NumberValue(AlertSeverity(a)); }},
    {3, [](const Alert& a) { return NumberValue(AlertTraining(a)); }},
    {4, [](const Alert& a) { return NumberValue(AlertGroup(a)); }},
    {5, [](const Alert& a) { return NumberValue(a.condition.row); }}, // prtAlertGroupIndex
    {6, Fixed<-2>},                                                   // prtAlertLocation: unknown
    {7, [](const Alert& a) { return NumberValue(AlertCode(a)); }},
    {8, [](const Alert& a) { return TextValue(a.condition.text); }},
    {9, [](const Alert& a) { return NumberValue(a.time & UINT32_MAX, kTimeTicks); }},
};

std::vector<ConceptualRow<Alert>> AlertRows(const AlertTable& table) {
    std::vector<ConceptualRow<Alert>> rows;
    for (const Alert& alert : table.alerts)
        rows.push_back({{1, static_cast<uint32_t>(alert.index)}, alert});
    return rows;
}

} // namespace

void AddPrinterObjects(ObjectMap& to, const Device& device, const AlertTable& alerts,
                       const DeviceStatus& status) {
    AddTable(to, "1.3.6.1.2.1.43.5.1.1", kGeneral, {{{1}, device}});
    AddTable(to, "1.3.6.1.2.1.43.5.1.1", kGeneralEvents, {{{1}, status}});
    AddTable(to, "1.3.6.1.2.1.43.6.1.1", kCover, {{{1, 1}, device}});
    AddTable(to, "1.3.6.1.2.1.43.7.1.1", kLocalization, {{{1, 1}, device}});
    AddTable(to, "1.3.6.1.2.1.43.8.2.1", kInput, Inputs(device, alerts));
    AddTable(to, "1.3.6.1.2.1.43.9.2.1", kOutput, Outputs(device));
    AddTable(to, "1.3.6.1.2.1.43.10.2.1", kMarker, {{{1, 1}, device}});
    AddTable(to, "1.3.6.1.2.1.43.10.2.1", kMarkerStatus, {{{1, 1}, status}});
    AddTable(to, "1.3.6.1.2.1.43.11.1.1", kSupplies, Supplies(device, false));
    AddTable(to, "1.3.6.1.2.1.43.12.1.1", kColorant, Supplies(device, true));
    AddTable(to, "1.3.6.1.2.1.43.13.4.1", kMediaPath, MediaPaths(device));
    AddTable(to, "1.3.6.1.2.1.43.15.1.1", kInterpreter,
             {{{1, 1}, {47, "6", "PCL 6"}}, {{1, 2}, {6, "3", "PostScript 3"}}});
    AddTable(to, "1.3.6.1.2.1.43.16.5.1", kConsole, {{{1, 1}, status}});
    AddTable(to, "1.3.6.1.2.1.43.18.1.1", kAlert, AlertRows(alerts));
}

// What a printer answers about its options, and how far it can be asked at all: over either of the module's
// roads to it, the bidirectional library or SNMP.
#ifndef WORKBENCH_LIB_DEVICE_OPTIONS_H
#define WORKBENCH_LIB_DEVICE_OPTIONS_H

#include "base/records.h"
#include "workbench/lib/family_files.h"

#include <vector>

// The trays that a printer of the model can have, and the picture a way from.
inline constexpr const char* kTrayKeys[] = {"InTray1", "InTray2",   "InTray3",
                                            "InTray4", "InTrayLCT", "InTrayManual"};

using OptionAnswers = std::vector<OptionRequestItem>; // an empty value: the printer doesn't tell

// How far the road through the bidirectional library leads; what lies behind a no is not asked.
struct LibraryRoad {
    bool isUsable;
    bool isReached;   // a device answers
    bool isThisModel; // and can be asked about its options
};
LibraryRoad TryLibraryRoad(const FamilyFiles& family, const std::string& agent);

// What to do where that road ends; empty when it doesn't.
std::string Hint(const FamilyFiles& family, const LibraryRoad& road);

// Throws Failure when the device can't be asked by SNMP or is of another model.
void CheckSnmpRoad(const FamilyFiles& family, const std::string& agent);

// Throws Failure with the reason of the last request, and so must be called before anything else sets the
// last error.
[[noreturn]] void FailToAsk(const std::string& agent, const char* what);

// All options that the module asks about on each road. Throw Failure when the asking fails.
OptionAnswers AskOptionsByLibrary(const FamilyFiles& family, const std::string& agent);
OptionAnswers AskOptionsBySnmp(const FamilyFiles& family, const std::string& agent);

// What the library says of the paper in each of the trays. Throws Failure when the asking fails.
using TrayAnswers = std::vector<InputTrayStatusItem>; // an empty key or text: the printer doesn't tell
TrayAnswers AskTraysByLibrary(const FamilyFiles& family, const std::string& agent);

// By the library where that is usable, otherwise by SNMP, as the driver asks. Throws Failure when the device
// doesn't answer or is of another model.
struct DeviceOptions {
    const char* road; // for a person
    OptionAnswers answers;
};
DeviceOptions AskDeviceOptions(const FamilyFiles& family, const std::string& agent);

// Option and answer, row by row.
Document OptionAnswersDocument(const OptionAnswers& answers);

#endif

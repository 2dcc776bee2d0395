// What a printer answers through the module's exports, over either transport: the bidirectional library
// (options, paper in the trays) or SNMP (options, supplies, stored overlays and profiles).
#ifndef WORKBENCH_LIB_PRINTER_QUERIES_H
#define WORKBENCH_LIB_PRINTER_QUERIES_H

#include "workbench/lib/family_files.h"

#include <array>
#include <vector>

// The paper sources that a printer of the model can have and the printer's picture can show.
inline constexpr const char* kTrayKeys[] = {"InTray1", "InTray2",   "InTray3",
                                            "InTray4", "InTrayLCT", "InTrayManual"};

// The printer can be queried through the library when all are true. Once one is false, the next are not
// checked and are false, too.
struct LibraryAccess {
    bool isUsable;    // the library is installed and complete
    bool isReached;   // the device responds
    bool isThisModel; // the device is of this model
};
LibraryAccess CheckLibraryAccess(const FamilyFiles& family, const std::string& agent);

// What the user can do about a check that failed; empty when none did.
std::string AccessHint(const FamilyFiles& family, const LibraryAccess& access);

// Throws Failure when the device does not answer SNMP requests or is of another model.
void CheckSnmpAccess(const FamilyFiles& family, const std::string& agent);

// All options that the module can request over each transport. Throw Failure when the request fails.
using OptionAnswers = std::vector<OptionRequestItem>; // an empty value: no answer
OptionAnswers AskOptionsByLibrary(const FamilyFiles& family, const std::string& agent);
OptionAnswers AskOptionsBySnmp(const FamilyFiles& family, const std::string& agent);

// Over the library where it is usable, otherwise by SNMP, as the driver does. Throws Failure when the device
// does not respond or is of another model.
struct DeviceOptions {
    const char* transport; // as shown to the user
    OptionAnswers answers;
};
DeviceOptions AskDeviceOptions(const FamilyFiles& family, const std::string& agent);

// Option and answer, row by row.
Document OptionAnswersDocument(const OptionAnswers& answers);

// The paper in each of kTrayKeys, from the library. Throws Failure when the request fails.
using TrayAnswers = std::vector<InputTrayStatusItem>; // an empty text: no answer
TrayAnswers AskTraysByLibrary(const FamilyFiles& family, const std::string& agent);

// By SNMP. All throw Failure when the request fails. Storages are 0 and 1.
using Supplies = std::vector<MrkSupRequestItem>; // in the order of the module's list
using StoredResources = std::vector<StoredResourceEntry>;
using StoredProfiles =
    std::array<StoredResources, TELMAR_PROFILE_SELECTORS>; // RGB sources, simulations, destinations
Supplies AskSupplies(const FamilyFiles& family, const std::string& agent);
StoredResources AskOverlays(const FamilyFiles& family, const std::string& agent, int32_t storage);
StoredProfiles AskProfiles(const FamilyFiles& family, const std::string& agent);

#endif

// What a printer answers through the module's exports, over either transport: the bidirectional library
// (options, paper in the trays) or SNMP (options, supplies, stored overlays and profiles).
#ifndef WORKBENCH_LIB_PRINTER_QUERIES_H
#define WORKBENCH_LIB_PRINTER_QUERIES_H

#include "workbench/lib/family_files.h"
#include "workbench/lib/printer_outcomes.h"

#include <array>
#include <vector>

// The paper sources that a printer of the model can have and the printer's picture can show.
inline constexpr const char* kTrayKeys[] = {"InTray1", "InTray2",   "InTray3",
                                            "InTray4", "InTrayLCT", "InTrayManual"};

// A printer to be queried. Only the module and its path are used of the files, which must outlive it.
struct Printer {
    const FamilyFiles& family;
    std::string address; // UTF-8, without spaces around it
    std::string agent;   // the same as the module takes it, in the system's code page
};

// Throws PrinterFailure when the address is missing or can't be one. Asks nothing.
Printer PrinterAt(const FamilyFiles& family, const std::string& address);

// The driver uses the bidirectional library if it is installed and complete, otherwise SNMP.
enum class Transport { kLibrary, kSnmp };
Transport TransportOf(const FamilyFiles& family);

// The printer's IPv4 address, in network order. Throws PrinterFailure without one: the module can't send
// anything.
uint32_t AgentAddress(const Printer& printer);

// Whether the printer answers over this transport and is of this model. Throws PrinterFailure when not. By
// SNMP another model is not recognised; a device that is no printer is.
void CheckPrinter(const Printer& printer, Transport transport);

// Fails with what a request of the workbench has found instead of an answer.
enum class ProbeEnd;
[[noreturn]] void FailAsProbed(const Printer& printer, ProbeEnd end);

// The following throw PrinterFailure when the query fails.

// The keys of all options that the module can query over each transport.
std::vector<std::string> OptionKeys(const FamilyFiles& family, Transport transport);

using OptionAnswers = std::vector<OptionRequestItem>; // an empty value: no answer
OptionAnswers AskOptions(const Printer& printer, Transport transport, const std::vector<std::string>& keys);

// Checks the printer and asks for all options, over the transport that the driver would use.
struct DeviceOptions {
    Transport transport;
    OptionAnswers answers;
};
DeviceOptions AskDeviceOptions(const FamilyFiles& family, const std::string& address);
const char* TransportName(Transport transport); // English

// Option and answer, row by row.
Document OptionAnswersDocument(const OptionAnswers& answers);

// The paper in each of kTrayKeys, from the library.
using TrayAnswers = std::vector<InputTrayStatusItem>; // an empty text: no answer
TrayAnswers AskTraysByLibrary(const Printer& printer);

// The names of the supplies, in the order of the module's list.
std::vector<std::string> SupplyNames(const FamilyFiles& family);

// By SNMP. Storages are 0 and 1.
using Supplies = std::vector<MrkSupRequestItem>;
using StoredResources = std::vector<StoredResourceEntry>;
using StoredProfiles =
    std::array<StoredResources, TELMAR_PROFILE_SELECTORS>; // RGB sources, simulations, destinations
Supplies AskSupplies(const Printer& printer, const std::vector<std::string>& names);
StoredResources AskOverlays(const Printer& printer, int32_t storage);
StoredProfiles AskProfiles(const Printer& printer);

#endif

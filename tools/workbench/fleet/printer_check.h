// Asks one printer of a fleet, and judges what it needs. Options and supplies are the module's answers;
// model, names of supplies and trays are what the printer says of itself.
#ifndef WORKBENCH_FLEET_PRINTER_CHECK_H
#define WORKBENCH_FLEET_PRINTER_CHECK_H

#include "workbench/fleet/attention.h"
#include "workbench/fleet/printer_list.h"
#include "workbench/lib/printer_alerts.h"
#include "workbench/lib/printer_queries.h"

enum class ProbeEnd;

// A tray as the printer describes it, in the Printer MIB's numbers.
struct TrayFill {
    std::string name;
    int32_t capacity; // sheets; 0 and less: unknown
    // Sheets; below 0: the printer does not know, or knows only that there are some. None: not read.
    std::optional<int32_t> level;
};

struct PrinterState {
    std::string address;
    std::string name;  // from the list
    std::string model; // as the printer calls itself
    bool isModel = false;
    bool isPresent = true;    // something is at this address
    bool hasAnswered = false; // all queries of the module
    bool isComplete = true;   // nothing is missing because it was not answered
    Outcome outcome = Outcome::kAnswered;
    Attention attention = Attention::kFine;
    std::string state;        // in words
    std::string trays;        // those that are empty or low
    std::string lowestSupply; // with its level
    std::string options;
    std::string advice;
    std::string alerts;        // the critical ones
    std::string notRead;       // trays and supplies
    uint32_t milliseconds = 0; // from the first request on
};

// Asks a printer that is known to answer at this IPv4 address. The trace records the module's traffic, and is
// left without that of this thread. Never throws PrinterFailure.
class TrafficTrace;
PrinterState CheckListed(const FamilyFiles& family, const ListedPrinter& listed, const std::string& address,
                         TrafficTrace& trace);

// Looks up a host name and requests one object there. `address` is the IPv4 address if that was answered,
// otherwise empty, and the state says why.
PrinterState FindListed(const FamilyFiles& family, const ListedPrinter& listed, std::string& address);

// The state of a printer that a request of the workbench has not reached.
PrinterState UnreachedState(const FamilyFiles& family, const ListedPrinter& listed, ProbeEnd end);

// The state of a printer that can't be asked for this reason.
PrinterState FailedState(const ListedPrinter& listed, Outcome outcome);

// Judges a printer: attention, state, trays, the lowest supply, what was not read, and the advice.
// `otherSupplies` as in PrinterIdentity.
void Judge(const Supplies& supplies, const std::vector<std::string>& otherSupplies,
           const std::vector<TrayFill>& trays, const PrinterAlerts& alerts, PrinterState& state);

#endif

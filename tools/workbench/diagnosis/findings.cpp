// The table of findings: for each check what the driver makes of it, and what to do.
#include "workbench/diagnosis/findings.h"

#include "workbench/diagnosis/checks.h"

#include <algorithm>

namespace {

// What the sentence is about. kWrongDevice makes the rest of the table meaningless; kTraffic and kWay explain
// what the driver does, and what was not read. kNote is nothing wrong for the driver, nor is kUnread.
enum class About { kWrongDevice, kWay, kTraffic, kDevice, kDriver, kNote, kUnread };

// clang-format off
constexpr struct {
    const char* kind;
    About about;
    std::string (*find)(const Observations& seen); // the sentence; empty: this is in order
    const char* effect;
    const char* action;
    const char* effectIfUnreached = nullptr; // instead, where the driver has not reached the printer
} kFindings[] = {
    {"notAPrinter", About::kWrongDevice, FindNotAPrinter,
     "The driver does not notice: it shows a printer without options and levels.",
     "Enter the address of the printer.",
     "The driver reports the device as unreachable."},
    {"unknownHost", About::kWay, FindUnknownHost,
     "The driver has no address to send requests to.",
     "Check the spelling of the name, or enter the printer's IPv4 address."},
    {"noNameService", About::kWay, FindNoNameService,
     "The driver has no address to send requests to.",
     "Diagnose again later, check this computer's DNS settings, or enter the printer's IPv4 address."},
    {"ipv6Only", About::kWay, FindIpv6Only,
     "The driver uses IPv4 only and reports the printer as unreachable.",
     "Give the printer an IPv4 address, and enter it."},
    {"noRoute", About::kWay, FindNoRoute,
     "The driver reports the printer as unreachable.",
     "Connect this computer to the printer's network."},
    {"closed", About::kWay, FindClosed,
     "The driver reports the printer as unreachable.",
     "Turn on SNMP in the printer's network settings, and check that this is the printer's address."},
    {"otherMessages", About::kWay, FindOtherMessages,
     "The driver discards such a message and does not ask again: the query fails.",
     "Check that this is the printer's address: another program, such as an echo service, uses UDP port 161 there.",
     "The driver discards such a message, does not ask again and reports the printer as unreachable."},
    {"silent", About::kWay, FindSilent,
     "The driver reports the printer as unreachable.",
     "Check that the printer is on and has this address. If it has, turn on SNMPv1 in its network settings, allow the "
     "community tovask to read, and open UDP port 161 in the firewalls on the way."},
    {"otherVersion", About::kWay, FindOtherVersion,
     "The driver uses SNMPv1 only, gets no answer and reports the printer as unreachable.",
     "Turn on SNMPv1 in the printer's network settings."},
    {"otherCommunity", About::kWay, FindOtherCommunity,
     "The driver always uses the community tovask, gets no answer and reports the printer as unreachable.",
     "Allow the community tovask to read in the printer's SNMP settings."},
    {"otherAddress", About::kTraffic, FindOtherAddress,
     "The driver takes answers only from the address that it has asked; to it the printer does not answer.",
     "If the other address is the printer's, enter it; if not, correct the address translation (NAT, VPN) on the way.",
     "The driver takes answers only from the address that it has asked. It gets none and reports the printer as "
     "unreachable."},
    {"otherPort", About::kTraffic, FindOtherPort,
     "The driver takes answers only from port 161; to it the printer does not answer.",
     "Correct the port translation (NAT, firewall, VPN) between this computer and the printer, or connect without it.",
     "The driver takes answers only from port 161. It gets none and reports the printer as unreachable."},
    {"cut", About::kTraffic, FindCut,
     "The driver discards such an answer and does not ask again: the query fails.",
     "Check the devices on the way that filter or inspect SNMP, and update the printer's firmware.",
     "The driver discards such an answer, does not ask again and reports the printer as unreachable."},
    {"malformed", About::kTraffic, FindMalformed,
     "The driver discards such an answer and does not ask again: the query fails.",
     "Check that this is the printer's address, restart the printer, and update its firmware.",
     "The driver discards such an answer, does not ask again and reports the printer as unreachable."},
    {"errorStatus", About::kTraffic, FindErrorStatus,
     "The driver takes such an object as missing: options as not installed, supplies as not reported.",
     "Restart the printer, and check which objects its SNMP settings allow the community to read."},
    {"stale", About::kTraffic, FindStale,
     "The driver skips such answers, at most four for each request; with more the query fails.",
     "Restart the printer. If this goes on, look for another program or device that answers in its place.",
     "The driver skips four such answers, then gives up and reports the printer as unreachable."},
    {"silentObjects", About::kTraffic, FindSilentObjects,
     "The driver asks five times and gives up: it shows nothing of what it needs these objects for.",
     "Check which objects the printer's SNMP settings allow to be read, and update the printer's firmware.",
     "The driver asks five times, gives up and reports the printer as unreachable."},
    {"loss", About::kTraffic, FindLoss,
     "The driver asks up to five times, then options, levels or whole lists are missing.",
     "Check cables, wireless reception and the load of the network, and query the printer again.",
     "The driver has got no answer to five requests and reports the printer as unreachable."},
    {"lateStart", About::kTraffic, FindLateStart,
     "The driver may give up, and report the printer as unreachable, before it answers.",
     "Query the printer again. If this happens often, turn off the deepest sleep mode in the printer's settings.",
     "The driver has given up before the printer answers, and reports it as unreachable."},
    {"slow", About::kTraffic, FindSlow,
     "The driver repeats a request within a fraction of a second, and may give up before the answer arrives.",
     "Check the connection (wireless, VPN) and the printer's load; query it again when it is idle.",
     "The driver has given up before the answer arrives, and reports the printer as unreachable."},
    {"stopped", About::kDevice, FindStopped,
     "The driver does not notice: it asks for no alerts.",
     "Resolve this at the printer."},
    {"wrongType", About::kTraffic, FindWrongType,
     "The driver takes such an object as missing.",
     "Update the printer's firmware, and check that it is of this model."},
    {"otherDevice", About::kDevice, FindOtherDevice,
     "The driver asks for the trays, supplies and duplex unit of device 1 only, and finds none.",
     "Use a print server, or firmware, that lists the printer as its first device."},
    {"otherModel", About::kDevice, FindOtherModel,
     "The driver does not notice: it shows the device as this model, with this model's supplies and options.",
     "Check the address, or use the driver of the device's own model.",
     "The driver has not reached the device. Once it does, it shows it as this model."},
    {"otherSupplies", About::kDevice, FindOtherSupplies,
     "The driver shows the level of one supply under the name and colour of another.",
     "Use the driver of the device's own model; read such levels at the printer."},
    {"unusableValues", About::kDriver, FindUnusableValues,
     "The driver shows these as not reported.",
     "Compare the values of the objects: memory of 128 to 1024 MB in steps of 128, and levels from 0 to the capacity."},
    {"missingValues", About::kDriver, FindMissingValues,
     "The driver shows these as not reported.",
     "Check that the printer is of this model, and update its firmware."},
    {"driverFailed", About::kDriver, FindDriverFailed,
     "The driver shows nothing of what the failed queries are for.",
     "Diagnose again. If the printer answers here but not to the driver, send this page with a trace of the query.",
     "The driver reports the printer as unreachable."},
    {"duplicates", About::kNote, FindDuplicates,
     "None: the driver uses the first answer and skips the others.",
     "Look for a loop or a mirrored port in the network."},
    {"changedCommunity", About::kNote, FindChangedCommunity,
     "None: the driver accepts such answers.",
     "Look for a proxy that answers for the printer, and update the printer's firmware."},
    {"numberType", About::kNote, FindNumberType,
     "None: the driver accepts all types of numbers.",
     "Update the printer's firmware if other programs can't read these numbers."},
    {"unknownModel", About::kUnread, FindUnknownModel,
     "The driver does not ask: it takes every device for its own model.",
     "Check at the device that it is of this model, and that this is its address."},
    {"unreadAlerts", About::kUnread, FindUnreadAlerts,
     "None: it asks for no alerts.",
     "Look at the printer's display: it may have stopped."},
};
// clang-format on

} // namespace

// What the driver does is not reported where the way or the traffic explains it.
std::vector<DiagnosisFinding> FindingsOf(const Observations& seen) {
    std::vector<DiagnosisFinding> findings;
    bool isExplained = false;
    for (const auto& row : kFindings) {
        if ((row.about == About::kDriver || row.about == About::kUnread) && isExplained)
            continue;
        const std::string sentence = row.find(seen);
        if (sentence.empty())
            continue;
        const bool isUnreached = seen.driver.isAsked && !seen.driver.isReached;
        const bool hasOther = isUnreached && row.effectIfUnreached != nullptr;
        const bool isNote = row.about == About::kNote || row.about == About::kUnread;
        findings.push_back(
            {row.kind, isNote, sentence, hasOther ? row.effectIfUnreached : row.effect, row.action});
        if (row.about == About::kWrongDevice)
            break;
        isExplained = isExplained || row.about == About::kWay || row.about == About::kTraffic;
    }
    return findings;
}

bool HasFault(const std::vector<DiagnosisFinding>& findings) {
    return std::any_of(findings.begin(), findings.end(),
                       [](const DiagnosisFinding& finding) { return !finding.isNote; });
}

// What a diagnosis finds out about a printer, before it is judged: the name, the answers, the driver's own
// results.
#ifndef WORKBENCH_DIAGNOSIS_OBSERVATIONS_H
#define WORKBENCH_DIAGNOSIS_OBSERVATIONS_H

#include "workbench/diagnosis/exchange.h"
#include "workbench/lib/module_objects.h"
#include "workbench/lib/printer_alerts.h"
#include "workbench/lib/printer_place.h"
#include "workbench/lib/printer_queries.h"

#include <array>
#include <memory>
#include <optional>

// Limits of time in milliseconds, of the parts of a diagnosis and of the whole.
constexpr double kNameLimit = 15000;
constexpr double kExchangeLimit = 45000;
constexpr double kDriverLimit = 30000;
constexpr double kDiagnosisLimit = kNameLimit + kExchangeLimit + kDriverLimit;

// Milliseconds; a printer in a local network answers in a few. A slow answer can make the driver repeat its
// request. If most answers are very slow, that is worth a finding even where the driver has got along.
constexpr double kSlow = 50;
constexpr double kVerySlow = 200;

struct HostObservation {
    bool isFound = false; // within the limit
    HostKind kind = HostKind::kUnknown;
    uint32_t ipv4 = 0;                  // in network order, for HostKind::kIpv4
    std::vector<std::string> addresses; // all, as texts
};

// What the module's queries have answered, as far as they have ended.
struct DriverObservation {
    bool isAsked = false;
    bool isEnded = false; // within the limit
    std::string query;    // the last that was started
    bool isReached = false;
    double reachTime = 0; // milliseconds
    int reachSends = 0;
    size_t repeats = 0; // requests of all queries that were sent again; unseen in the system's libraries
    OptionAnswers options;
    Supplies supplies;
    std::optional<std::array<StoredResources, 2>> overlays; // none: not answered
    std::optional<StoredProfiles> profiles;                 // the same
    // What the device calls supplies that it uses otherwise; empty: as the driver. Asked by the workbench.
    std::vector<std::string> otherSupplies;
    std::vector<std::string> failed; // queries
};

// An object that describes the device.
struct DescriptionObject {
    const char* label; // a key of the document
    const char* oid;
    bool isOfDevice; // the device's number among the host's devices follows
    size_t question = SIZE_MAX;
};

struct Observations {
    std::string address; // as the user has written it
    HostObservation host;
    bool isRefused = false; // the port is closed
    std::unique_ptr<Exchange> exchange;
    std::vector<Access> answered; // ways to address the agent that it answers, the driver's first
    bool isAddressed = false;     // it is asked the rest in this way:
    Access access;
    std::vector<ModuleObject> objects;
    bool areObjectsAsked = false;
    PrinterPlace place;
    PrinterAlerts alerts;
    std::vector<DescriptionObject> description;
    DriverObservation driver;
};

// The driver's access: SNMPv1 with the module's community.
Access DriverAccess();

// Makes all observations. `stage` is called with what is done next, and repeatedly while it waits.
Observations ObservePrinter(const Printer& printer, const std::function<void(const char* stage)>& stage);

// The answer to an object of the module; null: none.
const Arrival* AnswerTo(const Observations& seen, size_t object);

// The answer to an object of the description; null: none.
const Arrival* AnswerTo(const Observations& seen, const DescriptionObject& object);

// Text or time of a description, on one line; empty when there is none.
std::string DescriptionText(const Observations& seen, const DescriptionObject& object);

#endif

// Makes the observations of a diagnosis in their order. Each ends within a limit.
#include "workbench/diagnosis/observations.h"

#include "workbench/diagnosis/samples.h"
#include "workbench/lib/printer_alerts.h"
#include "workbench/lib/printer_identity.h"
#include "workbench/lib/stopwatch.h"
#include "workbench/lib/text.h"
#include "workbench/lib/time_limit.h"
#include "workbench/lib/traffic_trace.h"

#include <algorithm>
#include <mutex>
#include <winsock2.h>

#include <ws2tcpip.h> // after winsock2.h

namespace {

constexpr int32_t kVersion1 = 0;
constexpr int32_t kVersion2c = 1;
constexpr const char* kPublicCommunity = "public"; // the usual one of new devices
constexpr int kReachRequests = 4;
constexpr double kLastListen = 1000; // for answers that are late

using Stage = std::function<void(const char* stage)>;

// --- The name

std::vector<std::string> AddressesOf(const std::string& host) {
    std::vector<std::string> texts;
    addrinfo wanted = {};
    wanted.ai_socktype = SOCK_DGRAM; // each address once
    addrinfo* found = nullptr;
    if (getaddrinfo(host.c_str(), nullptr, &wanted, &found) != 0)
        return texts;
    for (const addrinfo* each = found; each != nullptr; each = each->ai_next) {
        char text[NI_MAXHOST] = "";
        if (getnameinfo(each->ai_addr, static_cast<socklen_t>(each->ai_addrlen), text, sizeof(text), nullptr,
                        0, NI_NUMERICHOST)
            == 0)
            texts.emplace_back(text);
    }
    freeaddrinfo(found);
    return texts;
}

HostObservation ObserveHost(const std::string& agent, const std::function<void()>& meanwhile) {
    const auto seen = std::make_shared<HostObservation>();
    const auto work = [seen, agent] {
        const SocketsStart sockets;
        seen->kind = FindHost(agent, seen->ipv4);
        if (seen->kind == HostKind::kIpv4 || seen->kind == HostKind::kIpv6)
            seen->addresses = AddressesOf(agent);
    };
    if (!EndsWithin(kNameLimit, work, meanwhile))
        return {};
    seen->isFound = true;
    return *seen;
}

// --- The driver's own queries, on a thread of their own

struct DriverWork {
    FamilyFiles files; // only the module, kept loaded as long as the work goes on
    std::string address;
    std::mutex access; // to the observation
    DriverObservation seen;
};

// Runs one query, and notes when it fails.
void Query(DriverWork& work, const char* name, const std::function<void(const Printer& printer)>& ask) {
    {
        const std::lock_guard lock(work.access);
        work.seen.query = name;
    }
    try {
        ask(PrinterAt(work.files, work.address));
    } catch (const Failure&) {
        const std::lock_guard lock(work.access);
        work.seen.failed.emplace_back(name);
    }
}

// Asks, then keeps the answer.
template <typename Kept, typename Answer>
void Keep(DriverWork& work, Kept& to, Answer answer) {
    const std::lock_guard lock(work.access);
    to = std::move(answer);
}

void Reach(DriverWork& work, const TrafficTrace& trace) {
    Query(work, "access", [&](const Printer& printer) {
        const int64_t start = CounterNow();
        const bool isReached = EXPORT(printer.family, MIB_IsAccessOK)(printer.agent.c_str()) != FALSE;
        const double time = MillisecondsSince(start);
        const auto messages = trace.Messages();
        const std::lock_guard lock(work.access);
        work.seen.isReached = isReached;
        work.seen.reachTime = time;
        work.seen.reachSends = static_cast<int>(std::count_if(
            messages.begin(), messages.end(), [](const TracedMessage& message) { return message.isSent; }));
    });
}

void AskDriver(DriverWork& work) {
    DriverObservation& seen = work.seen;
    const TrafficTrace trace(work.files.module.get());
    Reach(work, trace);
    if (seen.isReached) {
        Query(work, "options", [&](const Printer& printer) {
            Keep(work, seen.options,
                 AskOptions(printer, Transport::kSnmp, OptionKeys(printer.family, Transport::kSnmp)));
        });
        Query(work, "supplies", [&](const Printer& printer) {
            Keep(work, seen.supplies, AskSupplies(printer, SupplyNames(printer.family)));
        });
        Query(work, "overlays", [&](const Printer& printer) {
            Keep(work, seen.overlays, std::array{AskOverlays(printer, 0), AskOverlays(printer, 1)});
        });
        Query(work, "profiles",
              [&](const Printer& printer) { Keep(work, seen.profiles, AskProfiles(printer)); });
    }
    const std::lock_guard lock(work.access);
    seen.repeats = RepeatsIn(trace.Messages());
    seen.isEnded = true;
}

// Within the driver's limit, but no query of it.
void AskNamesOfSupplies(DriverWork& work) {
    if (work.seen.isReached)
        Keep(work, work.seen.otherSupplies, AskIdentity(PrinterAt(work.files, work.address)).otherSupplies);
}

DriverObservation ObserveDriver(const Printer& printer, const std::function<void()>& meanwhile) {
    const auto work = std::make_shared<DriverWork>();
    work->files = ModuleOf(printer.family);
    work->address = printer.address;
    work->seen.isAsked = true;
    const auto ask = [work] {
        AskDriver(*work);
        AskNamesOfSupplies(*work);
    };
    EndsWithin(kDriverLimit, ask, meanwhile);
    const std::lock_guard lock(work->access);
    return work->seen;
}

// --- The exchange

// Also by damaged answers.
bool IsAnswered(const Exchange& exchange, size_t question) {
    const auto& arrivals = exchange.Arrivals();
    return std::any_of(arrivals.begin(), arrivals.end(), [&](const Arrival& arrival) {
        return arrival.request != Arrival::kNone && exchange.Requests()[arrival.request].question == question;
    });
}

// The ways of access of the questions so far that are answered, each once.
std::vector<Access> AnsweredAccess(const Exchange& exchange) {
    std::vector<Access> answered;
    for (size_t i = 0; i < exchange.Questions().size(); ++i) {
        const Access& access = exchange.Questions()[i].access;
        const bool isKnown = std::any_of(answered.begin(), answered.end(), [&](const Access& each) {
            return each.version == access.version && each.community == access.community;
        });
        if (!isKnown && IsAnswered(exchange, i))
            answered.push_back(access);
    }
    return answered;
}

// Asks in the driver's way, and if there is no answer in the other usual ways and once more.
void FindAccess(Observations& seen) {
    Exchange& exchange = *seen.exchange;
    const ObjectId agent = OidOf(kAgentObject);
    exchange.Ask(std::vector<AskedObject>(kReachRequests, {DriverAccess(), agent}));
    seen.answered = AnsweredAccess(exchange);
    if (!seen.answered.empty() || !exchange.IsSent())
        return;
    seen.isRefused = ProbeObject(seen.host.ipv4, kAgentObject).end == ProbeEnd::kRefused;
    if (seen.isRefused)
        return;
    const std::vector<AskedObject> others = {
        {DriverAccess(), agent},
        {DriverAccess(), OidOf(kPrinterObject)},
        {{kVersion2c, kCommunity}, agent},
        {{kVersion1, kPublicCommunity}, agent},
        {{kVersion2c, kPublicCommunity}, agent},
    };
    exchange.Ask(others);
    seen.answered = AnsweredAccess(exchange);
}

// Asks in the way that the agent answers.
NextObjects NextObjectsOf(const Observations& seen) {
    return [&seen](const std::vector<std::string>& oids, bool& isAnswered) {
        std::vector<AskedObject> questions;
        questions.reserve(oids.size());
        for (const std::string& oid : oids)
            questions.push_back({seen.access, OidOf(oid), true});
        const size_t first = seen.exchange->Ask(questions);
        ObjectValues values;
        isAnswered = true;
        for (size_t i = 0; i < oids.size(); ++i) {
            const Arrival* answer = seen.exchange->AnswerTo(first + i);
            values.push_back(answer != nullptr ? ValueIn(answer->message) : ObjectValue());
            isAnswered = isAnswered && values.back().isAnswered;
            CheckOrder(oids[i], values.back(), isAnswered);
        }
        return values;
    };
}

void Describe(Observations& seen) {
    // clang-format off
    seen.description = {
        {"deviceDescription", ".1.3.6.1.2.1.25.3.2.1.3",   true},  // hrDeviceDescr
        {"printerName",       ".1.3.6.1.2.1.43.5.1.1.16",  true},  // prtGeneralPrinterName
        {"serialNumber",      ".1.3.6.1.2.1.43.5.1.1.17",  true},  // prtGeneralSerialNumber
        {"systemDescription", ".1.3.6.1.2.1.1.1.0",        false}, // sysDescr
        {"systemName",        ".1.3.6.1.2.1.1.5.0",        false}, // sysName
        {"upTime",            ".1.3.6.1.2.1.1.3.0",        false}, // sysUpTime
    };
    // clang-format on
    std::vector<AskedObject> questions;
    for (const DescriptionObject& object : seen.description) {
        ObjectId oid = OidOf(object.oid);
        if (object.isOfDevice)
            oid.push_back(static_cast<uint32_t>(std::max(seen.place.device, 1)));
        questions.push_back({seen.access, oid});
    }
    const size_t first = seen.exchange->Ask(questions);
    for (size_t i = 0; i < seen.description.size(); ++i)
        seen.description[i].question = first + i;
}

// Asks those of the module's objects for which this holds.
void AskObjects(Observations& seen, const std::function<bool(size_t object)>& isAsked) {
    std::vector<AskedObject> questions;
    for (size_t i = 0; i < seen.objects.size(); ++i)
        if (isAsked(i))
            questions.push_back({seen.access, seen.objects[i].oid});
    seen.exchange->Ask(questions);
}

// Where answers are lost, an object without one gets as many requests again. A busy computer is taken for a
// slow printer less often when slow objects have a second chance.
void AskAllObjects(Observations& seen) {
    AskObjects(seen, [](size_t) { return true; });
    seen.areObjectsAsked = true;
    const Samples samples = SamplesOf(seen);
    if (samples.lost > samples.lostFirst)
        AskObjects(seen, [&](size_t object) { return AnswerTo(seen, object) == nullptr; });
    AskObjects(seen, [&](size_t object) { return TimeOfObject(seen, seen.objects[object].oid) >= kSlow; });
}

} // namespace

Access DriverAccess() {
    return {kVersion1, kCommunity};
}

Observations ObservePrinter(const Printer& printer, const Stage& stage) {
    Observations seen;
    seen.address = printer.address;
    seen.objects = ModuleObjects(printer.family);
    seen.host = ObserveHost(printer.agent, [&] { stage("name"); });
    if (!seen.host.isFound || seen.host.kind != HostKind::kIpv4)
        return seen;
    seen.exchange = std::make_unique<Exchange>(seen.host.ipv4, kExchangeLimit, stage);
    seen.exchange->SetStage("access");
    FindAccess(seen);
    if (!seen.answered.empty()) {
        seen.isAddressed = true;
        seen.access = seen.answered.front();
        seen.exchange->SetStage("description");
        const NextObjects next = NextObjectsOf(seen);
        seen.place = FindPrinterPlace(next);
        Describe(seen);
        seen.exchange->SetStage("objects");
        AskAllObjects(seen);
        seen.exchange->SetStage("alerts");
        const Arrival* state = seen.exchange->AskOne({seen.access, OidOf(kErrorStateObject)});
        seen.alerts = ReadAlerts(next, state != nullptr ? ValueIn(state->message) : ObjectValue());
        seen.exchange->Listen(kLastListen);
    }
    seen.driver = ObserveDriver(printer, [&] { stage("the driver's queries"); });
    return seen;
}

const Arrival* AnswerTo(const Observations& seen, size_t object) {
    if (!seen.areObjectsAsked)
        return nullptr;
    const std::vector<AskedObject>& questions = seen.exchange->Questions();
    for (size_t i = 0; i < questions.size(); ++i) {
        const bool isAboutObject = !questions[i].isForNext && questions[i].object == seen.objects[object].oid;
        const Arrival* answer = isAboutObject ? seen.exchange->AnswerTo(i) : nullptr;
        if (answer != nullptr)
            return answer;
    }
    return nullptr;
}

const Arrival* AnswerTo(const Observations& seen, const DescriptionObject& object) {
    return object.question != SIZE_MAX ? seen.exchange->AnswerTo(object.question) : nullptr;
}

std::string DescriptionText(const Observations& seen, const DescriptionObject& object) {
    const Arrival* answer = AnswerTo(seen, object);
    if (answer == nullptr || !HasValue(answer->message))
        return {};
    const SnmpMessage& message = answer->message;
    return message.valueType == ASN_TIMETICKS ? DurationText(message.number)
           : IsNumberType(message.valueType)  ? ValueText(message)
                                              : OneLine(PrinterText(message.bytes));
}

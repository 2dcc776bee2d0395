// Checks of the name, of the way to the agent, and of the datagrams that arrive.
#include "workbench/diagnosis/checks.h"
#include "workbench/diagnosis/samples.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <winsock2.h>

namespace {

constexpr int kHeavyLoss = 20; // percent

std::string SourceText(uint32_t address) {
    in_addr shown = {};
    shown.s_addr = address;
    return inet_ntoa(shown);
}

// The sentence about answers that something concerns, and which these are. Empty when there are none.
std::string AboutAnswers(const Concerned& concerned, const std::string& sentence) {
    if (concerned.arrivals.empty())
        return {};
    return sentence + " ("
           + (concerned.isEverything ? "all answers" : "only " + ObjectsText(concerned.objects)) + ").";
}

bool IsAnswer(const Arrival& arrival) {
    return arrival.message.damage == Damage::kNone;
}

std::string FindDamage(const Observations& seen, Damage damage, const std::string& sentence) {
    const Concerned concerned = ConcernedBy(
        seen, [&](const Arrival& arrival, const AskedObject&) { return arrival.message.damage == damage; });
    return concerned.arrivals.empty()
               ? ""
               : AboutAnswers(concerned, sentence + concerned.arrivals[0]->message.damageText);
}

template <typename Test>
bool HasAccess(const Observations& seen, const Test& test) {
    return std::any_of(seen.answered.begin(), seen.answered.end(), test);
}

// Of the requests for objects that are answered at other times.
int LostPercent(const Samples& samples) {
    const size_t all = samples.lost + samples.answered;
    return all != 0 ? static_cast<int>((100 * samples.lost + all / 2) / all) : 0;
}

} // namespace

std::string Times(size_t count, const char* thing) {
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

std::string Milliseconds(double time) {
    return std::to_string(static_cast<int64_t>(time + 0.5)) + " ms";
}

bool HasDriversVersion(const Observations& seen) {
    return seen.driver.isReached
           || HasAccess(seen, [](const Access& access) { return access.version == DriverAccess().version; });
}

bool HasDriversCommunity(const Observations& seen) {
    return seen.driver.isReached
           || HasAccess(seen, [](const Access& access) { return access.community == kCommunity; });
}

// --- The way to the printer

std::string FindUnknownHost(const Observations& seen) {
    return seen.host.isFound && seen.host.kind == HostKind::kUnknown
               ? "There is no device with the name " + seen.address + "."
               : "";
}

std::string FindNoNameService(const Observations& seen) {
    if (!seen.host.isFound)
        return "The name service has not answered for " + seen.address + " within "
               + std::to_string(static_cast<int>(kNameLimit / 1000)) + " s.";
    return seen.host.kind == HostKind::kNoNameService
               ? "The name service does not answer for " + seen.address + "."
               : "";
}

std::string FindIpv6Only(const Observations& seen) {
    if (!seen.host.isFound || seen.host.kind != HostKind::kIpv6)
        return {};
    std::string list;
    for (const std::string& address : seen.host.addresses)
        AddPart(list, address);
    return seen.address + " leads to IPv6 addresses only" + (list.empty() ? "." : ": " + list + ".");
}

std::string FindNoRoute(const Observations& seen) {
    return seen.exchange && !seen.exchange->IsSent() ? "No request could be sent to " + seen.address + "."
                                                     : "";
}

std::string FindClosed(const Observations& seen) {
    return seen.isRefused ? seen.address + " is on, but refuses SNMP requests: UDP port 161 is closed." : "";
}

std::string FindOtherMessages(const Observations& seen) {
    if (!seen.exchange)
        return {};
    const auto& arrivals = seen.exchange->Arrivals();
    const auto isOther = [](const Arrival& arrival) { return arrival.IsOtherMessage(); };
    const auto first = std::find_if(arrivals.begin(), arrivals.end(), isOther);
    if (first == arrivals.end())
        return {};
    const auto count = static_cast<size_t>(std::count_if(arrivals.begin(), arrivals.end(), isOther));
    return "Messages arrive that are no answers: " + std::to_string(count) + ", the first one "
           + RequestText(first->message) + ".";
}

std::string FindSilent(const Observations& seen) {
    if (!seen.exchange || !seen.exchange->IsSent() || seen.isRefused || seen.isAddressed
        || !FindOtherMessages(seen).empty())
        return {};
    return seen.address + " has answered none of " + Times(seen.exchange->Requests().size(), "request")
           + " in " + std::to_string(static_cast<int>(seen.exchange->ListenedUntil() / 1000))
           + " s, with SNMPv1 and SNMPv2c, with the" + " communities " + kCommunity + " and public.";
}

std::string FindOtherVersion(const Observations& seen) {
    return seen.isAddressed && !HasDriversVersion(seen)
               ? "The device answers " + VersionText(seen.access.version) + " only, not SNMPv1."
               : "";
}

std::string FindOtherCommunity(const Observations& seen) {
    return seen.isAddressed && !HasDriversCommunity(seen)
               ? "The device answers the community " + seen.access.community + ", but not " + kCommunity + "."
               : "";
}

// --- What arrives

std::string FindOtherAddress(const Observations& seen) {
    const Concerned concerned = ConcernedBy(
        seen, [&](const Arrival& arrival, const AskedObject&) { return arrival.address != seen.host.ipv4; });
    return concerned.arrivals.empty()
               ? ""
               : AboutAnswers(concerned, "Answers come from another address than the one asked: "
                                             + SourceText(concerned.arrivals[0]->address) + " instead of "
                                             + SourceText(seen.host.ipv4));
}

std::string FindOtherPort(const Observations& seen) {
    const Concerned concerned = ConcernedBy(seen, [&](const Arrival& arrival, const AskedObject&) {
        return arrival.address == seen.host.ipv4 && arrival.port != kSnmpPort;
    });
    return concerned.arrivals.empty()
               ? ""
               : AboutAnswers(concerned, "Answers come from another port than the one asked: UDP port "
                                             + std::to_string(concerned.arrivals[0]->port) + " instead of "
                                             + std::to_string(kSnmpPort));
}

std::string FindCut(const Observations& seen) {
    return FindDamage(seen, Damage::kCut, "Answers arrive incomplete: ");
}

std::string FindMalformed(const Observations& seen) {
    return FindDamage(seen, Damage::kMalformed, "Answers are damaged: ");
}

// An object that does not exist is an ordinary answer, unless that is said of sysObjectID, which every agent
// has.
std::string FindErrorStatus(const Observations& seen) {
    const bool isEverythingMissing = AgentObjectError(seen) != 0;
    const Concerned concerned = ConcernedBy(seen, [&](const Arrival& arrival, const AskedObject&) {
        const int32_t status = arrival.message.errorStatus;
        return status != 0 && (status != kNoSuchName || isEverythingMissing);
    });
    if (concerned.arrivals.empty())
        return {};
    const int32_t status = concerned.arrivals[0]->message.errorStatus;
    return AboutAnswers(concerned,
                        "The device reports an error instead of a value: " + ErrorStatusText(status)
                            + ", SNMP error status " + std::to_string(status));
}

std::string FindStale(const Observations& seen) {
    if (!seen.exchange)
        return {};
    size_t count = 0;
    std::vector<ObjectId> objects;
    for (const Arrival& arrival : seen.exchange->Arrivals()) {
        if (arrival.request != Arrival::kNone || arrival.IsOtherMessage())
            continue;
        ++count;
        if (std::find(objects.begin(), objects.end(), arrival.message.object) == objects.end())
            objects.push_back(arrival.message.object);
    }
    return count != 0
               ? Times(count, "answer")
                     + " to requests that were not made: the request-ids are not those of the "
                     + Times(seen.exchange->Requests().size(), "request") + " (" + ObjectsText(objects) + ")."
               : "";
}

// Some of the module's objects have no answer, although the device answers. Where much is lost, that is
// chance.
std::string FindSilentObjects(const Observations& seen) {
    if (!seen.areObjectsAsked || LostPercent(SamplesOf(seen)) >= kHeavyLoss)
        return {};
    std::vector<ObjectId> silent;
    std::vector<std::string> uses;
    for (const ModuleObject& object : seen.objects) {
        if (TimeOfObject(seen, object.oid) >= 0)
            continue;
        silent.push_back(object.oid);
        if (std::find(uses.begin(), uses.end(), object.usedFor) == uses.end())
            uses.push_back(object.usedFor);
    }
    std::string list;
    for (const std::string& use : uses)
        AddPart(list, use);
    return !silent.empty() ? "The device answers, but never to requests for " + ObjectsText(silent)
                                 + ", which are needed for: " + list + "."
                           : "";
}

std::string FindLoss(const Observations& seen) {
    const Samples samples = SamplesOf(seen);
    if (samples.lost <= samples.lostFirst)
        return {};
    const int percent = LostPercent(samples);
    return "Requests or answers are lost: " + std::to_string(std::max(1, percent)) + " % ("
           + std::to_string(samples.lost) + " of " + Times(samples.lost + samples.answered, "request") + ").";
}

std::string FindLateStart(const Observations& seen) {
    const Samples samples = SamplesOf(seen);
    return samples.lost != 0 && samples.lost == samples.lostFirst
               ? "The first " + Times(samples.lost, "request") + " had no answer, all later ones had."
               : "";
}

std::string FindSlow(const Observations& seen) {
    const Samples samples = SamplesOf(seen);
    const DriverObservation& driver = seen.driver;
    const bool hasDriverCoped =
        driver.isEnded && driver.isReached && driver.failed.empty() && driver.repeats == 0;
    if (hasDriverCoped && samples.median < kVerySlow)
        return {};
    if (samples.median >= kSlow)
        return "Answers take long: " + Milliseconds(samples.median) + " as a rule, "
               + Milliseconds(samples.slowest) + " at most.";
    std::vector<ObjectId> slow;
    double time = 0;
    for (const ModuleObject& object : seen.objects) {
        const double taken = TimeOfObject(seen, object.oid);
        if (taken < kSlow)
            continue;
        slow.push_back(object.oid);
        time = std::max(time, taken);
    }
    return !slow.empty()
               ? "Some answers take long: up to " + Milliseconds(time) + " (" + ObjectsText(slow) + ")."
               : "";
}

std::string FindDuplicates(const Observations& seen) {
    const Samples samples = SamplesOf(seen);
    return samples.duplicates != 0 ? "Answers arrive more than once: " + std::to_string(samples.duplicates)
                                         + " of " + std::to_string(samples.answered) + "."
                                   : "";
}

std::string FindChangedCommunity(const Observations& seen) {
    const Concerned concerned = ConcernedBy(seen, [](const Arrival& arrival, const AskedObject& question) {
        return IsAnswer(arrival) && arrival.message.community != question.access.community;
    });
    return concerned.arrivals.empty()
               ? ""
               : AboutAnswers(concerned, "Answers have another community than the requests: "
                                             + OneLine(PrinterText(concerned.arrivals[0]->message.community))
                                             + " instead of " + seen.access.community);
}

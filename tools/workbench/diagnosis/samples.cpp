// Counts requests and answers.
#include "workbench/diagnosis/samples.h"

#include <algorithm>

namespace {

constexpr size_t kNamedObjects = 3; // objects in a sentence

// A request whose answer can still be on its way is not lost.
constexpr double kLeastPatience = 1000; // milliseconds

bool IsCounted(const Observations& seen, const SentRequest& request) {
    const Access& access = seen.exchange->Questions()[request.question].access;
    return access.version == seen.access.version && access.community == seen.access.community;
}

// The arrivals of each request; the first one is the answer.
std::vector<std::vector<const Arrival*>> ArrivalsByRequest(const Exchange& exchange) {
    std::vector<std::vector<const Arrival*>> arrivals(exchange.Requests().size());
    for (const Arrival& arrival : exchange.Arrivals())
        if (arrival.request != Arrival::kNone)
            arrivals[arrival.request].push_back(&arrival);
    return arrivals;
}

// Whether a damaged arrival does not say which request it answers: then it is taken for an answer to the
// last.
bool HasUnknownRequests(const Exchange& exchange) {
    return std::any_of(exchange.Arrivals().begin(), exchange.Arrivals().end(),
                       [](const Arrival& arrival) { return !arrival.message.hasRequestId; });
}

double MedianOf(std::vector<double>& times) {
    std::sort(times.begin(), times.end());
    return times.empty() ? 0 : times[times.size() / 2];
}

bool IsOneOf(const std::vector<ObjectId>& objects, const ObjectId& oid) {
    return std::find(objects.begin(), objects.end(), oid) != objects.end();
}

void AddOnce(std::vector<ObjectId>& objects, const ObjectId& oid) {
    if (!IsOneOf(objects, oid))
        objects.push_back(oid);
}

const ObjectId& ObjectOf(const Exchange& exchange, const SentRequest& request) {
    return exchange.Questions()[request.question].object;
}

} // namespace

Samples SamplesOf(const Observations& seen) {
    Samples samples;
    if (!seen.isAddressed)
        return samples;
    const Exchange& exchange = *seen.exchange;
    const auto arrivals = ArrivalsByRequest(exchange);
    std::vector<ObjectId> answered;
    std::vector<double> times;
    for (size_t i = 0; i < arrivals.size(); ++i)
        if (!arrivals[i].empty() && IsCounted(seen, exchange.Requests()[i])) {
            AddOnce(answered, ObjectOf(exchange, exchange.Requests()[i]));
            times.push_back(exchange.TimeOf(*arrivals[i].front()));
            samples.duplicates += arrivals[i].size() > 1 ? 1 : 0;
        }
    samples.median = MedianOf(times);
    samples.slowest = times.empty() ? 0 : times.back();
    const bool isCertain =
        !HasUnknownRequests(exchange); // otherwise it is unknown what is lost or arrives twice
    samples.duplicates = isCertain ? samples.duplicates : 0;
    const double patience = std::max(kLeastPatience, 2 * samples.slowest);
    for (size_t i = 0; i < arrivals.size(); ++i) {
        const SentRequest& request = exchange.Requests()[i];
        if (!IsCounted(seen, request))
            continue;
        const bool isLost = isCertain && arrivals[i].empty() && IsOneOf(answered, ObjectOf(exchange, request))
                            && request.at + patience < exchange.ListenedUntil();
        samples.lostFirst += isLost && samples.answered == 0 ? 1 : 0;
        samples.lost += isLost ? 1 : 0;
        samples.answered += arrivals[i].empty() ? 0 : 1;
        ++samples.requests;
    }
    return samples;
}

double TimeOfObject(const Observations& seen, const ObjectId& oid) {
    double time = -1;
    if (!seen.exchange)
        return time;
    const Exchange& exchange = *seen.exchange;
    for (const Arrival& arrival : exchange.Arrivals()) {
        if (arrival.request == Arrival::kNone)
            continue;
        const double taken = exchange.TimeOf(arrival);
        if (exchange.Questions()[exchange.Requests()[arrival.request].question].object == oid
            && (time < 0 || taken < time))
            time = taken;
    }
    return time;
}

Concerned ConcernedBy(const Observations& seen, const ArrivalTest& test) {
    Concerned concerned;
    if (!seen.isAddressed)
        return concerned;
    std::vector<ObjectId> all;
    const Exchange& exchange = *seen.exchange;
    for (const Arrival& arrival : exchange.Arrivals()) {
        if (arrival.request == Arrival::kNone)
            continue;
        const AskedObject& question = exchange.Questions()[exchange.Requests()[arrival.request].question];
        AddOnce(all, question.object);
        if (!test(arrival, question))
            continue;
        concerned.arrivals.push_back(&arrival);
        AddOnce(concerned.objects, question.object);
    }
    concerned.isEverything = concerned.objects.size() == all.size();
    return concerned;
}

std::string ObjectsText(const std::vector<ObjectId>& objects) {
    std::string text;
    for (size_t i = 0; i < objects.size() && i < kNamedObjects; ++i)
        text += (i == 0 ? "" : i + 1 == objects.size() ? " and " : ", ") + ObjectName(objects[i]);
    if (objects.size() > kNamedObjects)
        text += " and " + std::to_string(objects.size() - kNamedObjects) + " more";
    return text;
}

int32_t AgentObjectError(const Observations& seen) {
    for (size_t i = 0; i < seen.objects.size(); ++i) {
        const Arrival* answer = AnswerTo(seen, i);
        if (answer != nullptr && seen.objects[i].oid == OidOf(kAgentObject))
            return answer->message.errorStatus;
    }
    return 0;
}

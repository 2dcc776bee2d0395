// Answers requests by the rules of RFC 1157 for SNMPv1 and RFC 3416 for SNMPv2c.
#include "simprinter/agent/agent.h"

#include "common/choices.h"
#include "simprinter/snmp/log_text.h"

#include <algorithm>

namespace {

constexpr long kNoIndex = 0;

// The request returned with an error; `position` counts the variables from 1.
Message ErrorReply(const Message& request, long status, long position) {
    Message reply = request;
    reply.type = PduType::kResponse;
    reply.errorStatus = status;
    reply.errorIndex = position;
    return reply;
}

Message TooBigReply(const Message& request) {
    Message reply = ErrorReply(request, kTooBig, kNoIndex);
    if (!reply.version->tooBigHasVariables)
        reply.varBinds.clear();
    return reply;
}

// The object of this name or, if `isNext`, the first one after it. A version without Counter64 passes over
// objects of that type (RFC 3584, 4.2.2.1).
ObjectMap::const_iterator Find(const ObjectMap& objects, const Version& version, const Oid& name,
                               bool isNext) {
    auto object = isNext ? objects.upper_bound(name) : objects.find(name);
    while (object != objects.end() && object->second.tag == kCounter64 && !version.hasCounter64)
        object = isNext ? std::next(object) : objects.end();
    return object;
}

// Whether an instance is missing or the object itself, judged without a MIB: an object with other instances
// has names that differ in the last sub-identifier, and a scalar has the instance 0.
Tag MissingTag(const ObjectMap& objects, const Oid& name) {
    Oid scalar = name;
    scalar.push_back(0);
    if (objects.count(scalar) != 0)
        return kNoSuchInstance;
    const Oid parent(name.begin(), name.end() - (name.empty() ? 0 : 1));
    const auto first = objects.lower_bound(parent);
    const bool hasOthers =
        first != objects.end() && StartsWith(first->first, parent) && first->first.size() <= name.size();
    return hasOthers ? kNoSuchInstance : kNoSuchObject;
}

VarBind NextVarBind(const ObjectMap& objects, const Version& version, const Oid& name) {
    const auto object = Find(objects, version, name, true);
    return object == objects.end() ? VarBind{name, {kEndOfMibView, 0, {}, {}}}
                                   : VarBind{object->first, object->second};
}

// The reply to a GetRequest, GetNextRequest or SetRequest.
Message Reply(const ObjectMap& objects, const Message& request) {
    const Version& version = *request.version;
    Message reply = ErrorReply(request, kNoError, kNoIndex);
    for (size_t i = 0; i < reply.varBinds.size(); ++i) {
        const Oid& name = request.varBinds[i].name;
        const auto position = static_cast<long>(i + 1);
        if (request.type == PduType::kSet)
            return ErrorReply(request, version.setRefusal, position);
        const bool isNext = request.type == PduType::kGetNext;
        const auto object = Find(objects, version, name, isNext);
        if (object != objects.end())
            reply.varBinds[i] = {object->first, object->second};
        else if (version.hasExceptions)
            reply.varBinds[i].value = {isNext ? kEndOfMibView : MissingTag(objects, name), 0, {}, {}};
        else
            return ErrorReply(request, kNoSuchName, position);
    }
    return reply;
}

// The first variables once, the others repeatedly, until the objects or the bytes of the reply are exhausted.
Message BulkReply(const ObjectMap& objects, const Message& request, size_t largest) {
    constexpr size_t kLeastBytes =
        6; // of a variable, in addition to at least one for each sub-identifier but one
    const size_t count = request.varBinds.size();
    const size_t once = std::min(count, static_cast<size_t>(std::max(request.errorStatus, 0L)));
    Message reply = ErrorReply(request, kNoError, kNoIndex);
    reply.varBinds.clear();
    size_t bytes = 0;
    const auto add = [&](const Oid& name) {
        reply.varBinds.push_back(NextVarBind(objects, *request.version, name));
        bytes += reply.varBinds.back().name.size() + kLeastBytes;
        return reply.varBinds.back().value.tag != kEndOfMibView;
    };
    for (size_t i = 0; i < once; ++i)
        add(request.varBinds[i].name);
    bool goesOn = once < count;
    for (long i = 0; goesOn && i < request.errorIndex; ++i) {
        goesOn = false;
        for (size_t at = once; at < count && bytes <= largest; ++at) {
            const Oid name = i == 0 ? request.varBinds[at].name
                                    : reply.varBinds[reply.varBinds.size() - (count - once)].name;
            goesOn = add(name) || goesOn;
        }
    }
    // The greatest number of variables that fits, by bisection.
    size_t fits = 0, tooMany = reply.varBinds.size() + 1;
    while (tooMany - fits > 1) {
        const size_t middle = fits + (tooMany - fits) / 2;
        Message part = reply;
        part.varBinds.resize(middle);
        const size_t size = BuildMessage(part).size();
        (size != 0 && size <= largest ? fits : tooMany) = middle;
    }
    reply.varBinds.resize(fits);
    return reply;
}

// The reply, or an error if it can't be encoded or is too large.
Message FittingReply(const Agent& agent, const Message& request) {
    if (request.type == PduType::kGetBulk)
        return BulkReply(*agent.objects, request, agent.options.largestReply);
    const Message reply = Reply(*agent.objects, request);
    const size_t size = BuildMessage(reply).size();
    if (size == 0)
        return ErrorReply(request, kGenErr, kNoIndex);
    return size > agent.options.largestReply ? TooBigReply(request) : reply;
}

std::string DroppedText(const Agent& agent, const std::string& what) {
    const std::vector<const Version*>& versions = agent.options.versions;
    return what + ": dropped; this printer answers requests of "
           + Listing(versions, [](const Version* version) { return version->name; });
}

} // namespace

Outcome HandleDatagram(Agent& agent, const Bytes& datagram) {
    std::string problem;
    const std::optional<Message> request = ParseRequest(datagram, problem);
    if (!request)
        return {{}, DroppedText(agent, std::to_string(datagram.size()) + " bytes, " + problem)};
    std::string log = RequestText(*request) + " -> ";
    const std::vector<const Version*>& versions = agent.options.versions;
    if (std::find(versions.begin(), versions.end(), request->version) == versions.end())
        return {{}, DroppedText(agent, log + request->version->name)};
    if (request->community != agent.options.community)
        return {{}, log + "community " + PrintableText(request->community) + " is wrong: dropped"};
    const Message reply = FittingReply(agent, *request);
    log += ReplyText(reply);
    std::vector<Datagram> datagrams = ApplyFaults(agent.faults, *request, reply, log);
    return {std::move(datagrams), std::move(log)};
}

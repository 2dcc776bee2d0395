// Answers SNMPv1 requests by the rules of RFC 1157.
#include "simprinter/agent.h"

#include "simprinter/log_text.h"

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

// SNMPv1 has no Counter64: such an object does not exist, and a walk passes over it (RFC 3584, 4.2.2.1).
Message Reply(const ObjectMap& objects, const Message& request) {
    Message reply = ErrorReply(request, kNoError, kNoIndex);
    for (size_t i = 0; i < reply.varBinds.size(); ++i) {
        const Oid& name = request.varBinds[i].name;
        const bool isNext = request.type == PduType::kGetNext;
        auto object = isNext ? objects.upper_bound(name) : objects.find(name);
        while (object != objects.end() && object->second.tag == kCounter64)
            object = isNext ? std::next(object) : objects.end();
        if (object == objects.end() || request.type == PduType::kSet) // no object can be set
            return ErrorReply(request, kNoSuchName, static_cast<long>(i + 1));
        reply.varBinds[i] = {object->first, object->second};
    }
    return reply;
}

// The reply, or an error if it can't be encoded or is too large.
Message FittingReply(const Agent& agent, const Message& request) {
    const Message reply = Reply(agent.objects, request);
    const size_t size = BuildMessage(reply).size();
    if (size == 0)
        return ErrorReply(request, kGenErr, kNoIndex);
    return size > agent.options.largestReply ? ErrorReply(request, kTooBig, kNoIndex) : reply;
}

} // namespace

Outcome HandleDatagram(Agent& agent, const Bytes& datagram) {
    const std::optional<Message> request = ParseRequest(datagram);
    if (!request)
        return {{}, std::to_string(datagram.size()) + " bytes, not a valid SNMPv1 request: dropped"};
    std::string log = RequestText(*request) + " -> ";
    if (request->community != agent.options.community)
        return {{}, log + "community " + PrintableText(request->community) + " is wrong: dropped"};
    const Message reply = FittingReply(agent, *request);
    log += ReplyText(reply);
    std::vector<Datagram> datagrams = ApplyFaults(agent.faults, *request, reply, log);
    return {std::move(datagrams), std::move(log)};
}

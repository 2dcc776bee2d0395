// The agent, see agent.h: the rules of RFC 1157 for requests and their errors.
#include "simprinter/agent.h"

#include "simprinter/log_text.h"

namespace {

constexpr long kNoIndex = 0;

// The request sent back with an error; `position` counts variables from 1.
Message ErrorReply(const Message& request, long status, long position) {
    Message reply = request;
    reply.type = PduType::kResponse;
    reply.errorStatus = status;
    reply.errorIndex = position;
    return reply;
}

Message Reply(const ObjectMap& objects, const Message& request) {
    Message reply = ErrorReply(request, kNoError, kNoIndex);
    for (size_t i = 0; i < reply.varBinds.size(); ++i) {
        const Oid& name = request.varBinds[i].name;
        const auto object =
            request.type == PduType::kGetNext ? objects.upper_bound(name) : objects.find(name);
        if (object == objects.end() || request.type == PduType::kSet) // no object is there to be set
            return ErrorReply(request, kNoSuchName, static_cast<long>(i + 1));
        reply.varBinds[i] = {object->first, object->second};
    }
    return reply;
}

// The reply in a form that can be sent.
Message FittingReply(const Agent& agent, const Message& request) {
    const Message reply = Reply(agent.objects, request);
    const size_t size = BuildMessage(reply).size();
    if (size == 0)
        return ErrorReply(request, kGenErr, kNoIndex);
    return size > agent.options.largestReply ? ErrorReply(request, kTooBig, kNoIndex) : reply;
}

} // namespace

Outcome HandleDatagram(Agent& agent, const Octets& datagram) {
    const std::optional<Message> request = ParseRequest(datagram);
    if (!request)
        return {{}, std::to_string(datagram.size()) + " octets that are no SNMPv1 request: dropped"};
    std::string log = RequestText(*request) + " -> ";
    if (request->community != agent.options.community)
        return {{}, log + "community " + PrintableText(request->community) + " is not ours: dropped"};
    const Message reply = FittingReply(agent, *request);
    log += ReplyText(reply);
    std::vector<Datagram> datagrams = ApplyFaults(agent.faults, *request, reply, log);
    return {std::move(datagrams), std::move(log)};
}

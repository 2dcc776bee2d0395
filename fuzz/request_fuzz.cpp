// Fuzz target: any bytes as a datagram to the simulated printer. The first byte selects a fault and the largest reply.
#include "require.h"

#include "simprinter/agent/agent.h"
#include "simprinter/device/objects.h"

#include <algorithm>
#include <iterator>

namespace {

// Bytes of the tag and length at this position.
size_t HeaderSize(const Bytes& bytes, size_t at) {
    return bytes.at(at + 1) < 0x80 ? 2 : 2 + (bytes[at + 1] & 0x7Fu);
}

// The position of the PDU in a message as the printer builds it: after the version and the community.
size_t PduPosition(const Bytes& bytes) {
    const size_t community = HeaderSize(bytes, 0) + 3;
    return community + HeaderSize(bytes, community) + bytes.at(community + 1);
}

// The reply is a message as a client reads it, for which it is made to look like a request.
void RequireReply(Bytes reply, const Message& request) {
    reply.at(PduPosition(reply)) = static_cast<uint8_t>(PduType::kGet);
    std::string problem;
    const std::optional<Message> read = ParseRequest(reply, problem);
    Require(read.has_value(), "a damaged reply");
    Require(read->requestId == request.requestId && read->version == request.version, "the reply to another request");
    const size_t count = read->varBinds.size(), asked = request.varBinds.size();
    Require(count == asked || request.type == PduType::kGetBulk || (count == 0 && request.version->hasGetBulk),
            "the reply has other variables");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    static const auto kObjects = std::make_shared<const ObjectMap>(ObjectsOf(PlainDevice()));
    static const char* const kFaults[] = {"silence",     "duplicate", "stale=2",        "wrong-community",
                                          "truncated=9", "malformed", "error-status=5", "counter"};
    static Agent agent{{}, kObjects, {}};
    if (count == 0)
        return 0;
    agent.options.largestReply = octets[0] >= 0x80 ? 484 : 1472;
    const size_t fault = octets[0] & 0x7F;
    agent.faults.faults.clear();
    if (fault < std::size(kFaults))
        agent.faults.faults = {ParseFault(kFaults[fault])};
    const Bytes datagram(octets + 1, octets + count);
    const Outcome outcome = HandleDatagram(agent, datagram);
    Require(!outcome.log.empty() && outcome.datagrams.size() <= 3, "no log, or too many answers");
    std::string problem;
    const std::optional<Message> request = ParseRequest(datagram, problem);
    Require(request.has_value() || (outcome.datagrams.empty() && !problem.empty()), "an answer to what is no request");
    for (const Datagram& answer : outcome.datagrams) {
        // An error returns the variables of the request. Faults make values larger.
        const bool isFaulty = fault < std::size(kFaults), isBulk = request->type == PduType::kGetBulk;
        const size_t most = std::max(agent.options.largestReply, isBulk && !isFaulty ? 0 : count + 16);
        Require(answer.bytes.size() <= (isFaulty ? 2 * most : most), "a large answer");
        if (isFaulty)
            continue;
        RequireReply(answer.bytes, *request);
        Require(HandleDatagram(agent, answer.bytes).datagrams.empty(), "an answer to a response");
    }
    return 0;
}

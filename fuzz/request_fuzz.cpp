// Fuzz target: any bytes as a datagram to the simulated printer. The first byte selects a fault.
#include "require.h"

#include "simprinter/agent.h"
#include "simprinter/objects.h"

#include <iterator>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    static const auto kObjects = std::make_shared<const ObjectMap>(ObjectsOf(PlainDevice()));
    static const char* const kFaults[] = {"silence",     "duplicate", "stale=2",        "wrong-community",
                                          "truncated=9", "malformed", "error-status=5", "counter"};
    static Agent agent{{}, kObjects, {}};
    if (count == 0)
        return 0;
    const size_t fault = octets[0];
    agent.faults.faults.clear();
    if (fault < std::size(kFaults))
        agent.faults.faults = {ParseFault(kFaults[fault])};
    const Outcome outcome = HandleDatagram(agent, Bytes(octets + 1, octets + count));
    Require(!outcome.log.empty() && outcome.datagrams.size() <= 3, "no log, or too many answers");
    for (const Datagram& datagram : outcome.datagrams)
        Require(datagram.bytes.size() <= std::max(agent.options.largestReply, count + 16), "a large answer");
    return 0;
}

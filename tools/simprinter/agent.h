// The SNMPv1 agent: octets of a request in, octets of the answer out. Knows nothing of sockets.
#ifndef SIMPRINTER_AGENT_H
#define SIMPRINTER_AGENT_H

#include "simprinter/faults.h"
#include "simprinter/message.h"

struct AgentOptions {
    std::string community = "tovask";
    // Octets; a larger one is answered with tooBig. What a network carries in one piece.
    size_t largestReply = 1472;
};

struct Agent {
    AgentOptions options;
    ObjectMap objects;
    FaultSet faults;
};

struct Outcome {
    std::vector<Datagram> datagrams; // what to send; empty for a datagram that is no request for this agent
    std::string log;                 // what was asked and answered, without a line end
};

Outcome HandleDatagram(Agent& agent, const Octets& datagram);

#endif

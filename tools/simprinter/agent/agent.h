// The SNMP agent: takes the bytes of a request and returns the datagrams of the answer. Uses no sockets.
#ifndef SIMPRINTER_AGENT_H
#define SIMPRINTER_AGENT_H

#include "simprinter/agent/faults.h"
#include "simprinter/snmp/message.h"

#include <memory>

struct AgentOptions {
    std::string community = "tovask";
    // Bytes; a larger reply becomes tooBig, that to a GetBulkRequest shorter. The default fits into one
    // Ethernet frame.
    size_t largestReply = 1472;
    std::vector<const Version*> versions = {&kVersions[0], &kVersions[1]}; // that are answered
};

struct Agent {
    AgentOptions options;
    std::shared_ptr<const ObjectMap> objects; // printers with the same recording share it
    FaultSet faults;
};

struct Outcome {
    std::vector<Datagram> datagrams; // what to send; empty when the datagram is dropped
    std::string log;                 // request and answer, without a line end
};

Outcome HandleDatagram(Agent& agent, const Bytes& datagram);

#endif

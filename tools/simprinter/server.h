// The printer's UDP socket: passes requests to the agent and sends its answers. Single-threaded.
#ifndef SIMPRINTER_SERVER_H
#define SIMPRINTER_SERVER_H

#include "simprinter/agent.h"

#include <functional>

struct ServerOptions {
    std::string address = "127.0.0.1"; // dotted IPv4
    uint16_t port = 161;               // 0: any free one
    bool logs = false;                 // one line per datagram on the standard error output
};

// Opens the socket, calls `ready` with the port and serves until SIGTERM or SIGINT. Calls `refresh` before
// each request to update the objects that change with time. Throws std::runtime_error when the socket can't
// be opened.
void Serve(const ServerOptions& options, Agent& agent, const std::function<void(uint16_t port)>& ready,
           const std::function<void(ObjectMap&)>& refresh);

#endif

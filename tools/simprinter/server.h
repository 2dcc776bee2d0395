// The UDP sockets of the printers, and the control lines. Single-threaded.
#ifndef SIMPRINTER_SERVER_H
#define SIMPRINTER_SERVER_H

#include "simprinter/agent/agent.h"

#include <functional>

struct Endpoint {
    std::string address;    // IPv4 or IPv6, numeric
    uint16_t port;          // 0: any free one
    std::string place = {}; // in front of errors about it: "FILE:LINE:COLUMN: "
};

// "127.0.0.1:161", "[::1]:161"
std::string EndpointText(const Endpoint& endpoint);

struct ServerHandlers {
    // Once all sockets are open, with the ports that they have.
    std::function<void(const std::vector<Endpoint>& opened)> ready;
    // A datagram for the printer with this position among the endpoints.
    std::function<Outcome(size_t printer, const Bytes& datagram)> answer;
    // A line of the standard input, without its end. Its end, which a background process sees at once, ends
    // nothing.
    std::function<void(const std::string& line)> control;
    std::function<void()> tick;
    int tickMs = 0; // how often `tick` is called; 0: never
};

// Opens the sockets and serves until SIGTERM, SIGINT or RequestStop. With `logs`, a line for each datagram
// goes to the standard error output. Throws std::runtime_error when sockets can't be opened.
void Serve(const std::vector<Endpoint>& endpoints, bool logs, const ServerHandlers& handlers);

#endif

// The servers that the benchmarks use on loopback: the simulated printer in its own process, and a plain UDP
// echo.
#ifndef BENCH_LOOPBACK_H
#define BENCH_LOOPBACK_H

#include <cstdint>
#include <string>

// A process that serves a UDP port of 127.0.0.1, ended with its scope. Port 0 when it could not be started.
struct Server {
    Server(uint16_t servedPort, int child) : port(servedPort), process(child) {}
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    uint16_t port;
    int process; // not positive: none
};
Server EchoServer();
Server SimulatedPrinter(const std::string& arguments); // command line of simprinter

// A connected socket. RoundTrip sends one datagram and receives the echo; false when none of the same size
// came back.
struct EchoClient {
    explicit EchoClient(uint16_t port);
    ~EchoClient();
    EchoClient(const EchoClient&) = delete;
    EchoClient& operator=(const EchoClient&) = delete;

    bool RoundTrip(const uint8_t* bytes, size_t count) const;

    int socket;
};

#endif

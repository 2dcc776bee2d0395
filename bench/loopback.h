// What the benchmarks talk to on loopback: the simulated printer as a process of its own, and a bare UDP
// echo.
#ifndef BENCH_LOOPBACK_H
#define BENCH_LOOPBACK_H

#include <cstdint>
#include <string>

// A program that serves a UDP port of 127.0.0.1 until the end of its scope. Port 0 when it could not be
// started.
struct Server {
    Server(uint16_t servedPort, int child) : port(servedPort), process(child) {}
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    uint16_t port;
    int process; // not positive: none
};
Server EchoServer();
Server SimulatedPrinter(const std::string& arguments); // of simprinter

// One datagram to a connected socket and back.
struct EchoClient {
    explicit EchoClient(uint16_t port);
    ~EchoClient();
    EchoClient(const EchoClient&) = delete;
    EchoClient& operator=(const EchoClient&) = delete;

    bool RoundTrip(const uint8_t* octets, size_t count) const;

    int socket;
};

#endif

// A client that asks one SNMP agent and repeats requests that get no answer.
#ifndef SIMPRINTER_SNMP_CLIENT_H
#define SIMPRINTER_SNMP_CLIENT_H

#include "simprinter/snmp/message.h"
#include "simprinter/udp_socket.h"

#include <chrono>

using Milliseconds = std::chrono::milliseconds;

// A UDP socket that is connected to one address, so that it notices that a port is closed.
struct ClientSocket {
    SocketHandle handle = kNoSocket;

    ClientSocket() = default;
    ClientSocket(const ClientSocket&) = delete;
    ClientSocket& operator=(const ClientSocket&) = delete;
    ~ClientSocket();
};

enum class Answer {
    kReply,
    kNone,    // in time
    kClosed,  // nothing listens on the port
    kStopped, // `stop` was set
};

struct SnmpClient {
    ClientSocket socket = {};
    const Version* version = &kVersions[1];
    std::string community = {};
    Milliseconds longestWait = {};      // for the answer to one datagram
    Milliseconds wait = longestWait;    // for the first one; follows the times of the answers
    const volatile int* stop = nullptr; // nonzero, set by a signal, ends a wait
    long lastRequestId = 0;
};

// The socket addresses of a host name or an address. Throws std::runtime_error when there is none.
std::vector<SocketAddress> FindAddresses(const std::string& host, uint16_t port);

// False, with SocketError, when the address can't be reached.
bool Connect(SnmpClient& client, const SocketAddress& address);

// Sends the request up to `tries` times; the wait doubles each time. `reply` has the variables.
Answer Ask(SnmpClient& client, PduType type, const Oid& name, int repetitions, int tries, Message& reply);

// Asks an address that gave no reply once more, in each version, and takes what comes from anywhere: says
// what is unusual about it. Empty when nothing comes.
std::string UnusualAnswer(const SnmpClient& client, const SocketAddress& address, const Oid& name);

#endif

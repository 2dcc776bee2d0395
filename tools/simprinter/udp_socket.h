// UDP sockets of IPv4 and IPv6.
#ifndef SIMPRINTER_UDP_SOCKET_H
#define SIMPRINTER_UDP_SOCKET_H

#include "simprinter/server.h"
#include "simprinter/sockets.h"

#include <optional>

// A socket address of either family.
struct SocketAddress {
    sockaddr_storage storage = {};
    socklen_t length = sizeof storage;

    sockaddr* Raw() { return reinterpret_cast<sockaddr*>(&storage); }
    const sockaddr* Raw() const { return reinterpret_cast<const sockaddr*>(&storage); }
};

// Throws std::runtime_error when the address is not numeric.
SocketAddress ResolveEndpoint(const Endpoint& endpoint);
Endpoint EndpointOf(const SocketAddress& address);

// Non-blocking; closed with the object.
struct UdpSocket {
    SocketHandle handle;

    // Throws std::runtime_error with what to do.
    explicit UdpSocket(const SocketAddress& where);
    UdpSocket(const UdpSocket&) = delete;
    UdpSocket& operator=(const UdpSocket&) = delete;
    ~UdpSocket();

    SocketAddress Name() const;

    // False when there is no datagram.
    bool Receive(Bytes& datagram, SocketAddress& from) const;

    // A datagram that can't be sent is lost, as on a network.
    void Send(const Bytes& datagram, const SocketAddress& to) const;
};

// The sockets that a printer's answers come from; those for wrong sources are opened when first needed, and
// throw as the main one does.
struct PrinterSockets {
    UdpSocket main;
    std::optional<UdpSocket> otherPort, otherAddress;

    explicit PrinterSockets(const Endpoint& endpoint) : main(ResolveEndpoint(endpoint)) {}

    const UdpSocket& For(Source source);
};

#endif

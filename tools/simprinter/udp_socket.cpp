// Opens UDP sockets, and explains why one can't be opened.
#include "simprinter/udp_socket.h"

#include "common/text.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace {

constexpr const char* kOtherLoopback = "127.255.255.254"; // unlikely to be in use

std::string WhatToDo(int reason) {
    switch (reason) {
    case kAddressInUse:
        return ". Another program uses that port: stop it, or choose another one with --port (0: any free port)";
    case kNotAllowed:
#ifdef _WIN32
        return ". Windows or another program has that port for itself: choose another one with --port (0: any free port)";
#else
        return ". Ports below 1024 need root: start as root, or choose another one with --port (0: any free port)";
#endif
    case kNoSuchAddress:
        return ". It must be an address of this machine";
    case kTooManySockets:
#ifdef _WIN32
        return ". Each printer needs one: simulate fewer";
#else
        return ". Each printer needs one: simulate fewer, or raise the limit ('ulimit -n')";
#endif
    default:
        return "";
    }
}

} // namespace

std::string EndpointText(const Endpoint& endpoint) {
    const bool isIpv6 = endpoint.address.find(':') != std::string::npos;
    return (isIpv6 ? '[' + endpoint.address + ']' : endpoint.address) + ':' + std::to_string(endpoint.port);
}

SocketAddress ResolveEndpoint(const Endpoint& endpoint) {
    addrinfo hints = {};
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(endpoint.address.c_str(), std::to_string(endpoint.port).c_str(), &hints, &found) != 0)
        throw std::runtime_error(Quote(endpoint.address) + " is not an address such as 127.0.0.1 or ::1");
    SocketAddress address;
    std::memcpy(&address.storage, found->ai_addr, found->ai_addrlen);
    address.length = static_cast<socklen_t>(found->ai_addrlen);
    freeaddrinfo(found);
    return address;
}

Endpoint EndpointOf(const SocketAddress& address) {
    char host[NI_MAXHOST] = "", port[NI_MAXSERV] = "0";
    getnameinfo(address.Raw(), address.length, host, sizeof host, port, sizeof port,
                NI_NUMERICHOST | NI_NUMERICSERV);
    return {host, static_cast<uint16_t>(std::atoi(port))};
}

UdpSocket::UdpSocket(const SocketAddress& where) : handle(OpenSocket(where.storage.ss_family)) {
    int reason = SocketError();
    if (handle != kNoSocket) {
        const int only = 1; // "::" leaves IPv4 to "0.0.0.0"
        if (where.storage.ss_family == AF_INET6)
            setsockopt(handle, IPPROTO_IPV6, IPV6_V6ONLY, reinterpret_cast<const char*>(&only), sizeof only);
        if (bind(handle, where.Raw(), where.length) == 0)
            return;
        reason = SocketError();
        CloseSocket(handle);
    }
    throw std::runtime_error("cannot listen on " + EndpointText(EndpointOf(where)) + ": "
                             + SocketErrorText(reason) + WhatToDo(reason));
}

UdpSocket::~UdpSocket() {
    CloseSocket(handle);
}

SocketAddress UdpSocket::Name() const {
    SocketAddress name;
    getsockname(handle, name.Raw(), &name.length);
    return name;
}

bool UdpSocket::Receive(Bytes& datagram, SocketAddress& from) const {
    constexpr int kLargestDatagram = 65536;
    datagram.resize(kLargestDatagram);
    from.length = sizeof from.storage;
    const auto size = recvfrom(handle, reinterpret_cast<char*>(datagram.data()), kLargestDatagram, 0,
                               from.Raw(), &from.length);
    datagram.resize(static_cast<size_t>(std::max<int64_t>(size, 0)));
    return size >= 0;
}

void UdpSocket::Send(const Bytes& datagram, const SocketAddress& to) const {
    sendto(handle, reinterpret_cast<const char*>(datagram.data()), static_cast<int>(datagram.size()), 0,
           to.Raw(), to.length);
}

const UdpSocket& PrinterSockets::For(Source source) {
    Endpoint where = EndpointOf(main.Name());
    if (source == Source::kOtherPort) {
        where.port = 0;
        return otherPort ? *otherPort : otherPort.emplace(ResolveEndpoint(where));
    }
    if (source == Source::kOtherAddress) {
        where.address = kOtherLoopback;
        return otherAddress ? *otherAddress : otherAddress.emplace(ResolveEndpoint(where));
    }
    return main;
}

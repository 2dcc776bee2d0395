// The socket loop. Answers that a fault delays wait in a queue; all others are sent at once.
#include "simprinter/server.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <iostream>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr uint32_t kOtherLoopback = 0x7FFFFFFE; // 127.255.255.254, unlikely to be in use
constexpr size_t kMaxWaiting = 10000;           // delayed datagrams; more are dropped, as in a real queue

volatile std::sig_atomic_t stopRequested = 0;

void RequestStop(int) {
    stopRequested = 1;
}

// Blocks the stop signals except while the loop waits with the returned mask.
sigset_t CatchStopSignals() {
    struct sigaction action = {};
    action.sa_handler = RequestStop;
    sigset_t stopSignals, before;
    sigemptyset(&stopSignals);
    for (const int signal : {SIGTERM, SIGINT}) {
        sigaddset(&stopSignals, signal);
        sigaction(signal, &action, nullptr);
    }
    sigprocmask(SIG_BLOCK, &stopSignals, &before);
    sigdelset(&before, SIGTERM);
    sigdelset(&before, SIGINT);
    return before;
}

std::string Describe(const sockaddr_in& where) {
    char text[INET_ADDRSTRLEN] = "";
    inet_ntop(AF_INET, &where.sin_addr, text, sizeof text);
    return std::string(text) + ':' + std::to_string(ntohs(where.sin_port));
}

std::string WhatToDo(int reason) {
    switch (reason) {
    case EADDRINUSE:
        return ". Another program uses that port: stop it, or choose another one with --port (0: any free port)";
    case EACCES:
        return ". Ports below 1024 need root: start as root, or choose another one with --port (0: any free port)";
    case EADDRNOTAVAIL:
        return ". --address must be an address of this machine";
    default:
        return "";
    }
}

struct UdpSocket {
    int descriptor;

    explicit UdpSocket(sockaddr_in where)
        : descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
        if (descriptor < 0)
            throw std::runtime_error(std::string("cannot open a socket: ") + std::strerror(errno));
        if (bind(descriptor, reinterpret_cast<const sockaddr*>(&where), sizeof where) == 0)
            return;
        const int reason = errno;
        close(descriptor);
        throw std::runtime_error("cannot listen on " + Describe(where) + ": " + std::strerror(reason)
                                 + WhatToDo(reason));
    }
    UdpSocket(const UdpSocket&) = delete;
    UdpSocket& operator=(const UdpSocket&) = delete;
    ~UdpSocket() { close(descriptor); }

    sockaddr_in Name() const {
        sockaddr_in name = {};
        socklen_t length = sizeof name;
        getsockname(descriptor, reinterpret_cast<sockaddr*>(&name), &length);
        return name;
    }
};

// The sockets that answers come from; those for wrong sources are opened when first needed.
struct Sockets {
    UdpSocket main;
    std::optional<UdpSocket> otherPort, otherAddress;

    explicit Sockets(const sockaddr_in& where) : main(where) {}

    const UdpSocket& For(Source source) {
        sockaddr_in where = main.Name();
        if (source == Source::kOtherPort) {
            where.sin_port = 0;
            return otherPort ? *otherPort : otherPort.emplace(where);
        }
        if (source == Source::kOtherAddress) {
            where.sin_addr.s_addr = htonl(kOtherLoopback);
            return otherAddress ? *otherAddress : otherAddress.emplace(where);
        }
        return main;
    }
};

struct Waiting {
    Datagram datagram;
    sockaddr_in to;
};
using WaitingQueue = std::multimap<Clock::time_point, Waiting>;

// A datagram that can't be sent is lost, as on a network. A socket that can't be opened is reported.
void Send(Sockets& sockets, const Waiting& next) {
    try {
        sendto(sockets.For(next.datagram.source).descriptor, next.datagram.bytes.data(),
               next.datagram.bytes.size(), 0, reinterpret_cast<const sockaddr*>(&next.to), sizeof next.to);
    } catch (const std::runtime_error& fault) {
        std::cerr << "simprinter: an answer from another source is lost: " << fault.what() << std::endl;
    }
}

void SendDue(Sockets& sockets, WaitingQueue& queue) {
    while (!queue.empty() && queue.begin()->first <= Clock::now()) {
        Send(sockets, queue.begin()->second);
        queue.erase(queue.begin());
    }
}

// Waits for a datagram, the time of the next delayed answer or a signal.
void Wait(int descriptor, const WaitingQueue& queue, const sigset_t& mask) {
    timespec limit = {};
    if (!queue.empty()) {
        const auto left =
            std::max<Clock::duration>(queue.begin()->first - Clock::now(), Clock::duration::zero());
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
        limit.tv_sec = seconds.count();
        limit.tv_nsec = std::chrono::nanoseconds(left - seconds).count();
    }
    pollfd entry = {descriptor, POLLIN, 0};
    ppoll(&entry, 1, queue.empty() ? nullptr : &limit, &mask);
}

bool Receive(int descriptor, Bytes& datagram, sockaddr_in& from) {
    constexpr size_t kLargestDatagram = 65536;
    datagram.resize(kLargestDatagram);
    socklen_t length = sizeof from;
    const ssize_t size = recvfrom(descriptor, datagram.data(), datagram.size(), 0,
                                  reinterpret_cast<sockaddr*>(&from), &length);
    datagram.resize(static_cast<size_t>(std::max<ssize_t>(size, 0)));
    return size >= 0;
}

sockaddr_in ParseAddress(const ServerOptions& options) {
    sockaddr_in where = {};
    where.sin_family = AF_INET;
    where.sin_port = htons(options.port);
    if (inet_pton(AF_INET, options.address.c_str(), &where.sin_addr) != 1)
        throw std::runtime_error("'" + options.address + "' is not an IPv4 address such as 127.0.0.1");
    return where;
}

} // namespace

void Serve(const ServerOptions& options, Agent& agent, const std::function<void(uint16_t port)>& ready,
           const std::function<void(ObjectMap&)>& refresh) {
    Sockets sockets(ParseAddress(options));
    const sigset_t mask = CatchStopSignals();
    ready(ntohs(sockets.main.Name().sin_port));
    WaitingQueue queue;
    Bytes datagram;
    sockaddr_in from = {};
    while (!stopRequested) {
        Wait(sockets.main.descriptor, queue, mask);
        if (Receive(sockets.main.descriptor, datagram, from)) {
            refresh(agent.objects);
            Outcome outcome = HandleDatagram(agent, datagram);
            if (options.logs)
                std::cerr << Describe(from) << ' ' << outcome.log << std::endl;
            for (Datagram& answer : outcome.datagrams) {
                const auto due = Clock::now() + std::chrono::milliseconds(answer.delayMs);
                if (queue.size() < kMaxWaiting)
                    queue.emplace(due, Waiting{std::move(answer), from});
            }
        }
        SendDue(sockets, queue);
    }
}

// Sends requests to an agent and waits for the answers.
#include "simprinter/snmp/snmp_client.h"

#include "common/text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <netdb.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr Milliseconds kShortestWait{100};

// Waits for a reply to the request with this number. Late answers to others are dropped.
Answer WaitForReply(SnmpClient& client, long requestId, Milliseconds wait, Message& reply) {
    const auto end = SteadyClock::now() + wait;
    for (;;) {
        const auto left = std::chrono::duration_cast<Milliseconds>(end - SteadyClock::now());
        if (client.stop && *client.stop)
            return Answer::kStopped;
        pollfd entry = {client.socket.descriptor, POLLIN, 0};
        const int ready = left.count() > 0 ? poll(&entry, 1, static_cast<int>(left.count())) : 0;
        if (ready < 0) // a signal
            continue;
        if (ready == 0)
            return Answer::kNone;
        Bytes datagram(65536);
        const ssize_t size = recv(client.socket.descriptor, datagram.data(), datagram.size(), 0);
        if (size < 0 && errno == ECONNREFUSED)
            return Answer::kClosed;
        datagram.resize(static_cast<size_t>(std::max<ssize_t>(size, 0)));
        std::optional<Message> message = ParseReply(datagram);
        if (message && message->requestId == requestId && message->version == client.version) {
            reply = std::move(*message);
            return Answer::kReply;
        }
    }
}

// What to write in place of "127.0.0.1:161", "[::1]" or "[::1]:161"; empty for other texts.
std::string WithPortOption(const std::string& host) {
    const size_t close = HasPrefix(host, "[") ? host.find(']') : std::string::npos;
    const bool isBracketed = close != std::string::npos;
    const size_t end = isBracketed ? close + 1 : std::min(host.find(':'), host.size());
    const std::string address = isBracketed ? host.substr(1, close - 1) : host.substr(0, end);
    if (end == host.size())
        return isBracketed ? address : "";
    const bool isPort = host[end] == ':' && host.find(':', end + 1) == std::string::npos;
    return isPort ? address + " --port " + host.substr(end + 1) : "";
}

} // namespace

ClientSocket::~ClientSocket() {
    if (descriptor >= 0)
        close(descriptor);
}

std::vector<SocketAddress> FindAddresses(const std::string& host, uint16_t port) {
    if (const std::string instead = WithPortOption(host); !instead.empty())
        throw std::runtime_error(Quote(host) + " is not an address or a name: write " + instead);
    addrinfo hints = {};
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo* found = nullptr;
    if (const int error = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found); error != 0)
        throw std::runtime_error("cannot find the address of " + Quote(host) + ": " + gai_strerror(error));
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> release(found, freeaddrinfo);
    std::vector<SocketAddress> addresses;
    for (const addrinfo* next = found; next; next = next->ai_next) {
        SocketAddress& address = addresses.emplace_back();
        std::memcpy(&address.storage, next->ai_addr, next->ai_addrlen);
        address.length = next->ai_addrlen;
    }
    return addresses;
}

bool Connect(SnmpClient& client, const SocketAddress& address) {
    if (client.socket.descriptor >= 0)
        close(client.socket.descriptor);
    client.socket.descriptor = socket(address.storage.ss_family, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    return client.socket.descriptor >= 0
           && connect(client.socket.descriptor, address.Raw(), address.length) == 0;
}

Answer Ask(SnmpClient& client, PduType type, const Oid& name, int repetitions, int tries, Message& reply) {
    const Message request = {client.version,
                             client.community,
                             type,
                             ++client.lastRequestId,
                             0,
                             type == PduType::kGetBulk ? repetitions : 0,
                             {{name, {}}}};
    const Bytes datagram = BuildMessage(request);
    Milliseconds wait = client.wait;
    Answer answer = Answer::kNone;
    for (int i = 0; i < tries && answer == Answer::kNone; ++i) {
        const auto start = SteadyClock::now();
        if (send(client.socket.descriptor, datagram.data(), datagram.size(), 0) < 0 && errno == ECONNREFUSED)
            return Answer::kClosed;
        answer = WaitForReply(client, request.requestId, wait, reply);
        if (answer == Answer::kReply) {
            const auto time = std::chrono::duration_cast<Milliseconds>(SteadyClock::now() - start);
            client.wait = std::clamp(std::max(4 * time, client.wait * 7 / 8),
                                     std::min(kShortestWait, client.longestWait), client.longestWait);
        }
        wait = std::min(2 * wait, client.longestWait);
    }
    return answer;
}

std::string UnusualAnswer(const SnmpClient& client, const SocketAddress& address, const Oid& name) {
    const bool isIpv6 = address.storage.ss_family == AF_INET6;
    const UdpSocket socket(ResolveEndpoint({isIpv6 ? "::" : "0.0.0.0", 0})); // not connected
    for (const Version& version : kVersions)
        socket.Send(BuildMessage({&version, client.community, PduType::kGetNext, 1, 0, 0, {{name, {}}}}),
                    address);
    pollfd entry = {socket.descriptor, POLLIN, 0};
    Bytes datagram;
    SocketAddress from;
    if (poll(&entry, 1, static_cast<int>(client.longestWait.count())) != 1 || !socket.Receive(datagram, from))
        return "";
    const std::string source = EndpointText(EndpointOf(from));
    if (source != EndpointText(EndpointOf(address)))
        return "an answer came from " + source + ", which was not asked";
    return ParseReply(datagram)
               ? "one answer came, but most are lost"
               : "what came, " + std::to_string(datagram.size()) + " bytes, is damaged or no reply of SNMP";
}

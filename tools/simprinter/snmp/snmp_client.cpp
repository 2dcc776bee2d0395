// Sends requests to an agent and waits for the answers.
#include "simprinter/snmp/snmp_client.h"

#include "common/text.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr Milliseconds kShortestWait{100};
constexpr Milliseconds kStopInterval{200}; // in which `stop` is looked at, where no signal ends a wait

// Waits for a reply to the request with this number. Late answers to others are dropped.
Answer WaitForReply(SnmpClient& client, long requestId, Milliseconds wait, Message& reply) {
    const auto end = SteadyClock::now() + wait;
    for (;;) {
        const auto left = std::chrono::duration_cast<Milliseconds>(end - SteadyClock::now());
        if (client.stop && *client.stop)
            return Answer::kStopped;
        if (left.count() <= 0)
            return Answer::kNone;
        pollfd entry = {client.socket.handle, POLLIN, 0};
        if (Poll(&entry, 1, static_cast<int>(std::min(left, kStopInterval).count())) <= 0)
            continue;
        constexpr int kLargest = 65536;
        Bytes datagram(kLargest);
        const auto size = recv(client.socket.handle, reinterpret_cast<char*>(datagram.data()), kLargest, 0);
        if (size < 0 && IsRefused(SocketError()))
            return Answer::kClosed;
        datagram.resize(static_cast<size_t>(std::max<int64_t>(size, 0)));
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
    if (handle != kNoSocket)
        CloseSocket(handle);
}

std::vector<SocketAddress> FindAddresses(const std::string& host, uint16_t port) {
    if (const std::string instead = WithPortOption(host); !instead.empty())
        throw std::runtime_error(Quote(host) + " is not an address or a name: write " + instead);
    addrinfo hints = {};
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo* found = nullptr;
    if (const int error = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found); error != 0)
        throw std::runtime_error("cannot find the address of " + Quote(host) + ": "
                                 + AddressErrorText(error));
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> release(found, freeaddrinfo);
    std::vector<SocketAddress> addresses;
    for (const addrinfo* next = found; next; next = next->ai_next) {
        SocketAddress& address = addresses.emplace_back();
        std::memcpy(&address.storage, next->ai_addr, next->ai_addrlen);
        address.length = static_cast<socklen_t>(next->ai_addrlen);
    }
    return addresses;
}

bool Connect(SnmpClient& client, const SocketAddress& address) {
    if (client.socket.handle != kNoSocket)
        CloseSocket(client.socket.handle);
    client.socket.handle = OpenSocket(address.storage.ss_family);
    return client.socket.handle != kNoSocket
           && connect(client.socket.handle, address.Raw(), address.length) == 0;
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
        if (send(client.socket.handle, reinterpret_cast<const char*>(datagram.data()),
                 static_cast<int>(datagram.size()), 0)
                < 0
            && IsRefused(SocketError()))
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
    pollfd entry = {socket.handle, POLLIN, 0};
    Bytes datagram;
    SocketAddress from;
    if (Poll(&entry, 1, static_cast<int>(client.longestWait.count())) != 1 || !socket.Receive(datagram, from))
        return "";
    const std::string source = EndpointText(EndpointOf(from));
    if (source != EndpointText(EndpointOf(address)))
        return "an answer came from " + source + ", which was not asked";
    return ParseReply(datagram)
               ? "one answer came, but most are lost"
               : "what came, " + std::to_string(datagram.size()) + " bytes, is damaged or no reply of SNMP";
}

// Windows Sockets 1.1: over the host's sockets, or over the wire that a test has set. Owns the wire, what
// went over it, and the counts of live sockets and of uses.
#include "windows_sockets.h" // before the host's headers, whose macros would rename its constants

constexpr int kIpv4 = winsock::AF_INET;
constexpr int kDatagrams = winsock::SOCK_DGRAM;
constexpr int kSocketLevel = winsock::SOL_SOCKET;
constexpr int kReceiveLimitOption = winsock::SO_RCVTIMEO;
constexpr auto kBytesWaiting = static_cast<long>(winsock::FIONREAD);

#include "services.h"
#include "win32_control.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cstring>
#include <deque>
#include <memory>
#include <netdb.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#undef htons // a macro in the host's headers

namespace {

constexpr winsock::SOCKET kWireSocket = 0x10000; // beyond any descriptor

std::unique_ptr<win32::Wire> wire; // null: the host's network
win32::WireRecord record;
std::deque<win32::Datagram> waiting;
unsigned pollsSinceSend = 0;
std::map<uint16_t, uint16_t> redirections;
int liveSockets = 0;
int liveUses = 0;

int Result(int result, int error) {
    if (result < 0)
        SetLastError(static_cast<DWORD>(error));
    return result;
}

// Of a call on the wire: the error that is scripted, or else that of arguments that it doesn't know.
int WireResult(int scriptedError, bool argumentsAreKnown) {
    const int error = scriptedError != 0 || argumentsAreKnown ? scriptedError : winsock::WSAEINVAL;
    return Result(error != 0 ? -1 : 0, error);
}

// Of the host's last call, as Windows Sockets names it.
int HostError() {
    switch (errno) {
    case EAGAIN:
        return winsock::WSAETIMEDOUT;
    case ECONNREFUSED:
        return winsock::WSAECONNRESET;
    default:
        return 10000 + errno;
    }
}

int Descriptor(winsock::SOCKET handle) {
    return static_cast<int>(handle);
}

winsock::hostent* FoundHost(const std::vector<uint32_t>& found) {
    static std::vector<uint32_t> addresses;
    static std::vector<char*> list;
    static winsock::hostent host;
    addresses = found;
    list.clear();
    for (uint32_t& address : addresses)
        list.push_back(reinterpret_cast<char*>(&address));
    list.push_back(nullptr);
    host.h_addr_list = list.data();
    return &host;
}

} // namespace

namespace winsock {

int WSAStartup(WORD version, WSADATA* granted) {
    if (wire != nullptr && wire->startupError != 0)
        return wire->startupError;
    ++liveUses;
    granted->wVersion = wire != nullptr ? wire->versionGranted : version;
    granted->wHighVersion = 0x0202;
    return 0;
}

int WSACleanup() {
    --liveUses;
    SetLastError(0);
    return 0;
}

int WSAGetLastError() {
    return static_cast<int>(GetLastError());
}

SOCKET socket(int family, int type, int protocol) {
    const bool isUdp = family == kIpv4 && type == kDatagrams && protocol == 0;
    const int descriptor = wire != nullptr ? WireResult(wire->socketError, isUdp)
                                           : Result(::socket(family, type, protocol), HostError());
    if (descriptor < 0)
        return winsock::INVALID_SOCKET;
    ++liveSockets;
    return wire != nullptr ? kWireSocket : static_cast<SOCKET>(descriptor);
}

int closesocket(SOCKET handle) {
    --liveSockets;
    SetLastError(0);
    return wire != nullptr ? 0 : ::close(Descriptor(handle));
}

u_short htons(u_short number) {
    return static_cast<u_short>(number << 8 | number >> 8);
}

u_long inet_addr(const char* text) {
    return ::inet_addr(text);
}

hostent* gethostbyname(const char* name) {
    std::vector<uint32_t> addresses;
    bool known = false;
    if (wire != nullptr) {
        const auto host = wire->hosts.find(name);
        known = host != wire->hosts.end();
        if (known)
            addresses = host->second;
    } else if (const ::hostent* host = ::gethostbyname(name)) {
        known = true;
        for (char** address = host->h_addr_list; *address != nullptr; ++address) {
            addresses.emplace_back();
            memcpy(&addresses.back(), *address, sizeof(uint32_t));
        }
    }
    SetLastError(known ? 0 : winsock::WSAHOST_NOT_FOUND);
    return known ? FoundHost(addresses) : nullptr;
}

int connect(SOCKET handle, const sockaddr* address, int) {
    const auto& to = *reinterpret_cast<const winsock::sockaddr_in*>(address);
    record.address = to.sin_addr.s_addr;
    record.port = winsock::htons(to.sin_port);
    if (wire != nullptr)
        return WireResult(wire->connectError, to.sin_family == kIpv4);
    const auto redirection = redirections.find(record.port);
    ::sockaddr_in host = {};
    host.sin_family = static_cast<sa_family_t>(to.sin_family);
    host.sin_port = redirection != redirections.end() ? winsock::htons(redirection->second) : to.sin_port;
    host.sin_addr.s_addr = to.sin_addr.s_addr;
    return Result(::connect(Descriptor(handle), reinterpret_cast<::sockaddr*>(&host), sizeof(host)),
                  HostError());
}

int setsockopt(SOCKET handle, int level, int option, const char* value, int) {
    DWORD milliseconds;
    memcpy(&milliseconds, value, sizeof(milliseconds));
    record.receiveLimit = milliseconds;
    if (wire != nullptr)
        return WireResult(wire->optionError, level == kSocketLevel && option == kReceiveLimitOption);
    const timeval limit = {milliseconds / 1000, static_cast<suseconds_t>(milliseconds % 1000) * 1000};
    return Result(::setsockopt(Descriptor(handle), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit)),
                  HostError());
}

int ioctlsocket(SOCKET handle, long command, u_long* argument) {
    ++record.polls;
    if (wire == nullptr) {
        int bytes = 0;
        const int result = Result(::ioctl(Descriptor(handle), FIONREAD, &bytes), HostError());
        *argument = static_cast<u_long>(bytes);
        return result;
    }
    const bool seen = pollsSinceSend++ >= wire->pollsUntilSeen && !waiting.empty();
    *argument = seen ? static_cast<u_long>(waiting.front().size()) : 0;
    return WireResult(0, command == kBytesWaiting);
}

int send(SOCKET handle, const char* bytes, int count, int) {
    if (wire == nullptr)
        return static_cast<int>(Result(
            static_cast<int>(::send(Descriptor(handle), bytes, static_cast<size_t>(count), 0)), HostError()));
    record.sent.emplace_back(bytes, bytes + count);
    pollsSinceSend = 0;
    if (record.sent.size() == wire->failingSend)
        return Result(-1, WSAECONNRESET);
    if (wire->answer)
        for (const win32::Datagram& reply : wire->answer(record.sent.back()))
            waiting.push_back(reply);
    return count;
}

// A datagram that is larger than the buffer fails and is gone, as on Windows.
int recv(SOCKET handle, char* to, int capacity, int) {
    ++record.receives;
    if (wire == nullptr) {
        const ssize_t count = ::recv(Descriptor(handle), to, static_cast<size_t>(capacity), MSG_TRUNC);
        return count > capacity ? Result(-1, WSAEMSGSIZE) : Result(static_cast<int>(count), HostError());
    }
    if (waiting.empty())
        return Result(-1, WSAETIMEDOUT);
    const win32::Datagram datagram = waiting.front();
    waiting.pop_front();
    std::copy_n(datagram.begin(), std::min(datagram.size(), static_cast<size_t>(capacity)), to);
    return datagram.size() > static_cast<size_t>(capacity) ? Result(-1, WSAEMSGSIZE)
                                                           : static_cast<int>(datagram.size());
}

} // namespace winsock

namespace win32 {

void ResetSockets() {
    wire.reset();
    record = {};
    waiting.clear();
    redirections.clear();
    liveSockets = 0;
    liveUses = 0;
}

int LiveSockets() {
    return liveSockets;
}

int LiveSocketUses() {
    return liveUses;
}

void SetWire(const Wire& scripted) {
    wire = std::make_unique<Wire>(scripted);
    record = {};
    waiting.clear();
    pollsSinceSend = 0;
}

WireRecord ReadWire() {
    return record;
}

void RedirectPort(uint16_t port, uint16_t to) {
    redirections[port] = to;
}

} // namespace win32

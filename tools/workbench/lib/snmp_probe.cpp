// Sends SNMP requests and reads the replies.
#include "workbench/lib/snmp_probe.h"

#include "workbench/lib/host_address.h"
#include "workbench/lib/module_parts.h"
#include "workbench/lib/text.h"

#include <atomic>
#include <cstring>

#include <winsock2.h>

#include <ws2tcpip.h> // after winsock2.h

namespace {

// A UDP socket that is connected to an agent, so that refusals are reported.
struct ProbeSocket {
    explicit ProbeSocket(uint32_t address) {
        sockaddr_in agent = {};
        agent.sin_family = AF_INET;
        agent.sin_port = htons(kSnmpPort);
        agent.sin_addr.s_addr = address;
        isReady = connect(handle, reinterpret_cast<const sockaddr*>(&agent), sizeof(agent)) == 0
                  && setsockopt(handle, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<const char*>(&kProbeWait),
                                sizeof(kProbeWait))
                         == 0;
    }
    ~ProbeSocket() { closesocket(handle); }
    ProbeSocket(const ProbeSocket&) = delete;
    ProbeSocket& operator=(const ProbeSocket&) = delete;

    const SOCKET handle = socket(AF_INET, SOCK_DGRAM, 0);
    bool isReady;
};

// Some systems report a refusal when the next datagram is sent.
bool IsRefusal(int error) {
    return error == WSAECONNRESET || error == WSAECONNREFUSED;
}

// Receives until the answer to this request arrives, or nothing does in time.
ProbeAnswer ReceiveAnswer(SOCKET handle, uint32_t requestId) {
    for (int others = 0; others < kMaxOtherAnswers; ++others) {
        char datagram[4096];
        const int size = recv(handle, datagram, sizeof(datagram), 0);
        if (size < 0)
            return {ProbeEndOf(WSAGetLastError()), {}, {}};
        const std::optional<SnmpReplyText> reply = ReadSnmpReply({datagram, static_cast<size_t>(size)});
        if (!reply)
            return {ProbeEnd::kMalformed, {}, {}};
        if (reply->requestId == requestId)
            return {ProbeEnd::kAnswered, *reply, {datagram, static_cast<size_t>(size)}};
    }
    return {ProbeEnd::kOtherRequests, {}, {}};
}

// Finds the first address of this family. 0, or an error of Windows Sockets.
int FindAddress(const std::string& host, int family, sockaddr_storage& address) {
    addrinfo wanted = {};
    wanted.ai_family = family;
    addrinfo* found = nullptr;
    const int error = getaddrinfo(host.c_str(), nullptr, &wanted, &found);
    if (error != 0 || found == nullptr)
        return error != 0 ? error : WSAHOST_NOT_FOUND;
    memcpy(&address, found->ai_addr, found->ai_addrlen);
    freeaddrinfo(found);
    return 0;
}

// Whether it is not known if the name exists: no answer, or one that says that the service has failed.
bool IsOfNameService(int error) {
    return error == WSATRY_AGAIN || error == WSANO_RECOVERY;
}

} // namespace

SocketsStart::SocketsStart() {
    WSADATA granted;
    WSAStartup(MAKEWORD(2, 2), &granted);
}

SocketsStart::~SocketsStart() {
    WSACleanup();
}

uint32_t NextRequestId() {
    static std::atomic<uint32_t> last{GetTickCount()};
    return ++last & INT32_MAX;
}

HostKind FindHost(const std::string& host, uint32_t& address) {
    const SocketsStart sockets;
    address = inet_addr(host.c_str()); // first, as the module does
    if (address != INADDR_NONE)
        return HostKind::kIpv4;
    if (IsIpv6Text(host))
        return HostKind::kIpv6;
    sockaddr_storage found = {};
    const int error = FindAddress(host, AF_INET, found);
    if (error == 0) {
        address = reinterpret_cast<const sockaddr_in&>(found).sin_addr.s_addr;
        return HostKind::kIpv4;
    }
    // Only an address of the other kind would be of use now, and a silent service takes as long again.
    if (IsOfNameService(error))
        return HostKind::kNoNameService;
    const int ipv6Error = FindAddress(host, AF_INET6, found);
    return ipv6Error == 0               ? HostKind::kIpv6
           : IsOfNameService(ipv6Error) ? HostKind::kNoNameService
                                        : HostKind::kUnknown;
}

std::string SnmpRequest(const char* oid, uint32_t requestId, bool isForNext, const char* community) {
    SnmpVarBind object = {};
    object.value.asnType = ASN_NULL;
    if (!ClientStrToOid(oid, &object.name))
        return {};
    BerBuffer message = SnmpBuildRequest(isForNext ? SNMP_PDU_GETNEXT : SNMP_PDU_GET,
                                         community != nullptr ? community : kCommunity, requestId,
                                         SnmpVarBindList{&object, 1});
    const std::string datagram(reinterpret_cast<const char*>(message.octets), message.count);
    BerFree(message);
    ClientOidFree(&object.name);
    return datagram;
}

std::optional<SnmpReplyText> ReadSnmpReply(std::string_view datagram) {
    SnmpReply reply;
    SnmpResult result;
    SnmpReplyText answer = {};
    AsnInteger32 errorStatus = 0;
    if (!SnmpReadReply(reinterpret_cast<const uint8_t*>(datagram.data()), datagram.size(), reply)
        || !SnmpReadResult(reply, &errorStatus, nullptr, result))
        return std::nullopt;
    answer.requestId = static_cast<uint32_t>(reply.requestId);
    answer.errorStatus = errorStatus;
    if (result.valueType == ASN_OCTETSTRING)
        answer.text = PrinterText({reinterpret_cast<const char*>(result.value.at),
                                   static_cast<size_t>(result.value.end - result.value.at)});
    return answer;
}

ProbeEnd ProbeEndOf(int error) {
    return error == WSAETIMEDOUT ? ProbeEnd::kNoAnswer
           : IsRefusal(error)    ? ProbeEnd::kRefused
                                 : ProbeEnd::kNotSent;
}

ProbeAnswer ProbeRequest(uint32_t address, const std::string& request, uint32_t requestId, int maxSends) {
    const SocketsStart sockets;
    const ProbeSocket socket(address);
    ProbeAnswer answer = {ProbeEnd::kNotSent, {}, {}};
    for (int sends = 0; sends < maxSends && socket.isReady; ++sends) {
        if (send(socket.handle, request.data(), static_cast<int>(request.size()), 0) < 0)
            return {ProbeEndOf(WSAGetLastError()), {}, {}};
        answer = ReceiveAnswer(socket.handle, requestId);
        if (answer.end != ProbeEnd::kNoAnswer)
            break;
    }
    return answer;
}

ProbeAnswer ProbeObject(uint32_t address, const char* oid, int maxSends) {
    const uint32_t requestId = NextRequestId();
    return ProbeRequest(address, SnmpRequest(oid, requestId), requestId, maxSends);
}

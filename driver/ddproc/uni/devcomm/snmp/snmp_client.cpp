// The built-in SNMPv1 manager.
#include "devcomm/snmp/snmp_client.h"

#include "base/scope_guard.h"
#include "base/text.h"
#include "devcomm/snmp/snmp_errors.h"
#include "devcomm/snmp/snmp_message.h"
#include "devcomm/snmp/snmp_values.h"

#include <cstring>
#include <winsock2.h>

namespace {

constexpr WORD kSocketsVersion = 0x0101; // 1.1
constexpr u_short kAgentPort = 161;
constexpr uint32_t kLastIdAtOpen = 256; // the first request takes the next
constexpr int kMaxSends = 5;
constexpr int kMaxPolls = 10000; // after each send
constexpr int kMaxDatagrams = 5; // of one request
constexpr size_t kReceiveCapacity = 4096;

// A receive waits only after a datagram that was dropped. Without this limit a late answer to an earlier
// request could block the caller.
constexpr DWORD kReceiveLimit = 2000; // ms

struct SnmpClientSession {
    SOCKET socket;
    sockaddr_in agent;
    const char* community; // the caller's
    int32_t timeOut;       // ms, as given at open
    int32_t retries;       // as given at open
    uint32_t lastRequestId;
    uint8_t receiveBuffer[kReceiveCapacity];
};

SnmpClientSession& Record(SnmpSession session) {
    return *static_cast<SnmpClientSession*>(session);
}

bool Fail(DWORD error) {
    SetLastError(error);
    return false;
}

bool FailAsSockets() {
    return Fail(static_cast<DWORD>(WSAGetLastError()));
}

// Each successful WSAStartup is matched by a WSACleanup, also when a later step fails.
bool StartSockets() {
    WSADATA granted = {};
    const int result = WSAStartup(kSocketsVersion, &granted);
    if (result != 0)
        return Fail(static_cast<DWORD>(result));
    if (granted.wVersion == kSocketsVersion)
        return true;
    WSACleanup();
    return Fail(kSnmpWrongSocketsVersion);
}

bool FindAgent(const char* agent, in_addr& address) {
    address.s_addr = inet_addr(agent);
    if (address.s_addr != INADDR_NONE)
        return true;
    const hostent* host = gethostbyname(agent);
    if (host == nullptr || host->h_addr_list[0] == nullptr)
        return false;
    memcpy(&address, host->h_addr_list[0], sizeof(address));
    return true;
}

bool Connect(SnmpClientSession& session, const char* agent) {
    session.agent.sin_family = AF_INET;
    session.agent.sin_port = htons(kAgentPort);
    return FindAgent(agent, session.agent.sin_addr)
           && connect(session.socket, reinterpret_cast<const sockaddr*>(&session.agent),
                      sizeof(session.agent))
                  == 0
           && setsockopt(session.socket, SOL_SOCKET, SO_RCVTIMEO,
                         reinterpret_cast<const char*>(&kReceiveLimit), sizeof(kReceiveLimit))
                  == 0;
}

bool OpenSocket(SnmpClientSession& session, const char* agent) {
    session.socket = socket(AF_INET, SOCK_DGRAM, 0);
    if (session.socket == INVALID_SOCKET)
        return FailAsSockets();
    if (Connect(session, agent))
        return true;
    FailAsSockets();
    const KeepLastError keep;
    closesocket(session.socket);
    return false;
}

bool OpenSession(SnmpClientSession& session, const char* agent) {
    if (!StartSockets())
        return false;
    if (OpenSocket(session, agent))
        return true;
    const KeepLastError keep;
    WSACleanup();
    return false;
}

bool HasDatagram(SOCKET socket) {
    for (int poll = 0; poll < kMaxPolls; ++poll) {
        u_long octets = 0;
        if (ioctlsocket(socket, static_cast<long>(FIONREAD), &octets) == 0 && octets != 0)
            return true;
    }
    return false;
}

bool SendUntilAnswered(SOCKET socket, const BerBuffer& message) {
    const auto count = static_cast<int>(message.count);
    for (int sends = 0; sends < kMaxSends; ++sends) {
        if (send(socket, reinterpret_cast<const char*>(message.octets), count, 0) != count)
            return Fail(kSnmpTransferFailed);
        if (HasDatagram(socket))
            return true;
    }
    return Fail(kSnmpNoAnswer);
}

// Whether the community of the session begins with that of the reply. Its terminator counts as a character.
bool IsSameCommunity(const char* community, const BerReader& reply) {
    const auto length = static_cast<size_t>(reply.end - reply.at);
    return length <= TextLength(community) + 1 && memcmp(reply.at, community, length) == 0;
}

// Receives the reply to the last request of the session. Replies to earlier requests are dropped, read only
// as far as their request-id.
bool ReceiveReply(SnmpClientSession& session, AsnInteger32* errorStatus, AsnInteger32* errorIndex,
                  SnmpResult& result) {
    for (int datagrams = 0; datagrams < kMaxDatagrams; ++datagrams) {
        const int count = recv(session.socket, reinterpret_cast<char*>(session.receiveBuffer),
                               sizeof(session.receiveBuffer), 0);
        if (count < 0)
            return Fail(kSnmpTransferFailed);
        SnmpReply reply;
        if (!SnmpReadReply(session.receiveBuffer, static_cast<size_t>(count), reply))
            return Fail(kSnmpBadReply);
        if (!IsSameCommunity(session.community, reply.community))
            SetLastError(kSnmpOtherCommunity);
        if (static_cast<uint32_t>(reply.requestId) == session.lastRequestId)
            return SnmpReadResult(reply, errorStatus, errorIndex, result) || Fail(kSnmpBadReply);
    }
    return Fail(kSnmpOtherRequests);
}

} // namespace

SnmpSession WINAPI ClientOpen(const char* agent, const char* community, INT timeOut, INT retries) {
    auto* session = static_cast<SnmpClientSession*>(LocalAlloc(LPTR, sizeof(SnmpClientSession)));
    if (session == nullptr) {
        SetLastError(kSnmpNoMemory);
        return nullptr;
    }
    if (!OpenSession(*session, agent)) {
        const KeepLastError keep;
        LocalFree(session);
        return nullptr;
    }
    session->community = community;
    session->timeOut = timeOut;
    session->retries = retries;
    session->lastRequestId = kLastIdAtOpen;
    return session;
}

BOOL WINAPI ClientClose(SnmpSession session) {
    if (session != nullptr) {
        const KeepLastError keep; // of the last request
        closesocket(Record(session).socket);
        WSACleanup();
        LocalFree(session);
    }
    return TRUE;
}

INT WINAPI ClientRequest(SnmpSession session, BYTE requestType, SnmpVarBindList* list,
                         AsnInteger32* errorStatus, AsnInteger32* errorIndex) {
    SnmpClientSession& client = Record(session);
    ++client.lastRequestId;
    BerBuffer message = SnmpBuildRequest(requestType, client.community, client.lastRequestId, *list);
    SnmpResult result = {};
    const bool answered = message.octets != nullptr && SendUntilAnswered(client.socket, message)
                          && ReceiveReply(client, errorStatus, errorIndex, result)
                          && SnmpDecodeValue(result.valueType, result.value, list->list[0].value);
    const KeepLastError keep;
    BerFree(message);
    return answered ? 1 : 0;
}

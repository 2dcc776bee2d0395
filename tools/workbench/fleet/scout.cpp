// Keeps a window of requests on the way, each from a connected socket of its own, so that refusals are
// reported.
#include "workbench/fleet/scout.h"

#include "workbench/lib/module_parts.h"

#include <winsock2.h>

namespace {

constexpr size_t kMaxOnTheWay = 256;
constexpr int kScoutPoll = 50; // milliseconds until time-outs are looked at

// A request that is on the way.
struct ScoutRequest {
    size_t position;
    SOCKET handle;
    std::string datagram;
    uint32_t requestId;
    DWORD started;
    DWORD sent;
    int sends;
    int others;
};

bool Send(ScoutRequest& request) {
    request.sent = GetTickCount();
    ++request.sends;
    const auto size = static_cast<int>(request.datagram.size());
    return send(request.handle, request.datagram.data(), size, 0) == size;
}

SOCKET Connected(uint32_t address) {
    const SOCKET handle = socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in agent = {};
    agent.sin_family = AF_INET;
    agent.sin_port = htons(kSnmpPort);
    agent.sin_addr.s_addr = address;
    u_long isNonBlocking = 1;
    ioctlsocket(handle, static_cast<long>(FIONBIO), &isNonBlocking);
    // A failure shows when it sends.
    static_cast<void>(connect(handle, reinterpret_cast<const sockaddr*>(&agent), sizeof(agent)));
    return handle;
}

// The error that the system has noted for a socket, 0 for none. Some systems report a refusal only here.
int PendingError(SOCKET handle) {
    int error = 0;
    int size = sizeof(error);
    getsockopt(handle, SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error), &size);
    return error;
}

// Whether this ends the request, and how.
bool Receive(ScoutRequest& request, ProbeEnd& end) {
    char datagram[4096];
    const int size = recv(request.handle, datagram, sizeof(datagram), 0);
    if (size < 0) {
        const int error = WSAGetLastError();
        end = ProbeEndOf(error != WSAEWOULDBLOCK ? error : PendingError(request.handle));
        return error != WSAEWOULDBLOCK || end == ProbeEnd::kRefused;
    }
    const std::optional<SnmpReplyText> reply = ReadSnmpReply({datagram, static_cast<size_t>(size)});
    const bool isOther = reply && reply->requestId != request.requestId;
    end = !reply ? ProbeEnd::kMalformed : isOther ? ProbeEnd::kOtherRequests : ProbeEnd::kAnswered;
    return !isOther || ++request.others >= kMaxOtherAnswers;
}

// The same when it is time to send again or to give up.
bool Expire(ScoutRequest& request, int maxSends, ProbeEnd& end) {
    if (GetTickCount() - request.sent < kProbeWait)
        return false;
    end = request.others > 0 ? ProbeEnd::kOtherRequests : ProbeEnd::kNoAnswer;
    if (request.sends >= maxSends)
        return true;
    if (Send(request))
        return false;
    end = ProbeEndOf(WSAGetLastError());
    return true;
}

} // namespace

void Scout(const std::vector<uint32_t>& addresses, int maxSends, const std::atomic<bool>& isStopped,
           const std::function<void(size_t position, ProbeEnd end, uint32_t milliseconds)>& onEnd) {
    const SocketsStart sockets;
    std::vector<ScoutRequest> requests;
    const auto finish = [&](const ScoutRequest& request, ProbeEnd end) {
        closesocket(request.handle);
        onEnd(request.position, end, GetTickCount() - request.started);
    };
    size_t next = 0;
    while (!isStopped && (next < addresses.size() || !requests.empty())) {
        for (; next < addresses.size() && requests.size() < kMaxOnTheWay; ++next) {
            const uint32_t id = NextRequestId();
            ScoutRequest request = {
                next, Connected(addresses[next]), SnmpRequest(kAgentObject, id), id, GetTickCount(), 0, 0, 0};
            if (Send(request))
                requests.push_back(std::move(request));
            else
                finish(request, ProbeEndOf(WSAGetLastError()));
        }
        std::vector<WSAPOLLFD> polled;
        polled.reserve(requests.size());
        for (const ScoutRequest& request : requests)
            polled.push_back({request.handle, POLLIN, 0});
        if (!polled.empty())
            WSAPoll(polled.data(), static_cast<ULONG>(polled.size()), kScoutPoll);
        std::vector<ScoutRequest> onTheWay;
        for (size_t i = 0; i < requests.size(); ++i) {
            ProbeEnd end = ProbeEnd::kNoAnswer;
            if ((polled[i].revents != 0 && Receive(requests[i], end)) || Expire(requests[i], maxSends, end))
                finish(requests[i], end);
            else
                onTheWay.push_back(std::move(requests[i]));
        }
        requests = std::move(onTheWay);
    }
    for (const ScoutRequest& request : requests)
        closesocket(request.handle);
}

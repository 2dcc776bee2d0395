// Sends the requests of a diagnosis, and matches what arrives.
#include "workbench/diagnosis/exchange.h"

#include "workbench/lib/module_parts.h"
#include "workbench/lib/stopwatch.h"

#include <algorithm>
#include <winsock2.h>

namespace {

// More than an agent can have fallen behind.
constexpr uint32_t kIdDistance = 4096;
constexpr uint32_t kIdMask = 0x0FFFFFFF;

constexpr double kWaits[] = {700, 700, 2600}; // milliseconds, after each round of requests

// Between two requests, unless the answer comes earlier.
constexpr double kSpacing = 20;
constexpr int kDamagedToSettle = 2;
constexpr size_t kLargestDatagram = 65536;
constexpr size_t kMaxArrivals = 100000; // more are dropped
constexpr double kSlice = 250;          // of a wait, then the progress is shown

// The message is built as SNMPv1; its version is the contents of its first element.
std::string RequestFor(const AskedObject& question, uint32_t requestId) {
    std::string message = SnmpRequest(OidText(question.object).c_str(), requestId, question.isForNext,
                                      question.access.community.c_str());
    const size_t header = static_cast<uint8_t>(message[1]) < 0x80 ? 2 : 2 + (message[1] & 0x7F);
    message[header + 2] = static_cast<char>(question.access.version);
    return message;
}

} // namespace

bool Arrival::IsOtherMessage() const {
    return message.damage == Damage::kNone && message.pduType != SNMP_PDU_RESPONSE;
}

Exchange::Exchange(uint32_t agentAddress, double limit, std::function<void(const char* stage)> showProgress)
    : handle(socket(AF_INET, SOCK_DGRAM, 0)), address(agentAddress),
      firstId(GetTickCount() * kIdDistance & kIdMask), start(CounterNow()), end(limit),
      progress(std::move(showProgress)) {}

Exchange::~Exchange() {
    closesocket(handle);
}

void Exchange::Send(size_t question) {
    const uint32_t requestId = firstId + static_cast<uint32_t>(requests.size()) * kIdDistance;
    const std::string message = RequestFor(questions[question], requestId);
    sockaddr_in to = {};
    to.sin_family = AF_INET;
    to.sin_port = htons(kSnmpPort);
    to.sin_addr.s_addr = address;
    requests.push_back({question, requestId, Now()});
    isSent = sendto(handle, message.data(), static_cast<int>(message.size()), 0,
                    reinterpret_cast<const sockaddr*>(&to), sizeof(to))
                 >= 0
             || isSent;
}

// Takes one datagram; false when none arrives until then. Some systems report here that a datagram was
// refused.
bool Exchange::Receive(double until) {
    const double left = std::min(until, end) - Now();
    if (left <= 0)
        return false;
    timeval limit = {static_cast<long>(left / 1000), static_cast<long>(left * 1000) % 1000000};
    fd_set ready;
    FD_ZERO(&ready);
    FD_SET(handle, &ready);
    if (select(0, &ready, nullptr, nullptr, &limit) <= 0)
        return false;
    char datagram[kLargestDatagram];
    sockaddr_in from = {};
    int fromSize = sizeof(from);
    const int size =
        recvfrom(handle, datagram, sizeof(datagram), 0, reinterpret_cast<sockaddr*>(&from), &fromSize);
    if (size < 0 || arrivals.size() == kMaxArrivals)
        return true;
    Arrival arrival = {Now(), from.sin_addr.s_addr, ntohs(from.sin_port),
                       ReadSnmpMessage({datagram, static_cast<size_t>(size)})};
    Match(arrival);
    arrivals.push_back(std::move(arrival));
    return true;
}

void Exchange::Match(Arrival& arrival) {
    if (arrival.IsOtherMessage())
        return;
    const SnmpMessage& message = arrival.message;
    const auto asked = std::find_if(requests.begin(), requests.end(), [&](const SentRequest& request) {
        return message.hasRequestId && request.requestId == message.requestId;
    });
    if (asked != requests.end())
        arrival.request = static_cast<size_t>(asked - requests.begin());
    else if (!message.hasRequestId && !requests.empty())
        arrival.request = requests.size() - 1;
    if (arrival.request == Arrival::kNone)
        return;
    Outcome& outcome = outcomes[requests[arrival.request].question];
    if (message.damage != Damage::kNone)
        ++outcome.damaged;
    else if (outcome.answer == Arrival::kNone)
        outcome.answer = arrivals.size();
}

double Exchange::Now() const {
    return MillisecondsSince(start);
}

bool Exchange::IsSettled(size_t question) const {
    return outcomes[question].answer != Arrival::kNone || outcomes[question].damaged >= kDamagedToSettle;
}

bool Exchange::AreSettled(size_t first, size_t last) const {
    for (; first < last; ++first)
        if (!IsSettled(first))
            return false;
    return true;
}

void Exchange::SendMissing(size_t first, size_t last) {
    for (; first < last && Now() < end; ++first) {
        if (IsSettled(first))
            continue;
        Send(first);
        const double until = requests.back().at + kSpacing;
        while (AnswerTo(first) == nullptr && Receive(until))
            continue;
    }
}

size_t Exchange::Ask(const std::vector<AskedObject>& asked) {
    const size_t first = questions.size();
    questions.insert(questions.end(), asked.begin(), asked.end());
    outcomes.resize(questions.size());
    for (const double wait : kWaits) {
        SendMissing(first, questions.size());
        if (!isSent)
            break;
        const double until = std::min(Now() + wait, end);
        while (!AreSettled(first, questions.size()) && Now() < until) {
            progress(stage);
            Receive(std::min(until, Now() + kSlice));
        }
    }
    listenedUntil = Now();
    return first;
}

const Arrival* Exchange::AskOne(const AskedObject& question) {
    return AnswerTo(Ask({question}));
}

void Exchange::Listen(double milliseconds) {
    const double until = std::min(Now() + milliseconds, end);
    while (Now() < until)
        Receive(until);
    listenedUntil = Now();
}

const Arrival* Exchange::AnswerTo(size_t question) const {
    const size_t answer = outcomes[question].answer;
    return answer != Arrival::kNone ? &arrivals[answer] : nullptr;
}

double Exchange::TimeOf(const Arrival& answer) const {
    return answer.at - requests[answer.request].at;
}

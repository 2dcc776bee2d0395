// The requests of a diagnosis and everything that comes back. One unconnected socket sends them all, so that
// answers from other ports and addresses arrive, too. Request-ids are far apart, so that answers to requests
// that were not made are recognised. Times are milliseconds since the start of the exchange.
#ifndef WORKBENCH_DIAGNOSIS_EXCHANGE_H
#define WORKBENCH_DIAGNOSIS_EXCHANGE_H

#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/snmp_text.h"

#include <functional>
#include <vector>

// How an agent is addressed.
struct Access {
    int32_t version; // as in messages: 0 is SNMPv1
    std::string community;
};

// One object to be requested, until it is answered or has been requested often enough.
struct AskedObject {
    Access access;
    ObjectId object;
    bool isForNext = false;
};

struct SentRequest {
    size_t question; // which one, in the order in which they were asked
    uint32_t requestId;
    double at;
};

struct Arrival {
    double at;
    uint32_t address; // of the sender, in network order
    uint16_t port;
    SnmpMessage message;
    static constexpr size_t kNone = SIZE_MAX;
    size_t request = kNone; // the request with this request-id; of a damaged datagram without one, the last
    bool IsOtherMessage() const; // intact, but no response; belongs to no request
};

class Exchange {
public:
    // The address is in network order. Nothing is sent or awaited once `limit` milliseconds have passed.
    // `showProgress` is called with the stage while answers are awaited.
    Exchange(uint32_t agentAddress, double limit, std::function<void(const char* stage)> showProgress);
    ~Exchange();
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    void SetStage(const char* name) { stage = name; }

    // Asks the questions in order, and again those that are not settled: by an answer, or by two damaged
    // ones. Ends when all are, when nothing can be sent, or after the waits and 60 milliseconds for each
    // question. Returns the number of the first of them.
    size_t Ask(const std::vector<AskedObject>& asked);
    // The same for one question; its answer, or null.
    const Arrival* AskOne(const AskedObject& question);

    // Takes what arrives within this time.
    void Listen(double milliseconds);

    // The first intact answer to a question, from whatever source; null: none.
    const Arrival* AnswerTo(size_t question) const;
    // How long the answer took.
    double TimeOf(const Arrival& answer) const;

    bool IsSent() const { return isSent; } // false: there is no way to the address
    double Now() const;
    double ListenedUntil() const { return listenedUntil; } // what arrives later is not noticed
    const std::vector<AskedObject>& Questions() const { return questions; }
    const std::vector<SentRequest>& Requests() const { return requests; }
    const std::vector<Arrival>& Arrivals() const { return arrivals; }

private:
    struct Outcome {
        size_t answer = SIZE_MAX; // the first intact arrival
        int damaged = 0;          // arrivals
    };

    void Send(size_t question);
    void SendMissing(size_t first, size_t last);
    bool Receive(double until);
    void Match(Arrival& arrival);
    bool IsSettled(size_t question) const;
    bool AreSettled(size_t first, size_t last) const;

    const SocketsStart sockets;
    const uintptr_t handle; // of the socket
    const uint32_t address;
    const uint32_t firstId;
    const int64_t start;
    const double end; // of the exchange
    const std::function<void(const char* stage)> progress;
    const char* stage = "";
    bool isSent = false;
    double listenedUntil = 0;
    std::vector<AskedObject> questions;
    std::vector<Outcome> outcomes; // of the questions
    std::vector<SentRequest> requests;
    std::vector<Arrival> arrivals;
};

#endif

// The loop that waits for datagrams and control lines. Answers that a fault delays wait in a queue; all
// others are sent at once.
#include "simprinter/server.h"

#include "simprinter/control_input.h"
#include "simprinter/udp_socket.h"

#include <algorithm>
#include <chrono>
#include <deque>
#include <iostream>
#include <stdexcept>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

constexpr size_t kMaxWaiting = 10000; // delayed datagrams; more are dropped, as in a real queue

struct Waiting {
    Datagram datagram;
    size_t printer;
    SocketAddress to;
};
using WaitingQueue = std::multimap<Clock::time_point, Waiting>;
using SocketList = std::deque<PrinterSockets>; // which can't be moved

void SendDue(SocketList& sockets, WaitingQueue& queue) {
    for (; !queue.empty() && queue.begin()->first <= Clock::now(); queue.erase(queue.begin())) {
        const Waiting& next = queue.begin()->second;
        try {
            sockets[next.printer].For(next.datagram.source).Send(next.datagram.bytes, next.to);
        } catch (const std::runtime_error& fault) {
            std::cerr << "simprinter: an answer from another source is lost: " << fault.what() << std::endl;
        }
    }
}

// The lines of the standard input.
struct ControlLines {
    bool isOpen = OpenControlInput();
    std::string text; // without a line end so far

    // Reads what there is; call when the input is readable.
    void Read(const std::function<void(const std::string& line)>& use) {
        constexpr size_t kLongestLine = 4096;
        text += ReadControlInput(isOpen);
        for (size_t end; (end = text.find('\n')) != std::string::npos; text.erase(0, end + 1))
            use(text.substr(0, end));
        if (text.size() > kLongestLine) // no line; its rest is refused as one
            text.resize(kLongestLine);
        if (!isOpen && !text.empty())
            use(std::exchange(text, ""));
    }
};

} // namespace

void Serve(const std::vector<Endpoint>& endpoints, bool logs, const ServerHandlers& handlers) {
    ControlLines input;
    SocketList sockets;
    std::vector<pollfd> entries; // those of the printers, then the standard input while it is open
    std::vector<Endpoint> opened;
    std::string problems;
    for (const Endpoint& endpoint : endpoints) {
        try {
            const UdpSocket& main = sockets.emplace_back(endpoint).main;
            entries.push_back({main.handle, POLLIN, 0});
            opened.push_back(EndpointOf(main.Name()));
        } catch (const std::runtime_error& error) {
            problems += (problems.empty() ? "" : "\n") + endpoint.place + error.what();
        }
    }
    if (!problems.empty())
        throw std::runtime_error(problems);
    CatchStopSignals();
    handlers.ready(opened);

    WaitingQueue queue;
    Bytes datagram;
    const auto tickTime = std::chrono::milliseconds(handlers.tickMs);
    Clock::time_point nextTick = Clock::now() + tickTime;
    while (!IsStopRequested()) {
        std::optional<Clock::time_point> until;
        if (handlers.tickMs != 0)
            until = nextTick;
        if (!queue.empty())
            until = std::min(until.value_or(queue.begin()->first), queue.begin()->first);
        entries.resize(sockets.size());
        if (input.isOpen)
            entries.push_back(ControlEntry());
        WaitForEntries(entries, until);
        if (handlers.tickMs != 0 && Clock::now() >= nextTick) {
            nextTick = Clock::now() + tickTime;
            handlers.tick();
        }
        if (entries.size() > sockets.size() && entries.back().revents != 0)
            input.Read(handlers.control);
        for (size_t i = 0; i < sockets.size(); ++i) {
            SocketAddress from;
            if (entries[i].revents == 0 || !sockets[i].main.Receive(datagram, from))
                continue;
            Outcome outcome = handlers.answer(i, datagram);
            if (logs) {
                std::cerr << (sockets.size() > 1 ? EndpointText(opened[i]) + " <- " : "")
                          << EndpointText(EndpointOf(from)) << ' ' << outcome.log << std::endl;
            }
            for (Datagram& answer : outcome.datagrams) {
                const auto due = Clock::now() + std::chrono::milliseconds(answer.delayMs);
                if (queue.size() < kMaxWaiting)
                    queue.emplace(due, Waiting{std::move(answer), i, from});
            }
        }
        SendDue(sockets, queue);
    }
}

// The loop that waits for datagrams and control lines. Answers that a fault delays wait in a queue; all
// others are sent at once.
#include "simprinter/server.h"

#include "simprinter/udp_socket.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <deque>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

constexpr size_t kMaxWaiting = 10000; // delayed datagrams; more are dropped, as in a real queue

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

// Waiting does not deliver a signal while there is always something to read: it stays pending.
bool IsStopRequested() {
    sigset_t pending;
    sigpending(&pending);
    return stopRequested != 0 || sigismember(&pending, SIGTERM) == 1 || sigismember(&pending, SIGINT) == 1;
}

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

// The lines of the standard input. A job in the background must not read its terminal, and has no lines. A
// program may also start without the descriptor, which a socket then gets.
struct ControlInput {
    bool isOpen = fcntl(STDIN_FILENO, F_GETFD) >= 0
                  && (isatty(STDIN_FILENO) == 0 || tcgetpgrp(STDIN_FILENO) == getpgrp());
    std::string text; // without a line end so far

    // Reads what there is; call when the input is readable.
    void Read(const std::function<void(const std::string& line)>& use) {
        constexpr size_t kLongestLine = 4096;
        char part[kLongestLine];
        const ssize_t size = read(STDIN_FILENO, part, sizeof part);
        isOpen = size > 0;
        text.append(part, static_cast<size_t>(std::max<ssize_t>(size, 0)));
        for (size_t end; (end = text.find('\n')) != std::string::npos; text.erase(0, end + 1))
            use(text.substr(0, end));
        if (text.size() > kLongestLine) // no line; its rest is refused as one
            text.resize(kLongestLine);
        if (!isOpen && !text.empty())
            use(std::exchange(text, ""));
    }
};

// Waits for input, until the given time or a signal.
void Wait(std::vector<pollfd>& entries, const std::optional<Clock::time_point>& until, const sigset_t& mask) {
    timespec limit = {};
    if (until) {
        const auto left = std::max<Clock::duration>(*until - Clock::now(), Clock::duration::zero());
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
        limit.tv_sec = seconds.count();
        limit.tv_nsec = std::chrono::nanoseconds(left - seconds).count();
    }
    if (ppoll(entries.data(), entries.size(), until ? &limit : nullptr, &mask) <= 0) {
        for (pollfd& entry : entries)
            entry.revents = 0;
    }
}

} // namespace

void Serve(const std::vector<Endpoint>& endpoints, bool logs, const ServerHandlers& handlers) {
    ControlInput input;
    SocketList sockets;
    std::vector<pollfd> entries; // those of the printers, then the standard input
    std::vector<Endpoint> opened;
    std::string problems;
    for (const Endpoint& endpoint : endpoints) {
        try {
            const UdpSocket& main = sockets.emplace_back(endpoint).main;
            entries.push_back({main.descriptor, POLLIN, 0});
            opened.push_back(EndpointOf(main.Name()));
        } catch (const std::runtime_error& error) {
            problems += (problems.empty() ? "" : "\n") + endpoint.place + error.what();
        }
    }
    if (!problems.empty())
        throw std::runtime_error(problems);
    entries.push_back({STDIN_FILENO, POLLIN, 0});
    std::signal(SIGTTIN, SIG_IGN); // reading the terminal from the background is then an error
    const sigset_t mask = CatchStopSignals();
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
        entries.back().fd = input.isOpen ? STDIN_FILENO : -1;
        Wait(entries, until, mask);
        if (handlers.tickMs != 0 && Clock::now() >= nextTick) {
            nextTick = Clock::now() + tickTime;
            handlers.tick();
        }
        if (entries.back().revents != 0)
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

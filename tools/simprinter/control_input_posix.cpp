// Control lines and stop signals of POSIX.
#include "simprinter/control_input.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t stopRequested = 0;
sigset_t maskOfWaits; // blocks no stop signal, as all else does

void TakeStopSignal(int) {
    stopRequested = 1;
}

} // namespace

// A job in the background must not read its terminal, and has no lines. A program may also start without the
// descriptor, which a socket then gets.
bool OpenControlInput() {
    return fcntl(STDIN_FILENO, F_GETFD) >= 0
           && (isatty(STDIN_FILENO) == 0 || tcgetpgrp(STDIN_FILENO) == getpgrp());
}

pollfd ControlEntry() {
    return {STDIN_FILENO, POLLIN, 0};
}

std::string ReadControlInput(bool& isOpen) {
    char part[4096];
    const ssize_t size = read(STDIN_FILENO, part, sizeof part);
    isOpen = size > 0;
    return {part, static_cast<size_t>(std::max<ssize_t>(size, 0))};
}

void CatchStopSignals() {
    std::signal(SIGTTIN, SIG_IGN); // reading the terminal from the background is then an error
    struct sigaction action = {};
    action.sa_handler = TakeStopSignal;
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    for (const int signal : {SIGTERM, SIGINT}) {
        sigaddset(&stopSignals, signal);
        sigaction(signal, &action, nullptr);
    }
    sigprocmask(SIG_BLOCK, &stopSignals, &maskOfWaits);
    sigdelset(&maskOfWaits, SIGTERM);
    sigdelset(&maskOfWaits, SIGINT);
}

void RequestStop() {
    stopRequested = 1;
}

// Waiting does not deliver a signal while there is always something to read: it stays pending.
bool IsStopRequested() {
    sigset_t pending;
    sigpending(&pending);
    return stopRequested != 0 || sigismember(&pending, SIGTERM) == 1 || sigismember(&pending, SIGINT) == 1;
}

void WaitForEntries(std::vector<pollfd>& entries,
                    const std::optional<std::chrono::steady_clock::time_point>& until) {
    using Clock = std::chrono::steady_clock;
    timespec limit = {};
    if (until) {
        const auto left = std::max<Clock::duration>(*until - Clock::now(), Clock::duration::zero());
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
        limit.tv_sec = seconds.count();
        limit.tv_nsec = std::chrono::nanoseconds(left - seconds).count();
    }
    if (ppoll(entries.data(), entries.size(), until ? &limit : nullptr, &maskOfWaits) <= 0) {
        for (pollfd& entry : entries)
            entry.revents = 0;
    }
}

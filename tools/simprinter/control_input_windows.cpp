// Control lines and stop requests of Windows, where only sockets can be waited for together: a thread reads
// the standard input, and wakes the wait by a datagram to a socket of its own.
#include "simprinter/control_input.h"

#include "common/wide_text.h"
#include "simprinter/udp_socket.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>
#include <utility>

namespace {

std::atomic<bool> stopRequested{false};

// Lives until the process ends, as the thread may be waiting for input until then.
struct StandardInput {
    UdpSocket wake{ResolveEndpoint({"127.0.0.1", 0})};
    std::mutex mutex;
    std::string text; // that was read, but not taken yet
    bool isAtEnd = false;
};
StandardInput* standardInput = nullptr;

void WakeServer() {
    if (standardInput)
        standardInput->wake.Send({0}, standardInput->wake.Name());
}

// Waits for input. Nothing at the end.
std::string ReadPart(HANDLE handle) {
    DWORD size = 0, mode;
    if (GetConsoleMode(handle, &mode)) {
        wchar_t wide[2048];
        constexpr wchar_t kEnd = 26; // Ctrl+Z
        const bool isRead =
            ReadConsoleW(handle, wide, static_cast<DWORD>(std::size(wide)), &size, nullptr) != 0;
        return isRead && wide[0] != kEnd ? Utf8FromWide({wide, size}) : "";
    }
    char part[4096];
    return ReadFile(handle, part, sizeof part, &size, nullptr) ? std::string(part, size) : "";
}

void ReadAll(HANDLE handle) {
    for (bool isAtEnd = false; !isAtEnd;) {
        const std::string part = ReadPart(handle);
        isAtEnd = part.empty();
        const std::lock_guard lock(standardInput->mutex);
        standardInput->text += part;
        standardInput->isAtEnd = isAtEnd;
        WakeServer();
    }
}

BOOL WINAPI TakeConsoleEvent(DWORD event) {
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        return FALSE;
    RequestStop();
    return TRUE;
}

} // namespace

bool OpenControlInput() {
    HANDLE const handle = GetStdHandle(STD_INPUT_HANDLE);
    if (handle == nullptr || handle == INVALID_HANDLE_VALUE)
        return false;
    standardInput = new StandardInput;
    std::thread(ReadAll, handle).detach(); // the only one of the program
    return true;
}

pollfd ControlEntry() {
    return {standardInput ? standardInput->wake.handle : kNoSocket, POLLIN, 0};
}

std::string ReadControlInput(bool& isOpen) {
    Bytes datagram;
    SocketAddress from;
    while (standardInput->wake.Receive(datagram, from)) {}
    const std::lock_guard lock(standardInput->mutex);
    isOpen = !standardInput->isAtEnd;
    return std::exchange(standardInput->text, "");
}

void CatchStopSignals() {
    SetConsoleCtrlHandler(TakeConsoleEvent, TRUE);
}

void RequestStop() {
    stopRequested = true;
    WakeServer();
}

bool IsStopRequested() {
    return stopRequested;
}

void WaitForEntries(std::vector<pollfd>& entries,
                    const std::optional<std::chrono::steady_clock::time_point>& until) {
    constexpr std::chrono::milliseconds kLongest{1000}; // a stop request without an input to wake by
    auto wait = kLongest;
    if (until) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(*until - std::chrono::steady_clock::now());
        wait = std::clamp(left, std::chrono::milliseconds::zero(), kLongest);
    }
    if (Poll(entries.data(), entries.size(), static_cast<int>(wait.count())) <= 0) {
        for (pollfd& entry : entries)
            entry.revents = 0;
    }
}

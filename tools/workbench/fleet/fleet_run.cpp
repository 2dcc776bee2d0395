// Distributes the printers of a list over the threads and collects their states.
#include "workbench/fleet/fleet_run.h"

#include "workbench/fleet/scout.h"
#include "workbench/lib/host_address.h"
#include "workbench/lib/running_jobs.h"
#include "workbench/lib/traffic_trace.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <winsock2.h>

namespace {

constexpr size_t kMaxLookups = 16;     // at once
constexpr uint32_t kSlowLookup = 5000; // milliseconds
constexpr int kMaxSlowLookups = 16;    // in succession, then the name service is given up

std::atomic<int> interrupts{0};

// The second key ends the process here, and not in the system's handler, whose exit code differs. ExitProcess
// would wait for locks that threads inside the name service may hold.
BOOL WINAPI OnConsoleKey(DWORD key) {
    if (key != CTRL_C_EVENT && key != CTRL_BREAK_EVENT)
        return FALSE;
    if (!NoteInterrupt())
        TerminateProcess(GetCurrentProcess(), kExitFailed);
    return TRUE;
}

} // namespace

struct FleetRun::Work {
    // A printer to be asked through the module.
    struct Task {
        size_t printer;
        std::string address;   // IPv4, at which it answers
        uint32_t milliseconds; // until it has answered
    };

    FamilyFiles files;
    std::optional<TrafficTrace> trace; // of all threads
    std::vector<ListedPrinter> printers;
    bool isScan;
    std::atomic<bool> isStopped{false};
    std::vector<size_t> names; // positions of the printers that are listed by name
    std::atomic<size_t> nextName{0};
    std::atomic<int> slowLookups{0};

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Task> tasks;
    std::vector<std::optional<PrinterState>> states;
    FleetProgress progress = {};

    void Add(const Task& task) {
        const std::lock_guard<std::mutex> lock(mutex);
        tasks.push_back(task);
        changed.notify_all();
    }

    void Finish(size_t printer, PrinterState state) {
        const std::lock_guard<std::mutex> lock(mutex);
        ++progress.done;
        const bool isUnused = isScan && !state.isPresent;
        progress.needAttention += state.attention != Attention::kFine && !isUnused ? 1 : 0;
        states[printer] = std::move(state);
        changed.notify_all();
    }

    bool IsDone() const { return progress.done == printers.size(); } // under the mutex

    // The next printer; none when there is nothing more to do.
    std::optional<Task> Next() {
        std::unique_lock<std::mutex> lock(mutex);
        changed.wait(lock, [&] { return isStopped || IsDone() || !tasks.empty(); });
        if (isStopped || tasks.empty())
            return std::nullopt;
        const Task task = tasks.front();
        tasks.pop_front();
        return task;
    }

    void AskPrinters() {
        while (const std::optional<Task> task = Next()) {
            PrinterState state = CheckListed(files, printers[task->printer], task->address, *trace);
            state.milliseconds += task->milliseconds;
            Finish(task->printer, std::move(state));
        }
    }

    // Whether the name service is silent: it may take 10 seconds for each name.
    bool IsGivenUp() const { return slowLookups >= kMaxSlowLookups; }

    // A name that was found shows that the service answers.
    void NoteLookup(const PrinterState& state) {
        const bool isNotFound =
            state.outcome == Outcome::kUnknownHost || state.outcome == Outcome::kNoNameService;
        if (!isNotFound)
            slowLookups = 0;
        else if (state.milliseconds > kSlowLookup)
            ++slowLookups;
    }

    // Looks up host names, each once, on threads that ask no printer.
    void LookUpNames() {
        for (size_t at = nextName++; at < names.size() && !isStopped; at = nextName++) {
            const size_t printer = names[at];
            std::string address;
            PrinterState state = IsGivenUp() ? FailedState(printers[printer], Outcome::kNoNameService)
                                             : FindListed(files, printers[printer], address);
            NoteLookup(state);
            if (address.empty())
                Finish(printer, std::move(state));
            else
                Add({printer, address, state.milliseconds});
        }
    }

    // Tries all addresses at once.
    void FindThoseThatAnswer() {
        std::vector<uint32_t> addresses;
        std::vector<size_t> positions;
        for (size_t i = 0; i < printers.size(); ++i) {
            const std::optional<uint32_t> address = ParseAddress(printers[i].address);
            if (!address)
                continue;
            addresses.push_back(htonl(*address));
            positions.push_back(i);
        }
        // Most addresses of a range are silent; those of a list are expected to answer.
        Scout(addresses, isScan ? kProbeSends : kPatientSends, isStopped,
              [&](size_t position, ProbeEnd end, uint32_t milliseconds) {
                  const size_t printer = positions[position];
                  if (end == ProbeEnd::kAnswered)
                      return Add({printer, printers[printer].address, milliseconds});
                  PrinterState state = UnreachedState(files, printers[printer], end);
                  state.milliseconds = milliseconds;
                  Finish(printer, std::move(state));
              });
    }

    void Stop() {
        const std::lock_guard<std::mutex> lock(mutex);
        isStopped = true;
        changed.notify_all();
    }
};

FleetRun::FleetRun(const FamilyFiles& family, const PrinterList& list, int threads)
    : work(std::make_shared<Work>()) {
    work->files = ModuleOf(family);
    work->trace.emplace(work->files.module.get());
    work->printers = list.printers;
    work->isScan = list.isScan;
    work->states.resize(list.printers.size());
    for (size_t i = 0; i < list.printers.size(); ++i)
        if (!ParseAddress(list.printers[i].address))
            work->names.push_back(i);
    const auto start = [this](void (Work::*step)()) {
        StartJob([shared = work, step] { ((*shared).*step)(); });
    };
    start(&Work::FindThoseThatAnswer);
    for (size_t i = 0; i < std::min(work->names.size(), kMaxLookups); ++i)
        start(&Work::LookUpNames);
    const int needed = std::min(threads, static_cast<int>(list.printers.size()));
    for (int i = 0; i < needed; ++i)
        start(&Work::AskPrinters);
}

FleetRun::~FleetRun() {
    work->Stop();
}

bool FleetRun::WaitFor(uint32_t milliseconds) const {
    std::unique_lock<std::mutex> lock(work->mutex);
    return work->changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                  [&] { return work->IsDone(); });
}

FleetProgress FleetRun::Progress() const {
    const std::lock_guard<std::mutex> lock(work->mutex);
    return work->progress;
}

std::vector<PrinterState> FleetRun::States() const {
    const std::lock_guard<std::mutex> lock(work->mutex);
    std::vector<PrinterState> states;
    for (const std::optional<PrinterState>& state : work->states)
        if (state)
            states.push_back(*state);
    return states;
}

InterruptWatch::InterruptWatch() {
    interrupts = 0;
    SetConsoleCtrlHandler(OnConsoleKey, TRUE);
}

InterruptWatch::~InterruptWatch() {
    SetConsoleCtrlHandler(OnConsoleKey, FALSE);
}

bool InterruptWatch::IsInterrupted() {
    return interrupts > 0;
}

bool NoteInterrupt() {
    return ++interrupts == 1;
}

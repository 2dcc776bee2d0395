// Asks all printers of a list: one thread finds out which of them answer, a bounded number of threads asks
// those through the module, each with sessions of its own.
#ifndef WORKBENCH_FLEET_FLEET_RUN_H
#define WORKBENCH_FLEET_FLEET_RUN_H

#include "workbench/fleet/printer_check.h"

#include <memory>

struct FleetProgress {
    size_t done;
    size_t needAttention; // of those
};

class FleetRun {
public:
    // Starts asking. The threads load the module for themselves: neither the files nor the run need outlive
    // them.
    FleetRun(const FamilyFiles& family, const PrinterList& list, int threads);
    // Does not wait for the threads: each ends after its current query.
    ~FleetRun();
    FleetRun(const FleetRun&) = delete;
    FleetRun& operator=(const FleetRun&) = delete;

    // Waits at most so long. Whether all printers have been asked.
    bool WaitFor(uint32_t milliseconds) const;

    FleetProgress Progress() const;

    // What has come so far, in the order of the list. Those that were not asked, or not completely, are
    // missing.
    std::vector<PrinterState> States() const;

private:
    struct Work;
    std::shared_ptr<Work> work; // shared with the threads
};

// Ctrl+C and Ctrl+Break, as long as this exists. The first one is noted, the second ends the process with
// kExitFailed.
class InterruptWatch {
public:
    InterruptWatch();
    ~InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;

    static bool IsInterrupted();
};

// Notes such a key. Whether it is the first.
bool NoteInterrupt();

#endif

// Counts the threads that query printers, since the program may end while some still wait for an answer.
#ifndef WORKBENCH_LIB_RUNNING_JOBS_H
#define WORKBENCH_LIB_RUNNING_JOBS_H

#include <atomic>

// Counts as a running job as long as it, or a copy, exists. A thread keeps one until its end.
struct RunningJob {
    RunningJob() { ++count; }
    RunningJob(const RunningJob& /*other*/) { ++count; }
    ~RunningJob() { --count; }
    RunningJob& operator=(const RunningJob&) = default;

    static inline std::atomic<int> count{0};
};

// Whether the thread of any job, also of a cancelled one, still runs.
bool IsAnyJobRunning();

// To be called last. Ends the process at once if a thread still waits for its printer; an unresponsive one
// can take minutes. Nothing is lost: settings and output are written, without buffers in the process, and the
// system takes back memory and sockets. Returning from main instead would run the exit code of the module and
// the runtime while the system has stopped the thread anywhere, perhaps with a lock that this code needs.
void EndProcessIfJobIsRunning(int exitCode);

#endif

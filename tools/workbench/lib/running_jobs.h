// Starts and counts the threads that query printers, since the program may end while some still wait for an
// answer.
#ifndef WORKBENCH_LIB_RUNNING_JOBS_H
#define WORKBENCH_LIB_RUNNING_JOBS_H

#include <functional>

// Runs work on a thread of its own that nobody waits for. It counts as running until the work and what it has
// captured are released. Throws std::runtime_error when the system has no more threads.
void StartJob(std::function<void()> work);

// Whether any job, also a cancelled one, still runs.
bool IsAnyJobRunning();

// To be called last. Ends the process at once if a thread still waits for its printer; an unresponsive one
// can take minutes. Nothing is lost: settings and output are written, without buffers in the process, and the
// system takes back memory and sockets. Returning from main instead would run the exit code of the module and
// the runtime while the system has stopped the thread anywhere, perhaps with a lock that this code needs.
void EndProcessIfJobIsRunning(int exitCode);

#endif

// Starts jobs on threads, and ends the process while some are running.
#include "workbench/lib/running_jobs.h"

#include <atomic>
#include <memory>
#include <process.h>
#include <stdexcept>
#include <windows.h>

namespace {

std::atomic<int> runningJobs{0};

unsigned WINAPI RunJob(void* parameter) {
    std::unique_ptr<std::function<void()>> work(static_cast<std::function<void()>*>(parameter));
    (*work)();
    work.reset();
    --runningJobs;
    return 0;
}

} // namespace

// Not by std::thread: when a thread of winpthreads 10 is detached while others start and end, two threads can
// get the same work.
void StartJob(std::function<void()> work) {
    auto passed = std::make_unique<std::function<void()>>(std::move(work));
    ++runningJobs;
    const uintptr_t thread = _beginthreadex(nullptr, 0, RunJob, passed.get(), 0, nullptr);
    if (thread == 0) {
        --runningJobs;
        throw std::runtime_error("the system has no more threads");
    }
    static_cast<void>(passed.release()); // now the thread's
    CloseHandle(reinterpret_cast<HANDLE>(thread));
}

bool IsAnyJobRunning() {
    return runningJobs != 0;
}

void EndProcessIfJobIsRunning(int exitCode) {
    if (IsAnyJobRunning())
        TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
}

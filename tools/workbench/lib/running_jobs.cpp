// Ends the process while jobs are running.
#include "workbench/lib/running_jobs.h"

#include <windows.h>

bool IsAnyJobRunning() {
    return RunningJob::count != 0;
}

void EndProcessIfJobIsRunning(int exitCode) {
    if (IsAnyJobRunning())
        TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
}

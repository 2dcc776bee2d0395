// The thread's last error across clean-up: what a caller is to see must survive the calls that release
// things.
#ifndef DEVCOMM_LAST_ERROR_H
#define DEVCOMM_LAST_ERROR_H

#include <windows.h>

// Puts the last error of its beginning back at the end of its scope.
struct KeepLastError {
    KeepLastError() = default;
    ~KeepLastError() { SetLastError(error); }
    KeepLastError(const KeepLastError&) = delete;
    KeepLastError& operator=(const KeepLastError&) = delete;

    const DWORD error = GetLastError();
};

#endif

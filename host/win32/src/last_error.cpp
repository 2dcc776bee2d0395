// The thread's last-error value.
#include <windows.h>

namespace {
thread_local DWORD lastError = 0;
}

DWORD WINAPI GetLastError() {
    return lastError;
}

void WINAPI SetLastError(DWORD error) {
    lastError = error;
}

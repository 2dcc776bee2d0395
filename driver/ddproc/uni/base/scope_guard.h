// Actions at the end of a scope, on every way out of it. Only these and types that own one resource have
// destructors in the module.
#ifndef BASE_SCOPE_GUARD_H
#define BASE_SCOPE_GUARD_H

#include <windows.h>

// Restores the last error: callers learn why something failed, not how it was released.
struct KeepLastError {
    KeepLastError() = default;
    ~KeepLastError() { SetLastError(error); }
    KeepLastError(const KeepLastError&) = delete;
    KeepLastError& operator=(const KeepLastError&) = delete;

    const DWORD error = GetLastError();
};

// `const ScopeGuard closePrinter{[printer] { ClosePrinter(printer); }};` releases a resource and keeps the
// last error.
template <typename Release>
struct ScopeGuard {
    ~ScopeGuard() {
        const KeepLastError keep;
        release();
    }

    Release release;
};
template <typename Release>
ScopeGuard(Release) -> ScopeGuard<Release>;

#endif

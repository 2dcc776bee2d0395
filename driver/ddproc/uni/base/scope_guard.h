// What a function does at the end of a scope, on every way out of it, for every subsystem. The only objects
// with a destructor in the module are these and those that own one resource in the same manner.
#ifndef BASE_SCOPE_GUARD_H
#define BASE_SCOPE_GUARD_H

#include <windows.h>

// Puts the last error of its beginning back: callers are told why something failed, not how it was tidied up.
struct KeepLastError {
    KeepLastError() = default;
    ~KeepLastError() { SetLastError(error); }
    KeepLastError(const KeepLastError&) = delete;
    KeepLastError& operator=(const KeepLastError&) = delete;

    const DWORD error = GetLastError();
};

// `const ScopeGuard closePrinter{[printer] { ClosePrinter(printer); }};` releases what has been opened, and
// keeps the last error.
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

// Where a test runs. Tests state what Windows documents. What wine does otherwise is an exception that a test marks
// with IsWine(); what a test must not do on a machine that is not its own is skipped there.
#ifndef SUPPORT_WINE_H
#define SUPPORT_WINE_H

#include <cstdlib>
#include <gtest/gtest.h>
#include <windows.h>

inline bool IsWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

// Whether the packed checks run this program: what ctest starts around a test is missing.
inline bool IsPacked() {
    return std::getenv("LUMORA_CHECKS") != nullptr;
}

#define SKIP_ON_WINDOWS(reason)                                                                                        \
    if (!IsWine())                                                                                                     \
    GTEST_SKIP() << (reason)

// For tests that put a print queue or a port monitor into the registry.
#define SKIP_WITHOUT_OWN_SPOOLER()                                                                                     \
    SKIP_ON_WINDOWS("adds a print queue, which needs an administrator and stays if the test crashes")

#endif

// Measures times with the system's performance counter.
#ifndef WORKBENCH_LIB_STOPWATCH_H
#define WORKBENCH_LIB_STOPWATCH_H

#include <cstdint>
#include <windows.h>

inline int64_t CounterNow() {
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    return now.QuadPart;
}

inline double MillisecondsSince(int64_t counter) {
    LARGE_INTEGER perSecond;
    QueryPerformanceFrequency(&perSecond);
    return static_cast<double>(CounterNow() - counter) * 1000 / static_cast<double>(perSecond.QuadPart);
}

#endif

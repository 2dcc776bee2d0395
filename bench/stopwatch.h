// Times of the benchmarks that run on Windows, as scripts/bench reads them.
#ifndef BENCH_STOPWATCH_H
#define BENCH_STOPWATCH_H

#include <cstdio>
#include <vector>
#include <windows.h>

// The duration of the work in nanoseconds.
template <typename Work>
double Measure(const Work& work) {
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    work();
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - start.QuadPart) * 1e9 / static_cast<double>(frequency.QuadPart);
}

// Prints the time of each round as one line: the name, then nanoseconds.
inline void PrintTimes(const char* name, const std::vector<double>& times) {
    printf("%s", name);
    for (const double time : times)
        printf(" %.0f", time);
    printf("\n");
}

#endif

// Times of the benchmarks that run on Windows.
#ifndef BENCH_STOPWATCH_H
#define BENCH_STOPWATCH_H

#include <algorithm>
#include <vector>
#include <windows.h>

// The duration of the work in microseconds.
template <typename Work>
double Measure(const Work& work) {
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    work();
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - start.QuadPart) * 1e6 / static_cast<double>(frequency.QuadPart);
}

inline double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

#endif

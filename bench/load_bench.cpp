// Loading and freeing the module under Windows, against a library that does nothing, in turn.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>
#include <windows.h>

namespace {

constexpr int kRounds = 500;

// Seconds of one load and free; negative when the library does not load.
double Measure(const std::filesystem::path& library) {
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    HMODULE module = LoadLibraryW(library.c_str());
    if (module == nullptr)
        return -1;
    FreeLibrary(module);
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - start.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + kRounds / 2, values.end());
    return values[kRounds / 2];
}

} // namespace

int wmain(int, wchar_t** arguments) {
    const std::filesystem::path folder = std::filesystem::absolute(arguments[0]).parent_path();
    LoadLibraryW(L"WINSPOOL.DRV"); // every host of a printer driver has the spooler's library
    std::vector<double> module;
    std::vector<double> empty;
    for (int i = 0; i < kRounds; ++i) {
        module.push_back(Measure(folder / "TELMAR_D.DLL"));
        empty.push_back(Measure(folder / "empty.dll"));
        if (module.back() < 0 || empty.back() < 0) {
            fprintf(stderr, "load_bench: TELMAR_D.DLL and empty.dll must lie beside this program\n");
            return 1;
        }
    }
    printf("%-50s %8.2f   (%.0f against %.0f us, medians of %d)\n",
           "load and free the module : an empty library", Median(module) / Median(empty),
           Median(module) * 1e6, Median(empty) * 1e6, kRounds);
    return 0;
}

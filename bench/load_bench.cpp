// Loads and frees the module and, in turn, a library that does nothing.
#include "bench/stopwatch.h"

#include <cstdio>
#include <filesystem>

namespace {

constexpr int kRounds = 500;

// Microseconds of one load and free; negative when the library does not load.
double MeasureLoad(const std::filesystem::path& library) {
    bool isLoaded = false;
    const double microseconds = Measure([&] {
        HMODULE module = LoadLibraryW(library.c_str());
        isLoaded = module != nullptr;
        if (isLoaded)
            FreeLibrary(module);
    });
    return isLoaded ? microseconds : -1;
}

} // namespace

int wmain(int, wchar_t** arguments) {
    const std::filesystem::path folder = std::filesystem::absolute(arguments[0]).parent_path();
    LoadLibraryW(L"WINSPOOL.DRV"); // every host of a printer driver has the spooler's library
    std::vector<double> module;
    std::vector<double> empty;
    for (int i = 0; i < kRounds; ++i) {
        module.push_back(MeasureLoad(folder / "TELMAR_D.DLL"));
        empty.push_back(MeasureLoad(folder / "empty.dll"));
        if (module.back() < 0 || empty.back() < 0) {
            fprintf(stderr, "load_bench: TELMAR_D.DLL and empty.dll must be in this program's folder\n");
            return 1;
        }
    }
    printf("%-50s %8.2f   (%.0f against %.0f us, medians of %d)\n",
           "load and free the module : an empty library", Median(module) / Median(empty), Median(module),
           Median(empty), kRounds);
    return 0;
}

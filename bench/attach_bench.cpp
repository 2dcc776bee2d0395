// Work per process attach: the shipped model's file opened, built into a device table and freed, against the
// least that any reader does (open, read into memory, close); and the same for files of ever more items.
#include "paramdata/device_table.h"
#include "paramdata/prm_file.h"
#include "synthetic_file.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool BuildAndFree(const char* path) {
    PrmFile* file = PrmOpen(path, 0);
    if (file == nullptr)
        return false;
    DeviceTable* table = BuildDeviceTable(*file);
    PrmClose(file);
    benchmark::DoNotOptimize(table);
    FreeDeviceTable(table);
    return true;
}

void Measure(benchmark::State& state, const char* path) {
    for ([[maybe_unused]] auto _ : state)
        if (!BuildAndFree(path)) {
            state.SkipWithError("the file can't be opened");
            break;
        }
}

void Attach(benchmark::State& state) {
    Measure(state, MODEL_FILE);
}
BENCHMARK(Attach);

void ReadOnly(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        const int file = open(MODEL_FILE, O_RDONLY | O_CLOEXEC);
        struct stat status = {};
        if (file < 0 || fstat(file, &status) != 0) {
            state.SkipWithError("the file can't be opened");
            break;
        }
        const auto size = static_cast<size_t>(status.st_size);
        const std::unique_ptr<void, decltype(&free)> bytes(malloc(size), free);
        benchmark::DoNotOptimize(read(file, bytes.get(), size));
        benchmark::ClobberMemory();
        close(file);
    }
}
BENCHMARK(ReadOnly);

// items_per_second counts the items of all lists.
void Growth(benchmark::State& state) {
    const auto items = static_cast<size_t>(state.range(0));
    const std::vector<uint8_t> bytes = SyntheticFile(items);
    std::string path = std::filesystem::temp_directory_path() / "lumora_bench_XXXXXX";
    const int file = mkstemp(path.data());
    if (file < 0 || write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        state.SkipWithError("no temporary file");
    else
        Measure(state, path.c_str());
    close(file);
    remove(path.c_str());
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(items * SyntheticListCount()));
}
BENCHMARK(Growth)->RangeMultiplier(2)->Range(64, 512);

} // namespace

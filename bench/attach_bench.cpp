// Process attach and detach: builds and releases the device data from the shipped model's file, against the
// minimum of any reader (open, read into memory, close). Then the same for files with more and more items.
#include "frame/device_data.h"
#include "synthetic_file.h"
#include "trays/media_type_lists.h"
#include "win32_control.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

// Builds and releases the device data from the file in this folder, as process attach and detach do.
void Measure(benchmark::State& state, const std::string& folder) {
    const std::string name = folder + "/TELMAR_D.DLL";
    std::vector<wchar_t> module(name.begin(), name.end());
    module.push_back(0);
    win32::SetModuleFileName(module.data());
    for ([[maybe_unused]] auto _ : state) {
        InitDeviceData(nullptr);
        if (mediaTypeLists == nullptr) {
            state.SkipWithError("TELMAR_D.PRM can't be read");
            break;
        }
        FreeDeviceData();
    }
}

void Attach(benchmark::State& state) {
    Measure(state, BIN_FOLDER);
}
BENCHMARK(Attach);

void ReadOnly(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        const int file = open(BIN_FOLDER "/TELMAR_D.PRM", O_RDONLY | O_CLOEXEC);
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

constexpr int kKeptBytes = 1 << 25; // the most that the allocator accepts

// The blocks stay with the process when they are freed: otherwise large files would also measure how the
// kernel provides new pages. items_per_second counts the items of all lists.
void Growth(benchmark::State& state) {
    const auto items = static_cast<size_t>(state.range(0));
    for (const int parameter : {M_MMAP_THRESHOLD, M_TRIM_THRESHOLD})
        mallopt(parameter, kKeptBytes);
    const std::vector<uint8_t> bytes = SyntheticFile(items);
    std::string folder = std::filesystem::temp_directory_path() / "lumora_bench_XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) {
        state.SkipWithError("no temporary folder");
        return;
    }
    std::ofstream(folder + "/TELMAR_D.PRM", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    Measure(state, folder);
    std::filesystem::remove_all(folder);
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(items * SyntheticListCount()));
}
BENCHMARK(Growth)->Arg(1)->Arg(32)->Arg(256)->Arg(1024);

} // namespace

// Device capabilities of the shipped model: bin numbers and names of the paper sources whose options are
// installed.
#include "base/records.h"
#include "base/text.h"
#include "paramdata/prm_file.h"

#include <benchmark/benchmark.h>

namespace {

constexpr size_t kMaxTrays = 64;

// The installable options of the model's trays, all installed.
constexpr ItemRecord kInstalled[] = {{{sizeof(ItemRecord), "EnaOpInTray", 1, 0, 0, {}}, L""}, {}};
constexpr FeatureRecord TrayOption(const char* key) {
    FeatureRecord feature = {};
    CopyText(feature.feature.head.key, key);
    feature.items = kInstalled;
    return feature;
}
constexpr FeatureRecord kFeatures[] = {TrayOption("OpInTray2"),   TrayOption("OpInTray3"),
                                       TrayOption("OpInTray4"),   TrayOption("OpInTray5"),
                                       TrayOption("OpInTrayLCT"), {}};
constexpr FeatureSettings kSettings[5] = {};

// The model's device table, built once for a benchmark.
struct Model {
    Model() : file(PrmOpen(BIN_FOLDER "/TELMAR_D.PRM", 0)), table(BuildDeviceTable(*file)) {}
    ~Model() {
        FreeDeviceTable(table);
        PrmClose(file);
    }
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    PrmFile* file;
    DeviceTable* table;
    WORD bins[kMaxTrays] = {};
    wchar_t names[kMaxTrays][TELMAR_BIN_NAME_LENGTH] = {};
};

// One item is one call.
void Capabilities(benchmark::State& state) {
    Model model;
    DWORD answer = 0;
    const auto ask = [&](WORD capability, void* output) {
        DDProc_DeviceCapabilities(model.table, kFeatures, nullptr, kSettings, capability, output, &answer);
    };
    for ([[maybe_unused]] auto _ : state) {
        ask(DC_BINS, model.bins);
        ask(DC_BINNAMES, model.names);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(2 * state.iterations());
    state.counters["trays"] = answer;
}
BENCHMARK(Capabilities);

} // namespace

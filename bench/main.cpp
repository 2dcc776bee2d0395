// Runs the benchmarks and prints ratios of times from the same run: processor times, or real times for
// benchmarks that measure those.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace {

// Prints the usual table and keeps the times by name.
struct Reporter : benchmark::ConsoleReporter {
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (!run.error_occurred)
                nanoseconds[run.benchmark_name()] =
                    (IsRealTime(run) ? run.real_accumulated_time : run.cpu_accumulated_time) * 1e9
                    / static_cast<double>(run.iterations);
    }

    static bool IsRealTime(const Run& run) { return !run.run_name.time_type.empty(); }

    std::map<std::string, double> nanoseconds; // of one iteration
};

struct Ratio {
    const char* label;
    const char* measured;
    const char* against;
    double scale; // work in `measured` for one unit of work in `against`
};

const Ratio kRatios[] = {
    {"attach : read the file only", "Attach", "ReadOnly", 1},
    {"time per item, 2 x the items : as many", "Growth/128", "Growth/64", 2},
    {"time per item, 4 x the items : as many", "Growth/256", "Growth/64", 4},
    {"time per item, 8 x the items : as many", "Growth/512", "Growth/64", 8},
    {"bins and bin names : copied without a check", "Capabilities", "CopyOnly", 1},
    {"a GetRequest built : by net-snmp", "BuildRequest", "PeerBuildsRequest", 1},
    {"a reply read : by net-snmp", "ReadReply", "PeerReadsReply", 1},
    {"request and answer : by net-snmp", "RoundTrip/real_time", "PeerRoundTrip/real_time", 1},
    {"request and answer : UDP echo", "RoundTrip/real_time", "EchoRoundTrip/real_time", 1},
    {"all options asked : as many UDP echoes", "AllOptions/real_time", "EchoesOfAllOptions/real_time", 1},
};

} // namespace

int main(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments))
        return 1;
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    printf("\n%-50s %8s\n", "ratio", "times");
    for (const Ratio& ratio : kRatios) {
        const auto measured = reporter.nanoseconds.find(ratio.measured);
        const auto against = reporter.nanoseconds.find(ratio.against);
        if (measured != reporter.nanoseconds.end() && against != reporter.nanoseconds.end())
            printf("%-50s %8.2f\n", ratio.label, measured->second / against->second / ratio.scale);
    }
}

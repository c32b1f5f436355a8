#include "RatioReporter.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace {
// The console table plus the real time per iteration of every run, by name.
class RecordingReporter : public benchmark::ConsoleReporter
{
public:
    std::map<std::string, double> realTime;

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration || run.aggregate_name == "median")
                realTime[run.run_name.function_name] = run.GetAdjustedRealTime();
        ConsoleReporter::ReportRuns(runs);
    }
};
} // namespace

int RunBenchmarksWithRatios(int argc, char** argv, const std::vector<BenchRatio>& ratios)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RecordingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n");
    for (const BenchRatio& ratio : ratios) {
        const auto measured = reporter.realTime.find(ratio.measured);
        const auto baseline = reporter.realTime.find(ratio.baseline);
        if (measured == reporter.realTime.end() || baseline == reporter.realTime.end() || baseline->second <= 0.0)
            continue;
        std::printf("ratio %s / %s = %.2f (goal: %s)\n", ratio.measured, ratio.baseline,
                    measured->second / baseline->second, ratio.goal);
    }
    benchmark::Shutdown();
    return 0;
}

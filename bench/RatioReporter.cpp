#include "RatioReporter.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>

namespace {
// The console table plus the real time per iteration of every run, in seconds, by name.
class RecordingReporter : public benchmark::ConsoleReporter
{
public:
    std::map<std::string, double> realTime;

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration || run.aggregate_name == "median")
                realTime[run.run_name.function_name] = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        ConsoleReporter::ReportRuns(runs);
    }
};
} // namespace

int RunBenchmarksWithRatios(int argc, char** argv, const std::vector<BenchRatio>& ratios,
                            const std::vector<BenchBudget>& budgets)
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
    for (const BenchBudget& budget : budgets) {
        const auto measured = reporter.realTime.find(budget.measured);
        if (measured == reporter.realTime.end() || budget.budgetSeconds <= 0.0)
            continue;
        std::printf("share %s / %.1f ms budget = %.3f %% (goal: %s)\n", budget.measured, budget.budgetSeconds * 1e3,
                    100.0 * measured->second / budget.budgetSeconds, budget.goal);
    }
    benchmark::Shutdown();
    return 0;
}

void CopyBaseline(benchmark::State& state, const void* source, void* target, std::size_t bytes)
{
    for (auto _ : state) {
        std::memcpy(target, source, bytes);
        benchmark::DoNotOptimize(target);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * qint64(bytes));
}

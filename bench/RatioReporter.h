#pragma once
// Runs the registered benchmarks and prints, after the usual table, the ratio of each named
// benchmark's time to its baseline's time, both measured in the same run, or to a fixed budget.

#include <QString>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <utility>
#include <vector>

struct BenchRatio {
    const char* measured; // benchmark name
    const char* baseline; // benchmark name of the baseline
    const char* goal;     // the goal in words, printed beside the ratio
};

struct BenchBudget {
    const char* measured;  // benchmark name
    double budgetSeconds;  // the time budget one iteration is compared with
    const char* goal;      // the goal in words, printed beside the share
};

// Runs the benchmarks selected on the command line and prints the ratios, and the share of each
// budget that one iteration takes; returns the exit code.
int RunBenchmarksWithRatios(int argc, char** argv, const std::vector<BenchRatio>& ratios,
                            const std::vector<BenchBudget>& budgets = {});

// The baseline of image work: copies `bytes` from `source` to `target` each iteration.
void CopyBaseline(benchmark::State& state, const void* source, void* target, std::size_t bytes);

#pragma once
// Runs the registered benchmarks and prints, after the usual table, the ratio of each named
// benchmark's time to its baseline's time, both measured in the same run.

#include <QString>
#include <utility>
#include <vector>

struct BenchRatio {
    const char* measured; // benchmark name
    const char* baseline; // benchmark name of the baseline
    const char* goal;     // the goal in words, printed beside the ratio
};

// Runs the benchmarks selected on the command line and prints the ratios; returns the exit code.
int RunBenchmarksWithRatios(int argc, char** argv, const std::vector<BenchRatio>& ratios);

// The gallery's sonar waterfall: one side-scan ping of 2 x 2048 samples added and the view
// repainted into a 1200 x 800 image, as a share of a 20 Hz ping's 50 ms. The pings are made
// beforehand; making them is measured on its own.
#include "RatioReporter.h"

#include "SideScanSimulator.h"
#include "pages/WaterfallView.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <vector>

namespace {
constexpr int kPings = 256;

std::vector<std::vector<std::uint8_t>> MakePings()
{
    SideScanSimulator sonar;
    std::vector<std::vector<std::uint8_t>> pings;
    for (int i = 0; i < kPings; ++i)
        pings.push_back(sonar.NextPing());
    return pings;
}

void BM_WaterfallPing(benchmark::State& state)
{
    const auto pings = MakePings();
    WaterfallView view(2 * SideScanSimulator::kDefaultSamples);
    view.resize(1200, 800);
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    std::size_t next = 0;
    for (auto _ : state) {
        view.AddPing(pings[next].data());
        next = (next + 1) % pings.size();
        view.render(&image);
        benchmark::DoNotOptimize(image.constBits());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_WaterfallPing)->Unit(benchmark::kMicrosecond);

void BM_SideScanPing(benchmark::State& state)
{
    SideScanSimulator sonar;
    for (auto _ : state)
        benchmark::DoNotOptimize(sonar.NextPing().data());
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SideScanPing)->Unit(benchmark::kMicrosecond);
} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv); // the view is a widget
    return RunBenchmarksWithRatios(argc, argv, {},
                                   { { "BM_WaterfallPing", 0.050, "at most 2 %" },
                                     { "BM_SideScanPing", 0.050, "well under the 50 ms of a ping" } });
}

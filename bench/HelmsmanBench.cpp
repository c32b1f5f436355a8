// One frame of the helmsman's display: an off-track meter, a distance-on-line meter and three
// up/down gauges painted into an 800 x 240 image, as a share of a 20 Hz display's 50 ms.
#include "RatioReporter.h"

#include "HelmsmanFrame.h"
#include "VesselSimulator.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

namespace {
void BM_HelmsmanFrame(benchmark::State& state)
{
    VesselSimulator vessel(Point(497500.0, 5758500.0), Point(502800.0, 5763600.0));
    HelmsmanFrame frame;
    QImage image(800, 240, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        vessel.Step();
        frame.Update(vessel.State());
        QPainter painter(&image);
        frame.Paint(&painter, image.rect());
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_HelmsmanFrame)->Unit(benchmark::kMicrosecond);
} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv); // fonts for the instruments' texts
    return RunBenchmarksWithRatios(argc, argv, {}, { { "BM_HelmsmanFrame", 0.050, "at most 1 %" } });
}

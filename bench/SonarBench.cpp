// Side-scan and backscatter images are drawn through a sonar palette: the cost of giving each
// sample of a 4096 x 4096 8-bit image its BGRA pixel, against copying the 64 MB image it fills,
// on the processor's own instruction set and on each narrower one, and a plain loop beside it.
#include "RatioReporter.h"

#include <QCoreApplication>
#include <QImage>
#include <QelMfc0/dialogs/colourtables/SonarPalette.h>
#include <benchmark/benchmark.h>
#include <array>
#include <cmath>
#include <deque>
#include <hwy/targets.h>
#include <random>
#include <string>
#include <vector>

namespace {
constexpr int kSide = 4096;

// A side-scan record: echo strength falling off with range from the nadir in the middle, the
// water column dark, speckle on everything, a few bright targets with their acoustic shadows.
std::vector<quint8> MakeSonarImage()
{
    std::vector<quint8> image(size_t(kSide) * kSide);
    std::mt19937 random(29);
    std::exponential_distribution<double> speckle(1.0);
    const double nadir = kSide / 2.0, water = 180.0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double range = std::abs(x - nadir);
            double level = range < water ? 6.0 : 150.0 * std::exp(-(range - water) / 1800.0);
            level *= 1.0 + 0.3 * std::sin((x + 0.4 * y) / 53.0); // sand waves
            const int target = (x / 512) * 7 + (y / 512);
            const double tx = (x % 512) - 256.0, ty = (y % 512) - 256.0;
            if (target % 5 == 0 && tx * tx + ty * ty < 400.0)
                level = 240.0;
            else if (target % 5 == 0 && std::abs(ty) < 20.0 && tx * (x < nadir ? -1 : 1) > 0.0 && std::abs(tx) < 140.0)
                level *= 0.1; // the target's shadow, away from the nadir
            image[size_t(y) * kSide + size_t(x)] = quint8(std::min(255.0, level * speckle(random)));
        }
    }
    return image;
}

const std::vector<quint8>& SonarImage()
{
    static const std::vector<quint8> image = MakeSonarImage();
    return image;
}

std::array<quint32, SonarPalette::kEntries> CopperPalette()
{
    SonarPalette palette;
    std::vector<unsigned long> pixels;
    palette.Get_BGRA_Palette(SonarPalette::CopperRamp, 2.0, 4.0, 1.0, pixels, 255, false);
    return SonarPalette::Packed(pixels);
}

void BM_Memcpy(benchmark::State& state)
{
    QImage source(kSide, kSide, QImage::Format_ARGB32);
    source.fill(Qt::white);
    QImage target(kSide, kSide, QImage::Format_ARGB32);
    CopyBaseline(state, source.constBits(), target.bits(), size_t(source.sizeInBytes()));
}
BENCHMARK(BM_Memcpy)->Unit(benchmark::kMillisecond)->UseRealTime();

// The image into a QImage made beforehand, as a view repainting its image does, with the
// instruction sets limited to `target` (0: the library's own choice).
void ApplyOn(benchmark::State& state, int64_t target)
{
    const std::vector<quint8>& samples = SonarImage();
    const auto palette = CopperPalette();
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    hwy::SetSupportedTargetsForTest(target);
    state.SetLabel(SonarPalette::VectorTarget());
    for (auto _ : state) {
        SonarPalette::ApplyImage(samples.data(), kSide, kSide, kSide, palette.data(),
                                 reinterpret_cast<quint32*>(image.bits()), image.bytesPerLine() / 4);
        benchmark::DoNotOptimize(image.bits());
        benchmark::ClobberMemory();
    }
    hwy::SetSupportedTargetsForTest(0);
    state.SetItemsProcessed(state.iterations() * kSide * kSide);
}

void BM_ApplyPalette(benchmark::State& state) { ApplyOn(state, 0); }
BENCHMARK(BM_ApplyPalette)->Unit(benchmark::kMillisecond)->UseRealTime();

// The loop an application would write without the library, as the compiler makes it.
void BM_PlainLoop(benchmark::State& state)
{
    const std::vector<quint8>& samples = SonarImage();
    const auto palette = CopperPalette();
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    for (auto _ : state) {
        auto* out = reinterpret_cast<quint32*>(image.bits());
        for (size_t i = 0; i < samples.size(); ++i)
            out[i] = palette[samples[i]];
        benchmark::DoNotOptimize(image.bits());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kSide * kSide);
}
BENCHMARK(BM_PlainLoop)->Unit(benchmark::kMillisecond)->UseRealTime();
} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::vector<BenchRatio> ratios = {
        { "BM_ApplyPalette", "BM_Memcpy", "at most 1.2" },
        { "BM_PlainLoop", "BM_Memcpy", "none (for comparison)" },
    };
    // The same on each narrower instruction set the processor has.
    static std::deque<std::string> names; // as long as the run
    const int64_t supported = hwy::SupportedTargets();
    const std::pair<const char*, int64_t> targets[] = {
        { "AVX3_DL", HWY_AVX3_DL }, { "AVX3", HWY_AVX3 }, { "AVX2", HWY_AVX2 }, { "SSE4", HWY_SSE4 }, { "SSSE3", HWY_SSSE3 }
    };
    for (const auto& [targetName, target] : targets) {
        if ((supported & target) == 0)
            continue;
        const std::string& name = names.emplace_back(std::string("BM_ApplyPalette_") + targetName);
        // The byte permutes are taken by the AVX3 code when the processor also has them.
        const int64_t allowed = target == HWY_AVX3_DL ? (HWY_AVX3_DL | HWY_AVX3) : target;
        benchmark::RegisterBenchmark(name.c_str(), [allowed](benchmark::State& state) {
            ApplyOn(state, allowed);
        })->Unit(benchmark::kMillisecond)->UseRealTime();
        ratios.push_back({ name.c_str(), "BM_Memcpy", "at most 1.2" });
    }
    return RunBenchmarksWithRatios(argc, argv, ratios);
}

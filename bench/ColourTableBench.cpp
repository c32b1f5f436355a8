// Survey grids are shown coloured by depth tables: the cost of colouring a 4096 x 4096 grid by
// a 256-colour table, against copying the image it fills and, where GDAL is installed, against
// GDAL's colour relief of the same grid and table. Also the cost of generating tables (and
// lookups) of 65,536 entries against 4,096, which should grow in proportion.
#include "RatioReporter.h"

#include <QCoreApplication>
#include <QImage>
#include <QelBase/ColorTable.h>
#include <QelBase/ColorTableLookup.h>
#include <QelMfc0/colour/ColorTableImage.h>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <deque>
#include <hwy/targets.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#ifdef QEL_BENCH_WITH_GDAL
#include <cpl_conv.h>
#include <cpl_vsi.h>
#include <gdal.h>
#include <gdal_utils.h>
#endif

namespace {
constexpr int kSide = 4096;

// Depths from -40 to 0 m: a channel, banks and sand waves as smooth sums of sines, a few
// centimetres of noise, and no data on a dry island and in scattered cells.
std::vector<float> MakeDepthGrid()
{
    std::vector<float> grid(size_t(kSide) * kSide);
    std::mt19937 random(17);
    std::normal_distribution<float> noise(0.0f, 0.05f);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double channel = 14.0 * std::sin(x / 650.0 + 0.4 * std::sin(y / 900.0)) * std::cos(y / 1300.0);
            const double waves = 1.5 * std::sin((x + 0.6 * y) / 37.0) + 0.8 * std::sin((0.3 * x - y) / 23.0);
            double depth = -22.0 + channel + waves + 4.0 * std::cos((x - y) / 420.0) + noise(random);
            depth = std::clamp(depth, -40.0, 0.0);
            const double dx = x - 3000.0, dy = y - 1100.0;
            const bool dry = dx * dx + dy * dy < 260.0 * 260.0 || random() % 500 == 0;
            grid[size_t(y) * kSide + size_t(x)] = dry ? std::numeric_limits<float>::quiet_NaN() : float(depth);
        }
    }
    return grid;
}

const std::vector<float>& DepthGrid()
{
    static const std::vector<float> grid = MakeDepthGrid();
    return grid;
}

const ColorTable& DepthTable()
{
    static const ColorTable table = [] {
        ColorTable t;
        t.SetRange(-40.0, 0.0, 256, RGB(20, 0, 120), RGB(255, 240, 160));
        return t;
    }();
    return table;
}

void BM_Memcpy(benchmark::State& state)
{
    QImage source(kSide, kSide, QImage::Format_ARGB32);
    source.fill(Qt::white);
    QImage target(kSide, kSide, QImage::Format_ARGB32);
    CopyBaseline(state, source.constBits(), target.bits(), size_t(source.sizeInBytes()));
}
BENCHMARK(BM_Memcpy)->Unit(benchmark::kMillisecond)->UseRealTime();

// The grid into an image made beforehand, as a view repainting its image does, with the
// instruction sets limited to `target` (0: the library's own choice).
void ColourGridOn(benchmark::State& state, int64_t target)
{
    const std::vector<float>& grid = DepthGrid();
    const ColorTableLookup lookup(DepthTable());
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    hwy::SetSupportedTargetsForTest(target);
    state.SetLabel(ColorTableLookup::VectorTarget());
    for (auto _ : state) {
        lookup.ColourGrid(grid.data(), kSide, kSide, kSide, reinterpret_cast<quint32*>(image.bits()),
                          image.bytesPerLine() / 4);
        benchmark::DoNotOptimize(image.bits());
        benchmark::ClobberMemory();
    }
    hwy::SetSupportedTargetsForTest(0);
    state.SetItemsProcessed(state.iterations() * kSide * kSide);
}

void BM_ColourGrid(benchmark::State& state) { ColourGridOn(state, 0); }
BENCHMARK(BM_ColourGrid)->Unit(benchmark::kMillisecond)->UseRealTime();

// A new image each time, lookup included, as GDAL makes its output.
void BM_ColourGridNewImage(benchmark::State& state)
{
    const std::vector<float>& grid = DepthGrid();
    for (auto _ : state) {
        const QImage image = ColorTableImage::FromGrid(grid.data(), kSide, kSide, kSide, ColorTableLookup(DepthTable()));
        benchmark::DoNotOptimize(image.constBits());
    }
    state.SetItemsProcessed(state.iterations() * kSide * kSide);
}
BENCHMARK(BM_ColourGridNewImage)->Unit(benchmark::kMillisecond)->UseRealTime();

#ifdef QEL_BENCH_WITH_GDAL
// The same grid in a Float32 dataset in memory, NaN its no-data value, coloured by the same
// entries (value R G B, the nearest entry taken) into RGBA bands in memory.
void BM_GdalColourRelief(benchmark::State& state)
{
    GDALAllRegister();
    const std::vector<float>& grid = DepthGrid();
    GDALDatasetH source = GDALCreate(GDALGetDriverByName("MEM"), "", kSide, kSide, 1, GDT_Float32, nullptr);
    if (!source) {
        state.SkipWithError("no dataset in memory");
        return;
    }
    GDALRasterBandH band = GDALGetRasterBand(source, 1);
    GDALSetRasterNoDataValue(band, std::numeric_limits<double>::quiet_NaN());
    if (GDALRasterIO(band, GF_Write, 0, 0, kSide, kSide, const_cast<float*>(grid.data()), kSide, kSide, GDT_Float32, 0, 0)
        != CE_None) {
        GDALClose(source);
        state.SkipWithError("the grid could not be written");
        return;
    }
    std::string colours = "nv 0 0 0 0\n";
    char line[96];
    for (const ColorTable::Entry& e : DepthTable().Entries()) {
        std::snprintf(line, sizeof(line), "%.17g %d %d %d\n", e.value, GetRValue(e.color), GetGValue(e.color),
                      GetBValue(e.color));
        colours += line;
    }
    const char* colourFile = "/vsimem/bench_colours.txt";
    VSIFCloseL(VSIFileFromMemBuffer(colourFile, reinterpret_cast<GByte*>(colours.data()), vsi_l_offset(colours.size()), FALSE));
    char* arguments[] = { const_cast<char*>("-of"), const_cast<char*>("MEM"), const_cast<char*>("-nearest_color_entry"),
                          const_cast<char*>("-alpha"), nullptr };
    GDALDEMProcessingOptions* options = GDALDEMProcessingOptionsNew(arguments, nullptr);
    for (auto _ : state) {
        int usageError = 0;
        GDALDatasetH out = GDALDEMProcessing("", source, "color-relief", colourFile, options, &usageError);
        if (!out) {
            state.SkipWithError("GDAL made no colour relief");
            break;
        }
        GDALClose(out);
    }
    GDALDEMProcessingOptionsFree(options);
    VSIUnlink(colourFile);
    GDALClose(source);
    state.SetItemsProcessed(state.iterations() * kSide * kSide);
}
BENCHMARK(BM_GdalColourRelief)->Unit(benchmark::kMillisecond)->UseRealTime();
#endif

// Generation of `count` colours over a depth range.
void SetRangeOf(benchmark::State& state, int count)
{
    for (auto _ : state) {
        ColorTable table;
        table.SetRange(-40.0, 0.0, count, RGB(20, 0, 120), RGB(255, 240, 160));
        benchmark::DoNotOptimize(table.NumEntries());
    }
}

// A range merged into a table holding one of the same size, each value halfway between two.
void AddRangeOf(benchmark::State& state, int count)
{
    ColorTable base;
    base.SetRange(-40.0, 0.0, count, RGB(20, 0, 120), RGB(255, 240, 160));
    const double half = 20.0 / (count - 2);
    for (auto _ : state) {
        state.PauseTiming();
        ColorTable table = base;
        state.ResumeTiming();
        table.AddRange(-40.0 + half, half, count, RGB(0, 120, 20), RGB(160, 255, 240), false);
        benchmark::DoNotOptimize(table.NumEntries());
    }
}

void LookupOf(benchmark::State& state, int count)
{
    ColorTable table;
    table.SetRange(-40.0, 0.0, count, RGB(20, 0, 120), RGB(255, 240, 160));
    for (auto _ : state) {
        const ColorTableLookup lookup(table);
        benchmark::DoNotOptimize(lookup.Argb(-12.5f));
    }
}

void BM_SetRange_4096(benchmark::State& state) { SetRangeOf(state, 4096); }
void BM_SetRange_65536(benchmark::State& state) { SetRangeOf(state, 65536); }
void BM_AddRange_4096(benchmark::State& state) { AddRangeOf(state, 4096); }
void BM_AddRange_65536(benchmark::State& state) { AddRangeOf(state, 65536); }
void BM_Lookup_4096(benchmark::State& state) { LookupOf(state, 4096); }
void BM_Lookup_65536(benchmark::State& state) { LookupOf(state, 65536); }
BENCHMARK(BM_SetRange_4096)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_SetRange_65536)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_AddRange_4096)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_AddRange_65536)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_Lookup_4096)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_Lookup_65536)->Unit(benchmark::kMicrosecond)->UseRealTime();
} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::vector<BenchRatio> ratios = {
        { "BM_ColourGrid", "BM_Memcpy", "at most 3.0" },
        { "BM_ColourGridNewImage", "BM_Memcpy", "none (a new image and lookup each time)" },
        { "BM_ColourGrid", "BM_GdalColourRelief", "at most 0.2" },
        { "BM_ColourGridNewImage", "BM_GdalColourRelief", "at most 0.2" },
        { "BM_SetRange_65536", "BM_SetRange_4096", "about 16 (linear)" },
        { "BM_AddRange_65536", "BM_AddRange_4096", "about 16 (linear)" },
        { "BM_Lookup_65536", "BM_Lookup_4096", "about 16 (linear)" },
    };
    // The same on each narrower instruction set the processor has.
    static std::deque<std::string> names; // as long as the run
    const int64_t supported = hwy::SupportedTargets();
    const std::pair<const char*, int64_t> targets[] = { { "AVX3", HWY_AVX3 }, { "AVX2", HWY_AVX2 }, { "SSE4", HWY_SSE4 } };
    for (const auto& [targetName, target] : targets) {
        if ((supported & target) == 0)
            continue;
        const std::string& name = names.emplace_back(std::string("BM_ColourGrid_") + targetName);
        benchmark::RegisterBenchmark(name.c_str(), [target = target](benchmark::State& state) {
            ColourGridOn(state, target);
        })->Unit(benchmark::kMillisecond)->UseRealTime();
        ratios.push_back({ name.c_str(), "BM_Memcpy", "at most 3.0" });
    }
    return RunBenchmarksWithRatios(argc, argv, ratios);
}

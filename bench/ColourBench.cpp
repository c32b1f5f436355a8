// Night mode converts every image the suite shows: the cost of converting a large image,
// against copying it, and the rate of single colour conversions. Each shipped colour map and
// maps of random factors are also converted on one thread, on the instruction set the library
// chooses and, where the processor has them, forced onto AVX2 and onto AVX-512.
#include "RatioReporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTemporaryDir>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/QelIniFile_IO.h>
#include <QelBase/FileObject.h>
#include <QelMfc0/colour/BitmapRemapper.h>
#include <QelMfc0/colour/ColorControl.h>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <deque>
#include <hwy/targets.h>
#include <map>
#include <random>
#include <string>

namespace {
constexpr int kSide = 4096;

// A project whose night colour map has 64 substitutions, non-unit factors and inversion.
class NightProject
{
public:
    NightProject()
    {
        const QString common = m_folder.path() + QStringLiteral("/Common");
        QDir().mkpath(common + QStringLiteral("/ColorMaps"));
        QDir().mkpath(m_folder.path() + QStringLiteral("/Bench"));
        WriteFile(m_folder.path() + QStringLiteral("/Bench/Project.qpd"), "[Project]\nName = Bench\n");
        QByteArray map = "[PARAMS]\nred = 0.42\ngreen = 0.34\nblue = 0.30\ninvert = 1\n[QEL_COLORS]\n";
        std::mt19937 random(7);
        for (int i = 0; i < 64; ++i) {
            const quint32 from = random() & 0xFFFFFF;
            m_keys.push_back(from);
            map += QByteArray::number(from) + " = " + QByteArray::number(random() & 0x3F3F3F) + "\n";
        }
        WriteFile(common + QStringLiteral("/ColorMaps/night.cmap"), map);
        DataSearch::GetDataSearch().SetIniFile(std::make_unique<QelIniFile_IO>(m_folder.path() + QStringLiteral("/suite.ini")));
        m_open = DataSearch::GetDataSearch().Open(m_folder.path(), QStringLiteral("Bench"));
        m_control.SetLightMode(ColorConverter::night, false);
    }
    bool IsReady() const { return m_open && m_control.GetColorMap().Count() == 64 && m_control.GetInvertColors(); }
    const ColorControl& Control() const { return m_control; }
    const std::vector<quint32>& Keys() const { return m_keys; }

private:
    static void WriteFile(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
    }
    QTemporaryDir m_folder;
    std::vector<quint32> m_keys;
    bool m_open = false;
    ColorControl m_control;
};

NightProject& Project()
{
    static NightProject project;
    return project;
}

// The worst case: noise, one pixel in 32 a substituted colour and one in 64 the transparent
// key, scattered at random so that no pattern helps the conversion.
QImage MakeNoiseImage()
{
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    std::mt19937 random(11);
    const auto& keys = Project().Keys();
    for (int y = 0; y < kSide; ++y) {
        auto* line = reinterpret_cast<quint32*>(image.scanLine(y));
        for (int x = 0; x < kSide; ++x) {
            const quint32 r = random();
            if ((r & 31) == 0)
                line[x] = 0xFF000000u | keys[(r >> 5) % keys.size()];
            else if ((r & 63) == 1)
                line[x] = 0xFFC0C0C0u;
            else
                line[x] = 0xFF000000u | (quint32((x + (r >> 8)) & 0xFF) << 16) | (quint32((y + (r >> 16)) & 0xFF) << 8) | (r >> 24);
        }
    }
    return image;
}

// A chart as the suite shows one: depth bands in 48 of the substituted colours with smooth
// (antialiased) edges, a grid, run lines and sounding symbols in the other 16, the transparent
// key around the legend.
QImage MakeChartImage()
{
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    const auto& keys = Project().Keys();
    auto color = [&](size_t i) { const quint32 c = keys[i % keys.size()]; return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); };
    image.fill(color(0));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    for (int band = 0; band < 48; ++band) {
        QPainterPath path;
        path.moveTo(0, kSide);
        for (int x = 0; x <= kSide; x += 32)
            path.lineTo(x, 200 + band * 80 + 60 * std::sin(x / 300.0 + band * 0.7));
        path.lineTo(kSide, kSide);
        p.fillPath(path, color(size_t(band) + 1));
    }
    p.setPen(QPen(color(49), 1));
    for (int g = 0; g < kSide; g += 256) {
        p.drawLine(g, 0, g, kSide);
        p.drawLine(0, g, kSide, g);
    }
    p.setPen(QPen(color(50), 3));
    for (int line = 0; line < 40; ++line)
        p.drawLine(QPointF(100, 100 + line * 100), QPointF(kSide - 100, 300 + line * 100));
    std::mt19937 random(5);
    p.setPen(QPen(color(51), 1));
    for (int i = 0; i < 20000; ++i) {
        p.setBrush(color(52 + size_t(random() % 12)));
        p.drawEllipse(QPointF(random() % kSide, random() % kSide), 3.5, 3.5);
    }
    p.fillRect(QRect(kSide - 600, 40, 560, 300), QColor(192, 192, 192));
    return image;
}

const QImage& NoiseImage()
{
    static const QImage image = MakeNoiseImage();
    return image;
}

const QImage& ChartImage()
{
    static const QImage image = MakeChartImage();
    return image;
}

void BM_Memcpy(benchmark::State& state)
{
    const QImage& source = NoiseImage();
    QImage target(source.size(), source.format());
    CopyBaseline(state, source.constBits(), target.bits(), size_t(source.sizeInBytes()));
}
BENCHMARK(BM_Memcpy)->Unit(benchmark::kMillisecond)->UseRealTime();

void RemapImage(benchmark::State& state, const QImage& source)
{
    if (!Project().IsReady()) {
        state.SkipWithError("the night colour map could not be set up");
        return;
    }
    const ColorControl& control = Project().Control();
    QImage image(source.size(), source.format());
    for (auto _ : state) {
        // Every iteration converts the original pixels; restoring them is not timed.
        state.PauseTiming();
        std::memcpy(image.bits(), source.constBits(), size_t(source.sizeInBytes()));
        state.ResumeTiming();
        control.RemapBitmap(image);
        benchmark::DoNotOptimize(image.bits());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * image.sizeInBytes());
}

void BM_RemapBitmapChart(benchmark::State& state) { RemapImage(state, ChartImage()); }
BENCHMARK(BM_RemapBitmapChart)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_RemapBitmapNoise(benchmark::State& state) { RemapImage(state, NoiseImage()); }
BENCHMARK(BM_RemapBitmapNoise)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_GetColor(benchmark::State& state)
{
    const ColorControl& control = Project().Control();
    std::vector<COLORREF> colors(4096);
    std::mt19937 random(3);
    for (COLORREF& c : colors)
        c = (random() & 7) == 0 ? Project().Keys()[random() % 64] : (random() & 0xFFFFFF);
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(control.GetColor(colors[i], false));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GetColor);
// A colour map and converter as the remapper takes them.
struct MapUnderTest {
    std::string name;
    ColorMap map;
    ColorConverter converter;
};

std::vector<MapUnderTest> MapsUnderTest()
{
    std::vector<MapUnderTest> maps;
    for (const char* name : { "night", "twilight", "bright" }) {
        FileObject file;
        MapUnderTest& m = maps.emplace_back();
        m.name = name;
        if (file.FileOpen(QStringLiteral(QEL_SAMPLES_DIR "/Common/ColorMaps/%1.cmap").arg(QLatin1String(name)))) {
            m.map.Load(file);
            m.converter.Load(file);
        }
    }
    // Factors at random and inverted; a map of 100 colours (one level of hashing) and one of
    // 2000 (two levels).
    std::mt19937 random(23);
    std::uniform_real_distribution<double> factor(0.05, 1.5);
    for (const int count : { 100, 2000 }) {
        QByteArray text = "[PARAMS]\nred = " + QByteArray::number(factor(random)) + "\ngreen = "
                        + QByteArray::number(factor(random)) + "\nblue = " + QByteArray::number(factor(random))
                        + "\ninvert = 1\n[QEL_COLORS]\n";
        for (int i = 0; i < count; ++i)
            text += QByteArray::number(random() & 0xFFFFFF) + " = " + QByteArray::number(random() & 0xFFFFFF) + "\n";
        FileObject file;
        file.LoadFromText(QString::fromLatin1(text));
        MapUnderTest& m = maps.emplace_back();
        m.name = "random" + std::to_string(count);
        m.map.Load(file);
        m.converter.Load(file);
    }
    return maps;
}

// Noise in which one pixel in 32 is a substituted colour of the map and one in 64 the key.
QImage MakeMapNoiseImage(const ColorMap& map)
{
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    std::mt19937 random(13);
    const auto& subs = map.Substitutions();
    for (int y = 0; y < kSide; ++y) {
        auto* line = reinterpret_cast<quint32*>(image.scanLine(y));
        for (int x = 0; x < kSide; ++x) {
            const quint32 r = random();
            if ((r & 31) == 0 && !subs.empty())
                line[x] = 0xFF000000u | (subs[(r >> 5) % subs.size()].first & 0xFFFFFF);
            else if ((r & 63) == 1)
                line[x] = 0xFFC0C0C0u;
            else
                line[x] = 0xFF000000u | (random() & 0xFFFFFF);
        }
    }
    return image;
}

// One call converting the whole image on one thread, with the instruction sets limited to
// `target` (0: the library's own choice).
void RemapOnOneThread(benchmark::State& state, const MapUnderTest& m, int64_t target)
{
    static std::map<std::string, QImage> sources; // made once per map
    const BitmapRemapper remapper(m.map, m.converter);
    QImage& source = sources[m.name];
    if (source.isNull())
        source = MakeMapNoiseImage(m.map);
    QImage image(source.size(), source.format());
    hwy::SetSupportedTargetsForTest(target);
    state.SetLabel(BitmapRemapper::VectorTarget());
    for (auto _ : state) {
        state.PauseTiming();
        std::memcpy(image.bits(), source.constBits(), size_t(source.sizeInBytes()));
        state.ResumeTiming();
        remapper.Remap(reinterpret_cast<quint32*>(image.bits()), qsizetype(image.width()) * image.height());
        benchmark::DoNotOptimize(image.bits());
        benchmark::ClobberMemory();
    }
    hwy::SetSupportedTargetsForTest(0);
    state.SetBytesProcessed(state.iterations() * image.sizeInBytes());
}
} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::vector<BenchRatio> ratios = { { "BM_RemapBitmapChart", "BM_Memcpy", "at most 2.0" },
                                       { "BM_RemapBitmapNoise", "BM_Memcpy", "at most 2.0 (worst case)" } };
    // Names live as long as the run; the maps as long as the benchmarks that use them.
    static std::deque<std::string> names;
    static const std::vector<MapUnderTest> maps = MapsUnderTest();
    const int64_t supported = hwy::SupportedTargets();
    const std::pair<const char*, int64_t> targets[] = { { "best", 0 }, { "AVX2", HWY_AVX2 }, { "AVX3", HWY_AVX3 } };
    for (const MapUnderTest& m : maps) {
        for (const auto& [targetName, target] : targets) {
            if (target != 0 && (supported & target) == 0)
                continue;
            const std::string& name = names.emplace_back("BM_Remap_" + m.name + "_" + targetName);
            benchmark::RegisterBenchmark(name.c_str(), [&m, target = target](benchmark::State& state) {
                RemapOnOneThread(state, m, target);
            })->Unit(benchmark::kMillisecond)->UseRealTime();
            ratios.push_back({ name.c_str(), "BM_Memcpy", "at most 1.5" });
        }
    }
    return RunBenchmarksWithRatios(argc, argv, ratios);
}

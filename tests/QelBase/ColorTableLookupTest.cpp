// Colour tables applied to whole grids: every cell takes exactly the colour GetColor gives its
// value (NaN the no-data colour), on every instruction set the processor has, whatever the
// length, alignment and row layout of the values.
#include <QelBase/ColorTable.h>
#include <QelBase/ColorTableLookup.h>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <hwy/targets.h>
#include <limits>
#include <random>
#include <set>
#include <string>

namespace {
constexpr float kInf = std::numeric_limits<float>::infinity();

quint32 expected(const ColorTable& table, float value, quint32 noData)
{
    if (std::isnan(value))
        return noData;
    const COLORREF c = table.GetColor(double(value));
    return 0xFF000000u | quint32(GetRValue(c)) << 16 | quint32(GetGValue(c)) << 8 | quint32(GetBValue(c));
}

// Tables with their own troubles; every entry and the low colour a random colour.
ColorTable makeTable(const std::string& kind, std::mt19937& random)
{
    std::vector<double> values;
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    if (kind == "one entry") {
        values = { 0.3 };
    } else if (kind == "uneven") {
        // A dense cluster, a few far-off entries and tiny gaps between them.
        for (int i = 0; i < 300; ++i)
            values.push_back(1.0 + 1e-4 * uniform(random));
        values.insert(values.end(), { -1e25, -7.5, 0.0, 2.0, 1e3, 1e30 });
    } else if (kind == "huge and tiny") {
        values = { -1e300, -double(FLT_MAX) * (1 + 1e-12), -double(FLT_MAX), -1e38, -1e-300, -1e-42, 0.0,
                   1e-45, 1e-42, double(FLT_MIN), 1e-300, 3.4e38, double(FLT_MAX), double(FLT_MAX) * (1 + 1e-12), 1e300 };
    } else if (kind == "equal thresholds") {
        // Doubles closer together than floats are: several entries share a threshold.
        for (int k = 0; k < 40; ++k)
            values.insert(values.end(), { 1.0 + k * 1e-9, -3.0 + k * 1e-9, 1e7 + k * 0.125 });
    } else if (kind == "random") {
        for (int i = 0; i < 1000; ++i)
            values.push_back(-1e4 + 2e4 * uniform(random));
    }
    ColorTable table;
    if (kind == "256 by range")
        table.SetRange(-40.0, 0.0, 256, RGB(255, 0, 0), RGB(0, 0, 255));
    for (const double v : values)
        table.InsertEntry(v, random() & 0xFFFFFF, false);
    table.SetLowColor(random() & 0xFFFFFF);
    return table;
}

// Entry values and their float neighbours, special values and random ones.
std::vector<float> probeValues(const ColorTable& table, std::mt19937& random)
{
    std::vector<float> values = { kInf, -kInf, std::nanf(""), -std::nanf(""), 0.0f, -0.0f, FLT_TRUE_MIN,
                                  -FLT_TRUE_MIN, 1e-40f, -1e-40f, FLT_MIN, FLT_MAX, -FLT_MAX };
    for (const auto& entry : table.Entries()) {
        const float f = float(std::clamp(entry.value, -double(FLT_MAX), double(FLT_MAX)));
        const float up = std::nextafter(f, kInf), down = std::nextafter(f, -kInf);
        values.insert(values.end(), { f, up, down, std::nextafter(up, kInf), std::nextafter(down, -kInf) });
    }
    const float low = table.NumEntries() ? std::max(-1e6f, float(table.EntryValue(0))) : -10.0f;
    const float high = table.NumEntries() ? std::min(1e6f, float(table.EntryValue(table.NumEntries() - 1))) : 10.0f;
    std::uniform_real_distribution<float> inRange(low - 1.0f, high + 1.0f);
    for (int i = 0; i < 3000; ++i) {
        const quint32 bits = random();
        float any;
        std::memcpy(&any, &bits, sizeof(any)); // every kind of float, NaNs and denormals too
        values.push_back(i % 2 ? any : inRange(random));
    }
    std::shuffle(values.begin(), values.end(), random);
    return values;
}

// The first cell coloured otherwise than GetColor colours it, or "".
std::string firstMismatch(const ColorTable& table, const float* values, const quint32* colours, qsizetype count,
                          quint32 noData)
{
    for (qsizetype i = 0; i < count; ++i)
        if (colours[i] != expected(table, values[i], noData))
            return "cell " + std::to_string(i) + " value " + std::to_string(values[i]) + " colour "
                 + std::to_string(colours[i]) + " expected " + std::to_string(expected(table, values[i], noData));
    return {};
}

// Every instruction set this processor runs, the best first.
std::vector<int64_t> targets()
{
    std::vector<int64_t> out;
    for (int64_t bits = hwy::SupportedTargets(); bits != 0; bits &= bits - 1)
        out.push_back(bits & -bits);
    return out;
}
} // namespace

TEST(ColorTableLookup, EveryCellTakesTheColourOfGetColorOnEveryInstructionSet)
{
    std::mt19937 random(2026);
    for (const char* kind : { "empty", "one entry", "256 by range", "uneven", "huge and tiny", "equal thresholds", "random" }) {
        const ColorTable table = makeTable(kind, random);
        const quint32 noData = kind[0] == 'r' ? 0x80123456u : ColorTableLookup::kNoData;
        const ColorTableLookup lookup(table, noData);
        const std::vector<float> values = probeValues(table, random);
        const qsizetype count = qsizetype(values.size());
        std::set<std::string> tested; // a set the library was not built for falls back to another
        for (const int64_t target : targets()) {
            hwy::SetSupportedTargetsForTest(target);
            if (!tested.insert(ColorTableLookup::VectorTarget()).second)
                continue;
            SCOPED_TRACE(std::string(kind) + " on " + ColorTableLookup::VectorTarget());
            std::vector<quint32> colours(values.size(), 0xDEADBEEF);
            lookup.Colour(values.data(), count, colours.data());
            EXPECT_EQ(firstMismatch(table, values.data(), colours.data(), count, noData), "");
            // Short spans at every start: partial vectors only, and nothing written past them.
            for (qsizetype start = 0; start < 5; ++start) {
                for (qsizetype length = 0; length <= 37; length += 3) {
                    std::vector<quint32> span(size_t(length) + 1, 0xDEADBEEF);
                    lookup.Colour(values.data() + start, length, span.data());
                    EXPECT_EQ(firstMismatch(table, values.data() + start, span.data(), length, noData), "");
                    EXPECT_EQ(span.back(), 0xDEADBEEF) << length;
                }
            }
        }
        hwy::SetSupportedTargetsForTest(0);
        std::vector<quint32> one;
        for (const float v : values)
            one.push_back(lookup.Argb(v));
        EXPECT_EQ(firstMismatch(table, values.data(), one.data(), count, noData), "") << kind << " one by one";
    }
}

TEST(ColorTableLookup, GridsKeepTheirRowsAndLeaveThePaddingAlone)
{
    std::mt19937 random(7);
    const ColorTable table = makeTable("random", random);
    const ColorTableLookup lookup(table);
    const int width = 37, height = 6;
    const qsizetype valueStride = 45, outStride = 40;
    std::vector<float> values(size_t(valueStride * height));
    std::uniform_real_distribution<float> depth(-1.2e4f, 1.2e4f);
    for (float& v : values)
        v = depth(random);
    values[3] = std::nanf("");
    std::vector<quint32> out(size_t(outStride * height), 0xDEADBEEF);
    lookup.ColourGrid(values.data(), width, height, valueStride, out.data(), outStride);
    for (int y = 0; y < height; ++y) {
        EXPECT_EQ(firstMismatch(table, &values[size_t(y * valueStride)], &out[size_t(y * outStride)], width,
                                ColorTableLookup::kNoData), "") << "row " << y;
        for (qsizetype x = width; x < outStride; ++x)
            EXPECT_EQ(out[size_t(y * outStride + x)], 0xDEADBEEF) << "padding of row " << y;
    }

    const std::vector<quint32> before = out;
    lookup.ColourGrid(values.data(), 0, height, valueStride, out.data(), outStride);
    lookup.ColourGrid(values.data(), width, -1, valueStride, out.data(), outStride);
    lookup.Colour(values.data(), -5, out.data());
    EXPECT_EQ(out, before) << "empty and negative sizes colour nothing";
}

TEST(ColorTableLookup, LargeGridsWrittenPastTheCachesAgreeWithSmallOnes)
{
    // 2047 x 2100 cells (more than 16 MB of colours), rows not aligned to any vector; the
    // best instruction set only, the slower ones take too long in debug builds.
    std::mt19937 random(11);
    const ColorTable table = makeTable("256 by range", random);
    const ColorTableLookup lookup(table);
    const int width = 2047, height = 2100;
    const qsizetype outStride = width + 3;
    std::vector<float> values(size_t(width) * height);
    for (size_t i = 0; i < values.size(); ++i)
        values[i] = i % 97 == 0 ? std::nanf("") : -41.0f + float(random() % 42000) * 1e-3f;
    std::vector<quint32> expected(size_t(outStride) * height, 0xDEADBEEF);
    for (int y = 0; y < height; ++y)
        lookup.Colour(&values[size_t(y) * width], width, &expected[size_t(y * outStride)]);
    ASSERT_EQ(firstMismatch(table, values.data(), expected.data(), width, ColorTableLookup::kNoData), "");
    std::vector<quint32> out(expected.size() + 1, 0xDEADBEEF);
    lookup.ColourGrid(values.data(), width, height, width, out.data() + 1, outStride);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), out.begin() + 1)) << ColorTableLookup::VectorTarget();
}

TEST(ColorTableLookup, TakesACopyOfTheTableAndItsNoDataColour)
{
    ColorTable table;
    table.InsertEntry(5.0, RGB(255, 0, 0), false);
    table.SetLowColor(RGB(0, 0, 255));
    const ColorTableLookup lookup(table, 0x11223344u);
    table.InsertEntry(1.0, RGB(0, 255, 0), false);
    table.SetLowColor(RGB(0, 0, 0));
    EXPECT_EQ(lookup.Argb(2.0f), 0xFF0000FFu) << "the later entry and low colour do not reach it";
    EXPECT_EQ(lookup.Argb(5.0f), 0xFFFF0000u);
    EXPECT_EQ(lookup.Argb(std::nanf("")), 0x11223344u);
    EXPECT_EQ(lookup.NoDataColor(), 0x11223344u);

    const ColorTableLookup empty;
    EXPECT_EQ(empty.Argb(-kInf), 0xFFFFFFFFu);
    EXPECT_EQ(empty.Argb(std::nanf("")), ColorTableLookup::kNoData);
}

// The grid colouring of colour tables. Highway compiles the vector form below once per
// instruction set (this file includes itself through foreach_target.h) and picks the best one
// the processor has on the first call.
//
// Exactness. Each entry value v is rounded up to a float threshold t, so that for every float
// x, double(x) >= v exactly when x >= t: float comparisons decide as GetColor does on the
// double. The colour of x is then that of the number of thresholds not above x (0: the low
// colour, i + 1: entry i). The index over the value range maps x to a bin by
// clamp((x - origin) * scale, 0, bins - 1), a subtraction and a multiplication in float (no
// fused form exists for them) done the same way in scalar and vector code: the map never
// decreases, so a threshold in a lower bin than x is certainly not above x and one in a higher
// bin certainly is. A bin's base counts the thresholds of lower bins; the thresholds of x's own
// bin follow it and are found by a branchless binary search of `probes` steps over a window of
// 2^probes - 1 thresholds (those past the bin are above x, the padding is NaN and compares
// false). With at most one threshold per bin, each bin keeps its threshold and the colours
// below and from it: two loads per cell. NaN cells take the no-data colour.
#include "QelBase/ColorTableLookup.h"

#include <QelBase/ColorTable.h>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#ifndef QEL_COLOR_TABLE_LOOKUP_SHARED
#define QEL_COLOR_TABLE_LOOKUP_SHARED
namespace qel_colour_lookup {
// What the vector form needs of a lookup, copied out of it per call.
struct Params {
    const float* thresholds;
    const quint32* colours;
    const std::int32_t* binBase;
    const float* binThreshold; // these two with one threshold per bin, else null
    const quint32* binColours;
    int probes;
    float origin;
    float scale;
    float lastBin;
    quint32 noData;
};

// The bin of a value that is not NaN; the vector form computes the same.
inline int Bin(float x, float origin, float scale, float lastBin)
{
    const float position = (x - origin) * scale;
    return int(std::min(std::max(position, 0.0f), lastBin));
}
} // namespace qel_colour_lookup
#endif

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "QelBase/ColorTableLookup.cpp"
#include <hwy/foreach_target.h>
#include <hwy/cache_control.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace qel_colour_lookup {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using DF = hn::ScalableTag<float>;
using DI = hn::RebindToSigned<DF>;
using DU = hn::RebindToUnsigned<DF>;
using VF = hn::Vec<DF>;
using VU = hn::Vec<DU>;

// The search forms: a number of steps, that number from the parameters, and the bins' own
// thresholds and colours.
constexpr int kStepsOfParams = -1;
constexpr int kBinColours = -2;

// The colours of one vector of values.
template <int kProbes>
HWY_INLINE VU ColourVector(const Params& p, VF x)
{
    const DF df;
    const DI di;
    const DU du;
    const auto number = hn::Eq(x, x);
    // NaN lanes look up 0 (any bin would do) and take the no-data colour at the end.
    const VF position = hn::Mul(hn::Sub(hn::IfThenElseZero(number, x), hn::Set(df, p.origin)), hn::Set(df, p.scale));
    const VF clamped = hn::Min(hn::Max(position, hn::Zero(df)), hn::Set(df, p.lastBin));
    const auto bin = hn::ConvertTo(di, clamped);
    if constexpr (kProbes == kBinColours) {
        const VF threshold = hn::GatherIndex(df, p.binThreshold, bin);
        // 2 * bin, plus one (minus the all-ones lane of the mask) when x is from the threshold.
        const auto index = hn::Sub(hn::Add(bin, bin), hn::BitCast(di, hn::VecFromMask(df, hn::Ge(x, threshold))));
        const VU colour = hn::GatherIndex(du, p.binColours, index);
        return hn::IfThenElse(hn::RebindMask(du, number), colour, hn::Set(du, p.noData));
    }
    auto index = hn::GatherIndex(di, p.binBase, bin);
    const int probes = kProbes == kStepsOfParams ? p.probes : kProbes;
    for (int s = probes - 1; s >= 0; --s) {
        const std::int32_t step = std::int32_t(1) << s;
        const VF threshold = hn::GatherIndex(df, p.thresholds + (step - 1), index);
        index = hn::IfThenElse(hn::RebindMask(di, hn::Ge(x, threshold)), hn::Add(index, hn::Set(di, step)), index);
    }
    const VU colour = hn::GatherIndex(du, p.colours, index);
    return hn::IfThenElse(hn::RebindMask(du, number), colour, hn::Set(du, p.noData));
}

// Fewer than a vector of values through buffers; the unused lanes colour zeros.
template <int kProbes>
HWY_INLINE void ColourPart(const Params& p, const float* values, size_t count, quint32* out)
{
    HWY_ALIGN float buffer[HWY_MAX_BYTES / sizeof(float)] = {};
    HWY_ALIGN quint32 colours[HWY_MAX_BYTES / sizeof(quint32)];
    std::copy(values, values + count, buffer);
    hn::Store(ColourVector<kProbes>(p, hn::Load(DF(), buffer)), DU(), colours);
    std::copy(colours, colours + count, out);
}

template <int kProbes>
HWY_NOINLINE void ColourRowsWith(const Params& params, const float* HWY_RESTRICT values, size_t width,
                                 size_t height, ptrdiff_t valueStride, quint32* HWY_RESTRICT out,
                                 ptrdiff_t outStride, bool stream)
{
    const Params p = params; // a local copy: the stores below cannot change it
    const DF df;
    const DU du;
    const size_t lanes = hn::Lanes(df);
    const size_t vectorBytes = lanes * sizeof(quint32);
    for (size_t y = 0; y < height; ++y) {
        const float* row = values + ptrdiff_t(y) * valueStride;
        quint32* target = out + ptrdiff_t(y) * outStride;
        size_t i = 0;
        const size_t misalignment = reinterpret_cast<uintptr_t>(target) % vectorBytes;
        if (stream && misalignment % sizeof(quint32) == 0) {
            // Past the memory caches: the first values up to an aligned vector, then whole
            // aligned vectors.
            if (misalignment != 0) {
                i = std::min(width, (vectorBytes - misalignment) / sizeof(quint32));
                ColourPart<kProbes>(p, row, i, target);
            }
            for (; i + 2 * lanes <= width; i += 2 * lanes) {
                const VU first = ColourVector<kProbes>(p, hn::LoadU(df, row + i));
                const VU second = ColourVector<kProbes>(p, hn::LoadU(df, row + i + lanes));
                hn::Stream(first, du, target + i);
                hn::Stream(second, du, target + i + lanes);
            }
        }
        for (; i + 2 * lanes <= width; i += 2 * lanes) {
            const VU first = ColourVector<kProbes>(p, hn::LoadU(df, row + i));
            const VU second = ColourVector<kProbes>(p, hn::LoadU(df, row + i + lanes));
            hn::StoreU(first, du, target + i);
            hn::StoreU(second, du, target + i + lanes);
        }
        for (; i + lanes <= width; i += lanes)
            hn::StoreU(ColourVector<kProbes>(p, hn::LoadU(df, row + i)), du, target + i);
        if (i < width)
            ColourPart<kProbes>(p, row + i, width - i, target + i);
    }
    if (stream)
        hwy::FlushStream();
}

void ColourRows(const Params& p, const float* values, size_t width, size_t height, ptrdiff_t valueStride,
                quint32* out, ptrdiff_t outStride, bool stream)
{
    if (p.binThreshold)
        return ColourRowsWith<kBinColours>(p, values, width, height, valueStride, out, outStride, stream);
    switch (p.probes) {
    case 0:
        return ColourRowsWith<0>(p, values, width, height, valueStride, out, outStride, stream);
    case 1:
        return ColourRowsWith<1>(p, values, width, height, valueStride, out, outStride, stream);
    case 2:
        return ColourRowsWith<2>(p, values, width, height, valueStride, out, outStride, stream);
    default:
        return ColourRowsWith<kStepsOfParams>(p, values, width, height, valueStride, out, outStride, stream);
    }
}

int64_t TargetOfThisCode()
{
    return HWY_TARGET;
}
} // namespace HWY_NAMESPACE
} // namespace qel_colour_lookup
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace qel_colour_lookup {
HWY_EXPORT(ColourRows);
HWY_EXPORT(TargetOfThisCode);

// The bins of the index: a power of two from four per entry, at most 2^20.
constexpr int kMaxBins = 1 << 20;
// The index grows (to at most kMaxGrownBins or 64 bins per entry) while a bin holds more
// thresholds than this.
constexpr int kFewThresholds = 15;
constexpr int kMaxGrownBins = 1 << 16;
// The most bins that keep their own thresholds and colours.
constexpr int kMaxBinsWithColours = 1 << 18;
// Outputs of this size and more are written past the memory caches (they would not stay in
// them anyway), which saves reading them in first.
constexpr qint64 kStreamedBytes = qint64(16) << 20;

int PowerOfTwoAtLeast(qint64 n)
{
    int power = 1;
    while (power < n && power < kMaxBins)
        power *= 2;
    return power;
}

// The smallest float t with double(x) >= value exactly when x >= t, for every float x.
float ThresholdOf(double value)
{
    constexpr float largest = std::numeric_limits<float>::max();
    if (value > double(largest))
        return std::numeric_limits<float>::infinity();
    if (value <= -double(largest))
        return -largest;
    float t = float(value);
    if (double(t) < value)
        t = std::nextafter(t, std::numeric_limits<float>::infinity());
    return t;
}

// 0xAARRGGBB, opaque, of a COLORREF (0x00BBGGRR).
quint32 ArgbOf(COLORREF c)
{
    return 0xFF000000u | (quint32(GetRValue(c)) << 16) | (quint32(GetGValue(c)) << 8) | quint32(GetBValue(c));
}
} // namespace qel_colour_lookup

using namespace qel_colour_lookup;

ColorTableLookup::ColorTableLookup()
    : m_colours { ArgbOf(RGB(255, 255, 255)) }
    , m_binBase { 0 }
    , m_binScale(1.0f)
{
}

ColorTableLookup::ColorTableLookup(const ColorTable& table, quint32 noData)
    : m_noData(noData)
{
    const std::vector<ColorTable::Entry>& entries = table.Entries();
    const size_t count = entries.size();
    m_colours.reserve(count + 1);
    m_colours.push_back(ArgbOf(table.LowColor()));
    m_thresholds.reserve(count);
    for (const ColorTable::Entry& entry : entries) {
        m_colours.push_back(ArgbOf(entry.color));
        m_thresholds.push_back(ThresholdOf(entry.value));
    }
    // The index spans the finite thresholds.
    const auto firstFinite = std::find_if(m_thresholds.begin(), m_thresholds.end(), [](float t) { return std::isfinite(t); });
    const auto lastFinite = std::find_if(m_thresholds.rbegin(), m_thresholds.rend(), [](float t) { return std::isfinite(t); });
    const float low = firstFinite != m_thresholds.end() ? *firstFinite : 0.0f;
    const float high = lastFinite != m_thresholds.rend() ? *lastFinite : 0.0f;
    int bins = high > low ? PowerOfTwoAtLeast(4 * qint64(count)) : 1;
    const int grownLimit = std::min(kMaxBins, std::max(kMaxGrownBins, PowerOfTwoAtLeast(64 * qint64(count))));
    m_binOrigin = low;
    std::vector<std::int32_t> inBin;
    int most = 0;
    for (;;) {
        // Any positive finite scale keeps the lookup exact; the right one keeps bins small.
        const double scale = double(bins) / (double(high) - double(low));
        m_binScale = high > low ? float(std::clamp(scale, double(std::numeric_limits<float>::min()),
                                                   double(std::numeric_limits<float>::max())))
                                : 1.0f;
        const float lastBin = float(bins - 1);
        inBin.assign(size_t(bins), 0);
        for (const float t : m_thresholds)
            ++inBin[size_t(Bin(t, m_binOrigin, m_binScale, lastBin))];
        most = count > 0 ? *std::max_element(inBin.begin(), inBin.end()) : 0;
        if (most <= kFewThresholds || bins >= grownLimit)
            break;
        bins = std::min(bins * 4, grownLimit);
    }
    m_binBase.assign(size_t(bins), 0);
    std::int32_t below = 0;
    for (size_t b = 0; b < size_t(bins); ++b) {
        m_binBase[b] = below;
        below += inBin[b];
    }
    // A window of 2^probes - 1 thresholds holds the most any bin has.
    m_binProbes = 0;
    while ((qint64(1) << m_binProbes) - 1 < most)
        ++m_binProbes;
    m_thresholds.resize(count + (size_t(1) << m_binProbes) - 1, std::numeric_limits<float>::quiet_NaN());
    if (m_binProbes == 1 && bins <= kMaxBinsWithColours) {
        m_binThreshold.resize(size_t(bins));
        m_binColours.resize(2 * size_t(bins));
        for (size_t b = 0; b < size_t(bins); ++b) {
            const auto base = size_t(m_binBase[b]);
            m_binThreshold[b] = m_thresholds[base]; // NaN past the last entry
            m_binColours[2 * b] = m_colours[base];
            m_binColours[2 * b + 1] = m_colours[std::min(base + 1, count)];
        }
    }
}

quint32 ColorTableLookup::Argb(float value) const
{
    if (std::isnan(value))
        return m_noData;
    std::int32_t index = m_binBase[size_t(Bin(value, m_binOrigin, m_binScale, float(m_binBase.size() - 1)))];
    for (int s = m_binProbes - 1; s >= 0; --s) {
        const std::int32_t step = std::int32_t(1) << s;
        if (value >= m_thresholds[size_t(index + step - 1)])
            index += step;
    }
    return m_colours[size_t(index)];
}

void ColorTableLookup::Colour(const float* values, qsizetype count, quint32* out) const
{
    if (!values || !out)
        return;
    // One row per call; spans beyond the int range in further rows.
    for (qsizetype done = 0; done < count;) {
        const int width = int(std::min<qsizetype>(count - done, std::numeric_limits<int>::max()));
        ColourGrid(values + done, width, 1, 0, out + done, 0);
        done += width;
    }
}

void ColorTableLookup::ColourGrid(const float* values, int width, int height, qsizetype valueStride, quint32* out,
                                  qsizetype outStride) const
{
    if (width <= 0 || height <= 0 || !values || !out)
        return;
    const Params params { m_thresholds.data(), m_colours.data(), m_binBase.data(),
                          m_binThreshold.empty() ? nullptr : m_binThreshold.data(),
                          m_binColours.empty() ? nullptr : m_binColours.data(), m_binProbes,
                          m_binOrigin, m_binScale, float(m_binBase.size() - 1), m_noData };
    const bool stream = qint64(width) * height * qint64(sizeof(quint32)) >= kStreamedBytes;
    HWY_DYNAMIC_DISPATCH(ColourRows)(params, values, size_t(width), size_t(height), ptrdiff_t(valueStride), out,
                                     ptrdiff_t(outStride), stream);
}

quint32 ColorTableLookup::NoDataColor() const
{
    return m_noData;
}

const char* ColorTableLookup::VectorTarget()
{
    return hwy::TargetName(HWY_DYNAMIC_DISPATCH(TargetOfThisCode)());
}
#endif // HWY_ONCE

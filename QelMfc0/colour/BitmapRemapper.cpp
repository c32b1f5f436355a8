// The image conversion of the colour modes. Highway compiles the vector form below once per
// instruction set (this file includes itself through foreach_target.h) and picks the best one
// the processor has on the first call.
#include "QelMfc0/colour/BitmapRemapper.h"

#include <QelMfc0/colour/ColorMap.h>
#include <QtEndian>
#include <QtGlobal>
#include <QtGui/qrgb.h>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifndef QEL_BITMAP_REMAPPER_SHARED
#define QEL_BITMAP_REMAPPER_SHARED
namespace qel_remap {
constexpr quint32 kKeyColor = 0xC0C0C0;
constexpr quint32 kColorMask = 0x00FFFFFFu;
constexpr quint32 kEmptySlot = 0xFF000000u; // equals no pixel's colour (24 bits)

enum class Scaling { none, linear, corrected };
enum class Lookup { none, direct, displaced };

// What one vector form needs of a remapper, copied out of it per call.
struct Params {
    quint32 invert;
    quint32 multiplier[3];
    quint32 addend[3];
    int shift[3];
    const quint32* corrections[3]; // corrected: 256 bits in 16 words
    const uint64_t* slotTable;
    const quint32* displacements;
    quint32 slotHash;
    int slotShift;
    quint32 bucketHash;
    int bucketShift;
    bool rgbaBytes;     // bytes R, G, B, A in memory rather than an 0xAARRGGBB word
    bool premultiplied; // colour premultiplied by alpha
};
} // namespace qel_remap
#endif

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "QelMfc0/colour/BitmapRemapper.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace qel_remap {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using D = hn::ScalableTag<uint32_t>;
using DI = hn::RebindToSigned<D>;
using V = hn::Vec<D>;

HWY_INLINE V Gather(const quint32* table, V index)
{
    return hn::GatherIndex(D(), table, hn::BitCast(DI(), index));
}

// An 0xAARRGGBB word from a pixel whose bytes are R, G, B, A in memory.
HWY_INLINE V WordFromRgbaBytes(V v)
{
    const D d;
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
    // 0xAABBGGRR: red and blue change places.
    const V byte = hn::Set(d, 0xFF);
    return hn::Or(hn::And(v, hn::Set(d, 0xFF00FF00u)),
                  hn::Or(hn::ShiftLeft<16>(hn::And(v, byte)), hn::And(hn::ShiftRight<16>(v), byte)));
#else
    (void)d;
    return hn::Or(hn::ShiftRight<8>(v), hn::ShiftLeft<24>(v)); // 0xRRGGBBAA
#endif
}

HWY_INLINE V RgbaBytesFromWord(V v)
{
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
    return WordFromRgbaBytes(v);
#else
    return hn::Or(hn::ShiftLeft<8>(v), hn::ShiftRight<24>(v));
#endif
}

// qUnpremultiply of every lane. Its shortcuts need no lanes of their own: Qt's factor for
// alpha 255 keeps every channel and the one for alpha 0 clears them.
HWY_INLINE V Unpremultiply(V p)
{
    const D d;
    const V byte = hn::Set(d, 0xFF);
    const V half = hn::Set(d, 0x8000);
    const V alpha = hn::ShiftRight<24>(p);
    const V factor = Gather(qt_inv_premul_factor, alpha);
    const V red = hn::And(hn::ShiftRight<16>(hn::And(hn::ShiftRight<16>(p), byte) * factor + half), byte);
    const V green = hn::And(hn::ShiftRight<16>(hn::And(hn::ShiftRight<8>(p), byte) * factor + half), byte);
    const V blue = hn::And(hn::ShiftRight<16>(hn::And(p, byte) * factor + half), byte);
    return hn::Or(hn::Or(hn::ShiftLeft<24>(alpha), hn::ShiftLeft<16>(red)), hn::Or(hn::ShiftLeft<8>(green), blue));
}

// qPremultiply of every lane.
HWY_INLINE V Premultiply(V x)
{
    const D d;
    const V alpha = hn::ShiftRight<24>(x);
    const V redBlueMask = hn::Set(d, 0x00FF00FF);
    V redBlue = hn::And(x, redBlueMask) * alpha;
    redBlue = hn::ShiftRight<8>(redBlue + hn::And(hn::ShiftRight<8>(redBlue), redBlueMask) + hn::Set(d, 0x00800080));
    redBlue = hn::And(redBlue, redBlueMask);
    V green = hn::And(hn::ShiftRight<8>(x), hn::Set(d, 0xFF)) * alpha;
    green = green + hn::And(hn::ShiftRight<8>(green), hn::Set(d, 0xFF)) + hn::Set(d, 0x80);
    green = hn::And(green, hn::Set(d, 0xFF00));
    return hn::Or(hn::Or(green, redBlue), hn::ShiftLeft<24>(alpha));
}

// Word `index` (0..7) of a 256-bit correction, in every lane.
HWY_INLINE V CorrectionWord(const quint32* words, V index)
{
#if HWY_TARGET == HWY_AVX2 || HWY_TARGET == HWY_AVX3 || HWY_TARGET == HWY_AVX3_DL
    // The eight words fit one register: a lane permutation instead of loads.
    const D d;
    return hn::TableLookupLanes(hn::LoadU(d, words), hn::IndicesFromVec(d, index));
#else
    return Gather(words, index);
#endif
}

// One channel (its value in the low byte of every lane) scaled as the converter's table has it.
template <Scaling kScaling>
HWY_INLINE V ScaleChannel(const Params& p, size_t channel, V value)
{
    const D d;
    V scaled = hn::Min(hn::ShiftRightSame(value * hn::Set(d, p.multiplier[channel]) + hn::Set(d, p.addend[channel]),
                                          p.shift[channel]),
                       hn::Set(d, 0xFF));
    if constexpr (kScaling == Scaling::corrected) {
        const V word = CorrectionWord(p.corrections[channel], hn::ShiftRight<5>(value));
        scaled = scaled + hn::And(word >> hn::And(value, hn::Set(d, 31)), hn::Set(d, 1));
    }
    return hn::ShiftLeftSame(scaled, int(8 * channel));
}

// The colour and the substitute in the slots, from one 64-bit load per lane.
HWY_INLINE void LoadSlots(const uint64_t* table, V slot, V& colors, V& substitutes)
{
    const D d;
#if HWY_TARGET == HWY_SCALAR
    quint32 pair[2];
    std::memcpy(pair, table + hn::GetLane(slot), sizeof(pair));
    colors = hn::Set(d, pair[0]);
    substitutes = hn::Set(d, pair[1]);
#else
    const hn::Half<DI> dh;
    const hn::Repartition<int64_t, D> d64;
    const hn::Repartition<uint64_t, D> du64;
    const auto index = hn::BitCast(DI(), slot);
    const auto slotsLow = hn::BitCast(d, hn::GatherIndex(du64, table, hn::PromoteTo(d64, hn::LowerHalf(dh, index))));
    const auto slotsHigh = hn::BitCast(d, hn::GatherIndex(du64, table, hn::PromoteTo(d64, hn::UpperHalf(dh, index))));
    // The colour is the first word of a slot in memory, whatever the byte order.
    colors = hn::ConcatEven(d, slotsHigh, slotsLow);
    substitutes = hn::ConcatOdd(d, slotsHigh, slotsLow);
#endif
}

// The conversion of straight 0xAARRGGBB words, as BitmapRemapper::RemapPixel does it.
template <Scaling kScaling, Lookup kLookup>
HWY_INLINE V Convert(const Params& p, V pixel)
{
    const D d;
    const V colorMask = hn::Set(d, kColorMask);
    const V color = hn::And(pixel, colorMask);
    const V alpha = hn::AndNot(colorMask, pixel);
    V out;
    if constexpr (kScaling == Scaling::none) {
        out = hn::Xor(pixel, hn::Set(d, p.invert));
    } else {
        const V byte = hn::Set(d, 0xFF);
        const V c = hn::Xor(color, hn::Set(d, p.invert));
        const V red = ScaleChannel<kScaling>(p, 0, hn::And(c, byte));
        const V green = ScaleChannel<kScaling>(p, 1, hn::And(hn::ShiftRight<8>(c), byte));
        const V blue = ScaleChannel<kScaling>(p, 2, hn::ShiftRight<16>(c));
        out = hn::Or(hn::Or(alpha, red), hn::Or(green, blue));
    }
    if constexpr (kLookup != Lookup::none) {
        V slot = hn::ShiftRightSame(color * hn::Set(d, p.slotHash), p.slotShift);
        if constexpr (kLookup == Lookup::displaced) {
            const V bucket = hn::ShiftRightSame(color * hn::Set(d, p.bucketHash), p.bucketShift);
            slot = hn::Xor(slot, Gather(p.displacements, bucket));
        }
        // Every lane reads its slot: substituted pixels scattered among others would make a
        // branch unpredictable.
        V colors, substitutes;
        LoadSlots(p.slotTable, slot, colors, substitutes);
        out = hn::IfThenElse(colors == color, hn::Or(alpha, substitutes), out);
    }
    return hn::IfThenElse(color == hn::Set(d, kKeyColor), pixel, out);
}

template <Scaling kScaling, Lookup kLookup>
HWY_INLINE V ConvertLayout(const Params& p, V v)
{
    // The layout flags are the same for every vector of a call: the branches are predicted.
    if (p.rgbaBytes)
        v = WordFromRgbaBytes(v);
    if (p.premultiplied)
        v = Unpremultiply(v);
    v = Convert<kScaling, kLookup>(p, v);
    if (p.premultiplied)
        v = Premultiply(v);
    if (p.rgbaBytes)
        v = RgbaBytesFromWord(v);
    return v;
}

template <Scaling kScaling, Lookup kLookup>
HWY_NOINLINE void RemapSpan(const Params& params, quint32* HWY_RESTRICT pixels, size_t count)
{
    const Params p = params; // a local copy: the stores below cannot change it
    const D d;
    const size_t lanes = hn::Lanes(d);
    size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        hn::StoreU(ConvertLayout<kScaling, kLookup>(p, hn::LoadU(d, pixels + i)), d, pixels + i);
    if (i < count) {
        // The last, partial vector through a buffer; its unused lanes convert zeros.
        HWY_ALIGN quint32 buffer[HWY_MAX_BYTES / sizeof(quint32)] = {};
        std::copy(pixels + i, pixels + count, buffer);
        hn::Store(ConvertLayout<kScaling, kLookup>(p, hn::Load(d, buffer)), d, buffer);
        std::copy(buffer, buffer + (count - i), pixels + i);
    }
}

template <Scaling kScaling>
void RemapWithScaling(const Params& p, Lookup lookup, quint32* pixels, size_t count)
{
    switch (lookup) {
    case Lookup::none:
        return RemapSpan<kScaling, Lookup::none>(p, pixels, count);
    case Lookup::direct:
        return RemapSpan<kScaling, Lookup::direct>(p, pixels, count);
    case Lookup::displaced:
        return RemapSpan<kScaling, Lookup::displaced>(p, pixels, count);
    }
}

void RemapPixels(const Params& p, Scaling scaling, Lookup lookup, quint32* pixels, size_t count)
{
    switch (scaling) {
    case Scaling::none:
        return RemapWithScaling<Scaling::none>(p, lookup, pixels, count);
    case Scaling::linear:
        return RemapWithScaling<Scaling::linear>(p, lookup, pixels, count);
    case Scaling::corrected:
        return RemapWithScaling<Scaling::corrected>(p, lookup, pixels, count);
    }
}

int64_t TargetOfThisCode()
{
    return HWY_TARGET;
}
} // namespace HWY_NAMESPACE
} // namespace qel_remap
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace qel_remap {
HWY_EXPORT(RemapPixels);
HWY_EXPORT(TargetOfThisCode);

// Odd multipliers for the hashes, the same sequence in every run.
class Multipliers
{
public:
    quint32 Next()
    {
        m_state = m_state * 6364136223846793005ull + 1442695040888963407ull;
        return quint32(m_state >> 32) | 1u;
    }

private:
    quint64 m_state = 0x853C49E6748FEA9Bull;
};

int BitsFor(size_t count)
{
    int bits = 0;
    while ((size_t(1) << bits) < count)
        ++bits;
    return bits;
}

// A slot: the colour first in memory, then its substitute.
uint64_t Slot(quint32 color, quint32 substitute)
{
    const quint32 pair[2] = { color, substitute };
    uint64_t slot = 0;
    std::memcpy(&slot, pair, sizeof(slot));
    return slot;
}
} // namespace qel_remap

using namespace qel_remap;

BitmapRemapper::BitmapRemapper()
    : BitmapRemapper(ColorMap(), ColorConverter())
{
}

BitmapRemapper::BitmapRemapper(const ColorMap& map, const ColorConverter& converter)
    : m_invert(converter.GetInvert() ? kColorMask : 0u)
{
    const ColorConverter::ScaleTable& scale = converter.GetScaleTable();
    bool scaled = false;
    for (size_t channel = 0; channel < 3; ++channel) {
        for (size_t value = 0; value < 256; ++value) {
            m_channels[channel][value] = quint32(scale[channel][value]) << (8 * channel);
            scaled = scaled || scale[channel][value] != value;
        }
    }
    // The key colour is never substituted, and a colour with a top byte is no pixel's colour.
    for (const auto& [from, to] : map.Substitutions())
        if (from <= kColorMask && from != kKeyColor)
            m_substitutions.emplace_back(from, to & kColorMask);
    m_identity = !scaled && m_invert == 0 && m_substitutions.empty();

    // The scaling in exact arithmetic where it can be, else with a correction of one here and
    // there (the table rounds some halves down, others up).
    const double factors[3] = { converter.GetRedFactor(), converter.GetGreenFactor(), converter.GetBlueFactor() };
    if (!scaled)
        m_scaling = Scaling::none;
    else if (FitChannel(0, factors[0], true) && FitChannel(1, factors[1], true) && FitChannel(2, factors[2], true))
        m_scaling = Scaling::linear;
    else if (FitChannel(0, factors[0], false) && FitChannel(1, factors[1], false) && FitChannel(2, factors[2], false))
        m_scaling = Scaling::corrected;
    else
        m_vector = false;

    if (m_substitutions.empty()) {
        m_lookup = Lookup::none;
    } else if (BuildDirectLookup()) {
        m_lookup = Lookup::direct;
    } else {
        // Many colours: two levels, with room to spare, in larger tables when a size fails.
        const int slotBits = BitsFor(m_substitutions.size()) + 1;
        bool built = false;
        for (int extra = 0; extra < 6 && !built; ++extra)
            built = BuildDisplacedLookup(slotBits + extra, std::max(0, slotBits - 2 + extra));
        m_lookup = Lookup::displaced;
        m_vector = m_vector && built;
    }
}

bool BitmapRemapper::FitChannel(size_t channel, double factor, bool exact)
{
    // Finds multiplier, addend and shift such that min(255, (v * multiplier + addend) >> shift)
    // is the table's value for every v (exact), or that value or one less (the correction
    // adds the one). The multiplier is taken near the factor, from the finest shift down; for
    // each, the addends that fit form a range, and the smallest is taken. The table decides.
    std::array<qint64, 256> table {};
    for (size_t v = 0; v < 256; ++v)
        table[v] = qint64(m_channels[channel][v] >> (8 * channel));
    for (int shift = 24; shift >= 0; --shift) {
        const qint64 one = qint64(1) << shift;
        const qint64 largest = (qint64(0xFFFFFFFF) - one) / 255; // no product overflows 32 bits
        const qint64 base = factor * double(one) >= double(largest) ? largest : qint64(std::llround(factor * double(one)));
        for (qint64 step = 0; step <= 16; ++step) {
            const qint64 multiplier = base + (step % 2 == 0 ? step / 2 : -(step + 1) / 2);
            if (multiplier < 0 || multiplier > largest)
                continue;
            qint64 low = 0;
            qint64 high = qint64(0xFFFFFFFF) - 255 * multiplier;
            for (qint64 v = 0; v < 256 && low <= high; ++v) {
                const qint64 product = v * multiplier;
                const qint64 least = exact ? table[size_t(v)] : std::max<qint64>(table[size_t(v)] - 1, 0);
                low = std::max(low, least * one - product);
                if (table[size_t(v)] < 255)
                    high = std::min(high, (table[size_t(v)] + 1) * one - 1 - product);
            }
            if (low > high)
                continue;
            m_multiplier[channel] = quint32(multiplier);
            m_addend[channel] = quint32(low);
            m_shift[channel] = shift;
            m_corrections[channel].fill(0);
            for (qint64 v = 0; v < 256; ++v) {
                const qint64 scaled = std::min<qint64>(255, (v * multiplier + low) >> shift);
                if (table[size_t(v)] != scaled)
                    m_corrections[channel][size_t(v) >> 5] |= 1u << (v & 31);
            }
            return true;
        }
    }
    return false;
}

bool BitmapRemapper::BuildDirectLookup()
{
    // One multiplicative hash under which every substituted colour has a slot of its own. The
    // table is kept small (it is read for every pixel): a size where a random multiplier
    // succeeds about once in fifty tries, at most 4096 slots (a few hundred colours).
    const size_t n = m_substitutions.size();
    int bits = std::max(4, BitsFor(n) + 1);
    const auto crowding = [n](int b) { return double(n) * double(n) / double(size_t(1) << (b + 1)); };
    while (bits < 12 && crowding(bits) > 4.0)
        ++bits;
    if (crowding(bits) > 10.0)
        return false; // too many colours for one level: hardly a multiplier would do
    const size_t slotCount = size_t(1) << bits;
    std::vector<quint32> stamp(slotCount, 0);
    Multipliers multipliers;
    for (quint32 attempt = 1; attempt <= 20000; ++attempt) {
        const quint32 hash = multipliers.Next();
        bool unique = true;
        for (size_t i = 0; i < n && unique; ++i) {
            quint32& mark = stamp[(m_substitutions[i].first * hash) >> (32 - bits)];
            unique = mark != attempt;
            mark = attempt;
        }
        if (!unique)
            continue;
        m_slots.assign(slotCount, Slot(kEmptySlot, 0));
        for (const auto& [from, to] : m_substitutions)
            m_slots[(from * hash) >> (32 - bits)] = Slot(from, to);
        m_slotHash = hash;
        m_slotShift = 32 - bits;
        return true;
    }
    return false;
}

bool BitmapRemapper::BuildDisplacedLookup(int slotBits, int bucketBits)
{
    // Hash and displace: the colours fall into buckets by one hash; each bucket, the largest
    // first, gets the displacement (xor-ed into a second hash) that puts all its colours into
    // free slots.
    const size_t slotCount = size_t(1) << slotBits;
    const size_t buckets = size_t(1) << bucketBits;
    Multipliers multipliers;
    for (int attempt = 0; attempt < 64; ++attempt) {
        const quint32 bucketHash = bucketBits == 0 ? 0u : multipliers.Next();
        const quint32 slotHash = multipliers.Next();
        const auto bucketOf = [&](quint32 color) { return bucketBits == 0 ? 0u : (color * bucketHash) >> (32 - bucketBits); };
        const auto slotOf = [&](quint32 color) { return (color * slotHash) >> (32 - slotBits); };

        std::vector<std::vector<quint32>> members(buckets);
        for (const auto& entry : m_substitutions)
            members[bucketOf(entry.first)].push_back(entry.first);
        std::vector<size_t> order(buckets);
        for (size_t b = 0; b < buckets; ++b)
            order[b] = b;
        std::stable_sort(order.begin(), order.end(),
                         [&](size_t a, size_t b) { return members[a].size() > members[b].size(); });

        std::vector<bool> used(slotCount, false);
        std::vector<quint32> displacements(buckets, 0u);
        bool placedAll = true;
        for (size_t b : order) {
            if (members[b].empty())
                break;
            bool placed = false;
            for (quint32 displacement = 0; displacement < slotCount && !placed; ++displacement) {
                placed = true;
                for (size_t i = 0; i < members[b].size() && placed; ++i) {
                    const quint32 slot = slotOf(members[b][i]) ^ displacement;
                    placed = !used[slot];
                    // Two colours of the bucket in one slot: no displacement separates them.
                    for (size_t k = 0; k < i && placed; ++k)
                        placed = (slotOf(members[b][k]) ^ displacement) != slot;
                }
                if (placed) {
                    displacements[b] = displacement;
                    for (quint32 color : members[b])
                        used[slotOf(color) ^ displacement] = true;
                }
            }
            if (!placed) {
                placedAll = false;
                break;
            }
        }
        if (!placedAll)
            continue;

        m_slots.assign(slotCount, Slot(kEmptySlot, 0));
        for (const auto& [from, to] : m_substitutions)
            m_slots[slotOf(from) ^ displacements[bucketOf(from)]] = Slot(from, to);
        m_displacements = std::move(displacements);
        m_slotHash = slotHash;
        m_slotShift = 32 - slotBits;
        // A multiplier of 0 puts every colour into bucket 0, without a shift by 32.
        m_bucketHash = bucketHash;
        m_bucketShift = bucketBits == 0 ? 31 : 32 - bucketBits;
        return true;
    }
    return false;
}

quint32 BitmapRemapper::RemapPixel(quint32 pixel) const
{
    const quint32 color = pixel & kColorMask;
    if (color == kKeyColor)
        return pixel;
    const quint32 alpha = pixel & ~kColorMask;
    const auto at = std::lower_bound(m_substitutions.begin(), m_substitutions.end(), color,
                                     [](const auto& entry, quint32 c) { return entry.first < c; });
    if (at != m_substitutions.end() && at->first == color)
        return alpha | at->second;
    const quint32 c = color ^ m_invert;
    return alpha | m_channels[0][c & 0xFF] | m_channels[1][(c >> 8) & 0xFF] | m_channels[2][c >> 16];
}

void BitmapRemapper::Remap(quint32* pixels, qsizetype count, PixelLayout layout) const
{
    if (m_identity || !pixels || count <= 0)
        return;
    if (!m_vector) {
        RemapPixelByPixel(pixels, count, layout);
        return;
    }
    Params params {};
    params.invert = m_invert;
    for (size_t channel = 0; channel < 3; ++channel) {
        params.multiplier[channel] = m_multiplier[channel];
        params.addend[channel] = m_addend[channel];
        params.shift[channel] = m_shift[channel];
        params.corrections[channel] = m_corrections[channel].data();
    }
    params.slotTable = m_slots.data();
    params.displacements = m_displacements.data();
    params.slotHash = m_slotHash;
    params.slotShift = m_slotShift;
    params.bucketHash = m_bucketHash;
    params.bucketShift = m_bucketShift;
    params.rgbaBytes = layout == PixelLayout::Rgba8888 || layout == PixelLayout::Rgba8888Premultiplied;
    params.premultiplied = layout == PixelLayout::Argb32Premultiplied || layout == PixelLayout::Rgba8888Premultiplied;
    const qel_remap::Scaling scaling = m_scaling == Scaling::linear      ? qel_remap::Scaling::linear
                                     : m_scaling == Scaling::corrected ? qel_remap::Scaling::corrected
                                                                       : qel_remap::Scaling::none;
    const qel_remap::Lookup lookup = m_lookup == Lookup::direct    ? qel_remap::Lookup::direct
                                   : m_lookup == Lookup::displaced ? qel_remap::Lookup::displaced
                                                                   : qel_remap::Lookup::none;
    HWY_DYNAMIC_DISPATCH(RemapPixels)(params, scaling, lookup, pixels, size_t(count));
}

void BitmapRemapper::RemapPixelByPixel(quint32* pixels, qsizetype count, PixelLayout layout) const
{
    const bool rgba = layout == PixelLayout::Rgba8888 || layout == PixelLayout::Rgba8888Premultiplied;
    const bool premultiplied = layout == PixelLayout::Argb32Premultiplied || layout == PixelLayout::Rgba8888Premultiplied;
    const auto swapped = [](quint32 v) { return (v & 0xFF00FF00u) | ((v & 0xFFu) << 16) | ((v >> 16) & 0xFFu); };
    for (qsizetype i = 0; i < count; ++i) {
        quint32 v = pixels[i];
        if (rgba)
            v = swapped(qFromLittleEndian(v));
        if (premultiplied)
            v = qUnpremultiply(v);
        v = RemapPixel(v);
        if (premultiplied)
            v = qPremultiply(v);
        pixels[i] = rgba ? qToLittleEndian(swapped(v)) : v;
    }
}

const char* BitmapRemapper::VectorTarget()
{
    return hwy::TargetName(HWY_DYNAMIC_DISPATCH(TargetOfThisCode)());
}
#endif // HWY_ONCE

// The sonar palettes. Highway compiles the image form below once per instruction set (this file
// includes itself through foreach_target.h) and picks the best one the processor has on the
// first call.
#include "QelMfc0/dialogs/colourtables/SonarPalette.h"

#include <QelBase/ColorTable.h>
#include <QelBase/QelTypes.h>
#include <QelMfc0/colour/ColorControl.h>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#ifndef QEL_SONAR_PALETTE_SHARED
#define QEL_SONAR_PALETTE_SHARED
namespace qel_sonar {
// One image to colour: rows of samples and of pixels, strides in samples and in pixels.
struct ImageParams {
    const quint8* samples;
    size_t width;
    size_t height;
    ptrdiff_t sampleStride;
    const quint32* palette;
    quint32* out;
    ptrdiff_t outStride;
    bool stream; // write past the memory caches (where that pays: the byte-permute form)
};
} // namespace qel_sonar
#endif

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "QelMfc0/dialogs/colourtables/SonarPalette.cpp"
#include <hwy/foreach_target.h>
#include <hwy/cache_control.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace qel_sonar {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// With gathers from the 256 packed pixels. Streaming stores make gathers slower, and with plain
// stores they are about as fast as copying the image.
using DU = hn::ScalableTag<uint32_t>;
using DI = hn::RebindToSigned<DU>;
using D8 = hn::Rebind<uint8_t, DU>; // one sample per pixel lane
using VU = hn::Vec<DU>;

// The pixels of one vector of samples.
HWY_INLINE VU PixelsOf(const quint32* HWY_RESTRICT palette, const quint8* HWY_RESTRICT samples)
{
    const auto index = hn::PromoteTo(DI(), hn::LoadU(D8(), samples));
    return hn::GatherIndex(DU(), palette, index);
}

HWY_NOINLINE void ApplyGathered(const ImageParams& params)
{
    const ImageParams p = params; // a local copy: the stores below cannot change it
    const DU du;
    const size_t lanes = hn::Lanes(du);
    for (size_t y = 0; y < p.height; ++y) {
        const quint8* HWY_RESTRICT row = p.samples + ptrdiff_t(y) * p.sampleStride;
        quint32* HWY_RESTRICT target = p.out + ptrdiff_t(y) * p.outStride;
        size_t i = 0;
        for (; i + 4 * lanes <= p.width; i += 4 * lanes) {
            const VU v0 = PixelsOf(p.palette, row + i);
            const VU v1 = PixelsOf(p.palette, row + i + lanes);
            const VU v2 = PixelsOf(p.palette, row + i + 2 * lanes);
            const VU v3 = PixelsOf(p.palette, row + i + 3 * lanes);
            hn::StoreU(v0, du, target + i);
            hn::StoreU(v1, du, target + i + lanes);
            hn::StoreU(v2, du, target + i + 2 * lanes);
            hn::StoreU(v3, du, target + i + 3 * lanes);
        }
        for (; i + lanes <= p.width; i += lanes)
            hn::StoreU(PixelsOf(p.palette, row + i), du, target + i);
        for (; i < p.width; ++i) // fewer than a vector: no vector load may read past the row
            target[i] = p.palette[row[i]];
    }
}

#undef QEL_SONAR_BYTE_PERMUTES
#if HWY_TARGET == HWY_AVX3 && HWY_COMPILER_GCC
// Processors with byte permutes over 128 bytes (AVX-512 VBMI, Highway's AVX3_DL) take them:
// each byte of the pixels (blue, green, red, alpha) from its own 256-byte plane, four 64-byte
// vectors, by two permutes and a blend on the sample's top bit; then the four planes are
// interleaved into 64 pixels. Twice as fast as gathers, and faster than copying the image
// when written past the caches. Compiled here with the extra instructions (rather than as a
// target of its own, which would have to be enabled for every user of Highway in the library
// alike) and taken only when the processor has them.
#define QEL_SONAR_BYTE_PERMUTES 1
#define QEL_SONAR_VBMI __attribute__((target(HWY_TARGET_STR ",avx512vbmi")))
constexpr size_t kBlock = 64;

struct BytePlanes {
    __m512i table[4][4];
};

QEL_SONAR_VBMI inline BytePlanes PlanesOf(const quint32* palette)
{
    alignas(64) quint8 bytes[4][256];
    for (size_t i = 0; i < 256; ++i)
        for (size_t c = 0; c < 4; ++c)
            bytes[c][i] = quint8(palette[i] >> (8 * c));
    BytePlanes planes;
    for (size_t c = 0; c < 4; ++c)
        for (size_t q = 0; q < 4; ++q)
            planes.table[c][q] = _mm512_load_si512(bytes[c] + 64 * q);
    return planes;
}

// The pixels of 64 samples, in four vectors of 16.
QEL_SONAR_VBMI inline void Block(const BytePlanes& t, const quint8* HWY_RESTRICT samples, __m512i pixels[4])
{
    const __m512i index = _mm512_loadu_si512(samples);
    const __mmask64 high = _mm512_movepi8_mask(index);
    __m512i channel[4];
    for (size_t c = 0; c < 4; ++c) {
        const __m512i low = _mm512_permutex2var_epi8(t.table[c][0], index, t.table[c][1]);
        const __m512i top = _mm512_permutex2var_epi8(t.table[c][2], index, t.table[c][3]);
        channel[c] = _mm512_mask_blend_epi8(high, low, top);
    }
    const __m512i bgLow = _mm512_unpacklo_epi8(channel[0], channel[1]);
    const __m512i bgHigh = _mm512_unpackhi_epi8(channel[0], channel[1]);
    const __m512i raLow = _mm512_unpacklo_epi8(channel[2], channel[3]);
    const __m512i raHigh = _mm512_unpackhi_epi8(channel[2], channel[3]);
    // Block k (128 bits) of these holds pixels 16k + 0..3, 4..7, 8..11 and 12..15.
    const __m512i p0 = _mm512_unpacklo_epi16(bgLow, raLow);
    const __m512i p1 = _mm512_unpackhi_epi16(bgLow, raLow);
    const __m512i p2 = _mm512_unpacklo_epi16(bgHigh, raHigh);
    const __m512i p3 = _mm512_unpackhi_epi16(bgHigh, raHigh);
    const __m512i a = _mm512_shuffle_i64x2(p0, p1, 0x44); // blocks 0, 1 of p0, then of p1
    const __m512i b = _mm512_shuffle_i64x2(p2, p3, 0x44);
    const __m512i c = _mm512_shuffle_i64x2(p0, p1, 0xEE); // blocks 2, 3
    const __m512i d = _mm512_shuffle_i64x2(p2, p3, 0xEE);
    pixels[0] = _mm512_shuffle_i64x2(a, b, 0x88);
    pixels[1] = _mm512_shuffle_i64x2(a, b, 0xDD);
    pixels[2] = _mm512_shuffle_i64x2(c, d, 0x88);
    pixels[3] = _mm512_shuffle_i64x2(c, d, 0xDD);
}

QEL_SONAR_VBMI HWY_NOINLINE void ApplyPermuted(const ImageParams& params)
{
    const ImageParams p = params; // a local copy: the stores below cannot change it
    const BytePlanes planes = PlanesOf(p.palette);
    for (size_t y = 0; y < p.height; ++y) {
        const quint8* HWY_RESTRICT row = p.samples + ptrdiff_t(y) * p.sampleStride;
        quint32* HWY_RESTRICT target = p.out + ptrdiff_t(y) * p.outStride;
        size_t i = 0;
        __m512i pixels[4];
        const size_t misalignment = reinterpret_cast<uintptr_t>(target) % 64;
        if (p.stream && misalignment % sizeof(quint32) == 0) {
            // Past the memory caches: the first pixels up to an aligned vector, then whole
            // aligned vectors.
            const size_t head = std::min(p.width, (64 - misalignment) % 64 / sizeof(quint32));
            for (; i < head; ++i)
                target[i] = p.palette[row[i]];
            for (; i + kBlock <= p.width; i += kBlock) {
                Block(planes, row + i, pixels);
                for (size_t k = 0; k < 4; ++k)
                    _mm512_stream_si512(reinterpret_cast<__m512i*>(target + i + 16 * k), pixels[k]);
            }
        }
        for (; i + kBlock <= p.width; i += kBlock) {
            Block(planes, row + i, pixels);
            for (size_t k = 0; k < 4; ++k)
                _mm512_storeu_si512(target + i + 16 * k, pixels[k]);
        }
        for (; i < p.width; ++i) // fewer than a block: no vector load may read past the row
            target[i] = p.palette[row[i]];
    }
    if (p.stream)
        hwy::FlushStream();
}
#undef QEL_SONAR_VBMI
#else
#define QEL_SONAR_BYTE_PERMUTES 0
#endif

// True when this code takes the byte permutes (the processor has them and tests allow them).
bool BytePermutes()
{
#if QEL_SONAR_BYTE_PERMUTES
    return (hwy::SupportedTargets() & HWY_AVX3_DL) != 0;
#else
    return false;
#endif
}

HWY_NOINLINE void ApplyRows(const ImageParams& params)
{
#if QEL_SONAR_BYTE_PERMUTES
    if (BytePermutes())
        return ApplyPermuted(params);
#endif
    ApplyGathered(params);
}

int64_t TargetOfThisCode()
{
    return BytePermutes() ? HWY_AVX3_DL : HWY_TARGET;
}
} // namespace HWY_NAMESPACE
} // namespace qel_sonar
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace qel_sonar {
HWY_EXPORT(ApplyRows);
HWY_EXPORT(TargetOfThisCode);

// Outputs of this size and more are written past the memory caches (they would not stay in
// them anyway), which saves reading them in first.
constexpr qint64 kStreamedBytes = qint64(16) << 20;

// One ramp of a type: from the end of the previous one (or `from` and its colour for the
// first) to index `to` and its colour.
struct RampEnd {
    int to;
    int r, g, b;
};
struct Ramps {
    int from;
    int r, g, b;
    std::vector<RampEnd> ends;
};

const Ramps& RampOf(int type)
{
    static const Ramps ramps[SonarPalette::kRampTypes] = {
        { 0, 0, 16, 48,
          { { 32, 0, 32, 64 }, { 48, 16, 48, 80 }, { 64, 32, 64, 80 }, { 80, 48, 80, 80 },
            { 96, 64, 96, 80 }, { 112, 80, 112, 80 }, { 128, 96, 128, 80 }, { 144, 112, 144, 80 },
            { 160, 128, 160, 80 }, { 176, 144, 176, 80 }, { 192, 160, 192, 80 },
            { 208, 176, 208, 80 }, { 224, 208, 224, 64 }, { 240, 240, 240, 48 },
            { 255, 255, 255, 48 } } },
        { 0, 0, 0, 0, { { 255, 255, 255, 255 } } },
        { 0, 0, 0, 64, { { 64, 0, 0, 255 }, { 128, 0, 255, 255 }, { 192, 255, 255, 0 }, { 255, 255, 0, 0 } } },
        { 0, 0, 0, 0, { { 128, 161, 45, 4 }, { 255, 255, 255, 0 } } },
        { 0, 255, 255, 255, { { 255, 0, 0, 0 } } },
        { 0, 0, 0, 0,
          { { 2, 7, 3, 36 }, { 15, 14, 0, 123 }, { 32, 28, 0, 146 }, { 78, 175, 4, 178 },
            { 100, 249, 35, 89 }, { 180, 246, 94, 8 }, { 200, 251, 164, 5 }, { 232, 238, 232, 32 },
            { 248, 238, 254, 238 }, { 255, 255, 255, 255 } } },
    };
    return type >= 0 && type < SonarPalette::kRampTypes ? ramps[type] : ramps[SonarPalette::GreyRamp];
}

// `x` clamped to 0..255 and truncated; NaN gives 0.
int ByteOf(double x)
{
    return x >= 255.0 ? 255 : x > 0.0 ? int(x) : 0;
}
} // namespace qel_sonar

using namespace qel_sonar;

SonarPalette::SonarPalette() = default;
SonarPalette::~SonarPalette() = default;
SonarPalette::SonarPalette(const SonarPalette& other) = default;
SonarPalette::SonarPalette(SonarPalette&& other) noexcept = default;
SonarPalette& SonarPalette::operator=(const SonarPalette& other) = default;
SonarPalette& SonarPalette::operator=(SonarPalette&& other) noexcept = default;

void SonarPalette::Get_BGRA_Palette(int type, double brightness, double contrast, double gamma,
                                    std::vector<unsigned long>& out, unsigned char alpha, bool flag)
{
    GetPalette(type, brightness, contrast, gamma, false, out, alpha, flag);
}

void SonarPalette::Get_RGBA_Palette(int type, double brightness, double contrast, double gamma,
                                    std::vector<unsigned long>& out, unsigned char alpha, bool flag)
{
    GetPalette(type, brightness, contrast, gamma, true, out, alpha, flag);
}

void SonarPalette::Init_BGRA_Palette(int type, double brightness, double contrast, double gamma,
                                     unsigned char alpha, bool flag)
{
    std::vector<unsigned long> dropped;
    GetPalette(type, brightness, contrast, gamma, false, dropped, alpha, flag);
}

void SonarPalette::Init_RGBA_Palette(int type, double brightness, double contrast, double gamma,
                                     unsigned char alpha, bool flag)
{
    std::vector<unsigned long> dropped;
    GetPalette(type, brightness, contrast, gamma, true, dropped, alpha, flag);
}

void SonarPalette::GetPalette(int type, double brightness, double contrast, double gamma, bool rgba,
                              std::vector<unsigned long>& out, unsigned char alpha, bool flag)
{
    out.resize(kEntries);
    for (auto* table : { &m_red, &m_green, &m_blue })
        table->assign(kEntries, 0);
    for (auto* table : { &m_redF, &m_greenF, &m_blueF })
        table->assign(kEntries, 0.0f);

    const Ramps& ramp = RampOf(type);
    int from = ramp.from;
    int r = ramp.r, g = ramp.g, b = ramp.b;
    for (const RampEnd& end : ramp.ends) {
        RampColor(from, end.to, r, g, b, end.r, end.g, end.b);
        from = end.to;
        r = end.r;
        g = end.g;
        b = end.b;
    }

    const double c = std::pow(2.0, contrast / 25.0 * 8.0);
    const double e = std::max(0.01, (10.0 - gamma) / 10.0);
    const double shift = brightness / 25.0 * 255.0;
    const ColorControl& control = ColorControl::Instance();
    for (int i = 0; i < kEntries; ++i) {
        const double x = std::pow(i / 255.0, e) * 255.0 * c + shift + 0.5;
        const auto j = size_t(ByteOf(x));
        const COLORREF colour = control.GetColor(RGB(m_red[j], m_green[j], m_blue[j]), flag);
        const unsigned long red = GetRValue(colour), green = GetGValue(colour), blue = GetBValue(colour);
        const unsigned long high = (unsigned long)alpha << 24 | green << 8;
        out[size_t(i)] = rgba ? high | blue << 16 | red : high | red << 16 | blue;
    }
}

void SonarPalette::RampColor(int from, int to, int r1, int g1, int b1, int r2, int g2, int b2)
{
    const double steps = to - from;
    const double dr = steps != 0 ? (r2 - r1) / steps : 0.0;
    const double dg = steps != 0 ? (g2 - g1) / steps : 0.0;
    const double db = steps != 0 ? (b2 - b1) / steps : 0.0;
    double r = r1, g = g1, b = b1;
    for (int i = std::max(from, 0); i <= to && i < kEntries; ++i) {
        const auto k = size_t(i);
        m_red[k] = static_cast<unsigned char>(r);
        m_green[k] = static_cast<unsigned char>(g);
        m_blue[k] = static_cast<unsigned char>(b);
        m_redF[k] = float(r / 255.0);
        m_greenF[k] = float(g / 255.0);
        m_blueF[k] = float(b / 255.0);
        r += dr;
        g += dg;
        b += db;
    }
}

void SonarPalette::GetRGB(double value, double scale, double offset, float& r, float& g, float& b) const
{
    const auto j = size_t(ByteOf(value * scale + offset + 0.5));
    if (j >= m_redF.size() || j >= m_greenF.size() || j >= m_blueF.size())
        return;
    r = m_redF[j];
    g = m_greenF[j];
    b = m_blueF[j];
}

unsigned long SonarPalette::ScaleBGRA(unsigned long pixel, double factor)
{
    unsigned long scaled = pixel & ~0xFFFFFFul;
    for (int shift = 0; shift < 24; shift += 8)
        scaled |= (unsigned long)ByteOf(double((pixel >> shift) & 0xFF) * factor) << shift;
    return scaled;
}

ColorTable SonarPalette::GetVernierColorTable()
{
    ColorTable table;
    table.SetRange(0.0, 254.0, 256, RGB(255, 0, 255), RGB(255, 0, 0));
    return table;
}

std::vector<double> SonarPalette::GetVernierHues()
{
    const ColorTable table = GetVernierColorTable();
    std::vector<double> hues;
    hues.reserve(table.Entries().size());
    for (const ColorTable::Entry& entry : table.Entries()) {
        double hue = 0.0, saturation = 0.0, value = 0.0;
        ColorTable::RGBtoHSV(entry.color, hue, saturation, value);
        hues.push_back(hue);
    }
    return hues;
}

const std::vector<unsigned char>& SonarPalette::RedBytes() const
{
    return m_red;
}

const std::vector<unsigned char>& SonarPalette::GreenBytes() const
{
    return m_green;
}

const std::vector<unsigned char>& SonarPalette::BlueBytes() const
{
    return m_blue;
}

const std::vector<float>& SonarPalette::RedFloats() const
{
    return m_redF;
}

const std::vector<float>& SonarPalette::GreenFloats() const
{
    return m_greenF;
}

const std::vector<float>& SonarPalette::BlueFloats() const
{
    return m_blueF;
}

std::array<quint32, SonarPalette::kEntries> SonarPalette::Packed(const std::vector<unsigned long>& palette)
{
    std::array<quint32, kEntries> packed {};
    std::transform(palette.begin(), palette.begin() + std::min<ptrdiff_t>(ptrdiff_t(palette.size()), kEntries),
                   packed.begin(), [](unsigned long pixel) { return quint32(pixel); });
    return packed;
}

void SonarPalette::Apply(const quint8* samples, qsizetype count, const quint32* palette, quint32* out)
{
    if (count <= 0 || !samples || !palette || !out)
        return;
    const ImageParams params { samples, size_t(count), 1, 0, palette, out, 0,
                               qint64(count) * qint64(sizeof(quint32)) >= kStreamedBytes };
    HWY_DYNAMIC_DISPATCH(ApplyRows)(params);
}

void SonarPalette::ApplyImage(const uchar* samples, int width, int height, qsizetype sampleStride,
                              const quint32* palette, quint32* out, qsizetype outStride)
{
    if (width <= 0 || height <= 0 || !samples || !palette || !out)
        return;
    const ImageParams params { samples, size_t(width), size_t(height), ptrdiff_t(sampleStride), palette, out,
                               ptrdiff_t(outStride), qint64(width) * height * qint64(sizeof(quint32)) >= kStreamedBytes };
    HWY_DYNAMIC_DISPATCH(ApplyRows)(params);
}

const char* SonarPalette::VectorTarget()
{
    return hwy::TargetName(HWY_DYNAMIC_DISPATCH(TargetOfThisCode)());
}
#endif // HWY_ONCE

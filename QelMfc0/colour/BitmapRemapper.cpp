#include "QelMfc0/colour/BitmapRemapper.h"

#include <QelMfc0/colour/ColorMap.h>
#include <algorithm>
#include <cmath>
#include <utility>

#if defined(__GNUC__) && defined(__x86_64__)
#define QEL_REMAP_AVX2 1
#include <immintrin.h>
#endif

namespace {
constexpr quint32 kKeyColor = 0xC0C0C0;
constexpr int kSlotBits = 12; // 4096 slots for at most 255 colours
constexpr int kMaxVectorSubstitutions = 255;
constexpr quint32 kBloomHash[3] = { 0x9E3779B1u, 0x85EBCA77u, 0xC2B2AE3Du };

quint32 Slot(quint32 color, quint32 hash)
{
    return (color * hash) >> (32 - kSlotBits);
}

bool CpuHasAvx512()
{
#ifdef QEL_REMAP_AVX2
    static const bool has = __builtin_cpu_supports("avx512f");
    return has;
#else
    return false;
#endif
}

bool CpuHasAvx2()
{
#ifdef QEL_REMAP_AVX2
    static const bool has = __builtin_cpu_supports("avx2");
    return has;
#else
    return false;
#endif
}
} // namespace

BitmapRemapper::BitmapRemapper()
    : BitmapRemapper(ColorMap(), ColorConverter())
{
}

BitmapRemapper::BitmapRemapper(const ColorMap& map, const ColorConverter& converter)
    : m_scale(converter.GetScaleTable())
    , m_factors { converter.GetRedFactor(), converter.GetGreenFactor(), converter.GetBlueFactor() }
    , m_invert(converter.GetInvert() ? 0x00FFFFFFu : 0u)
{
    for (const auto& [from, to] : map.Substitutions())
        if (from <= 0x00FFFFFFu)
            m_substitutions.emplace_back(from, to & 0x00FFFFFFu);
    m_vector = CpuHasAvx2() && BuildVectorTables();
    m_wide = m_vector && CpuHasAvx512() && BuildWideTables();
}

bool BitmapRemapper::FindSubstitute(quint32 color, quint32& substitute) const
{
    const auto at = std::lower_bound(m_substitutions.begin(), m_substitutions.end(), color,
                                     [](const auto& entry, quint32 c) { return entry.first < c; });
    if (at == m_substitutions.end() || at->first != color)
        return false;
    substitute = at->second;
    return true;
}

quint32 BitmapRemapper::RemapPixel(quint32 pixel) const
{
    const quint32 color = pixel & 0x00FFFFFFu;
    if (color == kKeyColor)
        return pixel;
    const quint32 alpha = pixel & 0xFF000000u;
    quint32 substitute = 0;
    if (FindSubstitute(color, substitute))
        return alpha | substitute;
    const quint32 c = color ^ m_invert;
    return alpha | quint32(m_scale[0][c & 0xFF]) | (quint32(m_scale[1][(c >> 8) & 0xFF]) << 8)
         | (quint32(m_scale[2][c >> 16]) << 16);
}

void BitmapRemapper::Remap(quint32* pixels, qsizetype count) const
{
    if (m_wide) {
        RemapWide(pixels, count);
        return;
    }
    if (m_vector) {
        RemapVector(pixels, count);
        return;
    }
    for (qsizetype i = 0; i < count; ++i)
        pixels[i] = RemapPixel(pixels[i]);
}

bool BitmapRemapper::BuildVectorTables()
{
    // The channel scaling in fixed point, accepted only where it reproduces the table exactly.
    for (size_t channel = 0; channel < 3; ++channel) {
        const auto& table = m_scale[channel];
        const qint64 base = qint64(std::llround(std::min(m_factors[channel], 256.0) * 65536.0));
        bool found = false;
        // Nearly always the first candidate fits; the neighbours cover factors whose products
        // sit right on a rounding boundary.
        for (qint64 dm = 0; dm <= 16 && !found; dm = dm > 0 ? -dm : -dm + 1) {
            const qint64 multiplier = std::clamp<qint64>(base + dm, 0, qint64(1) << 24);
            for (qint64 da = 0; da <= 128 && !found; da = da > 0 ? -da : -da + 1) {
                const qint64 addend = 32768 + da;
                bool exact = true;
                for (qint64 x = 0; x < 256 && exact; ++x)
                    exact = std::min<qint64>(255, (x * multiplier + addend) >> 16) == table[size_t(x)];
                if (exact) {
                    m_multiplier[channel] = quint32(multiplier);
                    m_addend[channel] = quint32(addend);
                    found = true;
                }
            }
        }
        if (!found)
            return false;
    }

    if (m_substitutions.size() > size_t(kMaxVectorSubstitutions))
        return false;
    for (const auto& entry : m_substitutions)
        for (size_t k = 0; k < 3; ++k) {
            const quint32 bit = (entry.first * kBloomHash[k]) >> 24;
            m_bloom[k][bit >> 5] |= 1u << (bit & 31);
        }

    // A table in which every substituted colour has a slot of its own under one multiplicative
    // hash, so that a lookup is one probe: colour | (index << 24), 0 for an empty slot.
    m_substitutesByIndex.assign(1, 0u);
    for (const auto& entry : m_substitutions)
        m_substitutesByIndex.push_back(entry.second);
    quint32 hash = 0x9E3779B9u;
    for (int attempt = 0; attempt < 20000; ++attempt) {
        hash = (hash * 1664525u + 1013904223u) | 1u;
        m_slots.assign(size_t(1) << kSlotBits, 0u);
        bool unique = true;
        for (size_t index = 0; index < m_substitutions.size() && unique; ++index) {
            quint32& slot = m_slots[Slot(m_substitutions[index].first, hash)];
            unique = slot == 0;
            slot = m_substitutions[index].first | (quint32(index + 1) << 24);
        }
        if (unique) {
            m_slotHash = hash;
            return true;
        }
    }
    return false;
}

bool BitmapRemapper::BuildWideTables()
{
    if (m_substitutions.size() > 64)
        return false;
    for (size_t i = 0; i < m_substitutions.size(); ++i)
        m_wideSubstitutes[i] = m_substitutions[i].second;
    quint32 seed = 0x2545F491u;
    auto next = [&seed] { seed = seed * 1664525u + 1013904223u; return seed | 1u; };
    for (int attempt = 0; attempt < 2000; ++attempt) {
        const quint32 hash1 = next(), hash2 = next();
        std::array<std::vector<size_t>, 16> buckets;
        for (size_t i = 0; i < m_substitutions.size(); ++i)
            buckets[(m_substitutions[i].first * hash1) >> 28].push_back(i);
        std::array<size_t, 16> order {};
        for (size_t b = 0; b < 16; ++b)
            order[b] = b;
        std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return buckets[a].size() > buckets[b].size(); });
        std::array<bool, 128> used {};
        bool placedAll = true;
        for (size_t b : order) {
            bool placed = buckets[b].empty();
            for (quint32 displacement = 0; displacement < 128 && !placed; ++displacement) {
                std::array<bool, 128> trial = used;
                placed = true;
                for (size_t i : buckets[b]) {
                    const quint32 slot = ((m_substitutions[i].first * hash2) >> 25) ^ displacement;
                    placed = placed && !trial[slot];
                    trial[slot] = true;
                }
                if (placed) {
                    used = trial;
                    m_displacement[b] = displacement;
                }
            }
            if (!placed) {
                placedAll = false;
                break;
            }
        }
        if (!placedAll)
            continue;
        m_wideHash1 = hash1;
        m_wideHash2 = hash2;
        m_wideSlots.fill(0);
        for (size_t i = 0; i < m_substitutions.size(); ++i) {
            const quint32 color = m_substitutions[i].first;
            const quint32 slot = ((color * hash2) >> 25) ^ m_displacement[(color * hash1) >> 28];
            m_wideSlots[slot] = color | (quint32(i + 1) << 24);
        }
        return true;
    }
    return false;
}

#ifdef QEL_REMAP_AVX2
// The substitute of a pixel's colour from the one-probe table, else `converted` (the pixel
// already inverted and scaled).
static inline quint32 RemapPixelFast(quint32 pixel, const quint32* slotTable, const quint32* substitutes,
                                     quint32 slotHash, quint32 converted)
{
    const quint32 color = pixel & 0x00FFFFFFu;
    const quint32 slot = slotTable[Slot(color, slotHash)];
    const quint32 index = slot >> 24;
    const bool hit = index != 0 && (slot & 0x00FFFFFFu) == color && color != kKeyColor;
    return hit ? ((pixel & 0xFF000000u) | substitutes[index]) : converted;
}

// min(255, (channel * multiplier + addend) >> 16) in every lane.
__attribute__((target("avx2"))) static inline __m256i ScaleChannel(__m256i channel, __m256i multiplier, __m256i addend,
                                                                   __m256i byteMask)
{
    const __m256i scaled = _mm256_srli_epi32(_mm256_add_epi32(_mm256_mullo_epi32(channel, multiplier), addend), 16);
    return _mm256_min_epu32(scaled, byteMask);
}

__attribute__((target("avx2"))) void BitmapRemapper::RemapVector(quint32* pixels, qsizetype count) const
{
    const __m256i colorMask = _mm256_set1_epi32(0x00FFFFFF);
    const __m256i alphaMask = _mm256_set1_epi32(int(0xFF000000u));
    const __m256i byteMask = _mm256_set1_epi32(0xFF);
    const __m256i keyColor = _mm256_set1_epi32(int(kKeyColor));
    const __m256i invert = _mm256_set1_epi32(int(m_invert));
    const __m256i low5 = _mm256_set1_epi32(31);
    __m256i multiplier[3], addend[3], bloom[3], bloomHash[3];
    for (int k = 0; k < 3; ++k) {
        multiplier[k] = _mm256_set1_epi32(int(m_multiplier[size_t(k)]));
        addend[k] = _mm256_set1_epi32(int(m_addend[size_t(k)]));
        bloom[k] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(m_bloom[size_t(k)].data()));
        bloomHash[k] = _mm256_set1_epi32(int(kBloomHash[k]));
    }
    const quint32* slotTable = m_slots.data();
    const quint32* substitutes = m_substitutesByIndex.data();
    const quint32 slotHash = m_slotHash;
    quint32 lastPixel = 0;
    quint32 lastResult = RemapPixel(0);

    qsizetype i = 0;
    for (; i + 8 <= count; i += 8) {
        const __m256i pixel = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pixels + i));
        const __m256i color = _mm256_and_si256(pixel, colorMask);
        const __m256i c = _mm256_xor_si256(color, invert);
        const __m256i red = ScaleChannel(_mm256_and_si256(c, byteMask), multiplier[0], addend[0], byteMask);
        const __m256i green = ScaleChannel(_mm256_and_si256(_mm256_srli_epi32(c, 8), byteMask), multiplier[1], addend[1], byteMask);
        const __m256i blue = ScaleChannel(_mm256_srli_epi32(c, 16), multiplier[2], addend[2], byteMask);
        __m256i out = _mm256_or_si256(_mm256_or_si256(_mm256_and_si256(pixel, alphaMask), red),
                                      _mm256_or_si256(_mm256_slli_epi32(green, 8), _mm256_slli_epi32(blue, 16)));
        out = _mm256_blendv_epi8(out, pixel, _mm256_cmpeq_epi32(color, keyColor));

        // A lane may be substituted only when all three filter bits of its colour are set.
        __m256i maybe = _mm256_set1_epi32(1);
        for (int k = 0; k < 3; ++k) {
            const __m256i bit = _mm256_srli_epi32(_mm256_mullo_epi32(color, bloomHash[k]), 24);
            const __m256i word = _mm256_permutevar8x32_epi32(bloom[k], _mm256_srli_epi32(bit, 5));
            maybe = _mm256_and_si256(maybe, _mm256_srlv_epi32(word, _mm256_and_si256(bit, low5)));
        }
        if (!_mm256_testz_si256(maybe, maybe)) {
            // Flat areas: eight pixels of one colour need one lookup, and a run of such groups
            // none after the first.
            const __m256i first = _mm256_permutevar8x32_epi32(pixel, _mm256_setzero_si256());
            if (_mm256_movemask_epi8(_mm256_cmpeq_epi32(pixel, first)) == -1) {
                const quint32 p0 = quint32(_mm256_cvtsi256_si32(pixel));
                if (p0 != lastPixel) {
                    lastPixel = p0;
                    lastResult = RemapPixelFast(p0, slotTable, substitutes, slotHash, quint32(_mm256_cvtsi256_si32(out)));
                }
                out = _mm256_set1_epi32(int(lastResult));
            } else {
                alignas(32) quint32 in[8];
                alignas(32) quint32 result[8];
                _mm256_store_si256(reinterpret_cast<__m256i*>(in), pixel);
                _mm256_store_si256(reinterpret_cast<__m256i*>(result), out);
                // Only the lanes the filter let through (mostly one) are looked up.
                unsigned lanes = unsigned(_mm256_movemask_ps(_mm256_castsi256_ps(_mm256_slli_epi32(maybe, 31))));
                do {
                    const int lane = __builtin_ctz(lanes);
                    result[lane] = RemapPixelFast(in[lane], slotTable, substitutes, slotHash, result[lane]);
                    lanes &= lanes - 1;
                } while (lanes);
                out = _mm256_load_si256(reinterpret_cast<const __m256i*>(result));
            }
        }
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(pixels + i), out);
    }
    for (; i < count; ++i)
        pixels[i] = RemapPixel(pixels[i]);
}
// min(255, (channel * multiplier + addend) >> 16) in each of sixteen lanes.
__attribute__((target("avx512f"))) static inline __m512i ScaleChannel16(__m512i channel, __m512i multiplier, __m512i addend,
                                                                        __m512i byteMask)
{
    return _mm512_min_epu32(_mm512_srli_epi32(_mm512_add_epi32(_mm512_mullo_epi32(channel, multiplier), addend), 16), byteMask);
}

__attribute__((target("avx512f"))) void BitmapRemapper::RemapWide(quint32* pixels, qsizetype count) const
{
    const __m512i colorMask = _mm512_set1_epi32(0x00FFFFFF);
    const __m512i byteMask = _mm512_set1_epi32(0xFF);
    const __m512i keyColor = _mm512_set1_epi32(int(kKeyColor));
    const __m512i invert = _mm512_set1_epi32(int(m_invert));
    const __m512i hash1 = _mm512_set1_epi32(int(m_wideHash1));
    const __m512i hash2 = _mm512_set1_epi32(int(m_wideHash2));
    const __m512i displacement = _mm512_loadu_si512(m_displacement.data());
    __m512i slotRegs[8], substituteRegs[4];
    for (int r = 0; r < 8; ++r)
        slotRegs[r] = _mm512_loadu_si512(m_wideSlots.data() + 16 * r);
    for (int r = 0; r < 4; ++r)
        substituteRegs[r] = _mm512_loadu_si512(m_wideSubstitutes.data() + 16 * r);
    __m512i multiplier[3], addend[3];
    for (int k = 0; k < 3; ++k) {
        multiplier[k] = _mm512_set1_epi32(int(m_multiplier[size_t(k)]));
        addend[k] = _mm512_set1_epi32(int(m_addend[size_t(k)]));
    }

    qsizetype i = 0;
    for (; i + 16 <= count; i += 16) {
        const __m512i pixel = _mm512_loadu_si512(pixels + i);
        const __m512i color = _mm512_and_si512(pixel, colorMask);
        const __m512i c = _mm512_xor_si512(color, invert);
        const __m512i red = ScaleChannel16(_mm512_and_si512(c, byteMask), multiplier[0], addend[0], byteMask);
        const __m512i green = ScaleChannel16(_mm512_and_si512(_mm512_srli_epi32(c, 8), byteMask), multiplier[1], addend[1], byteMask);
        const __m512i blue = ScaleChannel16(_mm512_srli_epi32(c, 16), multiplier[2], addend[2], byteMask);
        const __m512i alpha = _mm512_andnot_si512(colorMask, pixel);
        __m512i out = _mm512_or_si512(_mm512_or_si512(alpha, red), _mm512_or_si512(_mm512_slli_epi32(green, 8), _mm512_slli_epi32(blue, 16)));

        // The slot of each colour, then its entry out of the 128 held in four registers.
        const __m512i bucket = _mm512_srli_epi32(_mm512_mullo_epi32(color, hash1), 28);
        const __m512i slot = _mm512_xor_si512(_mm512_srli_epi32(_mm512_mullo_epi32(color, hash2), 25),
                                              _mm512_permutexvar_epi32(bucket, displacement));
        const __mmask16 bit5 = _mm512_test_epi32_mask(slot, _mm512_set1_epi32(32));
        const __mmask16 bit6 = _mm512_test_epi32_mask(slot, _mm512_set1_epi32(64));
        const __m512i quarter0 = _mm512_permutex2var_epi32(slotRegs[0], slot, slotRegs[1]);
        const __m512i quarter1 = _mm512_permutex2var_epi32(slotRegs[2], slot, slotRegs[3]);
        const __m512i quarter2 = _mm512_permutex2var_epi32(slotRegs[4], slot, slotRegs[5]);
        const __m512i quarter3 = _mm512_permutex2var_epi32(slotRegs[6], slot, slotRegs[7]);
        const __m512i entry = _mm512_mask_blend_epi32(bit6, _mm512_mask_blend_epi32(bit5, quarter0, quarter1),
                                                      _mm512_mask_blend_epi32(bit5, quarter2, quarter3));
        const __m512i index = _mm512_srli_epi32(entry, 24);
        const __mmask16 hit = _mm512_cmpeq_epi32_mask(_mm512_and_si512(entry, colorMask), color)
                            & _mm512_test_epi32_mask(index, index) & _mm512_cmpneq_epi32_mask(color, keyColor);
        // Without a branch: scattered substituted pixels would make one unpredictable.
        const __m512i valueIndex = _mm512_sub_epi32(index, _mm512_set1_epi32(1));
        const __m512i lowValue = _mm512_permutex2var_epi32(substituteRegs[0], valueIndex, substituteRegs[1]);
        const __m512i highValue = _mm512_permutex2var_epi32(substituteRegs[2], valueIndex, substituteRegs[3]);
        const __mmask16 upperValue = _mm512_test_epi32_mask(valueIndex, _mm512_set1_epi32(32));
        const __m512i value = _mm512_mask_blend_epi32(upperValue, lowValue, highValue);
        out = _mm512_mask_blend_epi32(hit, out, _mm512_or_si512(alpha, value));
        out = _mm512_mask_blend_epi32(_mm512_cmpeq_epi32_mask(color, keyColor), out, pixel);
        _mm512_storeu_si512(pixels + i, out);
    }
    for (; i < count; ++i)
        pixels[i] = RemapPixel(pixels[i]);
}
#else
void BitmapRemapper::RemapWide(quint32* pixels, qsizetype count) const
{
    RemapVector(pixels, count);
}

void BitmapRemapper::RemapVector(quint32* pixels, qsizetype count) const
{
    for (qsizetype i = 0; i < count; ++i)
        pixels[i] = RemapPixel(pixels[i]);
}
#endif

#pragma once
// Converts the pixels of a 32-bit image (0xAARRGGBB words) in place for a colour mode, exactly
// as ColorControl::GetColor converts colours: the key colour 0xC0C0C0 and the alpha byte are
// kept, a substituted colour takes its substitute, any other is inverted and scaled. The lowest
// byte of a pixel gets the red factor.
//
// Night mode converts every image the suite shows, so the pixels are converted in vectors:
// sixteen at a time with AVX-512 when the map holds at most 64 colours (substitutes looked up
// in registers, without branches), else eight at a time with AVX2 (a Bloom filter in registers
// rules out substitutions for most pixels, a one-probe table serves the rest). Channel scaling
// is done in fixed point, used only where it reproduces the scale table exactly. Other
// processors, and compilers without GCC's target attributes, convert one pixel at a time.
// Every form gives the same pixels.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/QelTypes.h>
#include <QelMfc0/colour/ColorConverter.h>
#include <array>
#include <vector>

class ColorMap;
#include <utility>

class QELMFC0_EXPORT BitmapRemapper
{
public:
    // Converts nothing (identity) until built for a map and a converter.
    BitmapRemapper();
    // Takes what it needs of the map and the converter; later changes to them do not reach it.
    BitmapRemapper(const ColorMap& map, const ColorConverter& converter);

    // Converts `count` pixels in place.
    void Remap(quint32* pixels, qsizetype count) const;
    // Converts one pixel (the reference for the vector form).
    quint32 RemapPixel(quint32 pixel) const;
    // True when the eight-pixel (AVX2) or the sixteen-pixel (AVX-512) form is used on this
    // processor for this map.
    bool UsesVectorPath() const { return m_vector; }
    bool UsesWidePath() const { return m_wide; }

private:
    bool BuildVectorTables();
    bool BuildWideTables();
    void RemapVector(quint32* pixels, qsizetype count) const;
    void RemapWide(quint32* pixels, qsizetype count) const;

    bool FindSubstitute(quint32 color, quint32& substitute) const;

    ColorConverter::ScaleTable m_scale {};
    std::array<double, 3> m_factors { 1.0, 1.0, 1.0 };
    quint32 m_invert = 0;
    // Substitutions of colours without a top byte (the only ones a pixel can match), sorted.
    std::vector<std::pair<quint32, quint32>> m_substitutions;
    bool m_vector = false;

    // Channel scaling as (value * multiplier + addend) >> 16, checked to equal the table.
    std::array<quint32, 3> m_multiplier {};
    std::array<quint32, 3> m_addend {};
    // Three 256-bit Bloom filters of the substituted colours (one hash each).
    std::array<std::array<quint32, 8>, 3> m_bloom {};
    // One slot per substituted colour: colour | (index << 24), 0 for an empty slot; the
    // substitutes by index (index 0 unused).
    std::vector<quint32> m_slots;
    std::vector<quint32> m_substitutesByIndex;
    quint32 m_slotHash = 0;

    // Sixteen pixels at a time (AVX-512, at most 64 substituted colours): every substituted
    // colour has its own of 128 slots at ((colour * hash2) >> 25) ^ displacement[(colour *
    // hash1) >> 28], held in eight registers, so that the lookup needs no memory and no branch.
    bool m_wide = false;
    quint32 m_wideHash1 = 0;
    quint32 m_wideHash2 = 0;
    std::array<quint32, 16> m_displacement {};
    std::array<quint32, 128> m_wideSlots {}; // colour | (index << 24), 0 when empty
    std::array<quint32, 64> m_wideSubstitutes {}; // by index - 1
};

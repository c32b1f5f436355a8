#pragma once
// Converts the pixels of a 32-bit image in place for a colour mode, exactly as
// ColorControl::GetColor converts colours: the key colour 0xC0C0C0 and the alpha byte are kept,
// a substituted colour takes its substitute, any other is inverted and scaled. A pixel is taken
// as its 0xAARRGGBB word whatever the byte order of its image, and the lowest byte of that word
// (blue) gets the red factor, as colour-map files expect.
//
// Night mode converts every image the suite shows, so the pixels are converted in vectors on
// the widest instruction set of the processor, chosen when the program runs: each channel is
// scaled in fixed point fitted to the converter's 256-entry table (plus a one-bit correction
// per value where the table's rounding asks for it), and the substituted colours are found in
// a perfect hash table (one probe per pixel, no branch). Every map takes that path and it
// gives exactly the pixels of RemapPixel.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/QelTypes.h>
#include <QelMfc0/colour/ColorConverter.h>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

class ColorMap;

class QELMFC0_EXPORT BitmapRemapper
{
public:
    // How the four bytes of a pixel hold its channels.
    enum class PixelLayout {
        Argb32,                // 0xAARRGGBB words (QImage RGB32, ARGB32)
        Argb32Premultiplied,   // the same with the colour premultiplied by alpha
        Rgba8888,              // the bytes R, G, B, A in memory (QImage RGBX8888, RGBA8888)
        Rgba8888Premultiplied, // the same with the colour premultiplied by alpha
    };

    // Converts nothing (identity) until built for a map and a converter.
    BitmapRemapper();
    // Takes what it needs of the map and the converter; later changes to them do not reach it.
    BitmapRemapper(const ColorMap& map, const ColorConverter& converter);

    // Converts `count` pixels in place, each to what its 0xAARRGGBB word converts to; a
    // premultiplied pixel is converted in straight form and premultiplied again.
    void Remap(quint32* pixels, qsizetype count, PixelLayout layout = PixelLayout::Argb32) const;
    // Converts one 0xAARRGGBB pixel (the reference for the vector form).
    quint32 RemapPixel(quint32 pixel) const;
    // True when the conversion leaves every pixel as it is; Remap then returns at once.
    bool IsIdentity() const { return m_identity; }
    // The instruction set the conversion runs on in this process, as Highway names it ("AVX2",
    // "AVX3", "NEON", ...; "EMU128" or "SCALAR" where there is no vector unit).
    static const char* VectorTarget();

private:
    enum class Scaling { none, linear, corrected };
    enum class Lookup { none, direct, displaced };

    bool FitChannel(size_t channel, double factor, bool exact);
    bool BuildDirectLookup();
    bool BuildDisplacedLookup(int slotBits, int bucketBits);
    void RemapPixelByPixel(quint32* pixels, qsizetype count, PixelLayout layout) const;

    // Each channel's scaled value (of the colour already inverted), in its place in the word.
    std::array<std::array<quint32, 256>, 3> m_channels {};
    quint32 m_invert = 0;
    bool m_identity = true; // nothing changes at all
    bool m_vector = true;   // the vector form could be built (it always can, in practice)
    // The same in arithmetic for the vectors: channel value v scales to min(255, (v *
    // multiplier + addend) >> shift), plus bit v of the channel's correction (256 bits, in 16
    // words for 16-lane lookups) when the scaling is `corrected`. Fitted to the table, so that
    // it gives the table's values.
    Scaling m_scaling = Scaling::none;
    std::array<quint32, 3> m_multiplier {};
    std::array<quint32, 3> m_addend {};
    std::array<int, 3> m_shift {};
    std::array<std::array<quint32, 16>, 3> m_corrections {};
    // Substitutions of colours without a top byte (the only ones a pixel can match), sorted.
    std::vector<std::pair<quint32, quint32>> m_substitutions;

    // The substituted colours by perfect hash: slot = ((colour * m_slotHash) >> m_slotShift),
    // for large maps xor m_displacements[(colour * m_bucketHash) >> m_bucketShift]. A slot holds
    // its colour (0xFF000000, no pixel's colour, when empty) and then its substitute, so that
    // one 64-bit load reads both.
    Lookup m_lookup = Lookup::none;
    std::vector<std::uint64_t> m_slots;
    std::vector<quint32> m_displacements;
    quint32 m_slotHash = 0;
    quint32 m_bucketHash = 0;
    int m_slotShift = 0;
    int m_bucketShift = 0;
};


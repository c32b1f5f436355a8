#pragma once
// The 256-entry colour palettes sonar and backscatter intensity images are drawn with: one of
// six colour ramps, shaped by brightness, contrast and gamma, mapped through the display colour
// mode (ColorControl::GetColor with the palette's flag) and packed as 32-bit pixels with a given
// alpha. The palette also keeps its ramp as byte and float RGB tables for direct look-ups, and
// gives the fixed vernier table of hue-coded display. A plain copyable value.
//
// Pixels. BGRA packs A << 24 | R << 16 | G << 8 | B (an 0xAARRGGBB word: QImage::Format_ARGB32
// on little-endian machines), RGBA packs A << 24 | B << 16 | G << 8 | R (bytes R, G, B, A in
// memory on little-endian machines: QImage::Format_RGBA8888). The palettes come as
// std::vector<unsigned long>; every value fits 32 bits.
//
// Shaping. Entry i takes the ramp colour of index j = clamp((i / 255)^e * 255 * c
// + brightness / 25 * 255 + 0.5, 0, 255) (truncated), with c = 2^(contrast / 25 * 8) and
// e = max(0.01, (10 - gamma) / 10).
//
// Images. Apply and ApplyImage give each 8-bit sample the packed pixel of its value in one
// call, in vectors on the widest instruction set of the processor (chosen when the program
// runs), without a branch per pixel: gathers from the palette, or on processors with AVX-512
// byte permutes (VBMI) 64 pixels at a time from the palette's four byte planes, outputs of
// 16 MB and more then written past the memory caches. Samples and pixels need no particular
// alignment. The functions are reentrant.

#include "QelMfc0/QelMfc0Export.h"
#include <QtGlobal>
#include <array>
#include <vector>

class ColorTable;

class QELMFC0_EXPORT SonarPalette
{
public:
    // Entries of a palette and of each table.
    static constexpr int kEntries = 256;
    // The ramp types; any other number gives the grey ramp.
    enum RampType {
        SeaGreenRamp = 0,    // dark blue-green through green to pale yellow
        GreyRamp = 1,        // black to white
        RainbowRamp = 2,     // dark blue, blue, cyan, yellow, red
        CopperRamp = 3,      // black through brown to yellow
        InverseGreyRamp = 4, // white to black
        FireRamp = 5         // black through violet, red and orange to white
    };
    static constexpr int kRampTypes = 6;

    // A palette with all six tables empty.
    SonarPalette();
    ~SonarPalette();
    // Copies and moves take all six tables along.
    SonarPalette(const SonarPalette& other);
    SonarPalette(SonarPalette&& other) noexcept;
    SonarPalette& operator=(const SonarPalette& other);
    SonarPalette& operator=(SonarPalette&& other) noexcept;

    // Fills the tables with ramp `type` and makes `out` the 256 shaped BGRA pixels of alpha
    // `alpha`, each colour mapped by ColorControl::Instance().GetColor(colour, flag).
    void Get_BGRA_Palette(int type, double brightness, double contrast, double gamma,
                          std::vector<unsigned long>& out, unsigned char alpha, bool flag);
    // The same with RGBA pixels.
    void Get_RGBA_Palette(int type, double brightness, double contrast, double gamma,
                          std::vector<unsigned long>& out, unsigned char alpha, bool flag);
    // Fill the tables only, as Get_BGRA_Palette / Get_RGBA_Palette do (the pixels are dropped).
    void Init_BGRA_Palette(int type, double brightness, double contrast, double gamma,
                           unsigned char alpha, bool flag);
    void Init_RGBA_Palette(int type, double brightness, double contrast, double gamma,
                           unsigned char alpha, bool flag);

    // The float colour of intensity j = clamp(value * scale + offset + 0.5, 0, 255) (truncated,
    // NaN as 0); r, g and b are left untouched when the tables do not hold entry j (never filled).
    void GetRGB(double value, double scale, double offset, float& r, float& g, float& b) const;
    // Each of the three low bytes of `pixel` times `factor`, clamped to 0..255 and truncated;
    // the top (alpha) byte is kept.
    static unsigned long ScaleBGRA(unsigned long pixel, double factor);

    // The vernier table: SetRange(0.0, 254.0, 256 colours, RGB(255, 0, 255), RGB(255, 0, 0)).
    static ColorTable GetVernierColorTable();
    // The hue (ColorTable::RGBtoHSV, degrees) of each entry of the vernier table, in order.
    static std::vector<double> GetVernierHues();

    // The tables of the ramp, indexed by intensity: bytes 0..255 and floats 0.0..1.0 (the byte
    // scale value / 255). Empty until a palette was made.
    const std::vector<unsigned char>& RedBytes() const;
    const std::vector<unsigned char>& GreenBytes() const;
    const std::vector<unsigned char>& BlueBytes() const;
    const std::vector<float>& RedFloats() const;
    const std::vector<float>& GreenFloats() const;
    const std::vector<float>& BlueFloats() const;

    // The first 256 pixels of a palette as 32-bit words; missing entries are 0.
    static std::array<quint32, kEntries> Packed(const std::vector<unsigned long>& palette);
    // out[i] = palette[samples[i]] for `count` samples (nothing for a count below one or a null
    // pointer). `palette` holds 256 packed pixels.
    static void Apply(const quint8* samples, qsizetype count, const quint32* palette, quint32* out);
    // The same for an image of `width` x `height` samples, rows `sampleStride` bytes apart, into
    // rows `outStride` words apart. Nothing happens for a negative or zero size.
    static void ApplyImage(const uchar* samples, int width, int height, qsizetype sampleStride,
                           const quint32* palette, quint32* out, qsizetype outStride);
    // The instruction set Apply and ApplyImage run on in this process, as Highway names it.
    static const char* VectorTarget();

private:
    void GetPalette(int type, double brightness, double contrast, double gamma, bool rgba,
                    std::vector<unsigned long>& out, unsigned char alpha, bool flag);
    void RampColor(int from, int to, int r1, int g1, int b1, int r2, int g2, int b2);

    std::vector<unsigned char> m_red;
    std::vector<unsigned char> m_green;
    std::vector<unsigned char> m_blue;
    std::vector<float> m_redF;
    std::vector<float> m_greenF;
    std::vector<float> m_blueF;
};

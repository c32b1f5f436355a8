// The vector image conversion must give exactly the pixels of the one-pixel form, whatever
// the factors, the substitutions and the layout of the pixels.
#include <QelBase/FileObject.h>
#include <QelMfc0/colour/BitmapRemapper.h>
#include <QelMfc0/colour/ColorMap.h>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {
ColorMap MapWith(int substitutions, std::mt19937& random)
{
    QString text = QStringLiteral("[QEL_COLORS]\n");
    for (int i = 0; i < substitutions; ++i)
        text += QStringLiteral("%1 = %2\n").arg(random() & 0xFFFFFF).arg(random());
    text += QStringLiteral("%1 = 5\n").arg(0x01000000u | 0x123456); // top byte: never a pixel's colour
    FileObject file;
    file.LoadFromText(text);
    ColorMap map;
    map.Load(file);
    return map;
}

// Flat runs (of the substituted colours, of the key colour, of others), edges and noise.
std::vector<quint32> Pixels(const ColorMap& map, std::mt19937& random)
{
    std::vector<quint32> pixels;
    const auto& subs = map.Substitutions();
    while (pixels.size() < 20000) {
        const quint32 kind = random() % 4;
        quint32 color = random() & 0xFFFFFF;
        if (kind == 0 && !subs.empty())
            color = subs[random() % subs.size()].first & 0xFFFFFF;
        else if (kind == 1)
            color = 0xC0C0C0;
        const size_t run = kind == 3 ? 1 : 1 + random() % 40;
        for (size_t i = 0; i < run; ++i)
            pixels.push_back((random() & 0xFF000000u) | ((kind == 3 || (random() & 7) == 0) ? (random() & 0xFFFFFF) : color));
    }
    return pixels;
}
} // namespace

TEST(BitmapRemapper, VectorAndPixelFormsAgreeForEveryFactorAndMap)
{
    std::mt19937 random(2026);
    int vectorCases = 0, wideCases = 0;
    const double factors[][3] = { { 0.42, 0.34, 0.30 }, { 1.0, 1.0, 1.0 }, { 0.5, 0.25, 0.75 }, { 1.2, 2.5, 0.0 },
                                  { 0.333, 0.666, 0.999 }, { 255.0, 0.001, 1e6 }, { 0.1, 0.2, 0.7 } };
    for (const auto& f : factors) {
        for (bool invert : { false, true }) {
            for (int substitutions : { 0, 1, 64, 255, 300 }) {
                SCOPED_TRACE(testing::Message() << f[0] << " " << f[1] << " " << f[2] << " invert " << invert
                                                << " substitutions " << substitutions);
                ColorConverter converter;
                converter.SetParameters(f[0], f[1], f[2], invert);
                const ColorMap map = MapWith(substitutions, random);
                const BitmapRemapper remapper(map, converter);
                vectorCases += remapper.UsesVectorPath();
                wideCases += remapper.UsesWidePath();
                std::vector<quint32> pixels = Pixels(map, random);
                const std::vector<quint32> original = pixels;
                remapper.Remap(pixels.data(), qsizetype(pixels.size()) - 3); // a tail shorter than a vector
                size_t wrong = 0;
                for (size_t i = 0; i + 3 < pixels.size(); ++i)
                    wrong += pixels[i] != remapper.RemapPixel(original[i]);
                EXPECT_EQ(wrong, 0u);
                EXPECT_TRUE(std::equal(pixels.end() - 3, pixels.end(), original.end() - 3)) << "beyond the count";
            }
        }
    }
#if defined(__GNUC__) && defined(__x86_64__)
    if (__builtin_cpu_supports("avx2")) {
        EXPECT_GT(vectorCases, 40) << "most cases must take the vector form on this processor";
    }
    if (__builtin_cpu_supports("avx512f")) {
        EXPECT_GT(wideCases, 20) << "maps of up to 64 colours must take the sixteen-pixel form";
    }
#endif
}

TEST(BitmapRemapper, PixelFormFollowsTheColourRules)
{
    std::mt19937 random(1);
    FileObject file;
    file.LoadFromText(QStringLiteral("[QEL_COLORS]\n255 = 16776960\n16777216 = 1\n"));
    ColorMap map;
    map.Load(file);
    ColorConverter converter;
    converter.SetParameters(0.5, 1.0, 0.25, true);
    const BitmapRemapper remapper(map, converter);
    EXPECT_EQ(remapper.RemapPixel(0x80C0C0C0u), 0x80C0C0C0u) << "the key colour stays";
    EXPECT_EQ(remapper.RemapPixel(0x400000FFu), 0x40FFFF00u) << "substituted, alpha kept";
    EXPECT_EQ(remapper.RemapPixel(0xFF000000u), 0xFF40FF80u) << "black inverted, lowest byte by the red factor";
    const BitmapRemapper identity;
    EXPECT_EQ(identity.RemapPixel(0x12345678u), 0x12345678u);
}

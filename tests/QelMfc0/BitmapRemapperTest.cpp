// The vector image conversion must give exactly the pixels of the one-pixel form.
#include <QelBase/FileObject.h>
#include <QelMfc0/colour/BitmapRemapper.h>
#include <QelMfc0/colour/ColorMap.h>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {
ColorMap Load(const QString& text)
{
    FileObject file;
    file.LoadFromText(text);
    ColorMap map;
    map.Load(file);
    return map;
}
} // namespace

TEST(BitmapRemapper, VectorAndPixelFormsAgreeForEveryFactorAndMap)
{
    std::mt19937 random(2026);
    int vectorCases = 0, wideCases = 0;
    const double factors[][3] = { { 0.42, 0.34, 0.30 }, { 1.0, 1.0, 1.0 }, { 1.2, 2.5, 0.0 }, { 255.0, 0.001, 1e6 } };
    for (const auto& f : factors) {
        for (int substitutions : { 0, 1, 64, 255, 300 }) {
            const bool invert = substitutions % 2 == 0;
            SCOPED_TRACE(testing::Message() << f[0] << " " << f[1] << " " << f[2] << " subs " << substitutions);
            ColorConverter converter;
            converter.SetParameters(f[0], f[1], f[2], invert);
            QString text = QStringLiteral("[QEL_COLORS]\n%1 = 5\n").arg(0x01123456u); // top byte: never a pixel
            for (int i = 0; i < substitutions; ++i)
                text += QStringLiteral("%1 = %2\n").arg(random() & 0xFFFFFF).arg(random());
            const ColorMap map = Load(text);
            const BitmapRemapper remapper(map, converter);
            vectorCases += remapper.UsesVectorPath();
            wideCases += remapper.UsesWidePath();
            // Flat runs (substituted, key colour, others) and noise.
            std::vector<quint32> pixels;
            const auto& subs = map.Substitutions();
            while (pixels.size() < 20000) {
                const quint32 kind = random() % 4;
                quint32 color = kind == 1 ? 0xC0C0C0 : random() & 0xFFFFFF;
                if (kind == 0 && !subs.empty())
                    color = subs[random() % subs.size()].first & 0xFFFFFF;
                for (size_t i = 0, run = kind == 3 ? 1 : 1 + random() % 40; i < run; ++i)
                    pixels.push_back((random() & 0xFF000000u) | ((random() & 7) == 0 ? (random() & 0xFFFFFF) : color));
            }
            const std::vector<quint32> original = pixels;
            remapper.Remap(pixels.data(), qsizetype(pixels.size()) - 3); // a tail shorter than a vector
            size_t wrong = 0;
            for (size_t i = 0; i + 3 < pixels.size(); ++i)
                wrong += pixels[i] != remapper.RemapPixel(original[i]);
            EXPECT_EQ(wrong, 0u);
            EXPECT_TRUE(std::equal(pixels.end() - 3, pixels.end(), original.end() - 3)) << "beyond the count";
        }
    }
#if defined(__GNUC__) && defined(__x86_64__)
    if (__builtin_cpu_supports("avx2"))
        EXPECT_GT(vectorCases, 10) << "most cases must take the vector form on this processor";
    if (__builtin_cpu_supports("avx512f"))
        EXPECT_GT(wideCases, 5) << "maps of up to 64 colours must take the sixteen-pixel form";
#endif
}

TEST(BitmapRemapper, PixelFormFollowsTheColourRules)
{
    ColorConverter converter;
    converter.SetParameters(0.5, 1.0, 0.25, true);
    const ColorMap map = Load(QStringLiteral("[QEL_COLORS]\n255 = 16776960\n16777216 = 1\n"));
    const BitmapRemapper remapper(map, converter);
    EXPECT_EQ(remapper.RemapPixel(0x80C0C0C0u), 0x80C0C0C0u) << "the key colour stays";
    EXPECT_EQ(remapper.RemapPixel(0x400000FFu), 0x40FFFF00u) << "substituted, alpha kept";
    EXPECT_EQ(remapper.RemapPixel(0xFF000000u), 0xFF40FF80u) << "black inverted, lowest byte by the red factor";
    EXPECT_EQ(BitmapRemapper().RemapPixel(0x12345678u), 0x12345678u);
}

// The image conversion of the colour modes: its vector forms give the pixels of the one-pixel
// form, and every 32-bit image format the colours of the same picture in ARGB32.
#include <QImage>
#include <QPixelFormat>
#include <QelBase/FileObject.h>
#include <QelMfc0/colour/BitmapRemapper.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/colour/ColorMap.h>
#include <algorithm>
#include <common/TestProject.h>
#include <functional>
#include <gtest/gtest.h>
#include <hwy/targets.h>
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

// Runs `check` once on each instruction set that this processor has and the library was built
// for, the conversion forced onto it, then lets the library choose again.
void OnEveryVectorTarget(const std::function<void()>& check)
{
    struct Restore {
        ~Restore() { hwy::SetSupportedTargetsForTest(0); }
    } restore;
    for (const int64_t target : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        ASSERT_STREQ(BitmapRemapper::VectorTarget(), hwy::TargetName(target));
        check();
    }
}

// Pixels of every kind, in flat runs and as noise, with any alpha: substituted colours, the key
// colour, colours only a top byte apart from a substituted one, others.
std::vector<quint32> MixedPixels(const ColorMap& map, std::mt19937& random, size_t count)
{
    const auto& subs = map.Substitutions();
    std::vector<quint32> pixels;
    while (pixels.size() < count) {
        const quint32 kind = random() % 4;
        quint32 color = kind == 1 ? 0xC0C0C0 : random() & 0xFFFFFF;
        if (kind == 0 && !subs.empty())
            color = subs[random() % subs.size()].first & 0xFFFFFF;
        for (size_t i = 0, run = kind == 3 ? 1 : 1 + random() % 40; i < run; ++i)
            pixels.push_back((random() & 0xFF000000u) | ((random() & 7) == 0 ? (random() & 0xFFFFFF) : color));
    }
    pixels.resize(count);
    return pixels;
}

// Converts the pixels in pieces of every length from 1 to 48 and then in one long piece, so
// that every start and every tail shorter than a vector occurs; the number of pixels unlike
// RemapPixel's, and of pixels changed beyond a piece.
int CountWrongPixels(const BitmapRemapper& remapper, const std::vector<quint32>& pixels)
{
    std::vector<quint32> converted = pixels;
    converted.push_back(0x12345678u); // never part of a piece
    size_t offset = 0;
    for (size_t length = 1; offset + length <= pixels.size() / 2; ++length) {
        remapper.Remap(converted.data() + offset, qsizetype(length));
        offset += length;
        length %= 48;
    }
    remapper.Remap(converted.data() + offset, qsizetype(pixels.size() - offset));
    int wrong = converted.back() != 0x12345678u;
    for (size_t i = 0; i < pixels.size(); ++i)
        wrong += converted[i] != remapper.RemapPixel(pixels[i]);
    return wrong;
}
} // namespace

TEST(BitmapRemapper, VectorFormsGiveThePixelsOfThePixelFormForAnyMap)
{
    // No substitution table, one level of hashing (up to a few hundred colours), two levels; unit
    // factors, factors rounding halves both ways (5 * 0.7 is just below 3.5), extremes.
    std::mt19937 random(2026);
    std::uniform_real_distribution<double> factor(0.0, 1.6);
    const struct { int substitutions; bool randomFactors; double f[3]; bool invert; } cases[] = {
        { 0, true, {}, true },             { 53, true, {}, true },         { 300, true, {}, true },
        { 5000, true, {}, false },         { 40, false, { 1, 1, 1 }, false }, { 700, false, { 1, 1, 1 }, true },
        { 64, false, { 255.0, 0.001, 1e6 }, true }, { 21, false, { 0.70, 0.68, 0.64 }, false },
    };
    for (const auto& c : cases) {
        ColorConverter converter;
        const double f[3] = { c.randomFactors ? factor(random) : c.f[0], c.randomFactors ? factor(random) : c.f[1],
                              c.randomFactors ? factor(random) : c.f[2] };
        converter.SetParameters(f[0], f[1], f[2], c.invert);
        SCOPED_TRACE(testing::Message() << f[0] << " " << f[1] << " " << f[2] << " invert " << c.invert << " substitutions "
                                        << c.substitutions);
        // The key colour and colours with a top byte in the map, which no pixel may take.
        QString text = QStringLiteral("[QEL_COLORS]\n%1 = 5\n%2 = 6\n").arg(0x01123456u).arg(0xC0C0C0);
        for (int i = 0; i < c.substitutions; ++i)
            text += QStringLiteral("%1 = %2\n").arg(random() & 0xFFFFFF).arg(random());
        const ColorMap map = Load(text);
        const BitmapRemapper remapper(map, converter);
        const std::vector<quint32> pixels = MixedPixels(map, random, 4000);
        OnEveryVectorTarget([&] { EXPECT_EQ(CountWrongPixels(remapper, pixels), 0); });
    }
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
    const BitmapRemapper identity;
    std::vector<quint32> pixels = { 0x12345678u, 0xFFC0C0C0u };
    identity.Remap(pixels.data(), 2);
    EXPECT_TRUE(identity.IsIdentity());
    EXPECT_EQ(pixels, (std::vector<quint32> { 0x12345678u, 0xFFC0C0C0u }));
}

// Every pixel of a 32-bit image through `fn`.
template <typename Fn>
QImage MapPixels(QImage image, QImage::Format format, Fn fn)
{
    image = image.convertToFormat(format);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<quint32*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = fn(line[x]);
    }
    return image;
}

TEST(BitmapRemapper, EveryImageFormatGivesTheColoursOfArgb32)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    // The shipped night map on a picture with its substituted colours, the key colour, noise and
    // alpha from 0 to 255; 97 pixels wide, so that each row ends in a partial vector.
    std::mt19937 random(11);
    ColorControl control;
    control.SetLightMode(ColorConverter::night, false);
    QImage picture(97, 31, QImage::Format_ARGB32);
    const std::vector<quint32> pixels = MixedPixels(control.GetColorMap(), random, size_t(97 * 31));
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, pixels[size_t(y * 97 + x)]);
    for (int x = 0; x < 97; ++x)
        picture.setPixel(x, 0, qRgba(x * 40, x * 11, x * 3, x * 255 / 96));
    for (const QImage::Format format :
         { QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGBX8888,
           QImage::Format_RGBA8888, QImage::Format_RGBA8888_Premultiplied }) {
        SCOPED_TRACE(format);
        QImage image = picture.convertToFormat(format);
        // The same pixels as 0xAARRGGBB words (only the bytes move), converted in ARGB32;
        // premultiplied ones in straight form by Qt's qUnpremultiply and back.
        const bool premultiplied = image.pixelFormat().premultiplied() == QPixelFormat::Premultiplied;
        const QImage::Format wordFormat = premultiplied ? QImage::Format_ARGB32_Premultiplied : QImage::Format_ARGB32;
        QImage expected = MapPixels(image, wordFormat, [&](quint32 p) { return premultiplied ? qUnpremultiply(p) : p; });
        expected.reinterpretAsFormat(QImage::Format_ARGB32);
        control.RemapBitmap(expected);
        expected = MapPixels(expected, QImage::Format_ARGB32, [&](quint32 p) { return premultiplied ? qPremultiply(p) : p; });

        control.RemapBitmap(image);
        ASSERT_EQ(image.format(), format);
        int wrong = 0, invalid = 0;
        const QImage words = image.convertToFormat(wordFormat);
        for (int y = 0; y < words.height(); ++y) {
            for (int x = 0; x < words.width(); ++x) {
                const quint32 p = reinterpret_cast<const quint32*>(words.constScanLine(y))[x];
                wrong += p != reinterpret_cast<const quint32*>(expected.constScanLine(y))[x];
                invalid += premultiplied && std::max({ qRed(p), qGreen(p), qBlue(p) }) > qAlpha(p);
            }
        }
        EXPECT_EQ(wrong, 0);
        EXPECT_EQ(invalid, 0) << "not a valid premultiplied image";
        EXPECT_NE(image, picture.convertToFormat(format)) << "not converted at all";

        if (!premultiplied) { // the disabled look too
            QImage gray = picture.convertToFormat(format), viaArgb32 = gray.convertToFormat(QImage::Format_ARGB32);
            control.RemapBitmapGray(gray);
            control.RemapBitmapGray(viaArgb32);
            EXPECT_EQ(gray, viaArgb32.convertToFormat(format));
        }
    }
}

// Sonar palettes: the ramps and their shaping against a direct model of the construction, the
// pixel layouts and the colour modes, the vernier table, and images coloured by a palette on
// every instruction set.
#include <QImage>
#include <QelBase/ColorTable.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/dialogs/colourtables/SonarPalette.h>
#include <algorithm>
#include <array>
#include <cmath>
#include <common/TestProject.h>
#include <gtest/gtest.h>
#include <hwy/targets.h>
#include <random>
#include <string>
#include <vector>

namespace {
// The knots of each ramp type: index and colour; consecutive knots make one ramp.
struct Knot {
    int index, r, g, b;
};
const std::vector<std::vector<Knot>> kKnots = {
    { { 0, 0, 16, 48 }, { 32, 0, 32, 64 }, { 48, 16, 48, 80 }, { 64, 32, 64, 80 }, { 80, 48, 80, 80 },
      { 96, 64, 96, 80 }, { 112, 80, 112, 80 }, { 128, 96, 128, 80 }, { 144, 112, 144, 80 },
      { 160, 128, 160, 80 }, { 176, 144, 176, 80 }, { 192, 160, 192, 80 }, { 208, 176, 208, 80 },
      { 224, 208, 224, 64 }, { 240, 240, 240, 48 }, { 255, 255, 255, 48 } },
    { { 0, 0, 0, 0 }, { 255, 255, 255, 255 } },
    { { 0, 0, 0, 64 }, { 64, 0, 0, 255 }, { 128, 0, 255, 255 }, { 192, 255, 255, 0 }, { 255, 255, 0, 0 } },
    { { 0, 0, 0, 0 }, { 128, 161, 45, 4 }, { 255, 255, 255, 0 } },
    { { 0, 255, 255, 255 }, { 255, 0, 0, 0 } },
    { { 0, 0, 0, 0 }, { 2, 7, 3, 36 }, { 15, 14, 0, 123 }, { 32, 28, 0, 146 }, { 78, 175, 4, 178 },
      { 100, 249, 35, 89 }, { 180, 246, 94, 8 }, { 200, 251, 164, 5 }, { 232, 238, 232, 32 },
      { 248, 238, 254, 238 }, { 255, 255, 255, 255 } },
};

// The ramp of a type on the byte scale, accumulated step by step; any other type is grey.
std::array<std::array<double, 256>, 3> Ramp(int type)
{
    const std::vector<Knot>& knots = kKnots[size_t(type >= 0 && type < 6 ? type : 1)];
    std::array<std::array<double, 256>, 3> ramp {};
    for (size_t k = 0; k + 1 < knots.size(); ++k) {
        const Knot a = knots[k], b = knots[k + 1];
        const int n = b.index - a.index;
        double value[3] = { double(a.r), double(a.g), double(a.b) };
        const double step[3] = { (b.r - a.r) / double(n), (b.g - a.g) / double(n), (b.b - a.b) / double(n) };
        for (int i = a.index; i <= b.index; ++i)
            for (int c = 0; c < 3; ++c) {
                ramp[size_t(c)][size_t(i)] = value[c];
                value[c] += step[c];
            }
    }
    return ramp;
}

// The ramp index palette entry i shows.
int Shaped(int i, double brightness, double contrast, double gamma)
{
    const double c = std::pow(2.0, contrast / 25.0 * 8.0);
    const double e = std::max(0.01, (10.0 - gamma) / 10.0);
    const double x = std::pow(i / 255.0, e) * 255.0 * c + brightness / 25.0 * 255.0 + 0.5;
    return int(std::clamp(x, 0.0, 255.0));
}

quint32 Bgra(int alpha, int r, int g, int b)
{
    return quint32(alpha) << 24 | quint32(r) << 16 | quint32(g) << 8 | quint32(b);
}

std::vector<unsigned long> BgraPalette(int type, double brightness, double contrast, double gamma,
                                       unsigned char alpha = 255, bool flag = false)
{
    SonarPalette palette;
    std::vector<unsigned long> out;
    palette.Get_BGRA_Palette(type, brightness, contrast, gamma, out, alpha, flag);
    return out;
}

// Runs `check` with the library's own choice of instruction set, then on each one this
// processor has and the library was built for.
template <typename Check>
void OnEveryVectorTarget(Check check)
{
    struct Restore {
        ~Restore() { hwy::SetSupportedTargetsForTest(0); }
    } restore;
    {
        SCOPED_TRACE(std::string("own choice ") + SonarPalette::VectorTarget());
        check();
    }
    for (int64_t bits = hwy::SupportedTargets(); bits != 0; bits &= bits - 1) {
        const int64_t target = bits & -bits;
        hwy::SetSupportedTargetsForTest(target);
        if (SonarPalette::VectorTarget() != std::string(hwy::TargetName(target)))
            continue; // not built for it
        SCOPED_TRACE(hwy::TargetName(target));
        check();
    }
}
} // namespace

TEST(SonarPalette, TablesAndPixelsFollowTheRampAndItsShapingForEveryType)
{
    std::mt19937 random(63);
    std::uniform_real_distribution<double> setting(-30.0, 30.0), gammaOf(-5.0, 12.0);
    for (const int type : { 0, 1, 2, 3, 4, 5, -1, 6, 99 }) {
        const auto ramp = Ramp(type);
        for (int run = 0; run < 8; ++run) {
            // The first run unshaped, so that the palette shows the ramp itself.
            const double brightness = run ? setting(random) : 0.0, contrast = run ? setting(random) : 0.0;
            const double gamma = run ? gammaOf(random) : 0.0;
            const auto alpha = static_cast<unsigned char>(random());
            SCOPED_TRACE(testing::Message() << "type " << type << " brightness " << brightness << " contrast "
                                            << contrast << " gamma " << gamma);
            SonarPalette palette;
            std::vector<unsigned long> out(run % 2 ? 3 : 300, 7ul); // made 256 long, whatever it held
            palette.Get_BGRA_Palette(type, brightness, contrast, gamma, out, alpha, false);
            const std::vector<unsigned char>* bytes[] = { &palette.RedBytes(), &palette.GreenBytes(), &palette.BlueBytes() };
            const std::vector<float>* floats[] = { &palette.RedFloats(), &palette.GreenFloats(), &palette.BlueFloats() };
            for (size_t c = 0; c < 3; ++c) {
                ASSERT_EQ(bytes[c]->size(), 256u);
                ASSERT_EQ(floats[c]->size(), 256u);
                for (size_t i = 0; i < 256; ++i) {
                    ASSERT_EQ((*bytes[c])[i], int(ramp[c][i])) << "channel " << c << " entry " << i;
                    ASSERT_FLOAT_EQ((*floats[c])[i], float(ramp[c][i] / 255.0)) << "channel " << c << " entry " << i;
                }
            }
            ASSERT_EQ(out.size(), 256u);
            for (int i = 0; i < 256; ++i) {
                const auto j = size_t(Shaped(i, brightness, contrast, gamma));
                ASSERT_EQ(out[size_t(i)], Bgra(alpha, int(ramp[0][j]), int(ramp[1][j]), int(ramp[2][j]))) << "entry " << i;
            }
        }
    }
}

TEST(SonarPalette, EdgesOfTheShaping)
{
    std::vector<unsigned long> greys;
    for (int i = 0; i < 256; ++i)
        greys.push_back(Bgra(255, i, i, i));
    EXPECT_EQ(BgraPalette(1, 0, 0, 0), greys) << "unshaped grey ramp: grey level i";

    // From gamma 10 on the exponent stays at 0.01: all but the first entries near the top.
    const std::vector<unsigned long> held = BgraPalette(4, 0, 0, 10);
    EXPECT_EQ(BgraPalette(4, 0, 0, 25), held);
    EXPECT_EQ(BgraPalette(4, 0, 0, 1000), held);
    EXPECT_NE(BgraPalette(4, 0, 0, 9.5), held);
    EXPECT_EQ(held[0], Bgra(255, 255, 255, 255));
    for (size_t i = 1; i < 256; ++i)
        EXPECT_LE(held[i] & 0xFF, 14u) << i;

    // A brightness of 25 shifts every index past the end: the whole palette is the last colour.
    for (int type = 0; type < SonarPalette::kRampTypes; ++type) {
        SonarPalette palette;
        std::vector<unsigned long> out;
        palette.Get_BGRA_Palette(type, 25, 0, 0, out, 200, false);
        const unsigned long last = Bgra(200, palette.RedBytes()[255], palette.GreenBytes()[255], palette.BlueBytes()[255]);
        EXPECT_EQ(std::count(out.begin(), out.end(), last), 256) << type;
    }
    EXPECT_EQ(BgraPalette(2, 25, 0, 0, 255).front(), Bgra(255, 255, 0, 0));
    EXPECT_EQ(BgraPalette(2, -25, 0, 0, 255).back(), Bgra(255, 0, 0, 64)) << "and -25 to the first";
}

TEST(SonarPalette, BgraAndRgbaPixelsShowTheSameColoursWithTheirAlpha)
{
    for (const unsigned char alpha : { 0, 1, 128, 255 }) {
        SonarPalette bgraPalette, rgbaPalette;
        std::vector<unsigned long> bgra, rgba;
        bgraPalette.Get_BGRA_Palette(3, 2.0, 5.0, 1.5, bgra, alpha, false);
        rgbaPalette.Get_RGBA_Palette(3, 2.0, 5.0, 1.5, rgba, alpha, false);
        ASSERT_EQ(rgba.size(), 256u);
        QImage asArgb(256, 1, QImage::Format_ARGB32), asRgba(256, 1, QImage::Format_RGBA8888);
        const std::array<quint32, 256> bgraWords = SonarPalette::Packed(bgra), rgbaWords = SonarPalette::Packed(rgba);
        std::copy(bgraWords.begin(), bgraWords.end(), reinterpret_cast<quint32*>(asArgb.bits()));
        std::copy(rgbaWords.begin(), rgbaWords.end(), reinterpret_cast<quint32*>(asRgba.bits()));
        for (int i = 0; i < 256; ++i) {
            const QColor colour = asArgb.pixelColor(i, 0);
            ASSERT_EQ(colour.alpha(), alpha);
            ASSERT_EQ(asRgba.pixelColor(i, 0), colour) << i;
            ASSERT_LE(rgba[size_t(i)], 0xFFFFFFFFul);
        }
        EXPECT_NE(bgra, rgba) << "the copper ramp has red and blue apart";
    }
    // Filling the tables only gives the tables of the full call.
    SonarPalette init;
    init.Init_RGBA_Palette(5, 1, 2, 3, 9, true);
    EXPECT_FLOAT_EQ(init.BlueFloats().at(100), float(Ramp(5)[2][100] / 255.0));
    init.Init_BGRA_Palette(0, 1, 2, 3, 9, true);
    EXPECT_EQ(init.GreenBytes().at(100), int(Ramp(0)[1][100]));
}

TEST(SonarPalette, ColourModesMapThePixelsAsGetColorDoes)
{
    TestProject project;
    ASSERT_TRUE(project.IsOpen());
    struct Restore {
        ~Restore() { ColorControl::Instance().SetLightMode(ColorConverter::normal, false); }
    } restore;
    const std::vector<unsigned long> normal = BgraPalette(4, 0, 0, 0);
    ColorControl& control = ColorControl::Instance();
    control.SetLightMode(ColorConverter::night, false);
    for (const bool flag : { false, true }) {
        for (const bool rgba : { false, true }) {
            SonarPalette palette;
            std::vector<unsigned long> out;
            if (rgba)
                palette.Get_RGBA_Palette(4, 0, 0, 0, out, 99, flag);
            else
                palette.Get_BGRA_Palette(4, 0, 0, 0, out, 99, flag);
            for (int i = 0; i < 256; ++i) {
                const COLORREF c = control.GetColor(RGB(255 - i, 255 - i, 255 - i), flag);
                const unsigned long expected = rgba ? Bgra(99, GetBValue(c), GetGValue(c), GetRValue(c))
                                                    : Bgra(99, GetRValue(c), GetGValue(c), GetBValue(c));
                ASSERT_EQ(out[size_t(i)], expected) << "entry " << i << " flag " << flag << " rgba " << rgba;
            }
            EXPECT_NE(out[0] & 0xFFFFFF, normal[0] & 0xFFFFFF) << "night dims white";
            EXPECT_EQ(palette.RedBytes()[0], 255) << "the tables keep the ramp";
        }
    }
}

TEST(SonarPalette, GetRGBLooksUpTheRoundedAndClampedIntensity)
{
    float r = -1.0f, g = -2.0f, b = -3.0f;
    SonarPalette().GetRGB(10.0, 1.0, 0.0, r, g, b);
    using Rgb = std::array<float, 3>;
    EXPECT_EQ(Rgb({ r, g, b }), Rgb({ -1.0f, -2.0f, -3.0f })) << "no tables yet";

    SonarPalette palette;
    palette.Init_BGRA_Palette(1, 0, 0, 0, 255, false); // float entry i is i / 255
    const struct { double value, scale, offset; int entry; } cases[] = {
        { 100.0, 1.0, 0.0, 100 }, { 99.5, 1.0, 0.0, 100 }, { 99.49, 1.0, 0.0, 99 }, { 10.0, 2.0, 5.0, 25 },
        { -5.0, 1.0, 0.0, 0 },    { 1e9, 1.0, 0.0, 255 },  { 0.4, 1000.0, -100.0, 255 }, { 3.0, -1.0, 0.0, 0 },
    };
    for (const auto& c : cases) {
        palette.GetRGB(c.value, c.scale, c.offset, r, g, b);
        const float expected = float(c.entry / 255.0);
        EXPECT_EQ(Rgb({ r, g, b }), Rgb({ expected, expected, expected }))
            << c.value << " * " << c.scale << " + " << c.offset;
    }
}

TEST(SonarPalette, ScaleBGRAScalesTheColourBytesAndKeepsAlpha)
{
    const struct { unsigned long pixel; double factor; unsigned long scaled; } cases[] = {
        { 0x80FF8040ul, 2.0, 0x80FFFF80ul }, { 0x80FF8040ul, 0.5, 0x807F4020ul }, { 0x80FF8040ul, 1.0, 0x80FF8040ul },
        { 0xFF030507ul, 0.4, 0xFF010202ul }, { 0x12FF8040ul, 0.0, 0x12000000ul }, { 0x00FF8040ul, -3.0, 0x00000000ul },
    };
    for (const auto& c : cases)
        EXPECT_EQ(SonarPalette::ScaleBGRA(c.pixel, c.factor), c.scaled) << std::hex << c.pixel << " * " << c.factor;
}

TEST(SonarPalette, VernierTableRunsFromMagentaToRed)
{
    const ColorTable table = SonarPalette::GetVernierColorTable();
    ASSERT_EQ(table.NumEntries(), 255);
    EXPECT_EQ(table.EntryValue(0), 0.0);
    EXPECT_EQ(table.EntryValue(254), 254.0);
    EXPECT_EQ(table.LowColor(), RGB(255, 0, 255));
    EXPECT_EQ(table.EntryColor(254), RGB(255, 0, 0));
    const std::vector<double> hues = SonarPalette::GetVernierHues();
    ASSERT_EQ(hues.size(), 255u);
    EXPECT_NEAR(hues.front(), 300.0, 1.5);
    EXPECT_EQ(hues.back(), 0.0);
    EXPECT_TRUE(std::is_sorted(hues.rbegin(), hues.rend())) << "the hues fall all the way";
}

TEST(SonarPalette, ImagesTakeThePixelOfEachSampleOnEveryInstructionSet)
{
    std::mt19937 random(5);
    std::array<quint32, 256> palette;
    for (quint32& p : palette)
        p = quint32(random());
    std::vector<quint8> samples(1 << 12);
    for (quint8& s : samples)
        s = quint8(random());
    const auto expectImage = [&](const quint8* in, int width, int height, qsizetype inStride, const quint32* out,
                                 qsizetype outStride) {
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                ASSERT_EQ(out[y * outStride + x], palette[in[y * inStride + x]]) << x << ", " << y;
    };
    // Large enough to be written past the caches, from an unaligned start.
    const int wide = 4099, high = 1024;
    std::vector<quint8> big(size_t(wide) * high);
    for (size_t i = 0; i < big.size(); ++i)
        big[i] = quint8(i * 7919 >> 3);
    OnEveryVectorTarget([&] {
        for (qsizetype start = 0; start < 5; ++start) {
            for (qsizetype length = 0; length <= 70; length += 3) {
                std::vector<quint32> out(size_t(length + 2), 0xDEADBEEF);
                SonarPalette::Apply(samples.data() + start, length, palette.data(), out.data() + 1);
                expectImage(samples.data() + start, int(length), 1, 0, out.data() + 1, 0);
                ASSERT_EQ(out.front(), 0xDEADBEEF);
                ASSERT_EQ(out.back(), 0xDEADBEEF) << "nothing past " << length;
            }
        }
        // Rows with padding on both sides: the padding is left alone.
        const int width = 37, height = 5;
        const qsizetype inStride = 45, outStride = 41;
        std::vector<quint32> image(size_t(outStride * height), 0xDEADBEEF);
        SonarPalette::ApplyImage(samples.data() + 3, width, height, inStride, palette.data(), image.data(), outStride);
        expectImage(samples.data() + 3, width, height, inStride, image.data(), outStride);
        for (int y = 0; y < height; ++y)
            EXPECT_EQ(std::count(image.begin() + y * outStride + width, image.begin() + (y + 1) * outStride, 0xDEADBEEF),
                      outStride - width);
        std::vector<quint32> out(big.size() + 1);
        SonarPalette::ApplyImage(big.data(), wide, high, wide, palette.data(), out.data() + 1, wide);
        expectImage(big.data(), wide, high, wide, out.data() + 1, wide);
    });
    // Nothing for no pixels or nothing to read.
    std::vector<quint32> untouched(8, 1);
    SonarPalette::Apply(samples.data(), -4, palette.data(), untouched.data());
    SonarPalette::Apply(nullptr, 8, palette.data(), untouched.data());
    SonarPalette::ApplyImage(samples.data(), 8, 0, 8, palette.data(), untouched.data(), 8);
    SonarPalette::ApplyImage(samples.data(), 8, 1, 8, nullptr, untouched.data(), 8);
    EXPECT_EQ(std::count(untouched.begin(), untouched.end(), 1u), 8);
}

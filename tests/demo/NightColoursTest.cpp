// The shipped night and twilight colour maps against what a bridge at night needs (nothing
// bright, red and amber still red and amber, text still legible), and the gallery's pages as
// they look at night.
#include "ColourMeasures.h"
#include "common/TestProject.h"
#include "GalleryWindow.h"
#include "pages/DrawingHelpersPage.h"
#include "pages/PlanView.h"

#include <QApplication>
#include <QImage>
#include <QStyle>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/colour/ColorMap.h>
#include <gtest/gtest.h>

namespace {

// Day colours the suite's displays use: paper, greys, pale fills, text, signal colours.
const COLORREF kDayColours[] = {
    RGB(255, 255, 255), RGB(224, 224, 224), RGB(192, 192, 192), RGB(0, 0, 0),     RGB(205, 228, 245),
    RGB(255, 255, 225), RGB(255, 0, 0),     RGB(255, 191, 0),   RGB(255, 255, 0), RGB(0, 255, 0), RGB(0, 0, 255),
};
// Reds and ambers, which must keep their hue.
const COLORREF kSignalColours[] = { RGB(255, 0, 0), RGB(180, 30, 30), RGB(255, 128, 0), RGB(255, 191, 0) };

// A colour as a picture shows it after the mode converted the picture.
QColor InImage(const ColorControl& colors, COLORREF day)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, toQColor(day));
    colors.RemapBitmap(image);
    return image.pixelColor(0, 0);
}

class NightColours : public ::testing::Test {
protected:
    ~NightColours() override { ColorControl::Instance().SetLightMode(ColorConverter::normal, true); }
    TestProject m_project;
};

TEST_F(NightColours, ShippedMapsShowNothingBrightAndKeepRedAndAmber)
{
    ASSERT_TRUE(m_project.IsOpen());
    ColorControl& colors = ColorControl::Instance();
    const struct {
        ColorConverter::mode mode;
        double brightest; // relative luminance
    } modes[] = { { ColorConverter::night, 0.16 }, { ColorConverter::twilight, 0.42 } };
    for (const auto& m : modes) {
        SCOPED_TRACE(int(m.mode));
        colors.SetLightMode(m.mode, false);
        for (COLORREF day : kDayColours) {
            EXPECT_LE(Luminance(toQColor(colors.GetColor(day, false))), m.brightest) << std::hex << day;
            if (day != RGB(192, 192, 192)) { // the images' transparent key, never converted
                EXPECT_LE(Luminance(InImage(colors, day)), m.brightest) << std::hex << day;
            }
        }
        for (const auto& [name, entry] : colors.GetColorMap().GetFileColors().Entries())
            EXPECT_LE(Luminance(toQColor(entry.second)), m.brightest) << name.toStdString();
        for (COLORREF day : kSignalColours) {
            const int hue = Hue(toQColor(day));
            EXPECT_LE(HueDistance(Hue(toQColor(colors.GetColor(day, false))), hue), 12) << std::hex << day;
            EXPECT_LE(HueDistance(Hue(InImage(colors, day)), hue), 12) << std::hex << day;
        }
        // Black text on white paper stays legible.
        EXPECT_GE(Contrast(toQColor(colors.GetColor(RGB(0, 0, 0), false)), toQColor(colors.GetColor(RGB(255, 255, 255), false))), 3.0);
        colors.SetLightMode(ColorConverter::normal, false);
    }
}

TEST_F(NightColours, WarningIconStaysAmberAtNight)
{
    ColorControl::Instance().SetLightMode(ColorConverter::night, true);
    const QImage icon = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(32).toImage();
    // Yellow sign, black mark: at night amber and dim amber, visible, nothing blue.
    int coloured = 0, warm = 0, blue = 0;
    double brightest = 0.0;
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x) {
            const QColor c = icon.pixelColor(x, y);
            if (c.alpha() < 200 || c.hsvSaturation() < 80 || c.value() < 30)
                continue;
            ++coloured;
            warm += Hue(c) >= 0 && Hue(c) <= 65;
            blue += Hue(c) >= 180 && Hue(c) <= 260;
            brightest = std::max(brightest, Luminance(c));
        }
    ASSERT_GT(coloured, 50);
    EXPECT_EQ(warm, coloured);
    EXPECT_EQ(blue, 0);
    EXPECT_GE(brightest, 0.08);
    EXPECT_LE(brightest, 0.16);
}

TEST_F(NightColours, PicksTheMeasuredLineAndGridLabelsOfThePlanStandOut)
{
    ColorControl::Instance().SetLightMode(ColorConverter::night, true);
    PlanView plan;
    plan.resize(500, 420);
    const Point from(498000.0, 5759000.0), to(501500.0, 5762500.0);
    plan.SetPicks(from, to, 2);
    const QImage image = plan.grab().toImage();
    const auto at = [&](const QPointF& p) { return image.pixelColor(p.toPoint()); };
    // A pick's centre against the water a little way off it, and the dashed line's ink.
    const QPointF pick = plan.ToPixel(to);
    const QColor water = at(plan.ToPixel(Point(to.x + 300.0, to.y + 300.0)));
    EXPECT_GE(Contrast(at(pick), water), 1.6);
    EXPECT_GE(Luminance(at(pick)), 0.06);
    // Somewhere along the measured line the ink stands out from the water by as much.
    double best = 0.0;
    for (double t = 0.3; t < 0.7; t += 0.01)
        best = std::max(best, Contrast(at(plan.ToPixel(Point(from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t))), water));
    EXPECT_GE(best, 1.6);
    // The grid labels below the chart: their ink against the paper.
    const QPointF corner = plan.ToPixel(Point(496000.0, 5757000.0));
    const QColor paper = image.pixelColor(2, image.height() - 2);
    double label = 0.0;
    for (int y = int(corner.y()) + 3; y < int(corner.y()) + 16; ++y)
        for (int x = int(corner.x()); x < int(corner.x()) + 200; ++x)
            label = std::max(label, Contrast(image.pixelColor(x, y), paper));
    EXPECT_GE(label, 3.0);
}

TEST_F(NightColours, GalleryPagesAtNightHaveNothingBrightAndNoBlueForBlack)
{
    GalleryWindow window;
    window.resize(1180, 800);
    window.show();
    window.SetColourMode(ColorConverter::night);
    for (int page : { 0, 1, 3, 4 }) { // not the colour-mode page, which shows the image byte order on purpose
        window.ShowPage(page);
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
        const QImage image = window.grab().toImage();
        int bright = 0, blue = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor c = image.pixelColor(x, y);
                bright += Luminance(c) > 0.2;
                blue += c.blue() > c.red() + 60 && c.blue() > c.green() + 60;
            }
        EXPECT_EQ(bright, 0) << "page " << page;
        EXPECT_EQ(blue, 0) << "page " << page;
    }
}

} // namespace

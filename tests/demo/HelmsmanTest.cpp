// The helmsman's instruments as the gallery sets them up: whole scale labels, titles and units,
// instruments apart from each other, a scale and value for the distance strip, tool tips on
// the reset buttons, and dim colours that keep their meaning at night.
#include "ColourMeasures.h"
#include "HelmsmanFrame.h"
#include "common/TestProject.h"
#include "pages/HelmsmanPage.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QelBase/DisplayScale.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <gtest/gtest.h>

namespace {

const QColor kInk = Qt::black;
const QColor kPaper = Qt::white;

// A frame that has followed the simulated vessel for a while, painted into an image.
QImage Paint(HelmsmanFrame& frame, const QSize& size, double offTrack = 0.0)
{
    VesselSimulator vessel(Point(497500.0, 5758500.0), Point(502800.0, 5763600.0));
    for (int i = 0; i < 200; ++i)
        vessel.Step();
    VesselState state = vessel.State();
    if (offTrack != 0.0)
        state.offTrack = offTrack;
    frame.Update(state);
    QImage image(size, QImage::Format_ARGB32);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    frame.Paint(&painter, image.rect());
    return image;
}

int Count(const QImage& image, const QRect& area, const std::function<bool(const QColor&)>& test)
{
    int n = 0;
    const QRect r = area & image.rect();
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            n += test(image.pixelColor(x, y));
    return n;
}

bool IsInk(const QColor& c)
{
    return Luminance(c) < 0.05; // black text and lines, antialiased edges included
}

class Helmsman : public ::testing::Test {
protected:
    ~Helmsman() override { ColorControl::Instance().SetLightMode(ColorConverter::normal, false); }
    TestProject m_project;
};

TEST_F(Helmsman, OffTrackScaleShowsItsEndLabelsWhole)
{
    for (int width : { 520, 1100 }) {
        SCOPED_TRACE(width);
        HelmsmanFrame frame;
        const QImage image = Paint(frame, QSize(width, 480));
        const QRect bar = frame.OffTrackRect(image.rect());
        EXPECT_GE(frame.OffTrackRange(), 10.0);
        // The label rows under the upper ticks: text near both ends, none touching the edges.
        const QRect rows(bar.left(), bar.top() + 5, bar.width(), 9);
        EXPECT_EQ(Count(image, QRect(rows.left() + 1, rows.top(), 2, rows.height()), IsInk), 0);
        EXPECT_EQ(Count(image, QRect(rows.right() - 2, rows.top(), 2, rows.height()), IsInk), 0);
        EXPECT_GT(Count(image, QRect(rows.left() + 3, rows.top(), 40, rows.height()), IsInk), 10);
        EXPECT_GT(Count(image, QRect(rows.right() - 43, rows.top(), 40, rows.height()), IsInk), 10);
    }
}

TEST_F(Helmsman, InstrumentsHaveTitlesAndStandApart)
{
    HelmsmanFrame frame;
    const QImage image = Paint(frame, QSize(900, 560));
    const QRect area = image.rect();
    const QRect bar = frame.OffTrackRect(area);
    EXPECT_GT(Count(image, QRect(bar.left(), area.top(), bar.width(), bar.top() - area.top()), IsInk), 40) << "off-track title";
    for (int i = 0; i < HelmsmanFrame::kGaugeCount; ++i) {
        const QRect gauge = frame.GaugeRect(area, i);
        EXPECT_GT(Count(image, QRect(gauge.left(), gauge.top() - 16, gauge.width(), 14), IsInk), 40) << "title of gauge " << i;
        if (i + 1 == HelmsmanFrame::kGaugeCount)
            continue;
        // Paper between this gauge's name strip and the next gauge's reset button.
        const QRect between(gauge.right() + 1, gauge.top(), frame.GaugeRect(area, i + 1).left() - gauge.right() - 1, gauge.height());
        EXPECT_GE(between.width(), 12);
        EXPECT_EQ(Count(image, between, [](const QColor& c) { return c != kPaper; }), 0);
    }
    // The distance strip: scale labels on its left, its value below it.
    const QRect strip = frame.DistanceRect(area);
    EXPECT_GT(Count(image, QRect(strip.left() - 60, strip.top(), 55, strip.height()), IsInk), 200) << "scale";
    EXPECT_GT(Count(image, QRect(strip.left() - 60, strip.bottom() + 2, strip.width() + 60, 18), IsInk), 20) << "value";
    EXPECT_GT(Count(image, QRect(strip.left() - 60, area.top(), strip.width() + 60, strip.top() - area.top()), IsInk), 40) << "title";
}

TEST_F(Helmsman, AtNightNothingIsBrightAndPortStaysRed)
{
    ColorControl::Instance().SetLightMode(ColorConverter::night, false);
    HelmsmanFrame frame;
    const QImage image = Paint(frame, QSize(900, 560), -6.0);
    EXPECT_EQ(Count(image, image.rect(), [](const QColor& c) { return Luminance(c) > 0.2; }), 0);
    // The bar from the centre towards the left (port) side, a little below its labels.
    const QRect bar = frame.OffTrackRect(image.rect());
    const QColor port = image.pixelColor(bar.left() + bar.width() * 3 / 8, bar.bottom() - 8);
    EXPECT_LE(HueDistance(Hue(port), 0), 12);
    EXPECT_GE(Luminance(port), 0.05);
}

} // namespace

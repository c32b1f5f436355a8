// The off-track and distance-on-run-line meters and their widgets, checked on rendered pixels.
#include "IndicatorWidgetChecks.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/drawing/FontInfo.h>
#include <QelMfc0/controls/indicators/DistOnRlineMeter.h>
#include <QelMfc0/controls/indicators/DistOnRlineMeterWidget.h>
#include <QelMfc0/controls/indicators/OffrackMeter.h>
#include <QelMfc0/controls/indicators/OffrackMeterWidget.h>
#include <common/TestProject.h>
#include <limits>
#include <string>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

QImage Canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    image.fill(Qt::white);
    return image;
}

// Pixels as letters: '.' white, 'F' red (foreground), 'B' yellow (background), 'L' dark green,
// 'R' blue, 'G' green, 'K' black, '?' anything else (text anti-aliasing).
char Letter(QRgb p)
{
    const std::pair<QRgb, char> letters[] = {{0xFFFFFF, '.'}, {0xFF0000, 'F'}, {0xFFFF00, 'B'}, {0x00A000, 'L'},
                                             {0x0000FF, 'R'}, {0x00FF00, 'G'}, {0x000000, 'K'}};
    for (const auto& [rgb, letter] : letters)
        if ((p & 0xFFFFFF) == rgb)
            return letter;
    return '?';
}
// Letters of the pixels from (x0, y0) to (x1, y1) along a row or a column.
std::string Line(const QImage& image, int x0, int y0, int x1, int y1)
{
    std::string s;
    for (int x = x0, y = y0; x <= x1 && y <= y1; x += x0 < x1, y += y0 < y1)
        s += Letter(image.pixel(x, y));
    return s;
}
std::string Row(const QImage& image, int y, int x0, int x1) { return Line(image, x0, y, x1, y); }
std::string Column(const QImage& image, int x, int y0, int y1) { return Line(image, x, y0, x, y1); }
std::string Span(int n, char c) { return std::string(n, c); }

// First and last non-white column of the value text's cell (below the rectangle); -1 when none.
std::pair<int, int> TextColumns(const QImage& image, int height = 40)
{
    int first = -1, last = -1;
    for (int y = height + 1; y <= height + 29; ++y)
        for (int x = 0; x < image.width(); ++x)
            if (Letter(image.pixel(x, y)) != '.') {
                first = first < 0 ? x : std::min(first, x);
                last = std::max(last, x);
            }
    return { first, last };
}

// Scale -10..+10 over 400 x 40 pixels: 20 pixels per unit, centre at 200, ticks every 2.
class OffrackMeterTest : public ::testing::Test
{
protected:
    static constexpr int W = 400, H = 40;
    OffrackMeter meter;

    void SetUp() override
    {
        meter.SetColor(RGB(255, 0, 0));
        meter.SetBkColor(RGB(255, 255, 0));
        meter.SetLRSideColor(RGB(0, 160, 0), RGB(0, 0, 255));
        meter.SetRange(10.0);
        meter.SetTickIntervals(4);
        meter.SetTolerance(3.0);
    }
    QImage Render(double value)
    {
        meter.SetValue(value);
        return Render(meter);
    }
    static QImage Render(const OffrackMeter& m)
    {
        QImage image = Canvas(W, H + 30);
        QPainter painter(&image);
        m.Draw(&painter, QRect(0, 0, W, H));
        return image;
    }
    static int Advance(const QString& text)
    {
        const QImage device = Canvas(1, 1);
        return QFontMetrics(FontInfo().ToQFont(), &device).horizontalAdvance(text);
    }
};

TEST_F(OffrackMeterTest, BarFillsFromTheCentreTowardsTheValueAndStopsAtTheScaleEnds)
{
    // Row 30 lies below the tick labels and above the lower tick marks.
    EXPECT_EQ(Row(Render(5.0), 30, 199, 300), ".F" + Span(98, 'R') + "F.");
    EXPECT_EQ(Row(Render(-25.0), 30, 0, 200), "F" + Span(198, 'L') + "F.");

    // Zero (and NaN) is one full-height line at the centre, with no tick or label of its own;
    // the value text reads 0.00 centred on it.
    for (double value : { 0.0, kNaN }) {
        const QImage image = Render(value);
        EXPECT_EQ(Column(image, 200, 0, H), Span(H, 'F') + ".");
        for (int y = 0; y < H; ++y)
            ASSERT_EQ(Row(image, y, 182, 218), Span(18, '.') + "F" + Span(18, '.')) << y;
        const auto [first, last] = TextColumns(image);
        EXPECT_EQ(last - first + 1, Advance("0.00"));
        EXPECT_LE(std::abs(first + last - 2 * 200), 2);
    }
}

TEST_F(OffrackMeterTest, ScaleHasTicksAtMultiplesOfTheRoundedStepAndToleranceWedges)
{
    EXPECT_DOUBLE_EQ(meter.GetLargestTickValue(), 10.0); // 10 / 4 = 2.5 rounds to 2
    const QImage image = Render(0.0);
    // +10 falls on x = 400, outside; the lower marks are clipped to the rectangle.
    for (int x : { 0, 160, 240, 360 }) {
        EXPECT_EQ(Column(image, x, 0, 3), "FFFF") << x;
        EXPECT_EQ(Column(image, x, H - 4, H), ".FFF.") << x;
    }
    // Wedges at -3 and +3: a 13-pixel top edge, filled, narrowing to a tip 6 pixels down.
    for (int x : { 140, 260 }) {
        EXPECT_EQ(Row(image, 0, x - 7, x + 7), "." + Span(13, 'F') + ".") << x;
        EXPECT_EQ(Row(image, 2, x - 1, x + 1), "BBB") << x;
        EXPECT_EQ(Column(image, x, 7, 9), "...") << x;
    }
}

TEST_F(OffrackMeterTest, ValueTextStaysInsideTheRectangleAndShowsTheTrueValue)
{
    // The bar is clamped, the number is not; its opaque cell is pushed in from the edge.
    const QImage image = Render(1000.0);
    const auto [first, last] = TextColumns(image);
    EXPECT_EQ(last, W - 1);
    EXPECT_EQ(first, W - 2 * (Advance("1000.00") / 2));
    EXPECT_EQ(Letter(image.pixel(last, H + 1)), 'B');
}

TEST_F(OffrackMeterTest, ValueTextIsNotCutByTheHostsNarrowerClip)
{
    // A host that clips to the bar: the text is clipped to the window's client area only.
    QWidget window;
    window.resize(W, H + 30);
    meter.SetValue(-1000.0);
    QImage image = Canvas(W, H + 30);
    QPainter painter(&image);
    painter.setClipRect(QRect(0, 0, W, H));
    meter.Draw(&painter, QRect(0, 0, W, H), &window);
    EXPECT_EQ(painter.clipBoundingRect().toRect(), QRect(0, 0, W, H + 30));
    painter.end();
    EXPECT_EQ(TextColumns(image), std::make_pair(0, Advance("-1000.00") - 1));
    // In a translated painter the client area stays where the window is.
    QImage shifted = Canvas(W + 40, H + 30);
    QPainter translated(&shifted);
    translated.translate(40, 0);
    translated.setClipRect(QRect(0, 0, W - 40, H));
    meter.Draw(&translated, QRect(0, 0, W - 40, H), &window);
    EXPECT_EQ(translated.clipBoundingRect().toRect(), QRect(-40, 0, W, H + 30));
}

TEST_F(OffrackMeterTest, UnusableSettingsDrawNothing)
{
    const QImage blank = Canvas(W, H + 30);
    for (double range : { -5.0, kNaN }) {
        meter.SetRange(range);
        EXPECT_EQ(Render(1.0), blank) << range;
    }
    meter.SetRange(10.0);
    meter.SetTickIntervals(0);
    EXPECT_EQ(Render(1.0), blank);
    // Absurd scales and infinite values draw without hanging.
    meter.SetTickIntervals(std::numeric_limits<int>::max());
    EXPECT_NE(Render(kInf), blank);
    meter.SetRange(1e300);
    meter.SetTickIntervals(1);
    meter.SetTolerance(kNaN);
    EXPECT_NE(Render(-kInf), blank);
    meter.Draw(nullptr, QRect(0, 0, W, H));
}

TEST_F(OffrackMeterTest, NightModeConvertsTheForegroundButNotTheSideColours)
{
    TestProject project; // night map: red becomes green
    ASSERT_TRUE(project.IsOpen());
    const QString path = DataSearch::GetDataSearch().GetFullPath(DataSearch::TYPE_COLOR_MAP, "night");
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).absolutePath()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("[PARAMS]\nred = 1\ngreen = 1\nblue = 1\ninvert = 0\n[QEL_COLORS]\n255 = 65280\n");
    file.close();

    ColorControl& colours = ColorControl::Instance();
    colours.SetLightMode(ColorConverter::normal, false);
    colours.SetLightMode(ColorConverter::night, false);
    meter.SetLRSideColor(RGB(0, 160, 0), RGB(255, 0, 0)); // right side in the foreground's colour
    const QImage night = Render(5.0);
    colours.SetLightMode(ColorConverter::normal, false);

    EXPECT_EQ(Row(night, 30, 199, 300), ".G" + Span(98, 'F') + "G.");
}

// A 20 x 100 pixel bar for a range of 100: one row per unit.
TEST(DistOnRlineMeterTest, FillsFromTheBottomInProportionAndItsWidgetPaintsTheSame)
{
    DistOnRlineMeter meter;
    meter.SetColor(RGB(0, 0, 255));
    meter.SetBkColor(RGB(255, 255, 0));
    meter.SetRange(100.0);
    auto render = [&meter](double value) {
        meter.SetValue(value);
        QImage image = Canvas(20, 130);
        QPainter painter(&image);
        meter.Draw(&painter, QRect(0, 0, 20, 100));
        return image;
    };
    // Black lines at the top and bottom - 1; the fill's black outline from 70 down.
    const QImage image = render(30.0);
    EXPECT_EQ(Column(image, 10, 0, 100), "K" + Span(69, 'B') + "K" + Span(28, 'R') + "K.");
    // Above the range the fill stops at the top; below zero it extends under the bottom.
    EXPECT_EQ(Column(render(250.0), 10, 0, 2), "KRR");
    EXPECT_EQ(Column(render(-20.0), 10, 98, 121), "BK" + Span(1, 'K') + Span(18, 'R') + "K..");
    EXPECT_EQ(Letter(render(-1e300).pixel(10, 125)), 'R');
    EXPECT_EQ(render(kNaN), render(0.0));
    meter.SetRange(0.0);
    EXPECT_EQ(render(10.0), Canvas(20, 130));

    // The widget paints what the meter draws over its whole area.
    DistOnRlineMeterWidget widget;
    ExpectNotifyingProperties(widget, { { "value", 30.0 }, { "range", 60.0 }, { "barColor", QColor(0, 128, 0) },
                                        { "backgroundColor", QColor(255, 255, 0) } });
    widget.resize(20, 100);
    meter.SetRange(60.0);
    meter.SetColor(RGB(0, 128, 0));
    EXPECT_EQ(Rendered(widget), render(30.0).copy(0, 0, 20, 100));
    EXPECT_TRUE(RepaintsOnModeChange(widget));
}

TEST_F(OffrackMeterTest, WidgetPropertiesPaintingAndRoomForTheTexts)
{
    OffrackMeterWidget widget; // set up as the fixture's meter
    ExpectNotifyingProperties(widget, {
        { "value", -3.5 }, { "range", 10.0 }, { "tickIntervals", 4 }, { "tolerance", 3.0 },
        { "foregroundColor", QColor(255, 0, 0) }, { "backgroundColor", QColor(255, 255, 0) },
        { "leftSideColor", QColor(0, 160, 0) }, { "rightSideColor", QColor(0, 0, 255) },
    });

    // The widget is cleared to the background, the bar drawn above the value's line.
    widget.resize(widget.sizeHint());
    meter.SetValue(-3.5);
    QImage expected = Canvas(widget.width(), widget.height());
    {
        QPainter painter(&expected);
        painter.fillRect(expected.rect(), QColor(255, 255, 0));
        meter.Draw(&painter, widget.barRect());
    }
    EXPECT_EQ(Rendered(widget), expected);

    // At its minimum height the labels and the value text are as whole as with room to spare.
    widget.setValue(-1000.0);
    widget.resize(widget.width(), widget.minimumSizeHint().height());
    const QImage tight = Rendered(widget);
    const int bar = widget.barRect().height();
    widget.resize(widget.width(), widget.height() + 30);
    const QImage roomy = Rendered(widget);
    const int line = tight.height() - bar;
    EXPECT_EQ(tight.copy(0, bar, tight.width(), line), roomy.copy(0, widget.barRect().height(), roomy.width(), line));
    const int labels = bar - OffrackMeter::kTickLength; // above the lower tick marks
    EXPECT_EQ(tight.copy(0, 0, tight.width(), labels), roomy.copy(0, 0, roomy.width(), labels));

    EXPECT_TRUE(RepaintsOnModeChange(widget));
}

} // namespace

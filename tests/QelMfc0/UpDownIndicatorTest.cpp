// The up/down gauge checked on rendered pixels, and the widget that hosts one.
#include "IndicatorWidgetChecks.h"

#include <common/TestProject.h>

#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/controls/indicators/UpDownIndicator.h>
#include <QelMfc0/controls/indicators/UpDownIndicatorWidget.h>

#include <QFile>
#include <QPainter>

#include <limits>
#include <vector>

namespace {

constexpr COLORREF kOutside = RGB(255, 0, 255); // what the image holds before drawing
constexpr COLORREF kPane = RGB(128, 128, 128);
constexpr COLORREF kAbove = RGB(128, 128, 0);
constexpr COLORREF kInside = RGB(0, 128, 0);
constexpr COLORREF kBelow = RGB(225, 0, 0);
constexpr COLORREF kPointer = RGB(225, 255, 255);
constexpr COLORREF kLabel = RGB(224, 224, 224);

QImage Render(UpDownIndicator& gauge, QSize size, QRect rect = QRect())
{
    QImage image(size, QImage::Format_ARGB32);
    image.setDotsPerMeterX(3780); // 96 dpi
    image.setDotsPerMeterY(3780);
    image.fill(toQColor(kOutside));
    QPainter painter(&image);
    gauge.Draw(&painter, rect.isNull() ? image.rect() : rect);
    return image;
}

COLORREF At(const QImage& image, int x, int y)
{
    return toColorref(image.pixelColor(x, y));
}

// How many pixels of `color` lie in `area` (the whole image when null).
int Count(const QImage& image, COLORREF color, QRect area = QRect())
{
    const QRect r = area.isNull() ? image.rect() : area & image.rect();
    int n = 0;
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            n += At(image, x, y) == color;
    return n;
}

// The name strip's top row (horizontal) or left column (vertical), found along the far edge.
int NameStripEdge(const QImage& image, bool horizontal)
{
    int edge = horizontal ? image.height() : image.width();
    while (edge > 0
           && At(image, horizontal ? 1 : edge - 1, horizontal ? edge - 1 : image.height() - 2) == kLabel)
        --edge;
    return edge;
}

class UpDownIndicatorTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(project.IsOpen()); }
    TestProject project;
};

TEST_F(UpDownIndicatorTest, BarStretchesFollowTheBand)
{
    // Over -10..10 on 400 px: vertical y = 200 - 20 v (column 20), horizontal x = 20 (v + 10) (row 10).
    struct Sample { int at; COLORREF color; };
    const struct { bool horizontal; double lo, hi, ref, value; std::vector<Sample> samples; } cases[] = {
        // below the reference: below / inside / below
        { false, -4, -1, 2, -6, { { 140, kPane }, { 161, kBelow }, { 223, kInside }, { 283, kBelow }, { 340, kPane } } },
        // horizontal, towards larger values: the stretch up to the band is in the below colour
        { true, 0, 3, -5, 6, { { 50, kPane }, { 101, kBelow }, { 203, kInside }, { 263, kAbove }, { 350, kPane } } },
    };
    for (const auto& c : cases) {
        UpDownIndicator gauge;
        gauge.SetHorizontalMode(c.horizontal);
        CAttributeMap map;
        map.SetAttribValue(UpDownIndicator::ATTR_SHOWMINMAXMARKER, 1);
        map.SetAttribValue(UpDownIndicator::ATTR_MINMAXMARKER, qMakePair(c.lo, c.hi));
        gauge.LoadAttributes(map);
        gauge.SetRefValue(c.ref);
        gauge.SetDeltaValue(c.value);
        const QImage image = Render(gauge, c.horizontal ? QSize(400, 100) : QSize(200, 400));
        for (const Sample& s : c.samples)
            EXPECT_EQ(c.horizontal ? At(image, s.at, 10) : At(image, 20, s.at), s.color)
                << c.horizontal << " ref " << c.ref << " value " << c.value << " at " << s.at;
        if (c.horizontal)
            continue;
        // Dashed marker lines (21 on, 15 off, three pixels wide) in the text colour.
        const int dashed = Count(image, 0, QRect(5, 279, 100, 3));
        EXPECT_GT(dashed, 3 * 50);
        EXPECT_LT(dashed, 3 * 65);
    }
}

TEST_F(UpDownIndicatorTest, ValueTextKeepsItsCellOverAMarkerLineInAnOpaquePainter)
{
    // Value 4 and the max marker lie on row 60; the host's painter may be opaque.
    constexpr COLORREF kHostBackground = RGB(255, 255, 255);
    for (const bool opaque : { false, true }) {
        UpDownIndicator gauge;
        CAttributeMap map;
        map.SetAttribValue(UpDownIndicator::ATTR_SHOWMINMAXMARKER, 2);
        gauge.LoadAttributes(map);
        gauge.SetMinMaxMarker(-2.0, 4.0);
        gauge.SetRefValue(-5.0);
        gauge.SetDeltaValue(4.0);
        QImage image(200, 200, QImage::Format_ARGB32);
        image.fill(toQColor(kOutside));
        {
            QPainter painter(&image);
            painter.setBackgroundMode(opaque ? Qt::OpaqueMode : Qt::TransparentMode);
            painter.setBackground(toQColor(kHostBackground));
            gauge.Draw(&painter, image.rect());
            EXPECT_EQ(painter.backgroundMode(), opaque ? Qt::OpaqueMode : Qt::TransparentMode);
        }
        const int strip = NameStripEdge(image, false);
        // Under the value's text: the label background only when the painter is opaque.
        const QRect underText(strip - 24, 59, 22, 3);
        if (opaque)
            EXPECT_GT(Count(image, kLabel, underText), 10);
        else
            EXPECT_EQ(Count(image, kLabel, underText), 0);
        // The line's gaps left of the pointer stay open: the bar shows through, never a background.
        const QRect line(1, 59, 60, 3);
        EXPECT_EQ(Count(image, kHostBackground, line) + Count(image, kLabel, line), 0) << opaque;
        EXPECT_GT(Count(image, kInside, line) + Count(image, kPane, line), 15) << opaque;
    }
}

TEST_F(UpDownIndicatorTest, PointerBoxStaysInTheStripWhileTheTipMarksTheValue)
{
    // Strip y 50..349 over -10..10: 9.9 lies at y 51, so the box is held at 60 ± 10.
    UpDownIndicator gauge;
    gauge.SetDeltaValue(9.9);
    const QImage image = Render(gauge, { 120, 400 }, QRect(0, 50, 120, 300));
    EXPECT_GT(Count(image, kPointer, QRect(0, 44, 120, 3)), 0);  // the tip, above the strip
    EXPECT_GT(Count(image, kPointer, QRect(0, 64, 120, 3)), 0);  // the box, below the tip
    EXPECT_EQ(Count(image, kPointer, QRect(0, 72, 120, 328)), 0);

    // Far away values (horizontal too) keep the box inside and draw no bar outside the strip.
    for (bool horizontal : { false, true }) {
        gauge.SetHorizontalMode(horizontal);
        gauge.SetDeltaValue(-1e300);
        const QRect strip(50, 50, 300, 300);
        const QImage far = Render(gauge, { 400, 400 }, strip); 
        EXPECT_GT(Count(far, kPointer, strip), 0) << horizontal;
        EXPECT_EQ(Count(far, kBelow), Count(far, kBelow, strip)) << horizontal;
    }
}

TEST_F(UpDownIndicatorTest, ReferenceLabelAndBarDependOnTheValues)
{
    // The label background shows left of the name strip only for a reference label.
    const struct { double ref, value; bool label, bar; } cases[] = {
        { 0.0, 3.0, false, true },
        { 2.0, 3.0, true, true },
        { 2.0, 2.0, false, false }, // value on the reference: no bar, the pointer hides the label
    };
    for (const auto& c : cases) {
        UpDownIndicator gauge;
        gauge.SetRefValue(c.ref);
        gauge.SetDeltaValue(c.value);
        const QImage image = Render(gauge, { 300, 300 });
        EXPECT_EQ(Count(image, kLabel, QRect(0, 0, NameStripEdge(image, false), 300)) > 0, c.label) << c.ref << " " << c.value;
        EXPECT_EQ(Count(image, kAbove) + Count(image, kBelow) > 0, c.bar) << c.ref << " " << c.value;
    }
}

TEST_F(UpDownIndicatorTest, LayersShareTheRectangle)
{
    UpDownIndicator gauge;
    gauge.SetNumLayers(3);
    gauge.SetLayerIndex(1);
    const QRect pane(0, 0, 300, 200);
    const QImage image = Render(gauge, { 300, 200 });
    for (const auto& [x, inside] : { std::pair { 99, false }, { 100, true }, { 199, true }, { 200, false } }) {
        EXPECT_EQ(gauge.CheckPtInIndicator({ x, 50 }, pane), inside) << x;
        EXPECT_EQ(At(image, x, 50), inside ? kPane : kOutside) << x;
    }

    // A layer that does not exist has no strip and draws nothing.
    gauge.SetLayerIndex(3);
    gauge.SetDeltaValue(5.0);
    EXPECT_FALSE(gauge.CheckPtInIndicator({ 10, 10 }, pane));
    EXPECT_EQ(Count(Render(gauge, { 300, 200 }), kOutside), 300 * 200);
}

TEST_F(UpDownIndicatorTest, BadRangesAndValuesFillOnlyThePane)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct { double axisMin, axisMax, ref, value; } cases[] = {
        { 5.0, 5.0, 1.0, 2.0 }, { -10.0, 10.0, nan, 2.0 }, { -10.0, std::numeric_limits<double>::infinity(), 1.0, 2.0 },
    };
    for (const auto& c : cases) {
        UpDownIndicator gauge;
        gauge.SetAxisRange(c.axisMin, c.axisMax);
        gauge.SetRefValue(c.ref);
        gauge.SetDeltaValue(c.value);
        EXPECT_EQ(Count(Render(gauge, { 100, 100 }), kPane), 100 * 100);
    }
    // Not valid: only the pane, whatever the values; Clear makes it so again.
    UpDownIndicator gauge;
    gauge.SetDeltaValue(3.0);
    EXPECT_LT(Count(Render(gauge, { 100, 100 }), kPane), 100 * 100);
    gauge.Clear();
    EXPECT_EQ(Count(Render(gauge, { 100, 100 }), kPane), 100 * 100);
}

TEST_F(UpDownIndicatorTest, LoadAttributesReadsEverySetting)
{
    CAttributeMap map;
    map.SetAttribColor(UpDownIndicator::ATTR_INSIDECOLOR, RGB(70, 80, 90));
    map.SetAttribValue(ATTR_YAXISRANGE, qMakePair(0.0, 40.0));
    map.SetAttribValue(UpDownIndicator::ATTR_SHOWMINMAXMARKER, 1);
    map.SetAttribValue(UpDownIndicator::ATTR_MINMAXMARKER, qMakePair(10.0, 20.0));
    map.SetAttribValue(QStringLiteral("HorzontalMode"), true);
    UpDownIndicator gauge;
    gauge.LoadAttributes(map);

    // Horizontal, 400 px over 0..40: x = 10 v; band 100..200.
    gauge.SetRefValue(5.0);
    gauge.SetDeltaValue(30.0);
    EXPECT_EQ(At(Render(gauge, { 400, 100 }), 150, 10), RGB(70, 80, 90));

    // The key is spelled as hosts store it: the correct spelling is not read.
    map.Remove(QStringLiteral("HorzontalMode"));
    map.SetAttribValue(QStringLiteral("HorizontalMode"), true);
    UpDownIndicator vertical;
    vertical.LoadAttributes(map);
    EXPECT_FALSE(vertical.IsHorizontalMode());
}

TEST_F(UpDownIndicatorTest, ResetButtonIsHitOnlyWhenShownAndInside)
{
    UpDownIndicator gauge;
    EXPECT_FALSE(gauge.CheckResetBtn({ 12, 12 }));
    gauge.ShowResetButton(true);
    EXPECT_TRUE(gauge.CheckResetBtn({ 12, 12 })); // not drawn yet: at the origin

    // Drawn into a strip at (100, 50): the 24-px button is centred at (114, 64).
    gauge.SetDeltaValue(-5.0);
    const QImage image = Render(gauge, { 300, 300 }, QRect(100, 50, 200, 250));
    const struct { QPoint p; bool hit; } points[] = {
        { { 102, 64 }, true }, { { 125, 64 }, true }, { { 101, 64 }, false }, { { 102, 52 }, false }, // rounded corner
    };
    for (const auto& point : points)
        EXPECT_EQ(gauge.CheckResetBtn(point.p), point.hit) << point.p.x() << "," << point.p.y();
    EXPECT_GT(Count(image, 0, QRect(106, 57, 16, 15)), 20); // the black arrow
    EXPECT_EQ(Count(image, RGB(192, 192, 192), QRect(106, 57, 16, 15)), 0); // key grey is transparent

    gauge.ShowResetButton(false);
    EXPECT_FALSE(gauge.CheckResetBtn({ 114, 64 }));
}

TEST_F(UpDownIndicatorTest, NightModeMapsThePaneButNotTheBand)
{
    QFile map(project.CommonFolder() + QStringLiteral("/ColorMaps/night.cmap"));
    ASSERT_TRUE(map.open(QIODevice::WriteOnly | QIODevice::Truncate));
    // pane grey -> dark blue, black -> red, the below colour -> green
    map.write("[QEL_COLORS]\n8421504 = 3153936\n0 = 255\n225 = 65280\n");
    map.close();
    ColorControl& colors = ColorControl::Instance();
    colors.SetLightMode(ColorConverter::normal, false);
    colors.SetLightMode(ColorConverter::night, false);

    UpDownIndicator gauge; // made in night mode: black turns red once
    gauge.ShowResetButton(true);
    gauge.SetRefValue(0.0);
    gauge.SetDeltaValue(-6.0);
    const QImage image = Render(gauge, { 200, 400 });
    colors.SetLightMode(ColorConverter::normal, false);

    EXPECT_EQ(At(image, 100, 100), RGB(0x10, 0x20, 0x30));
    EXPECT_EQ(At(image, 20, 250), kBelow);
    EXPECT_GT(Count(image, RGB(255, 0, 0), QRect(6, 7, 16, 15)), 20);
    EXPECT_EQ(Count(image, 0), 0);
}

TEST_F(UpDownIndicatorTest, WidgetPropertiesNotifyRealChangesOnly)
{
    UpDownIndicatorWidget widget;
    QSignalSpy valid(&widget, &UpDownIndicatorWidget::validChanged);
    QSignalSpy value(&widget, &UpDownIndicatorWidget::valueChanged);
    widget.setValue(0.0); // the value it has: the gauge becomes valid, the value is not new
    EXPECT_EQ(value.count(), 0);
    ASSERT_EQ(valid.count(), 1);
    EXPECT_TRUE(valid.at(0).at(0).toBool());

    ExpectNotifyingProperties(widget, {
        { "value", 3.5 }, { "axisMinimum", -20.0 }, { "bandMinimum", -1.0 },
        { "orientation", QVariant::fromValue(Qt::Horizontal) }, { "itemName", QStringLiteral("Head") },
        { "paneColor", QColor(10, 20, 30) },
    });
    widget.clear();
    ASSERT_EQ(valid.count(), 2);
    EXPECT_FALSE(valid.at(1).at(0).toBool());

    // Loaded settings notify as they change; markers fixed by the attributes still take band
    // limits from the widget.
    CAttributeMap map;
    map.SetAttribValue(UpDownIndicator::ATTR_SHOWMINMAXMARKER, UpDownIndicator::MARKERS_FIXED);
    map.SetAttribValue(UpDownIndicator::ATTR_MINMAXMARKER, qMakePair(2.0, 6.0));
    QSignalSpy band(&widget, &UpDownIndicatorWidget::bandMinimumChanged);
    QSignalSpy axis(&widget, &UpDownIndicatorWidget::axisMinimumChanged);
    widget.loadAttributes(map);
    EXPECT_EQ(band.count(), 1);
    EXPECT_EQ(axis.count(), 0);
    widget.setBandMaximum(5.0);
    double low = 0.0, high = 0.0;
    widget.indicator().GetMinMaxMarker(low, high);
    EXPECT_EQ(widget.indicator().GetMarkerMode(), UpDownIndicator::MARKERS_FIXED);
    EXPECT_EQ(std::make_pair(low, high), std::make_pair(2.0, 5.0));
}

TEST_F(UpDownIndicatorTest, WidgetAtItsMinimumSizeCutsNoText)
{
    // At its minimum size the pointer, value and reference label look as with room to spare.
    for (const bool horizontal : { false, true }) {
        UpDownIndicatorWidget widget;
        widget.setOrientation(horizontal ? Qt::Horizontal : Qt::Vertical);
        widget.setAxisMinimum(-20000.0);
        widget.setAxisMaximum(20000.0);
        widget.setReference(-5000.5);
        widget.setValue(12345.25);
        widget.setItemName(QStringLiteral("Head"));
        const QSize minimum = widget.minimumSizeHint();
        widget.resize(minimum);
        const QImage tight = Rendered(widget);
        const QPoint spare = horizontal ? QPoint(0, 40) : QPoint(40, 0);
        widget.resize(minimum + QSize(spare.x(), spare.y()));
        const QImage roomy = Rendered(widget);
        const QRect kept = horizontal ? QRect(0, 2, minimum.width(), minimum.height() - 2)
                                      : QRect(2, 0, minimum.width() - 2, minimum.height());
        EXPECT_EQ(tight.copy(kept), roomy.copy(kept.translated(spare))) << horizontal;

        // A longer name needs a longer gauge; a wider number a wider one.
        const auto along = [&] { return horizontal ? widget.minimumSizeHint().width() : widget.minimumSizeHint().height(); };
        const int before = along();
        widget.setItemName(QStringLiteral("A much longer name of the dredge head"));
        EXPECT_GT(along(), before) << horizontal;
        widget.setItemName(QStringLiteral("Head"));
        widget.setValue(-1234567.75);
        EXPECT_GT(widget.minimumSizeHint().width(), minimum.width()) << horizontal;
    }
}

TEST_F(UpDownIndicatorTest, WidgetReportsClicksOnTheResetButtonAndFollowsTheColourMode)
{
    UpDownIndicatorWidget widget;
    widget.resize(120, 300);
    widget.setValue(1.0);
    QSignalSpy clicked(&widget, &UpDownIndicatorWidget::resetClicked);
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    QTest::mouseClick(&widget, Qt::LeftButton, {}, { 14, 14 }); // not shown yet
    widget.setResetButtonVisible(true);
    QTest::mouseClick(&widget, Qt::RightButton, {}, { 14, 14 });
    QTest::mousePress(&widget, Qt::LeftButton, {}, { 14, 14 }); // pressed on it, released off it
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, { 60, 150 });
    EXPECT_EQ(clicked.count(), 0);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, { 14, 14 });
    EXPECT_EQ(clicked.count(), 1);

    EXPECT_TRUE(RepaintsOnModeChange(widget));
}

} // namespace

// Brushes, pens, point fonts and the selection guard, checked by what they draw.
#include <QelBase/DisplayScale.h>
#include <QelBase/MsgTextAttribs.h>
#include <QelMfc0/drawing/FontInfo.h>
#include <QelMfc0/drawing/GDISelector.h>
#include <QelMfc0/drawing/PECFont.h>
#include <QelMfc0/drawing/QelBrush.h>
#include <QelMfc0/drawing/QelPen.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace {

constexpr int kDpm96 = 3780, kDpm144 = 5669; // dots per metre of 96 and 144 dpi devices

QImage whiteImage(int w, int h, int dotsPerMetre = kDpm96)
{
    QImage img(w, h, QImage::Format_RGB32);
    img.setDotsPerMeterX(dotsPerMetre);
    img.setDotsPerMeterY(dotsPerMetre);
    img.fill(Qt::white);
    return img;
}

// Draws a horizontal line from x = 0 with the pen and returns the lengths of the alternating
// on/off runs along its middle row; the last, cut-off run is left out.
std::vector<int> dashRuns(const QelPen& pen, QImage& img)
{
    QPainter p(&img);
    p.setPen(pen);
    const qreal y = 20 + std::max(1, pen.width()) / 2.0; // the stroke covers rows from 20 down
    p.drawLine(QPointF(0, y), QPointF(img.width(), y));
    p.end();
    std::vector<int> runs;
    bool on = true;
    int length = 0;
    for (int x = 0; x < img.width(); ++x) {
        if ((img.pixel(x, 20) != qRgb(255, 255, 255)) == on) {
            ++length;
        } else {
            runs.push_back(length);
            on = !on;
            length = 1;
        }
    }
    return runs;
}

} // namespace

TEST(QelBrushTest, StylesMapToQtPatternsAndUnknownStylesCreateNothing)
{
    const Qt::BrushStyle expected[] = {Qt::NoBrush,      Qt::SolidPattern,    Qt::BDiagPattern,
                                       Qt::FDiagPattern, Qt::DiagCrossPattern, Qt::HorPattern,
                                       Qt::VerPattern,   Qt::CrossPattern};
    for (int style = 0; style < 8; ++style) {
        QelBrush brush;
        EXPECT_NE(brush.CreateQelBrush(style, int(RGB(10, 20, 30))), 0) << style;
        EXPECT_EQ(brush.style(), expected[style]) << style;
        EXPECT_EQ(brush.color(), QColor(10, 20, 30)) << style;
    }
    for (int bad : {8, -1, INT_MIN}) {
        QelBrush brush;
        brush.CreateQelBrush(1, int(RGB(1, 2, 3)));
        EXPECT_EQ(brush.CreateQelBrush(bad, int(RGB(200, 0, 0))), 0) << bad;
        EXPECT_EQ(brush, QBrush(QColor(1, 2, 3))) << bad;
    }
}

TEST(QelBrushTest, BackwardDiagonalRisesToTheRightAndForwardFalls)
{
    // Along a hatch line the next pixel to the right is one row up for "/", one row down for "\".
    auto slopeOf = [](int style) {
        QelBrush brush;
        brush.CreateQelBrush(style, int(RGB(0, 0, 0)));
        QImage img = whiteImage(16, 16);
        QPainter(&img).fillRect(img.rect(), brush);
        int slope = 0;
        for (int y = 1; y < 15; ++y)
            for (int x = 0; x < 15; ++x)
                if (img.pixel(x, y) == qRgb(0, 0, 0))
                    slope += (img.pixel(x + 1, y - 1) == qRgb(0, 0, 0))
                           - (img.pixel(x + 1, y + 1) == qRgb(0, 0, 0));
        return slope > 0 ? +1 : (slope < 0 ? -1 : 0);
    };
    EXPECT_EQ(slopeOf(2), +1);
    EXPECT_EQ(slopeOf(3), -1);
}

TEST(QelPenTest, WidthScalesWithTheDeviceResolution)
{
    QImage at96 = whiteImage(4, 4), at144 = whiteImage(4, 4, kDpm144);
    ASSERT_EQ(at96.logicalDpiY(), 96);
    ASSERT_EQ(at144.logicalDpiY(), 144);
    const struct { int width; const QPaintDevice* dc; int expected; } cases[] = {
        {0, &at144, 0}, {1, &at144, 2}, {2, &at144, 3}, {3, &at144, 5},
        {1, &at96, 1},  {4, &at96, 4},  {2, nullptr, 2},
    };
    for (const auto& c : cases) {
        QelPen pen;
        ASSERT_NE(pen.CreateQelPen(1, c.width, 0, c.dc), 0);
        EXPECT_EQ(pen.width(), c.expected) << c.width;
    }
}

TEST(QelPenTest, PixelPatternsGrowWithTheScaledWidth)
{
    using P = QVector<qreal>;
    QImage at144 = whiteImage(4, 4, kDpm144);
    const struct { int style; int width; const QPaintDevice* dc; P expected; } cases[] = {
        {1, 0, &at144, P{7, 5}}, // width 0 is not scaled and the unit is 1
        {2, 1, nullptr, P{1, 5}},
        {3, 2, nullptr, P{14, 10, 2, 10}},
        {4, 1, nullptr, P{7, 5, 1, 5, 1, 7, 5, 1, 5, 1}},
        {1, 2, &at144, P{21, 15}},
        {0, 3, nullptr, P{}},
    };
    for (const auto& c : cases) {
        const QelPen pen(c.style, c.width, RGB(0, 0, 255), c.dc);
        EXPECT_EQ(pen.PixelDashPattern(), c.expected) << c.style << "/" << c.width;
    }
    EXPECT_TRUE(QelPen(0, 2, 0, nullptr).isCosmetic());
}

TEST(QelPenTest, BadStyleOrWidthLeavesThePenAsItWas)
{
    QImage at144 = whiteImage(4, 4, kDpm144);
    const struct { int style; int width; const QPaintDevice* dc; } cases[] = {
        {5, 1, nullptr}, {-1, 1, nullptr},   {1, -1, nullptr},       {1, QelPen::kMaxWidth + 1, nullptr},
        {1, 30000, &at144}, {2, INT_MAX, &at144}, {2, INT_MIN, &at144},
    };
    for (const auto& c : cases) {
        QelPen pen(2, 3, RGB(1, 2, 3), nullptr);
        const QPen before = pen;
        EXPECT_EQ(pen.CreateQelPen(c.style, c.width, int(RGB(9, 9, 9)), c.dc), 0) << c.style << "/" << c.width;
        EXPECT_EQ(QPen(pen), before);
    }
}

// Renders each dashed style as a horizontal line and reads back the drawn runs in pixels; the
// dash-dot-dot pattern swaps dash and gap on its second pass (7 on, ...; then 7 off, ...).
TEST(QelPenTest, DrawnRunsMatchThePixelPattern)
{
    const struct { int style; int width; int dpm; } cases[] = {
        {1, 0, kDpm96}, {1, 1, kDpm96}, {2, 1, kDpm96},  {3, 1, kDpm96},  {4, 1, kDpm96}, {1, 2, kDpm96},
        {3, 4, kDpm96}, {4, 2, kDpm96}, {1, 2, kDpm144}, {2, 2, kDpm144}, {3, 1, kDpm144},
        {4, 2, kDpm144},
    };
    for (const auto& c : cases) {
        QImage img = whiteImage(400, 40, c.dpm);
        const QelPen pen(c.style, c.width, RGB(0, 0, 0), &img);
        const QVector<qreal> pattern = pen.PixelDashPattern();
        const std::vector<int> runs = dashRuns(pen, img);
        ASSERT_GE(runs.size(), std::size_t(pattern.size())) << c.style;
        for (std::size_t i = 0; i < runs.size(); ++i)
            EXPECT_EQ(runs[i], int(pattern[int(i % pattern.size())]))
                << "style " << c.style << " width " << c.width << " dpm " << c.dpm << " run " << i;
    }
}

class PECFontTest : public ::testing::Test
{
protected:
    void SetUp() override { SetDpiScale(1.5); }
    void TearDown() override { SetDpiScale(0); }
};

TEST_F(PECFontTest, HeightAndPointSizeWithAndWithoutCorrection)
{
    PECFont font;
    EXPECT_EQ(font.Height(), 0);
    ASSERT_TRUE(font.Create(QStringLiteral("Arial"), 10, true, true, nullptr, true));
    EXPECT_EQ(font.Height(), 15);
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 10.0);
    EXPECT_EQ(font.weight(), QFont::Bold);
    EXPECT_TRUE(font.italic());

    ASSERT_TRUE(font.Create(QStringLiteral("Arial"), 10, false, false, nullptr, false));
    EXPECT_EQ(font.Height(), 10);
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 6.7); // DpiRevCor(100) = 67 tenths
    EXPECT_EQ(font.weight(), QFont::Normal);
    EXPECT_FALSE(font.italic());

    // The record forms always correct.
    ASSERT_TRUE(font.Create(FontInfo(QStringLiteral("Courier New"), 12, true, false, 0), nullptr));
    EXPECT_EQ(font.Height(), 18);
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 12.0);
    MSGTEXTATTRIBS attribs;
    attribs.pointSize = 8;
    attribs.italic = true;
    ASSERT_TRUE(font.Create(attribs, nullptr));
    EXPECT_EQ(font.Height(), 12);
    EXPECT_EQ(font.family(), QStringLiteral("Arial"));
    EXPECT_TRUE(font.italic());
}

TEST_F(PECFontTest, BadInputChangesNothing)
{
    PECFont font;
    ASSERT_TRUE(font.Create(QStringLiteral("Arial"), 9, false, true, nullptr, true));
    const QFont before = font;
    EXPECT_FALSE(font.Create(QString(), 10, false, false, nullptr, true));
    EXPECT_FALSE(font.Create(QStringLiteral("Arial"), 0, false, false, nullptr, true));
    EXPECT_FALSE(font.Create(QStringLiteral("Arial"), -4, false, false, nullptr, false));
    EXPECT_FALSE(font.Create(QStringLiteral("Arial"), INT_MAX, false, false, nullptr, false));
    EXPECT_EQ(font.Height(), DpiCor(9));
    EXPECT_EQ(QFont(font), before);
}

TEST_F(PECFontTest, FontForADeviceMeasuresInThatDevicesPixels)
{
    QImage at96 = whiteImage(4, 4), at144 = whiteImage(4, 4, kDpm144);
    PECFont small, large;
    ASSERT_TRUE(small.Create(QStringLiteral("Arial"), 20, false, false, &at96, true));
    ASSERT_TRUE(large.Create(QStringLiteral("Arial"), 20, false, false, &at144, true));
    EXPECT_NEAR(QFontMetricsF(large).height() / QFontMetricsF(small).height(), 1.5, 0.1);
}

TEST(GDISelectorTest, NestedGuardsRestoreInReverseOrder)
{
    QImage img = whiteImage(8, 8);
    QPainter p(&img);
    const QPen pen0(QColor(1, 1, 1), 3);
    const QBrush brush0(QColor(2, 2, 2));
    const QFont font0(QStringLiteral("Arial"), 11);
    p.setPen(pen0);
    p.setBrush(brush0);
    p.setFont(font0);
    {
        const QelPen pen1(1, 2, RGB(255, 0, 0), nullptr);
        GDISelector a(&p, pen1);
        EXPECT_EQ(p.pen(), QPen(pen1));
        {
            GDISelector b(&p, StockObject::BLACK_PEN);
            GDISelector c(&p, StockObject::GRAY_BRUSH);
            GDISelector d(&p, QFont(QStringLiteral("Arial"), 20));
            GDISelector e(&p, Qt::NoBrush); // a style, not stock object 0
            EXPECT_TRUE(a && b && c && d && e);
            EXPECT_EQ(p.pen().color(), QColor(0, 0, 0));
            EXPECT_EQ(p.brush().style(), Qt::NoBrush);
            EXPECT_EQ(p.font().pointSize(), 20);
        }
        EXPECT_EQ(p.pen(), QPen(pen1));
        EXPECT_EQ(p.brush(), brush0);
        EXPECT_EQ(p.font(), font0);
    }
    EXPECT_EQ(p.pen(), pen0);
}

TEST(GDISelectorTest, StockObjects)
{
    QImage img = whiteImage(8, 8);
    QPainter p(&img);
    const struct { int stock; QBrush brush; QPen pen; } cases[] = {
        {StockObject::WHITE_BRUSH, QBrush(QColor(255, 255, 255)), QPen(Qt::red)},
        {StockObject::LTGRAY_BRUSH, QBrush(QColor(192, 192, 192)), QPen(Qt::red)},
        {StockObject::GRAY_BRUSH, QBrush(QColor(128, 128, 128)), QPen(Qt::red)},
        {StockObject::DKGRAY_BRUSH, QBrush(QColor(64, 64, 64)), QPen(Qt::red)},
        {StockObject::BLACK_BRUSH, QBrush(QColor(0, 0, 0)), QPen(Qt::red)},
        {StockObject::NULL_BRUSH, QBrush(Qt::NoBrush), QPen(Qt::red)},
        {StockObject::WHITE_PEN, QBrush(Qt::red), QPen(QColor(255, 255, 255), 0)},
        {StockObject::BLACK_PEN, QBrush(Qt::red), QPen(QColor(0, 0, 0), 0)},
        {StockObject::NULL_PEN, QBrush(Qt::red), QPen(Qt::NoPen)},
    };
    for (const auto& c : cases) {
        p.setPen(QPen(Qt::red));
        p.setBrush(QBrush(Qt::red));
        GDISelector guard(&p, c.stock);
        EXPECT_TRUE(guard) << c.stock;
        EXPECT_EQ(p.brush(), c.brush) << c.stock;
        EXPECT_EQ(p.pen().style(), c.pen.style()) << c.stock;
        EXPECT_EQ(p.pen().color(), c.pen.color()) << c.stock;
    }
    p.setFont(QFont(QStringLiteral("Arial"), 31));
    {
        GDISelector font(&p, StockObject::DEFAULT_GUI_FONT);
        EXPECT_TRUE(font);
        EXPECT_EQ(p.font(), QGuiApplication::font());
    }
    EXPECT_EQ(p.font().pointSize(), 31);
}

// Qt's colour enum promotes to int; it must not be taken for a stock-object number.
static_assert(!std::is_constructible_v<GDISelector, QPainter*, Qt::GlobalColor>);

TEST(GDISelectorTest, NothingSelectedWithoutAnActivePainterOrForUnknownStock)
{
    EXPECT_FALSE(GDISelector(nullptr, QPen(Qt::red)) || GDISelector(nullptr, QBrush(Qt::red))
                 || GDISelector(nullptr, QFont()) || GDISelector(nullptr, StockObject::BLACK_PEN));
    QPainter inactive;
    EXPECT_FALSE(GDISelector(&inactive, StockObject::BLACK_BRUSH));

    QImage img = whiteImage(8, 8);
    QPainter p(&img);
    p.setBrush(QBrush(Qt::blue));
    for (int unknown : {9, 16, 18, -1}) {
        GDISelector guard(&p, unknown);
        EXPECT_FALSE(guard) << unknown;
        EXPECT_EQ(p.brush().color(), QColor(Qt::blue));
    }
    {
        GDISelector guard(&p, StockObject::WHITE_PEN);
        p.end(); // the guard's destructor must leave the ended painter alone
    }
    EXPECT_FALSE(p.isActive());
}

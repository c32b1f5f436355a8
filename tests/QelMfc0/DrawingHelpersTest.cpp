// Brushes, pens, point fonts and the selection guard, checked by what they draw.
#include <QelBase/DisplayScale.h>
#include <QelBase/MsgTextAttribs.h>
#include <QelMfc0/drawing/FontInfo.h>
#include <QelMfc0/drawing/GDISelector.h>
#include <QelMfc0/drawing/PECFont.h>
#include <QelMfc0/drawing/QelBrush.h>
#include <QelMfc0/drawing/QelPen.h>

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

// Lengths of the on/off runs of a horizontal line from x = 0, without the cut-off last run.
std::vector<int> dashRuns(const QelPen& pen, QImage& img)
{
    QPainter p(&img);
    p.setPen(pen);
    const qreal y = 20 + std::max(1, pen.width()) / 2.0; // the stroke covers rows from 20 down
    p.drawLine(QPointF(0, y), QPointF(img.width(), y));
    p.end();
    std::vector<int> runs{0};
    for (int x = 0; x < img.width(); ++x) {
        const bool on = img.pixel(x, 20) != qRgb(255, 255, 255);
        if (on == (runs.size() % 2 == 1))
            ++runs.back();
        else
            runs.push_back(1);
    }
    runs.pop_back();
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
    for (int bad : {8, -1}) {
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
        auto black = [&](int x, int y) { return img.pixel(x, y) == qRgb(0, 0, 0); };
        int slope = 0;
        for (int y = 1; y < 15; ++y)
            for (int x = 0; x < 15; ++x)
                if (black(x, y))
                    slope += black(x + 1, y - 1) - black(x + 1, y + 1);
        return (slope > 0) - (slope < 0);
    };
    EXPECT_EQ(slopeOf(2), +1);
    EXPECT_EQ(slopeOf(3), -1);
}

TEST(QelPenTest, WidthScalesWithTheDeviceResolutionAndBadInputLeavesThePen)
{
    QImage at96 = whiteImage(4, 4), at144 = whiteImage(4, 4, kDpm144);
    ASSERT_EQ(at144.logicalDpiY(), 144);
    const struct { int width; const QPaintDevice* dc; int expected; } cases[] = {
        {0, &at144, 0}, {1, &at144, 2}, {3, &at144, 5}, {4, &at96, 4}, {2, nullptr, 2},
    };
    for (const auto& c : cases) {
        QelPen pen;
        ASSERT_NE(pen.CreateQelPen(1, c.width, 0, c.dc), 0);
        EXPECT_EQ(pen.width(), c.expected) << c.width;
    }
    const struct { int style; int width; const QPaintDevice* dc; } bad[] = {
        {5, 1, nullptr}, {1, -1, nullptr}, {1, QelPen::kMaxWidth + 1, nullptr}, {2, INT_MAX, &at144},
    };
    for (const auto& c : bad) {
        QelPen pen(2, 3, RGB(1, 2, 3), nullptr);
        const QPen before = pen;
        EXPECT_EQ(pen.CreateQelPen(c.style, c.width, int(RGB(9, 9, 9)), c.dc), 0) << c.style << "/" << c.width;
        EXPECT_EQ(QPen(pen), before);
    }
}

// The dash-dot-dot pattern swaps dash and gap on its second pass (7 on, ...; then 7 off, ...).
TEST(QelPenTest, PixelPatternsGrowWithTheScaledWidthAndAreDrawnSo)
{
    using P = QVector<qreal>;
    const struct { int style; int width; int dpm; P expected; } cases[] = {
        {1, 0, kDpm144, P{7, 5}}, // width 0 is not scaled and the unit is 1
        {2, 1, kDpm96, P{1, 5}},
        {3, 2, kDpm96, P{14, 10, 2, 10}},
        {4, 1, kDpm96, P{7, 5, 1, 5, 1, 7, 5, 1, 5, 1}},
        {1, 2, kDpm144, P{21, 15}}, {4, 2, kDpm144, {}},
    };
    for (const auto& c : cases) {
        QImage img = whiteImage(400, 40, c.dpm);
        const QelPen pen(c.style, c.width, RGB(0, 0, 0), &img);
        const QVector<qreal> pattern = pen.PixelDashPattern();
        EXPECT_TRUE(c.expected.isEmpty() || pattern == c.expected) << c.style << "/" << c.width;
        const std::vector<int> runs = dashRuns(pen, img);
        ASSERT_GE(runs.size(), std::size_t(pattern.size())) << c.style;
        for (std::size_t i = 0; i < runs.size(); ++i)
            EXPECT_EQ(runs[i], int(pattern[int(i % pattern.size())]))
                << "style " << c.style << " width " << c.width << " dpm " << c.dpm << " run " << i;
    }
    EXPECT_TRUE(QelPen(0, 2, 0, nullptr).isCosmetic());
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
    ASSERT_TRUE(font.Create(QStringLiteral("Arial"), 10, true, true, nullptr, true));
    EXPECT_EQ(font.Height(), 15);
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 10.0);
    ASSERT_TRUE(font.Create(QStringLiteral("Arial"), 10, false, false, nullptr, false));
    EXPECT_EQ(font.Height(), 10);
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 6.7); // DpiRevCor(100) = 67 tenths

    // The record forms always correct.
    ASSERT_TRUE(font.Create(FontInfo(QStringLiteral("Courier New"), 12, true, false, 0), nullptr));
    EXPECT_EQ(font.Height(), 18);
    MSGTEXTATTRIBS attribs;
    attribs.pointSize = 8;
    ASSERT_TRUE(font.Create(attribs, nullptr));
    EXPECT_EQ(font.Height(), 12);

    // Bad input changes nothing.
    const QFont before = font;
    EXPECT_FALSE(font.Create(QString(), 10, false, false, nullptr, true));
    EXPECT_FALSE(font.Create(QStringLiteral("Arial"), -4, false, false, nullptr, false));
    EXPECT_FALSE(font.Create(QStringLiteral("Arial"), INT_MAX, false, false, nullptr, false));
    EXPECT_EQ(font.Height(), 12);
    EXPECT_EQ(QFont(font), before);
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
        {
            GDISelector b(&p, StockObject::BLACK_PEN);
            GDISelector c(&p, StockObject::GRAY_BRUSH);
            GDISelector d(&p, QFont(QStringLiteral("Arial"), 20));
            GDISelector e(&p, Qt::NoBrush); // a style, not stock object 0
            EXPECT_TRUE(a && b && c && d && e);
            EXPECT_EQ(p.brush().style(), Qt::NoBrush);
        }
        EXPECT_EQ(p.pen(), QPen(pen1));
        EXPECT_EQ(p.brush(), brush0);
        EXPECT_EQ(p.font(), font0);
    }
    EXPECT_EQ(p.pen(), pen0);
}

// Qt's colour enum promotes to int; it must not be taken for a stock-object number.
static_assert(!std::is_constructible_v<GDISelector, QPainter*, Qt::GlobalColor>);

TEST(GDISelectorTest, NothingSelectedWithoutAnActivePainterOrForUnknownStock)
{
    EXPECT_FALSE(GDISelector(nullptr, QPen(Qt::red)) || GDISelector(nullptr, StockObject::BLACK_PEN));
    QPainter inactive;
    EXPECT_FALSE(GDISelector(&inactive, StockObject::BLACK_BRUSH));

    QImage img = whiteImage(8, 8);
    QPainter p(&img);
    p.setBrush(QBrush(Qt::blue));
    for (int unknown : {9, -1}) {
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

#include "pages/PlanView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QelBase/NumberUtils.h>
#include <QelBase/QelTypes.h>
#include <QelConfigure/QelFormatter.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelSubscriber/SubscriptionManager.h>

#include <algorithm>
#include <cmath>

namespace {
// The survey area: WGS 84 / UTM 31N around 52°N 3°E, on the zone's central meridian.
const QRectF kArea(496000.0, 5757000.0, 8000.0, 8000.0);
const Point kLineStart(497500.0, 5758500.0);
const Point kLineEnd(502800.0, 5763600.0);
// The shoal: 6 m deep at its centre, deepening to 24 m with the distance from it.
const Point kShoalCentre(500500.0, 5761500.0);
constexpr double kShoalRadius = 2200.0;
constexpr double kShoalTop = 6.0, kShoalRise = 18.0;
constexpr double kGridStep = 1000.0;
constexpr int kGap = 6;

// Day colours of the plan; each is drawn in the colour mode's counterpart.
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kInk = RGB(0, 0, 0);
constexpr COLORREF kDeepWater = RGB(225, 238, 250);
constexpr COLORREF kBands[] = { RGB(195, 219, 242), RGB(162, 198, 232), RGB(128, 172, 218) };
constexpr double kBandDepths[] = { 20.0, 15.0, 10.0 }; // upper edge of each band, metres
constexpr COLORREF kGridLines = RGB(110, 120, 130);
constexpr COLORREF kVessel = RGB(255, 128, 0);
constexpr COLORREF kPick = RGB(255, 0, 0);

QColor Mode(COLORREF color)
{
    return toQColor(ColorControl::Instance().GetColor(color, false));
}

QFont LabelFont(const QFont& base)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * 0.85);
    return font;
}

// Distance from the shoal's centre at which the water is `depth` metres deep.
double ShoalRadiusAt(double depth)
{
    const double share = (depth - kShoalTop) / kShoalRise;
    return kShoalRadius * std::sqrt(-std::log(1.0 - share));
}

QString GridText(double metres)
{
    return QString::number(qint64(std::llround(metres)));
}
} // namespace

PlanView::PlanView(QWidget* parent)
    : QWidget(parent)
    , m_area(kArea)
{
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, [this] {
        m_along = std::fmod(m_along + 0.004, 1.15); // sails on past the line end, then starts again
        update();
        emit vesselMoved(VesselPosition());
    });
    m_timer->start(200);
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { update(); }, this);
}

QSize PlanView::minimumSizeHint() const
{
    return { 300, 260 };
}

Point PlanView::RunLineStart() const { return kLineStart; }
Point PlanView::RunLineEnd() const { return kLineEnd; }

Point PlanView::VesselPosition() const
{
    // Along the line from a little before its start, with a slow swing across it.
    const double t = m_along - 0.07;
    const Point d = kLineEnd - kLineStart;
    const double length = std::hypot(d.x, d.y);
    const double offset = 60.0 * std::sin(m_along * 23.0);
    return Point(kLineStart.x + d.x * t + offset * d.y / length, kLineStart.y + d.y * t - offset * d.x / length,
                 DepthAt(kLineStart.x + d.x * t, kLineStart.y + d.y * t));
}

void PlanView::SetPicks(const Point& first, const Point& second, int count)
{
    m_picks[0] = first;
    m_picks[1] = second;
    m_pickCount = count;
    update();
}

double PlanView::DepthAt(double x, double y) const
{
    const double dx = (x - kShoalCentre.x) / kShoalRadius, dy = (y - kShoalCentre.y) / kShoalRadius;
    return -(kShoalTop + kShoalRise * (1.0 - std::exp(-(dx * dx + dy * dy))));
}

QRectF PlanView::ChartRect() const
{
    // Room for the northings and their caption on the left, the eastings and theirs below.
    const QFontMetrics metrics(LabelFont(font()));
    const double left = metrics.height() + kGap + metrics.horizontalAdvance(GridText(m_area.bottom())) + kGap;
    const double bottom = 2 * metrics.height() + 2 * kGap;
    // Half an easting label sticks out on the right, half a northing label at the top.
    const double right = metrics.horizontalAdvance(GridText(m_area.right())) / 2.0 + kGap;
    const double top = metrics.height() / 2.0 + kGap;
    const QRectF room(left, top, std::max(1.0, width() - left - right), std::max(1.0, height() - top - bottom));
    const double scale = std::min(room.width() / m_area.width(), room.height() / m_area.height());
    QRectF chart(0, 0, m_area.width() * scale, m_area.height() * scale);
    chart.moveCenter(room.center());
    return chart;
}

double PlanView::PixelsPerMetre() const
{
    return ChartRect().width() / m_area.width();
}

Point PlanView::ToGrid(const QPointF& pixel) const
{
    const QRectF chart = ChartRect();
    const double scale = chart.width() / m_area.width();
    const double x = m_area.left() + (pixel.x() - chart.left()) / scale;
    const double y = m_area.bottom() - (pixel.y() - chart.top()) / scale;
    return Point(x, y, DepthAt(x, y));
}

QPointF PlanView::ToPixel(const Point& grid) const
{
    const QRectF chart = ChartRect();
    const double scale = chart.width() / m_area.width();
    return QPointF(chart.left() + (grid.x - m_area.left()) * scale, chart.top() + (m_area.bottom() - grid.y) * scale);
}

QString PlanView::MeasuredText() const
{
    if (m_pickCount < 2)
        return QString();
    double bearing = 0.0, distance = 0.0;
    XYToPolar(m_picks[1].x - m_picks[0].x, m_picks[1].y - m_picks[0].y, bearing, distance);
    const QelFormatter formatter;
    return tr("%1 at %2").arg(formatter.FormatDistance(distance), formatter.FormatBearing(bearing));
}

void PlanView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && ChartRect().contains(event->position()))
        emit picked(ToGrid(event->position()));
}

void PlanView::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), Mode(kPaper));
    const QRectF chart = ChartRect();
    const double scale = chart.width() / m_area.width();

    p.save();
    p.setClipRect(chart);
    p.fillRect(chart, Mode(kDeepWater));
    // Depth bands around the shoal, shallower towards its centre.
    const QPointF centre = ToPixel(kShoalCentre);
    p.setPen(Qt::NoPen);
    for (size_t i = 0; i < std::size(kBands); ++i) {
        const double radius = ShoalRadiusAt(kBandDepths[i]) * scale;
        p.setBrush(Mode(kBands[i]));
        p.drawEllipse(centre, radius, radius);
    }
    PaintGrid(p, chart);
    // The run line and the vessel.
    p.setPen(QPen(Mode(kInk), 2));
    p.drawLine(ToPixel(kLineStart), ToPixel(kLineEnd));
    p.setPen(QPen(Mode(kInk), 1));
    p.setBrush(Mode(kVessel));
    p.drawEllipse(ToPixel(VesselPosition()), 5, 5);
    PaintMeasurement(p);
    p.restore();

    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Mode(kInk), 1));
    p.drawRect(chart.adjusted(0.5, 0.5, -0.5, -0.5));
}

void PlanView::PaintGrid(QPainter& p, const QRectF& chart) const
{
    const double scale = chart.width() / m_area.width();
    const QFont font = LabelFont(this->font());
    const QFontMetrics metrics(font);
    // Labels every kilometre, or every few when they would touch.
    const double labelWidth = metrics.horizontalAdvance(GridText(m_area.right())) + 2 * kGap;
    const int every = std::max(1, int(std::ceil(labelWidth / (kGridStep * scale))));
    const int everyNorth = std::max(1, int(std::ceil((metrics.height() + kGap) / (kGridStep * scale))));

    p.setPen(QPen(Mode(kGridLines), 0, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    for (double x = std::ceil(m_area.left() / kGridStep) * kGridStep; x <= m_area.right(); x += kGridStep)
        p.drawLine(QPointF(ToPixel(Point(x, 0)).x(), chart.top()), QPointF(ToPixel(Point(x, 0)).x(), chart.bottom()));
    for (double y = std::ceil(m_area.top() / kGridStep) * kGridStep; y <= m_area.bottom(); y += kGridStep)
        p.drawLine(QPointF(chart.left(), ToPixel(Point(0, y)).y()), QPointF(chart.right(), ToPixel(Point(0, y)).y()));

    // The labels stand outside the chart: lift the clip for them.
    p.save();
    p.setClipping(false);
    p.setFont(font);
    p.setPen(Mode(kInk));
    int i = 0;
    for (double x = std::ceil(m_area.left() / kGridStep) * kGridStep; x <= m_area.right(); x += kGridStep, ++i) {
        if (i % every != 0)
            continue;
        const double at = ToPixel(Point(x, 0)).x();
        const QRectF box(at - labelWidth / 2, chart.bottom() + 2, labelWidth, metrics.height());
        p.drawText(box, Qt::AlignHCenter | Qt::AlignTop, GridText(x));
    }
    i = 0;
    for (double y = std::ceil(m_area.top() / kGridStep) * kGridStep; y <= m_area.bottom(); y += kGridStep, ++i) {
        // The chart's lower edge is left to the eastings, whose first label stands right there.
        if (i % everyNorth != 0 || y <= m_area.top())
            continue;
        const double at = ToPixel(Point(0, y)).y();
        const QRectF box(0, at - metrics.height() / 2.0, chart.left() - kGap, metrics.height());
        p.drawText(box, Qt::AlignRight | Qt::AlignVCenter, GridText(y));
    }
    // Captions: eastings under their labels, northings up the left edge.
    p.drawText(QRectF(chart.left(), chart.bottom() + metrics.height() + kGap, chart.width(), metrics.height()),
               Qt::AlignHCenter | Qt::AlignTop, tr("Easting (m)"));
    p.translate(0, chart.center().y());
    p.rotate(-90.0);
    p.drawText(QRectF(-chart.height() / 2, 0, chart.height(), metrics.height()), Qt::AlignHCenter | Qt::AlignTop, tr("Northing (m)"));
    p.restore();
}

void PlanView::PaintMeasurement(QPainter& p) const
{
    // The picks as crosses, the measured line between them and its distance and bearing.
    // Each drawn first wide in the paper colour, so that it stands out on any water.
    const QColor mark = Mode(kPick);
    const QColor halo = Mode(kPaper);
    p.setBrush(Qt::NoBrush);
    if (m_pickCount >= 2) {
        p.setPen(QPen(halo, 5, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(ToPixel(m_picks[0]), ToPixel(m_picks[1]));
        p.setPen(QPen(mark, 2, Qt::DashLine));
        p.drawLine(ToPixel(m_picks[0]), ToPixel(m_picks[1]));
    }
    for (const QPen& pen : { QPen(halo, 6, Qt::SolidLine, Qt::RoundCap), QPen(mark, 3, Qt::SolidLine, Qt::RoundCap) }) {
        p.setPen(pen);
        for (int i = 0; i < m_pickCount && i < 2; ++i) {
            const QPointF at = ToPixel(m_picks[i]);
            p.drawLine(at - QPointF(7, 7), at + QPointF(7, 7));
            p.drawLine(at - QPointF(7, -7), at + QPointF(7, -7));
        }
    }
    const QString text = MeasuredText();
    if (text.isEmpty())
        return;
    // On a paper-coloured tag beside the middle of the line, inside the chart.
    const QFontMetrics metrics(font());
    QRectF tag(0, 0, metrics.horizontalAdvance(text) + 2 * kGap, metrics.height() + kGap);
    const QPointF a = ToPixel(m_picks[0]), b = ToPixel(m_picks[1]);
    const QPointF middle = (a + b) / 2.0;
    const QPointF along = b - a;
    const double length = std::max(1.0, std::hypot(along.x(), along.y()));
    QPointF normal(along.y() / length, -along.x() / length); // to the left of the line
    if (normal.y() > 0)
        normal = -normal; // above the line
    tag.moveCenter(middle + normal * (tag.height() / 2 + 2 * kGap + std::abs(normal.x()) * tag.width() / 2));
    const QRectF chart = ChartRect();
    tag.moveLeft(std::clamp(tag.left(), chart.left() + 2, std::max(chart.left() + 2, chart.right() - tag.width() - 2)));
    tag.moveTop(std::clamp(tag.top(), chart.top() + 2, std::max(chart.top() + 2, chart.bottom() - tag.height() - 2)));
    p.setPen(QPen(mark, 1));
    p.setBrush(Mode(kPaper));
    p.drawRect(tag);
    p.setPen(Mode(kInk));
    p.drawText(tag, Qt::AlignCenter, text);
}

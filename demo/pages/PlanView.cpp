#include "pages/PlanView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QelBase/QelTypes.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelSubscriber/SubscriptionManager.h>
#include <cmath>

namespace {
// The survey area: WGS 84 / UTM 31N around 52°N 3°E, on the zone's central meridian.
const QRectF kArea(496000.0, 5757000.0, 8000.0, 8000.0);
const Point kLineStart(497500.0, 5758500.0);
const Point kLineEnd(502800.0, 5763600.0);

QColor Mode(COLORREF color)
{
    return toQColor(ColorControl::Instance().GetColor(color, false));
}
} // namespace

PlanView::PlanView(QWidget* parent)
    : QWidget(parent)
    , m_area(kArea)
{
    setMinimumSize(260, 260);
    setCursor(Qt::CrossCursor);
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, [this] {
        m_along = std::fmod(m_along + 0.004, 1.15); // sails on past the line end, then starts again
        update();
        emit vesselMoved(VesselPosition());
    });
    m_timer->start(200);
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::COLOR_CONTROL, [this](int, const QString&) { update(); }, this);
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
    // A shoal in the middle of the area, deepening towards the edges.
    const double dx = (x - 500500.0) / 2500.0, dy = (y - 5761500.0) / 1800.0;
    return -(6.0 + 18.0 * (1.0 - std::exp(-(dx * dx + dy * dy))));
}

Point PlanView::ToGrid(const QPointF& pixel) const
{
    const double x = m_area.left() + pixel.x() / width() * m_area.width();
    const double y = m_area.bottom() - pixel.y() / height() * m_area.height();
    return Point(x, y, DepthAt(x, y));
}

QPointF PlanView::ToPixel(const Point& grid) const
{
    return QPointF((grid.x - m_area.left()) / m_area.width() * width(), (m_area.bottom() - grid.y) / m_area.height() * height());
}

void PlanView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit picked(ToGrid(event->position()));
}

void PlanView::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), Mode(RGB(205, 228, 245)));
    // Depth bands around the shoal.
    const COLORREF bands[] = { RGB(170, 205, 235), RGB(140, 185, 225), RGB(110, 160, 210) };
    for (int i = 2; i >= 0; --i) {
        const QPointF centre = ToPixel(Point(500500.0, 5761500.0));
        p.setPen(Qt::NoPen);
        p.setBrush(Mode(bands[2 - i]));
        p.drawEllipse(centre, width() * (0.20 + 0.09 * i), height() * (0.16 + 0.07 * i));
    }
    // Kilometre grid with labels.
    p.setPen(QPen(Mode(RGB(90, 110, 130)), 0, Qt::DotLine));
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.8);
    p.setFont(small);
    for (double x = std::ceil(m_area.left() / 1000.0) * 1000.0; x <= m_area.right(); x += 1000.0) {
        const QPointF a = ToPixel(Point(x, m_area.top()));
        p.drawLine(QPointF(a.x(), 0), QPointF(a.x(), height()));
        p.drawText(QPointF(a.x() + 2, height() - 3), QString::number(int(x / 1000)) + QStringLiteral(" km"));
    }
    for (double y = std::ceil(m_area.top() / 1000.0) * 1000.0; y <= m_area.bottom(); y += 1000.0) {
        const QPointF a = ToPixel(Point(m_area.left(), y));
        p.drawLine(QPointF(0, a.y()), QPointF(width(), a.y()));
    }
    // The run line and the vessel.
    p.setPen(QPen(Mode(RGB(0, 0, 0)), 2));
    p.drawLine(ToPixel(kLineStart), ToPixel(kLineEnd));
    const QPointF vessel = ToPixel(VesselPosition());
    p.setPen(QPen(Mode(RGB(0, 0, 0)), 1));
    p.setBrush(Mode(RGB(255, 128, 0)));
    p.drawEllipse(vessel, 5, 5);
    // The picked positions.
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Mode(RGB(255, 0, 0)), 2));
    for (int i = 0; i < m_pickCount && i < 2; ++i) {
        const QPointF at = ToPixel(m_picks[i]);
        p.drawLine(at - QPointF(6, 6), at + QPointF(6, 6));
        p.drawLine(at - QPointF(6, -6), at + QPointF(6, -6));
    }
    if (m_pickCount >= 2) {
        p.setPen(QPen(Mode(RGB(255, 0, 0)), 1, Qt::DashLine));
        p.drawLine(ToPixel(m_picks[0]), ToPixel(m_picks[1]));
    }
    p.setPen(QPen(Mode(RGB(60, 60, 60)), 1));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
}

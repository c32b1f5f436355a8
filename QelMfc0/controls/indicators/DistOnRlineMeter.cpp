#include <QelMfc0/controls/indicators/DistOnRlineMeter.h>

#include <QelBase/NumberUtils.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/drawing/GdiShapes.h>
#include <QelMfc0/drawing/GDISelector.h>
#include <QelMfc0/colour/ColorControl.h>

#include <QPainter>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <limits>

DistOnRlineMeter::DistOnRlineMeter() = default;

DistOnRlineMeter::~DistOnRlineMeter() = default;

void DistOnRlineMeter::Draw(QPainter* painter, const QRect& rect) const
{
    if (!painter || !painter->isActive() || !std::isfinite(m_range) || m_range <= 0.0)
        return;

    const int left = rect.x();
    const int top = rect.y();
    const int right = rect.x() + rect.width();
    const int bottom = rect.y() + rect.height();
    const bool antialiased = painter->testRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::Antialiasing, false);

    const QColor background = toQColor(ColorControl::Instance().GetColor(m_bkColor, false));
    GDISelector brush(painter, QBrush(background));
    {
        GDISelector pen(painter, GdiThinPen(background));
        GdiRectangle(painter, left, top, right, bottom);
    }

    // The black frame lines stay selected after drawing, as the stock pen stays in a device
    // context.
    painter->setPen(GdiThinPen(Qt::black));
    GdiLine(painter, QPoint(left, top), QPoint(right, top));
    GdiLine(painter, QPoint(left, bottom - 1), QPoint(right, bottom - 1));

    // The fill grows upwards from the bottom edge; it is clamped at the top edge only. The
    // height is kept within int so that absurd values still draw a (clipped) bar.
    const double value = std::isnan(m_value) ? 0.0 : m_value;
    const double height = value / m_range * double(bottom - top);
    const double limit = double(std::numeric_limits<int>::max() / 4);
    const int h = int(RoundDouble(std::clamp(height, -limit, limit)));
    {
        GDISelector fill(painter, QBrush(toQColor(ColorControl::Instance().GetColor(m_color, false))));
        const qint64 fillTop = std::clamp<qint64>(qint64(bottom) - h, top, std::numeric_limits<int>::max());
        GdiRectangle(painter, left, int(fillTop), right, bottom);
    }
    painter->setRenderHint(QPainter::Antialiasing, antialiased);
}

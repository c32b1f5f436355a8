#include <QelMfc0/controls/DistOnRlineMeter.h>

#include <QelBase/NumberUtils.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/GDISelector.h>
#include <QelMfc0/colour/ColorControl.h>

#include <QPainter>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// A solid 1-pixel pen.
QPen ThinPen(const QColor& color)
{
    QPen pen(color, 1);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

// GDI's MoveTo(x1, y) + LineTo(x2, y): a horizontal line without its last pixel.
void GdiHorizontalLine(QPainter* painter, int x1, int x2, int y)
{
    if (x1 == x2)
        return;
    const int last = x2 > x1 ? x2 - 1 : x2 + 1;
    if (last == x1)
        painter->drawPoint(x1, y);
    else
        painter->drawLine(x1, y, last, y);
}

// GDI's Rectangle(l, t, r, b) on the normalised rectangle: outline and fill cover the columns
// l..r-1 and rows t..b-1 (a 1-pixel stroked QRect covers one pixel beyond its size).
void GdiRectangle(QPainter* painter, int left, int top, int right, int bottom)
{
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
    if (right == left || bottom == top)
        return;
    painter->drawRect(QRect(left, top, right - left - 1, bottom - top - 1));
}

} // namespace

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
        GDISelector pen(painter, ThinPen(background));
        GdiRectangle(painter, left, top, right, bottom);
    }

    // The black frame lines stay selected after drawing, as the stock pen stays in a device
    // context.
    painter->setPen(ThinPen(Qt::black));
    GdiHorizontalLine(painter, left, right, top);
    GdiHorizontalLine(painter, left, right, bottom - 1);

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

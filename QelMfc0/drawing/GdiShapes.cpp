#include "QelMfc0/drawing/GdiShapes.h"

#include <QPainter>
#include <QRect>
#include <utility>

QPen GdiThinPen(const QColor& color)
{
    QPen pen(color, 1);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

void GdiLine(QPainter* painter, QPoint from, QPoint to)
{
    if (from == to)
        return;
    QPoint last = to;
    if (from.x() == to.x())
        last.ry() += to.y() > from.y() ? -1 : 1;
    else if (from.y() == to.y())
        last.rx() += to.x() > from.x() ? -1 : 1;
    if (last == from)
        painter->drawPoint(from);
    else
        painter->drawLine(from, last);
}

void GdiRectangle(QPainter* painter, int left, int top, int right, int bottom)
{
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
    if (right == left || bottom == top)
        return;
    // A 1-pixel stroked QRect covers one pixel beyond its width and height.
    painter->drawRect(QRect(left, top, right - left - 1, bottom - top - 1));
}

#pragma once
// Lines and rectangles with the pixel coverage of the system's classic drawing calls, for the
// indicators whose geometry is given in those terms.

#include "QelMfc0/QelMfc0Export.h"
#include <QColor>
#include <QPen>
#include <QPoint>

class QPainter;

// A solid cosmetic 1-pixel pen with mitred joins.
QELMFC0_EXPORT QPen GdiThinPen(const QColor& color);

// A line from `from` towards `to` without its last pixel (MoveTo + LineTo); horizontal and
// vertical lines lose exactly that pixel, others are drawn as they are.
QELMFC0_EXPORT void GdiLine(QPainter* painter, QPoint from, QPoint to);

// Rectangle(l, t, r, b): outline in the painter's pen and fill in its brush over the columns
// l..r-1 and rows t..b-1 of the normalised rectangle; nothing for an empty one.
QELMFC0_EXPORT void GdiRectangle(QPainter* painter, int left, int top, int right, int bottom);

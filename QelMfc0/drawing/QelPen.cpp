#include <QelMfc0/drawing/QelPen.h>

#include <QelMfc0/ColorRef.h>

#include <QPaintDevice>

#include <algorithm>
#include <cstdlib>

namespace {

// a × b / c rounded half away from zero, in 64 bits so that no product overflows.
qint64 mulDiv(qint64 a, qint64 b, qint64 c)
{
    const qint64 num = a * b;
    const qint64 q = (std::llabs(num) + c / 2) / c;
    return num < 0 ? -q : q;
}

} // namespace

QelPen::QelPen()
{
    setWidth(0);
    setCosmetic(true);
}

QelPen::QelPen(int style, int width, unsigned long color, const QPaintDevice* dc)
    : QelPen()
{
    CreateQelPen(style, width, int(COLORREF(color)), dc);
}

int QelPen::ScaledWidth(int width, const QPaintDevice* dc)
{
    if (!dc || width == 0)
        return width;
    const qint64 scaled = mulDiv(width, dc->logicalDpiY(), 96);
    return int(std::clamp<qint64>(scaled, -kMaxWidth - 1, kMaxWidth + 1));
}

QVector<qreal> QelPen::DashPatternPixels(int style, int scaledWidth)
{
    const qreal w = std::max(1, scaledWidth);
    switch (style) {
    case 1: return {7 * w, 5 * w};
    case 2: return {w, 5 * w};
    case 3: return {7 * w, 5 * w, w, 5 * w};
    case 4: {
        // Five lengths, odd on purpose: on the repetition the dash becomes a gap and the gaps
        // become dashes. Written out twice this is the even pattern the painter needs.
        const QVector<qreal> five = {7 * w, 5 * w, w, 5 * w, w};
        return five + five;
    }
    default: return {};
    }
}

int QelPen::CreateQelPen(int style, int width, int color, const QPaintDevice* dc)
{
    if (style < 0 || style > 4 || width < 0)
        return 0;
    const int scaled = ScaledWidth(width, dc);
    if (scaled < 0 || scaled > kMaxWidth)
        return 0;

    QPen pen(toQColor(COLORREF(color)));
    pen.setWidth(scaled);
    if (style == 0) {
        pen.setStyle(Qt::SolidLine);
        pen.setCosmetic(true);
    } else {
        // Qt measures dash lengths in pen widths (a width of 0 counts as 1), and the pixel
        // unit is max(1, width) too: dividing by it gives the lengths in pen widths. A flat
        // cap keeps every dash exactly as long as the pattern says.
        const qreal unit = std::max(1, scaled);
        QVector<qreal> pattern = DashPatternPixels(style, scaled);
        for (qreal& length : pattern)
            length /= unit;
        pen.setCosmetic(false);
        pen.setCapStyle(Qt::FlatCap);
        pen.setJoinStyle(Qt::RoundJoin);
        pen.setDashPattern(pattern);
    }
    QPen::operator=(pen);
    return 1;
}

QVector<qreal> QelPen::PixelDashPattern() const
{
    if (style() != Qt::CustomDashLine)
        return {};
    const qreal unit = std::max(1, width());
    QVector<qreal> pattern = dashPattern();
    for (qreal& length : pattern)
        length *= unit;
    return pattern;
}

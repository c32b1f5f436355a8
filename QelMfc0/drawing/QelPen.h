#pragma once
// A pen made from one of the library's numbered line styles.

#include "QelMfc0/QelMfc0Export.h"
#include <QPen>
#include <QVector>

class QPaintDevice;

// Pen whose line is chosen by a style number: 0 solid, 1 dash, 2 dot, 3 dash-dot,
// 4 dash-dot-dot. The width follows the device's resolution and the dash lengths grow
// with the width, so a dashed line looks the same on every screen.
class QELMFC0_EXPORT QelPen : public QPen
{
public:
    // The largest pen width (in device pixels, after scaling) a pen is created with.
    static constexpr int kMaxWidth = 32767;

    // A solid black cosmetic pen of width 0 until CreateQelPen succeeds.
    QelPen();
    // Creates the pen at once, as CreateQelPen does; on failure it stays the default pen.
    QelPen(int style, int width, unsigned long color, const QPaintDevice* dc);

    // Makes this a pen of the numbered style, width and COLORREF colour. With a device and a
    // non-zero width, the width is scaled by the device's logical DPI over 96. Returns non-zero
    // on success; an unknown style or a negative or too large width leaves the pen as it was
    // and returns 0.
    int CreateQelPen(int style, int width, int color, const QPaintDevice* dc);

    // The dash pattern of this pen in device pixels (on, off, ...); empty for a solid pen.
    QVector<qreal> PixelDashPattern() const;

    // The pixel dash pattern of a style at a scaled width (unit max(1, width)); empty for the
    // solid style 0 and for unknown styles. The dash-dot-dot style gives ten entries: its five
    // lengths twice, so that dash and gap swap roles on the repetition.
    static QVector<qreal> DashPatternPixels(int style, int scaledWidth);

    // The width a device gives: width × logicalDpiY / 96, rounded half away from zero; the
    // width itself when there is no device or it is 0.
    static int ScaledWidth(int width, const QPaintDevice* dc);
};

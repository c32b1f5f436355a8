#pragma once
// Conversions between the suite's COLORREF (0x00BBGGRR) and Qt colours.

#include <QColor>
#include <QelBase/QelTypes.h>

// The opaque Qt colour of a COLORREF; the unused high byte is ignored.
inline QColor toQColor(COLORREF c)
{
    return QColor(GetRValue(c), GetGValue(c), GetBValue(c));
}

// The COLORREF of a Qt colour; alpha is dropped.
inline COLORREF toColorref(const QColor& c)
{
    const QColor rgb = c.toRgb();
    return RGB(rgb.red(), rgb.green(), rgb.blue());
}

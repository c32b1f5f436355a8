#pragma once
// Vertical bar meter of the distance travelled along the run line.

#include "QelMfc0/QelMfc0Export.h"
#include <QelBase/QelTypes.h>

class QPainter;
class QRect;

// A plain drawing object (not a widget) that a navigation view paints into a rectangle of its
// own: the meter is cleared to the background colour, framed by black lines at its top and
// bottom rows and filled from the bottom in proportion to value / range. The fill is clamped
// at the top edge only: a negative value extends it below the bottom edge.
//
// The rectangle's right/bottom are exclusive (rect.x() + rect.width(), rect.y() +
// rect.height()). Both colours are converted by the display's colour mode each time the meter
// paints. With a range that is not a positive finite number Draw paints nothing; a NaN value
// counts as 0.
class QELMFC0_EXPORT DistOnRlineMeter
{
public:
    // Colours, range and value all 0.
    DistOnRlineMeter();
    DistOnRlineMeter(const DistOnRlineMeter&) = default;
    DistOnRlineMeter& operator=(const DistOnRlineMeter&) = default;
    virtual ~DistOnRlineMeter();

    // Fill colour of the bar.
    void SetColor(COLORREF color) { m_color = color; }
    COLORREF GetColor() const { return m_color; }
    // Colour the meter is cleared to.
    void SetBkColor(COLORREF color) { m_bkColor = color; }
    COLORREF GetBkColor() const { return m_bkColor; }
    // The distance that fills the whole bar.
    void SetRange(double range) { m_range = range; }
    double GetRange() const { return m_range; }
    // The distance travelled.
    void SetValue(double value) { m_value = value; }
    double GetValue() const { return m_value; }

    // Clears rect, draws the top and bottom lines and the fill. The painter keeps a 1-pixel
    // black pen selected on return; its brush is restored.
    void Draw(QPainter* painter, const QRect& rect) const;

private:
    COLORREF m_color = 0;
    COLORREF m_bkColor = 0;
    double m_range = 0.0;
    double m_value = 0.0;
};

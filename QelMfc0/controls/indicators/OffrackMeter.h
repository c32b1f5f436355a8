#pragma once
// Horizontal bar meter of the off-track (cross-track) distance, painted by a navigation view.

#include "QelMfc0/QelMfc0Export.h"
#include <QString>
#include <QelBase/QelTypes.h>

class FontInfo;
class QPainter;
class QRect;
class QWidget;

// A plain drawing object (not a widget) that a helmsman's view keeps as a member and paints
// into a rectangle of its own on every repaint. The centre of the bar means "on the line";
// the bar fills from the centre towards the side the vessel has drifted to, in a colour of
// its own for each side. A labelled scale, two tolerance markers and the value below the bar
// complete it.
//
// Geometry: the rectangle's left/top are rect.x()/rect.y(); its right/bottom are exclusive,
// rect.x() + rect.width() and rect.y() + rect.height(). Horizontal positions are offsets from
// x = 0 (not from the left edge) and the lower tick marks stand at y = height: the meter is
// meant for a rectangle at the painter's origin; another origin draws shifted.
//
// Colours: the foreground and background colours are converted by the display's colour mode
// (ColorControl::GetColor) each time the meter paints; the two side colours are drawn exactly
// as given. Numbers carry the open project's distance decimals (2 without a project).
//
// Bad settings never crash or hang: with a range that is not a positive finite number, or a
// tick-interval count below 1, Draw paints nothing. A NaN value or tolerance counts as 0.
class QELMFC0_EXPORT OffrackMeter
{
public:
    // Height of the tick marks in pixels.
    static constexpr int kTickLength = 4;
    // Half-width and depth of the tolerance wedges in pixels (deliberately not DPI-scaled).
    static constexpr int kToleranceMarkerSize = 6;
    // At most this many ticks are drawn on either side of the centre.
    static constexpr int kMaxTicksPerSide = 10000;

    // Black on black, "Arial" 10 points regular, off-track font 8 points, range, tick
    // intervals, tolerance and value 0.
    OffrackMeter();
    OffrackMeter(const OffrackMeter&) = default;
    OffrackMeter& operator=(const OffrackMeter&) = default;
    virtual ~OffrackMeter();

    // Foreground: bar outline, ticks, labels, marker outlines and the value text.
    void SetColor(COLORREF color) { m_color = color; }
    COLORREF GetColor() const { return m_color; }
    // Background: fill of the tolerance markers and of the value text's cell.
    void SetBkColor(COLORREF color) { m_bkColor = color; }
    COLORREF GetBkColor() const { return m_bkColor; }
    // Bar fill for negative (left) and positive (right) values; never mode-converted.
    void SetLRSideColor(COLORREF left, COLORREF right);
    COLORREF GetLeftSideColor() const { return m_leftColor; }
    COLORREF GetRightSideColor() const { return m_rightColor; }

    // Takes face, size, bold, italic and colour of the scale and value font.
    void SetFont(const FontInfo& font);
    // The font of the scale and value as face, size, bold, italic and colour.
    FontInfo GetFont() const;
    // Stored for the host; the meter's own drawing does not use it.
    void SetOfftrackFontSize(int size) { m_offtrackFontSize = size; }
    int GetOfftrackFontSize() const { return m_offtrackFontSize; }

    // Half-width of the scale in distance units: the bar spans -range .. +range.
    void SetRange(double range) { m_range = range; }
    double GetRange() const { return m_range; }
    // Number of intervals per half of the scale, before rounding to a 1-2-5 step.
    void SetTickIntervals(int intervals) { m_tickIntervals = intervals; }
    int GetTickIntervals() const { return m_tickIntervals; }
    // The tick step: Double125(range / tick intervals); 0.0 when either is unusable.
    double GetTickInterval() const;
    // The largest multiple of the tick step within the range; 0.0 without a tick step.
    double GetLargestTickValue() const;
    // Position of the two tolerance markers, at +tolerance and -tolerance.
    void SetTolerance(double tolerance) { m_tolerance = tolerance; }
    double GetTolerance() const { return m_tolerance; }
    // The current off-track distance: negative left of the line, positive right.
    void SetValue(double value) { m_value = value; }
    double GetValue() const { return m_value; }

    // Paints bar, scale, tolerance markers and value text into rect; the rectangle is not
    // cleared first. The scale is clipped to rect; after it the clip is the whole client area
    // of `window` (or off without one), not the host's clip from before, so the value text
    // below the bar is never cut.
    void Draw(QPainter* painter, const QRect& rect, QWidget* window = nullptr) const;

    // A reading as the meter writes it: with the open project's distance decimals (2 without a
    // project).
    static QString FormatReading(double reading);

    // Horizontal pixel offset (from x = 0) of a reading clamped to the scale; 0 when the
    // range is unusable.
    int ReadingToPixelPos(const QRect& rect, double reading) const;

protected:
    // Ticks with labels on both sides of the centre (none at 0) and the tolerance wedges,
    // clipped to rect; then the clip becomes the whole client area of `window`.
    void DrawScaleAnnotation(QPainter* painter, const QRect& rect, QWidget* window) const;
    // The value text centred on x just below rect, pushed inwards to stay within its width.
    void DrawActualValue(QPainter* painter, const QRect& rect, int x) const;

private:
    bool CanDraw() const;
    double Value() const;

    COLORREF m_color = 0;
    COLORREF m_bkColor = 0;
    COLORREF m_leftColor = 0;
    COLORREF m_rightColor = 0;
    QString m_fontFace;
    int m_fontSize = 10;
    bool m_bold = false;
    bool m_italic = false;
    COLORREF m_fontColor = 0;
    int m_offtrackFontSize = 8;
    double m_range = 0.0;
    int m_tickIntervals = 0;
    double m_tolerance = 0.0;
    double m_value = 0.0;
};

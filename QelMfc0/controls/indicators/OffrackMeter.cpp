#include <QelMfc0/controls/indicators/OffrackMeter.h>

#include <QelBase/NumberUtils.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/ProjectDefinition.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/drawing/GdiShapes.h>
#include <QelMfc0/drawing/FontInfo.h>
#include <QelMfc0/drawing/GDISelector.h>
#include <QelMfc0/drawing/PECFont.h>
#include <QelMfc0/colour/ColorControl.h>

#include <QFontMetrics>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QTransform>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

// The colour to draw for a day colour in the current display mode.
QColor ModeColor(COLORREF color)
{
    return toQColor(ColorControl::Instance().GetColor(color, false));
}

// The number of decimals of distances: the open project's, else 2.
int DistanceDecimals()
{
    int decimals = 2;
    if (const ProjectDefinition* project = DataSearch::GetDataSearch().GetProjectDefinition())
        project->GetDistanceDecimals(decimals);
    return std::clamp(decimals, 0, 15);
}

// "%.*f" of the value with the decimals.
QString FormatDistance(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

// Draws text with its top at y and its extent centred on x (GDI's TA_CENTER | TA_TOP).
void DrawCentredText(QPainter* painter, int x, int y, const QString& text)
{
    const QFontMetrics metrics(painter->font(), painter->device());
    const int width = metrics.horizontalAdvance(text);
    painter->drawText(QPoint(x - width / 2, y + metrics.ascent()), text);
}

} // namespace

OffrackMeter::OffrackMeter()
    : m_fontFace(FontInfo().GetName())
{
}

OffrackMeter::~OffrackMeter() = default;

QString OffrackMeter::FormatReading(double reading)
{
    return FormatDistance(reading, DistanceDecimals());
}

void OffrackMeter::SetLRSideColor(COLORREF left, COLORREF right)
{
    m_leftColor = left;
    m_rightColor = right;
}

void OffrackMeter::SetFont(const FontInfo& font)
{
    font.GetFontInfo(m_fontFace, m_fontSize, m_bold, m_italic, m_fontColor);
}

FontInfo OffrackMeter::GetFont() const
{
    return FontInfo(m_fontFace, m_fontSize, m_bold, m_italic, m_fontColor);
}

bool OffrackMeter::CanDraw() const
{
    return std::isfinite(m_range) && m_range > 0.0 && m_tickIntervals > 0;
}

double OffrackMeter::Value() const
{
    return std::isnan(m_value) ? 0.0 : m_value;
}

double OffrackMeter::GetTickInterval() const
{
    if (!CanDraw())
        return 0.0;
    return Double125(m_range / m_tickIntervals);
}

double OffrackMeter::GetLargestTickValue() const
{
    const double step = GetTickInterval();
    if (step <= 0.0)
        return 0.0;
    const double count = std::floor(m_range / step);
    if (!(count < 9.2e18)) // beyond a 64-bit count the scale has no readable ticks anyway
        return 0.0;
    return double(std::int64_t(count)) * step;
}

int OffrackMeter::ReadingToPixelPos(const QRect& rect, double reading) const
{
    if (!std::isfinite(m_range) || m_range <= 0.0)
        return 0;
    if (std::isnan(reading))
        reading = 0.0;
    if (reading > 0.0) {
        if (reading >= m_range)
            reading = m_range;
    } else if (reading <= -m_range) {
        reading = -m_range;
    }
    const double width = double(rect.width());
    return int(RoundDouble(std::fabs(reading + m_range) * width / (m_range + m_range)));
}

void OffrackMeter::Draw(QPainter* painter, const QRect& rect, QWidget* window) const
{
    if (!painter || !painter->isActive() || !CanDraw())
        return;

    const int top = rect.y();
    const int bottom = rect.y() + rect.height();
    const int right = rect.x() + rect.width();
    const int centre = int(RoundDouble(double(rect.width()) * m_range / (m_range + m_range)));
    const int end = ReadingToPixelPos(rect, Value());
    {
        const bool antialiased = painter->testRenderHint(QPainter::Antialiasing);
        painter->setRenderHint(QPainter::Antialiasing, false);
        GDISelector pen(painter, GdiThinPen(ModeColor(m_color)));
        GDISelector brush(painter, QBrush(ModeColor(m_bkColor)));
        if (end < centre) {
            GDISelector left(painter, QBrush(toQColor(m_leftColor)));
            GdiRectangle(painter, end, top, centre, bottom);
        } else if (end == centre) {
            GdiLine(painter, QPoint(centre, top), QPoint(centre, bottom));
        } else {
            GDISelector rightBrush(painter, QBrush(toQColor(m_rightColor)));
            GdiRectangle(painter, centre, top, std::min(end, right), bottom);
        }
        painter->setRenderHint(QPainter::Antialiasing, antialiased);
    }
    DrawScaleAnnotation(painter, rect, window);
    DrawActualValue(painter, rect, end);
}

void OffrackMeter::DrawScaleAnnotation(QPainter* painter, const QRect& rect, QWidget* window) const
{
    if (!painter || !painter->isActive() || !CanDraw())
        return;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setClipRect(rect, Qt::ReplaceClip);

    const QColor foreground = ModeColor(m_color);
    painter->setPen(GdiThinPen(foreground));
    PECFont font;
    if (font.Create(m_fontFace, m_fontSize, m_italic, m_bold, painter->device(), true))
        painter->setFont(font);

    const int decimals = DistanceDecimals();
    const double step = GetTickInterval();
    const int top = rect.y();
    const int height = rect.height();

    auto tick = [&](double v) {
        const int x = ReadingToPixelPos(rect, v);
        GdiLine(painter, QPoint(x, height), QPoint(x, height - kTickLength));
        GdiLine(painter, QPoint(x, top), QPoint(x, top + kTickLength));
        DrawCentredText(painter, x, top + kTickLength, FormatDistance(v, decimals));
    };
    if (step > 0.0) {
        int drawn = 0;
        for (double v = step; v <= m_range && drawn < kMaxTicksPerSide; v += step, ++drawn)
            tick(v);
        drawn = 0;
        for (double v = -step; v >= -m_range && drawn < kMaxTicksPerSide; v -= step, ++drawn)
            tick(v);
    }

    // Tolerance markers: wedges hanging from the upper edge.
    const int s = int(RoundDouble(double(kToleranceMarkerSize)));
    const double tolerance = std::isnan(m_tolerance) ? 0.0 : m_tolerance;
    painter->setBrush(ModeColor(m_bkColor));
    for (const double reading : { tolerance, -tolerance }) {
        const int x = ReadingToPixelPos(rect, reading);
        const QPoint wedge[3] = { QPoint(x - s, top), QPoint(x + s, top), QPoint(x, top + s) };
        painter->drawPolygon(wedge, 3);
    }
    painter->restore();

    // The clip opens to the window's whole client area (in the painter's coordinates), not to
    // a narrower clip the host had set, so the value text below the bar is drawn in full.
    if (window) {
        bool invertible = false;
        const QTransform toLogical = painter->worldTransform().inverted(&invertible);
        const QRect client(QPoint(0, 0), window->size());
        painter->setClipRect(invertible ? toLogical.mapRect(client) : client, Qt::ReplaceClip);
    } else {
        painter->setClipping(false);
    }
}

void OffrackMeter::DrawActualValue(QPainter* painter, const QRect& rect, int x) const
{
    if (!painter || !painter->isActive())
        return;

    const QString text = FormatReading(Value());
    PECFont font;
    GDISelector fontGuard(painter, font.Create(m_fontFace, m_fontSize, m_italic, m_bold, painter->device(), true)
                                       ? static_cast<const QFont&>(font)
                                       : painter->font());
    const QFontMetrics metrics(painter->font(), painter->device());
    const int width = metrics.horizontalAdvance(text);

    // Keep the text within the rectangle's width.
    const int left = rect.x();
    const int right = rect.x() + rect.width();
    if (width > 2 * (right - x))
        x = right - width / 2;
    else if (width > 2 * (x - left))
        x = left + width / 2;

    // An opaque text cell: the background colour under the text's extent, then the text.
    const int y = rect.y() + rect.height() + 1;
    painter->fillRect(QRect(x - width / 2, y, width, metrics.height()), ModeColor(m_bkColor));
    GDISelector pen(painter, GdiThinPen(ModeColor(m_color)));
    DrawCentredText(painter, x, y, text);
}

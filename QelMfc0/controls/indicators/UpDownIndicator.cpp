#include <QelMfc0/controls/indicators/UpDownIndicator.h>

#include <QelAttributes/AttributeKeys.h>
#include <QelAttributes/AttributeMap.h>
#include <QelBase/DisplayScale.h>
#include <QelConfigure/DataSearch.h>
#include <QelConfigure/QelFormatter.h>
#include <QelMfc0/ColorRef.h>
#include <QelMfc0/drawing/GdiShapes.h>
#include <QelMfc0/colour/ColorControl.h>

#include <QFontMetrics>
#include <QPainter>
#include <QPair>
#include <QPen>
#include <QPolygon>

#include <algorithm>
#include <cmath>

namespace {

// Positions are kept this far (in pixels) from the origin at most, so that a value far off
// the axis still gives a sane integer; the painter's device clips what lies outside.
constexpr double kFarAway = 1 << 20;
// The pointer size comes from the font size in points; a silly size is limited to this.
constexpr int kMaxPointerSize = 1000;

COLORREF Mode(COLORREF color)
{
    return ColorControl::Instance().GetColor(color, false);
}

// `value` limited to [low, high]; when the range is empty the low edge wins.
int Limit(int value, int low, int high)
{
    return std::max(low, std::min(value, high));
}

// Text whose cell's bottom-left corner is at (x, bottom), clipped to `clip`; with `opaque`
// the clip box is first filled with `background`.
void DrawTextAt(QPainter* painter, int x, int bottom, const QString& text, const QRect& clip,
                bool opaque = false, COLORREF background = 0)
{
    if (clip.isEmpty())
        return;
    if (opaque)
        painter->fillRect(clip, toQColor(background));
    if (text.isEmpty())
        return;
    painter->save();
    painter->setClipRect(clip, Qt::IntersectClip);
    painter->drawText(QPoint(x, bottom - painter->fontMetrics().descent()), text);
    painter->restore();
}

// The half-open box (left, top) .. (right, bottom) as a QRect; empty when inverted.
QRect BoxRect(int left, int top, int right, int bottom)
{
    return QRect(left, top, std::max(0, right - left), std::max(0, bottom - top));
}

} // namespace

UpDownIndicator::UpDownIndicator()
{
    const int size = DpiCor(24);
    const qreal corner = DpiCor(5) / 2.0;
    m_resetRegion.addRoundedRect(QRectF(0, 0, size, size), corner, corner);

    const QString folder = DataSearch::GetDataSearch().GetFilePath(DataSearch::FILEPATH_BITMAPS);
    if (folder.isEmpty())
        return;
    QImage image;
    if (!image.load(folder + kResetImageName) || image.isNull())
        return;
    if (image.width() != kResetImageWidth || image.height() != kResetImageHeight)
        image = image.scaled(kResetImageWidth, kResetImageHeight, Qt::IgnoreAspectRatio,
                             Qt::FastTransformation);
    const bool thirtyTwoBits = image.format() == QImage::Format_RGB32
        || image.format() == QImage::Format_ARGB32
        || image.format() == QImage::Format_ARGB32_Premultiplied;
    image = image.convertToFormat(QImage::Format_ARGB32);
    // The key grey becomes transparent first, so that a mode mapping black onto the key
    // colour cannot make the arrow vanish.
    const QRgb key = qRgb(GetRValue(kTransparentKey), GetGValue(kTransparentKey),
                          GetBValue(kTransparentKey));
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            if ((line[x] & 0x00FFFFFFu) == (key & 0x00FFFFFFu))
                line[x] = key & 0x00FFFFFFu; // alpha 0
    }
    if (thirtyTwoBits)
        UpdateColorForNightView(image, Mode(0x000000));
    m_resetImage = image;
}

UpDownIndicator::~UpDownIndicator() = default;

void UpDownIndicator::LoadAttributes(const CAttributeMap& attributes)
{
    attributes.GetAttribColor(ATTR_PANECOLOR, m_paneColor);
    attributes.GetAttribColor(ATTR_ABOVECOLOR, m_aboveColor);
    attributes.GetAttribColor(ATTR_INSIDECOLOR, m_insideColor);
    attributes.GetAttribColor(ATTR_BELOWCOLOR, m_belowColor);
    attributes.GetAttribColor(ATTR_TEXTCOLOR, m_textColor);
    attributes.GetAttribColor(ATTR_BCKGNDCOLOR, m_backgroundColor);
    attributes.GetAttribColor(ATTR_LABELBACKGROUNDCOLOR, m_labelBackgroundColor);
    m_font.LoadAttributes(attributes);
    QPair<double, double> range;
    if (attributes.GetAttribValue(ATTR_YAXISRANGE, range)) {
        m_axisMin = range.first;
        m_axisMax = range.second;
    }
    attributes.GetAttribValue(ATTR_SHOWMINMAXMARKER, m_markerMode);
    if (m_markerMode == MARKERS_FIXED) {
        QPair<double, double> markers;
        if (attributes.GetAttribValue(ATTR_MINMAXMARKER, markers)) {
            m_minMarker = markers.first;
            m_maxMarker = markers.second;
        }
    }
    attributes.GetAttribValue(ATTR_HORIZONTALMODE, m_horizontal);
}

void UpDownIndicator::SetDeltaValue(double value)
{
    m_value = value;
    m_valid = true;
}

void UpDownIndicator::SetRefValue(double value)
{
    m_refValue = value;
    m_valid = true;
}

void UpDownIndicator::Clear()
{
    m_valid = false;
}

void UpDownIndicator::SetMinMaxMarker(double minValue, double maxValue)
{
    if (m_markerMode != MARKERS_PROGRAM)
        return;
    m_minMarker = minValue;
    m_maxMarker = maxValue;
}

void UpDownIndicator::SetNumLayers(int layers)
{
    m_numLayers = layers;
}

void UpDownIndicator::SetLayerIndex(int index)
{
    m_layerIndex = index;
}

void UpDownIndicator::SetItemName(const QString& name)
{
    m_itemName = name;
}

void UpDownIndicator::ShowResetButton(bool show)
{
    m_showResetButton = show;
}

void UpDownIndicator::SetHorizontalMode(bool horizontal)
{
    m_horizontal = horizontal;
}

void UpDownIndicator::SetAxisRange(double minValue, double maxValue)
{
    m_axisMin = minValue;
    m_axisMax = maxValue;
}

void UpDownIndicator::GetAxisRange(double& minValue, double& maxValue) const
{
    minValue = m_axisMin;
    maxValue = m_axisMax;
}

void UpDownIndicator::GetMinMaxMarker(double& minValue, double& maxValue) const
{
    minValue = m_minMarker;
    maxValue = m_maxMarker;
}

bool UpDownIndicator::StripOf(const QRect& rect, Box& strip) const
{
    if (rect.isEmpty())
        return false;
    strip = { rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height() };
    if (m_numLayers > 1) {
        if (m_layerIndex < 0 || m_layerIndex >= m_numLayers)
            return false;
        if (m_horizontal) {
            const int h = rect.height() / m_numLayers;
            strip.top = rect.y() + m_layerIndex * h;
            strip.bottom = strip.top + h;
        } else {
            const int w = rect.width() / m_numLayers;
            strip.left = rect.x() + m_layerIndex * w;
            strip.right = strip.left + w;
        }
    }
    return strip.right > strip.left && strip.bottom > strip.top;
}

bool UpDownIndicator::CheckPtInIndicator(const QPoint& point, const QRect& rect) const
{
    Box strip;
    return StripOf(rect, strip) && point.x() >= strip.left && point.x() < strip.right
        && point.y() >= strip.top && point.y() < strip.bottom;
}

bool UpDownIndicator::CheckResetBtn(const QPoint& point) const
{
    // A pixel belongs to the region when its centre does.
    return m_showResetButton && m_resetRegion.contains(QPointF(point) + QPointF(0.5, 0.5));
}

bool UpDownIndicator::Drawable() const
{
    const bool markersFine = m_markerMode == MARKERS_NONE
        || (std::isfinite(m_minMarker) && std::isfinite(m_maxMarker));
    return std::isfinite(m_axisMin) && std::isfinite(m_axisMax) && m_axisMin != m_axisMax
        && std::isfinite(m_value) && std::isfinite(m_refValue) && markersFine;
}

int UpDownIndicator::Position(double value, double scale, int origin) const
{
    const double p = std::trunc((value - m_axisMin) * scale + origin);
    if (std::isnan(p))
        return origin;
    return static_cast<int>(std::clamp(p, -kFarAway, kFarAway));
}

void UpDownIndicator::FillSpan(QPainter* painter, int x1, int y1, int x2, int y2, COLORREF color)
{
    if (x2 > x1 && y2 > y1)
        painter->fillRect(QRect(x1, y1, x2 - x1, y2 - y1), toQColor(color));
}

void UpDownIndicator::Draw(QPainter* painter, const QRect& rect)
{
    Box strip;
    if (!painter || !painter->isActive() || !StripOf(rect, strip))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    FillSpan(painter, strip.left, strip.top, strip.right, strip.bottom, Mode(m_paneColor));
    if (m_valid && Drawable()) {
        painter->setPen(QPen(toQColor(Mode(m_textColor)), 1, Qt::SolidLine));
        painter->setBrush(QBrush(toQColor(Mode(m_backgroundColor))));
        painter->setFont(m_font.ToQFont());
        DrawIndicator(painter, strip);
    }
    painter->restore();
}

void UpDownIndicator::DrawIndicator(QPainter* painter, const Box& r)
{
    // The font size in points doubles as the pointer's size in pixels.
    const int m = std::clamp(m_font.GetSize(), 0, kMaxPointerSize);
    QFont nameFont = painter->font();
    nameFont.setItalic(true);
    if (m_horizontal)
        DrawHorizontal(painter, r, m, nameFont);
    else
        DrawVertical(painter, r, m, nameFont);
    if (m_showResetButton)
        DrawResetButton(painter, r);
}

void UpDownIndicator::DrawVertical(QPainter* painter, const Box& r, int m, const QFont& nameFont)
{
    // Name strip on the right; the name reads from bottom to top.
    const QFontMetrics nameMetrics(nameFont, painter->device());
    const int cx = nameMetrics.horizontalAdvance(m_itemName);
    const int cy = nameMetrics.height();
    const int L = r.right - cy;
    const QRect nameStrip = BoxRect(L, r.top, r.right, r.bottom);
    FillSpan(painter, L, r.top, r.right, r.bottom, Mode(m_labelBackgroundColor));
    if (!m_itemName.isEmpty() && !nameStrip.isEmpty()) {
        painter->save();
        painter->setFont(nameFont);
        painter->setClipRect(nameStrip, Qt::IntersectClip);
        painter->translate(r.right, r.top + cx + 3);
        painter->rotate(-90.0);
        painter->drawText(QPoint(0, -nameMetrics.descent()), m_itemName);
        painter->restore();
    }

    const double k = double(r.top - r.bottom) / (m_axisMax - m_axisMin);
    if (!std::isfinite(k))
        return;
    const int yRef = Position(m_refValue, k, r.bottom);
    const int yVal = Position(m_value, k, r.bottom);
    const int yMin = Position(m_minMarker, k, r.bottom);
    const int yMax = Position(m_maxMarker, k, r.bottom);
    const bool markers = m_markerMode != MARKERS_NONE;
    // A value or marker off the axis pegs its stretch at the strip's edge.
    auto fill = [&](int y1, int y2, COLORREF c) {
        FillSpan(painter, r.left, std::max(y1, r.top), L, std::min(y2, r.bottom), c);
    };

    // Bar, top to bottom on the screen; the band colours are drawn as they are.
    if (m_value < m_refValue) {
        int c = yRef;
        if (markers && yMax < yVal) {
            if (c < yMax) {
                fill(c, yMax, m_belowColor);
                c = yMax;
            }
            if (c < yMin) {
                fill(c, std::min(yMin, yVal), m_insideColor);
                c = yMin;
            }
        }
        if (c < yVal)
            fill(c, yVal, m_belowColor);
    } else if (m_value > m_refValue) {
        int c = yRef;
        if (markers && yVal < yMin) {
            if (yMin < c) {
                fill(yMin, c, m_aboveColor);
                c = yMin;
            }
            if (yMax < c) {
                fill(std::max(yMax, yVal), c, m_insideColor);
                c = yMax;
            }
        }
        if (yVal < c)
            fill(yVal, c, m_aboveColor);
    }

    GdiLine(painter, QPoint(r.left, r.top), QPoint(r.left, r.bottom));

    const QelFormatter formatter;
    const QFontMetrics metrics = painter->fontMetrics();
    if (m_refValue != 0.0) {
        const QString text = formatter.FormatDepth(m_refValue, false);
        const int tx = metrics.horizontalAdvance(text);
        const int ty = metrics.height();
        const int w = std::min(tx, L - r.left);
        const QRect box = BoxRect(L - w - 2, yRef - ty / 2, L, yRef + ty / 2);
        // The label's background colour stays the text background, as a device context keeps
        // the colour it was given: in a painter in opaque mode the value text gets it too.
        painter->setBackground(toQColor(Mode(m_labelBackgroundColor)));
        DrawTextAt(painter, box.left() + 2, yRef + ty / 2, text, box, true,
                   Mode(m_labelBackgroundColor));
    }

    const QString text = formatter.FormatDepth(m_value, false);
    const int tx = metrics.horizontalAdvance(text);
    const int ty = metrics.height();
    const int yPtr = Limit(yVal, r.top + m, r.bottom - m);
    const int x0 = std::max(r.left, L - tx - m - 5);
    GdiLine(painter, QPoint(r.left, yVal), QPoint(x0, yVal));
    const QPoint p[7] = { { x0 + m, yVal - m }, { x0, yVal },         { x0 + m, yVal + m },
                          { x0 + m, yPtr + m }, { L - 1, yPtr + m }, { L - 1, yPtr - m },
                          { x0 + m, yPtr - m } };
    DrawPointer(painter, p, yPtr == yVal);

    if (markers)
        DrawMarkerLines(painter, { r.left, yMin }, { L - 2, yMin }, { r.left, yMax },
                        { L - 2, yMax });

    DrawTextAt(painter, x0 + m + 5, yPtr + ty / 2, text,
               BoxRect(x0 + m + 5, yPtr - ty / 2, L, yPtr + ty / 2));
}

void UpDownIndicator::DrawHorizontal(QPainter* painter, const Box& r, int m,
                                     const QFont& nameFont)
{
    // Name strip along the bottom, the name at its right end.
    const QFontMetrics nameMetrics(nameFont, painter->device());
    const int cx = nameMetrics.horizontalAdvance(m_itemName);
    const int cy = nameMetrics.height();
    const int B = r.bottom - cy;
    FillSpan(painter, r.left, B, r.right, r.bottom, Mode(m_labelBackgroundColor));
    {
        painter->save();
        painter->setFont(nameFont);
        DrawTextAt(painter, r.right - cx, r.bottom, m_itemName,
                   BoxRect(r.right - cx - 3, B, r.right, r.bottom));
        painter->restore();
    }

    const double k = double(r.right - r.left) / (m_axisMax - m_axisMin);
    if (!std::isfinite(k))
        return;
    const int xRef = Position(m_refValue, k, r.left);
    const int xVal = Position(m_value, k, r.left);
    const int xMin = Position(m_minMarker, k, r.left);
    const int xMax = Position(m_maxMarker, k, r.left);
    const bool markers = m_markerMode != MARKERS_NONE;
    auto fill = [&](int x1, int x2, COLORREF c) {
        FillSpan(painter, std::max(x1, r.left), r.top, std::min(x2, r.right), B, c);
    };

    // Bar, left to right. Towards larger values the stretch from the reference up to the
    // band is drawn in the below colour as well.
    if (m_value > m_refValue) {
        int c = xRef;
        if (markers && xMin < xVal) {
            if (c < xMin) {
                fill(c, xMin, m_belowColor);
                c = xMin;
            }
            if (c < xMax) {
                fill(c, std::min(xMax, xVal), m_insideColor);
                c = xMax;
            }
        }
        if (c < xVal)
            fill(c, xVal, m_aboveColor);
    } else if (m_value < m_refValue) {
        int c = xRef;
        if (markers && xVal < xMax) {
            if (xMax < c) {
                fill(xMax, c, m_belowColor);
                c = xMax;
            }
            if (xMin < c) {
                fill(std::max(xMin, xVal), c, m_insideColor);
                c = xMin;
            }
        }
        if (xVal < c)
            fill(xVal, c, m_belowColor);
    }

    GdiLine(painter, QPoint(r.left, r.top), QPoint(r.right, r.top));

    const QelFormatter formatter;
    const QFontMetrics metrics = painter->fontMetrics();
    if (m_refValue != 0.0) {
        const QString text = formatter.FormatDepth(m_refValue, false);
        const int tx = metrics.horizontalAdvance(text);
        const int ty = metrics.height();
        const int h = std::min(ty, B - r.top);
        const QRect box = BoxRect(xRef - tx / 2 - 2, B - h, xRef + tx / 2, B);
        painter->setBackground(toQColor(Mode(m_labelBackgroundColor)));
        DrawTextAt(painter, box.left() + 2, B, text, box, true, Mode(m_labelBackgroundColor));
    }

    const QString text = formatter.FormatDepth(m_value, false);
    const int tx = metrics.horizontalAdvance(text);
    const int ty = metrics.height();
    const int hw = tx / 2 + 3;
    const int xPtr = Limit(xVal, r.left + hw, r.right - hw);
    const int y0 = std::max(r.top, B - ty - m - 5);
    GdiLine(painter, QPoint(xVal, r.top), QPoint(xVal, y0));
    const QPoint p[7] = { { xVal - m, y0 + m }, { xVal, y0 },          { xVal + m, y0 + m },
                          { xPtr + hw, y0 + m }, { xPtr + hw, B - 1 }, { xPtr - hw, B - 1 },
                          { xPtr - hw, y0 + m } };
    DrawPointer(painter, p, xPtr == xVal);

    if (markers)
        DrawMarkerLines(painter, { xMin, r.top }, { xMin, B - 2 }, { xMax, r.top },
                        { xMax, B - 2 });

    DrawTextAt(painter, xPtr - hw + 3, B, text, BoxRect(xPtr - hw, y0, xPtr + hw, B));
}

void UpDownIndicator::DrawPointer(QPainter* painter, const QPoint (&p)[7], bool together) const
{
    // At the true position the tip and the box form one arrow; otherwise the box sits at its
    // clamped place and the tip alone marks the value.
    if (together) {
        painter->drawPolygon(p, 7);
    } else {
        painter->drawPolygon(p, 3);
        painter->drawPolygon(p + 3, 4);
    }
}

void UpDownIndicator::DrawMarkerLines(QPainter* painter, const QPoint& a1, const QPoint& a2,
                                      const QPoint& b1, const QPoint& b2) const
{
    // Three pixels wide, 21 on and 15 off; flat ends keep the dashes at exactly that length.
    // A geometric pen: its gaps stay open whatever the painter's background mode.
    QPen pen(QBrush(toQColor(Mode(m_textColor))), 3, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({ 7.0, 5.0 });
    painter->save();
    painter->setBackgroundMode(Qt::TransparentMode);
    painter->setPen(pen);
    GdiLine(painter, a1, a2);
    GdiLine(painter, b1, b2);
    painter->restore();
}

void UpDownIndicator::DrawResetButton(QPainter* painter, const Box& r)
{
    const QRectF bounds = m_resetRegion.boundingRect();
    const QPointF centre(r.left + DpiCor(14), r.top + DpiCor(14));
    m_resetRegion.translate(centre - bounds.center());
    const QRectF placed = m_resetRegion.boundingRect();

    // A one-pixel frame just inside the region: the outline through the pixel centres.
    const qreal corner = DpiCor(5) / 2.0;
    QPainterPath frame;
    frame.addRoundedRect(placed.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter->save();
    painter->setPen(QPen(toQColor(Mode(0xFFFFFF)), 1));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(frame);
    painter->restore();

    BlitButton(painter, placed);
}

void UpDownIndicator::BlitButton(QPainter* painter, const QRectF& bounds) const
{
    if (m_resetImage.isNull())
        return;
    const QRect box = bounds.toRect();
    const int x = box.x() + box.width() / 2 - kResetImageWidth / 2;
    const int y = box.y() + box.height() / 2 - kResetImageHeight / 2;
    painter->drawImage(QPoint(x, y), m_resetImage);
}

void UpDownIndicator::UpdateColorForNightView(QImage& image, COLORREF color)
{
    // Qt's 32-bit pixels carry an alpha byte (0xFF when opaque), so "black" means the colour
    // part 0x000000 whatever the alpha; the alpha is kept.
    if (image.format() != QImage::Format_RGB32 && image.format() != QImage::Format_ARGB32)
        return;
    const QRgb replacement = qRgb(GetRValue(color), GetGValue(color), GetBValue(color));
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            if ((line[x] & 0x00FFFFFFu) == 0 && qAlpha(line[x]) != 0)
                line[x] = (replacement & 0x00FFFFFFu) | (line[x] & 0xFF000000u);
    }
}

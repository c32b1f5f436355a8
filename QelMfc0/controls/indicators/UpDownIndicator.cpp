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
    attributes.GetAttribColor(ATTR_PANECOLOR, m_colors.pane);
    attributes.GetAttribColor(ATTR_ABOVECOLOR, m_colors.above);
    attributes.GetAttribColor(ATTR_INSIDECOLOR, m_colors.inside);
    attributes.GetAttribColor(ATTR_BELOWCOLOR, m_colors.below);
    attributes.GetAttribColor(ATTR_TEXTCOLOR, m_colors.text);
    attributes.GetAttribColor(ATTR_BCKGNDCOLOR, m_colors.background);
    attributes.GetAttribColor(ATTR_LABELBACKGROUNDCOLOR, m_colors.labelBackground);
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

void UpDownIndicator::SetMarkerMode(int mode)
{
    m_markerMode = mode;
}

void UpDownIndicator::SetColors(const Colors& colors)
{
    m_colors = colors;
}

void UpDownIndicator::SetFont(const FontInfo& font)
{
    m_font = font;
}

int UpDownIndicator::GetPointerSize() const
{
    // The font size in points doubles as the pointer's size in pixels.
    return std::clamp(m_font.GetSize(), 0, kMaxPointerSize);
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

void UpDownIndicator::FillSpan(QPainter* painter, const QRect& box, COLORREF color)
{
    if (!box.isEmpty())
        painter->fillRect(box, toQColor(color));
}

QPoint UpDownIndicator::AxisFrame::At(int a, int c) const
{
    return horizontal ? QPoint(a, c) : QPoint(c, a);
}

QRect UpDownIndicator::AxisFrame::Box(int a1, int a2, int c1, int c2, int padLeft) const
{
    return horizontal ? BoxRect(a1 - padLeft, c1, a2, c2) : BoxRect(c1 - padLeft, a1, c2, a2);
}

int UpDownIndicator::AxisFrame::Along(const QSize& size) const
{
    return horizontal ? size.width() : size.height();
}

int UpDownIndicator::AxisFrame::Across(const QSize& size) const
{
    return horizontal ? size.height() : size.width();
}

void UpDownIndicator::Draw(QPainter* painter, const QRect& rect)
{
    Box strip;
    if (!painter || !painter->isActive() || !StripOf(rect, strip))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    FillSpan(painter, BoxRect(strip.left, strip.top, strip.right, strip.bottom), Mode(m_colors.pane));
    if (m_valid && Drawable()) {
        painter->setPen(QPen(toQColor(Mode(m_colors.text)), 1, Qt::SolidLine));
        painter->setBrush(QBrush(toQColor(Mode(m_colors.background))));
        painter->setFont(m_font.ToQFont());
        DrawIndicator(painter, strip);
    }
    painter->restore();
}

void UpDownIndicator::DrawIndicator(QPainter* painter, const Box& r)
{
    const AxisFrame frame { m_horizontal };
    // The strip in the frame: the axis runs from aLow to aHigh on the screen, the gauge across
    // it from the axis line at cStart to the far edge cEnd, where the name strip lies.
    const int aLow = m_horizontal ? r.left : r.top;
    const int aHigh = m_horizontal ? r.right : r.bottom;
    const int cStart = m_horizontal ? r.top : r.left;
    const int cEnd = m_horizontal ? r.bottom : r.right;
    const int m = GetPointerSize();

    QFont nameFont = painter->font();
    nameFont.setItalic(true);
    const QFontMetrics nameMetrics(nameFont, painter->device());
    const int cName = cEnd - nameMetrics.height();
    FillSpan(painter, frame.Box(aLow, aHigh, cName, cEnd), Mode(m_colors.labelBackground));
    DrawName(painter, r, cName, nameFont);

    // Larger values lie towards the right of a horizontal gauge and towards the top of a
    // vertical one.
    const int aAxisMin = m_horizontal ? aLow : aHigh;
    const int aAxisMax = m_horizontal ? aHigh : aLow;
    const double k = double(aAxisMax - aAxisMin) / (m_axisMax - m_axisMin);
    if (!std::isfinite(k))
        return;
    const int aRef = Position(m_refValue, k, aAxisMin);
    const int aVal = Position(m_value, k, aAxisMin);
    const int aMin = Position(m_minMarker, k, aAxisMin);
    const int aMax = Position(m_maxMarker, k, aAxisMin);
    const bool markers = m_markerMode != MARKERS_NONE;

    DrawBar(painter, frame, { aLow, aHigh, cStart, cName }, { aRef, aVal, aMin, aMax });
    GdiLine(painter, frame.At(aLow, cStart), frame.At(aHigh, cStart));

    const QelFormatter formatter;
    const QFontMetrics metrics = painter->fontMetrics();
    if (m_refValue != 0.0) {
        const QString text = formatter.FormatDepth(m_refValue, false);
        const QSize size(metrics.horizontalAdvance(text), metrics.height());
        const int along = frame.Along(size);
        const int across = std::min(frame.Across(size), cName - cStart);
        // Centred on the reference against the name strip, 2 pixels free left of the text.
        const QRect box = frame.Box(aRef - along / 2, aRef + along / 2, cName - across, cName, 2);
        // The label's background colour stays the text background, as a device context keeps
        // the colour it was given: in a painter in opaque mode the value text gets it too.
        painter->setBackground(toQColor(Mode(m_colors.labelBackground)));
        DrawTextAt(painter, box.left() + 2, box.y() + box.height(), text, box, true,
                   Mode(m_colors.labelBackground));
    }

    // Texts stay upright: they run along the axis of a horizontal gauge and across the axis of a
    // vertical one. The pointer's box is as long as its text where the text runs along the
    // axis, and as thick as the tip where it runs across.
    const bool textAlong = m_horizontal;
    const QString text = formatter.FormatDepth(m_value, false);
    const QSize size(metrics.horizontalAdvance(text), metrics.height());
    const int along = frame.Along(size);
    const int half = textAlong ? along / 2 + 3 : m;
    const int aPtr = Limit(aVal, aLow + half, aHigh - half);
    const int c0 = std::max(cStart, cName - frame.Across(size) - m - 5);
    GdiLine(painter, frame.At(aVal, cStart), frame.At(aVal, c0));
    const QPoint p[7] = { frame.At(aVal - m, c0 + m),       frame.At(aVal, c0),
                          frame.At(aVal + m, c0 + m),       frame.At(aPtr + half, c0 + m),
                          frame.At(aPtr + half, cName - 1), frame.At(aPtr - half, cName - 1),
                          frame.At(aPtr - half, c0 + m) };
    DrawPointer(painter, p, aPtr == aVal);

    if (markers)
        DrawMarkerLines(painter, frame.At(aMin, cStart), frame.At(aMin, cName - 2),
                        frame.At(aMax, cStart), frame.At(aMax, cName - 2));

    // Along the axis the text fills the box, 3 pixels in, on the name strip; across it, the
    // text starts past the tip, centred on the pointer.
    const QRect cell = textAlong ? frame.Box(aPtr - half, aPtr + half, c0, cName)
                                 : frame.Box(aPtr - along / 2, aPtr + along / 2, c0 + m + 5, cName);
    DrawTextAt(painter, cell.left() + (textAlong ? 3 : 0), cell.y() + cell.height(), text, cell);

    if (m_showResetButton)
        DrawResetButton(painter, r);
}

void UpDownIndicator::DrawName(QPainter* painter, const Box& r, int cName, const QFont& nameFont) const
{
    // The name lies at the end of the larger values: from the top of a vertical gauge, where it
    // reads from bottom to top, and at the right end of a horizontal one.
    if (m_itemName.isEmpty())
        return;
    const QFontMetrics nameMetrics(nameFont, painter->device());
    const int cx = nameMetrics.horizontalAdvance(m_itemName);
    painter->save();
    painter->setFont(nameFont);
    if (m_horizontal) {
        DrawTextAt(painter, r.right - cx, r.bottom, m_itemName, BoxRect(r.right - cx - 3, cName, r.right, r.bottom));
    } else {
        const QRect nameStrip = BoxRect(cName, r.top, r.right, r.bottom);
        if (!nameStrip.isEmpty()) {
            painter->setClipRect(nameStrip, Qt::IntersectClip);
            painter->translate(r.right, r.top + cx + 3);
            painter->rotate(-90.0);
            painter->drawText(QPoint(0, -nameMetrics.descent()), m_itemName);
        }
    }
    painter->restore();
}

void UpDownIndicator::DrawBar(QPainter* painter, const AxisFrame& frame, const Span& span,
                              const Marks& at) const
{
    if (m_value == m_refValue)
        return;
    // The bar runs from the reference towards the value. With markers, the stretch that crosses
    // the band is drawn in the inside colour; the stretch before the band in the value's side
    // colour, except towards larger values of a horizontal gauge, which draws it in the below
    // colour as well; the stretch beyond the band in the value's side colour.
    const bool up = m_value > m_refValue;
    const int first = up ? at.min : at.max;
    const int last = up ? at.max : at.min;
    const COLORREF side = up ? m_colors.above : m_colors.below;
    const COLORREF approach = up && !m_horizontal ? m_colors.above : m_colors.below;
    // The screen direction from the reference to the value: +1 when it is towards aHigh.
    const bool forward = up == m_horizontal;
    const auto before = [forward](int p, int q) { return forward ? p < q : q < p; };
    // A value or marker off the axis pegs its stretch at the strip's edge.
    const auto fill = [&](int from, int to, COLORREF color) {
        const int a1 = std::max(forward ? from : to, span.aLow);
        const int a2 = std::min(forward ? to : from, span.aHigh);
        FillSpan(painter, frame.Box(a1, a2, span.cStart, span.cEnd), color);
    };
    int c = at.ref;
    if (m_markerMode != MARKERS_NONE && before(first, at.value)) {
        if (before(c, first)) {
            fill(c, first, approach);
            c = first;
        }
        if (before(c, last)) {
            fill(c, before(last, at.value) ? last : at.value, m_colors.inside);
            c = last;
        }
    }
    if (before(c, at.value))
        fill(c, at.value, side);
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
    QPen pen(QBrush(toQColor(Mode(m_colors.text))), 3, Qt::CustomDashLine, Qt::FlatCap);
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
